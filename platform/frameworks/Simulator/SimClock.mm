// The clock of the main run loop's delayed work: main-queue dispatch_after, delayed performs
// (performSelector:withObject:afterDelay:) and the UIKit stand-in's animation and transition
// timeline all wait on it. It follows real time, with one run-loop timer armed for the
// earliest item; a test may stop it and move it on itself (SimClockUseVirtualTime,
// SimClockAdvance), so delays are checked exactly and never by sleeping.

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include "SimInternal.h"

#include <Block.h>
#include <objc/runtime.h>
#include <time.h>

#include <string.h>

static double realSeconds(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return (double)ts.tv_sec + (double)ts.tv_nsec / 1e9;
}

// One piece of delayed work. Blocks are not objects for this runtime: a heap copy is held.
@interface SimClockItem : NSObject {
  double _due;
  unsigned long long _sequence;
  void (^_block)(void);
  id _target;
  SEL _selector;
  id _argument;
}
@property (nonatomic, assign) double due;
@property (nonatomic, assign) unsigned long long sequence;
@property (nonatomic, retain) id target;
@property (nonatomic, assign) SEL selector;
@property (nonatomic, retain) id argument;
- (void)setBlock:(void (^)(void))block;
- (void)run;
@end

@implementation SimClockItem
@synthesize due = _due;
@synthesize sequence = _sequence;
@synthesize target = _target;
@synthesize selector = _selector;
@synthesize argument = _argument;
- (void)setBlock:(void (^)(void))block {
  if (_block) Block_release(_block);
  _block = 0;
  if (block) _block = Block_copy(block);
}
- (void)run {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if (_block)
    _block();
  else if (_target && _selector)
    [_target performSelector:_selector withObject:_argument];
  [pool release];
}
- (void)dealloc {
  if (_block) Block_release(_block);
  [_target release];
  [_argument release];
  [super dealloc];
}
@end

@interface SimClockTimeline : NSObject {
  NSMutableArray *_items;
  NSTimer *_timer;
  unsigned long long _sequence;
  BOOL _virtual;
  double _virtualNow;
}
@property (nonatomic, retain) NSTimer *timer;
+ (SimClockTimeline *)shared;
- (double)now;
- (void)add:(SimClockItem *)item after:(double)delay;
- (void)fire:(NSTimer *)timer;
@end

@implementation SimClockTimeline
@synthesize timer = _timer;

+ (SimClockTimeline *)shared {
  static SimClockTimeline *timeline;
  if (!timeline) timeline = [[SimClockTimeline alloc] init];
  return timeline;
}

- (instancetype)init {
  if ((self = [super init])) _items = [[NSMutableArray alloc] init];
  return self;
}

- (double)now {
  return _virtual ? _virtualNow : realSeconds();
}

