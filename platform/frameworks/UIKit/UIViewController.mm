// View controllers, navigation, bar items, alerts and the application.
#import <UIKit/UIKitSimulation.h>

#import "UIKitInternal.h"
#include <Simulator/Simulator.h>

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

// View.

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

// Appearance.

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

// Title and items.

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

// Containment.

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

// Presentation.

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
    NSLog(@"Warning: Attempt to present %@ on %@ which is already presenting %@", vc, host, host->_presentedViewController);
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

// Misc.

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
  return [[[UIBarButtonItem alloc] initWithBarButtonSystemItem:UIBarButtonSystemItemEdit target:self
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
  return [UIDevice currentDevice].userInterfaceIdiom == UIUserInterfaceIdiomPad ? UIInterfaceOrientationMaskAll
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

// Navigation.

@implementation UINavigationController
@synthesize navigationBarHidden = _navigationBarHidden;
@synthesize toolbarHidden = _toolbarHidden;
@synthesize delegate = _navigationDelegate;
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super initWithNibName:nibNameOrNil bundle:nibBundleOrNil])) {
    _navigationBar = [[UINavigationBar alloc] initWithFrame:CGRectMake(0, 0, [UIScreen mainScreen].bounds.size.width, 44)];
    _navigationBar.autoresizingMask = UIViewAutoresizingFlexibleWidth;
  }
  return self;
}
- (instancetype)initWithRootViewController:(UIViewController *)root {
  if ((self = [self initWithNibName:nil bundle:nil])) [self pushViewController:root animated:NO];
  return self;
}
- (instancetype)initWithNavigationBarClass:(Class)navigationBarClass toolbarClass:(Class)toolbarClass {
  return [self initWithNibName:nil bundle:nil];
}
- (void)dealloc {
  [_navigationBar release];
  [super dealloc];
}
- (UINavigationBar *)navigationBar {
  return _navigationBar;
}
- (void)setNavigationBarHidden:(BOOL)hidden animated:(BOOL)animated {
  self.navigationBarHidden = hidden;
}
- (void)setToolbarHidden:(BOOL)hidden animated:(BOOL)animated {
  self.toolbarHidden = hidden;
}
- (NSArray *)_simAppearanceChildren {
  UIViewController *top = self.topViewController;
  return top ? [NSArray arrayWithObject:top] : [NSArray array];
}
- (void)loadView {
  [super loadView];
  [self.view addSubview:_navigationBar];
  UIViewController *top = self.topViewController;
  if (top) [self _simShowView:top];
}
- (void)_simShowView:(UIViewController *)vc {
  if (!self.isViewLoaded) return;
  UIView *v = vc.view;
  v.frame = self.view.bounds;
  v.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  [self.view insertSubview:v belowSubview:_navigationBar];
}
- (void)_simSyncBar {
  NSMutableArray *items = [NSMutableArray array];
  for (UIViewController *c in _childViewControllers) [items addObject:c.navigationItem];
  _navigationBar.items = items;
}
- (NSArray *)viewControllers {
  return [NSArray arrayWithArray:_childViewControllers];
}
- (UIViewController *)topViewController {
  return [_childViewControllers lastObject];
}
- (UIViewController *)visibleViewController {
  UIViewController *presented = self.presentedViewController;
  return presented ? presented : self.topViewController;
}
// Replaces the stack; appearance moves from the old top to the new one.
- (void)_simTransitionTo:(NSArray *)stack animated:(BOOL)animated {
  UIViewController *oldTop = [[self.topViewController retain] autorelease];
  NSArray *old = [[_childViewControllers copy] autorelease];
  UIViewController *newTop = [stack lastObject];
  BOOL showing = [self _simIsAppeared];
  BOOL changed = oldTop != newTop;
  if (showing && changed) [oldTop _simBeginAppearance:NO animated:animated];
  for (UIViewController *c in old)
    if ([stack indexOfObjectIdenticalTo:c] == NSNotFound) {
      [[c retain] autorelease];
      if (c.isViewLoaded && c.view.superview == self.viewIfLoaded) [c.view removeFromSuperview];
      [c removeFromParentViewController];
    }
  for (UIViewController *c in stack) {
    if (c->_parentViewController != self) {
      [c willMoveToParentViewController:self];
      [c removeFromParentViewController];
      c->_parentViewController = self;
    }
  }
  [_childViewControllers setArray:stack];
  for (UIViewController *c in stack)
    if ([old indexOfObjectIdenticalTo:c] == NSNotFound) [c didMoveToParentViewController:self];
  if (changed) {
    if (oldTop && oldTop.isViewLoaded && oldTop.view.superview == self.viewIfLoaded) [oldTop.view removeFromSuperview];
    if (newTop) [self _simShowView:newTop];
    if (showing) [newTop _simBeginAppearance:YES animated:animated];
  }
  [self _simSyncBar];
  if (showing && changed) {
    [oldTop retain];
    [newTop retain];
    SimUIKitSchedule(animated ? SimTransitionDuration : 0, ^{
      [oldTop _simEndAppearance:NO animated:animated];
      [newTop _simEndAppearance:YES animated:animated];
      [oldTop release];
      [newTop release];
    });
  }
}
- (void)addChildViewController:(UIViewController *)child {
  // As on the device, a child added to a navigation controller joins its stack.
  [self pushViewController:child animated:NO];
}
- (void)pushViewController:(UIViewController *)vc animated:(BOOL)animated {
  if (!vc || [_childViewControllers indexOfObjectIdenticalTo:vc] != NSNotFound) return;
  if ([vc isKindOfClass:[UINavigationController class]]) {
    NSLog(@"Pushing a navigation controller is not supported");
    return;
  }
  [self _simTransitionTo:[_childViewControllers arrayByAddingObject:vc] animated:animated];
}
- (void)_simPushNavigationController:(UINavigationController *)nested animated:(BOOL)animated {
  if (!nested || nested == self || [_childViewControllers indexOfObjectIdenticalTo:nested] != NSNotFound) return;
  [self _simTransitionTo:[_childViewControllers arrayByAddingObject:nested] animated:animated];
}
- (UIViewController *)popViewControllerAnimated:(BOOL)animated {
  if (_childViewControllers.count < 2) return nil;
  UIViewController *top = [[self.topViewController retain] autorelease];
  [self _simTransitionTo:[_childViewControllers subarrayWithRange:NSMakeRange(0, _childViewControllers.count - 1)]
                animated:animated];
  return top;
}
- (NSArray *)popToViewController:(UIViewController *)vc animated:(BOOL)animated {
  NSUInteger i = [_childViewControllers indexOfObjectIdenticalTo:vc];
  if (i == NSNotFound || i + 1 == _childViewControllers.count) return nil;
  NSArray *popped = [_childViewControllers subarrayWithRange:NSMakeRange(i + 1, _childViewControllers.count - i - 1)];
  [self _simTransitionTo:[_childViewControllers subarrayWithRange:NSMakeRange(0, i + 1)] animated:animated];
  return popped;
}
- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated {
  if (!_childViewControllers.count) return nil;
  return [self popToViewController:[_childViewControllers objectAtIndex:0] animated:animated];
}
- (void)setViewControllers:(NSArray *)viewControllers {
  [self setViewControllers:viewControllers animated:NO];
}
- (void)setViewControllers:(NSArray *)viewControllers animated:(BOOL)animated {
  [self _simTransitionTo:viewControllers ? viewControllers : [NSArray array] animated:animated];
}
@end

