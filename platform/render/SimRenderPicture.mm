// A picture of the screen: its pixels, and what was drawn where (texts, rows, controls).
#include <math.h>

#import "SimRenderInternal.h"

@implementation SimDrawnText
@synthesize text = _text;
@synthesize frame = _frame;
@synthesize clip = _clip;
@synthesize truncated = _truncated;
@synthesize row = _row;
- (void)dealloc {
  [_text release];
  [super dealloc];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"\"%@\" at %@%@", _text, NSStringFromCGRect(_frame), _truncated ? @" (cut)" : @""];
}
@end

@implementation SimDrawnRow
@synthesize cell = _cell;
@synthesize title = _title;
@synthesize frame = _frame;
@synthesize visibleFrame = _visibleFrame;
- (void)dealloc {
  [_cell release];
  [_title release];
  [super dealloc];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"row \"%@\" at %@", _title, NSStringFromCGRect(_frame)];
}
@end

@implementation SimDrawnControl
@synthesize view = _view;
@synthesize kind = _kind;
@synthesize frame = _frame;
- (void)dealloc {
  [_view release];
  [_kind release];
  [super dealloc];
}
@end

@implementation SimScreenPicture
@synthesize size = _size;
@synthesize scale = _scale;
@synthesize texts = _texts;
@synthesize rows = _rows;
@synthesize controls = _controls;
@synthesize title = _title;

- (instancetype)_simInitWithSurface:(cairo_surface_t *)surface size:(CGSize)size scale:(CGFloat)scale {
  if ((self = [super init])) {
    _surface = cairo_surface_reference(surface);
    _size = size;
    _scale = scale;
  }
  return self;
}

- (void)dealloc {
  if (_surface != NULL) cairo_surface_destroy(_surface);
  [_texts release];
  [_rows release];
  [_controls release];
  [_title release];
  [super dealloc];
}

- (cairo_surface_t *)surface {
  return _surface;
}

- (size_t)pixelWidth {
  return _surface != NULL ? (size_t)cairo_image_surface_get_width(_surface) : 0;
}

- (size_t)pixelHeight {
  return _surface != NULL ? (size_t)cairo_image_surface_get_height(_surface) : 0;
}

- (void)getRed:(int *)red green:(int *)green blue:(int *)blue alpha:(int *)alpha atPoint:(CGPoint)point {
  int r = 0, g = 0, b = 0, a = 0;
  long x = lround(floor(point.x * _scale)), y = lround(floor(point.y * _scale));
  if (_surface != NULL && x >= 0 && y >= 0 && x < (long)[self pixelWidth] && y < (long)[self pixelHeight]) {
    cairo_surface_flush(_surface);
    const unsigned char *data = cairo_image_surface_get_data(_surface);
    int stride = cairo_image_surface_get_stride(_surface);
    uint32_t pixel = *(const uint32_t *)(data + y * stride + x * 4);
    a = (int)(pixel >> 24);
    if (a > 0) {
      r = (int)((((pixel >> 16) & 0xff) * 255 + a / 2) / a);
      g = (int)((((pixel >> 8) & 0xff) * 255 + a / 2) / a);
      b = (int)(((pixel & 0xff) * 255 + a / 2) / a);
    }
  }
  if (red) *red = r;
  if (green) *green = g;
  if (blue) *blue = b;
  if (alpha) *alpha = a;
}

- (BOOL)writePNGToFile:(NSString *)path scale:(CGFloat)scale {
  if (_surface == NULL || [path length] == 0) return NO;
  // The screen is opaque: written without alpha, which keeps the file small.
  if (scale <= 0) scale = _scale;
  int w = (int)llround(_size.width * scale), h = (int)llround(_size.height * scale);
  cairo_surface_t *out = cairo_image_surface_create(CAIRO_FORMAT_RGB24, w, h);
  cairo_t *cr = cairo_create(out);
  if (fabs(scale - _scale) > 0.001) cairo_scale(cr, scale / _scale, scale / _scale);
  cairo_set_source_surface(cr, _surface, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_GOOD);
  cairo_paint(cr);
  cairo_destroy(cr);
  cairo_status_t status = cairo_surface_write_to_png(out, [path fileSystemRepresentation]);
  cairo_surface_destroy(out);
  return status == CAIRO_STATUS_SUCCESS;
}
@end
