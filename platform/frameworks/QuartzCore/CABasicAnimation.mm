#import <QuartzCore/QuartzCore.h>

@implementation CABasicAnimation
@synthesize fromValue = _fromValue;
@synthesize toValue = _toValue;
@synthesize byValue = _byValue;
- (id)copyWithZone:(NSZone *)zone {
  CABasicAnimation *a = [super copyWithZone:zone];
  a.fromValue = _fromValue;
  a.toValue = _toValue;
  a.byValue = _byValue;
  return a;
}
- (NSString *)description {
  return
      [NSString stringWithFormat:@"<CABasicAnimation %@ from %@ to %@ duration %g repeat %g%@>", _keyPath, _fromValue,
                                 _toValue, _duration, _repeatCount, _autoreverses ? @" autoreverses" : @""];
}
- (void)dealloc {
  [_fromValue release];
  [_toValue release];
  [_byValue release];
  [super dealloc];
}
@end
