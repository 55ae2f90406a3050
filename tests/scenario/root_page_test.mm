// The root page as Settings shows it: its rows on several devices and add-on sets, its
// header, first-run prompt, warnings and the reset-all flow.
#import <UIKit/UIKit.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#include <notify.h>
#import "BundleFixture.h"
#import "SettingsHost.h"
#include "core/SystemVersion.hpp"

namespace {

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";

NSString *const kLibraryMissing =
    @"SpringBoard library is not correctly installed or not correctly loaded. If you can see this, this tweak can "
    @"load correctly in settings but not in SpringBoard. Re-install or check our jailbreak settings.";

// The rows every page build reads as "present" on every device of these tests.
NSString *const kAlways[] = {@"ENABLED",      @"PASSCODE_OPTIONS", @"KEEP_SESSION", @"TRUSTED_WIFI_NETWORKS",
                             @"APPLICATIONS", @"FOLDERS",          @"RESET_ALL",    @"CRASH_LOGS"};

void setSpringBoardFact(NSMutableDictionary *profile, NSString *key, id value) {
  NSMutableDictionary *springBoard = [[[profile objectForKey:@"springboard"] mutableCopy] autorelease];
  if (springBoard == nil) springBoard = [NSMutableDictionary dictionary];
  [springBoard setObject:value forKey:key];
  [profile setObject:springBoard forKey:@"springboard"];
}

void setCurrentNetwork(NSMutableDictionary *profile, NSString *bssid) {
  NSMutableDictionary *wifi = [[[profile objectForKey:@"wifi"] mutableCopy] autorelease];
  if (wifi == nil) wifi = [NSMutableDictionary dictionary];
  [wifi setObject:bssid forKey:@"current"];
  [profile setObject:wifi forKey:@"wifi"];
}

NSString *rowId(PSSpecifier *row) {
  NSString *identifier = [row identifier];
  return identifier != nil ? identifier : @"";
}

PSSpecifier *rowWithId(NSArray *rows, NSString *identifier) {
  for (PSSpecifier *row in rows)
    if ([rowId(row) isEqualToString:identifier]) return row;
  return nil;
}

bool hasRow(NSArray *rows, NSString *identifier) { return rowWithId(rows, identifier) != nil; }

UINavigationController *settingsRoot() {
  UIApplication *application = [UIApplication sharedApplication];
  if (![application respondsToSelector:@selector(rootController)]) return nil;
  return [application performSelector:@selector(rootController)];
}

UIAlertAction *actionTitled(UIAlertController *alert, NSString *title) {
  for (UIAlertAction *action in [alert actions])
    if ([[action title] isEqualToString:title]) return action;
  return nil;
}

NSArray *actionTitles(UIAlertController *alert) {
  NSMutableArray *titles = [NSMutableArray array];
  for (UIAlertAction *action in [alert actions]) [titles addObject:[action title]];
  return titles;
}

}  // namespace

class RootPageTest : public BundleTest {
 protected:
  void TearDown() override {
    // Alerts still on their way belong to this test's Settings, which goes with it.
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }

  // A device as Settings starts on it: the bundle's process-wide state as after start-up.
  void Start(const char *profile = SIM_DEFAULT_PROFILE, bool withSpringBoard = true,
             void (^edit)(NSMutableDictionary *profile) = nil) {
    StartDevice(profile, withSpringBoard, edit);
    *BundleSymbol<uint32_t *>("cachedLibraryVersion") = 0;
    *BundleSymbol<BOOL *>("springBoardEmergency") = NO;
    *BundleSymbol<BOOL *>("hasSetPearl") = NO;
    *BundleSymbol<BOOL *>("hasPearlCam") = NO;
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
  }

  // Opens the product's entry as Settings does and lets its start-up alerts come up.
  PSListController *OpenRootPage() {
    Class pageClass = NSClassFromString(@"TessarinPrefsListController");
    EXPECT_NE(pageClass, Nil);
    PSListController *page = [[[pageClass alloc] init] autorelease];
    UINavigationController *root = settingsRoot();
    if (root != nil) {
      [root pushViewController:page animated:NO];
    }
    [page view];
    [page specifiers];
    SimRunLoopRunFor(0.05);
    return page;
  }

