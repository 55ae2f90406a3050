#import "UIKitInternal.h"
#include <math.h>

const CGSize UILayoutFittingCompressedSize = {0, 0};
const CGFloat UIViewNoIntrinsicMetric = -1;

@implementation UIView
@synthesize tag = _tag;
@synthesize tintAdjustmentMode = _tintAdjustmentMode;
@synthesize userInteractionEnabled = _userInteractionEnabled;
@synthesize multipleTouchEnabled = _multipleTouchEnabled;
@synthesize exclusiveTouch = _exclusiveTouch;
@synthesize autoresizesSubviews = _autoresizesSubviews;
@synthesize autoresizingMask = _autoresizingMask;
@synthesize contentMode = _contentMode;
@synthesize translatesAutoresizingMaskIntoConstraints = _translatesAutoresizingMaskIntoConstraints;
@synthesize layoutMargins = _layoutMargins;
@synthesize semanticContentAttribute = _semanticContentAttribute;
@synthesize overrideUserInterfaceStyle = _overrideUserInterfaceStyle;
@synthesize accessibilityLabel = _accessibilityLabel;
@synthesize accessibilityIdentifier = _accessibilityIdentifier;
@synthesize layer = _layer;

+ (Class)layerClass {
  return [CALayer class];
}
// As UIKit documents it: forced attributes decide; playback and spatial controls stay left to
// right; everything else follows the given (or the application's) direction.
+ (UIUserInterfaceLayoutDirection)
    userInterfaceLayoutDirectionForSemanticContentAttribute:(UISemanticContentAttribute)attribute
                                  relativeToLayoutDirection:(UIUserInterfaceLayoutDirection)direction {
  switch (attribute) {
    case UISemanticContentAttributeForceRightToLeft:
      return UIUserInterfaceLayoutDirectionRightToLeft;
    case UISemanticContentAttributeForceLeftToRight:
    case UISemanticContentAttributePlayback:
    case UISemanticContentAttributeSpatial:
      return UIUserInterfaceLayoutDirectionLeftToRight;
    default:
      return direction;
  }
}
+ (UIUserInterfaceLayoutDirection)userInterfaceLayoutDirectionForSemanticContentAttribute:
    (UISemanticContentAttribute)attribute {
  return [self userInterfaceLayoutDirectionForSemanticContentAttribute:attribute
                                             relativeToLayoutDirection:[[UIApplication sharedApplication]
                                                                           userInterfaceLayoutDirection]];
}
- (UIUserInterfaceLayoutDirection)effectiveUserInterfaceLayoutDirection {
  return [UIView userInterfaceLayoutDirectionForSemanticContentAttribute:_semanticContentAttribute];
}
- (instancetype)init {
  return [self initWithFrame:CGRectZero];
}
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super init])) {
    _layer = [[[[self class] layerClass] alloc] init];
    _layer.delegate = self;
    _userInteractionEnabled = YES;
    _autoresizesSubviews = YES;
    _translatesAutoresizingMaskIntoConstraints = YES;
    _layoutMargins = UIEdgeInsetsMake(8, 8, 8, 8);
    frame = CGRectStandardize(frame);
    _layer.bounds = CGRectMake(0, 0, frame.size.width, frame.size.height);
    _layer.position = CGPointMake(CGRectGetMidX(frame), CGRectGetMidY(frame));
    [_layer setNeedsLayout];
  }
  return self;
}
- (void)dealloc {
  for (UIView *v in _subviews) v->_superview = nil;
  [_subviews release];
  for (UIGestureRecognizer *g in _gestureRecognizers) [g performSelector:@selector(_simSetView:) withObject:nil];
  [_gestureRecognizers release];
  _layer.delegate = nil;
  [_layer release];
  [_backgroundColor release];
  [_tintColor release];
  [_accessibilityLabel release];
  [_accessibilityIdentifier release];
  [super dealloc];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<%@: %p; frame = %@>", NSStringFromClass([self class]), (void *)self,
                                    NSStringFromCGRect(self.frame)];
}

- (id)_simViewDelegate {
  return _viewDelegate;
}
- (void)_simSetViewDelegate:(id)controller {
  _viewDelegate = controller;
}

#pragma mark - Geometry

