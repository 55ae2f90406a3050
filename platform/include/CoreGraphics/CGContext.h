/* Drawing contexts. The stand-in records every drawing operation as a line of text. */
#ifndef COREGRAPHICS_CGCONTEXT_H
#define COREGRAPHICS_CGCONTEXT_H

#include <CoreGraphics/CGAffineTransform.h>
#include <CoreGraphics/CGColor.h>
#include <CoreGraphics/CGImage.h>
#include <CoreGraphics/CGPath.h>

typedef struct CGContext *CGContextRef;

typedef enum CGBlendMode {
  kCGBlendModeNormal = 0,
  kCGBlendModeMultiply,
  kCGBlendModeScreen,
  kCGBlendModeOverlay,
  kCGBlendModeDarken,
  kCGBlendModeLighten,
  kCGBlendModeColorDodge,
  kCGBlendModeColorBurn,
  kCGBlendModeSoftLight,
  kCGBlendModeHardLight,
  kCGBlendModeDifference,
  kCGBlendModeExclusion,
  kCGBlendModeHue,
  kCGBlendModeSaturation,
  kCGBlendModeColor,
  kCGBlendModeLuminosity,
  kCGBlendModeClear,
  kCGBlendModeCopy,
  kCGBlendModeSourceIn,
  kCGBlendModeSourceOut,
  kCGBlendModeSourceAtop,
  kCGBlendModeDestinationOver,
  kCGBlendModeDestinationIn,
  kCGBlendModeDestinationOut,
  kCGBlendModeDestinationAtop,
  kCGBlendModeXOR,
  kCGBlendModePlusDarker,
  kCGBlendModePlusLighter
} CGBlendMode;

typedef enum CGPathDrawingMode {
  kCGPathFill,
  kCGPathEOFill,
  kCGPathStroke,
  kCGPathFillStroke,
  kCGPathEOFillStroke
} CGPathDrawingMode;

CG_EXTERN_C_BEGIN
CGContextRef CGContextRetain(CGContextRef c);
void CGContextRelease(CGContextRef c);
void CGContextSaveGState(CGContextRef c);
void CGContextRestoreGState(CGContextRef c);
void CGContextSetBlendMode(CGContextRef c, CGBlendMode mode);
void CGContextSetAlpha(CGContextRef c, CGFloat alpha);
void CGContextSetFillColorWithColor(CGContextRef c, CGColorRef color);
void CGContextSetStrokeColorWithColor(CGContextRef c, CGColorRef color);
void CGContextSetRGBFillColor(CGContextRef c, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
void CGContextSetRGBStrokeColor(CGContextRef c, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
void CGContextSetLineWidth(CGContextRef c, CGFloat width);
void CGContextTranslateCTM(CGContextRef c, CGFloat tx, CGFloat ty);
void CGContextScaleCTM(CGContextRef c, CGFloat sx, CGFloat sy);
void CGContextRotateCTM(CGContextRef c, CGFloat angle);
void CGContextConcatCTM(CGContextRef c, CGAffineTransform transform);
CGAffineTransform CGContextGetCTM(CGContextRef c);
void CGContextBeginPath(CGContextRef c);
void CGContextAddPath(CGContextRef c, CGPathRef path);
void CGContextAddRect(CGContextRef c, CGRect rect);
void CGContextClosePath(CGContextRef c);
void CGContextClip(CGContextRef c);
void CGContextClipToRect(CGContextRef c, CGRect rect);
void CGContextFillPath(CGContextRef c);
void CGContextStrokePath(CGContextRef c);
void CGContextDrawPath(CGContextRef c, CGPathDrawingMode mode);
void CGContextFillRect(CGContextRef c, CGRect rect);
void CGContextStrokeRect(CGContextRef c, CGRect rect);
void CGContextClearRect(CGContextRef c, CGRect rect);
void CGContextFillEllipseInRect(CGContextRef c, CGRect rect);
void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image);
CG_EXTERN_C_END

#endif
