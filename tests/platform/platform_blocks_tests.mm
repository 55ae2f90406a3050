// Blocks copied to the heap keep the objects they capture until they are released.
#import <Foundation/Foundation.h>
#include <Block.h>
#include <gtest/gtest.h>

@interface BlockCapturedObject : NSObject
@end
@implementation BlockCapturedObject
static int gDeallocations = 0;
- (void)dealloc {
  gDeallocations++;
  [super dealloc];
}
@end

namespace {

TEST(BlocksTest, CopiedBlocksKeepCapturedObjects) {
  gDeallocations = 0;
  BlockCapturedObject *object = [[BlockCapturedObject alloc] init];
  __block int calls = 0;
  void (^block)(void) = ^{ calls += [object isKindOfClass:[BlockCapturedObject class]] ? 1 : 0; };
  void (^copy)(void) = Block_copy(block);
  EXPECT_EQ([object retainCount], 2u);
  [object release];
  EXPECT_EQ(gDeallocations, 0);
  copy();
  EXPECT_EQ(calls, 1);  // the __block variable is shared with the copy

  void (^outer)(void) = Block_copy(^{ copy(); });  // a block captured by a block
  Block_release(copy);
  outer();
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(gDeallocations, 0);
  Block_release(outer);
  EXPECT_EQ(gDeallocations, 1);
}

}  // namespace
