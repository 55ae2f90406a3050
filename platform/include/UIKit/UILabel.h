#ifndef UIKIT_UILABEL_H
#define UIKIT_UILABEL_H

#import <UIKit/UIView.h>
#import <UIKit/NSText.h>

@class UIFont;
@class UIColor;

@interface UILabel : UIView {
  NSString *_text;
  NSAttributedString *_attributedText;
  UIFont *_font;
  UIColor *_textColor;
  UIColor *_highlightedTextColor;
  UIColor *_shadowColor;
  CGSize _shadowOffset;
  NSTextAlignment _textAlignment;
  NSLineBreakMode _lineBreakMode;
  NSInteger _numberOfLines;
  BOOL _enabled;
  BOOL _highlighted;
  BOOL _adjustsFontSizeToFitWidth;
  CGFloat _minimumScaleFactor;
  CGFloat _preferredMaxLayoutWidth;
}
@property (nonatomic, copy) NSString *text;
@property (nonatomic, copy) NSAttributedString *attributedText;
/* System font of 17 points by default. */
@property (nonatomic, retain) UIFont *font;
/* Black (the label colour) by default. */
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic, retain) UIColor *highlightedTextColor;
@property (nonatomic, retain) UIColor *shadowColor;
@property (nonatomic) CGSize shadowOffset;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic) NSLineBreakMode lineBreakMode;
@property (nonatomic) NSInteger numberOfLines;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@property (nonatomic) CGFloat minimumScaleFactor;
@property (nonatomic) CGFloat preferredMaxLayoutWidth;
- (CGRect)textRectForBounds:(CGRect)bounds limitedToNumberOfLines:(NSInteger)numberOfLines;
- (void)drawTextInRect:(CGRect)rect;
@end

#endif