- (void)_simResizeSubviewsWithOldSize:(CGSize)old {
  CGSize now = self.bounds.size;
  if (!_autoresizesSubviews || CGSizeEqualToSize(old, now)) return;
  CGFloat dw = now.width - old.width, dh = now.height - old.height;
  for (UIView *v in [[_subviews copy] autorelease]) {
    UIViewAutoresizing m = v.autoresizingMask;
    if (m == UIViewAutoresizingNone) continue;
    CGRect f = v.frame;
    // Distribute the change over the flexible parts in proportion to their current sizes.
    CGFloat left = f.origin.x, width = f.size.width, right = old.width - CGRectGetMaxX(f);
    CGFloat parts[3] = {(m & UIViewAutoresizingFlexibleLeftMargin) ? left : -1,
                        (m & UIViewAutoresizingFlexibleWidth) ? width : -1,
                        (m & UIViewAutoresizingFlexibleRightMargin) ? right : -1};
    CGFloat top = f.origin.y, height = f.size.height, bottom = old.height - CGRectGetMaxY(f);
    CGFloat vparts[3] = {(m & UIViewAutoresizingFlexibleTopMargin) ? top : -1,
                         (m & UIViewAutoresizingFlexibleHeight) ? height : -1,
                         (m & UIViewAutoresizingFlexibleBottomMargin) ? bottom : -1};
    CGFloat share[3] = {0, 0, 0}, vshare[3] = {0, 0, 0};
    for (int pass = 0; pass < 2; ++pass) {
      CGFloat *p = pass ? vparts : parts, *s = pass ? vshare : share, d = pass ? dh : dw;
      CGFloat total = 0;
      int count = 0;
      for (int i = 0; i < 3; ++i)
        if (p[i] >= 0) {
          total += p[i];
          ++count;
        }
      for (int i = 0; i < 3; ++i)
        if (p[i] >= 0) s[i] = total > 0 ? d * p[i] / total : d / count;
    }
    f.origin.x += share[0];
    f.size.width += share[1];
    f.origin.y += vshare[0];
    f.size.height += vshare[1];
    if (f.size.width < 0) f.size.width = 0;
    if (f.size.height < 0) f.size.height = 0;
    v.frame = f;
  }
}
// A new size lays the subviews out again.
- (void)_simBoundsSizeChangedFrom:(CGSize)old {
  if (!CGSizeEqualToSize(old, _layer.bounds.size)) {
    [self _simResizeSubviewsWithOldSize:old];
    [self setNeedsLayout];
  }
}
- (CGRect)frame {
  return _layer.frame;
}
- (void)setFrame:(CGRect)frame {
  CGSize old = _layer.bounds.size;
  _layer.frame = frame;
  [self _simBoundsSizeChangedFrom:old];
}
- (CGRect)bounds {
  return _layer.bounds;
}
- (void)setBounds:(CGRect)bounds {
  CGSize old = _layer.bounds.size;
  _layer.bounds = CGRectStandardize(bounds);
  [self _simBoundsSizeChangedFrom:old];
}
- (CGPoint)center {
  return _layer.position;
}
- (void)setCenter:(CGPoint)center {
  _layer.position = center;
}
- (CGAffineTransform)transform {
  return _layer.affineTransform;
}
- (void)setTransform:(CGAffineTransform)transform {
  _layer.affineTransform = transform;
}
- (BOOL)isHidden {
  return _layer.hidden;
}
- (void)setHidden:(BOOL)hidden {
  _layer.hidden = hidden;
}
- (CGFloat)alpha {
  return _layer.opacity;
}
- (void)setAlpha:(CGFloat)alpha {
  _layer.opacity = (float)(alpha < 0 ? 0 : alpha > 1 ? 1 : alpha);
}
- (BOOL)isOpaque {
  return _layer.opaque;
}
- (void)setOpaque:(BOOL)opaque {
  _layer.opaque = opaque;
}
- (BOOL)clipsToBounds {
  return _layer.masksToBounds;
}
- (void)setClipsToBounds:(BOOL)clips {
  _layer.masksToBounds = clips;
}
- (UIColor *)backgroundColor {
  return _backgroundColor;
}
- (void)setBackgroundColor:(UIColor *)color {
  if (color == _backgroundColor) return;
  [_backgroundColor release];
  _backgroundColor = [color retain];
  _layer.backgroundColor = color.CGColor;
}
- (UIColor *)tintColor {
  if (_tintColor) return _tintColor;
  if (_superview) return _superview.tintColor;
  return [UIColor systemBlueColor];
}
- (void)setTintColor:(UIColor *)tintColor {
  if (tintColor == _tintColor) return;
  [_tintColor release];
  _tintColor = [tintColor retain];
  [self _simTintChanged];
}
- (void)_simTintChanged {
  [self tintColorDidChange];
  for (UIView *v in [[_subviews copy] autorelease])
    if (!v->_tintColor) [v _simTintChanged];
}
- (void)tintColorDidChange {
}
- (UIEdgeInsets)safeAreaInsets {
  return UIEdgeInsetsZero;
}
- (UITraitCollection *)traitCollection {
  return [UITraitCollection currentTraitCollection];
}
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection {
}

