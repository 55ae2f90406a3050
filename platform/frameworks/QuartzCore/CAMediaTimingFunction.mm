#import <QuartzCore/QuartzCore.h>

NSString *const kCAMediaTimingFunctionLinear = @"linear";
NSString *const kCAMediaTimingFunctionEaseIn = @"easeIn";
NSString *const kCAMediaTimingFunctionEaseOut = @"easeOut";
NSString *const kCAMediaTimingFunctionEaseInEaseOut = @"easeInEaseOut";
NSString *const kCAMediaTimingFunctionDefault = @"default";

@implementation CAMediaTimingFunction
@synthesize name = _name;
+ (instancetype)functionWithName:(NSString *)name {
  CAMediaTimingFunction *f;
  if ([name isEqualToString:kCAMediaTimingFunctionEaseIn])
    f = [[self alloc] initWithControlPoints:0.42f:0.0f:1.0f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionEaseOut])
    f = [[self alloc] initWithControlPoints:0.0f:0.0f:0.58f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionEaseInEaseOut])
    f = [[self alloc] initWithControlPoints:0.42f:0.0f:0.58f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionDefault])
    f = [[self alloc] initWithControlPoints:0.25f:0.1f:0.25f:1.0f];
  else
    f = [[self alloc] initWithControlPoints:0.0f:0.0f:1.0f:1.0f];
  f->_name = [name copy];
  return [f autorelease];
}
+ (instancetype)functionWithControlPoints:(float)c1x:(float)c1y:(float)c2x:(float)c2y {
  return [[[self alloc] initWithControlPoints:c1x:c1y:c2x:c2y] autorelease];
}
- (instancetype)initWithControlPoints:(float)c1x:(float)c1y:(float)c2x:(float)c2y {
  if ((self = [super init])) {
    _c1x = c1x;
    _c1y = c1y;
    _c2x = c2x;
    _c2y = c2y;
  }
  return self;
}
- (void)getControlPointAtIndex:(size_t)idx values:(float[2])ptr {
  float pts[4][2] = {{0, 0}, {_c1x, _c1y}, {_c2x, _c2y}, {1, 1}};
  if (idx > 3) return;
  ptr[0] = pts[idx][0];
  ptr[1] = pts[idx][1];
}
- (void)dealloc {
  [_name release];
  [super dealloc];
}
@end