@implementation UINavigationItem
@synthesize title = _title;
@synthesize titleView = _titleView;
@synthesize prompt = _prompt;
@synthesize backBarButtonItem = _backBarButtonItem;
@synthesize hidesBackButton = _hidesBackButton;
@synthesize leftBarButtonItems = _leftBarButtonItems;
@synthesize rightBarButtonItems = _rightBarButtonItems;
@synthesize largeTitleDisplayMode = _largeTitleDisplayMode;
- (instancetype)init {
  return [self initWithTitle:nil];
}
- (instancetype)initWithTitle:(NSString *)title {
  if ((self = [super init])) _title = [title copy];
  return self;
}
- (void)dealloc {
  [_title release];
  [_titleView release];
  [_prompt release];
  [_backBarButtonItem release];
  [_leftBarButtonItems release];
  [_rightBarButtonItems release];
  [super dealloc];
}
- (void)setHidesBackButton:(BOOL)hidden animated:(BOOL)animated {
  self.hidesBackButton = hidden;
}
- (void)setLeftBarButtonItems:(NSArray *)items animated:(BOOL)animated {
  self.leftBarButtonItems = items;
}
- (void)setRightBarButtonItems:(NSArray *)items animated:(BOOL)animated {
  self.rightBarButtonItems = items;
}
- (UIBarButtonItem *)leftBarButtonItem {
  return [_leftBarButtonItems firstObject];
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item {
  self.leftBarButtonItems = item ? [NSArray arrayWithObject:item] : nil;
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
  self.leftBarButtonItem = item;
}
- (UIBarButtonItem *)rightBarButtonItem {
  return [_rightBarButtonItems firstObject];
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)item {
  self.rightBarButtonItems = item ? [NSArray arrayWithObject:item] : nil;
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
  self.rightBarButtonItem = item;
}
@end

@implementation UINavigationBar
@synthesize barStyle = _barStyle;
@synthesize translucent = _translucent;
@synthesize barTintColor = _barTintColor;
@synthesize titleTextAttributes = _titleTextAttributes;
@synthesize prefersLargeTitles = _prefersLargeTitles;
@synthesize items = _items;
- (void)dealloc {
  [_barTintColor release];
  [_titleTextAttributes release];
  [_items release];
  [super dealloc];
}
- (UINavigationItem *)topItem {
  return [_items lastObject];
}
- (UINavigationItem *)backItem {
  return _items.count > 1 ? [_items objectAtIndex:_items.count - 2] : nil;
}
@end

@implementation UIBarItem
@synthesize title = _title;
@synthesize image = _image;
@synthesize enabled = _enabled;
@synthesize tag = _tag;
- (instancetype)init {
  if ((self = [super init])) _enabled = YES;
  return self;
}
- (void)dealloc {
  [_title release];
  [_image release];
  [super dealloc];
}
- (void)setTitleTextAttributes:(NSDictionary *)attributes forState:(UIControlState)state {
}
@end

@implementation UIBarButtonItem
@synthesize style = _style;
@synthesize target = _target;
@synthesize action = _action;
@synthesize customView = _customView;
@synthesize tintColor = _tintColor;
@synthesize width = _width;
- (instancetype)init {
  if ((self = [super init])) _systemItem = -1;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    self.image = image;
    _style = style;
    _target = target;
    _action = action;
  }
  return self;
}
- (instancetype)initWithTitle:(NSString *)title style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    self.title = title;
    _style = style;
    _target = target;
    _action = action;
  }
  return self;
}
- (instancetype)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    _systemItem = systemItem;
    _target = target;
    _action = action;
    _style = systemItem == UIBarButtonSystemItemDone ? UIBarButtonItemStyleDone : UIBarButtonItemStylePlain;
  }
  return self;
}
- (instancetype)initWithCustomView:(UIView *)customView {
  if ((self = [self init])) self.customView = customView;
  return self;
}
- (void)dealloc {
  [_customView release];
  [_tintColor release];
  [super dealloc];
}
- (NSInteger)_simSystemItem {
  return _systemItem;
}
@end

