// Dispatch queues over the run loop: the main queue is a FIFO drained on the main run loop,
// global queues run each block on a thread of its own.

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>
#include "Simulator/SimInternal.h"

#include <Block.h>
#include <pthread.h>
#include <time.h>
#include <unistd.h>

#include <deque>

struct dispatch_queue_s {
  int kind;
};

enum { kMainQueue = 1, kGlobalQueue = 2 };

static struct dispatch_queue_s gMainQueue = {kMainQueue};
static struct dispatch_queue_s gGlobalQueue = {kGlobalQueue};

dispatch_queue_t dispatch_get_main_queue(void) { return &gMainQueue; }

dispatch_queue_t dispatch_get_global_queue(long identifier, unsigned long flags) { return &gGlobalQueue; }

static uint64_t nowNanoseconds(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return (uint64_t)ts.tv_sec * NSEC_PER_SEC + (uint64_t)ts.tv_nsec;
}

dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta) {
  if (when == DISPATCH_TIME_FOREVER) return DISPATCH_TIME_FOREVER;
  uint64_t base = when == DISPATCH_TIME_NOW ? nowNanoseconds() : when;
  if (delta < 0 && (uint64_t)(-delta) > base) return 1;
  return base + (uint64_t)delta;
}

static double secondsUntil(dispatch_time_t when) {
  if (when == DISPATCH_TIME_NOW) return 0;
  if (when == DISPATCH_TIME_FOREVER) return 1e9;
  uint64_t now = nowNanoseconds();
  return when > now ? (double)(when - now) / NSEC_PER_SEC : 0;
}

// One unit of work, holding a copied block (blocks are not objects for this runtime:
// Block_copy/Block_release, never -copy).
@interface SimDispatchWork : NSObject {
  dispatch_block_t _block;
  double _delay;
}
@property (nonatomic, readonly) dispatch_block_t block;
@property (nonatomic, readonly) double delay;
- (instancetype)initWithBlock:(dispatch_block_t)block delay:(double)delay;
- (void)run;
@end

@implementation SimDispatchWork
@synthesize block = _block;
@synthesize delay = _delay;

- (instancetype)initWithBlock:(dispatch_block_t)block delay:(double)delay {
  if ((self = [super init])) {
    _block = Block_copy(block);
    _delay = delay;
  }
  return self;
}

- (void)run {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  if (_block) _block();
  [pool release];
}

- (void)dealloc {
  if (_block) Block_release(_block);
  [super dealloc];
}
@end

static SimDispatchWork *makeWork(dispatch_block_t block, double delay) {
  return [[[SimDispatchWork alloc] initWithBlock:block delay:delay] autorelease];
}

// MARK: - Main queue

static pthread_mutex_t gMainLock = PTHREAD_MUTEX_INITIALIZER;
static std::deque<SimDispatchWork *> *gMainItems;
static bool gDrainScheduled;
static bool gDraining;

@interface SimMainQueueDrainer : NSObject
+ (void)drain;
+ (void)scheduleTimer:(SimDispatchWork *)work;
@end

static void mainEnqueue(SimDispatchWork *work) {
  pthread_mutex_lock(&gMainLock);
  if (gMainItems == NULL) gMainItems = new std::deque<SimDispatchWork *>();
  gMainItems->push_back([work retain]);
  bool schedule = !gDrainScheduled;
  gDrainScheduled = true;
  pthread_mutex_unlock(&gMainLock);
  if (schedule) SimPerformOnMainLoop([SimMainQueueDrainer class], @selector(drain), nil);
}

@implementation SimMainQueueDrainer

+ (void)drain {
  pthread_mutex_lock(&gMainLock);
  gDrainScheduled = false;
  if (gDraining) {  // a block is running a nested run loop: the outer drain goes on
    pthread_mutex_unlock(&gMainLock);
    return;
  }
  gDraining = true;
  for (;;) {
    if (gMainItems == NULL || gMainItems->empty()) break;
    SimDispatchWork *work = gMainItems->front();
    gMainItems->pop_front();
    pthread_mutex_unlock(&gMainLock);
    [work run];
    [work release];
    pthread_mutex_lock(&gMainLock);
  }
  gDraining = false;
  pthread_mutex_unlock(&gMainLock);
}

+ (void)scheduleTimer:(SimDispatchWork *)work {
  // Waits on the main run loop's clock, then joins the main queue.
  [work retain];
  SimClockSchedule([work delay], ^{
    mainEnqueue(work);
    [work release];
  });
}
@end

// MARK: - Global queues

@interface SimBackgroundRunner : NSObject
+ (void)runWork:(SimDispatchWork *)work;
@end

@implementation SimBackgroundRunner
+ (void)runWork:(SimDispatchWork *)work {
  double delay = [work delay];
  if (delay > 0) usleep((useconds_t)(delay * 1e6));
  [work run];
}
@end

static void backgroundRun(SimDispatchWork *work) {
  [NSThread detachNewThreadSelector:@selector(runWork:) toTarget:[SimBackgroundRunner class] withObject:work];
}

// MARK: - Entry points

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) {
  if (block == NULL) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  SimDispatchWork *work = makeWork(block, 0);
  if (queue == &gMainQueue)
    mainEnqueue(work);
  else
    backgroundRun(work);
  [pool release];
}

void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block) {
  if (block == NULL || when == DISPATCH_TIME_FOREVER) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  SimDispatchWork *work = makeWork(block, secondsUntil(when));
  if (queue != &gMainQueue) {
    backgroundRun(work);
  } else if ([NSThread isMainThread]) {
    [SimMainQueueDrainer scheduleTimer:work];
  } else {
    [SimMainQueueDrainer performSelectorOnMainThread:@selector(scheduleTimer:) withObject:work waitUntilDone:NO];
  }
  [pool release];
}

void dispatch_sync(dispatch_queue_t queue, dispatch_block_t block) {
  if (block == NULL) return;
  if (queue != &gMainQueue || [NSThread isMainThread]) {
    block();
    return;
  }
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  SimDispatchWork *work = makeWork(block, 0);
  [work performSelectorOnMainThread:@selector(run) withObject:nil waitUntilDone:YES];
  [pool release];
}

void dispatch_async_f(dispatch_queue_t queue, void *context, dispatch_function_t work) {
  if (work) dispatch_async(queue, ^{ work(context); });
}

void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void *context, dispatch_function_t work) {
  if (work) dispatch_after(when, queue, ^{ work(context); });
}

static pthread_mutex_t gOnceLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;

void dispatch_once_f(dispatch_once_t *predicate, void *context, dispatch_function_t function) {
  if (__atomic_load_n(predicate, __ATOMIC_ACQUIRE) == ~0l) return;
  pthread_mutex_lock(&gOnceLock);
  if (*predicate == 0) {
    *predicate = 1;
    function(context);
    __atomic_store_n(predicate, ~0l, __ATOMIC_RELEASE);
  }
  pthread_mutex_unlock(&gOnceLock);
}

static void runOnceBlock(void *context) { ((dispatch_block_t)context)(); }

void dispatch_once(dispatch_once_t *predicate, dispatch_block_t block) {
  dispatch_once_f(predicate, (void *)block, runOnceBlock);
}