  // Opens the product's entry from the Settings list, as the user does; the page it shows.
  PSListController *OpenInSettings() {
    EXPECT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
    return (PSListController *)OpenProductFromSettingsList();
  }

  void Set(id value, const char *key) { BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(value, key); }

  // The alert the page presents within a little while, or nil.
  UIAlertController *PresentedAlert(UIViewController *page, double timeout = 2.0) {
    SimRunLoopRunUntil(
        ^BOOL { return [[page presentedViewController] isKindOfClass:[UIAlertController class]]; }, timeout);
    UIViewController *presented = [page presentedViewController];
    return [presented isKindOfClass:[UIAlertController class]] ? (UIAlertController *)presented : nil;
  }

  // Chooses an action of the alert as the user would, and lets its effects run.
  void Choose(UIAlertController *alert, NSString *title) {
    UIAlertAction *action = actionTitled(alert, title);
    ASSERT_NE(action, nil) << [title UTF8String];
    [alert _dismissAnimated:NO triggeringAction:action];
    SimRunLoopRunFor(SimTransitionDuration + 0.1);
  }
};

TEST_F(RootPageTest, FaceIdPhoneDropsTheButtonColourAndAddsItsOwnRows) {
  Start();
  PSListController *page = OpenRootPage();
  NSArray *rows = [page specifiers];
  for (NSString *identifier : kAlways) EXPECT_TRUE(hasRow(rows, identifier)) << [identifier UTF8String];
  const struct {
    NSString *identifier;
    bool shown;
  } cases[] = {
      {@"CIRCLE_COLOR", false},                    // Face ID
      {@"UNLOCK_WITH_TOUCHID", false},             // never
      {@"APPLICATIONS_NOTIFICATIONS_KEY", false},  // never in Settings
      {@"EXTRAS", true},
      {@"VIBRATE_ON_ERROR", true},
      {@"CALLER_ID_PROTECTION_KEY", true},
      {@"FLIPSWITCHES", true},  // the toggle library under the jail root
      {@"CONTROLCENTER", true},
      {@"CCSETTINGS_KEY", false},
      {@"TRUSTED_WARNING", false},
  };
  for (const auto &c : cases) EXPECT_EQ(hasRow(rows, c.identifier), c.shown) << [c.identifier UTF8String];
  EXPECT_EQ([rowWithId(rows, @"EXTRAS") propertyForKey:@"footerText"], nil);

  // The device's 6-digit passcode leads to the numeric check, in its own group at 7/8.
  ASSERT_GT([rows count], 9u);
  PSSpecifier *auth = [rows objectAtIndex:8];
  EXPECT_NSEQ([auth name], @"Face ID & Passcode");
  EXPECT_EQ([auth cellType], 2);
  EXPECT_TRUE(sel_isEqual([auth controllerLoadAction], @selector(loadUserPasswordController)));
  EXPECT_EQ([[rows objectAtIndex:7] cellType], 0);

  // Credits last: a group, the credit line, the "more apps" footer.
  NSUInteger count = [rows count];
  PSSpecifier *credits = [rows objectAtIndex:count - 2];
  EXPECT_NSEQ([credits name], @"Tessarin by Corvane");
  EXPECT_NSEQ([credits propertyForKey:@"cellClass"], NSClassFromString(@"TessarinCreditsCell"));
  PSSpecifier *more = [rows lastObject];
  EXPECT_NSEQ([more propertyForKey:@"footerText"], @"More apps by Corvane");
  EXPECT_NSEQ([more propertyForKey:@"footerCellClass"], @"TessarinLabelView");
  EXPECT_TRUE(sel_isEqual([more buttonAction], @selector(infoTapped:)));

  // Localised names come from the bundle's table.
  EXPECT_NSEQ([rowWithId(rows, @"TRUSTED_WIFI_NETWORKS") name], @"Trusted Wi-Fi networks");
  EXPECT_EQ([NSClassFromString(@"TessarinPrefsListController") performSelector:@selector(sharedInstance)], page);
}

