#import "UIKitInternal.h"

enum { kDisappeared = 0, kAppearing = 1, kAppeared = 2, kDisappearing = 3 };

@implementation UIViewController
@synthesize modalPresentationStyle = _modalPresentationStyle;
@synthesize modalTransitionStyle = _modalTransitionStyle;
@synthesize modalInPresentation = _modalInPresentation;
@synthesize definesPresentationContext = _definesPresentationContext;
@synthesize providesPresentationContextTransitionStyle = _providesPresentationContextTransitionStyle;
@synthesize hidesBottomBarWhenPushed = _hidesBottomBarWhenPushed;
@synthesize automaticallyAdjustsScrollViewInsets = _automaticallyAdjustsScrollViewInsets;
@synthesize preferredContentSize = _preferredContentSize;
@synthesize overrideUserInterfaceStyle = _overrideUserInterfaceStyle;

- (instancetype)init {
  return [self initWithNibName:nil bundle:nil];
}
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super init])) {
    _childViewControllers = [[NSMutableArray alloc] init];
    _modalPresentationStyle = UIModalPresentationAutomatic;
    _automaticallyAdjustsScrollViewInsets = YES;
  }
  return self;
}
- (void)dealloc {
  [_view _simSetViewDelegate:nil];
  [_view release];
  [_title release];
  [_navigationItem release];
  for (UIViewController *c in _childViewControllers) c->_parentViewController = nil;
  [_childViewControllers release];
  [_presentedViewController release];
  [super dealloc];
}

#pragma mark - View

- (UIView *)view {
  if (!_view) {
    [self loadView];
    if (!_view) {
      _view = [[UIView alloc] initWithFrame:[UIScreen mainScreen].bounds];
      [_view _simSetViewDelegate:self];
    }
    [self viewDidLoad];
  }
  return _view;
}
- (void)setView:(UIView *)view {
  if (view == _view) return;
  [_view _simSetViewDelegate:nil];
  [_view release];
  _view = [view retain];
  [_view _simSetViewDelegate:self];
}
- (UIView *)viewIfLoaded {
  return _view;
}
- (BOOL)isViewLoaded {
  return _view != nil;
}
- (void)loadView {
  UIView *v = [[UIView alloc] initWithFrame:[UIScreen mainScreen].bounds];
  v.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  self.view = v;
  [v release];
}
- (void)loadViewIfNeeded {
  [self view];
}
- (void)viewDidLoad {
}
- (void)viewWillAppear:(BOOL)animated {
}
- (void)viewDidAppear:(BOOL)animated {
}
- (void)viewWillDisappear:(BOOL)animated {
}
- (void)viewDidDisappear:(BOOL)animated {
}
- (void)viewWillLayoutSubviews {
}
- (void)viewDidLayoutSubviews {
}
- (void)didReceiveMemoryWarning {
}

#pragma mark - Appearance

- (NSArray *)_simAppearanceChildren {
  return [NSArray arrayWithArray:_childViewControllers];
}
- (BOOL)_simIsAppeared {
  return _appearState == kAppeared || _appearState == kAppearing;
}
- (void)_simBeginAppearance:(BOOL)appearing animated:(BOOL)animated {
  NSInteger target = appearing ? kAppearing : kDisappearing;
  if (appearing ? (_appearState == kAppearing || _appearState == kAppeared)
                : (_appearState == kDisappearing || _appearState == kDisappeared))
    return;
  _appearState = target;
  [self view];
  if (appearing)
    [self viewWillAppear:animated];
  else
    [self viewWillDisappear:animated];
  for (UIViewController *c in [self _simAppearanceChildren]) [c _simBeginAppearance:appearing animated:animated];
}
- (void)_simEndAppearance:(BOOL)appearing animated:(BOOL)animated {
  if (_appearState != (appearing ? kAppearing : kDisappearing)) return;
  _appearState = appearing ? kAppeared : kDisappeared;
  if (appearing)
    [self viewDidAppear:animated];
  else
    [self viewDidDisappear:animated];
  for (UIViewController *c in [self _simAppearanceChildren]) [c _simEndAppearance:appearing animated:animated];
}

#pragma mark - Title and items

- (NSString *)title {
  return _title;
}
- (void)setTitle:(NSString *)title {
  NSString *copy = [title copy];
  [_title release];
  _title = copy;
  self.navigationItem.title = copy;
}
- (UINavigationItem *)navigationItem {
  if (!_navigationItem) _navigationItem = [[UINavigationItem alloc] initWithTitle:_title];
  return _navigationItem;
}
- (UINavigationController *)navigationController {
  for (UIViewController *p = _parentViewController; p; p = p->_parentViewController)
    if ([p isKindOfClass:[UINavigationController class]]) return (UINavigationController *)p;
  return nil;
}

#pragma mark - Containment

- (UIViewController *)parentViewController {
  return _parentViewController;
}
- (void)_simSetParent:(UIViewController *)parent {
  _parentViewController = parent;
}
- (NSArray *)childViewControllers {
  return [NSArray arrayWithArray:_childViewControllers];
}
- (void)addChildViewController:(UIViewController *)child {
  if (!child || child == self || child->_parentViewController == self) return;
  [child retain];
  [child willMoveToParentViewController:self];
  [child removeFromParentViewController];
  [_childViewControllers addObject:child];
  child->_parentViewController = self;
  [child release];
}
- (void)removeFromParentViewController {
  UIViewController *parent = _parentViewController;
  if (!parent) return;
  [[self retain] autorelease];
  _parentViewController = nil;
  [parent->_childViewControllers removeObjectIdenticalTo:self];
  [self didMoveToParentViewController:nil];
}
- (void)willMoveToParentViewController:(UIViewController *)parent {
}
- (void)didMoveToParentViewController:(UIViewController *)parent {
}
- (BOOL)isMovingToParentViewController {
  return NO;
}
- (BOOL)isMovingFromParentViewController {
  return NO;
}
- (BOOL)isBeingPresented {
  return _presentingViewController && _appearState == kAppearing;
}
- (BOOL)isBeingDismissed {
  return _dismissing;
}
- (UIResponder *)nextResponder {
  if (_view.superview) return _view.superview;
  if (_parentViewController) return _parentViewController;
  return _presentingViewController;
}

