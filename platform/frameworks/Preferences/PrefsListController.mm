// The Settings application's list, and the window, navigation and pane around it.
#import <Preferences/PreferencesSimulation.h>

@interface _SimSettingsState : NSObject {
  UIWindow *_window;
  PSRootController *_rootController;
  UINavigationController *_listNavigation;
  NSArray *_rootSpecifiers;
}
@property (nonatomic, retain) UIWindow *window;
@property (nonatomic, retain) PSRootController *rootController;
@property (nonatomic, retain) UINavigationController *listNavigation;
@property (nonatomic, copy) NSArray *rootSpecifiers;
+ (instancetype)shared;
@end
@implementation _SimSettingsState
@synthesize window = _window;
@synthesize rootController = _rootController;
@synthesize listNavigation = _listNavigation;
@synthesize rootSpecifiers = _rootSpecifiers;
+ (instancetype)shared {
  static _SimSettingsState *state;
  if (!state) state = [[_SimSettingsState alloc] init];
  return state;
}
@end

@implementation PrefsListController
- (NSArray *)specifiers {
  if (!_specifiers) {
    NSArray *rows = [_SimSettingsState shared].rootSpecifiers;
    _specifiers = [(rows ? rows : [NSArray array]) copy];
  }
  return _specifiers;
}
- (PSRootController *)rootController {
  return SimSettingsRootController();
}
// A row of the Settings list opens its pane: the page becomes the pane's first page.
- (void)pushController:(UIViewController *)controller animate:(BOOL)animate {
  if (!controller) return;
  PSRootController *pane = SimSettingsRootController();
  if ([controller isKindOfClass:[PSViewController class]]) {
    PSViewController *page = (PSViewController *)controller;
    page.parentController = self;
    page.rootController = pane;
  }
  [pane setViewControllers:[NSArray arrayWithObject:controller] animated:NO];
  UINavigationController *list = [_SimSettingsState shared].listNavigation;
  if ([pane parentViewController] == nil || [pane parentViewController] == list) {
    if (list.topViewController != pane) {
      [list popToRootViewControllerAnimated:NO];
      [list _simPushNavigationController:pane animated:animate];
    }
  }
}
@end

PSRootController *SimSettingsRootController(void) {
  _SimSettingsState *state = [_SimSettingsState shared];
  if (!state.rootController) {
    PSRootController *pane = [[[PSRootController alloc] init] autorelease];
    UINavigationController *listNavigation = [[[UINavigationController alloc] init] autorelease];
    PrefsListController *list = [[[PrefsListController alloc] init] autorelease];
    list.title = @"Settings";
    list.rootController = pane;
    pane.rootListController = list;
    [listNavigation pushViewController:list animated:NO];
    state.rootController = pane;
    state.listNavigation = listNavigation;
    UIViewController *top = listNavigation;
    if ([[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad) {
      PSSplitViewController *split = [[[PSSplitViewController alloc] init] autorelease];
      [split setViewControllers:[NSArray arrayWithObjects:listNavigation, pane, nil]];
      top = split;
    }
    UIWindow *window = [[[UIWindow alloc] initWithFrame:[UIScreen mainScreen].bounds] autorelease];
    state.window = window;
    window.rootViewController = top;
    [window makeKeyAndVisible];
  }
  return state.rootController;
}

UIViewController *SimSettingsWindowRootController(void) {
  SimSettingsRootController();
  return [_SimSettingsState shared].window.rootViewController;
}

void SimSettingsSetRootSpecifiers(NSArray *specifiers) {
  _SimSettingsState *state = [_SimSettingsState shared];
  state.rootSpecifiers = specifiers;
  [[state.rootController rootListController] reloadSpecifiers];
}

void SimSettingsReset(void) {
  _SimSettingsState *state = [_SimSettingsState shared];
  [state.window setRootViewController:nil];
  state.window.hidden = YES;
  state.window = nil;
  state.rootController = nil;
  state.listNavigation = nil;
  state.rootSpecifiers = nil;
  SimUIKitReset();
}