TEST_F(RootPageTest, DeviceKindsDecideTheirRows) {
  const struct {
    const char *profile;
    NSString *authName;
    bool circleColour, vibrate;
    SEL load;
  } cases[] = {
      {"ipad-ios15", @"Touch ID", true, false, @selector(loadUserComplexPasswordController)},
      {"iphone-touchid-ios14", @"Touch ID", true, true, @selector(loadUserPasswordController)},
      {"iphone-ios17", @"Face ID & Passcode", false, true, @selector(loadUserPasswordController)},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.profile);
    StopSpringBoard();
    Start(c.profile);
    NSArray *rows = [OpenRootPage() specifiers];
    EXPECT_EQ(hasRow(rows, @"CIRCLE_COLOR"), c.circleColour);
    EXPECT_EQ(hasRow(rows, @"VIBRATE_ON_ERROR"), c.vibrate);
    EXPECT_FALSE(hasRow(rows, @"UNLOCK_WITH_TOUCHID"));
    ASSERT_GT([rows count], 9u);
    EXPECT_NSEQ([[rows objectAtIndex:8] name], c.authName);
    EXPECT_TRUE(sel_isEqual([[rows objectAtIndex:8] controllerLoadAction], c.load));
  }
}

TEST_F(RootPageTest, WithoutAnyPasscodeOnlyFourRowsStayUsable) {
  Start("iphone-nopasscode-ios16");
  NSArray *rows = [OpenRootPage() specifiers];
  NSSet *usable =
      [NSSet setWithObjects:@"PASSCODE_OPTIONS", @"CRASH_LOGS", @"RESET_ALL", @"TRUSTED_WIFI_NETWORKS", nil];
  NSArray *plistIds = @[ @"ENABLED_GROUP", @"ENABLED", @"KEEP_SESSION", @"APPLICATIONS", @"FOLDERS", @"EXTRAS" ];
  for (NSString *identifier in plistIds) {
    id enabled = [rowWithId(rows, identifier) propertyForKey:@"enabled"];
    EXPECT_NSEQ(enabled, @(NO)) << [identifier UTF8String];
  }
  for (NSString *identifier in usable) {
    PSSpecifier *row = rowWithId(rows, identifier);
    ASSERT_NE(row, nil) << [identifier UTF8String];
    EXPECT_EQ([row propertyForKey:@"enabled"], nil) << [identifier UTF8String];
  }
  // No device passcode: the row opens the system's own Face ID page.
  PSSpecifier *auth = [rows objectAtIndex:8];
  EXPECT_NSEQ([auth name], @"Face ID & Passcode");
  EXPECT_EQ([auth controllerLoadAction], (SEL)0);
}

TEST_F(RootPageTest, AProductPasscodeAloneUnlocksTheRows) {
  Start("iphone-nopasscode-ios16");
  Set(@"2580", "passcode");
  NSArray *rows = [OpenRootPage() specifiers];
  for (PSSpecifier *row in rows) EXPECT_EQ([row propertyForKey:@"enabled"], nil) << [rowId(row) UTF8String];
}

TEST_F(RootPageTest, AddOnsDecideTheTogglePages) {
  const struct {
    const char *what;
    NSArray *files;
    bool toggles, controlCenter, ccSettings;
  } cases[] = {
      {"no add-on", @[], false, true, false},
      {"toggle library at /usr/lib", @[ @"/usr/lib/libflipswitch.dylib" ], true, true, false},
      {"toggle library under /bootstrap", @[ @"/bootstrap/usr/lib/libflipswitch.dylib" ], true, true, false},
      {"FlipControlCenter under /bootstrap only",
       @[ @"/bootstrap/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib" ], false, false, false},
      {"FlipControlCenter under the jail root",
       @[ @"/var/jb/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib" ], false, false, false},
      {"CCSettings under the jail root only", @[ @"/var/jb/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib" ],
       false, false, false},
      {"CCSettings at /Library", @[ @"/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib" ], false, false,
       true},
      {"CCSettings under /bootstrap", @[ @"/bootstrap/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib" ],
       false, true, true},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.what);
    NSArray *files = c.files;
    StopSpringBoard();
    Start(SIM_DEFAULT_PROFILE, true, ^(NSMutableDictionary *profile) { [profile setObject:files forKey:@"files"]; });
    NSArray *rows = [OpenRootPage() specifiers];
    EXPECT_EQ(hasRow(rows, @"FLIPSWITCHES"), c.toggles);
    EXPECT_EQ(hasRow(rows, @"CONTROLCENTER"), c.controlCenter);
    EXPECT_EQ(hasRow(rows, @"CCSETTINGS_KEY"), c.ccSettings);
  }
}

