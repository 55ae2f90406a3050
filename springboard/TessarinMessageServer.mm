#import "TessarinMessageServer.h"
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>
#include <string>
#include "core/MessageCode.hpp"
#include "core/Names.hpp"
#import "core/Paths.h"

static void transportSignalled(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
                               CFDictionaryRef userInfo) {
  [(TessarinMessageServer *)observer handleSignal];
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
                                  (CFStringRef)@(tessarin::kTransportSignal), NULL,
                                  CFNotificationSuspensionBehaviorDeliverImmediately);
  _running = YES;
}

- (void)stop {
  if (!_running) return;
  CFNotificationCenterRemoveObserver(CFNotificationCenterGetDarwinNotifyCenter(), self,
                                     (CFStringRef)@(tessarin::kTransportSignal), NULL);
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
    NSData *archive = [NSKeyedArchiver archivedDataWithRootObject:reply];
    // Atomically, so the bundle's busy reader never sees half a reply.
    [archive writeToFile:devicePath(@(tessarin::replyFilePath(identifier).c_str())) atomically:YES];
  }
  [pool drain];
}

@end
