// The passcode pages in the simulated Settings app: the settings page's rows
// and footers, the set, remove and change flows typed into the digit field,
// the reset from SpringBoard, and the device-passcode check.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSRootController.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSPasscodeField.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/SimSystemFiles.h>
#include <notify.h>
#include <objc/runtime.h>
#import "BundleFixture.h"
#import "SettingsHost.h"

@interface NSObject (PasscodeTestsPages)
- (id)initWithParent:(id)parent;
- (id)passcodeField;
- (id)label;
- (id)warnLabel;
- (void)cancelAndCleanup;
- (void)addPassword;
- (void)changePassword;
- (void)removePassword;
- (void)forgotTapped:(id)sender;
- (int)errorCount;
- (BOOL)textFieldShouldReturn:(id)field;
@end

namespace {

// Long enough for every delayed step of a flow (close after 1.0 s or 1.5 s,
// push after 1.7 s) plus the animated dismissal, with room on a loaded machine.
constexpr double kFlowSettle = 2.5;
// One slide or shake and its completions.
constexpr double kAnimationSettle = 0.8;

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";

NSString *const kFaceIDFooter =
    @"In this page you can add a recovery passcode in cases where your BiometricID is repeatedly not "
    @"recognized. This passcode is different from your device passcode. If you forgot your passcode, you can "
    @"clear it using  FaceID. I forgot my passcode...";
NSString *const kTouchIDFooter =
    @"In this page you can add a recovery passcode in cases where your BiometricID is repeatedly not "
    @"recognized. This passcode is different from your device passcode. If you forgot your passcode, you can "
    @"clear it using TouchID. I forgot my passcode...";
NSString *const kPlainFooter =
    @"In this page you can add them main Tessarin passcode. This passcode is different from your device "
    @"passcode.";

NSArray *rowIDs(NSArray *specifiers) {
  NSMutableArray *ids = [NSMutableArray array];
  for (NSUInteger i = 1; i < [specifiers count]; i++) {
    id rowID = [[specifiers objectAtIndex:i] propertyForKey:@"id"];
    [ids addObject:rowID != nil ? rowID : @"?"];
  }
  return ids;
}

NSString *footerOf(PSSpecifier *group) {
  id footer = [group propertyForKey:@"footerText"];
  return footer;
}

void removeSensors(NSMutableDictionary *profile) { [profile setObject:[NSArray array] forKey:@"ioServices"]; }

// The product's English text for `key`, as its strings file gives it.
NSString *Localized(NSString *key) {
  NSBundle *bundle = [NSBundle bundleForClass:NSClassFromString(@"TessarinPasscodeController")];
  NSString *path = [[bundle bundlePath] stringByAppendingPathComponent:@"en.lproj/Localizable.strings"];
  NSString *file = [NSString stringWithContentsOfFile:path encoding:NSUTF8StringEncoding error:NULL];
  NSDictionary *strings = [file propertyListFromStringsFileFormat];
  id text = [strings objectForKey:key];
  EXPECT_NE(text, nil) << [key UTF8String] << " in " << [path UTF8String];
  return text;
}

// The title the navigation bar shows over a page.
NSString *BarTitle(id page) { return [[[[page navigationController] navigationBar] topItem] title]; }

unsigned soundsPlayed(unsigned soundID) {
  unsigned count = 0;
  for (NSNumber *played in SimPlayedSystemSounds())
    if ([played unsignedIntValue] == soundID) count++;
  return count;
}

}  // namespace

class PasscodePagesTest : public BundleTest {
 protected:
  void Start(const char *profile = SIM_DEFAULT_PROFILE, void (^edit)(NSMutableDictionary *) = nil) {
    StopSpringBoard();
    StartDevice(profile, true, edit);
    ASSERT_EQ(SimInstallSystemFiles(Root().c_str()), 0);
    // The Face ID answer is kept for the process; each device asks again.
    if (BOOL *asked = BundleSymbol<BOOL *>("hasSetPearl")) *asked = NO;
    if (BOOL *pearl = BundleSymbol<BOOL *>("hasPearlCam")) *pearl = NO;
    SimSettingsReset();
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  }

