#import "UIKitInternal.h"

@implementation UITouch
@synthesize timestamp = _timestamp;
@synthesize phase = _phase;
@synthesize tapCount = _tapCount;
@synthesize view = _view;
@synthesize window = _window;
- (instancetype)_simInitWithView:(UIView *)view windowLocation:(CGPoint)location {
  if ((self = [super init])) {
    _view = [view retain];
    _window = [view.window retain];
    _windowLocation = location;
    _previousWindowLocation = location;
    _tapCount = 1;
    _timestamp = [NSDate timeIntervalSinceReferenceDate];
  }
  return self;
}
- (void)_simSetPhase:(UITouchPhase)phase {
  _phase = phase;
}
- (void)dealloc {
  [_view release];
  [_window release];
  [super dealloc];
}
- (CGPoint)locationInView:(UIView *)view {
  return view ? [view convertPoint:_windowLocation fromView:nil] : _windowLocation;
}
- (CGPoint)previousLocationInView:(UIView *)view {
  return view ? [view convertPoint:_previousWindowLocation fromView:nil] : _previousWindowLocation;
}
@end