#pragma mark - Presentation

- (UIViewController *)_simPresentationHost {
  UIViewController *host = self;
  while (host->_parentViewController) host = host->_parentViewController;
  return host;
}
- (UIViewController *)presentedViewController {
  UIViewController *host = [self _simPresentationHost];
  return host->_presentedViewController;
}
- (UIViewController *)presentingViewController {
  UIViewController *host = [self _simPresentationHost];
  return host->_presentingViewController;
}
- (UIWindow *)_simWindow {
  for (UIViewController *c = [self _simPresentationHost]; c;) {
    if (c.isViewLoaded && c.view.window) return c.view.window;
    c = c->_presentingViewController ? [c->_presentingViewController _simPresentationHost] : nil;
  }
  return [UIApplication sharedApplication].keyWindow;
}
- (void)presentViewController:(UIViewController *)vc animated:(BOOL)animated completion:(void (^)(void))completion {
  if (!vc) return;
  UIViewController *host = [self _simPresentationHost];
  if (host->_presentedViewController) {
    NSLog(@"Warning: Attempt to present %@ on %@ which is already presenting %@", vc, host,
          host->_presentedViewController);
    return;
  }
  if (vc->_presentingViewController || vc->_parentViewController) {
    NSLog(@"Application tried to present modally a view controller %@ that is already presented or has a parent", vc);
    return;
  }
  host->_presentedViewController = [vc retain];
  vc->_presentingViewController = host;
  UIWindow *window = [self _simWindow];
  UIView *v = vc.view;
  if (![vc isKindOfClass:[UIAlertController class]] && window) {
    v.frame = window.bounds;
    v.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  }
  if (window) [window addSubview:v];
  [vc _simBeginAppearance:YES animated:animated];
  [vc retain];
  SimUIKitSchedule(animated ? SimTransitionDuration : 0, ^{
    [vc _simEndAppearance:YES animated:animated];
    if (completion) completion();
    [vc release];
  });
}
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
  UIViewController *host = [self _simPresentationHost];
  UIViewController *presented = host->_presentedViewController;
  if (!presented) {
    // Asked of the presented controller itself (or one of its children): its presenter dismisses it.
    UIViewController *presenter = host->_presentingViewController;
    if (!presenter) {
      if (completion) SimUIKitSchedule(0, completion);
      return;
    }
    [presenter dismissViewControllerAnimated:animated completion:completion];
    return;
  }
  if (presented->_dismissing) return;
  // Dismissing also removes whatever the presented controller presents.
  UIViewController *top = presented;
  while (top->_presentedViewController) top = top->_presentedViewController;
  presented->_dismissing = YES;
  for (UIViewController *c = top; c; c = c == presented ? nil : c->_presentingViewController)
    [c _simBeginAppearance:NO animated:animated];
  [host retain];
  SimUIKitSchedule(animated ? SimTransitionDuration : 0, ^{
    UIViewController *p = host->_presentedViewController;
    if (p) {
      NSMutableArray *chain = [NSMutableArray array];
      for (UIViewController *c = p; c; c = c->_presentedViewController) [chain addObject:c];
      for (UIViewController *c in [chain reverseObjectEnumerator]) {
        if (c.isViewLoaded) [c.view removeFromSuperview];
        [c _simEndAppearance:NO animated:animated];
      }
      for (UIViewController *c in chain) {
        c->_dismissing = NO;
        UIViewController *presenter = c->_presentingViewController;
        c->_presentingViewController = nil;
        presenter->_presentedViewController = nil;
        [c autorelease];
      }
    }
    if (completion) completion();
    [host release];
  });
}
- (void)showViewController:(UIViewController *)vc sender:(id)sender {
  UINavigationController *nav = self.navigationController;
  if (nav)
    [nav pushViewController:vc animated:YES];
  else
    [self presentViewController:vc animated:YES completion:nil];
}

#pragma mark - Misc

- (BOOL)isEditing {
  return _editing;
}
- (void)setEditing:(BOOL)editing {
  [self setEditing:editing animated:NO];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  _editing = editing;
}
- (id)editButtonItem {
  return [[[UIBarButtonItem alloc] initWithBarButtonSystemItem:UIBarButtonSystemItemEdit
                                                        target:self
                                                        action:@selector(_simToggleEditing:)] autorelease];
}
- (void)_simToggleEditing:(id)sender {
  [self setEditing:!_editing animated:YES];
}
- (UITraitCollection *)traitCollection {
  return [UITraitCollection currentTraitCollection];
}
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection {
}
- (BOOL)shouldAutorotate {
  return YES;
}
- (UIInterfaceOrientationMask)supportedInterfaceOrientations {
  return [UIDevice currentDevice].userInterfaceIdiom == UIUserInterfaceIdiomPad
             ? UIInterfaceOrientationMaskAll
             : UIInterfaceOrientationMaskAllButUpsideDown;
}
- (UIInterfaceOrientation)preferredInterfaceOrientationForPresentation {
  return UIInterfaceOrientationPortrait;
}
- (UIStatusBarStyle)preferredStatusBarStyle {
  return UIStatusBarStyleDefault;
}
- (BOOL)prefersStatusBarHidden {
  return NO;
}
- (void)setNeedsStatusBarAppearanceUpdate {
}
@end
