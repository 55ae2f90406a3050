#import "UIKitInternal.h"

@implementation UIBezierPath
@synthesize lineWidth = _lineWidth;
@synthesize lineCapStyle = _lineCapStyle;
@synthesize lineJoinStyle = _lineJoinStyle;
- (instancetype)init {
  if ((self = [super init])) {
    _path = CGPathCreateMutable();
    _lineWidth = 1;
  }
  return self;
}
- (void)dealloc {
  CGPathRelease(_path);
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  UIBezierPath *p = [[UIBezierPath allocWithZone:zone] init];
  p.CGPath = _path;
  p.lineWidth = _lineWidth;
  return p;
}
+ (instancetype)bezierPath {
  return [[[self alloc] init] autorelease];
}
+ (instancetype)bezierPathWithRect:(CGRect)rect {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRect(p->_path, NULL, rect);
  return p;
}
+ (instancetype)bezierPathWithOvalInRect:(CGRect)rect {
  UIBezierPath *p = [self bezierPath];
  CGPathAddEllipseInRect(p->_path, NULL, rect);
  return p;
}
+ (instancetype)bezierPathWithRoundedRect:(CGRect)rect cornerRadius:(CGFloat)r {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRoundedRect(p->_path, NULL, rect, r, r);
  return p;
}
+ (instancetype)bezierPathWithRoundedRect:(CGRect)rect
                        byRoundingCorners:(UIRectCorner)corners
                              cornerRadii:(CGSize)radii {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRoundedRect(p->_path, NULL, rect, radii.width, radii.height);
  return p;
}
+ (instancetype)bezierPathWithArcCenter:(CGPoint)c
                                 radius:(CGFloat)r
                             startAngle:(CGFloat)s
                               endAngle:(CGFloat)e
                              clockwise:(BOOL)cw {
  UIBezierPath *p = [self bezierPath];
  [p addArcWithCenter:c radius:r startAngle:s endAngle:e clockwise:cw];
  return p;
}
+ (instancetype)bezierPathWithCGPath:(CGPathRef)path {
  UIBezierPath *p = [self bezierPath];
  p.CGPath = path;
  return p;
}

#pragma mark - Path

- (CGPathRef)CGPath {
  return _path;
}
- (void)setCGPath:(CGPathRef)path {
  CGMutablePathRef copy = path ? CGPathCreateMutableCopy(path) : CGPathCreateMutable();
  CGPathRelease(_path);
  _path = copy;
}
- (CGPoint)currentPoint {
  return CGPathGetCurrentPoint(_path);
}
- (CGRect)bounds {
  return CGPathGetBoundingBox(_path);
}
- (BOOL)isEmpty {
  return CGPathIsEmpty(_path);
}
- (void)moveToPoint:(CGPoint)p {
  CGPathMoveToPoint(_path, NULL, p.x, p.y);
}
- (void)addLineToPoint:(CGPoint)p {
  CGPathAddLineToPoint(_path, NULL, p.x, p.y);
}
- (void)addCurveToPoint:(CGPoint)e controlPoint1:(CGPoint)c1 controlPoint2:(CGPoint)c2 {
  CGPathAddCurveToPoint(_path, NULL, c1.x, c1.y, c2.x, c2.y, e.x, e.y);
}
- (void)addQuadCurveToPoint:(CGPoint)e controlPoint:(CGPoint)c {
  CGPathAddQuadCurveToPoint(_path, NULL, c.x, c.y, e.x, e.y);
}
- (void)addArcWithCenter:(CGPoint)c radius:(CGFloat)r startAngle:(CGFloat)s endAngle:(CGFloat)e clockwise:(BOOL)cw {
  // UIKit's clockwise is CoreGraphics' counter-clockwise in a flipped space.
  CGPathAddArc(_path, NULL, c.x, c.y, r, s, e, !cw);
}
- (void)closePath {
  CGPathCloseSubpath(_path);
}
- (void)removeAllPoints {
  CGPathRelease(_path);
  _path = CGPathCreateMutable();
}
- (void)appendPath:(UIBezierPath *)other {
  CGPathAddPath(_path, NULL, other.CGPath);
}
- (BOOL)containsPoint:(CGPoint)point {
  return CGPathContainsPoint(_path, NULL, point, false);
}

#pragma mark - Drawing

- (void)fill {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextAddPath(c, _path);
  CGContextFillPath(c);
}
- (void)stroke {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSetLineWidth(c, _lineWidth);
  CGContextAddPath(c, _path);
  CGContextStrokePath(c);
}
- (void)addClip {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextAddPath(c, _path);
  CGContextClip(c);
}
@end
