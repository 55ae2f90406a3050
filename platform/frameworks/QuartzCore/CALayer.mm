#import "QuartzCoreInternal.h"
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <math.h>

NSString *const kCAGravityResize = @"resize";
NSString *const kCAGravityResizeAspect = @"resizeAspect";
NSString *const kCAGravityResizeAspectFill = @"resizeAspectFill";
NSString *const kCAGravityCenter = @"center";

@interface _SimAnimationEnd : NSObject {
  CALayer *_layer;
  CAAnimation *_animation;
}
@property (nonatomic, retain) CALayer *layer;
@property (nonatomic, retain) CAAnimation *animation;
- (void)fire;
@end

@implementation CALayer
@synthesize zPosition = _zPosition;
@synthesize sublayerTransform = _sublayerTransform;
@synthesize hidden = _hidden;
@synthesize doubleSided = _doubleSided;
@synthesize masksToBounds = _masksToBounds;
@synthesize opaque = _opaque;
@synthesize opacity = _opacity;
@synthesize cornerRadius = _cornerRadius;
@synthesize borderWidth = _borderWidth;
@synthesize shadowOpacity = _shadowOpacity;
@synthesize shadowOffset = _shadowOffset;
@synthesize shadowRadius = _shadowRadius;
@synthesize contents = _contents;
@synthesize contentsGravity = _contentsGravity;
@synthesize contentsScale = _contentsScale;
@synthesize contentsRect = _contentsRect;
@synthesize mask = _mask;
@synthesize allowsGroupOpacity = _allowsGroupOpacity;
@synthesize shouldRasterize = _shouldRasterize;
@synthesize rasterizationScale = _rasterizationScale;
@synthesize compositingFilter = _compositingFilter;
@synthesize name = _name;
@synthesize delegate = _delegate;
@synthesize superlayer = _superlayer;

+ (instancetype)layer {
  return [[[self alloc] init] autorelease];
}
- (instancetype)init {
  if ((self = [super init])) {
    _anchorPoint = CGPointMake(0.5, 0.5);
    _transform = CATransform3DIdentity;
    _sublayerTransform = CATransform3DIdentity;
    _opacity = 1;
    _doubleSided = YES;
    _contentsScale = 1;
    _rasterizationScale = 1;
    _contentsRect = CGRectMake(0, 0, 1, 1);
    _allowsGroupOpacity = YES;
    _contentsGravity = [kCAGravityResize copy];
  }
  return self;
}
- (instancetype)initWithLayer:(id)layer {
  if ((self = [self init])) {
    CALayer *other = layer;
    _bounds = other.bounds;
    _position = other.position;
    _anchorPoint = other.anchorPoint;
    _transform = other.transform;
    _opacity = other.opacity;
    _hidden = other.hidden;
  }
  return self;
}
- (id)presentationLayer {
  return self;
}
- (id)modelLayer {
  return self;
}
- (void)dealloc {
  for (CALayer *l in _sublayers) l->_superlayer = nil;
  [_sublayers release];
  CGColorRelease(_backgroundColor);
  CGColorRelease(_borderColor);
  CGColorRelease(_shadowColor);
  CGPathRelease(_shadowPath);
  [_contents release];
  [_contentsGravity release];
  [_mask release];
  [_compositingFilter release];
  [_name release];
  [_animationKeys release];
  [_animations release];
  [super dealloc];
}

#pragma mark - Geometry

- (CGRect)bounds {
  return _bounds;
}
- (void)setBounds:(CGRect)bounds {
  BOOL resized = !CGSizeEqualToSize(bounds.size, _bounds.size);
  _bounds = bounds;
  if (resized) [self setNeedsLayout];
}
- (CGPoint)position {
  return _position;
}
- (void)setPosition:(CGPoint)position {
  _position = position;
}
- (CGPoint)anchorPoint {
  return _anchorPoint;
}
- (void)setAnchorPoint:(CGPoint)anchorPoint {
  _anchorPoint = anchorPoint;
}
- (CATransform3D)transform {
  return _transform;
}
- (void)setTransform:(CATransform3D)transform {
  _transform = transform;
}
- (CGAffineTransform)affineTransform {
  return CATransform3DGetAffineTransform(_transform);
}
- (void)setAffineTransform:(CGAffineTransform)m {
  self.transform = CATransform3DMakeAffineTransform(m);
}

