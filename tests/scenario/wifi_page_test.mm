// The trusted networks page: where its rows come from on each system and what it shows
// above them, the switches' reads and writes of the trusted list, and the password line
// and copy of a network's cell.
#import <UIKit/UIKit.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <notify.h>
#include <objc/runtime.h>

#include <string>

#import "BundleFixture.h"
#include "core/SystemVersion.hpp"

namespace {

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";
NSString *const kUnknown = @"ff:ff:ff:ff:ff:ff";
NSString *const kHome = @"a4:2b:b0:11:22:33";
NSString *const kOffice = @"f0:9f:c2:44:55:66";
NSString *const kCafe = @"00:1a:2b:3c:4d:5e";

NSString *const kFooter =
    @"Select the WiFi network(s) on which you want to automatically disable Tessarin when connected to. For "
    @"security reasons, only already joined networks are available. If you wish to add a new network, join the "
    @"network first in order for it to appear in the list.";
NSString *const kOlderFooter =
    @"Select the WiFi network(s) on which you want to automatically disable Tessarin when connected to. For "
    @"security reasons, only already joined networks are available. If you wish to add a new network, join the "
    @"network first in order to appear in the list.";

NSDictionary *entry(NSString *bssid, NSString *ssid) { return @{@"bssid" : bssid, @"ssid" : ssid}; }

// Names of the rows the table reported selected, on pages of the class below.
NSMutableArray *selectedRows = nil;

typedef void (*DidSelectIMP)(id, SEL, UITableView *, NSIndexPath *);

void recordSelection(id page, SEL cmd, UITableView *table, NSIndexPath *path) {
  id name = [[page specifierAtIndexPath:path] name];
  [selectedRows addObject:name != nil ? name : @"?"];
  Class base = class_getSuperclass(object_getClass(page));
  ((DidSelectIMP)class_getMethodImplementation(base, cmd))(page, cmd, table, path);
}

// The product's page, with the table's row selections noted on the way to it.
NSString *pageNotingSelections() {
  const char *name = "WiFiPageNotingSelections";
  if (objc_getClass(name) == Nil) {
    Class page = objc_allocateClassPair(NSClassFromString(@"TessarinWiFiController"), name, 0);
    class_addMethod(page, @selector(tableView:didSelectRowAtIndexPath:), (IMP)recordSelection, "v@:@@");
    objc_registerClassPair(page);
  }
  return @(name);
}

}  // namespace

class WiFiPageTest : public BundleTest {
 protected:
  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    [selectedRows release];
    selectedRows = nil;
    BundleTest::TearDown();
  }

  // A fresh device, and the bundle's version flags as its start-up sets them there.
  void Start(const char *profile = SIM_DEFAULT_PROFILE, bool withSpringBoard = true) {
    StopSpringBoard();
    SimSettingsReset();
    StartDevice(profile, withSpringBoard);
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
  }

  PSListController *OpenPage() {
    selectedRows = [[NSMutableArray alloc] init];
    return OpenSettingsPane(pageNotingSelections());
  }

  // What the table shows: a section's header and footer, and its rows' names.
  NSString *Footer(PSListController *page, NSInteger section) {
    UITableView *table = [page table];
    return [[table dataSource] tableView:table titleForFooterInSection:section];
  }
  NSString *Header(PSListController *page, NSInteger section) {
    UITableView *table = [page table];
    return [[table dataSource] tableView:table titleForHeaderInSection:section];
  }
  NSArray *ShownNames(PSListController *page, NSInteger section) {
    UITableView *table = [page table];
    NSMutableArray *names = [NSMutableArray array];
    if (section >= [table numberOfSections]) return names;
    for (NSInteger row = 0; row < [table numberOfRowsInSection:section]; row++)
      [names addObject:[[page specifierAtIndexPath:[NSIndexPath indexPathForRow:row inSection:section]] name]];
    return names;
  }

  PSSpecifier *Row(PSListController *page, NSString *name) {
    for (PSSpecifier *row in [page specifiers])
      if ([row cellType] == PSSwitchCell && [[row name] isEqualToString:name]) return row;
    ADD_FAILURE() << "no row " << [name UTF8String];
    return nil;
  }

  BOOL SwitchShown(PSListController *page, PSSpecifier *row) {
    PSControlTableCell *cell = (PSControlTableCell *)[page cachedCellForSpecifier:row];
    return [(UISwitch *)[cell control] isOn];
  }

  void Store(id value) { BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(value, "allowedWiFis"); }
  id Stored() { return [StoredPreferences() objectForKey:@"allowedWiFis"]; }

  // The cell of a row as it stands in the Settings window.
  UITableViewCell *ShownCell(PSListController *page, PSSpecifier *row) {
    UITableViewCell *cell = [[page table] cellForRowAtIndexPath:[page indexPathForSpecifier:row]];
    [cell layoutIfNeeded];
    return cell;
  }

  static CGFloat WindowLeft(UITableViewCell *cell) { return [cell convertPoint:CGPointZero toView:nil].x; }

  // A tap on the cell at `x` points from the window's left edge.
  void TapCellAt(UITableViewCell *cell, CGFloat x) {
    UIView *content = [cell contentView];
    CGPoint windowPoint = [content convertPoint:CGPointMake(0, content.bounds.size.height / 2) toView:nil];
    windowPoint.x = x;
    EXPECT_TRUE(SimTapView(content, [content convertPoint:windowPoint fromView:nil]));
  }

  UIAlertController *PresentedAlert(UIViewController *page, double timeout) {
    SimRunLoopRunUntil(
        ^BOOL { return [[page presentedViewController] isKindOfClass:[UIAlertController class]]; }, timeout);
    UIViewController *presented = [page presentedViewController];
    return [presented isKindOfClass:[UIAlertController class]] ? (UIAlertController *)presented : nil;
  }
};