BOOL SimTapBarButtonItem(UIBarButtonItem *item) {
  if (!item || !item.enabled || !item.action || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  return [[UIApplication sharedApplication] sendAction:item.action to:item.target from:item forEvent:nil];
}

// Alerts.

@implementation UIAlertAction
@synthesize title = _title;
@synthesize style = _style;
@synthesize enabled = _enabled;
+ (instancetype)actionWithTitle:(NSString *)title style:(UIAlertActionStyle)style handler:(void (^)(UIAlertAction *))handler {
  UIAlertAction *a = [[[self alloc] init] autorelease];
  a->_title = [title copy];
  a->_style = style;
  a->_enabled = YES;
  if (handler) a->_handler = Block_copy(handler);
  return a;
}
- (void)dealloc {
  [_title release];
  if (_handler) Block_release(_handler);
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  return [[UIAlertAction actionWithTitle:_title style:_style handler:_handler] retain];
}
- (void (^)(UIAlertAction *))handler {
  return _handler;
}
- (void)setHandler:(void (^)(UIAlertAction *))handler {
  void (^copy)(UIAlertAction *) = nil;
  if (handler) copy = Block_copy(handler);
  if (_handler) Block_release(_handler);
  _handler = copy;
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<UIAlertAction title=\"%@\" style=%ld>", _title, (long)_style];
}
@end

