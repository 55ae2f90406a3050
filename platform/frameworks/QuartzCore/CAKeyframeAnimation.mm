#import "QuartzCoreInternal.h"

@implementation CAKeyframeAnimation
@synthesize values = _values;
@synthesize keyTimes = _keyTimes;
@synthesize timingFunctions = _timingFunctions;
@synthesize calculationMode = _calculationMode;
- (CGPathRef)path {
  return _path;
}
- (void)setPath:(CGPathRef)path {
  setPath(&_path, path);
}
- (id)copyWithZone:(NSZone *)zone {
  CAKeyframeAnimation *a = [super copyWithZone:zone];
  a.values = _values;
  a.keyTimes = _keyTimes;
  a.timingFunctions = _timingFunctions;
  a.path = _path;
  a.calculationMode = _calculationMode;
  return a;
}
- (void)dealloc {
  [_values release];
  [_keyTimes release];
  [_timingFunctions release];
  [_calculationMode release];
  CGPathRelease(_path);
  [super dealloc];
}
@end
