// Contexts: a context keeps what is drawn into it as lines of text, in device coordinates,
// for tests to read, and draws it into its pixels (cairo) when it has any.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <vector>

#include "CGPixels.h"

@interface _SimCGContext : NSObject {
  NSMutableArray *_operations;
  CGSize _size;
  CGFloat _scale;
  CGAffineTransform _ctm;
  std::vector<CGAffineTransform> *_stack;
  CGMutablePathRef _path;
  SimCGPixels *_pixels;
}
@property (nonatomic, readonly) NSMutableArray *operations;
@property (nonatomic, assign) CGSize size;
@property (nonatomic, assign) CGFloat scale;
@property (nonatomic, assign) CGAffineTransform ctm;
@property (nonatomic, assign) SimCGPixels *pixels;  // owned
- (std::vector<CGAffineTransform> &)stack;
- (CGMutablePathRef)path;
- (void)clearPath;
@end
@implementation _SimCGContext
@synthesize operations = _operations;
@synthesize size = _size;
@synthesize scale = _scale;
@synthesize ctm = _ctm;
@synthesize pixels = _pixels;
- (instancetype)init {
  if ((self = [super init])) {
    _operations = [[NSMutableArray alloc] init];
    _stack = new std::vector<CGAffineTransform>();
    _ctm = CGAffineTransformIdentity;
  }
  return self;
}
- (void)dealloc {
  [_operations release];
  CGPathRelease(_path);
  delete _stack;
  delete _pixels;
  [super dealloc];
}
- (std::vector<CGAffineTransform> &)stack {
  return *_stack;
}
- (CGMutablePathRef)path {
  if (!_path) _path = CGPathCreateMutable();
  return _path;
}
- (void)clearPath {
  CGPathRelease(_path);
  _path = NULL;
}
@end

static NSString *rectText(CGRect r) {
  return [NSString stringWithFormat:@"{{%g, %g}, {%g, %g}}", r.origin.x, r.origin.y, r.size.width, r.size.height];
}

static NSString *colorText(CGColorRef color) {
  if (!color) return @"none";
  size_t count = CGColorGetNumberOfComponents(color);
  const CGFloat *components = CGColorGetComponents(color);
  NSMutableString *s = [NSMutableString string];
  for (size_t i = 0; i < count; ++i) [s appendFormat:@"%@%g", i ? @" " : @"", components[i]];
  return s;
}

