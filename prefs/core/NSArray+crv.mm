#import "core/NSArray+crv.h"

@implementation NSArray (crv)

- (id)objectOfClass:(Class)cls {
  for (id object in self) {
    if ([object class] == cls) return object;
  }
  return nil;
}

@end
