#ifndef UIKIT_UIVIEWCONTROLLER_H
#define UIKIT_UIVIEWCONTROLLER_H

#import <UIKit/UIResponder.h>
#import <UIKit/UITraitCollection.h>
#import <UIKit/UIView.h>

@class UINavigationController;
@class UINavigationItem;
@class UIStoryboard;

typedef NS_OPTIONS(NSUInteger, UIInterfaceOrientationMask) {
  UIInterfaceOrientationMaskPortrait = 1 << 1,
  UIInterfaceOrientationMaskLandscapeLeft = 1 << 4,
  UIInterfaceOrientationMaskLandscapeRight = 1 << 3,
  UIInterfaceOrientationMaskPortraitUpsideDown = 1 << 2,
  UIInterfaceOrientationMaskLandscape = (1 << 4) | (1 << 3),
  UIInterfaceOrientationMaskAll = (1 << 1) | (1 << 4) | (1 << 3) | (1 << 2),
  UIInterfaceOrientationMaskAllButUpsideDown = (1 << 1) | (1 << 4) | (1 << 3),
};

typedef NS_ENUM(NSInteger, UIInterfaceOrientation) {
  UIInterfaceOrientationUnknown = 0,
  UIInterfaceOrientationPortrait = 1,
  UIInterfaceOrientationPortraitUpsideDown = 2,
  UIInterfaceOrientationLandscapeLeft = 4,
  UIInterfaceOrientationLandscapeRight = 3,
};

typedef NS_ENUM(NSInteger, UIModalPresentationStyle) {
  UIModalPresentationFullScreen = 0,
  UIModalPresentationPageSheet,
  UIModalPresentationFormSheet,
  UIModalPresentationCurrentContext,
  UIModalPresentationCustom,
  UIModalPresentationOverFullScreen,
  UIModalPresentationOverCurrentContext,
  UIModalPresentationPopover,
  UIModalPresentationNone = -1,
  UIModalPresentationAutomatic = -2,
};

typedef NS_ENUM(NSInteger, UIModalTransitionStyle) {
  UIModalTransitionStyleCoverVertical = 0,
  UIModalTransitionStyleFlipHorizontal,
  UIModalTransitionStyleCrossDissolve,
  UIModalTransitionStylePartialCurl,
};

typedef NS_ENUM(NSInteger, UIStatusBarStyle) {
  UIStatusBarStyleDefault = 0,
  UIStatusBarStyleLightContent = 1,
  UIStatusBarStyleDarkContent = 3,
};

/* A view controller. Appearance callbacks follow the container: a window's root controller
   appears when its window becomes visible, a navigation controller's top controller when it
   is pushed or revealed, a presented controller when it is presented. "Will" callbacks come
   at once; "did" callbacks, and completions, on the main run loop when the transition ends
   (0.35 s when animated, at the next turn otherwise). */
@interface UIViewController : UIResponder <UITraitEnvironment> {
  UIView *_view;
  NSString *_title;
  UINavigationItem *_navigationItem;
  UIViewController *_parentViewController;
  NSMutableArray *_childViewControllers;
  UIViewController *_presentedViewController;
  UIViewController *_presentingViewController;
  UIModalPresentationStyle _modalPresentationStyle;
  UIModalTransitionStyle _modalTransitionStyle;
  BOOL _modalInPresentation;
  BOOL _definesPresentationContext;
  BOOL _providesPresentationContextTransitionStyle;
  BOOL _editing;
  BOOL _hidesBottomBarWhenPushed;
  BOOL _automaticallyAdjustsScrollViewInsets;
  CGSize _preferredContentSize;
  NSInteger _appearState;
  BOOL _dismissing;
  UIUserInterfaceStyle _overrideUserInterfaceStyle;
}
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil;

@property (nonatomic, retain) UIView *view;
@property (nonatomic, readonly) UIView *viewIfLoaded;
@property (nonatomic, readonly, getter=isViewLoaded) BOOL viewLoaded;
- (void)loadView;
- (void)loadViewIfNeeded;
- (void)viewDidLoad;
- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewWillLayoutSubviews;
- (void)viewDidLayoutSubviews;
- (void)didReceiveMemoryWarning;

@property (nonatomic, copy) NSString *title;
@property (nonatomic, readonly, retain) UINavigationItem *navigationItem;
@property (nonatomic, readonly, retain) UINavigationController *navigationController;
@property (nonatomic, readonly) UIViewController *parentViewController;
@property (nonatomic, readonly) NSArray *childViewControllers;
- (void)addChildViewController:(UIViewController *)childController;
- (void)removeFromParentViewController;
- (void)willMoveToParentViewController:(UIViewController *)parent;
- (void)didMoveToParentViewController:(UIViewController *)parent;
@property (nonatomic, readonly) BOOL isMovingToParentViewController;
@property (nonatomic, readonly) BOOL isMovingFromParentViewController;
@property (nonatomic, readonly) BOOL isBeingPresented;
@property (nonatomic, readonly) BOOL isBeingDismissed;

@property (nonatomic, readonly) UIViewController *presentedViewController;
@property (nonatomic, readonly) UIViewController *presentingViewController;
@property (nonatomic) UIModalPresentationStyle modalPresentationStyle;
@property (nonatomic) UIModalTransitionStyle modalTransitionStyle;
@property (nonatomic, getter=isModalInPresentation) BOOL modalInPresentation;
@property (nonatomic) BOOL definesPresentationContext;
@property (nonatomic) BOOL providesPresentationContextTransitionStyle;
- (void)presentViewController:(UIViewController *)viewControllerToPresent
                     animated:(BOOL)flag
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)flag completion:(void (^)(void))completion;
- (void)showViewController:(UIViewController *)vc sender:(id)sender;

@property (nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
- (id)editButtonItem;
@property (nonatomic) BOOL hidesBottomBarWhenPushed;
@property (nonatomic) BOOL automaticallyAdjustsScrollViewInsets;
@property (nonatomic) CGSize preferredContentSize;
@property (nonatomic) UIUserInterfaceStyle overrideUserInterfaceStyle;
@property (nonatomic, readonly) UITraitCollection *traitCollection;
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection;

- (BOOL)shouldAutorotate;
- (UIInterfaceOrientationMask)supportedInterfaceOrientations;
- (UIInterfaceOrientation)preferredInterfaceOrientationForPresentation;
- (UIStatusBarStyle)preferredStatusBarStyle;
- (BOOL)prefersStatusBarHidden;
- (void)setNeedsStatusBarAppearanceUpdate;
@end

#endif