  void TearDown() override {
    SimSettingsReset();
    BundleTest::TearDown();
  }

  UINavigationController *RootNavigation() { return SimSettingsRootController(); }

  void StorePasscode(id value) {
    auto set = BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey");
    if (set != nullptr) set(value, "passcode");
  }

  id StoredPasscode() {
    auto get = BundleSymbol<id (*)(const char *)>("prefsValueForKey");
    return get != nullptr ? get("passcode") : nil;
  }

  // The product's root page, opened from its row of the Settings list.
  PSListController *OpenRootPage() { return (PSListController *)OpenProductFromSettingsList(); }

  // The passcode settings page, pushed as its row pushes it: onto the product's pane when
  // a page shows there, else as the pane's first page.
  PSListController *OpenSettingsPage() {
    Class pageClass = NSClassFromString(@"TessarinPasscodeSettingsController");
    EXPECT_NE(pageClass, Nil);
    PSListController *page = [[[pageClass alloc] init] autorelease];
    PSListController *from = (PSListController *)[RootNavigation() topViewController];
    if (from == nil) from = [(PSRootController *)RootNavigation() rootListController];
    [from pushController:page animate:NO];
    [page view];
    SimRunLoopRunFor(0.1);
    return page;
  }

  // Opens one of the modal pages from the settings page and returns it.
  id OpenModal(PSListController *settings, SEL action) {
    [settings performSelector:action];
    SimRunLoopRunFor(0.5);
    UINavigationController *modal = (UINavigationController *)[settings presentedViewController];
    EXPECT_NE(modal, nil);
    id page = [[modal childViewControllers] count] > 0 ? [[modal childViewControllers] objectAtIndex:0] : nil;
    EXPECT_NE(page, nil);
    [page view];
    return page;
  }

  // One complete entry, as the digit field reports it once its boxes are full.
  void Type(id page, NSString *entry, double settle = kAnimationSettle) {
    SimPasscodeFieldType([page passcodeField], entry);
    SimRunLoopRunFor(settle);
  }

  NSString *Prompt(id page) { return [[page label] text]; }
  NSString *Warning(id page) { return [[page warnLabel] text]; }
};

// MARK: - Settings page rows and footers

