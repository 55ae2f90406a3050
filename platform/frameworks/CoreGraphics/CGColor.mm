// Colour spaces and colours. Each is an Objective-C object behind the opaque C pointer, so
// retain/release and collections work on them as on the device.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <math.h>

@interface _SimCGColorSpace : NSObject {
  int _model;
}
@property (nonatomic, assign) int model;
@end
@implementation _SimCGColorSpace
@synthesize model = _model;
@end

@interface _SimCGColor : NSObject {
  CGFloat _components[5];
  size_t _count;
  _SimCGColorSpace *_space;
}
@property (nonatomic, retain) _SimCGColorSpace *space;
@property (nonatomic, assign) size_t count;
- (CGFloat *)components;
@end
@implementation _SimCGColor
@synthesize space = _space;
@synthesize count = _count;
- (CGFloat *)components {
  return _components;
}
- (void)dealloc {
  [_space release];
  [super dealloc];
}
- (NSString *)description {
  NSMutableString *s = [NSMutableString stringWithString:@"<CGColor"];
  for (size_t i = 0; i < _count; ++i) [s appendFormat:@" %g", _components[i]];
  [s appendString:@">"];
  return s;
}
@end

extern "C" {

CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void) {
  _SimCGColorSpace *s = [[_SimCGColorSpace alloc] init];
  s.model = kCGColorSpaceModelRGB;
  return (CGColorSpaceRef)s;
}
CGColorSpaceRef CGColorSpaceCreateDeviceGray(void) {
  _SimCGColorSpace *s = [[_SimCGColorSpace alloc] init];
  s.model = kCGColorSpaceModelMonochrome;
  return (CGColorSpaceRef)s;
}
CGColorSpaceRef CGColorSpaceRetain(CGColorSpaceRef space) {
  [(id)space retain];
  return space;
}
void CGColorSpaceRelease(CGColorSpaceRef space) { [(id)space release]; }
CGColorSpaceModel CGColorSpaceGetModel(CGColorSpaceRef space) {
  return space ? (CGColorSpaceModel)((_SimCGColorSpace *)space).model : kCGColorSpaceModelUnknown;
}
size_t CGColorSpaceGetNumberOfComponents(CGColorSpaceRef space) {
  return CGColorSpaceGetModel(space) == kCGColorSpaceModelMonochrome ? 1 : 3;
}

CGColorRef CGColorCreate(CGColorSpaceRef space, const CGFloat *components) {
  if (!space || !components) return NULL;
  _SimCGColor *c = [[_SimCGColor alloc] init];
  c.space = (_SimCGColorSpace *)space;
  size_t n = CGColorSpaceGetNumberOfComponents(space) + 1;
  c.count = n;
  for (size_t i = 0; i < n; ++i) [c components][i] = components[i];
  return (CGColorRef)c;
}
CGColorRef CGColorCreateCopy(CGColorRef color) {
  if (!color) return NULL;
  _SimCGColor *c = (_SimCGColor *)color;
  return CGColorCreate((CGColorSpaceRef)c.space, [c components]);
}
CGColorRef CGColorCreateCopyWithAlpha(CGColorRef color, CGFloat alpha) {
  if (!color) return NULL;
  _SimCGColor *c = (_SimCGColor *)CGColorCreateCopy(color);
  [c components][c.count - 1] = alpha;
  return (CGColorRef)c;
}
CGColorRef CGColorRetain(CGColorRef color) {
  [(id)color retain];
  return color;
}
void CGColorRelease(CGColorRef color) { [(id)color release]; }
bool CGColorEqualToColor(CGColorRef a, CGColorRef b) {
  if (a == b) return true;
  if (!a || !b) return false;
  _SimCGColor *x = (_SimCGColor *)a, *y = (_SimCGColor *)b;
  if (x.count != y.count || x.space.model != y.space.model) return false;
  for (size_t i = 0; i < x.count; ++i)
    if (fabs([x components][i] - [y components][i]) > 1e-9) return false;
  return true;
}
size_t CGColorGetNumberOfComponents(CGColorRef color) { return color ? ((_SimCGColor *)color).count : 0; }
const CGFloat *CGColorGetComponents(CGColorRef color) { return color ? [(_SimCGColor *)color components] : NULL; }
CGFloat CGColorGetAlpha(CGColorRef color) {
  if (!color) return 0;
  _SimCGColor *c = (_SimCGColor *)color;
  return [c components][c.count - 1];
}
CGColorSpaceRef CGColorGetColorSpace(CGColorRef color) {
  return color ? (CGColorSpaceRef)((_SimCGColor *)color).space : NULL;
}

}  // extern "C"
