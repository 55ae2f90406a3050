// View controllers: navigation, presentation, dismissal and alert actions.
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

@interface UITestPage : UIViewController {
  NSMutableArray *_log;
}
@property (nonatomic, retain) NSMutableArray *log;
@end
@implementation UITestPage
@synthesize log = _log;
- (void)dealloc {
  [_log release];
  [super dealloc];
}
- (void)note:(NSString *)what {
  [_log addObject:[NSString stringWithFormat:@"%@ %@", self.title, what]];
}
- (void)viewWillAppear:(BOOL)animated {
  [self note:@"willAppear"];
}
- (void)viewDidAppear:(BOOL)animated {
  [self note:@"didAppear"];
}
- (void)viewWillDisappear:(BOOL)animated {
  [self note:@"willDisappear"];
}
- (void)viewDidDisappear:(BOOL)animated {
  [self note:@"didDisappear"];
}
@end

namespace {

class UIControllerTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice("iphone-faceid-ios16");
    SimSettingsReset();
    log_ = [[NSMutableArray alloc] init];
  }
  void TearDown() override {
    SimSettingsReset();
    [log_ release];
    DeviceTest::TearDown();
  }
  UITestPage *Page(NSString *title) {
    UITestPage *p = [[[UITestPage alloc] init] autorelease];
    p.title = title;
    p.log = log_;
    return p;
  }
  static void Settle() { SimRunLoopRunFor(SimTransitionDuration + 0.2); }

  NSMutableArray *log_ = nil;
};

}  // namespace

TEST_F(UIControllerTest, PushAndPopMoveAppearanceBetweenPages) {
  // The navigation that holds the Settings list is the window's.
  PSRootController *pane = [(PreferencesAppController *)[UIApplication sharedApplication] rootController];
  EXPECT_TRUE([[pane rootListController] isKindOfClass:[PrefsListController class]]);
  UINavigationController *root = (UINavigationController *)[[pane rootListController] parentViewController];
  ASSERT_TRUE([root isKindOfClass:[UINavigationController class]]);
  EXPECT_NE(root, pane);
  EXPECT_EQ([UIApplication sharedApplication].keyWindow.rootViewController, root);

  UITestPage *a = Page(@"A");
  [root pushViewController:a animated:YES];
  EXPECT_EQ(root.topViewController, a);
  EXPECT_EQ(a.navigationController, root);
  EXPECT_TRUE([log_ isEqualToArray:[NSArray arrayWithObject:@"A willAppear"]]);
  Settle();
  EXPECT_STREQ([[log_ lastObject] UTF8String], [@"A didAppear" UTF8String]);

  UITestPage *b = Page(@"B");
  [root pushViewController:b animated:NO];
  Settle();
  EXPECT_EQ(root.viewControllers.count, 3u);
  EXPECT_EQ([root popViewControllerAnimated:YES], b);
  EXPECT_EQ(root.topViewController, a);
  Settle();
  NSArray *tail = [log_ subarrayWithRange:NSMakeRange(log_.count - 4, 4)];
  NSArray *expected =
      [NSArray arrayWithObjects:@"B willDisappear", @"A willAppear", @"B didDisappear", @"A didAppear", nil];
  EXPECT_TRUE([tail isEqualToArray:expected]) << [[log_ description] UTF8String];
  EXPECT_EQ(b.parentViewController, nil);
}

TEST_F(UIControllerTest, ChildAddedToANavigationControllerBecomesItsRoot) {
  UINavigationController *nav = [[[UINavigationController alloc] init] autorelease];
  UITestPage *page = Page(@"P");
  [nav addChildViewController:page];
  EXPECT_EQ(nav.topViewController, page);
  EXPECT_EQ(nav.viewControllers.count, 1u);
  EXPECT_EQ(page.navigationController, nav);
}

TEST_F(UIControllerTest, PresentAndDismissFromAChild) {
  PSRootController *root = SimSettingsRootController();
  UIViewController *list = [root rootListController];
  UINavigationController *modal = [[[UINavigationController alloc] init] autorelease];
  UITestPage *page = Page(@"M");
  [modal addChildViewController:page];
  __block int presented = 0;
  [list presentViewController:modal animated:YES completion:^{ ++presented; }];
  EXPECT_EQ(list.presentedViewController, modal);
  EXPECT_EQ(modal.presentingViewController, SimSettingsWindowRootController());
  EXPECT_EQ(page.presentingViewController, SimSettingsWindowRootController());
  EXPECT_EQ(presented, 0);
  Settle();
  EXPECT_EQ(presented, 1);
  EXPECT_STREQ([[log_ lastObject] UTF8String], [@"M didAppear" UTF8String]);

  // The presented page dismisses itself: its presenter takes it down.
  __block int dismissed = 0;
  [page dismissViewControllerAnimated:YES completion:^{ ++dismissed; }];
  EXPECT_EQ(list.presentedViewController, modal);  // until the transition ends
  Settle();
  EXPECT_EQ(dismissed, 1);
  EXPECT_EQ(list.presentedViewController, nil);
  EXPECT_EQ(modal.presentingViewController, nil);
  EXPECT_STREQ([[log_ lastObject] UTF8String], [@"M didDisappear" UTF8String]);
}