TEST_F(PasscodePagesTest, SettingsRowsFollowThePasscodeAndTheHardware) {
  struct Case {
    const char *what;
    const char *profile;
    bool noBiometrics;
    bool stored;
    NSArray *rows;
    NSString *footer;
    bool link;
  };
  const Case cases[] = {
      {"Face ID, no passcode", "iphone-faceid-ios16", false, false, @[ @"ADD_TESSARIN_PASSCODE" ],
       @"In this page you can add a Tessarin passcode in cases where your face is repeatedly not recognized. "
       @"This passcode is different from your device passcode.",
       false},
      {"Touch ID, no passcode", "iphone-touchid-ios14", false, false, @[ @"ADD_TESSARIN_PASSCODE" ],
       @"In this page you can add a Tessarin passcode in cases where your fingerprint is repeatedly not "
       @"recognized. This passcode is different from your device passcode.",
       false},
      {"no sensor, passcode", "iphone-faceid-ios16", true, true,
       @[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE" ], kPlainFooter, false},
      {"no sensor, no passcode", "iphone-faceid-ios16", true, false, @[ @"ADD_TESSARIN_PASSCODE" ], kPlainFooter,
       false},
      {"Face ID, passcode", "iphone-faceid-ios16", false, true,
       @[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE", @"USE_ONLY_TESSARIN_PASSCODE" ], kFaceIDFooter,
       true},
      {"Touch ID, passcode", "iphone-touchid-ios14", false, true,
       @[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE", @"USE_ONLY_TESSARIN_PASSCODE" ], kTouchIDFooter,
       true},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    void (^noSensor)(NSMutableDictionary *) = ^(NSMutableDictionary *p) { removeSensors(p); };
    if (c.noBiometrics)
      Start(c.profile, noSensor);
    else
      Start(c.profile);
    if (c.stored) StorePasscode(@"2468");
    PSListController *page = OpenSettingsPage();
    NSArray *specifiers = [page specifiers];
    ASSERT_GE([specifiers count], 1u);
    PSSpecifier *group = [specifiers objectAtIndex:0];
    EXPECT_NSEQ(rowIDs(specifiers), c.rows);
    EXPECT_NSEQ(footerOf(group), c.footer);
    if (c.link) {
      NSUInteger length = [c.footer length];
      EXPECT_NSEQ([group propertyForKey:@"footerCellClass"], @"PSFooterHyperlinkView");
      EXPECT_NSEQ([group propertyForKey:@"footerHyperlinkRange"], NSStringFromRange(NSMakeRange(length - 24, 23)));
      EXPECT_NSEQ([c.footer substringWithRange:NSMakeRange(length - 24, 23)], @" I forgot my passcode..");
      EXPECT_NSEQ([group propertyForKey:@"headerFooterHyperlinkButtonTitle"], c.footer);
      EXPECT_NSEQ([group propertyForKey:@"footerHyperlinkAction"], @"forgotTapped:");
      NSValue *target = [group propertyForKey:@"footerHyperlinkTarget"];
      ASSERT_TRUE([target isKindOfClass:[NSValue class]]);
      id held = nil;
      [target getValue:&held];
      EXPECT_EQ(held, page);
    } else {
      EXPECT_EQ([group propertyForKey:@"footerCellClass"], nil);
      EXPECT_EQ([group propertyForKey:@"footerHyperlinkRange"], nil);
    }
    [RootNavigation() popToRootViewControllerAnimated:NO];
    SimRunLoopRunFor(0.05);
  }
}

TEST_F(PasscodePagesTest, FaceIDRenamesTheUseOnlySwitch) {
  Start();
  StorePasscode(@"2468");
  PSListController *page = OpenSettingsPage();
  NSArray *specifiers = [page specifiers];
  PSSpecifier *useOnly = [specifiers lastObject];
  EXPECT_NSEQ([useOnly name], @"Use only passcode (no FaceID)");
  EXPECT_NSEQ([useOnly propertyForKey:@"label"], @"Use only passcode (no FaceID)");
  EXPECT_NSEQ([useOnly propertyForKey:@"key"], @"useOnlyPasscode");
  EXPECT_NSEQ([useOnly propertyForKey:@"defaults"], @"net.corvane.tessarin");
  EXPECT_NSEQ([[page navigationItem] title], Localized(@"PASSCODE_OPTIONS"));
  PSSpecifier *change = [specifiers objectAtIndex:1];
  EXPECT_NSEQ([change name], Localized(@"CHANGE_TESSARIN_PASSCODE"));
  EXPECT_EQ([change target], page);
  EXPECT_TRUE(sel_isEqual([change buttonAction], @selector(changePassword)));
}

// MARK: - Reset from SpringBoard

TEST_F(PasscodePagesTest, TheResetNotificationClearsThePasscodeAndRedrawsThePage) {
  Start();
  StorePasscode(@"1357");
  PSListController *page = OpenSettingsPage();
  ASSERT_NSEQ(rowIDs([page specifiers]),
              (@[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE", @"USE_ONLY_TESSARIN_PASSCODE" ]));
  unsigned changes = SimNotifyPostCount(kPrefsChanged);

  // Nothing was asked from this page: SpringBoard reset it on its own.
  notify_post("net.corvane.tessarin.passcodeReset");
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return StoredPasscode() == nil; }, 5.0));
  SimRunLoopRunFor(0.7);
  EXPECT_EQ([StoredPreferences() objectForKey:@"passcode"], nil);
  // Every load of a settings page in this process registered the callback once more.
  EXPECT_GE(SimNotifyPostCount(kPrefsChanged), changes + 1);
  EXPECT_NSEQ(rowIDs([page specifiers]), @[ @"ADD_TESSARIN_PASSCODE" ]);
}

TEST_F(PasscodePagesTest, TheForgottenPasscodeLinkAsksSpringBoardWhichResetsIt) {
  Start();
  StorePasscode(@"1357");
  PSListController *page = OpenSettingsPage();
  unsigned resets = SimNotifyPostCount("net.corvane.tessarin.passcodeReset");
  [page forgotTapped:nil];
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return StoredPasscode() == nil; }, 5.0));
  EXPECT_GT(SimNotifyPostCount("net.corvane.tessarin.passcodeReset"), resets);
  SimRunLoopRunFor(0.7);
  EXPECT_NSEQ(rowIDs([page specifiers]), @[ @"ADD_TESSARIN_PASSCODE" ]);
}

// MARK: - Set, remove and change flows

TEST_F(PasscodePagesTest, SetFlowStoresTheSameEntryTwiceAndShakesOnAMismatch) {
  Start();
  PSListController *settings = OpenSettingsPage();
  unsigned changes = SimNotifyPostCount(kPrefsChanged);
  id page = OpenModal(settings, @selector(addPassword));
  EXPECT_NSEQ(BarTitle(page), Localized(@"ADD_TESSARIN_PASSCODE"));
  EXPECT_NSEQ(Prompt(page), Localized(@"ENTER_TESSARIN_PASSCODE"));
  EXPECT_EQ([[page passcodeField] numberOfEntryFields], 4u);

  Type(page, @"1234");
  EXPECT_NSEQ(Prompt(page), Localized(@"REENTER_TESSARIN_PASSCODE"));
  Type(page, @"5678");
  EXPECT_NSEQ(Prompt(page), Localized(@"ENTER_TESSARIN_PASSCODE"));
  EXPECT_NSEQ(Warning(page), Localized(@"PASSCODES_DID_NOT_MATCH_TRY_AGAIN"));
  EXPECT_NSEQ([[page passcodeField] stringValue], @"");
  EXPECT_EQ(soundsPlayed(1011), 1u);
  EXPECT_EQ(StoredPasscode(), nil);

  // After a mismatch the next entry is a new first entry; leading zeros stay.
  Type(page, @"0007");
  EXPECT_NSEQ(Warning(page), @"");
  Type(page, @"0007", 0.1);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 1);
  SimRunLoopRunFor(kFlowSettle);
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"0007");
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), changes + 1);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
  EXPECT_EQ([settings presentedViewController], nil);
  EXPECT_NSEQ(rowIDs([settings specifiers]),
              (@[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE", @"USE_ONLY_TESSARIN_PASSCODE" ]));
}

TEST_F(PasscodePagesTest, CancelLeavesThePasscodeUntouched) {
  Start();
  StorePasscode(@"4321");
  PSListController *settings = OpenSettingsPage();
  unsigned changes = SimNotifyPostCount(kPrefsChanged);
  for (SEL action : { @selector(addPassword), @selector(changePassword), @selector(removePassword) }) {
    id page = OpenModal(settings, action);
    Type(page, @"1111");  // a first entry on the add page, a wrong one on the others
    [page cancelAndCleanup];
    SimRunLoopRunFor(0.6);
    EXPECT_EQ([settings presentedViewController], nil) << sel_getName(action);
  }
  EXPECT_NSEQ(StoredPasscode(), @"4321");
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), changes);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
}

