#import "core/SpringBoardRequests.h"
#import "core/PlatformAPI.h"

#include "core/Names.hpp"

NSDictionary *askSpringBoard(const char *message) {
  Class centerClass = NSClassFromString(@"CPDistributedMessagingCenter");
  CPDistributedMessagingCenter *center = [centerClass centerNamed:@(tessarin::kCenterName)];
  if (center == nil) return nil;
  id reply = [center sendMessageAndReceiveReplyName:@(message) userInfo:nil];
  return [reply isKindOfClass:[NSDictionary class]] ? reply : nil;
}
