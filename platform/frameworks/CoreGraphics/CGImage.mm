// Images: their pixel size and, for tests, a description (such as the file name) and the
// drawing that made them.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

@interface _SimCGImage : NSObject {
  size_t _width;
  size_t _height;
  NSString *_info;
  NSArray *_operations;
}
@property(nonatomic, assign) size_t width;
@property(nonatomic, assign) size_t height;
@property(nonatomic, copy) NSString *info;
@property(nonatomic, copy) NSArray *operations;
@end
@implementation _SimCGImage
@synthesize width = _width;
@synthesize height = _height;
@synthesize info = _info;
@synthesize operations = _operations;
- (void)dealloc {
  [_info release];
  [_operations release];
  [super dealloc];
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
