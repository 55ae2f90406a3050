// The row of PassKit's three fingerprint glyphs (black, blue, red).
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinGlyphIconCell : PSTableCell {
  UIView *_container;
  UITapGestureRecognizer *_tapRecognizer;
  UIView *_leftView;
  UIView *_middleView;
  UIView *_rightView;
  PKGlyphView *_blackView;
  PKGlyphView *_blueView;
  PKGlyphView *_redView;
}
@property (nonatomic, readonly) PKGlyphView *blackView;
@property (nonatomic, readonly) PKGlyphView *blueView;
@property (nonatomic, readonly) PKGlyphView *redView;
// The last glyph cell made (never makes one).
+ (instancetype)sharedInstance;
- (void)tappedView:(UITapGestureRecognizer *)recognizer;
- (void)updateGlyphsForIconSelection;
@end

#ifdef __cplusplus
extern "C" {
#endif
// The colour of a hexadecimal "rrggbb" string, read as NSScanner's scanHexInt: reads it;
// black when unreadable (a leading "#" included).
UIColor *colorFromHexString(NSString *hexString);
#ifdef __cplusplus
}
#endif
