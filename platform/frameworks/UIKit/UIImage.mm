#import "UIKitInternal.h"
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>
#include <math.h>

@implementation UIImage
@synthesize CGImage = _CGImage;
@synthesize scale = _scale;
@synthesize imageOrientation = _imageOrientation;
@synthesize renderingMode = _renderingMode;
@synthesize capInsets = _capInsets;

static CGSize pngPixelSize(NSData *data, BOOL *ok) {
  const unsigned char *b = (const unsigned char *)[data bytes];
  *ok = NO;
  if (data.length >= 24 && b[0] == 0x89 && b[1] == 'P' && b[2] == 'N' && b[3] == 'G') {
    unsigned w = (b[16] << 24) | (b[17] << 16) | (b[18] << 8) | b[19];
    unsigned h = (b[20] << 24) | (b[21] << 16) | (b[22] << 8) | b[23];
    *ok = YES;
    return CGSizeMake(w, h);
  }
  return CGSizeZero;
}

static CGFloat scaleFromFileName(NSString *path) {
  NSString *base = [[path lastPathComponent] stringByDeletingPathExtension];
  if ([base hasSuffix:@"@3x"]) return 3;
  if ([base hasSuffix:@"@2x"]) return 2;
  return 1;
}

- (instancetype)_simInitWithCGImage:(CGImageRef)image scale:(CGFloat)scale {
  if (!image) {
    [self release];
    return nil;
  }
  if ((self = [super init])) {
    _CGImage = CGImageRetain(image);
    _scale = scale > 0 ? scale : 1;
  }
  return self;
}
- (instancetype)_simInitWithData:(NSData *)data scale:(CGFloat)scale description:(NSString *)description {
  BOOL ok;
  CGSize px = pngPixelSize(data, &ok);
  if (!data.length) {
    [self release];
    return nil;
  }
  if (!ok) px = CGSizeMake(1, 1);  // not a PNG: some other bitmap the stand-in cannot measure
  CGImageRef image = SimCGImageCreate((size_t)px.width, (size_t)px.height, description, nil);
  if (ok) SimCGImageSetSource(image, nil, data);  // its pixels, decoded when first drawn
  self = [self _simInitWithCGImage:image scale:scale];
  CGImageRelease(image);
  return self;
}
- (instancetype)initWithContentsOfFile:(NSString *)path {
  NSData *data = [path isKindOfClass:[NSString class]] ? [NSData dataWithContentsOfFile:path] : nil;
  return [self _simInitWithData:data scale:scaleFromFileName(path) description:[path lastPathComponent]];
}
- (instancetype)initWithData:(NSData *)data {
  return [self initWithData:data scale:1];
}
- (instancetype)initWithData:(NSData *)data scale:(CGFloat)scale {
  return [self _simInitWithData:data scale:scale description:@"data"];
}
- (instancetype)initWithCGImage:(CGImageRef)cgImage {
  return [self _simInitWithCGImage:cgImage scale:1];
}
- (instancetype)initWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)o {
  if ((self = [self _simInitWithCGImage:cgImage scale:scale])) _imageOrientation = o;
  return self;
}
- (void)dealloc {
  CGImageRelease(_CGImage);
  [super dealloc];
}
+ (UIImage *)imageWithContentsOfFile:(NSString *)path {
  return [[[self alloc] initWithContentsOfFile:path] autorelease];
}
+ (UIImage *)imageWithData:(NSData *)data {
  return [[[self alloc] initWithData:data] autorelease];
}
+ (UIImage *)imageWithData:(NSData *)data scale:(CGFloat)scale {
  return [[[self alloc] initWithData:data scale:scale] autorelease];
}
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage {
  return [[[self alloc] initWithCGImage:cgImage] autorelease];
}
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)o {
  return [[[self alloc] initWithCGImage:cgImage scale:scale orientation:o] autorelease];
}

#pragma mark - Named images

+ (UIImage *)imageNamed:(NSString *)name {
  return [self imageNamed:name inBundle:[NSBundle mainBundle] compatibleWithTraitCollection:nil];
}
// Private on iOS since long before the public three-argument form; the same lookup.
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle {
  return [self imageNamed:name inBundle:bundle compatibleWithTraitCollection:nil];
}
+ (UIImage *)imageNamed:(NSString *)name
                         inBundle:(NSBundle *)bundle
    compatibleWithTraitCollection:(UITraitCollection *)traitCollection {
  if (![name isKindOfClass:[NSString class]] || !name.length) return nil;
  if (!bundle) bundle = [NSBundle mainBundle];
  NSString *dir = [bundle resourcePath];
  NSString *root = [bundle bundlePath];
  NSString *ext = [name pathExtension];
  NSString *base = ext.length ? [name stringByDeletingPathExtension] : name;
  if (!ext.length) ext = @"png";
  int screen = (int)SimUIKitScreenScale();
  NSMutableArray *candidates = [NSMutableArray array];
  [candidates addObject:[NSString stringWithFormat:@"%@@%dx.%@", base, screen, ext]];
  for (int s = 3; s >= 2; --s)
    if (s != screen) [candidates addObject:[NSString stringWithFormat:@"%@@%dx.%@", base, s, ext]];
  [candidates addObject:[NSString stringWithFormat:@"%@.%@", base, ext]];
  NSFileManager *fm = [NSFileManager defaultManager];
  for (NSString *file in candidates) {
    for (NSString *folder in [NSArray arrayWithObjects:dir ? dir : @"", root ? root : @"", nil]) {
      if (!folder.length) continue;
      NSString *path = [folder stringByAppendingPathComponent:file];
      if ([fm fileExistsAtPath:path]) {
        UIImage *image = [self imageWithContentsOfFile:path];
        if (image) return image;
      }
    }
  }
  return nil;
}

