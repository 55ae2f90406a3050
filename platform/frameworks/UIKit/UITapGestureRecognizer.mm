#import "UIKitInternal.h"

@implementation UITapGestureRecognizer
@synthesize numberOfTapsRequired = _numberOfTapsRequired;
@synthesize numberOfTouchesRequired = _numberOfTouchesRequired;
- (instancetype)initWithTarget:(id)target action:(SEL)action {
  if ((self = [super initWithTarget:target action:action])) {
    _numberOfTapsRequired = 1;
    _numberOfTouchesRequired = 1;
  }
  return self;
}
- (BOOL)_simAcceptsTaps:(NSUInteger)taps touches:(NSUInteger)touches {
  return taps == _numberOfTapsRequired && touches == _numberOfTouchesRequired;
}
@end
