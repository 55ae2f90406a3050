// Recording contexts: a context keeps what is drawn into it as lines of text, in device
// coordinates, for tests to read.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <vector>

@interface _SimCGContext : NSObject {
  NSMutableArray *_operations;
  CGSize _size;
  CGFloat _scale;
  CGAffineTransform _ctm;
  std::vector<CGAffineTransform> *_stack;
  CGMutablePathRef _path;
}
@property(nonatomic, readonly) NSMutableArray *operations;
@property(nonatomic, assign) CGSize size;
@property(nonatomic, assign) CGFloat scale;
@property(nonatomic, assign) CGAffineTransform ctm;
- (std::vector<CGAffineTransform> &)stack;
- (CGMutablePathRef)path;
- (void)clearPath;
@end
@implementation _SimCGContext
@synthesize operations = _operations;
@synthesize size = _size;
@synthesize scale = _scale;
@synthesize ctm = _ctm;
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

CGContextRef SimCGContextCreate(CGSize size, CGFloat scale) {
  _SimCGContext *c = [[_SimCGContext alloc] init];
  c.size = size;
  c.scale = scale;
  return (CGContextRef)c;
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
  SimCGContextRecord(c, @"save");
}
void CGContextRestoreGState(CGContextRef c) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  if (![ctx stack].empty()) {
    ctx.ctm = [ctx stack].back();
    [ctx stack].pop_back();
  }
  SimCGContextRecord(c, @"restore");
}
void CGContextSetBlendMode(CGContextRef c, CGBlendMode mode) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"blendMode %d", (int)mode]);
}
void CGContextSetAlpha(CGContextRef c, CGFloat alpha) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"alpha %g", alpha]);
}
void CGContextSetFillColorWithColor(CGContextRef c, CGColorRef color) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillColor %@", colorText(color)]);
}
void CGContextSetStrokeColorWithColor(CGContextRef c, CGColorRef color) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeColor %@", colorText(color)]);
}
void CGContextSetRGBFillColor(CGContextRef c, CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillColor %g %g %g %g", r, g, b, a]);
}
void CGContextSetRGBStrokeColor(CGContextRef c, CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeColor %g %g %g %g", r, g, b, a]);
}
void CGContextSetLineWidth(CGContextRef c, CGFloat width) {
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
void CGContextRotateCTM(CGContextRef c, CGFloat angle) {
  CGContextConcatCTM(c, CGAffineTransformMakeRotation(angle));
}
CGAffineTransform CGContextGetCTM(CGContextRef c) {
  return c ? ((_SimCGContext *)c).ctm : CGAffineTransformIdentity;
}
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
static void usePath(CGContextRef c, NSString *verb) {
  if (!c) return;
  _SimCGContext *ctx = (_SimCGContext *)c;
  SimCGContextRecord(c, [NSString stringWithFormat:@"%@ %@", verb, SimCGPathDescription([ctx path])]);
  [ctx clearPath];
}
void CGContextClip(CGContextRef c) { usePath(c, @"clip"); }
void CGContextFillPath(CGContextRef c) { usePath(c, @"fill"); }
void CGContextStrokePath(CGContextRef c) { usePath(c, @"stroke"); }
void CGContextDrawPath(CGContextRef c, CGPathDrawingMode mode) {
  usePath(c, mode == kCGPathStroke ? @"stroke" : mode == kCGPathFill || mode == kCGPathEOFill ? @"fill" : @"fillStroke");
}
static CGRect deviceRect(CGContextRef c, CGRect r) {
  return c ? CGRectApplyAffineTransform(r, ((_SimCGContext *)c).ctm) : r;
}
void CGContextClipToRect(CGContextRef c, CGRect rect) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"clipRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextFillRect(CGContextRef c, CGRect rect) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextStrokeRect(CGContextRef c, CGRect rect) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"strokeRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextClearRect(CGContextRef c, CGRect rect) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"clearRect %@", rectText(deviceRect(c, rect))]);
}
void CGContextFillEllipseInRect(CGContextRef c, CGRect rect) {
  SimCGContextRecord(c, [NSString stringWithFormat:@"fillEllipse %@", rectText(deviceRect(c, rect))]);
}
void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image) {
  NSString *info = SimCGImageDescription(image);
  SimCGContextRecord(c, [NSString stringWithFormat:@"drawImage %@ %@", info ? info : @"(unnamed)",
                                                   rectText(deviceRect(c, rect))]);
}

}  // extern "C"
