#ifndef UIKIT_UIBUTTON_H
#define UIKIT_UIBUTTON_H

#import <UIKit/UIControl.h>

@class UILabel;
@class UIImageView;
@class UIImage;
@class UIColor;

typedef NS_ENUM(NSInteger, UIButtonType) {
  UIButtonTypeCustom = 0,
  UIButtonTypeSystem = 1,
  UIButtonTypeDetailDisclosure = 2,
  UIButtonTypeInfoLight = 3,
  UIButtonTypeInfoDark = 4,
  UIButtonTypeContactAdd = 5,
  UIButtonTypeClose = 7,
  UIButtonTypeRoundedRect = UIButtonTypeSystem,
};

@interface UIButton : UIControl {
  UIButtonType _buttonType;
  NSMutableDictionary *_titles;
  NSMutableDictionary *_titleColors;
  NSMutableDictionary *_images;
  NSMutableDictionary *_backgroundImages;
  UILabel *_titleLabel;
  UIImageView *_imageView;
  UIEdgeInsets _contentEdgeInsets;
  UIEdgeInsets _titleEdgeInsets;
  UIEdgeInsets _imageEdgeInsets;
  BOOL _adjustsImageWhenHighlighted;
  BOOL _showsTouchWhenHighlighted;
}
+ (instancetype)buttonWithType:(UIButtonType)buttonType;
@property (nonatomic, readonly) UIButtonType buttonType;
@property (nonatomic, readonly) UILabel *titleLabel;
@property (nonatomic, readonly) UIImageView *imageView;
@property (nonatomic, readonly) NSString *currentTitle;
@property (nonatomic, readonly) UIColor *currentTitleColor;
@property (nonatomic, readonly) UIImage *currentImage;
@property (nonatomic) UIEdgeInsets contentEdgeInsets;
@property (nonatomic) UIEdgeInsets titleEdgeInsets;
@property (nonatomic) UIEdgeInsets imageEdgeInsets;
@property (nonatomic) BOOL adjustsImageWhenHighlighted;
@property (nonatomic) BOOL showsTouchWhenHighlighted;
- (void)setTitle:(NSString *)title forState:(UIControlState)state;
- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state;
- (void)setImage:(UIImage *)image forState:(UIControlState)state;
- (void)setBackgroundImage:(UIImage *)image forState:(UIControlState)state;
- (void)setAttributedTitle:(NSAttributedString *)title forState:(UIControlState)state;
- (NSString *)titleForState:(UIControlState)state;
- (UIColor *)titleColorForState:(UIControlState)state;
- (UIImage *)imageForState:(UIControlState)state;
- (UIImage *)backgroundImageForState:(UIControlState)state;
@end

#endif