- (CGRect)frame {
  CGRect local = CGRectMake(-_bounds.size.width * _anchorPoint.x, -_bounds.size.height * _anchorPoint.y,
                            _bounds.size.width, _bounds.size.height);
  if (!CATransform3DIsIdentity(_transform))
    local = CGRectApplyAffineTransform(local, CATransform3DGetAffineTransform(_transform));
  return CGRectOffset(local, _position.x, _position.y);
}
- (void)setFrame:(CGRect)frame {
  frame = CGRectStandardize(frame);
  CGSize size = frame.size;
  if (!CATransform3DIsIdentity(_transform)) {
    // As on the device, a transformed layer keeps its bounds size and only moves.
    size = _bounds.size;
  }
  CGRect b = _bounds;
  b.size = size;
  self.bounds = b;
  CGRect now = self.frame;
  self.position = CGPointMake(_position.x + frame.origin.x - now.origin.x, _position.y + frame.origin.y - now.origin.y);
}

#pragma mark - Colours and shadow

- (CGColorRef)backgroundColor {
  return _backgroundColor;
}
- (void)setBackgroundColor:(CGColorRef)color {
  setColor(&_backgroundColor, color);
}
- (CGColorRef)borderColor {
  return _borderColor;
}
- (void)setBorderColor:(CGColorRef)color {
  setColor(&_borderColor, color);
}
- (CGColorRef)shadowColor {
  return _shadowColor;
}
- (void)setShadowColor:(CGColorRef)color {
  setColor(&_shadowColor, color);
}
- (CGPathRef)shadowPath {
  return _shadowPath;
}
- (void)setShadowPath:(CGPathRef)path {
  setPath(&_shadowPath, path);
}

#pragma mark - Sublayers

- (NSArray *)sublayers {
  return _sublayers.count ? [NSArray arrayWithArray:_sublayers] : nil;
}
- (void)setSublayers:(NSArray *)sublayers {
  for (CALayer *l in [[_sublayers copy] autorelease]) [l removeFromSuperlayer];
  for (CALayer *l in sublayers) [self addSublayer:l];
}
- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)idx {
  if (!layer || layer == self) return;
  [layer retain];
  [layer removeFromSuperlayer];
  if (!_sublayers) _sublayers = [[NSMutableArray alloc] init];
  if (idx > _sublayers.count) idx = (unsigned)_sublayers.count;
  [_sublayers insertObject:layer atIndex:idx];
  layer->_superlayer = self;
  [layer release];
  [self setNeedsLayout];
}
- (void)addSublayer:(CALayer *)layer {
  [self insertSublayer:layer atIndex:(unsigned)_sublayers.count];
}
- (void)insertSublayer:(CALayer *)layer below:(CALayer *)sibling {
  NSUInteger i = sibling ? [_sublayers indexOfObjectIdenticalTo:sibling] : NSNotFound;
  [self insertSublayer:layer atIndex:i == NSNotFound ? 0 : (unsigned)i];
}
- (void)insertSublayer:(CALayer *)layer above:(CALayer *)sibling {
  NSUInteger i = sibling ? [_sublayers indexOfObjectIdenticalTo:sibling] : NSNotFound;
  [self insertSublayer:layer atIndex:i == NSNotFound ? (unsigned)_sublayers.count : (unsigned)(i + 1)];
}
- (void)replaceSublayer:(CALayer *)oldLayer with:(CALayer *)newLayer {
  NSUInteger i = [_sublayers indexOfObjectIdenticalTo:oldLayer];
  if (i == NSNotFound) return;
  [oldLayer removeFromSuperlayer];
  [self insertSublayer:newLayer atIndex:(unsigned)i];
}
- (void)removeFromSuperlayer {
  CALayer *parent = _superlayer;
  if (!parent) return;
  _superlayer = nil;
  [parent->_sublayers removeObjectIdenticalTo:self];
}

#pragma mark - Coordinates

