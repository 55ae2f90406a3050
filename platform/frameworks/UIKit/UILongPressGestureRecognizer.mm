#import "UIKitInternal.h"

@implementation UILongPressGestureRecognizer
@synthesize minimumPressDuration = _minimumPressDuration;
@synthesize allowableMovement = _allowableMovement;
- (instancetype)initWithTarget:(id)target action:(SEL)action {
  if ((self = [super initWithTarget:target action:action])) {
    _minimumPressDuration = 0.5;
    _allowableMovement = 10;
  }
  return self;
}
@end
