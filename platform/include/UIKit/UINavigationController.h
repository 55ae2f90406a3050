#ifndef UIKIT_UINAVIGATIONCONTROLLER_H
#define UIKIT_UINAVIGATIONCONTROLLER_H

#import <UIKit/UIViewController.h>
#import <UIKit/UINavigationBar.h>

/* A navigation stack. Its child controllers are its stack: addChildViewController: pushes
   (so the first child added becomes the root), push and pop change viewControllers at once. */
@interface UINavigationController : UIViewController {
  UINavigationBar *_navigationBar;
  BOOL _navigationBarHidden;
  BOOL _toolbarHidden;
  id _navigationDelegate;
}
- (instancetype)initWithRootViewController:(UIViewController *)rootViewController;
- (instancetype)initWithNavigationBarClass:(Class)navigationBarClass toolbarClass:(Class)toolbarClass;
- (void)pushViewController:(UIViewController *)viewController animated:(BOOL)animated;
- (UIViewController *)popViewControllerAnimated:(BOOL)animated;
- (NSArray *)popToViewController:(UIViewController *)viewController animated:(BOOL)animated;
- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated;
@property (nonatomic, readonly) UIViewController *topViewController;
@property (nonatomic, readonly) UIViewController *visibleViewController;
@property (nonatomic, copy) NSArray *viewControllers;
- (void)setViewControllers:(NSArray *)viewControllers animated:(BOOL)animated;
@property (nonatomic, getter=isNavigationBarHidden) BOOL navigationBarHidden;
- (void)setNavigationBarHidden:(BOOL)hidden animated:(BOOL)animated;
@property (nonatomic, readonly) UINavigationBar *navigationBar;
@property (nonatomic, getter=isToolbarHidden) BOOL toolbarHidden;
- (void)setToolbarHidden:(BOOL)hidden animated:(BOOL)animated;
@property (nonatomic, assign) id delegate;
@end

#endif
