#ifndef UIKIT_UIWINDOW_H
#define UIKIT_UIWINDOW_H

#import <UIKit/UIView.h>

@class UIViewController;
@class UIScreen;

typedef CGFloat UIWindowLevel;
UIKIT_EXTERN const UIWindowLevel UIWindowLevelNormal;
UIKIT_EXTERN const UIWindowLevel UIWindowLevelAlert;
UIKIT_EXTERN const UIWindowLevel UIWindowLevelStatusBar;

@interface UIWindow : UIView {
  UIViewController *_rootViewController;
  UIWindowLevel _windowLevel;
  BOOL _keyWindow;
}
@property (nonatomic, retain) UIViewController *rootViewController;
@property (nonatomic) UIWindowLevel windowLevel;
@property (nonatomic, readonly, getter=isKeyWindow) BOOL keyWindow;
@property (nonatomic, retain) UIScreen *screen;
- (void)makeKeyAndVisible;
- (void)makeKeyWindow;
- (void)becomeKeyWindow;
- (void)resignKeyWindow;
@end

#endif