TEST_F(PasscodePagesTest, RemoveDeletesTheKeyOnlyForTheStoredPasscode) {
  Start();
  StorePasscode(@"4321");
  PSListController *settings = OpenSettingsPage();
  unsigned changes = SimNotifyPostCount(kPrefsChanged);
  id page = OpenModal(settings, @selector(removePassword));
  EXPECT_NSEQ(BarTitle(page), Localized(@"REMOVE_TESSARIN_PASSCODE"));
  EXPECT_NSEQ(Prompt(page), Localized(@"ENTER_OLD_TESSARIN_PASSCODE"));

  Type(page, @"1234");
  EXPECT_NSEQ(Prompt(page), Localized(@"ENTER_OLD_TESSARIN_PASSCODE"));
  EXPECT_NSEQ(Warning(page), Localized(@"WRONG_PASSCODE_TRY_AGAIN"));
  EXPECT_NSEQ(StoredPasscode(), @"4321");

  Type(page, @"4321", kFlowSettle);
  NSDictionary *stored = StoredPreferences();
  EXPECT_EQ([stored objectForKey:@"passcode"], nil);  // absent, not an empty string
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), changes + 1);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
  EXPECT_NSEQ(rowIDs([settings specifiers]), @[ @"ADD_TESSARIN_PASSCODE" ]);
}

