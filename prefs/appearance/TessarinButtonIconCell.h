// The row of the three animated unlock buttons (white, black, golden).
#pragma once
#import "core/PlatformAPI.h"
#import "appearance/TessarinButtonView.h"

@interface TessarinButtonIconCell : PSTableCell {
  UIView *_container;
  UITapGestureRecognizer *_tapRecognizer;
  UIView *_leftView;
  UIView *_middleView;
  UIView *_rightView;
  TessarinButtonView *_whiteButton;
  TessarinButtonView *_blackButton;
  TessarinButtonView *_goldenButton;
}
@property (nonatomic, retain) TessarinButtonView *whiteButton;
@property (nonatomic, retain) TessarinButtonView *blackButton;
@property (nonatomic, retain) TessarinButtonView *goldenButton;
- (void)tappedView:(UITapGestureRecognizer *)recognizer;
- (void)updateIconsForGlyphSelection;
@end