#pragma mark - Size and variants

- (CGSize)size {
  CGFloat s = _scale > 0 ? _scale : 1;
  CGSize px = CGSizeMake(CGImageGetWidth(_CGImage) / s, CGImageGetHeight(_CGImage) / s);
  if (_imageOrientation == UIImageOrientationLeft || _imageOrientation == UIImageOrientationRight)
    return CGSizeMake(px.height, px.width);
  return px;
}
- (UIImage *)_simCopy {
  UIImage *copy = [[[UIImage alloc] initWithCGImage:_CGImage scale:_scale orientation:_imageOrientation] autorelease];
  copy->_renderingMode = _renderingMode;
  copy->_capInsets = _capInsets;
  return copy;
}
- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)renderingMode {
  UIImage *copy = [self _simCopy];
  copy->_renderingMode = renderingMode;
  return copy;
}
- (UIImage *)imageWithTintColor:(UIColor *)color {
  return [self imageWithRenderingMode:UIImageRenderingModeAlwaysOriginal];
}
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets {
  UIImage *copy = [self _simCopy];
  copy->_capInsets = capInsets;
  return copy;
}
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets resizingMode:(UIImageResizingMode)resizingMode {
  return [self resizableImageWithCapInsets:capInsets];
}
- (UIImage *)stretchableImageWithLeftCapWidth:(NSInteger)l topCapHeight:(NSInteger)t {
  return [self resizableImageWithCapInsets:UIEdgeInsetsMake(t, l, t, l)];
}

#pragma mark - Drawing

- (void)drawAtPoint:(CGPoint)point {
  CGSize s = self.size;
  [self drawInRect:CGRectMake(point.x, point.y, s.width, s.height)];
}
- (void)drawInRect:(CGRect)rect {
  CGContextDrawImage(UIGraphicsGetCurrentContext(), rect, _CGImage);
}
- (void)drawInRect:(CGRect)rect blendMode:(CGBlendMode)blendMode alpha:(CGFloat)alpha {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSaveGState(c);
  CGContextSetBlendMode(c, blendMode);
  CGContextSetAlpha(c, alpha);
  CGContextDrawImage(c, rect, _CGImage);
  CGContextRestoreGState(c);
}
- (NSString *)_simDescription {
  return SimCGImageDescription(_CGImage);
}
- (NSArray *)_simDrawOperations {
  return SimCGImageOperations(_CGImage);
}
- (NSString *)description {
  CGSize s = self.size;
  return [NSString stringWithFormat:@"<UIImage %@ {%g, %g} @%gx>", [self _simDescription], s.width, s.height, _scale];
}

#pragma mark - Application icons

static CGFloat iconPoints(int format) {
  switch (format) {
    case 0:
      return 29;
    case 1:
      return 40;
    case 2:
      return 60;
    default:
      return 60;
  }
}
+ (UIImage *)_simIconNamed:(NSString *)what format:(int)format scale:(CGFloat)scale {
  if (scale <= 0) scale = SimUIKitScreenScale();
  size_t px = (size_t)(iconPoints(format) * scale);
  CGImageRef image = SimCGImageCreate(px, px, what, nil);
  UIImage *result = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return result;
}
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier
                                               format:(int)format
                                                scale:(CGFloat)scale {
  if (![bundleIdentifier isKindOfClass:[NSString class]] || !bundleIdentifier.length) return nil;
  return [self _simIconNamed:[@"appicon:" stringByAppendingString:bundleIdentifier] format:format scale:scale];
}
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format {
  if (![bundleIdentifier isKindOfClass:[NSString class]] || !bundleIdentifier.length)
    return [self _simIconNamed:@"appicon:generic" format:format scale:0];
  return [self _applicationIconImageForBundleIdentifier:bundleIdentifier format:format scale:0];
}
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed scale:(CGFloat)scale {
  NSString *what = [NSString stringWithFormat:@"icon(%@)", [self _simDescription]];
  UIImage *icon = [UIImage _simIconNamed:what format:format scale:scale];
  SimCGImageSetIconSource([icon CGImage], _CGImage);
  return icon;
}
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed {
  return [self _applicationIconImageForFormat:format precomposed:precomposed scale:0];
}
@end

NSData *UIImagePNGRepresentation(UIImage *image) {
  if (!image) return nil;
  unsigned char header[24] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  size_t w = CGImageGetWidth(image.CGImage), h = CGImageGetHeight(image.CGImage);
  for (int i = 0; i < 4; ++i) {
    header[16 + i] = (unsigned char)(w >> (24 - 8 * i));
    header[20 + i] = (unsigned char)(h >> (24 - 8 * i));
  }
  return [NSData dataWithBytes:header length:sizeof header];
}
NSData *UIImageJPEGRepresentation(UIImage *image, CGFloat quality) { return UIImagePNGRepresentation(image); }