// From iOS 13 the page reads the joined networks itself; before, only SpringBoard's answer lists them.
TEST_F(WiFiPageTest, TheNetworksComeFromTheDeviceFromIOS13AndFromSpringBoardBefore) {
  NSArray *known = @[ @"Office-5G", @"Home Network", @"Cafe Guest", @"Hidden Lab" ];
  const struct {
    const char *profile;
    bool springBoard;
    NSArray *listed;
    NSString *footer;
  } cases[] = {
      {"iphone-faceid-ios16", false, known, kFooter},
      {"iphone-ios13", false, known, kFooter},
      {"iphone-ios12", true, known, kOlderFooter},
      {"iphone-ios12", false, @[], kOlderFooter},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(std::string(c.profile) + (c.springBoard ? " with SpringBoard" : " without SpringBoard"));
    Start(c.profile, c.springBoard);
    PSListController *page = OpenPage();
    // The explanation stands alone above the list, as the footer of a group without rows.
    EXPECT_NSEQ(Footer(page, 0), c.footer);
    EXPECT_EQ(Header(page, 0), nil);
    EXPECT_NSEQ(ShownNames(page, 0), @[]);
    EXPECT_NSEQ(Header(page, 1), @"Choose trusted WiFi networks");
    EXPECT_EQ(Footer(page, 1), nil);
    EXPECT_NSEQ(ShownNames(page, 1), c.listed);
  }
}

