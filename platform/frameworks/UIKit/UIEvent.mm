#import "UIKitInternal.h"

@implementation UIEvent
@synthesize timestamp = _timestamp;
- (instancetype)_simInitWithTouches:(NSSet *)touches {
  if ((self = [super init])) {
    _touches = [touches copy];
    _timestamp = [NSDate timeIntervalSinceReferenceDate];
  }
  return self;
}
- (void)dealloc {
  [_touches release];
  [super dealloc];
}
- (UIEventType)type {
  return UIEventTypeTouches;
}
- (NSSet *)allTouches {
  return _touches;
}
- (NSSet *)touchesForView:(UIView *)view {
  NSMutableSet *s = [NSMutableSet set];
  for (UITouch *t in _touches)
    if (t.view == view) [s addObject:t];
  return s;
}
- (NSSet *)touchesForWindow:(UIWindow *)window {
  NSMutableSet *s = [NSMutableSet set];
  for (UITouch *t in _touches)
    if (t.window == window) [s addObject:t];
  return s;
}
@end