@implementation UIAlertController
@synthesize preferredStyle = _preferredStyle;
@synthesize preferredAction = _preferredAction;
@synthesize message = _message;
+ (instancetype)alertControllerWithTitle:(NSString *)title message:(NSString *)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle {
  UIAlertController *a = [[[self alloc] initWithNibName:nil bundle:nil] autorelease];
  a.title = title;
  a.message = message;
  a->_preferredStyle = preferredStyle;
  a.modalPresentationStyle = preferredStyle == UIAlertControllerStyleAlert ? UIModalPresentationOverFullScreen
                                                                           : UIModalPresentationPopover;
  return a;
}
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super initWithNibName:nibNameOrNil bundle:nibBundleOrNil])) {
    _actions = [[NSMutableArray alloc] init];
    _textFields = [[NSMutableArray alloc] init];
  }
  return self;
}
- (void)dealloc {
  [_message release];
  [_actions release];
  [_preferredAction release];
  [_textFields release];
  [super dealloc];
}
- (void)addAction:(UIAlertAction *)action {
  if (!action) return;
  if (action.style == UIAlertActionStyleCancel) {
    for (UIAlertAction *a in _actions)
      if (a.style == UIAlertActionStyleCancel) {
        [NSException raise:NSInternalInconsistencyException
                    format:@"UIAlertController can only have one action with a style of UIAlertActionStyleCancel"];
      }
  }
  [_actions addObject:action];
}
- (NSArray *)actions {
  return [NSArray arrayWithArray:_actions];
}
- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField *))handler {
  UITextField *field = [[[UITextField alloc] initWithFrame:CGRectMake(0, 0, 240, 30)] autorelease];
  [_textFields addObject:field];
  if (handler) handler(field);
}
- (NSArray *)textFields {
  return _textFields.count ? [NSArray arrayWithArray:_textFields] : nil;
}
- (void)loadView {
  UIView *v = [[UIView alloc] initWithFrame:CGRectMake(0, 0, 270, 120)];
  self.view = v;
  [v release];
}
- (void)_dismissAnimated:(BOOL)animated triggeringAction:(UIAlertAction *)action {
  void (^handler)(UIAlertAction *) = action.handler;
  [action retain];
  [self dismissViewControllerAnimated:animated completion:^{
    if (handler) handler(action);
    [action release];
  }];
}
@end

// The application.

NSString *const UIApplicationOpenURLOptionUniversalLinksOnly = @"UIApplicationOpenURLOptionUniversalLinksOnly";
NSString *const UIApplicationOpenSettingsURLString = @"app-settings:";
NSString *const UIApplicationDidBecomeActiveNotification = @"UIApplicationDidBecomeActiveNotification";
NSString *const UIApplicationWillResignActiveNotification = @"UIApplicationWillResignActiveNotification";
NSString *const UIApplicationDidEnterBackgroundNotification = @"UIApplicationDidEnterBackgroundNotification";
NSString *const UIApplicationWillEnterForegroundNotification = @"UIApplicationWillEnterForegroundNotification";

static UIApplication *gSharedApplication;

@interface UIApplication (SimPrivate)
- (void)_simSetKeyWindow:(UIWindow *)window;
- (void)_simReset;
- (NSInteger)_simIgnoringCount;
@end

