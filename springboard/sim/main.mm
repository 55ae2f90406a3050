// The simulated SpringBoard: answers the settings bundle's messages on the device
// named by TESSARIN_DEVICE_ROOT until it is sent SIGTERM or SIGINT.
#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <Simulator/Simulator.h>
#include <notify.h>
#include <signal.h>
#include <sys/prctl.h>
#include <stdio.h>
#include <unistd.h>
#import "SimulatedSpringBoard.h"
#import "TessarinMessageServer.h"

static volatile sig_atomic_t stopRequested = 0;
static const char *const kHandledNotification = "net.corvane.tessarin.simulator.handled";

static void requestStop(int signalNumber) { stopRequested = 1; }

static void selfCheckArrived(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
                             CFDictionaryRef userInfo) {
  *(BOOL *)observer = YES;
}

// Ready means ready to answer at once: a notification has come round through this
// process's own delivery path, and the first reply has been archived.
static void warmUp(SimulatedSpringBoard *springBoard) {
  static BOOL arrived = NO;
  CFStringRef name = CFSTR("net.corvane.tessarin.simulator.selfcheck");
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &arrived, selfCheckArrived, name, NULL,
                                  CFNotificationSuspensionBehaviorDeliverImmediately);
  notify_post("net.corvane.tessarin.simulator.selfcheck");
  archivedReply([springBoard replyToMessage:@"appL" userInfo:nil]);
  if (!SimRunLoopRunUntil(
          ^BOOL { return arrived; }, 10.0)) {
    fprintf(stderr, "tessarin-springboard: its own notification did not come round in 10 s\n");
  }
  CFNotificationCenterRemoveObserver(CFNotificationCenterGetDarwinNotifyCenter(), &arrived, name, NULL);
}

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if (argc > 1) SimDeviceUse(argv[1]);
  if (SimDeviceRoot() == NULL) {
    fprintf(stderr, "tessarin-springboard: no device (pass a device root or set %s)\n", SIM_DEVICE_ROOT_ENV);
    return 2;
  }
  signal(SIGTERM, requestStop);
  signal(SIGINT, requestStop);
  // A Settings process that dies (a crashed test, say) takes its SpringBoard with it.
  prctl(PR_SET_PDEATHSIG, SIGTERM);

  NSDictionary *profile = SimDeviceProfile();
  NSDictionary *facts = [profile objectForKey:@"springboard"];
  id delaySetting = [facts isKindOfClass:[NSDictionary class]] ? [facts objectForKey:@"replyDelay"] : nil;
  const double replyDelay = [delaySetting respondsToSelector:@selector(doubleValue)] ? [delaySetting doubleValue] : 0;

  SimulatedSpringBoard *springBoard = [[SimulatedSpringBoard alloc] initWithProfile:profile];
  TessarinMessageServer *server =
      [[TessarinMessageServer alloc] initWithHandler:^NSDictionary *(NSString *identifier, NSDictionary *userInfo) {
        // A slow SpringBoard: the reply is late, the way a busy device answers.
        if (replyDelay > 0) usleep((useconds_t)(replyDelay * 1e6));
        NSDictionary *reply = [springBoard replyToMessage:identifier userInfo:userInfo];
        // Lets tests and tools know a one-way message has been taken in.
        notify_post(kHandledNotification);
        return reply;
      }];
  [server start];
  warmUp(springBoard);
  notify_post("net.corvane.tessarin.simulator.ready");

  while (!stopRequested) {
    NSAutoreleasePool *turn = [[NSAutoreleasePool alloc] init];
    SimRunLoopRunFor(0.05);
    [turn drain];
  }
  [server stop];
  [server release];
  [springBoard release];
  [pool drain];
  return 0;
}