TEST_F(RootPageTest, GracePeriodOnATrustedNetworkShowsTheGraceWarning) {
  Start();
  Set(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Home Network"} ], "allowedWiFis");
  int token = NOTIFY_TOKEN_INVALID;
  ASSERT_EQ(notify_register_check("net.corvane.tessarin.graceperiod", &token), (uint32_t)NOTIFY_STATUS_OK);
  notify_set_state(token, 1);

  NSArray *rows = [OpenRootPage() specifiers];
  ASSERT_GT([rows count], 11u);
  EXPECT_NSEQ(rowId([rows objectAtIndex:0]), @"TRUSTED_WARNING_GROUP");
  PSSpecifier *warning = [rows objectAtIndex:1];
  EXPECT_NSEQ(rowId(warning), @"TRUSTED_WARNING");
  EXPECT_NSEQ([warning name],
              @"Tessarin is disabled.\n(You have authenticated once after unlock \nand you use \"Grace Period\")");
  EXPECT_EQ([[warning propertyForKey:@"height"] doubleValue], 70.0);
  EXPECT_NSEQ([warning propertyForKey:@"cellClass"], NSClassFromString(@"TessarinTrustedWiFiWarningCell"));
  // The device-authentication rows move down by the two warning rows.
  EXPECT_NSEQ([[rows objectAtIndex:10] name], @"Face ID & Passcode");
}

TEST_F(RootPageTest, ATrustedNetworkAloneShowsTheNetworkWarning) {
  Start();
  Set(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Home Network"} ], "allowedWiFis");
  NSArray *rows = [OpenRootPage() specifiers];
  PSSpecifier *warning = rowWithId(rows, @"TRUSTED_WARNING");
  ASSERT_NE(warning, nil);
  EXPECT_NSEQ([warning name], @"Tessarin is disabled.\n(You are connected to a Trusted WiFi Network)");
  EXPECT_EQ([[warning propertyForKey:@"height"] doubleValue], 45.0);
}

TEST_F(RootPageTest, AnUntrustedNetworkShowsNoWarning) {
  Start(SIM_DEFAULT_PROFILE, true,
        ^(NSMutableDictionary *profile) { setCurrentNetwork(profile, @"00:1a:2b:3c:4d:5e"); });
  Set(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Home Network"} ], "allowedWiFis");
  EXPECT_FALSE(hasRow([OpenRootPage() specifiers], @"TRUSTED_WARNING"));
}

TEST_F(RootPageTest, WithoutSpringBoardOnlyTheLibraryNoticeShows) {
  Start(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  PSListController *page = OpenRootPage();
  NSArray *rows = [page specifiers];
  ASSERT_EQ([rows count], 1u);
  // Nothing answered at load either: no version text, no prompt.
  EXPECT_EQ([[[page performSelector:@selector(versionLabel)] text] length], 0u);
  EXPECT_EQ(PresentedAlert(page, 0.5), nil);
  NSString *footer = [[rows objectAtIndex:0] propertyForKey:@"footerText"];
  EXPECT_NSEQ(footer, kLibraryMissing);
}

TEST_F(RootPageTest, ALibraryVersionOfZeroCountsAsNotLoaded) {
  Start(SIM_DEFAULT_PROFILE, true,
        ^(NSMutableDictionary *profile) { setSpringBoardFact(profile, @"libraryVersion", @(0)); });
  NSArray *rows = [OpenRootPage() specifiers];
  ASSERT_EQ([rows count], 1u);
  EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], kLibraryMissing);
}

TEST_F(RootPageTest, AnUnsupportedSystemShowsOnlyItsNotice) {
  Start("iphone-ios11");
  NSArray *rows = [OpenRootPage() specifiers];
  ASSERT_EQ([rows count], 1u);
  EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"],
              @"This app is optimized only for iOS 12 to iOS 16.");
}

TEST_F(RootPageTest, ASpringBoardThatStopsAnsweringWarnsButThePageIsBuilt) {
  Start(SIM_DEFAULT_PROFILE, true,
        ^(NSMutableDictionary *profile) { setSpringBoardFact(profile, @"libraryVersionReplies", @(1)); });
  PSListController *page = OpenRootPage();
  NSArray *rows = [page specifiers];
  EXPECT_GT([rows count], 10u);
  EXPECT_TRUE(hasRow(rows, @"APPLICATIONS"));
  EXPECT_TRUE(*BundleSymbol<BOOL *>("springBoardEmergency"));
  UIAlertController *alert = PresentedAlert(page);
  ASSERT_NE(alert, nil);
  EXPECT_NSEQ([alert title], @"Tessarin Nova");
  EXPECT_NSEQ([alert message], @"WARNING! Tessarin Nova cannot communicate with SpringBoard. Your device may be in "
                               @"safe mode or the Tessarin library is missing. Try to respring or to re-install "
                               @"Tessarin and mobilesubstrate");
  EXPECT_NSEQ(actionTitles(alert), @[ @"Okay" ]);
  EXPECT_EQ([[[alert actions] objectAtIndex:0] style], UIAlertActionStyleCancel);
  Choose(alert, @"Okay");
  EXPECT_EQ([page presentedViewController], nil);
}

TEST_F(RootPageTest, TheHeaderShowsTheLibraryVersion) {
  Start(SIM_DEFAULT_PROFILE, true,
        ^(NSMutableDictionary *profile) { setSpringBoardFact(profile, @"libraryVersion", @(0x010203)); });
  // The header is made as the view loads, from the version the rows cached when they were built;
  // the page opened again shows it.
  OpenRootPage();
  PSListController *page = OpenRootPage();
  UILabel *label = [page performSelector:@selector(versionLabel)];
  ASSERT_NE(label, nil);
  EXPECT_NSEQ([label text], @"v1.2-3");
  EXPECT_EQ([label textAlignment], NSTextAlignmentRight);
  EXPECT_EQ([[label font] pointSize], 12);
  [[page view] setFrame:CGRectMake(0, 0, 400, 800)];
  [page viewDidLayoutSubviews];
  EXPECT_TRUE(CGRectEqualToRect([label frame], CGRectMake(0, 0, 394, 17)));
  EXPECT_EQ([[page table] tableHeaderView], [page performSelector:@selector(headerView)]);
}

TEST_F(RootPageTest, TheFirstRunPromptAsksForBiometricsOrAPasscode) {
  Start("iphone-nopasscode-ios16");
  PSListController *page = OpenRootPage();
  UIAlertController *alert = PresentedAlert(page);
  ASSERT_NE(alert, nil);
  EXPECT_NSEQ([alert title], @"Tessarin");
  EXPECT_NSEQ([alert message], @"You do not have Face ID set. To enable this application, you must have FaceID or a "
                               @"Tessarin passcode set. Would you like to setup one now?");
  EXPECT_NSEQ(actionTitles(alert), (@[ @"Setup Face ID", @"Set Tessarin Passcode", @"No" ]));
}

TEST_F(RootPageTest, SetupOnIOS16ShowsOnlyTheNoticeAndPushesNothing) {
  Start("iphone-nopasscode-ios16");
  PSListController *page = OpenRootPage();
  UIAlertController *alert = PresentedAlert(page);
  ASSERT_NE(alert, nil);
  UINavigationController *root = settingsRoot();
  NSUInteger depth = [[root viewControllers] count];
  Choose(alert, @"Setup Face ID");
  UIAlertController *notice = PresentedAlert(page);
  ASSERT_NE(notice, nil);
  EXPECT_NSEQ(
      [notice message],
      @"You are jailbroken on iOS 16.x\nIn this case, a passcode is not allowed by default, so in order to use "
      @"Face ID, you need to use a tweak that enables passcode and Face ID first, such as checkL0ck. Follow the "
      @"tweak's instructions to add a passcode and Face ID first, then you can use Tessarin with Face ID.");
  EXPECT_NSEQ(actionTitles(notice), @[ @"Okay" ]);
  EXPECT_EQ([[root viewControllers] count], depth);
}

TEST_F(RootPageTest, WithAProductPasscodeTheFirstRunPromptNeverShows) {
  Start("iphone-nopasscode-ios16");
  Set(@"2580", "passcode");
  PSListController *page = OpenRootPage();
  EXPECT_EQ(PresentedAlert(page, 1.0), nil);
}

TEST_F(RootPageTest, ResetAllRemovesEveryKeyPostsOnceAndLeaves) {
  Start();
  Set(@"2580", "passcode");
  Set(@[ @"com.apple.mobilesafari" ], "protected");
  Set(@(NO), "Enabled");
  PSListController *page = OpenInSettings();
  ASSERT_TRUE([page isKindOfClass:NSClassFromString(@"TessarinPrefsListController")]);
  PSSpecifier *reset = rowWithId([page specifiers], @"RESET_ALL");
  ASSERT_NE(reset, nil);
  unsigned posts = SimNotifyPostCount(kPrefsChanged);

  ASSERT_TRUE(SimListControllerTapSpecifier(page, reset));
  UIAlertController *question = PresentedAlert(page);
  ASSERT_NE(question, nil);
  EXPECT_NSEQ(actionTitles(question), (@[ @"Cancel", @"Reset" ]));
  EXPECT_NSEQ([question message], @"This will reset all settings to defaults, including any apps or toggles that "
                                  @"you have set as protected. Do you want to continue?");

  Choose(question, @"Reset");
  EXPECT_EQ([StoredPreferences() count], 0u);
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 1);
  UIAlertController *done = PresentedAlert(page);
  ASSERT_NE(done, nil);
  EXPECT_NSEQ([done message], @"All Tessarin settings have been reset to defaults.");
  EXPECT_NSEQ(actionTitles(done), @[ @"OK" ]);

  // The phone's Settings goes back to its list: the product's pane is gone from the screen.
  Choose(done, @"OK");
  UIViewController *shown = SimSettingsWindowRootController();
  ASSERT_TRUE([shown isKindOfClass:[UINavigationController class]]);
  EXPECT_EQ([(UINavigationController *)shown topViewController], [SimSettingsRootController() rootListController]);
}

