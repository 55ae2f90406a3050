#import "UIKitInternal.h"

@implementation UIControl
@synthesize tracking = _tracking;
@synthesize contentHorizontalAlignment = _contentHorizontalAlignment;
@synthesize contentVerticalAlignment = _contentVerticalAlignment;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _targetActions = [[NSMutableArray alloc] init];
    _enabled = YES;
  }
  return self;
}
- (void)dealloc {
  [_targetActions release];
  [super dealloc];
}

#pragma mark - State

- (BOOL)isEnabled {
  return _enabled;
}
- (void)setEnabled:(BOOL)enabled {
  _enabled = enabled;
}
- (BOOL)isSelected {
  return _selected;
}
- (void)setSelected:(BOOL)selected {
  _selected = selected;
}
- (BOOL)isHighlighted {
  return _highlighted;
}
- (void)setHighlighted:(BOOL)highlighted {
  _highlighted = highlighted;
}
- (BOOL)isTouchInside {
  return _tracking;
}
- (UIControlState)state {
  UIControlState s = UIControlStateNormal;
  if (_highlighted) s |= UIControlStateHighlighted;
  if (!_enabled) s |= UIControlStateDisabled;
  if (_selected) s |= UIControlStateSelected;
  return s;
}

#pragma mark - Targets and actions

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  if (!action) return;
  for (NSMutableArray *entry in _targetActions) {
    if ([[entry objectAtIndex:0] nonretainedObjectValue] == target &&
        [[entry objectAtIndex:1] isEqualToString:NSStringFromSelector(action)]) {
      NSUInteger merged = [[entry objectAtIndex:2] unsignedIntegerValue] | events;
      [entry replaceObjectAtIndex:2 withObject:[NSNumber numberWithUnsignedInteger:merged]];
      return;
    }
  }
  [_targetActions addObject:[NSMutableArray arrayWithObjects:[NSValue valueWithNonretainedObject:target],
                                                             NSStringFromSelector(action),
                                                             [NSNumber numberWithUnsignedInteger:events], nil]];
}
- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  for (NSMutableArray *entry in [[_targetActions copy] autorelease]) {
    if (target && [[entry objectAtIndex:0] nonretainedObjectValue] != target) continue;
    if (action && ![[entry objectAtIndex:1] isEqualToString:NSStringFromSelector(action)]) continue;
    NSUInteger left = [[entry objectAtIndex:2] unsignedIntegerValue] & ~events;
    if (left)
      [entry replaceObjectAtIndex:2 withObject:[NSNumber numberWithUnsignedInteger:left]];
    else
      [_targetActions removeObjectIdenticalTo:entry];
  }
}
- (NSSet *)allTargets {
  NSMutableSet *set = [NSMutableSet set];
  for (NSArray *entry in _targetActions) {
    id t = [[entry objectAtIndex:0] nonretainedObjectValue];
    [set addObject:t ? t : (id)[NSNull null]];
  }
  return set;
}
- (UIControlEvents)allControlEvents {
  NSUInteger all = 0;
  for (NSArray *entry in _targetActions) all |= [[entry objectAtIndex:2] unsignedIntegerValue];
  return all;
}
- (NSArray *)actionsForTarget:(id)target forControlEvent:(UIControlEvents)event {
  NSMutableArray *out = [NSMutableArray array];
  for (NSArray *entry in _targetActions)
    if ([[entry objectAtIndex:0] nonretainedObjectValue] == target &&
        ([[entry objectAtIndex:2] unsignedIntegerValue] & event))
      [out addObject:[entry objectAtIndex:1]];
  return out.count ? out : nil;
}
- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event {
  [[UIApplication sharedApplication] sendAction:action to:target from:self forEvent:event];
}
- (void)sendActionsForControlEvents:(UIControlEvents)events {
  [[self retain] autorelease];
  for (NSArray *entry in [[_targetActions copy] autorelease]) {
    if (!([[entry objectAtIndex:2] unsignedIntegerValue] & events)) continue;
    [self sendAction:NSSelectorFromString([entry objectAtIndex:1])
                  to:[[entry objectAtIndex:0] nonretainedObjectValue]
            forEvent:nil];
  }
}

#pragma mark - Touches

- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
  return YES;
}
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
}
- (void)cancelTrackingWithEvent:(UIEvent *)event {
}
- (void)_simTapped {
}
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
  if (!_enabled) return;
  _tracking = [self beginTrackingWithTouch:[touches anyObject] withEvent:event];
  self.highlighted = YES;
  [self sendActionsForControlEvents:UIControlEventTouchDown];
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  if (!_enabled) return;
  self.highlighted = NO;
  UITouch *touch = [touches anyObject];
  BOOL inside = [self pointInside:[touch locationInView:self] withEvent:event];
  if (_tracking) [self endTrackingWithTouch:touch withEvent:event];
  _tracking = NO;
  if (inside) {
    [self _simTapped];
    [self sendActionsForControlEvents:UIControlEventTouchUpInside | UIControlEventPrimaryActionTriggered];
  } else {
    [self sendActionsForControlEvents:UIControlEventTouchUpOutside];
  }
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
  self.highlighted = NO;
  if (_tracking) [self cancelTrackingWithEvent:event];
  _tracking = NO;
  [self sendActionsForControlEvents:UIControlEventTouchCancel];
}
@end
