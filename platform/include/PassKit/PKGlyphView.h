/*
 * PassKit's fingerprint glyph (private on the device).
 *
 * The stand-in PassKit is a framework bundle of its own, laid into every device tree at
 * /System/Library/Frameworks/PassKit.framework (not on devices whose profile lists
 * "PassKit" under "absentFrameworks"). Like the device's, it is not linked by anyone: load
 * the bundle by path, then look the class up by name.
 *
 * A glyph is made with a style; its palette gives a primary and a secondary colour per
 * style and mode. Changing state recolours it from its own style's palette through
 * _setPrimaryColor:animated: and _setSecondaryColor:animated:, as the device's does, and
 * runs the completion handler on the main run loop after the transition time (at once for
 * an unanimated change), completions in the order asked for. The public colour setters
 * go through the underscore ones, not animated.
 */
#ifndef PASSKIT_PKGLYPHVIEW_H
#define PASSKIT_PKGLYPHVIEW_H

#import <UIKit/UIKit.h>

@interface PKGlyphView : UIView {
  NSInteger _style;
  NSInteger _state;
  UIColor *_primaryColor;
  UIColor *_secondaryColor;
  NSMutableArray *_simStates;
  NSMutableArray *_simColorChanges;
}
- (instancetype)initWithStyle:(NSInteger)style;
@property (nonatomic, readonly) NSInteger style;
@property (nonatomic, readonly) NSInteger state;
- (void)setState:(NSInteger)state animated:(BOOL)animated completionHandler:(void (^)(void))completion;
@property (nonatomic, copy) UIColor *primaryColor;
@property (nonatomic, copy) UIColor *secondaryColor;
- (void)_setPrimaryColor:(UIColor *)color animated:(BOOL)animated;
- (void)_setSecondaryColor:(UIColor *)color animated:(BOOL)animated;
- (UIColor *)_primaryColorForStyle:(NSInteger)style mode:(NSInteger)mode;
- (UIColor *)_secondaryColorForStyle:(NSInteger)style mode:(NSInteger)mode;
@end

#endif