TEST_F(RootPageTest, OnAnIPadTheResetLeavesThePageBesideTheList) {
  Start("ipad-ios15");
  PSListController *page = OpenInSettings();
  [page performSelector:@selector(resetAllTessarinSettings:) withObject:nil];
  UIAlertController *question = PresentedAlert(page);
  ASSERT_NE(question, nil);
  Choose(question, @"Reset");
  UIAlertController *done = PresentedAlert(page);
  ASSERT_NE(done, nil);
  Choose(done, @"OK");
  // The list is beside the page already: nothing is popped.
  EXPECT_EQ([SimSettingsRootController() topViewController], page);
  EXPECT_TRUE([SimSettingsWindowRootController() isKindOfClass:[PSSplitViewController class]]);
}

TEST_F(RootPageTest, CancellingTheResetKeepsEverything) {
  Start();
  Set(@"2580", "passcode");
  PSListController *page = OpenRootPage();
  unsigned posts = SimNotifyPostCount(kPrefsChanged);
  [page performSelector:@selector(resetAllTessarinSettings:) withObject:nil];
  UIAlertController *question = PresentedAlert(page);
  ASSERT_NE(question, nil);
  Choose(question, @"Cancel");
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"2580");
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(RootPageTest, TheSessionSwitchRebuildsThePage) {
  Start();
  PSListController *page = OpenRootPage();
  NSArray *before = [[[page specifiers] retain] autorelease];  // kept alive, so a new list cannot reuse its address
  PSSpecifier *session = rowWithId(before, @"KEEP_SESSION");
  ASSERT_NE(session, nil);
  [page setPreferenceValue:@(YES) specifier:session];
  EXPECT_NE([page specifiers], before);
  EXPECT_NSEQ([StoredPreferences() objectForKey:[session propertyForKey:@"key"]], @(YES));

  NSArray *rebuilt = [page specifiers];
  PSSpecifier *enabled = rowWithId(rebuilt, @"ENABLED");
  [page setPreferenceValue:@(NO) specifier:enabled];
  EXPECT_EQ([page specifiers], rebuilt);
}