#pragma mark - Hierarchy

- (UIView *)superview {
  return _superview;
}
- (NSArray *)subviews {
  return _subviews ? [NSArray arrayWithArray:_subviews] : [NSArray array];
}
- (UIWindow *)window {
  UIView *v = self;
  while (v && ![v isKindOfClass:[UIWindow class]]) v = v->_superview;
  return (UIWindow *)v;
}
- (void)_simNotifyWindowChangeFrom:(UIWindow *)oldWindow to:(UIWindow *)newWindow before:(BOOL)before {
  if (oldWindow == newWindow) return;
  if (before)
    [self willMoveToWindow:newWindow];
  else
    [self didMoveToWindow];
  for (UIView *v in [[_subviews copy] autorelease]) [v _simNotifyWindowChangeFrom:oldWindow to:newWindow before:before];
}
- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index {
  if (!view || view == self || [self isDescendantOfView:view]) return;
  [view retain];
  UIWindow *oldWindow = view.window, *newWindow = self.window;
  if (view->_superview != self) [view willMoveToSuperview:self];
  [view _simNotifyWindowChangeFrom:oldWindow to:newWindow before:YES];
  if (view->_superview) {
    UIView *old = view->_superview;
    [old willRemoveSubview:view];
    [old->_subviews removeObjectIdenticalTo:view];
    [view.layer removeFromSuperlayer];
  }
  if (!_subviews) _subviews = [[NSMutableArray alloc] init];
  if (index < 0) index = 0;
  if ((NSUInteger)index > _subviews.count) index = _subviews.count;
  [_subviews insertObject:view atIndex:index];
  view->_superview = self;
  // Keep the layer order in step with the subview order.
  NSUInteger layerIndex = 0;
  if (index > 0) {
    CALayer *below = ((UIView *)[_subviews objectAtIndex:index - 1]).layer;
    NSUInteger i = [_layer.sublayers indexOfObjectIdenticalTo:below];
    layerIndex = i == NSNotFound ? _layer.sublayers.count : i + 1;
  } else {
    NSArray *sub = _layer.sublayers;
    if (_subviews.count > 1) {
      NSUInteger i = [sub indexOfObjectIdenticalTo:((UIView *)[_subviews objectAtIndex:1]).layer];
      layerIndex = i == NSNotFound ? sub.count : i;
    } else {
      layerIndex = sub.count;
    }
  }
  [_layer insertSublayer:view.layer atIndex:(unsigned)layerIndex];
  [view didMoveToSuperview];
  [view _simNotifyWindowChangeFrom:oldWindow to:newWindow before:NO];
  [self didAddSubview:view];
  [self setNeedsLayout];
  [view release];
}
- (void)addSubview:(UIView *)view {
  [self insertSubview:view
              atIndex:(view->_superview == self ? (NSInteger)_subviews.count - 1 : (NSInteger)_subviews.count)];
}
// Just below or above `sibling`, counting places as if `view` had already left this view;
// on top when `sibling` is not a subview.
- (void)_simInsertSubview:(UIView *)view nextTo:(UIView *)sibling above:(BOOL)above {
  NSUInteger i = [_subviews indexOfObjectIdenticalTo:sibling];
  if (i == NSNotFound) {
    [self addSubview:view];
    return;
  }
  NSUInteger mine = [_subviews indexOfObjectIdenticalTo:view];
  if (mine != NSNotFound && mine < i) --i;
  [self insertSubview:view atIndex:above ? i + 1 : i];
}
- (void)insertSubview:(UIView *)view belowSubview:(UIView *)sibling {
  [self _simInsertSubview:view nextTo:sibling above:NO];
}
- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)sibling {
  [self _simInsertSubview:view nextTo:sibling above:YES];
}
// Sublayers that belong to no subview stay at the back; the subviews' layers follow in
// subview order.
- (void)_simOrderLayersAsSubviews {
  NSMutableArray *layers = [NSMutableArray array];
  for (CALayer *l in _layer.sublayers) {
    BOOL isView = NO;
    for (UIView *v in _subviews)
      if (v.layer == l) isView = YES;
    if (!isView) [layers addObject:l];
  }
  for (UIView *v in _subviews) [layers addObject:v.layer];
  _layer.sublayers = layers;
}
- (void)exchangeSubviewAtIndex:(NSInteger)a withSubviewAtIndex:(NSInteger)b {
  if (a < 0 || b < 0 || (NSUInteger)a >= _subviews.count || (NSUInteger)b >= _subviews.count || a == b) return;
  [_subviews exchangeObjectAtIndex:a withObjectAtIndex:b];
  [self _simOrderLayersAsSubviews];
}
// Moving a subview within its superview only reorders it: it does not leave its window,
// and a view already in place is left alone (a cell that keeps its separator in front
// on every layout must not ask for another layout, or it would be laid out forever).
- (void)_simMoveSubview:(UIView *)view toIndex:(NSUInteger)index {
  NSUInteger from = [_subviews indexOfObjectIdenticalTo:view];
  if (from == NSNotFound || from == index) return;
  [[view retain] autorelease];
  [_subviews removeObjectAtIndex:from];
  [_subviews insertObject:view atIndex:index];
  [self _simOrderLayersAsSubviews];
}
- (void)bringSubviewToFront:(UIView *)view {
  if (_subviews.count > 0) [self _simMoveSubview:view toIndex:_subviews.count - 1];
}
- (void)sendSubviewToBack:(UIView *)view {
  [self _simMoveSubview:view toIndex:0];
}
- (void)removeFromSuperview {
  UIView *parent = _superview;
  if (!parent) return;
  [[self retain] autorelease];
  UIWindow *oldWindow = self.window;
  [parent willRemoveSubview:self];
  [self willMoveToSuperview:nil];
  [self _simNotifyWindowChangeFrom:oldWindow to:nil before:YES];
  if (SimUIKitFirstResponder() && [SimUIKitFirstResponder() isKindOfClass:[UIView class]] &&
      [(UIView *)SimUIKitFirstResponder() isDescendantOfView:self])
    [SimUIKitFirstResponder() resignFirstResponder];
  _superview = nil;
  [parent->_subviews removeObjectIdenticalTo:self];
  [_layer removeFromSuperlayer];
  [self didMoveToSuperview];
  [self _simNotifyWindowChangeFrom:oldWindow to:nil before:NO];
  [parent setNeedsLayout];
}
- (BOOL)isDescendantOfView:(UIView *)view {
  for (UIView *v = self; v; v = v->_superview)
    if (v == view) return YES;
  return NO;
}
- (UIView *)viewWithTag:(NSInteger)tag {
  if (_tag == tag) return self;
  for (UIView *v in _subviews) {
    UIView *found = [v viewWithTag:tag];
    if (found) return found;
  }
  return nil;
}
- (void)didAddSubview:(UIView *)subview {
}
- (void)willRemoveSubview:(UIView *)subview {
}
- (void)willMoveToSuperview:(UIView *)newSuperview {
}
- (void)didMoveToSuperview {
}
- (void)willMoveToWindow:(UIWindow *)newWindow {
}
- (void)didMoveToWindow {
}
- (UIResponder *)nextResponder {
  if (_viewDelegate) return _viewDelegate;
  return _superview;
}

