// Answers the settings bundle's messages as the product's SpringBoard half would,
// from the facts of the simulated device's profile.
#pragma once
#import <Foundation/Foundation.h>

@interface SimulatedSpringBoard : NSObject {
  NSDictionary *_profile;
  BOOL _showsInLockScreen;
  NSUInteger _libraryVersionReplies;
}

- (instancetype)initWithProfile:(NSDictionary *)profile;

// The reply to one message (nil for one-way messages and for what it does not know).
- (NSDictionary *)replyToMessage:(NSString *)identifier userInfo:(NSDictionary *)userInfo;

@end
