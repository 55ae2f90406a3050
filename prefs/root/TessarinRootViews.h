// The root page's custom cells and views, named by class in its rows.
#pragma once
#import "core/PlatformAPI.h"

// The status row above the plist rows: protection is off (grace period or trusted network).
@interface TessarinTrustedWiFiWarningCell : PSTableCell
@end

// The one-line credit at the bottom of the root page.
@interface TessarinCreditsCell : PSTableCell
@end

// A subtitled switch with the product's red on-tint.
@interface TessarinColorCell : PSSubtitleSwitchTableCell
@end

// A switch whose icon dims while it is off.
@interface TessarinSwitchCell : PSSwitchTableCell
@end

// A group footer with a link-coloured label; a touch performs the footer's button action.
@interface TessarinLabelView : UIView <PSHeaderFooterView> {
  PSSpecifier *_specifier;
  UILabel *_label;
}
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, retain) UILabel *label;
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier;
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
@end

// A dashed grey outline around its bounds, drawn by its shape layer.
@interface TessarinHightlightView : UIView
@end