#pragma mark - Layout and drawing

- (void)setNeedsLayout {
  [_layer setNeedsLayout];
}
- (void)layoutIfNeeded {
  [_layer layoutIfNeeded];
}
- (void)layoutSublayersOfLayer:(CALayer *)layer {
  if (layer != _layer) return;
  id controller = _viewDelegate;
  [controller viewWillLayoutSubviews];
  [self layoutSubviews];
  [controller viewDidLayoutSubviews];
}
- (void)layoutSubviews {
}
- (void)setNeedsDisplay {
  [_layer setNeedsDisplay];
}
- (void)setNeedsDisplayInRect:(CGRect)rect {
  [_layer setNeedsDisplayInRect:rect];
}
- (void)drawRect:(CGRect)rect {
}
- (void)drawLayer:(CALayer *)layer inContext:(CGContextRef)ctx {
  if ([self methodForSelector:@selector(drawRect:)] == [UIView instanceMethodForSelector:@selector(drawRect:)]) return;
  UIGraphicsPushContext(ctx);
  [self drawRect:self.bounds];
  UIGraphicsPopContext();
}
- (CGSize)sizeThatFits:(CGSize)size {
  return self.bounds.size;
}
- (void)sizeToFit {
  CGRect f = self.frame;
  f.size = [self sizeThatFits:f.size];
  self.frame = f;
}
- (CGSize)intrinsicContentSize {
  return CGSizeMake(UIViewNoIntrinsicMetric, UIViewNoIntrinsicMetric);
}
- (void)invalidateIntrinsicContentSize {
}
- (BOOL)endEditing:(BOOL)force {
  if ([SimUIKitFirstResponder() isKindOfClass:[UIView class]] &&
      [(UIView *)SimUIKitFirstResponder() isDescendantOfView:self])
    return [SimUIKitFirstResponder() resignFirstResponder];
  return YES;
}

