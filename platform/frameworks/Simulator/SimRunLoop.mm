// Run-loop helpers for tests and hosts: spin the current thread's run loop for a while.

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include "SimInternal.h"

#include <unistd.h>

static void (*displayPass)(void);

void SimRunLoopSetDisplayPass(void (*pass)(void)) { displayPass = pass; }

void SimRunLoopDisplayPass(void) {
  if (displayPass != NULL && [NSThread isMainThread]) displayPass();
}

// One bounded turn of the run loop, then the display pass that ends a turn on iOS. GNUstep
// returns at once when the loop has no input source yet; sleep a little then, so callers
// waiting on other threads do not spin.
static void runOnce(NSRunLoop *loop, NSDate *limit) {
  NSDate *slice = [NSDate dateWithTimeIntervalSinceNow:0.01];
  NSDate *until = [slice earlierDate:limit];
  if (![loop runMode:NSDefaultRunLoopMode beforeDate:until]) usleep(1000);
  SimRunLoopDisplayPass();
}

void SimRunLoopRunFor(double seconds) {
  if (SimClockIsVirtual()) {
    SimClockAdvance(seconds);
    return;
  }
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSRunLoop *loop = [NSRunLoop currentRunLoop];
  NSDate *limit = [NSDate dateWithTimeIntervalSinceNow:seconds];
  do {
    NSAutoreleasePool *inner = [[NSAutoreleasePool alloc] init];
    runOnce(loop, limit);
    [inner release];
  } while ([limit timeIntervalSinceNow] > 0);
  [pool release];
}

BOOL SimRunLoopRunUntil(BOOL (^condition)(void), double timeout) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSRunLoop *loop = [NSRunLoop currentRunLoop];
  NSDate *limit = [NSDate dateWithTimeIntervalSinceNow:timeout];
  BOOL done = condition();
  if (SimClockIsVirtual()) {
    for (double waited = 0; !done && waited < timeout; waited += 0.01) {
      SimClockAdvance(0.01);
      done = condition();
    }
    [pool release];
    return done;
  }
  while (!done && [limit timeIntervalSinceNow] > 0) {
    NSAutoreleasePool *inner = [[NSAutoreleasePool alloc] init];
    runOnce(loop, limit);
    done = condition();
    [inner release];
  }
  [pool release];
  return done;
}

void SimPerformOnMainLoop(id target, SEL sel, id arg) {
  if ([NSThread isMainThread]) {
    // performSelectorOnMainThread: would run at once here; queue for the next turn instead.
    NSArray *modes = [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSRunLoopCommonModes, nil];
    [[NSRunLoop currentRunLoop] performSelector:sel target:target argument:arg order:0 modes:modes];
  } else {
    [target performSelectorOnMainThread:sel withObject:arg waitUntilDone:NO];
  }
}