TEST_F(UIControllerTest, AlertActionRunsAfterDismissal) {
  UIViewController *list = [SimSettingsRootController() rootListController];
  UIAlertController *alert = [UIAlertController alertControllerWithTitle:@"T"
                                                                 message:@"M"
                                                          preferredStyle:UIAlertControllerStyleAlert];
  __block NSString *chosen = nil;
  __block BOOL stillPresented = NO;
  UIAlertAction *ok = [UIAlertAction actionWithTitle:@"OK"
                                               style:UIAlertActionStyleDefault
                                             handler:^(UIAlertAction *a) {
                                               chosen = a.title;
                                               stillPresented = list.presentedViewController != nil;
                                             }];
  [alert addAction:[UIAlertAction actionWithTitle:@"Cancel" style:UIAlertActionStyleCancel handler:nil]];
  [alert addAction:ok];
  EXPECT_EQ(alert.actions.count, 2u);
  EXPECT_EQ(alert.preferredStyle, UIAlertControllerStyleAlert);
  [list presentViewController:alert animated:YES completion:nil];
  Settle();
  [alert _dismissAnimated:YES triggeringAction:ok];
  EXPECT_EQ(chosen, nil);
  Settle();
  EXPECT_STREQ([chosen UTF8String], "OK");
  EXPECT_FALSE(stillPresented);

  // A second presentation while one is up is refused, as on the device.
  UIAlertController *first = [UIAlertController alertControllerWithTitle:@"1"
                                                                 message:nil
                                                          preferredStyle:UIAlertControllerStyleAlert];
  UIAlertController *second = [UIAlertController alertControllerWithTitle:@"2"
                                                                  message:nil
                                                           preferredStyle:UIAlertControllerStyleAlert];
  [list presentViewController:first animated:NO completion:nil];
  [list presentViewController:second animated:NO completion:nil];
  EXPECT_EQ(list.presentedViewController, first);
}

TEST_F(UIControllerTest, ApplicationRecordsURLsAndBarButtonTaps) {
  UIApplication *app = [UIApplication sharedApplication];
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
  EXPECT_TRUE([app openURL:[NSURL URLWithString:@"https://example.org/apps"]]);
#pragma clang diagnostic pop
  [app openURL:[NSURL URLWithString:@"https://example.org/new"] options:nil completionHandler:nil];
  ASSERT_EQ(SimOpenedURLs().count, 2u);
  EXPECT_EQ([SimOpenedURLOptions() objectAtIndex:0], [NSNull null]);
  EXPECT_NSEQ([SimOpenedURLOptions() objectAtIndex:1], [NSDictionary dictionary]);
  UITestPage *page = Page(@"P");
  UIBarButtonItem *save = [[[UIBarButtonItem alloc] initWithTitle:@"Save"
                                                            style:UIBarButtonItemStylePlain
                                                           target:page
                                                           action:@selector(viewDidAppear:)] autorelease];
  [page.navigationItem setRightBarButtonItem:save animated:NO];
  EXPECT_EQ(page.navigationItem.rightBarButtonItem, save);
  EXPECT_TRUE(SimTapBarButtonItem(save));
  EXPECT_STREQ([[log_ lastObject] UTF8String], [@"P didAppear" UTF8String]);
  [UIPasteboard generalPasteboard].string = @"secret";
  EXPECT_STREQ([[UIPasteboard generalPasteboard].string UTF8String], "secret");
}

// A row of the Settings list opens its page as the first page of the pane: on a phone the
// pane's navigation is one level of the list's, so the page's navigation can be popped.
TEST_F(UIControllerTest, TheListOpensAPaneInsideItsNavigationOnAPhone) {
  PSRootController *pane = SimSettingsRootController();
  PSListController *list = [pane rootListController];
  UINavigationController *listNavigation = (UINavigationController *)SimSettingsWindowRootController();
  UITestPage *page = Page(@"P");
  [list pushController:page animate:NO];
  Settle();
  EXPECT_EQ(page.navigationController, pane);
  EXPECT_EQ(pane.parentViewController, listNavigation);
  EXPECT_EQ(listNavigation.topViewController, pane);
  EXPECT_EQ([pane.parentViewController respondsToSelector:@selector(popViewControllerAnimated:)], YES);
  [listNavigation popViewControllerAnimated:NO];
  Settle();
  EXPECT_EQ(listNavigation.topViewController, list);
}