- (void)arm {
  [_timer invalidate];
  self.timer = nil;
  if (_virtual || [_items count] == 0) return;
  double wait = [(SimClockItem *)[_items objectAtIndex:0] due] - realSeconds();
  NSTimer *timer = [[NSTimer alloc] initWithFireDate:[NSDate dateWithTimeIntervalSinceNow:wait > 0 ? wait : 0]
                                            interval:0
                                              target:self
                                            selector:@selector(fire:)
                                            userInfo:nil
                                             repeats:NO];
  [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
  [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
  self.timer = timer;
  [timer release];
}

- (void)add:(SimClockItem *)item after:(double)delay {
  [item setDue:[self now] + (delay > 0 ? delay : 0)];
  [item setSequence:++_sequence];
  NSUInteger i = [_items count];
  while (i > 0 && [(SimClockItem *)[_items objectAtIndex:i - 1] due] > [item due]) --i;
  [_items insertObject:item atIndex:i];
  if (i == 0) [self arm];
}

// The first item due at or before `limit`, taken off the timeline; nil when none.
- (SimClockItem *)takeDueBy:(double)limit {
  if ([_items count] == 0) return nil;
  SimClockItem *first = [_items objectAtIndex:0];
  if ([first due] > limit + 1e-9) return nil;
  [[first retain] autorelease];
  [_items removeObjectAtIndex:0];
  return first;
}

- (void)fire:(NSTimer *)timer {
  self.timer = nil;
  if (_virtual) return;
  SimClockItem *item;
  while ((item = [self takeDueBy:realSeconds()]) != nil) [item run];
  if (!_timer) [self arm];
}

- (void)useVirtual:(BOOL)useVirtual {
  if (useVirtual == _virtual) return;
  _virtualNow = realSeconds();
  _virtual = useVirtual;
  if (!useVirtual) {
    // Back on real time: what the stopped clock had not reached is due as much later.
    double shift = realSeconds() - _virtualNow;
    for (SimClockItem *item in _items) [item setDue:[item due] + shift];
  }
  [self arm];
}

- (BOOL)isVirtual {
  return _virtual;
}

- (void)advance:(double)seconds {
  double target = _virtualNow + (seconds > 0 ? seconds : 0);
  NSRunLoop *loop = [NSRunLoop currentRunLoop];
  for (;;) {
    // Work already handed to the run loop (main-queue blocks, performs) goes first.
    for (int turn = 0; turn < 8; turn++) [loop runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
    SimRunLoopDisplayPass();
    SimClockItem *item = [self takeDueBy:target];
    if (item == nil) break;
    if ([item due] > _virtualNow) _virtualNow = [item due];
    [item run];
  }
  _virtualNow = target;
  for (int turn = 0; turn < 8; turn++) [loop runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
  SimRunLoopDisplayPass();
}

- (void)cancelTarget:(id)target selector:(SEL)selector argument:(id)argument matchAll:(BOOL)all {
  for (NSUInteger i = [_items count]; i > 0; i--) {
    SimClockItem *item = [_items objectAtIndex:i - 1];
    if ([item target] != target) continue;
    if (!all) {
      if (!sel_isEqual([item selector], selector)) continue;
      id held = [item argument];
      if (!(held == argument || [held isEqual:argument])) continue;
    }
    [_items removeObjectAtIndex:i - 1];
  }
  [self arm];
}
@end

void SimClockSchedule(double delay, void (^block)(void)) {
  if (!block) return;
  SimClockItem *item = [[SimClockItem alloc] init];
  [item setBlock:block];
  [[SimClockTimeline shared] add:item after:delay];
  [item release];
}

double SimClockNow(void) { return [[SimClockTimeline shared] now]; }

void SimClockUseVirtualTime(void) { [[SimClockTimeline shared] useVirtual:YES]; }

void SimClockUseRealTime(void) { [[SimClockTimeline shared] useVirtual:NO]; }

bool SimClockIsVirtual(void) { return [[SimClockTimeline shared] isVirtual]; }

void SimClockAdvance(double seconds) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if ([[SimClockTimeline shared] isVirtual]) [[SimClockTimeline shared] advance:seconds];
  [pool release];
}

// MARK: - Delayed performs on the main thread wait on the clock

typedef void (*PerformAfterDelayIMP)(id, SEL, SEL, id, NSTimeInterval);
typedef void (*PerformAfterDelayInModesIMP)(id, SEL, SEL, id, NSTimeInterval, NSArray *);
typedef void (*CancelAllIMP)(id, SEL, id);
typedef void (*CancelOneIMP)(id, SEL, id, SEL, id);

static PerformAfterDelayIMP gPlatformPerform;
static PerformAfterDelayInModesIMP gPlatformPerformInModes;
static CancelAllIMP gPlatformCancelAll;
static CancelOneIMP gPlatformCancelOne;

static void scheduleOnClock(id target, SEL selector, id argument, NSTimeInterval delay) {
  SimClockItem *item = [[SimClockItem alloc] init];
  [item setTarget:target];
  [item setSelector:selector];
  [item setArgument:argument];
  [[SimClockTimeline shared] add:item after:delay];
  [item release];
}

static void clockPerform(id self, SEL _cmd, SEL selector, id argument, NSTimeInterval delay) {
  if (![NSThread isMainThread]) {
    gPlatformPerform(self, _cmd, selector, argument, delay);
    return;
  }
  scheduleOnClock(self, selector, argument, delay);
}

static void clockPerformInModes(id self, SEL _cmd, SEL selector, id argument, NSTimeInterval delay, NSArray *modes) {
  if (![NSThread isMainThread]) {
    gPlatformPerformInModes(self, _cmd, selector, argument, delay, modes);
    return;
  }
  scheduleOnClock(self, selector, argument, delay);
}

static void clockCancelAll(id self, SEL _cmd, id target) {
  if ([NSThread isMainThread]) [[SimClockTimeline shared] cancelTarget:target selector:NULL argument:nil matchAll:YES];
  gPlatformCancelAll(self, _cmd, target);
}

static void clockCancelOne(id self, SEL _cmd, id target, SEL selector, id argument) {
  if ([NSThread isMainThread])
    [[SimClockTimeline shared] cancelTarget:target selector:selector argument:argument matchAll:NO];
  gPlatformCancelOne(self, _cmd, target, selector, argument);
}

@interface SimClockInstaller : NSObject
@end

@implementation SimClockInstaller
+ (void)load {
  Class object = [NSObject class];
  Class meta = object_getClass(object);
  Method perform = class_getInstanceMethod(object, @selector(performSelector:withObject:afterDelay:));
  Method inModes = class_getInstanceMethod(object, @selector(performSelector:withObject:afterDelay:inModes:));
  Method cancelAll = class_getInstanceMethod(meta, @selector(cancelPreviousPerformRequestsWithTarget:));
  Method cancelOne = class_getInstanceMethod(meta, @selector(cancelPreviousPerformRequestsWithTarget:selector:object:));
  if (perform == NULL || inModes == NULL || cancelAll == NULL || cancelOne == NULL) return;
  gPlatformPerform = (PerformAfterDelayIMP)method_setImplementation(perform, (IMP)clockPerform);
  gPlatformPerformInModes = (PerformAfterDelayInModesIMP)method_setImplementation(inModes, (IMP)clockPerformInModes);
  gPlatformCancelAll = (CancelAllIMP)method_setImplementation(cancelAll, (IMP)clockCancelAll);
  gPlatformCancelOne = (CancelOneIMP)method_setImplementation(cancelOne, (IMP)clockCancelOne);
}
@end