TEST_F(RootPageTest, TheCatalogueLinkOpensTheMakersPage) {
  Start();
  PSListController *page = OpenRootPage();
  [page performSelector:@selector(infoTapped:) withObject:nil];
  NSArray *opened = SimOpenedURLs();
  ASSERT_EQ([opened count], 1u);
  EXPECT_NSEQ([[opened objectAtIndex:0] absoluteString], @"https://corvane.example/apps");
  // Opened without options (the browser, not an app claiming the link) and not through
  // the call deprecated since iOS 10.
  EXPECT_NSEQ([SimOpenedURLOptions() objectAtIndex:0], [NSDictionary dictionary]);
}

// With a device passcode, the device-authentication row and the first-run prompt's "Setup"
// present the device-passcode check modally, in a navigation controller of its own.
TEST_F(RootPageTest, TheDeviceAuthenticationWaysPresentThePasscodeCheck) {
  const struct {
    const char *what;
    const char *profile;
    bool fromPrompt;
    NSString *pageClass;
  } cases[] = {
      {"Face ID row, six digits", SIM_DEFAULT_PROFILE, false, @"TessarinUserPasscodeController"},
      {"Touch ID row, letters", "ipad-ios15", false, @"TessarinUserComplexPasscodeController"},
      {"Setup Face ID, six digits", SIM_DEFAULT_PROFILE, true, @"TessarinUserPasscodeController"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.what);
    StopSpringBoard();
    if (c.fromPrompt)
      Start(c.profile, true,
            ^(NSMutableDictionary *profile) { [profile setObject:@(NO) forKey:@"biometricsEnrolled"]; });
    else
      Start(c.profile);
    PSListController *page = OpenInSettings();
    if (c.fromPrompt) {
      UIAlertController *prompt = PresentedAlert(page);
      ASSERT_NE(prompt, nil);
      Choose(prompt, @"Setup Face ID");
    } else {
      PSSpecifier *row = [[page specifiers] objectAtIndex:8];
      ASSERT_TRUE(SimListControllerTapSpecifier(page, row));
    }
    SimRunLoopRunFor(SimTransitionDuration + 0.1);
    UIViewController *modal = [page presentedViewController];
    ASSERT_TRUE([modal isKindOfClass:[UINavigationController class]]);
    UIViewController *check = [(UINavigationController *)modal topViewController];
    EXPECT_NSEQ(NSStringFromClass([check class]), c.pageClass);
    EXPECT_EQ([[SimSettingsRootController() viewControllers] count], 1u);  // nothing pushed
    SimSettingsReset();
  }
}

