#import <QuartzCore/QuartzCore.h>

@implementation CAPropertyAnimation
@synthesize keyPath = _keyPath;
@synthesize additive = _additive;
@synthesize cumulative = _cumulative;
+ (instancetype)animationWithKeyPath:(NSString *)path {
  CAPropertyAnimation *a = [self animation];
  a.keyPath = path;
  return a;
}
- (id)copyWithZone:(NSZone *)zone {
  CAPropertyAnimation *a = [super copyWithZone:zone];
  a.keyPath = _keyPath;
  a.additive = _additive;
  a.cumulative = _cumulative;
  return a;
}
- (void)dealloc {
  [_keyPath release];
  [super dealloc];
}
@end
