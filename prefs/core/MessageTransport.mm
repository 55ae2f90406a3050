#import "core/MessageTransport.h"
#import "core/Paths.h"
#import "core/PlistBridge.h"
#import "core/VersionFlags.h"
#import "core/PlatformAPI.h"
#include <chrono>
#include <string>
#include "core/MessageCode.hpp"
#include "core/Names.hpp"
#include "core/ReplyPoll.hpp"
#include "core/Reply.hpp"

namespace {

int transportToken = NOTIFY_TOKEN_INVALID;

BOOL (*platformSendMessage)(id, SEL, NSString *, NSDictionary *) = NULL;
id (*platformSendMessageAndReceiveReply)(id, SEL, NSString *, NSDictionary *) = NULL;

bool isProductCenter(CPDistributedMessagingCenter *center) {
  return systemVersion.iOS11 && [[center name] isEqualToString:@(tessarin::kCenterName)];
}

// State first, then the request file, then the signal: SpringBoard reads them in that order.
// Gives the identifier signalled, or nothing for a name that is not a message identifier.
std::optional<std::string> signalMessage(NSString *name, NSDictionary *userInfo) {
  const char *utf8 = [name UTF8String];
  const std::string identifier = utf8 ? utf8 : "";
  std::optional<uint32_t> code = tessarin::messageCode(identifier);
  if (!code) return std::nullopt;
  notify_set_state(transportToken, *code);
  if (userInfo != nil) {
    NSString *requestPath = @(tessarin::requestFilePath(identifier).c_str());
    [userInfo writeToFile:devicePath(requestPath) atomically:YES];
  }
  notify_post(tessarin::kTransportSignal);
  return identifier;
}

double secondsNow() {
  using namespace std::chrono;
  return duration<double>(steady_clock::now().time_since_epoch()).count();
}

BOOL sendMessage(id self, SEL _cmd, NSString *name, NSDictionary *userInfo) {
  if (!isProductCenter(self)) return platformSendMessage(self, _cmd, name, userInfo);
  signalMessage(name, userInfo);
  return YES;
}

id sendMessageAndReceiveReply(id self, SEL _cmd, NSString *name, NSDictionary *userInfo) {
  if (!isProductCenter(self)) return platformSendMessageAndReceiveReply(self, _cmd, name, userInfo);
  std::optional<std::string> identifier = signalMessage(name, userInfo);
  if (!identifier) return nil;

  const std::string replyPath = devicePath(tessarin::replyFilePath(*identifier).c_str());
  std::optional<tessarin::Bytes> data = tessarin::awaitReply(
      [&replyPath] { return tessarin::readReplyFile(replyPath); }, secondsNow, tessarin::kReplyBudgetSeconds);
  if (!data) return nil;

  std::optional<tessarin::plist::Value> reply = tessarin::decodeReply(*data);
  if (!reply) return nil;
  [[NSFileManager defaultManager] removeItemAtPath:@(replyPath.c_str()) error:NULL];
  return objectFromPlistValue(*reply);
}

}  // namespace

void installMessageTransport(void) {
  Class center = NSClassFromString(@"CPDistributedMessagingCenter");
  if (center == Nil) return;
  MSHookMessageEx(center, @selector(sendMessageName:userInfo:), (IMP)sendMessage, (IMP *)&platformSendMessage);
  MSHookMessageEx(center, @selector(sendMessageAndReceiveReplyName:userInfo:), (IMP)sendMessageAndReceiveReply,
                  (IMP *)&platformSendMessageAndReceiveReply);
}

void registerTransportSignal(void) { notify_register_check(tessarin::kTransportSignal, &transportToken); }