TEST_F(RootPageTest, OlderSystemsReadThePasscodeCharacteristicsDirectly) {
  // iOS 13: the passcode manager has no private record; an alphanumeric passcode takes the complex check.
  Start("iphone-touchid-ios14", true, ^(NSMutableDictionary *profile) {
    [profile setObject:@"13.7" forKey:@"systemVersion"];
    [profile setObject:@"abcd" forKey:@"devicePasscode"];
    [profile removeObjectForKey:@"passcodeCharacteristics"];
  });
  id manager = [NSClassFromString(@"MCPasscodeManager") performSelector:@selector(sharedManager)];
  EXPECT_FALSE([manager respondsToSelector:@selector(_privatePasscodeDictWithOutError:)]);
  NSArray *rows = [OpenRootPage() specifiers];
  ASSERT_GT([rows count], 9u);
  EXPECT_NSEQ([[rows objectAtIndex:8] name], @"Touch ID");
  EXPECT_TRUE(sel_isEqual([[rows objectAtIndex:8] controllerLoadAction], @selector(loadUserComplexPasswordController)));
}

TEST_F(RootPageTest, TheFirstRunPromptCanOpenThePasscodePage) {
  Start("iphone-nopasscode-ios16");
  PSListController *page = OpenRootPage();
  UIAlertController *alert = PresentedAlert(page);
  ASSERT_NE(alert, nil);
  Choose(alert, @"Set Tessarin Passcode");
  SimRunLoopRunFor(SimTransitionDuration + 0.1);
  Class passcodePage = NSClassFromString(@"TessarinPasscodeSettingsController");
  UIViewController *top = [settingsRoot() topViewController];
  if (passcodePage != Nil)
    EXPECT_TRUE([top isKindOfClass:passcodePage]) << [NSStringFromClass([top class]) UTF8String];
  else
    EXPECT_EQ(top, page);
}

