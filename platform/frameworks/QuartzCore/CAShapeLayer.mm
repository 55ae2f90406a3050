#import "QuartzCoreInternal.h"
#include <CoreGraphics/CoreGraphicsSimulation.h>

NSString *const kCAFillRuleNonZero = @"non-zero";
NSString *const kCAFillRuleEvenOdd = @"even-odd";
NSString *const kCALineJoinMiter = @"miter";
NSString *const kCALineJoinRound = @"round";
NSString *const kCALineJoinBevel = @"bevel";
NSString *const kCALineCapButt = @"butt";
NSString *const kCALineCapRound = @"round";
NSString *const kCALineCapSquare = @"square";

@implementation CAShapeLayer
@synthesize fillRule = _fillRule;
@synthesize strokeStart = _strokeStart;
@synthesize strokeEnd = _strokeEnd;
@synthesize lineWidth = _lineWidth;
@synthesize miterLimit = _miterLimit;
@synthesize lineCap = _lineCap;
@synthesize lineJoin = _lineJoin;
@synthesize lineDashPhase = _lineDashPhase;
@synthesize lineDashPattern = _lineDashPattern;
- (instancetype)init {
  if ((self = [super init])) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGFloat black[4] = {0, 0, 0, 1};
    _fillColor = CGColorCreate(space, black);
    CGColorSpaceRelease(space);
    _strokeEnd = 1;
    _lineWidth = 1;
    _miterLimit = 10;
    _fillRule = [kCAFillRuleNonZero copy];
    _lineCap = [kCALineCapButt copy];
    _lineJoin = [kCALineJoinMiter copy];
  }
  return self;
}
- (void)dealloc {
  CGPathRelease(_path);
  CGColorRelease(_fillColor);
  CGColorRelease(_strokeColor);
  [_fillRule release];
  [_lineCap release];
  [_lineJoin release];
  [_lineDashPattern release];
  [super dealloc];
}
- (CGPathRef)path {
  return _path;
}
- (void)setPath:(CGPathRef)path {
  setPath(&_path, path);
}
- (CGColorRef)fillColor {
  return _fillColor;
}
- (void)setFillColor:(CGColorRef)color {
  setColor(&_fillColor, color);
}
- (CGColorRef)strokeColor {
  return _strokeColor;
}
- (void)setStrokeColor:(CGColorRef)color {
  setColor(&_strokeColor, color);
}
- (void)_simRenderContentInContext:(CGContextRef)ctx rect:(CGRect)r {
  [super _simRenderContentInContext:ctx rect:r];
  if (!_path) return;
  if (_fillColor && CGColorGetAlpha(_fillColor) > 0) {
    CGContextSetFillColorWithColor(ctx, _fillColor);
    CGContextAddPath(ctx, _path);
    CGContextFillPath(ctx);
  }
  if (_strokeColor && _lineWidth > 0) {
    CGContextSetStrokeColorWithColor(ctx, _strokeColor);
    CGContextSetLineWidth(ctx, _lineWidth);
    if (_lineDashPattern.count)
      SimCGContextRecord(ctx,
                         [NSString stringWithFormat:@"lineDash %@", [_lineDashPattern componentsJoinedByString:@" "]]);
    CGContextAddPath(ctx, _path);
    CGContextStrokePath(ctx);
  }
}
@end