TEST_F(WiFiPageTest, ANetworkWithoutBSSIDCanBeTrustedAndNothingIsPosted) {
  Start();
  PSListController *page = OpenPage();
  PSSpecifier *hidden = Row(page, @"Hidden Lab");
  EXPECT_FALSE(SwitchShown(page, hidden));
  const unsigned posts = SimNotifyPostCount(kPrefsChanged);

  ASSERT_TRUE(SimListControllerTapSpecifier(page, hidden));
  EXPECT_NSEQ(Stored(), (@[ entry(kUnknown, @"Hidden Lab") ]));
  EXPECT_TRUE(SwitchShown(page, hidden));

  ASSERT_TRUE(SimListControllerTapSpecifier(page, hidden));
  EXPECT_NSEQ(Stored(), (@[]));
  EXPECT_FALSE(SwitchShown(page, hidden));
  // The trusted list is the one setting written without the change signal.
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(WiFiPageTest, ARenamedNetworkShowsOffAndGetsASecondEntry) {
  Start();
  Store(@[ entry(kHome, @"Old name") ]);
  PSListController *page = OpenPage();
  PSSpecifier *home = Row(page, @"Home Network");
  EXPECT_FALSE(SwitchShown(page, home));

  ASSERT_TRUE(SimListControllerTapSpecifier(page, home));
  EXPECT_NSEQ(Stored(), (@[ entry(kHome, @"Old name"), entry(kHome, @"Home Network") ]));
  EXPECT_TRUE(SwitchShown(page, home));
}

TEST_F(WiFiPageTest, SwitchingOffSkipsTheEntryAfterARemoval) {
  Start();
  NSDictionary *a = entry(kOffice, @"Office-5G"), *b = entry(kHome, @"Home Network"),
               *c = entry(kHome, @"Home (5 GHz)"), *d = entry(kCafe, @"Cafe Guest");
  Store(@[ a, b, c, d, b ]);
  PSListController *page = OpenPage();
  PSSpecifier *home = Row(page, @"Home Network");
  EXPECT_TRUE(SwitchShown(page, home));
  const unsigned posts = SimNotifyPostCount(kPrefsChanged);

  ASSERT_TRUE(SimListControllerTapSpecifier(page, home));
  // B goes with its duplicate; C, which slid into B's place, stays for this pass.
  EXPECT_NSEQ(Stored(), (@[ a, c, d ]));
  EXPECT_FALSE(SwitchShown(page, home));
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(WiFiPageTest, ThePasswordLineAndItsCopy) {
  Start();
  PSListController *page = OpenPage();
  UITableViewCell *home = ShownCell(page, Row(page, @"Home Network"));
  ASSERT_NE([home window], nil);
  EXPECT_NSEQ([[home detailTextLabel] text], @"Pass: correct horse");
  EXPECT_EQ([[home detailTextLabel] textAlignment], NSTextAlignmentLeft);
  EXPECT_EQ([[[home detailTextLabel] font] pointSize], 12.0);
  // The name moves up by 5; the password line sits under it, as wide as the screen less 100.
  const CGRect name = [[home textLabel] frame];
  const CGRect line = [[home detailTextLabel] frame];
  EXPECT_EQ(line.origin.x, name.origin.x);
  EXPECT_EQ(line.origin.y, name.origin.y + 5 - 7 + name.size.height);
  EXPECT_EQ(line.size.width, [UIScreen mainScreen].bounds.size.width - 100);
  EXPECT_EQ(line.size.height, name.size.height - 5);

  TapCellAt(home, 200);  // the right of the screen does not copy
  EXPECT_EQ(PresentedAlert(page, 0.3), nil);
  EXPECT_FALSE([[UIPasteboard generalPasteboard] hasStrings]);

  TapCellAt(home, 199.9);
  EXPECT_NSEQ([[UIPasteboard generalPasteboard] string], @"correct horse");
  UIAlertController *alert = PresentedAlert(page, 2.0);
  ASSERT_NE(alert, nil);
  EXPECT_NSEQ([alert title], @"Tessarin Nova");
  EXPECT_NSEQ([alert message], @"Password: correct horse for network: Home Network has been copied to clipboard.");
  ASSERT_EQ([[alert actions] count], 1u);
  EXPECT_NSEQ([[[alert actions] objectAtIndex:0] title], @"Okay");
  EXPECT_EQ([[[alert actions] objectAtIndex:0] style], UIAlertActionStyleCancel);
  EXPECT_EQ([alert preferredStyle], UIAlertControllerStyleAlert);
  // The copy leaves the touch to the table: both taps reached the row as any tap on a row does.
  EXPECT_NSEQ(selectedRows, (@[ @"Home Network", @"Home Network" ]));
}

TEST_F(WiFiPageTest, ANetworkWithoutPasswordShowsNoLineAndIgnoresTaps) {
  Start();
  PSListController *page = OpenPage();
  UITableViewCell *cafe = ShownCell(page, Row(page, @"Cafe Guest"));
  EXPECT_EQ([[[cafe detailTextLabel] text] length], 0u);
  TapCellAt(cafe, 20);
  EXPECT_FALSE([[UIPasteboard generalPasteboard] hasStrings]);
  EXPECT_EQ(PresentedAlert(page, 0.3), nil);
}

// The left 200 points are the screen's: on an iPad the page stands right of the Settings
// list, so a tap near a row's own left edge copies nothing.
TEST_F(WiFiPageTest, OnAnIPadNoTapOnThePageCopies) {
  Start("ipad-ios15");
  PSListController *page = OpenPage();
  UITableViewCell *home = ShownCell(page, Row(page, @"Home Network"));
  ASSERT_NE([home window], nil);
  const CGFloat left = WindowLeft(home);
  ASSERT_GE(left, 200);
  EXPECT_NSEQ([[home detailTextLabel] text], @"Pass: correct horse");
  TapCellAt(home, left + 100);
  EXPECT_EQ(PresentedAlert(page, 0.3), nil);
  EXPECT_FALSE([[UIPasteboard generalPasteboard] hasStrings]);
}
