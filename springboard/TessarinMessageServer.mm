#import "TessarinMessageServer.h"
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>
#include <string>
#include "core/MessageCode.hpp"
#include "core/Names.hpp"
#include "core/plist/KeyedArchive.hpp"
#import "core/Paths.h"
#import "core/PlistBridge.h"

static void transportSignalled(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
                               CFDictionaryRef userInfo) {
  [(TessarinMessageServer *)observer handleSignal];
}

// GNUstep's binary property-list writer takes quadratic time (seconds for a few thousand
// strings); the core writes the archive iOS's NSKeyedArchiver writes, in linear time.
// A reply of other classes goes through the archiver.
NSData *archivedReply(NSDictionary *reply) {
  if (std::optional<tessarin::plist::Value> value = plistValueFromObject(reply)) {
    std::vector<uint8_t> archive = tessarin::plist::encodeKeyedArchive(*value);
    if (!archive.empty()) return [NSData dataWithBytes:archive.data() length:archive.size()];
  }
  return [NSKeyedArchiver archivedDataWithRootObject:reply];
}

@implementation TessarinMessageServer

@synthesize running = _running;

- (instancetype)initWithHandler:(TessarinMessageHandler)handler {
  if ((self = [super init])) {
    _handler = Block_copy(handler);
    _token = NOTIFY_TOKEN_INVALID;
  }
  return self;
}

- (void)dealloc {
  [self stop];
  if (_handler) Block_release(_handler);
  [super dealloc];
}

- (void)start {
  if (_running) return;
  notify_register_check(tessarin::kTransportSignal, &_token);
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), self, transportSignalled,
                                  (CFStringRef) @(tessarin::kTransportSignal), NULL,
                                  CFNotificationSuspensionBehaviorDeliverImmediately);
  _running = YES;
}

- (void)stop {
  if (!_running) return;
  CFNotificationCenterRemoveObserver(CFNotificationCenterGetDarwinNotifyCenter(), self,
                                     (CFStringRef) @(tessarin::kTransportSignal), NULL);
  notify_cancel(_token);
  _token = NOTIFY_TOKEN_INVALID;
  _running = NO;
}

- (void)handleSignal {
  uint64_t state = 0;
  if (notify_get_state(_token, &state) != NOTIFY_STATUS_OK) return;
  std::string identifier = tessarin::messageIdentifier(state);
  if (identifier.empty()) return;

  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *name = @(identifier.c_str());
  NSDictionary *userInfo = nil;
  NSString *requestPath = devicePath(@(tessarin::requestFilePath(identifier).c_str()));
  if ([[NSFileManager defaultManager] fileExistsAtPath:requestPath]) {
    id request = [NSDictionary dictionaryWithContentsOfFile:requestPath];
    if ([request isKindOfClass:[NSDictionary class]]) userInfo = request;
  }

  NSDictionary *reply = _handler(name, userInfo);
  if (reply != nil && tessarin::isRequestReply(identifier)) {
    NSData *archive = archivedReply(reply);
    // Atomically, so the bundle's busy reader never sees half a reply.
    [archive writeToFile:devicePath(@(tessarin::replyFilePath(identifier).c_str())) atomically:YES];
  }
  [pool drain];
}

@end
