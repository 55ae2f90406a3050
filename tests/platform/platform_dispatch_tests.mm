// The main queue runs blocks in order on the main run loop; delayed ones by their time.
#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include "DeviceFixture.h"

namespace {

class DispatchTest : public DeviceTest {};

TEST_F(DispatchTest, MainQueueRunsInOrderOnTheRunLoop) {
  NSMutableArray *order = [NSMutableArray array];
  for (int i = 0; i < 5; i++) dispatch_async(dispatch_get_main_queue(), ^{ [order addObject:@(i)]; });
  EXPECT_EQ([order count], 0u) << "nothing runs before the run loop does";
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [order count] == 5; }, 5));
  EXPECT_NSEQ(order, (@[ @0, @1, @2, @3, @4 ]));
}

TEST_F(DispatchTest, DelayedBlocksRunByTime) {
  NSMutableArray *order = [NSMutableArray array];
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, (int64_t)(0.4 * NSEC_PER_SEC)), dispatch_get_main_queue(),
                 ^{ [order addObject:@"late"]; });
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, (int64_t)(0.1 * NSEC_PER_SEC)), dispatch_get_main_queue(),
                 ^{ [order addObject:@"early"]; });
  dispatch_async(dispatch_get_main_queue(), ^{ [order addObject:@"now"]; });
  NSDate *start = [NSDate date];
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [order count] == 3; }, 5));
  EXPECT_GE([[NSDate date] timeIntervalSinceDate:start], 0.35);
  EXPECT_NSEQ(order, (@[ @"now", @"early", @"late" ]));
}

TEST_F(DispatchTest, GlobalQueueRunsOffTheMainThread) {
  __block BOOL wasMain = YES, backOnMain = NO;
  dispatch_async(dispatch_get_global_queue(DISPATCH_QUEUE_PRIORITY_DEFAULT, 0), ^{
    wasMain = [NSThread isMainThread];
    dispatch_async(dispatch_get_main_queue(), ^{ backOnMain = [NSThread isMainThread]; });
  });
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return backOnMain; }, 5));
  EXPECT_FALSE(wasMain);
}

TEST_F(DispatchTest, OnceRunsOnce) {
  static dispatch_once_t once;
  __block int runs = 0;
  for (int i = 0; i < 3; i++) dispatch_once(&once, ^{ runs++; });
  EXPECT_EQ(runs, 1);
}

}  // namespace
