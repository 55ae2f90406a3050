#ifndef QUARTZCORE_CASHAPELAYER_H
#define QUARTZCORE_CASHAPELAYER_H

#include <QuartzCore/CALayer.h>

CA_EXTERN NSString *const kCAFillRuleNonZero;
CA_EXTERN NSString *const kCAFillRuleEvenOdd;
CA_EXTERN NSString *const kCALineJoinMiter;
CA_EXTERN NSString *const kCALineJoinRound;
CA_EXTERN NSString *const kCALineJoinBevel;
CA_EXTERN NSString *const kCALineCapButt;
CA_EXTERN NSString *const kCALineCapRound;
CA_EXTERN NSString *const kCALineCapSquare;

@interface CAShapeLayer : CALayer {
  CGPathRef _path;
  CGColorRef _fillColor;
  NSString *_fillRule;
  CGColorRef _strokeColor;
  CGFloat _strokeStart;
  CGFloat _strokeEnd;
  CGFloat _lineWidth;
  CGFloat _miterLimit;
  NSString *_lineCap;
  NSString *_lineJoin;
  CGFloat _lineDashPhase;
  NSArray *_lineDashPattern;
}
@property (nonatomic) CGPathRef path;
/* Opaque black by default. */
@property (nonatomic) CGColorRef fillColor;
@property (nonatomic, copy) NSString *fillRule;
/* None by default. */
@property (nonatomic) CGColorRef strokeColor;
@property (nonatomic) CGFloat strokeStart;
@property (nonatomic) CGFloat strokeEnd;
@property (nonatomic) CGFloat lineWidth;
@property (nonatomic) CGFloat miterLimit;
@property (nonatomic, copy) NSString *lineCap;
@property (nonatomic, copy) NSString *lineJoin;
@property (nonatomic) CGFloat lineDashPhase;
@property (nonatomic, copy) NSArray *lineDashPattern;
@end

#endif