#pragma mark - Coordinates

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view {
  return [_layer convertPoint:point toLayer:view ? view.layer : nil];
}
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view {
  if (!view) {
    // Window coordinates: those of the top-most ancestor.
    UIView *top = self;
    while (top->_superview) top = top->_superview;
    return [top.layer convertPoint:point toLayer:_layer];
  }
  return [view.layer convertPoint:point toLayer:_layer];
}
- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view {
  rect.origin = [self convertPoint:rect.origin toView:view];
  return rect;
}
- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view {
  rect.origin = [self convertPoint:rect.origin fromView:view];
  return rect;
}
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
  return CGRectContainsPoint(self.bounds, point);
}
- (UIView *)hitTest:(CGPoint)point withEvent:(UIEvent *)event {
  if (self.hidden || !_userInteractionEnabled || self.alpha < 0.01) return nil;
  if (![self pointInside:point withEvent:event]) return nil;
  for (UIView *v in [_subviews reverseObjectEnumerator]) {
    UIView *hit = [v hitTest:[self convertPoint:point toView:v] withEvent:event];
    if (hit) return hit;
  }
  return self;
}

#pragma mark - Gesture recognizers

- (NSArray *)gestureRecognizers {
  return _gestureRecognizers.count ? [NSArray arrayWithArray:_gestureRecognizers] : nil;
}
- (void)setGestureRecognizers:(NSArray *)recognizers {
  for (UIGestureRecognizer *g in [[_gestureRecognizers copy] autorelease]) [self removeGestureRecognizer:g];
  for (UIGestureRecognizer *g in recognizers) [self addGestureRecognizer:g];
}
- (void)addGestureRecognizer:(UIGestureRecognizer *)g {
  if (!g) return;
  if (g.view && g.view != self) [g.view removeGestureRecognizer:g];
  if (!_gestureRecognizers) _gestureRecognizers = [[NSMutableArray alloc] init];
  if ([_gestureRecognizers indexOfObjectIdenticalTo:g] == NSNotFound) [_gestureRecognizers addObject:g];
  [g performSelector:@selector(_simSetView:) withObject:self];
}
- (void)removeGestureRecognizer:(UIGestureRecognizer *)g {
  if ([_gestureRecognizers indexOfObjectIdenticalTo:g] == NSNotFound) return;
  [g performSelector:@selector(_simSetView:) withObject:nil];
  [_gestureRecognizers removeObjectIdenticalTo:g];
}
@end

#pragma mark - Taps

BOOL SimTapView(UIView *view, CGPoint point) {
  if (!view || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  BOOL delivered = NO;
  UIView *hit = [view hitTest:point withEvent:nil];
  if (hit) {
    CGPoint windowPoint = [view convertPoint:point toView:nil];
    UITouch *touch = [[[UITouch alloc] _simInitWithView:hit windowLocation:windowPoint] autorelease];
    UIEvent *event = [[[UIEvent alloc] _simInitWithTouches:[NSSet setWithObject:touch]] autorelease];
    NSSet *touches = [NSSet setWithObject:touch];
    BOOL recognized = NO, cancels = NO;
    for (UIView *v = hit; v; v = v.superview) {
      for (UIGestureRecognizer *g in v.gestureRecognizers) {
        if ([g _simRecognizeTap:touch]) {
          recognized = YES;
          cancels = cancels || g.cancelsTouchesInView;
        }
      }
    }
    [touch _simSetPhase:UITouchPhaseBegan];
    [hit touchesBegan:touches withEvent:event];
    if (recognized && cancels) {
      [touch _simSetPhase:UITouchPhaseCancelled];
      [hit touchesCancelled:touches withEvent:event];
    } else {
      [touch _simSetPhase:UITouchPhaseEnded];
      [hit touchesEnded:touches withEvent:event];
    }
    delivered = YES;
  }
  [pool release];
  return delivered;
}
