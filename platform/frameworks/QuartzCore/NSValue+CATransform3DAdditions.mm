#import <QuartzCore/QuartzCore.h>

#include <string.h>

@implementation NSValue (CATransform3DAdditions)
+ (NSValue *)valueWithCATransform3D:(CATransform3D)t {
  return [NSValue valueWithBytes:&t objCType:@encode(CATransform3D)];
}
- (CATransform3D)CATransform3DValue {
  CATransform3D t = CATransform3DIdentity;
  if (strcmp([self objCType], @encode(CATransform3D)) == 0) [self getValue:&t];
  return t;
}
@end
