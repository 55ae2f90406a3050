#import <QuartzCore/QuartzCore.h>

@implementation CAGradientLayer
@synthesize colors = _colors;
@synthesize locations = _locations;
@synthesize startPoint = _startPoint;
@synthesize endPoint = _endPoint;
@synthesize type = _type;
- (instancetype)init {
  if ((self = [super init])) {
    _startPoint = CGPointMake(0.5, 0);
    _endPoint = CGPointMake(0.5, 1);
    _type = [@"axial" copy];
  }
  return self;
}
- (void)dealloc {
  [_colors release];
  [_locations release];
  [_type release];
  [super dealloc];
}
@end
