#ifndef UIKIT_UIIMAGE_H
#define UIKIT_UIIMAGE_H

#import <UIKit/UIKitDefines.h>
#import <UIKit/UIGeometry.h>

@class UITraitCollection;
@class UIColor;

typedef NS_ENUM(NSInteger, UIImageOrientation) {
  UIImageOrientationUp,
  UIImageOrientationDown,
  UIImageOrientationLeft,
  UIImageOrientationRight,
  UIImageOrientationUpMirrored,
  UIImageOrientationDownMirrored,
  UIImageOrientationLeftMirrored,
  UIImageOrientationRightMirrored,
};

typedef NS_ENUM(NSInteger, UIImageRenderingMode) {
  UIImageRenderingModeAutomatic = 0,
  UIImageRenderingModeAlwaysOriginal = 1,
  UIImageRenderingModeAlwaysTemplate = 2,
};

typedef NS_ENUM(NSInteger, UIImageResizingMode) {
  UIImageResizingModeTile = 0,
  UIImageResizingModeStretch = 1,
};

/* An image: its size in points, its scale and a bitmap standing for its pixels. Images
   loaded from files know their file; images drawn in an image context keep the drawing
   operations that made them. */
@interface UIImage : NSObject {
  CGImageRef _CGImage;
  CGFloat _scale;
  UIImageOrientation _imageOrientation;
  UIImageRenderingMode _renderingMode;
  UIEdgeInsets _capInsets;
}
+ (UIImage *)imageNamed:(NSString *)name;
+ (UIImage *)imageNamed:(NSString *)name
                         inBundle:(NSBundle *)bundle
    compatibleWithTraitCollection:(UITraitCollection *)traitCollection;
+ (UIImage *)imageWithContentsOfFile:(NSString *)path;
+ (UIImage *)imageWithData:(NSData *)data;
+ (UIImage *)imageWithData:(NSData *)data scale:(CGFloat)scale;
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage;
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)orientation;
- (instancetype)initWithContentsOfFile:(NSString *)path;
- (instancetype)initWithData:(NSData *)data;
- (instancetype)initWithData:(NSData *)data scale:(CGFloat)scale;
- (instancetype)initWithCGImage:(CGImageRef)cgImage;
- (instancetype)initWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)orientation;

@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGImageRef CGImage;
@property (nonatomic, readonly) UIImageOrientation imageOrientation;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) UIImageRenderingMode renderingMode;
@property (nonatomic, readonly) UIEdgeInsets capInsets;

- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)renderingMode;
- (UIImage *)imageWithTintColor:(UIColor *)color;
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets;
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets resizingMode:(UIImageResizingMode)resizingMode;
- (UIImage *)stretchableImageWithLeftCapWidth:(NSInteger)leftCapWidth topCapHeight:(NSInteger)topCapHeight;

/* Drawing into the current image context is recorded there. */
- (void)drawAtPoint:(CGPoint)point;
- (void)drawInRect:(CGRect)rect;
- (void)drawInRect:(CGRect)rect blendMode:(CGBlendMode)blendMode alpha:(CGFloat)alpha;
@end

UIKIT_EXTERN NSData *UIImagePNGRepresentation(UIImage *image);
UIKIT_EXTERN NSData *UIImageJPEGRepresentation(UIImage *image, CGFloat compressionQuality);

#endif
