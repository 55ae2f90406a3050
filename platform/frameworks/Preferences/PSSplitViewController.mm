#import <Preferences/PreferencesSimulation.h>

// Settings holds each pane (the pages a Settings list row opens) in a navigation controller
// of its own, the app's rootController. A phone shows the pane inside the navigation that
// holds the Settings list, one level above the list; an iPad shows it beside the list.
@implementation PSSplitViewController
- (NSArray *)viewControllers {
  return [self childViewControllers];
}
- (void)_simShowColumns {
  NSArray *controllers = [self childViewControllers];
  CGRect bounds = self.view.bounds;
  CGFloat listWidth = controllers.count > 1 ? 320 : bounds.size.width;
  for (NSUInteger i = 0; i < controllers.count; i++) {
    UIView *v = [[controllers objectAtIndex:i] view];
    v.frame = i == 0 ? CGRectMake(0, 0, listWidth, bounds.size.height)
                     : CGRectMake(listWidth, 0, bounds.size.width - listWidth, bounds.size.height);
    [self.view addSubview:v];
  }
}
- (void)setViewControllers:(NSArray *)controllers {
  for (UIViewController *c in [self childViewControllers]) [c removeFromParentViewController];
  for (UIViewController *c in controllers) [self addChildViewController:c];
  if ([self isViewLoaded]) [self _simShowColumns];
}
// Columns set before the view loads are shown when it does.
- (void)viewDidLoad {
  [super viewDidLoad];
  [self _simShowColumns];
}
@end
