#import "UIKitInternal.h"

@implementation UIGestureRecognizer
@synthesize state = _state;
@synthesize delegate = _delegate;
@synthesize enabled = _enabled;
@synthesize view = _view;
@synthesize cancelsTouchesInView = _cancelsTouchesInView;
@synthesize delaysTouchesBegan = _delaysTouchesBegan;
@synthesize delaysTouchesEnded = _delaysTouchesEnded;
@synthesize numberOfTouches = _numberOfTouches;
- (instancetype)init {
  return [self initWithTarget:nil action:NULL];
}
- (instancetype)initWithTarget:(id)target action:(SEL)action {
  if ((self = [super init])) {
    _targets = [[NSMutableArray alloc] init];
    _enabled = YES;
    _cancelsTouchesInView = YES;
    _delaysTouchesEnded = YES;
    [self addTarget:target action:action];
  }
  return self;
}
- (void)dealloc {
  [_targets release];
  [super dealloc];
}
- (void)_simSetView:(UIView *)view {
  _view = view;
}
- (void)addTarget:(id)target action:(SEL)action {
  if (!target || !action) return;
  [_targets addObject:[NSArray arrayWithObjects:[NSValue valueWithNonretainedObject:target],
                                                NSStringFromSelector(action), nil]];
}
- (void)removeTarget:(id)target action:(SEL)action {
  for (NSArray *pair in [[_targets copy] autorelease]) {
    id t = [[pair objectAtIndex:0] nonretainedObjectValue];
    if ((!target || t == target) && (!action || [[pair objectAtIndex:1] isEqualToString:NSStringFromSelector(action)]))
      [_targets removeObject:pair];
  }
}
- (void)requireGestureRecognizerToFail:(UIGestureRecognizer *)other {
}
- (CGPoint)locationInView:(UIView *)view {
  return view ? [view convertPoint:_windowLocation fromView:nil] : _windowLocation;
}
- (CGPoint)locationOfTouch:(NSUInteger)touchIndex inView:(UIView *)view {
  return [self locationInView:view];
}
- (BOOL)_simAcceptsTaps:(NSUInteger)taps touches:(NSUInteger)touches {
  return NO;
}
// Recognizes a finished tap at `windowLocation`; returns YES when it fired.
- (BOOL)_simRecognizeTap:(UITouch *)touch {
  if (!_enabled || ![self _simAcceptsTaps:1 touches:1]) return NO;
  if ([_delegate respondsToSelector:@selector(gestureRecognizer:shouldReceiveTouch:)] &&
      ![_delegate gestureRecognizer:self shouldReceiveTouch:touch])
    return NO;
  _windowLocation = [touch locationInView:nil];
  _numberOfTouches = 1;
  if ([_delegate respondsToSelector:@selector(gestureRecognizerShouldBegin:)] &&
      ![_delegate gestureRecognizerShouldBegin:self]) {
    _state = UIGestureRecognizerStateFailed;
    _state = UIGestureRecognizerStatePossible;
    return NO;
  }
  _state = UIGestureRecognizerStateEnded;
  [[self retain] autorelease];
  for (NSArray *pair in [[_targets copy] autorelease]) {
    id target = [[pair objectAtIndex:0] nonretainedObjectValue];
    SEL action = NSSelectorFromString([pair objectAtIndex:1]);
    [target performSelector:action withObject:self];
  }
  _state = UIGestureRecognizerStatePossible;
  _numberOfTouches = 0;
  return YES;
}
@end