TEST_F(PasscodePagesTest, WithNothingStoredRemoveAndChangeCanOnlyShake) {
  Start();
  PSListController *settings = OpenSettingsPage();
  for (SEL action : { @selector(removePassword), @selector(changePassword) }) {
    id page = OpenModal(settings, action);
    for (NSString *entry in @[ @"0000", @"1234", @"9876" ]) {
      Type(page, entry);
      EXPECT_NSEQ(Warning(page), Localized(@"WRONG_PASSCODE_TRY_AGAIN")) << sel_getName(action);
    }
    [page cancelAndCleanup];
    SimRunLoopRunFor(0.6);
  }
  EXPECT_EQ([StoredPreferences() objectForKey:@"passcode"], nil);
  EXPECT_EQ(soundsPlayed(1011), 6u);
}

TEST_F(PasscodePagesTest, ChangeAsksOldThenNewTwiceAndKeepsTheAddTitle) {
  Start();
  StorePasscode(@"4321");
  PSListController *settings = OpenSettingsPage();
  unsigned changes = SimNotifyPostCount(kPrefsChanged);
  id page = OpenModal(settings, @selector(changePassword));
  EXPECT_NSEQ(BarTitle(page), Localized(@"ADD_TESSARIN_PASSCODE"));
  EXPECT_NSEQ(Prompt(page), Localized(@"ENTER_OLD_TESSARIN_PASSCODE"));

  struct Step {
    NSString *entry;
    NSString *prompt;
    NSString *warning;
  };
  const Step steps[] = {
      {@"9999", Localized(@"ENTER_OLD_TESSARIN_PASSCODE"), Localized(@"WRONG_PASSCODE_TRY_AGAIN")},
      {@"4321", Localized(@"ENTER_TESSARIN_PASSCODE"), @""},
      {@"1111", Localized(@"REENTER_TESSARIN_PASSCODE"), @""},
      // A mismatch goes back to the new passcode, not to the old one.
      {@"2222", Localized(@"ENTER_TESSARIN_PASSCODE"), Localized(@"PASSCODES_DID_NOT_MATCH_TRY_AGAIN")},
      {@"4321", Localized(@"REENTER_TESSARIN_PASSCODE"), @""},  // the old one may be chosen again
  };
  for (const Step &s : steps) {
    Type(page, s.entry);
    EXPECT_NSEQ(Prompt(page), s.prompt) << [s.entry UTF8String];
    EXPECT_NSEQ(Warning(page), s.warning) << [s.entry UTF8String];
    EXPECT_NSEQ(StoredPasscode(), @"4321");
  }
  Type(page, @"4321", kFlowSettle);
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"4321");
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), changes + 1);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
  EXPECT_EQ([settings presentedViewController], nil);
}

namespace {

// Reloads of the Settings list page, counted by an override added to its class
// (it inherits reloadSpecifiers otherwise).
unsigned settingsListReloads = 0;
IMP inheritedListReload = nullptr;

void countedListReload(id self, SEL cmd) {
  settingsListReloads++;
  ((void (*)(id, SEL))inheritedListReload)(self, cmd);
}

void countSettingsListReloads() {
  SEL reload = @selector(reloadSpecifiers);
  if (inheritedListReload == nullptr) {
    inheritedListReload = class_getMethodImplementation([PSListController class], reload);
    class_addMethod([PrefsListController class], reload, (IMP)countedListReload, "v@:");
  }
  settingsListReloads = 0;
}

}  // namespace