- (CGPoint)_originInAncestor:(CALayer *)ancestor {
  // Origin of this layer's bounds in the coordinate space of `ancestor` (nil: the root).
  CGPoint p = CGPointZero;
  for (CALayer *l = self; l && l != ancestor; l = l->_superlayer) {
    CGRect f = l.frame;
    p.x += f.origin.x - l->_bounds.origin.x;
    p.y += f.origin.y - l->_bounds.origin.y;
    if (l->_superlayer == ancestor) break;
  }
  return p;
}
- (CGPoint)convertPoint:(CGPoint)p toLayer:(CALayer *)l {
  CGPoint mine = [self _originInAncestor:nil];
  CGPoint theirs = l ? [l _originInAncestor:nil] : CGPointZero;
  return CGPointMake(p.x + mine.x - theirs.x, p.y + mine.y - theirs.y);
}
- (CGPoint)convertPoint:(CGPoint)p fromLayer:(CALayer *)l {
  if (!l) {
    CGPoint mine = [self _originInAncestor:nil];
    return CGPointMake(p.x - mine.x, p.y - mine.y);
  }
  return [l convertPoint:p toLayer:self];
}
- (CGRect)convertRect:(CGRect)r toLayer:(CALayer *)l {
  r.origin = [self convertPoint:r.origin toLayer:l];
  return r;
}
- (CGRect)convertRect:(CGRect)r fromLayer:(CALayer *)l {
  r.origin = [self convertPoint:r.origin fromLayer:l];
  return r;
}
- (BOOL)containsPoint:(CGPoint)p {
  return CGRectContainsPoint(_bounds, p);
}
- (CALayer *)hitTest:(CGPoint)p {
  // `p` is in the superlayer's coordinates.
  if (_hidden || _opacity <= 0) return nil;
  CGRect f = self.frame;
  CGPoint local = CGPointMake(p.x - f.origin.x + _bounds.origin.x, p.y - f.origin.y + _bounds.origin.y);
  for (CALayer *l in [_sublayers reverseObjectEnumerator]) {
    CALayer *hit = [l hitTest:local];
    if (hit) return hit;
  }
  return [self containsPoint:local] ? self : nil;
}

#pragma mark - Layout and display

- (void)setNeedsLayout {
  _needsLayout = YES;
}
- (BOOL)needsLayout {
  return _needsLayout;
}
- (void)layoutIfNeeded {
  if (_needsLayout) {
    _needsLayout = NO;
    [self layoutSublayers];
  }
  for (CALayer *l in [[_sublayers copy] autorelease]) [l layoutIfNeeded];
}
- (void)layoutSublayers {
  if ([_delegate respondsToSelector:@selector(layoutSublayersOfLayer:)]) [_delegate layoutSublayersOfLayer:self];
}
- (void)setNeedsDisplay {
  _needsDisplay = YES;
}
- (void)setNeedsDisplayInRect:(CGRect)r {
  _needsDisplay = YES;
}
- (BOOL)needsDisplay {
  return _needsDisplay;
}
- (void)displayIfNeeded {
  if (_needsDisplay) [self display];
}
- (void)display {
  _needsDisplay = NO;
  if ([_delegate respondsToSelector:@selector(displayLayer:)]) [_delegate displayLayer:self];
}
- (void)drawInContext:(CGContextRef)ctx {
  if ([_delegate respondsToSelector:@selector(drawLayer:inContext:)]) [_delegate drawLayer:self inContext:ctx];
}
- (void)_simRenderContentInContext:(CGContextRef)ctx rect:(CGRect)r {
  if (_backgroundColor && CGColorGetAlpha(_backgroundColor) > 0) {
    CGContextSetFillColorWithColor(ctx, _backgroundColor);
    // The record notes the rounding beside the rectangle; the pixels are rounded.
    cairo_t *cr = _cornerRadius > 0 ? SimCGContextCairo(ctx) : NULL;
    if (_cornerRadius > 0) SimCGContextRecord(ctx, [NSString stringWithFormat:@"cornerRadius %g", _cornerRadius]);
    if (cr != NULL) {
      double radius = fmin(_cornerRadius, fmin(r.size.width, r.size.height) / 2);
      cairo_save(cr);
      cairo_new_sub_path(cr);
      cairo_arc(cr, CGRectGetMaxX(r) - radius, r.origin.y + radius, radius, -M_PI / 2, 0);
      cairo_arc(cr, CGRectGetMaxX(r) - radius, CGRectGetMaxY(r) - radius, radius, 0, M_PI / 2);
      cairo_arc(cr, r.origin.x + radius, CGRectGetMaxY(r) - radius, radius, M_PI / 2, M_PI);
      cairo_arc(cr, r.origin.x + radius, r.origin.y + radius, radius, M_PI, 3 * M_PI / 2);
      cairo_close_path(cr);
      cairo_clip(cr);
    }
    CGContextFillRect(ctx, r);
    if (cr != NULL) cairo_restore(cr);
  }
  if (_contents) CGContextDrawImage(ctx, r, (CGImageRef)_contents);
}
- (void)renderInContext:(CGContextRef)ctx {
  if (_hidden || !ctx) return;
  CGContextSaveGState(ctx);
  CGRect r = _bounds;
  // A layer that masks to its bounds clips its own content and its sublayers to them,
  // rounded by its corner radius.
  if (_masksToBounds) {
    if (_cornerRadius > 0) {
      CGPathRef rounded = CGPathCreateWithRoundedRect(r, _cornerRadius, _cornerRadius, NULL);
      CGContextBeginPath(ctx);
      CGContextAddPath(ctx, rounded);
      CGContextClip(ctx);
      CGPathRelease(rounded);
    } else {
      CGContextClipToRect(ctx, r);
    }
  }
  [self _simRenderContentInContext:ctx rect:r];
  [self drawInContext:ctx];
  for (CALayer *l in [[_sublayers copy] autorelease]) {
    CGRect f = l.frame;
    CGContextSaveGState(ctx);
    CGContextTranslateCTM(ctx, f.origin.x - _bounds.origin.x, f.origin.y - _bounds.origin.y);
    [l renderInContext:ctx];
    CGContextRestoreGState(ctx);
  }
  CGContextRestoreGState(ctx);
}

