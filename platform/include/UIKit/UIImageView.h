#ifndef UIKIT_UIIMAGEVIEW_H
#define UIKIT_UIIMAGEVIEW_H

#import <UIKit/UIView.h>

@class UIImage;

@interface UIImageView : UIView {
  UIImage *_image;
  UIImage *_highlightedImage;
  BOOL _highlighted;
  NSArray *_animationImages;
  NSTimeInterval _animationDuration;
  NSInteger _animationRepeatCount;
  BOOL _animating;
}
- (instancetype)initWithImage:(UIImage *)image;
- (instancetype)initWithImage:(UIImage *)image highlightedImage:(UIImage *)highlightedImage;
@property (nonatomic, retain) UIImage *image;
@property (nonatomic, retain) UIImage *highlightedImage;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic, copy) NSArray *animationImages;
@property (nonatomic) NSTimeInterval animationDuration;
@property (nonatomic) NSInteger animationRepeatCount;
- (void)startAnimating;
- (void)stopAnimating;
@property (nonatomic, readonly, getter=isAnimating) BOOL animating;
@end

#endif
