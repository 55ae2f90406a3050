#import "UIKitInternal.h"

@implementation UIImageView
@synthesize highlightedImage = _highlightedImage;
@synthesize highlighted = _highlighted;
@synthesize animationImages = _animationImages;
@synthesize animationDuration = _animationDuration;
@synthesize animationRepeatCount = _animationRepeatCount;
@synthesize animating = _animating;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) self.userInteractionEnabled = NO;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image {
  CGSize s = image ? image.size : CGSizeZero;
  if ((self = [self initWithFrame:CGRectMake(0, 0, s.width, s.height)])) self.image = image;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image highlightedImage:(UIImage *)highlightedImage {
  if ((self = [self initWithImage:image])) self.highlightedImage = highlightedImage;
  return self;
}
- (void)dealloc {
  [_image release];
  [_highlightedImage release];
  [_animationImages release];
  [super dealloc];
}
- (UIImage *)image {
  return _image;
}
- (void)setImage:(UIImage *)image {
  if (image == _image) return;
  [image retain];
  [_image release];
  _image = image;
  self.layer.contents = (id)image.CGImage;
}
- (CGSize)sizeThatFits:(CGSize)size {
  return _image ? _image.size : CGSizeZero;
}
- (CGSize)intrinsicContentSize {
  return _image ? _image.size : CGSizeMake(UIViewNoIntrinsicMetric, UIViewNoIntrinsicMetric);
}
- (void)startAnimating {
  _animating = _animationImages.count > 0;
}
- (void)stopAnimating {
  _animating = NO;
}
@end
