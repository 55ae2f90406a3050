// Images: their pixel size and, for tests, a description (such as the file name) and the
// drawing that made them.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <math.h>
#include <string.h>

@interface _SimCGImage : NSObject {
  size_t _width;
  size_t _height;
  NSString *_info;
  NSArray *_operations;
  // Its pixels, decoded from a file or data, or made by a context, when first asked for.
  cairo_surface_t *_pixels;
  NSString *_file;
  NSData *_data;
  CGImageRef _iconSource;
  BOOL _decoded;
}
@property (nonatomic, assign) size_t width;
@property (nonatomic, assign) size_t height;
@property (nonatomic, copy) NSString *info;
@property (nonatomic, copy) NSArray *operations;
@property (nonatomic, copy) NSString *file;
@property (nonatomic, retain) NSData *data;
@property (nonatomic, assign) CGImageRef iconSource;    // retained by its setter
@property (nonatomic, assign) cairo_surface_t *pixels;  // referenced by its setter
@property (nonatomic, assign) BOOL decoded;
@end
namespace {

struct DataReader {
  const unsigned char *bytes;
  size_t length;
  size_t at;
};

cairo_status_t readData(void *closure, unsigned char *out, unsigned int length) {
  DataReader *reader = (DataReader *)closure;
  if (reader->at + length > reader->length) return CAIRO_STATUS_READ_ERROR;
  memcpy(out, reader->bytes + reader->at, length);
  reader->at += length;
  return CAIRO_STATUS_SUCCESS;
}

cairo_surface_t *usable(cairo_surface_t *surface) {
  if (surface != NULL && cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS) return surface;
  if (surface != NULL) cairo_surface_destroy(surface);
  return NULL;
}

// A source picture scaled into an icon's square, its corners rounded as icons are shown.
cairo_surface_t *iconFrom(cairo_surface_t *source, size_t width, size_t height) {
  if (source == NULL || width == 0 || height == 0 || width > 4096 || height > 4096) return NULL;
  cairo_surface_t *icon = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, (int)width, (int)height);
  cairo_t *cr = cairo_create(icon);
  double w = (double)width, h = (double)height, r = fmin(w, h) * 0.225;
  cairo_new_sub_path(cr);
  cairo_arc(cr, w - r, r, r, -M_PI / 2, 0);
  cairo_arc(cr, w - r, h - r, r, 0, M_PI / 2);
  cairo_arc(cr, r, h - r, r, M_PI / 2, M_PI);
  cairo_arc(cr, r, r, r, M_PI, 3 * M_PI / 2);
  cairo_close_path(cr);
  cairo_clip(cr);
  cairo_scale(cr, w / cairo_image_surface_get_width(source), h / cairo_image_surface_get_height(source));
  cairo_set_source_surface(cr, source, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr), CAIRO_FILTER_GOOD);
  cairo_paint(cr);
  cairo_destroy(cr);
  return icon;
}

}  // namespace

@implementation _SimCGImage
@synthesize width = _width;
@synthesize height = _height;
@synthesize info = _info;
@synthesize operations = _operations;
@synthesize file = _file;
@synthesize data = _data;
@synthesize decoded = _decoded;
- (void)dealloc {
  [_info release];
  [_operations release];
  if (_pixels != NULL) cairo_surface_destroy(_pixels);
  [_file release];
  [_data release];
  CGImageRelease(_iconSource);
  [super dealloc];
}
- (CGImageRef)iconSource {
  return _iconSource;
}
- (void)setIconSource:(CGImageRef)source {
  CGImageRetain(source);
  CGImageRelease(_iconSource);
  _iconSource = source;
}
- (void)setPixels:(cairo_surface_t *)pixels {
  if (pixels != NULL) cairo_surface_reference(pixels);
  if (_pixels != NULL) cairo_surface_destroy(_pixels);
  _pixels = pixels;
  _decoded = YES;
}
- (cairo_surface_t *)pixels {
  if (!_decoded) {
    _decoded = YES;
    _pixels = [self decode];
  }
  return _pixels;
}
- (cairo_surface_t *)decode {
  if (_file != nil) return usable(cairo_image_surface_create_from_png([_file fileSystemRepresentation]));
  if (_data != nil) {
    DataReader reader = {(const unsigned char *)[_data bytes], [_data length], 0};
    return usable(cairo_image_surface_create_from_png_stream(readData, &reader));
  }
  if (_iconSource != NULL) return iconFrom(SimCGImageSurface(_iconSource), _width, _height);
  // Pictures the stand-in knows only by what they show (an application's icon, a Settings
  // pane's): a coloured square of their own with the name's first letter.
  if ([_info hasPrefix:@"appicon:"] || [_info hasPrefix:@"settings:"])
    return SimCGCreateNamedPicture([_info substringFromIndex:[_info rangeOfString:@":"].location + 1], _width, _height);
  return NULL;
}
@end

extern "C" {

CGImageRef SimCGImageCreate(size_t width, size_t height, NSString *description, NSArray *operations) {
  _SimCGImage *image = [[_SimCGImage alloc] init];
  image.width = width;
  image.height = height;
  image.info = description;
  image.operations = operations;
  return (CGImageRef)image;
}
CGImageRef SimCGImageCreateWithSurface(cairo_surface_t *surface, NSString *description, NSArray *operations) {
  if (surface == NULL) return SimCGImageCreate(0, 0, description, operations);
  _SimCGImage *image =
      (_SimCGImage *)SimCGImageCreate((size_t)cairo_image_surface_get_width(surface),
                                      (size_t)cairo_image_surface_get_height(surface), description, operations);
  [image setPixels:surface];
  return (CGImageRef)image;
}
void SimCGImageSetSource(CGImageRef image, NSString *file, NSData *data) {
  if (image != NULL) {
    [(_SimCGImage *)image setFile:file];
    [(_SimCGImage *)image setData:data];
  }
}
void SimCGImageSetIconSource(CGImageRef icon, CGImageRef source) {
  if (icon != NULL && source != NULL) [(_SimCGImage *)icon setIconSource:source];
}
cairo_surface_t *SimCGImageSurface(CGImageRef image) { return image != NULL ? [(_SimCGImage *)image pixels] : NULL; }
NSString *SimCGImageDescription(CGImageRef image) { return image ? ((_SimCGImage *)image).info : nil; }
NSArray *SimCGImageOperations(CGImageRef image) { return image ? ((_SimCGImage *)image).operations : nil; }
CGImageRef CGImageRetain(CGImageRef image) {
  [(id)image retain];
  return image;
}
void CGImageRelease(CGImageRef image) { [(id)image release]; }
size_t CGImageGetWidth(CGImageRef image) { return image ? ((_SimCGImage *)image).width : 0; }
size_t CGImageGetHeight(CGImageRef image) { return image ? ((_SimCGImage *)image).height : 0; }

}  // extern "C"