TEST_F(RootPageTest, ATouchIdPhoneWithoutPasscodeOpensTheSystemPageAndWarnsOnlyUnderTheLoader) {
  const struct {
    const char *what;
    double cornerRadius;
    bool loaderInstalled, notice;
  } cases[] = {
      {"rounded corners, loader installed", 20, true, true},
      {"square corners, loader installed", 0, true, false},
      {"rounded corners, no loader", 20, false, false},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.what);
    const double radius = c.cornerRadius;
    const bool loader = c.loaderInstalled;
    StopSpringBoard();
    Start("iphone-touchid-ios14", true, ^(NSMutableDictionary *profile) {
      [profile removeObjectForKey:@"devicePasscode"];
      [profile removeObjectForKey:@"passcodeCharacteristics"];
      [profile setObject:@(NO) forKey:@"biometricsEnrolled"];
      [profile setObject:@(radius) forKey:@"deviceCornerRadius"];
      if (loader) {
        NSMutableArray *apps = [[[profile objectForKey:@"apps"] mutableCopy] autorelease];
        [apps addObject:@{@"bundleIdentifier" : @"kjc.loader", @"displayName" : @"loader"}];
        [profile setObject:apps forKey:@"apps"];
      }
    });
    PSListController *page = OpenRootPage();

    // Without a device passcode the row leads straight to the system's own page.
    NSArray *rows = [page specifiers];
    ASSERT_GT([rows count], 9u);
    PSSpecifier *auth = [rows objectAtIndex:8];
    EXPECT_NSEQ([auth name], @"Touch ID");
    EXPECT_EQ([auth detailControllerClass], NSClassFromString(@"PSTouchIDPasscodeController"));
    EXPECT_EQ([auth controllerLoadAction], (SEL)0);

    UIAlertController *prompt = PresentedAlert(page);
    ASSERT_NE(prompt, nil);
    EXPECT_NSEQ(actionTitles(prompt), (@[ @"Setup Touch ID", @"Set Tessarin Passcode", @"No" ]));
    Choose(prompt, @"Setup Touch ID");
    SimRunLoopRunFor(SimTransitionDuration + 0.1);

    UIViewController *top = [settingsRoot() topViewController];
    EXPECT_TRUE([top isKindOfClass:NSClassFromString(@"PSMesaSettingsController")])
        << [NSStringFromClass([top class]) UTF8String];
    UIAlertController *notice = PresentedAlert(top, c.notice ? 2.0 : 0.5);
    EXPECT_EQ(notice != nil, c.notice);
    if (notice != nil) {
      EXPECT_NSEQ([notice title], @"Tessarin");
      EXPECT_NSEQ([notice message],
                  @"Checkr4in jailbreak detected on iOS 14.x!\nIn this case, a passcode is not allowed so in order "
                  @"to use Face ID/Touch ID, you need to add a fingerprint or Face ID first, then attempt to add a "
                  @"passcode and let the phone crash and reboot. Then the biometrics will have been added but the "
                  @"passcode will still be empty, allowing the jailbreak to function.");
      EXPECT_NSEQ(actionTitles(notice), @[ @"Okay" ]);
      EXPECT_EQ([[[notice actions] objectAtIndex:0] style], UIAlertActionStyleCancel);
    }
    SimSettingsReset();
  }
}

TEST_F(RootPageTest, TheGracePeriodTokenIsRegisteredOnceHoweverOftenRowsAreBuilt) {
  Start();
  const char *const grace = "net.corvane.tessarin.graceperiod";
  PSListController *page = OpenRootPage();
  for (int rebuild = 0; rebuild < 3; rebuild++) {
    [page reloadSpecifiers];
    [page specifiers];
  }
  OpenRootPage();
  EXPECT_EQ(SimNotifyRegistrationCount(grace), 1u);  // one token for the life of the process
}
