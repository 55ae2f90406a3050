#import "UIKitInternal.h"

const UIWindowLevel UIWindowLevelNormal = 0;
const UIWindowLevel UIWindowLevelAlert = 2000;
const UIWindowLevel UIWindowLevelStatusBar = 1000;

@implementation UIWindow
@synthesize windowLevel = _windowLevel;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) SimUIKitRegisterWindow(self);
  return self;
}
- (instancetype)init {
  return [self initWithFrame:[UIScreen mainScreen].bounds];
}
- (void)dealloc {
  [_rootViewController release];
  [super dealloc];
}
- (UIScreen *)screen {
  return [UIScreen mainScreen];
}
- (void)setScreen:(UIScreen *)screen {
}
- (UIViewController *)rootViewController {
  return _rootViewController;
}
- (void)setRootViewController:(UIViewController *)controller {
  if (controller == _rootViewController) return;
  UIViewController *old = _rootViewController;
  BOOL visible = !self.hidden && _keyWindow;
  if (old) {
    if (visible) [old _simBeginAppearance:NO animated:NO];
    if ([old isViewLoaded]) [old.view removeFromSuperview];
    if (visible) [old _simEndAppearance:NO animated:NO];
  }
  _rootViewController = [controller retain];
  if (controller) {
    UIView *v = controller.view;
    v.frame = self.bounds;
    v.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
    if (visible) [controller _simBeginAppearance:YES animated:NO];
    [self addSubview:v];
    if (visible) [controller _simEndAppearance:YES animated:NO];
  }
  [old release];
}
- (BOOL)isKeyWindow {
  return _keyWindow;
}
- (void)makeKeyWindow {
  SimUIKitSetKeyWindow(self);
}
- (void)becomeKeyWindow {
  _keyWindow = YES;
}
- (void)resignKeyWindow {
  _keyWindow = NO;
}
- (void)makeKeyAndVisible {
  BOOL wasVisible = _keyWindow && !self.hidden;
  self.hidden = NO;
  [self makeKeyWindow];
  if (!wasVisible && _rootViewController && ![_rootViewController _simIsAppeared]) {
    [_rootViewController _simBeginAppearance:YES animated:NO];
    [_rootViewController _simEndAppearance:YES animated:NO];
  }
}
- (UIResponder *)nextResponder {
  return [UIApplication sharedApplication];
}
- (UIWindow *)window {
  return self;
}
@end