// A commit and the reset from SpringBoard rebuild the page on top of the
// product's pane, and never the Settings list beside or below it.
TEST_F(PasscodePagesTest, CommitAndResetRebuildThePaneButNotTheSettingsList) {
  Start();
  ASSERT_NE(OpenRootPage(), nil);
  PSListController *settings = OpenSettingsPage();
  PSListController *settingsList = [SimSettingsRootController() rootListController];
  ASSERT_NE(settingsList, nil);
  countSettingsListReloads();

  struct Change {
    const char *what;
    void (^run)(void);
  };
  const Change changes[] = {{"set", ^{id page = OpenModal(settings, @selector(addPassword));
  Type(page, @"2580");
  Type(page, @"2580", kFlowSettle);
}
}
, {"reset", ^{notify_post("net.corvane.tessarin.passcodeReset");
SimRunLoopRunFor(kFlowSettle);
}
}
,
}
;
for (const Change &c : changes) {
  SCOPED_TRACE(c.what);
  // Held, so that a rebuilt list cannot reuse the old one's address.
  unsigned listReloads = settingsListReloads;
  NSArray *settingsRows = [[settings specifiers] retain];
  c.run();
  EXPECT_NE([settings specifiers], settingsRows);
  EXPECT_EQ(settingsListReloads, listReloads);
  [settingsRows release];
}
EXPECT_EQ(StoredPasscode(), nil);
EXPECT_NSEQ(rowIDs([settings specifiers]), @[ @"ADD_TESSARIN_PASSCODE" ]);
}

// MARK: - Device passcode

class DevicePasscodeTest : public PasscodePagesTest {
 protected:
  // The digit page as the root page opens it: plain init, in a fresh navigation controller.
  id OpenDevicePage(NSString *className) {
    Class pageClass = NSClassFromString(className);
    EXPECT_NE(pageClass, Nil);
    id page = [[[pageClass alloc] init] autorelease];
    UINavigationController *modal = [[[UINavigationController alloc] init] autorelease];
    [modal addChildViewController:page];
    [[RootNavigation() topViewController] presentViewController:modal animated:YES completion:nil];
    SimRunLoopRunFor(0.5);
    [page view];
    return page;
  }

  NSUInteger StackDepth() { return [[RootNavigation() viewControllers] count]; }
};

TEST_F(DevicePasscodeTest, SixDigitPasscodeGivesSixBoxes) {
  Start(SIM_DEFAULT_PROFILE, ^(NSMutableDictionary *p) { [p setObject:@"123456" forKey:@"devicePasscode"]; });
  id page = OpenDevicePage(@"TessarinUserPasscodeController");
  EXPECT_EQ([[page passcodeField] numberOfEntryFields], 6u);
  EXPECT_NSEQ(Prompt(page), @"Enter your passcode");
  EXPECT_NSEQ(BarTitle(page), @"Enter Passcode");
  // Still centred on the page after the change.
  EXPECT_DOUBLE_EQ([[page passcodeField] center].x, [[page view] center].x);
}

TEST_F(DevicePasscodeTest, TwoWrongThenTheRightOneIsStillRefused) {
  Start();
  OpenRootPage();
  NSUInteger depth = StackDepth();
  id page = OpenDevicePage(@"TessarinUserPasscodeController");
  Type(page, @"000000");
  EXPECT_NSEQ(Warning(page), Localized(@"WRONG_PASSCODE_TRY_AGAIN"));
  EXPECT_NSEQ(Prompt(page), @"Enter your passcode");
  Type(page, @"111111");
  EXPECT_EQ([page errorCount], 2);
  Type(page, @"123456", 0.1);
  EXPECT_NSEQ(Warning(page), Localized(@"TOO_MANY_ATTEMPTS_SORRY"));
  EXPECT_NSEQ(Prompt(page), @"");
  EXPECT_EQ([[page passcodeField] alpha], 0.0);
  SimRunLoopRunFor(kFlowSettle);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
  EXPECT_EQ(StackDepth(), depth);
  EXPECT_EQ(soundsPlayed(1011), 2u);
}