extern "C" {

// The context's pixels, or NULL.
static SimCGPixels *pixelsOf(CGContextRef c) { return c ? ((_SimCGContext *)c).pixels : NULL; }

CGContextRef SimCGContextCreate(CGSize size, CGFloat scale) {
  _SimCGContext *c = [[_SimCGContext alloc] init];
  c.size = size;
  c.scale = scale;
  c.pixels = SimCGPixels::withSize(size, scale);
  return (CGContextRef)c;
}
CGContextRef SimCGContextCreateForCairo(cairo_t *cr, CGFloat scale) {
  _SimCGContext *c = [[_SimCGContext alloc] init];
  c.scale = scale;
  c.pixels = SimCGPixels::onCairo(cr);
  return (CGContextRef)c;
}
cairo_t *SimCGContextCairo(CGContextRef c) {
  SimCGPixels *pixels = pixelsOf(c);
  return pixels ? pixels->cairoWith(((_SimCGContext *)c).ctm) : NULL;
}
cairo_surface_t *SimCGContextCopySurface(CGContextRef c) {
  SimCGPixels *pixels = pixelsOf(c);
  return pixels ? pixels->copySurface() : NULL;
}
void SimCGContextRecord(CGContextRef c, NSString *line) {
  if (c && line) [((_SimCGContext *)c).operations addObject:line];
}
NSArray *SimCGContextOperations(CGContextRef c) {
  return c ? [NSArray arrayWithArray:((_SimCGContext *)c).operations] : [NSArray array];
}

CGContextRef CGContextRetain(CGContextRef c) {
  [(id)c retain];
  return c;
}
void CGContextRelease(CGContextRef c) { [(id)c release]; }

void CGContextSaveGState(CGContextRef c) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  [ctx stack].push_back(ctx.ctm);
  if (SimCGPixels *pixels = ctx.pixels) pixels->save();
  SimCGContextRecord(c, @"save");
}
void CGContextRestoreGState(CGContextRef c) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  if (![ctx stack].empty()) {
    ctx.ctm = [ctx stack].back();
    [ctx stack].pop_back();
    if (SimCGPixels *pixels = ctx.pixels) pixels->restore();
  }
  SimCGContextRecord(c, @"restore");
}
void CGContextSetBlendMode(CGContextRef c, CGBlendMode mode) {
  if (SimCGPixels *pixels = pixelsOf(c)) pixels->setBlendMode((int)mode);
  SimCGContextRecord(c, [NSString stringWithFormat:@"blendMode %d", (int)mode]);
}
void CGContextSetAlpha(CGContextRef c, CGFloat alpha) {
  if (SimCGPixels *pixels = pixelsOf(c)) pixels->setAlpha(alpha);
  SimCGContextRecord(c, [NSString stringWithFormat:@"alpha %g", alpha]);
}
// A colour's components as red, green, blue and alpha (grey ones widened).
static void rgbaOf(CGColorRef color, CGFloat out[4]) {
  size_t n = CGColorGetNumberOfComponents(color);
  const CGFloat *v = CGColorGetComponents(color);
  out[0] = out[1] = out[2] = 0;
  out[3] = color ? 1 : 0;
  if (!v) return;
  if (n == 2) {
    out[0] = out[1] = out[2] = v[0];
    out[3] = v[1];
  } else if (n >= 4) {
    for (int i = 0; i < 4; ++i) out[i] = v[i];
  }
}
void CGContextSetFillColorWithColor(CGContextRef c, CGColorRef color) {
  if (SimCGPixels *pixels = pixelsOf(c)) {
    CGFloat rgba[4];
    rgbaOf(color, rgba);
    pixels->setFill(rgba);
  }
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillColor %@", colorText(color)]);
}
void CGContextSetStrokeColorWithColor(CGContextRef c, CGColorRef color) {
  if (SimCGPixels *pixels = pixelsOf(c)) {
    CGFloat rgba[4];
    rgbaOf(color, rgba);
    pixels->setStroke(rgba);
  }
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeColor %@", colorText(color)]);
}
void CGContextSetRGBFillColor(CGContextRef c, CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  if (SimCGPixels *pixels = pixelsOf(c)) {
    CGFloat rgba[4] = {r, g, b, a};
    pixels->setFill(rgba);
  }
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillColor %g %g %g %g", r, g, b, a]);
}
void CGContextSetRGBStrokeColor(CGContextRef c, CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  if (SimCGPixels *pixels = pixelsOf(c)) {
    CGFloat rgba[4] = {r, g, b, a};
    pixels->setStroke(rgba);
  }
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeColor %g %g %g %g", r, g, b, a]);
}
void CGContextSetLineWidth(CGContextRef c, CGFloat width) {
  if (SimCGPixels *pixels = pixelsOf(c)) pixels->setLineWidth(width);
  SimCGContextRecord(c, [NSString stringWithFormat:@"lineWidth %g", width]);
}
void CGContextConcatCTM(CGContextRef c, CGAffineTransform t) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  ctx.ctm = CGAffineTransformConcat(t, ctx.ctm);
}
void CGContextTranslateCTM(CGContextRef c, CGFloat tx, CGFloat ty) {
  CGContextConcatCTM(c, CGAffineTransformMakeTranslation(tx, ty));
}
void CGContextScaleCTM(CGContextRef c, CGFloat sx, CGFloat sy) {
  CGContextConcatCTM(c, CGAffineTransformMakeScale(sx, sy));
}
void CGContextRotateCTM(CGContextRef c, CGFloat angle) { CGContextConcatCTM(c, CGAffineTransformMakeRotation(angle)); }
CGAffineTransform CGContextGetCTM(CGContextRef c) { return c ? ((_SimCGContext *)c).ctm : CGAffineTransformIdentity; }
void CGContextBeginPath(CGContextRef c) {
  if (c) [(_SimCGContext *)c clearPath];
}
void CGContextAddPath(CGContextRef c, CGPathRef path) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  CGAffineTransform m = ctx.ctm;
  CGPathAddPath([ctx path], &m, path);
}
void CGContextAddRect(CGContextRef c, CGRect rect) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  CGAffineTransform m = ctx.ctm;
  CGPathAddRect([ctx path], &m, rect);
}
void CGContextClosePath(CGContextRef c) {
  if (c) CGPathCloseSubpath([(_SimCGContext *)c path]);
}
static void usePath(CGContextRef c, NSString *verb, SimCGPixels::Verb how) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  if (SimCGPixels *pixels = ctx.pixels) pixels->usePath(how, [ctx path], ctx.ctm);
  SimCGContextRecord(c, [NSString stringWithFormat:@"%@ %@", verb, SimCGPathDescription([ctx path])]);
  [ctx clearPath];
}
void CGContextClip(CGContextRef c) { usePath(c, @"clip", SimCGPixels::kClip); }
void CGContextFillPath(CGContextRef c) { usePath(c, @"fill", SimCGPixels::kFill); }
void CGContextStrokePath(CGContextRef c) { usePath(c, @"stroke", SimCGPixels::kStroke); }
void CGContextDrawPath(CGContextRef c, CGPathDrawingMode mode) {
  usePath(c,
          mode == kCGPathStroke                          ? @"stroke"
          : mode == kCGPathFill || mode == kCGPathEOFill ? @"fill"
                                                         : @"fillStroke",
          mode == kCGPathStroke   ? SimCGPixels::kStroke
          : mode == kCGPathFill   ? SimCGPixels::kFill
          : mode == kCGPathEOFill ? SimCGPixels::kEOFill
                                  : SimCGPixels::kFillStroke);
}
static void useRect(CGContextRef c, SimCGPixels::Verb how, CGRect rect) {
  if (SimCGPixels *pixels = pixelsOf(c)) pixels->useRect(how, rect, ((_SimCGContext *)c).ctm);
}
static CGRect deviceRect(CGContextRef c, CGRect r) {
  return c ? CGRectApplyAffineTransform(r, ((_SimCGContext *)c).ctm) : r;
}
void CGContextClipToRect(CGContextRef c, CGRect rect) {
  useRect(c, SimCGPixels::kClip, rect);
  SimCGContextRecord(c, [NSString stringWithFormat:@"clipRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextFillRect(CGContextRef c, CGRect rect) {
  useRect(c, SimCGPixels::kFill, rect);
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextStrokeRect(CGContextRef c, CGRect rect) {
  useRect(c, SimCGPixels::kStroke, rect);
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextClearRect(CGContextRef c, CGRect rect) {
  useRect(c, SimCGPixels::kClear, rect);
  SimCGContextRecord(c, [NSString stringWithFormat:@"clearRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextFillEllipseInRect(CGContextRef c, CGRect rect) {
  useRect(c, SimCGPixels::kEllipse, rect);
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillEllipse %@", rectText(deviceRect(c, rect))]);
}
void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image) {
  if (SimCGPixels *pixels = pixelsOf(c)) pixels->drawImage(rect, image, ((_SimCGContext *)c).ctm);
  NSString *info = SimCGImageDescription(image);
  SimCGContextRecord(
      c, [NSString stringWithFormat:@"drawImage %@ %@", info ? info : @"(unnamed)", rectText(deviceRect(c, rect))]);
}

}  // extern "C"
