#import "UIKitInternal.h"

@implementation NSIndexPath (UIKitAdditions)
+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
  NSUInteger idx[2] = {(NSUInteger)section, (NSUInteger)row};
  return [self indexPathWithIndexes:idx length:2];
}
+ (instancetype)indexPathForItem:(NSInteger)item inSection:(NSInteger)section {
  return [self indexPathForRow:item inSection:section];
}
- (NSInteger)section {
  return self.length > 0 ? (NSInteger)[self indexAtPosition:0] : NSNotFound;
}
- (NSInteger)row {
  return self.length > 1 ? (NSInteger)[self indexAtPosition:1] : NSNotFound;
}
- (NSInteger)item {
  return self.row;
}
@end