#pragma mark - Animations

- (void)addAnimation:(CAAnimation *)anim forKey:(NSString *)key {
  if (!anim) return;
  if (!_animations) {
    _animations = [[NSMutableArray alloc] init];
    _animationKeys = [[NSMutableArray alloc] init];
  }
  if (key) [self removeAnimationForKey:key];
  CAAnimation *copy = [[anim copy] autorelease];
  [_animations addObject:copy];
  [_animationKeys addObject:key ? (id)[[key copy] autorelease] : (id)[NSNull null]];
  id delegate = copy.delegate;
  if ([delegate respondsToSelector:@selector(animationDidStart:)]) [delegate animationDidStart:copy];
  CFTimeInterval total = [copy _simTotalDuration];
  if (!isinf(total)) {
    _SimAnimationEnd *end = [[[_SimAnimationEnd alloc] init] autorelease];
    end.layer = self;
    end.animation = copy;
    [end performSelector:@selector(fire) withObject:nil afterDelay:total];
  }
}
- (void)_simAnimationEnded:(CAAnimation *)anim {
  NSUInteger i = [_animations indexOfObjectIdenticalTo:anim];
  BOOL present = i != NSNotFound;
  [[anim retain] autorelease];
  if (present && anim.removedOnCompletion) {
    [_animations removeObjectAtIndex:i];
    [_animationKeys removeObjectAtIndex:i];
  }
  id delegate = anim.delegate;
  if (present && [delegate respondsToSelector:@selector(animationDidStop:finished:)])
    [delegate animationDidStop:anim finished:YES];
}
- (void)_simAnimationRemoved:(CAAnimation *)anim {
  id delegate = anim.delegate;
  if ([delegate respondsToSelector:@selector(animationDidStop:finished:)]) [delegate animationDidStop:anim finished:NO];
}
- (void)removeAllAnimations {
  NSArray *old = [[_animations copy] autorelease];
  [_animations removeAllObjects];
  [_animationKeys removeAllObjects];
  for (CAAnimation *a in old) [self _simAnimationRemoved:a];
}
- (void)removeAnimationForKey:(NSString *)key {
  if (!key) return;
  NSUInteger i = [_animationKeys indexOfObject:key];
  if (i == NSNotFound) return;
  CAAnimation *a = [[[_animations objectAtIndex:i] retain] autorelease];
  [_animations removeObjectAtIndex:i];
  [_animationKeys removeObjectAtIndex:i];
  [self _simAnimationRemoved:a];
}
- (NSArray *)animationKeys {
  NSMutableArray *keys = [NSMutableArray array];
  for (id k in _animationKeys)
    if (k != [NSNull null]) [keys addObject:k];
  return keys.count ? keys : nil;
}
- (CAAnimation *)animationForKey:(NSString *)key {
  NSUInteger i = key ? [_animationKeys indexOfObject:key] : NSNotFound;
  return i == NSNotFound ? nil : [_animations objectAtIndex:i];
}
@end

@implementation _SimAnimationEnd
@synthesize layer = _layer;
@synthesize animation = _animation;
- (void)fire {
  [_layer _simAnimationEnded:_animation];
}
- (void)dealloc {
  [_layer release];
  [_animation release];
  [super dealloc];
}
@end
