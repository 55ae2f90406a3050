// Drawing contexts and image contexts.
#import "UIKitInternal.h"
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>
#include <math.h>

@interface _SimContextStack : NSObject {
  NSMutableArray *_contexts;
  NSMutableArray *_imageContexts;
}
@property (nonatomic, readonly) NSMutableArray *contexts;
@property (nonatomic, readonly) NSMutableArray *imageContexts;
@end
@implementation _SimContextStack
@synthesize contexts = _contexts;
@synthesize imageContexts = _imageContexts;
- (instancetype)init {
  if ((self = [super init])) {
    _contexts = [[NSMutableArray alloc] init];
    _imageContexts = [[NSMutableArray alloc] init];
  }
  return self;
}
@end

static _SimContextStack *contextStack(void) {
  static _SimContextStack *stack;
  if (!stack) stack = [[_SimContextStack alloc] init];
  return stack;
}

CGContextRef UIGraphicsGetCurrentContext(void) { return (CGContextRef)[contextStack().contexts lastObject]; }
void UIGraphicsPushContext(CGContextRef context) {
  if (context) [contextStack().contexts addObject:(id)context];
}
void UIGraphicsPopContext(void) {
  if (contextStack().contexts.count) [contextStack().contexts removeLastObject];
}
void UIRectFill(CGRect rect) { CGContextFillRect(UIGraphicsGetCurrentContext(), rect); }
void UIRectFillUsingBlendMode(CGRect rect, CGBlendMode blendMode) {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSaveGState(c);
  CGContextSetBlendMode(c, blendMode);
  CGContextFillRect(c, rect);
  CGContextRestoreGState(c);
}
void UIRectFrame(CGRect rect) { CGContextStrokeRect(UIGraphicsGetCurrentContext(), rect); }
void UIRectClip(CGRect rect) { CGContextClipToRect(UIGraphicsGetCurrentContext(), rect); }
void UIGraphicsBeginImageContext(CGSize size) { UIGraphicsBeginImageContextWithOptions(size, NO, 1); }
void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale) {
  if (scale <= 0) scale = SimUIKitScreenScale();
  CGContextRef c = SimCGContextCreate(size, scale);
  SimCGContextRecord(c, [NSString stringWithFormat:@"begin %@ scale %g%@", NSStringFromCGSize(size), scale,
                                                   opaque ? @" opaque" : @""]);
  [contextStack().imageContexts addObject:(id)c];
  UIGraphicsPushContext(c);
  CGContextRelease(c);
}
UIImage *UIGraphicsGetImageFromCurrentImageContext(void) {
  id c = [contextStack().imageContexts lastObject];
  if (!c || [contextStack().contexts lastObject] != c) return nil;
  NSArray *ops = SimCGContextOperations((CGContextRef)c);
  NSString *first = ops.count ? [ops objectAtIndex:0] : @"";
  CGSize size = CGSizeZero;
  CGFloat scale = 1;
  // The context's size and scale are on its first line.
  NSScanner *scanner = [NSScanner scannerWithString:first];
  double w = 0, h = 0, s = 1;
  [scanner scanString:@"begin {" intoString:NULL];
  [scanner scanDouble:&w];
  [scanner scanString:@"," intoString:NULL];
  [scanner scanDouble:&h];
  [scanner scanString:@"} scale" intoString:NULL];
  [scanner scanDouble:&s];
  size = CGSizeMake(w, h);
  scale = s > 0 ? s : 1;
  // The context's pixels as they are now: the image keeps them when the context draws on.
  cairo_surface_t *pixels = SimCGContextCopySurface((CGContextRef)c);
  CGImageRef image = pixels != NULL ? SimCGImageCreateWithSurface(pixels, @"drawn", ops)
                                    : SimCGImageCreate((size_t)llround(size.width * scale),
                                                       (size_t)llround(size.height * scale), @"drawn", ops);
  if (pixels != NULL) cairo_surface_destroy(pixels);
  UIImage *result = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return result;
}
void UIGraphicsEndImageContext(void) {
  id c = [contextStack().imageContexts lastObject];
  if (!c) return;
  [[c retain] autorelease];
  [contextStack().imageContexts removeLastObject];
  NSUInteger i = [contextStack().contexts indexOfObjectIdenticalTo:c];
  if (i != NSNotFound) [contextStack().contexts removeObjectAtIndex:i];
}
