// A group footer with a link-coloured label; a touch performs the footer's button action.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinLabelView : UIView <PSHeaderFooterView> {
  PSSpecifier *_specifier;
  UILabel *_label;
}
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, retain) UILabel *label;
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
@end
