#import "UIKitInternal.h"

@implementation UINavigationController
@synthesize navigationBarHidden = _navigationBarHidden;
@synthesize toolbarHidden = _toolbarHidden;
@synthesize delegate = _navigationDelegate;
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super initWithNibName:nibNameOrNil bundle:nibBundleOrNil])) {
    _navigationBar =
        [[UINavigationBar alloc] initWithFrame:CGRectMake(0, 0, [UIScreen mainScreen].bounds.size.width, 44)];
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

#pragma mark - View and bar

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

#pragma mark - Stack

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
