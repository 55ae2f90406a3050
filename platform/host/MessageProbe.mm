#import "MessageProbe.h"
#import <Foundation/Foundation.h>
#import <AppSupport/CPDistributedMessagingCenter.h>
#include <Simulator/Simulator.h>
#include <chrono>
#include <stdio.h>

namespace {

struct Probe {
  const char *identifier;
  bool expectsReply;
  NSDictionary *userInfo;
};

double millisecondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

NSString *oneLine(id object) {
  if (object == nil) return @"(no reply)";
  NSString *text = [object description];
  text =
      [[text componentsSeparatedByCharactersInSet:[NSCharacterSet newlineCharacterSet]] componentsJoinedByString:@" "];
  while ([text rangeOfString:@"  "].location != NSNotFound) {
    text = [text stringByReplacingOccurrencesOfString:@"  " withString:@" "];
  }
  return [text length] > 160 ? [[text substringToIndex:157] stringByAppendingString:@"..."] : text;
}

}  // namespace

int runMessageProbe(void) {
  CPDistributedMessagingCenter *center = [CPDistributedMessagingCenter centerNamed:@"net.corvane.tessarin.center"];
  const Probe probes[] = {
      {"dlbv", true, nil},
      {"idsn", true, nil},
      {"appL", true, nil},
      {"fldr", true, nil},
      {"wfls", true, nil},
      {"gpsi", true, nil},
      {"spsi", false, [NSDictionary dictionaryWithObject:[NSNumber numberWithBool:NO] forKey:@"showsInLockScreen"]},
      {"prrc", false, nil},
  };
  printf("Messages to SpringBoard over %s\n", [[center name] UTF8String]);
  for (const Probe &probe : probes) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    NSString *name = @(probe.identifier);
    auto start = std::chrono::steady_clock::now();
    if (probe.expectsReply) {
      NSDictionary *reply = [center sendMessageAndReceiveReplyName:name userInfo:probe.userInfo];
      printf("  %s  %7.1f ms  %s\n", probe.identifier, millisecondsSince(start), [oneLine(reply) UTF8String]);
    } else {
      unsigned handled = SimNotifyPostCount("net.corvane.tessarin.simulator.handled");
      BOOL sent = [center sendMessageName:name userInfo:probe.userInfo];
      // Nothing answers a one-way message; wait until SpringBoard has taken it in, so the
      // next message does not replace its code before it is read.
      SimRunLoopRunUntil(
          ^BOOL { return SimNotifyPostCount("net.corvane.tessarin.simulator.handled") > handled; }, 1.0);
      printf("  %s  %7.1f ms  one-way, %s\n", probe.identifier, millisecondsSince(start), sent ? "sent" : "not sent");
    }
    [pool drain];
  }
  // "spsi" changed what "gpsi" answers: ask once more to show the round trip.
  NSDictionary *after = [center sendMessageAndReceiveReplyName:@"gpsi" userInfo:nil];
  printf("  gpsi after spsi: %s\n", [oneLine(after) UTF8String]);
  return 0;
}
