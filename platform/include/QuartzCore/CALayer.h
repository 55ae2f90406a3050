/* Layers carry the geometry of views: a view's frame, bounds and centre are its layer's. */
#ifndef QUARTZCORE_CALAYER_H
#define QUARTZCORE_CALAYER_H

#include <QuartzCore/CABase.h>
#include <QuartzCore/CATransform3D.h>
#include <QuartzCore/CAAnimation.h>

CA_EXTERN NSString *const kCAGravityResize;
CA_EXTERN NSString *const kCAGravityResizeAspect;
CA_EXTERN NSString *const kCAGravityResizeAspectFill;
CA_EXTERN NSString *const kCAGravityCenter;

@interface CALayer : NSObject {
  CGRect _bounds;
  CGPoint _position;
  CGPoint _anchorPoint;
  CGFloat _zPosition;
  CATransform3D _transform;
  CATransform3D _sublayerTransform;
  float _opacity;
  BOOL _hidden;
  BOOL _masksToBounds;
  BOOL _opaque;
  BOOL _doubleSided;
  BOOL _needsLayout;
  BOOL _needsDisplay;
  CGFloat _cornerRadius;
  CGColorRef _backgroundColor;
  CGColorRef _borderColor;
  CGFloat _borderWidth;
  CGColorRef _shadowColor;
  float _shadowOpacity;
  CGSize _shadowOffset;
  CGFloat _shadowRadius;
  CGPathRef _shadowPath;
  id _contents;
  NSString *_contentsGravity;
  CGFloat _contentsScale;
  CGRect _contentsRect;
  CALayer *_mask;
  NSMutableArray *_sublayers;
  CALayer *_superlayer;
  id _delegate;
  NSString *_name;
  NSMutableArray *_animationKeys;
  NSMutableArray *_animations;
  BOOL _allowsGroupOpacity;
  BOOL _shouldRasterize;
  CGFloat _rasterizationScale;
  NSString *_compositingFilter;
}
+ (instancetype)layer;
- (instancetype)initWithLayer:(id)layer;
- (id)presentationLayer;
- (id)modelLayer;

@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint position;
@property (nonatomic) CGPoint anchorPoint;
@property (nonatomic) CGFloat zPosition;
@property (nonatomic) CATransform3D transform;
@property (nonatomic) CATransform3D sublayerTransform;
- (CGAffineTransform)affineTransform;
- (void)setAffineTransform:(CGAffineTransform)m;
/* Derived from bounds, position, anchor point and transform. */
@property (nonatomic) CGRect frame;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic, getter=isDoubleSided) BOOL doubleSided;
@property (nonatomic) BOOL masksToBounds;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) float opacity;
@property (nonatomic) CGFloat cornerRadius;
@property (nonatomic) CGColorRef backgroundColor;
@property (nonatomic) CGColorRef borderColor;
@property (nonatomic) CGFloat borderWidth;
@property (nonatomic) CGColorRef shadowColor;
@property (nonatomic) float shadowOpacity;
@property (nonatomic) CGSize shadowOffset;
@property (nonatomic) CGFloat shadowRadius;
@property (nonatomic) CGPathRef shadowPath;
@property (nonatomic, retain) id contents;
@property (nonatomic, copy) NSString *contentsGravity;
@property (nonatomic) CGFloat contentsScale;
@property (nonatomic) CGRect contentsRect;
@property (nonatomic, retain) CALayer *mask;
@property (nonatomic) BOOL allowsGroupOpacity;
@property (nonatomic) BOOL shouldRasterize;
@property (nonatomic) CGFloat rasterizationScale;
@property (nonatomic, retain) id compositingFilter;
@property (nonatomic, copy) NSString *name;
/* Not retained. */
@property (nonatomic, assign) id delegate;

@property (nonatomic, copy) NSArray *sublayers;
@property (nonatomic, readonly) CALayer *superlayer;
- (void)addSublayer:(CALayer *)layer;
- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)idx;
- (void)insertSublayer:(CALayer *)layer below:(CALayer *)sibling;
- (void)insertSublayer:(CALayer *)layer above:(CALayer *)sibling;
- (void)replaceSublayer:(CALayer *)oldLayer with:(CALayer *)newLayer;
- (void)removeFromSuperlayer;

- (CGPoint)convertPoint:(CGPoint)p fromLayer:(CALayer *)l;
- (CGPoint)convertPoint:(CGPoint)p toLayer:(CALayer *)l;
- (CGRect)convertRect:(CGRect)r fromLayer:(CALayer *)l;
- (CGRect)convertRect:(CGRect)r toLayer:(CALayer *)l;
- (BOOL)containsPoint:(CGPoint)p;
- (CALayer *)hitTest:(CGPoint)p;

- (void)setNeedsLayout;
- (BOOL)needsLayout;
- (void)layoutIfNeeded;
- (void)layoutSublayers;
- (void)setNeedsDisplay;
- (void)setNeedsDisplayInRect:(CGRect)r;
- (BOOL)needsDisplay;
- (void)displayIfNeeded;
- (void)display;
- (void)drawInContext:(CGContextRef)ctx;
/* Records the layer tree (background fills, images, shapes) into the context. */
- (void)renderInContext:(CGContextRef)ctx;

- (void)addAnimation:(CAAnimation *)anim forKey:(NSString *)key;
- (void)removeAllAnimations;
- (void)removeAnimationForKey:(NSString *)key;
/* nil when the layer has no keyed animation. */
- (NSArray *)animationKeys;
- (CAAnimation *)animationForKey:(NSString *)key;
@end

@interface NSObject (CALayerDelegate)
- (void)displayLayer:(CALayer *)layer;
- (void)drawLayer:(CALayer *)layer inContext:(CGContextRef)ctx;
- (void)layoutSublayersOfLayer:(CALayer *)layer;
@end

#endif
