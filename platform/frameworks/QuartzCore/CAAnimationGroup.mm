#import <QuartzCore/QuartzCore.h>

@implementation CAAnimationGroup
@synthesize animations = _animations;
- (id)copyWithZone:(NSZone *)zone {
  CAAnimationGroup *a = [super copyWithZone:zone];
  a.animations = _animations;
  return a;
}
- (void)dealloc {
  [_animations release];
  [super dealloc];
}
@end