TEST_F(DevicePasscodeTest, TouchIDDeviceUsesTheFirstFingerprintPage) {
  Start("iphone-touchid-ios14");
  NSString *passcode = [SimDeviceProfile() objectForKey:@"devicePasscode"];
  ASSERT_NE(passcode, nil);
  OpenRootPage();
  NSUInteger depth = StackDepth();
  id page = OpenDevicePage(@"TessarinUserComplexPasscodeController");
  EXPECT_NSEQ(BarTitle(page), @"Enter Passcode");
  [[page passcodeField] setText:passcode];
  EXPECT_TRUE([page textFieldShouldReturn:[page passcodeField]]);
  SimRunLoopRunFor(kFlowSettle);
  ASSERT_EQ(StackDepth(), depth + 1);
  EXPECT_NSEQ(NSStringFromClass([[RootNavigation() topViewController] class]), @"PSMesaSettingsController");
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
}

TEST_F(DevicePasscodeTest, WithoutSystemPagesTheEntryIsRefused) {
  Start(SIM_DEFAULT_PROFILE, ^(NSMutableDictionary *p) { [p setObject:[NSArray array] forKey:@"systemControllers"]; });
  OpenRootPage();
  NSUInteger depth = StackDepth();
  id page = OpenDevicePage(@"TessarinUserPasscodeController");
  Type(page, @"123456");
  EXPECT_NSEQ(Warning(page), Localized(@"WRONG_PASSCODE_TRY_AGAIN"));
  SimRunLoopRunFor(kFlowSettle);
  EXPECT_EQ(StackDepth(), depth);
}

// MARK: - Delays, on the stopped clock

namespace {

// Whether `what` holds only once the clock is moved on by exactly `delay`: not a
// millisecond before.
void expectAtExactly(double delay, BOOL (^what)(void), const char *name) {
  SimClockAdvance(delay - 0.001);
  EXPECT_FALSE(what()) << name << " before " << delay << " s";
  SimClockAdvance(0.001);
  EXPECT_TRUE(what()) << name << " at " << delay << " s";
}

BOOL (^const touchesBack)(void) = ^BOOL { return SimIgnoringInteractionEventsCount() == 0; };

}  // namespace

TEST_F(PasscodePagesTest, ACommitRebuildsThePageAgainAndClosesAfterOneSecond) {
  Start();
  PSListController *settings = OpenSettingsPage();
  id page = OpenModal(settings, @selector(addPassword));
  Type(page, @"2580");
  SimClockUseVirtualTime();
  Type(page, @"2580", 0);
  NSArray *rebuiltAtOnce = [[[settings specifiers] retain] autorelease];
  EXPECT_NSEQ(rowIDs(rebuiltAtOnce),
              (@[ @"CHANGE_TESSARIN_PASSCODE", @"REMOVE_TESSARIN_PASSCODE", @"USE_ONLY_TESSARIN_PASSCODE" ]));
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 1);
  expectAtExactly(
      1.0, ^BOOL { return [settings specifiers] != rebuiltAtOnce && touchesBack(); }, "commit");
  SimClockAdvance(SimTransitionDuration);
  EXPECT_EQ([settings presentedViewController], nil);
}

TEST_F(DevicePasscodeTest, TheThirdEntryClosesThePageAfterOneAndAHalfSeconds) {
  Start();
  OpenRootPage();
  id page = OpenDevicePage(@"TessarinUserPasscodeController");
  Type(page, @"000000");
  Type(page, @"111111");
  SimClockUseVirtualTime();
  Type(page, @"123456", 0);
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 1);
  expectAtExactly(1.5, touchesBack, "refusal");
}