@implementation UIApplication
@synthesize delegate = _delegate;
@synthesize applicationIconBadgeNumber = _applicationIconBadgeNumber;
@synthesize idleTimerDisabled = _idleTimerDisabled;
@synthesize networkActivityIndicatorVisible = _networkActivityIndicatorVisible;
+ (UIApplication *)sharedApplication {
  if (!gSharedApplication) {
    // The Settings application's own subclass when the Preferences stand-in provides it.
    Class cls = NSClassFromString(@"PreferencesAppController");
    if (!cls || ![cls isSubclassOfClass:[UIApplication class]]) cls = [UIApplication class];
    gSharedApplication = [[cls alloc] init];
  }
  return gSharedApplication;
}
- (instancetype)init {
  if ((self = [super init])) _windows = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [_windows release];
  [_keyWindow release];
  [super dealloc];
}
- (void)_simRegisterWindow:(UIWindow *)window {
  NSValue *v = [NSValue valueWithNonretainedObject:window];
  [_windows addObject:v];
}
- (void)_simSetKeyWindow:(UIWindow *)window {
  if (window == _keyWindow) return;
  [_keyWindow resignKeyWindow];
  [window retain];
  [_keyWindow release];
  _keyWindow = window;
  [window becomeKeyWindow];
}
- (void)_simReset {
  [self _simSetKeyWindow:nil];
  _ignoringInteractionEvents = 0;
}
- (UIWindow *)keyWindow {
  return _keyWindow;
}
- (NSArray *)windows {
  return _keyWindow ? [NSArray arrayWithObject:_keyWindow] : [NSArray array];
}
- (UIApplicationState)applicationState {
  return UIApplicationStateActive;
}
- (UIInterfaceOrientation)statusBarOrientation {
  return UIInterfaceOrientationPortrait;
}
// The Settings app, like every Apple application, has every language of the system: its
// interface reads in the direction of the user's first language.
- (UIUserInterfaceLayoutDirection)userInterfaceLayoutDirection {
  NSString *language = [[NSLocale preferredLanguages] firstObject];
  return language != nil && [NSLocale characterDirectionForLanguage:language] == NSLocaleLanguageDirectionRightToLeft
             ? UIUserInterfaceLayoutDirectionRightToLeft
             : UIUserInterfaceLayoutDirectionLeftToRight;
}
- (void)beginIgnoringInteractionEvents {
  ++_ignoringInteractionEvents;
}
- (void)endIgnoringInteractionEvents {
  if (_ignoringInteractionEvents > 0) --_ignoringInteractionEvents;
}
- (BOOL)isIgnoringInteractionEvents {
  return _ignoringInteractionEvents > 0;
}
- (NSInteger)_simIgnoringCount {
  return _ignoringInteractionEvents;
}
- (BOOL)canOpenURL:(NSURL *)url {
  return [url isKindOfClass:[NSURL class]] && [url scheme].length > 0;
}
static BOOL SimOpenURL(UIApplication *app, NSURL *url, NSDictionary *options) {
  if (![app canOpenURL:url]) return NO;
  SimUIKitRecordURL(url, options);
  return YES;
}
- (BOOL)openURL:(NSURL *)url {
  return SimOpenURL(self, url, nil);
}
- (void)openURL:(NSURL *)url options:(NSDictionary *)options completionHandler:(void (^)(BOOL success))completion {
  BOOL ok = SimOpenURL(self, url, options ? options : [NSDictionary dictionary]);
  if (completion) {
    SimUIKitSchedule(0, ^{
      completion(ok);
    });
  }
}
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(UIEvent *)event {
  if (!action) return NO;
  if (!target) {
    // Up the responder chain from the first responder, else from the sender.
    id r = SimUIKitFirstResponder();
    if (!r && [sender isKindOfClass:[UIResponder class]]) r = sender;
    while (r && ![r respondsToSelector:action]) r = [r nextResponder];
    target = r;
  }
  if (![target respondsToSelector:action]) return NO;
  [target performSelector:action withObject:sender withObject:event];
  return YES;
}
@end

void SimUIKitRegisterWindow(UIWindow *window) {
}

// When a run-loop turn ends, iOS commits the turn's changes to the screen and lays out
// whatever asked for layout in the windows on it: a table then has the cells of the rows
// it shows.
static void layOutWindowsOnScreen(void) {
  if (!gSharedApplication) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  UIWindow *window = [gSharedApplication keyWindow];
  if (window && !window.hidden) [window layoutIfNeeded];
  [pool release];
}
__attribute__((constructor)) static void registerDisplayPass(void) { SimRunLoopSetDisplayPass(layOutWindowsOnScreen); }
void SimUIKitSetKeyWindow(UIWindow *window) { [[UIApplication sharedApplication] _simSetKeyWindow:window]; }
void SimUIKitResetApplication(void) {
  if (gSharedApplication) [gSharedApplication _simReset];
}
NSInteger SimIgnoringInteractionEventsCount(void) {
  return gSharedApplication ? [gSharedApplication _simIgnoringCount] : 0;
}