TEST_F(DevicePasscodeTest, TheRightPasscodeClosesAfterPointEightAndPushesAtOnePointSeven) {
  Start();
  OpenRootPage();
  NSUInteger depth = StackDepth();
  id page = OpenDevicePage(@"TessarinUserPasscodeController");
  SimClockUseVirtualTime();
  Type(page, @"123456", 0);
  expectAtExactly(0.8, touchesBack, "dismissal");
  expectAtExactly(
      0.9, ^BOOL { return StackDepth() == depth + 1; }, "push");
  EXPECT_NSEQ(NSStringFromClass([[RootNavigation() topViewController] class]), @"PSUIPearlPasscodeController");
}

// MARK: - Look of the entry page

namespace {

void expectBackground(id page, int red, int green, int blue) {
  CGFloat r = 0, g = 0, b = 0, a = 0;
  ASSERT_TRUE([[[page view] backgroundColor] getRed:&r green:&g blue:&b alpha:&a]);
  EXPECT_NEAR(r * 255.0, red, 0.01);
  EXPECT_NEAR(g * 255.0, green, 0.01);
  EXPECT_NEAR(b * 255.0, blue, 0.01);
  EXPECT_EQ(a, 1.0);
}

}  // namespace

TEST_F(PasscodePagesTest, DarkDevicesGetAMidGreyPageAndLightOnesAPaleOne) {
  Start();  // a dark profile
  id page = OpenModal(OpenSettingsPage(), @selector(addPassword));
  expectBackground(page, 137, 137, 142);
  EXPECT_EQ([page supportedInterfaceOrientations], 2u);
  CGRect field = [[page passcodeField] frame];
  EXPECT_DOUBLE_EQ(field.size.width, 147.0);
  EXPECT_DOUBLE_EQ(field.origin.y, 157.0);
  EXPECT_DOUBLE_EQ([[page passcodeField] center].x, [[page view] center].x);
}

TEST_F(PasscodePagesTest, LightDevicesGetAPalePage) {
  Start(SIM_DEFAULT_PROFILE, ^(NSMutableDictionary *p) { [p setObject:@(NO) forKey:@"darkMode"]; });
  id page = OpenModal(OpenSettingsPage(), @selector(addPassword));
  expectBackground(page, 239, 239, 244);
}

TEST_F(PasscodePagesTest, SlideAndShakeAnimateForTheirDurations) {
  Start();
  id page = OpenModal(OpenSettingsPage(), @selector(addPassword));
  NSUInteger before = [SimRecordedViewAnimations() count];
  Type(page, @"1234");  // slide
  Type(page, @"4321");  // shake
  NSArray *animations = SimRecordedViewAnimations();
  ASSERT_EQ([animations count], before + 7);
  const double durations[] = {0.1, 0.2, 0.1, 0.1, 0.1, 0.1, 0.1};
  for (NSUInteger i = 0; i < 7; i++) {
    NSDictionary *animation = [animations objectAtIndex:before + i];
    EXPECT_NEAR([[animation objectForKey:@"duration"] doubleValue], durations[i], 1e-9) << i;
    EXPECT_EQ([[animation objectForKey:@"delay"] doubleValue], 0.0) << i;
  }
  EXPECT_EQ([[[animations objectAtIndex:before] objectForKey:@"options"] unsignedIntegerValue],
            (NSUInteger)UIViewAnimationOptionCurveEaseIn);
  EXPECT_EQ([[[animations objectAtIndex:before + 1] objectForKey:@"options"] unsignedIntegerValue],
            (NSUInteger)UIViewAnimationOptionCurveEaseOut);
  // The shake ends where it started.
  EXPECT_DOUBLE_EQ([[page passcodeField] center].x, [[page view] center].x);
  EXPECT_DOUBLE_EQ([[page label] center].x, [[page view] center].x);
}
