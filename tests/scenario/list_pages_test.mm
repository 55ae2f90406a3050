// The settings-pane, toggle, caller-ID and power-down pages and the haptic, delay and
// alert-title pages, in the simulated Settings app with the real bundle loaded.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSTableCell.h>
#import <Preferences/PreferencesSimulation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <Simulator/SimSystemFiles.h>

#include <string>
#include <vector>

#import "BundleFixture.h"
#import "SettingsHost.h"
#include "core/Names.hpp"
#include "core/SystemVersion.hpp"

@interface NSObject (ListPagesTest)
- (id)getShowsInLockScreen:(id)specifier;
- (void)setShowsInLockScreen:(id)value specifier:(id)specifier;
- (void)save:(id)sender;
@end

namespace {

NSString *const kPanesPage = @"TessarinProtectedSpecsController";

std::string text(id object) {
  return object == nil ? std::string("<nil>") : std::string([[object description] UTF8String]);
}

PSSpecifier *rowNamed(NSArray *rows, NSString *name) {
  for (PSSpecifier *row in rows)
    if ([[row name] isEqualToString:name]) return row;
  return nil;
}

PSSpecifier *rowWithId(NSArray *rows, NSString *identifier) {
  for (PSSpecifier *row in rows)
    if ([[row propertyForKey:@"id"] isEqual:identifier]) return row;
  return nil;
}

NSArray *idsOf(NSArray *rows) {
  NSMutableArray *ids = [NSMutableArray array];
  for (PSSpecifier *row in rows) {
    id identifier = [row propertyForKey:@"id"];
    [ids addObject:identifier != nil ? identifier : @"<none>"];
  }
  return ids;
}

void withoutToggleLibrary(NSMutableDictionary *profile) {
  NSMutableArray *files = [NSMutableArray array];
  for (id entry in [profile objectForKey:@"files"])
    if (!([entry isKindOfClass:[NSString class]] && [entry hasSuffix:@"libflipswitch.dylib"])) [files addObject:entry];
  [profile setObject:files forKey:@"files"];
}

}  // namespace

class ListPagesTest : public BundleTest {
 protected:
  // The Settings app on a fresh device of `profile`, its list built around the bundle.
  void Open(const char *profile, bool withSpringBoard = true, void (^edit)(NSMutableDictionary *) = nil) {
    StopSpringBoard();
    StartDevice(profile, withSpringBoard, edit);
    *BundleSymbol<BOOL *>("hasSetPearl") = NO;
    *BundleSymbol<BOOL *>("hasPearlCam") = NO;
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
    SimSettingsReset();
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  }

  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }

  PSListController *Push(NSString *className) {
    Class pageClass = NSClassFromString(className);
    EXPECT_NE(pageClass, Nil) << [className UTF8String];
    PSListController *page = [[[pageClass alloc] init] autorelease];
    // Pushed from a page of the product's pane, as its root page pushes it.
    if ([[SimSettingsRootController() viewControllers] count] == 0)
      ShowAsSettingsPane([[[PSListController alloc] init] autorelease]);
    [SimSettingsRootController() pushViewController:page animated:NO];
    [page view];
    [page specifiers];
    SimRunLoopRunFor(0.1);
    return page;
  }

  NSArray *SettingsListRows() { return [[SimSettingsRootController() rootListController] specifiers]; }

  id Stored(NSString *key) { return [StoredPreferences() objectForKey:key]; }
  unsigned Posts() { return SimNotifyPostCount(tessarin::kPrefsChangedNotification); }
};

// The panes page is the Settings list of the device's system, in its order, with its
// sections kept as empty groups and this product's own pane left out.
TEST_F(ListPagesTest, PanesPageMirrorsTheSettingsListOfEachSystem) {
  struct Case {
    const char *profile;
    NSString *onlyHere;  // a pane this system's list has
    NSString *notHere;   // a pane of the other system
  };
  const Case cases[] = {
      {"iphone-faceid-ios16", @"Focus", @"Do Not Disturb"},
      {"iphone-touchid-ios14", @"Do Not Disturb", @"Focus"},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.profile);
    Open(c.profile, false);
    NSArray *source = SettingsListRows();
    ASSERT_NE(rowNamed(source, @"Tessarin"), nil);
    PSListController *page = Push(kPanesPage);
    NSArray *rows = [page specifiers];
    ASSERT_GT([rows count], 1u);
    PSSpecifier *heading = [rows objectAtIndex:0];
    EXPECT_EQ([heading cellType], PSGroupCell);
    EXPECT_NSEQ([heading propertyForKey:@"footerText"],
                @"Choose the settings panes that you want to protect access to from the list below");
    EXPECT_EQ(rowNamed(rows, @"Tessarin"), nil);
    EXPECT_NE(rowNamed(rows, c.onlyHere), nil);
    EXPECT_EQ(rowNamed(rows, c.notHere), nil);

    NSUInteger at = 1;
    for (PSSpecifier *s in source) {
      if ([[s name] isEqualToString:@"Tessarin"]) continue;
      ASSERT_LT(at, [rows count]) << "page ends before " << text([s name]);
      PSSpecifier *row = [rows objectAtIndex:at++];
      SCOPED_TRACE(text([s name]));
      if ([s cellType] == PSGroupCell) {
        EXPECT_EQ([row cellType], PSGroupCell);
        EXPECT_EQ([[row name] length], 0u);
        continue;
      }
      EXPECT_EQ([row cellType], PSSwitchCell);
      EXPECT_NSEQ([row name], [s name]);
      id sourceId = [s propertyForKey:@"id"];
      EXPECT_NSEQ([row propertyForKey:@"id"], sourceId != nil ? sourceId : [s name]);
      EXPECT_EQ([row propertyForKey:@"iconImage"], [s propertyForKey:@"iconImage"]);
      EXPECT_NSEQ([row propertyForKey:@"appIDForLazyIcon"], [s propertyForKey:@"appIDForLazyIcon"]);
      EXPECT_NSEQ([row propertyForKey:@"useLazyIcons"], @(YES));
      EXPECT_EQ([row propertyForKey:@"cellClass"], NSClassFromString(@"TessarinSwitchCell"));
    }
    EXPECT_EQ(at, [rows count]);
    EXPECT_TRUE([page specifiers] == rows);  // built once
  }
}

// A pane is stored under its "id", one without under its name; each switch, as the
// user flips it, posts the change signal once.
TEST_F(ListPagesTest, PanesAreStoredByIdOrElseByName) {
  Open("iphone-faceid-ios16", false);
  PSListController *page = Push(kPanesPage);
  NSArray *rows = [page specifiers];
  struct Step {
    NSString *pane;
    BOOL on;
    NSArray *stored;
  };
  const Step steps[] = {
      {@"Exposure Notifications", YES, @[ @"Exposure Notifications" ]},
      {@"Wi-Fi", YES, @[ @"Exposure Notifications", @"WIFI" ]},
      {@"Keyboard Plus", YES, @[ @"Exposure Notifications", @"WIFI", @"Keyboard Plus" ]},
      {@"Dimmer", YES, @[ @"Exposure Notifications", @"WIFI", @"Keyboard Plus", @"DIMMER_SETTINGS" ]},
      {@"Instagram", YES,
       @[ @"Exposure Notifications", @"WIFI", @"Keyboard Plus", @"DIMMER_SETTINGS", @"com.burbn.instagram" ]},
      {@"Exposure Notifications", NO, @[ @"WIFI", @"Keyboard Plus", @"DIMMER_SETTINGS", @"com.burbn.instagram" ]},
  };
  for (const Step &s : steps) {
    SCOPED_TRACE(text(s.pane));
    PSSpecifier *row = rowNamed(rows, s.pane);
    ASSERT_NE(row, nil);
    const unsigned posts = Posts();
    ASSERT_TRUE(SimListControllerTapSpecifier(page, row));
    EXPECT_NSEQ(Stored(@"protectedSettings"), s.stored);
    EXPECT_EQ(Posts(), posts + 1);
    EXPECT_NSEQ([page performSelector:@selector(getPreferenceProtectEnabledForSpecifier:) withObject:row], @(s.on));
  }
}

// The icon follows the switch at once: 0.3 when off, 1 when on, and the page keeps its rows.
TEST_F(ListPagesTest, SwitchingAPaneOffDimsItsIconAtOnce) {
  Open("iphone-faceid-ios16", false);
  PSListController *page = Push(kPanesPage);
  NSArray *rows = [page specifiers];
  PSSpecifier *row = rowNamed(rows, @"Bluetooth");
  ASSERT_NE(row, nil);
  PSTableCell *cell = (PSTableCell *)[page cachedCellForSpecifier:row];
  ASSERT_NE(cell, nil);
  ASSERT_NE([[cell iconImageView] image], nil);
  EXPECT_NEAR([[cell iconImageView] alpha], 0.3, 1e-6);  // nothing protected yet
  ASSERT_TRUE(SimListControllerTapSpecifier(page, row));
  EXPECT_NEAR([[cell iconImageView] alpha], 1.0, 1e-6);
  ASSERT_TRUE(SimListControllerTapSpecifier(page, row));
  EXPECT_NEAR([[cell iconImageView] alpha], 0.3, 1e-6);
  EXPECT_TRUE([page specifiers] == rows);
  EXPECT_TRUE([page cachedCellForSpecifier:row] == cell);
  EXPECT_NSEQ(Stored(@"protectedSettings"), @[]);
}

// Without the toggle library the page is empty and nothing of the library exists.
TEST_F(ListPagesTest, TogglePageIsEmptyWithoutTheLibrary) {
  Open("iphone-faceid-ios16", false, ^(NSMutableDictionary *profile) { withoutToggleLibrary(profile); });
  PSListController *page = Push(@"TessarinFlipswitchController");
  EXPECT_EQ([[page specifiers] count], 0u);
  EXPECT_EQ(NSClassFromString(@"FSSwitchPanel"), Nil);
}

// With it, the library is loaded by the page; its switches are listed by title in plain
// order without this product's own, with icons where the template bundle is installed.
TEST_F(ListPagesTest, TogglePageListsTheLibrarysSwitchesSortedWithoutItsOwn) {
  struct Case {
    const char *profile;
    bool icons;
  };
  const Case cases[] = {{"iphone-faceid-ios16", false}, {"iphone-touchid-ios14", true}};
  for (const Case &c : cases) {
    SCOPED_TRACE(c.profile);
    Open(c.profile, false);
    PSListController *page = Push(@"TessarinFlipswitchController");
    ASSERT_NE(NSClassFromString(@"FSSwitchPanel"), Nil);
    NSArray *rows = [page specifiers];
    NSArray *library = [[NSClassFromString(@"FSSwitchPanel") performSelector:@selector(sharedPanel)]
        performSelector:@selector(switchIdentifiers)];
    ASSERT_TRUE([library containsObject:@"net.corvane.tessarin.switch"]);
    EXPECT_EQ([rows count], [library count] - 1);
    EXPECT_EQ(rowWithId(rows, @"net.corvane.tessarin.switch"), nil);
    for (NSUInteger i = 1; i < [rows count]; i++)
      EXPECT_EQ([[[rows objectAtIndex:i - 1] name] compare:[[rows objectAtIndex:i] name]], NSOrderedAscending);
    for (PSSpecifier *row in rows) {
      EXPECT_EQ([row cellType], PSSwitchCell);
      EXPECT_TRUE([library containsObject:[row propertyForKey:@"id"]]);
      EXPECT_EQ([row propertyForKey:@"iconImage"] != nil, c.icons) << text([row name]);
    }
    EXPECT_NSEQ([[rows objectAtIndex:0] name], @"Airplane Mode");
  }
}

// The lock-screen switch is SpringBoard's: on when it does not answer, its value when it
// does, and a change goes to SpringBoard alone, not into the domain.
TEST_F(ListPagesTest, LockScreenSwitchGoesThroughSpringBoard) {
  struct Case {
    const char *what;
    bool springBoard;
    id profileValue;
    id shown;
  };
  const Case cases[] = {
      {"SpringBoard not running", false, @(NO), @(YES)},
      {"SpringBoard shows calls", true, @(YES), @(YES)},
      {"SpringBoard hides calls", true, @(NO), @(NO)},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    id value = c.profileValue;
    Open("iphone-faceid-ios16", c.springBoard, ^(NSMutableDictionary *profile) {
      NSMutableDictionary *facts = [[[profile objectForKey:@"springboard"] mutableCopy] autorelease];
      if (facts == nil) facts = [NSMutableDictionary dictionary];
      [facts setObject:value forKey:@"showsInLockScreen"];
      [profile setObject:facts forKey:@"springboard"];
    });
    PSListController *page = Push(@"TessarinInCallProtectionListController");
    PSSpecifier *row = rowWithId([page specifiers], @"SHOW_CALLS_AT_LOCKSCREEN_SYSTEM_SETTING");
    ASSERT_NE(row, nil);
    EXPECT_EQ([row target], page);
    EXPECT_NSEQ([page getShowsInLockScreen:row], c.shown);
  }
  // Turning it off: "spsi" with the value; the domain and the change signal untouched.
  NSDictionary *before = StoredPreferences();
  const unsigned posts = Posts();
  PSListController *page = [[SimSettingsRootController() viewControllers] lastObject];
  PSSpecifier *row = rowWithId([page specifiers], @"SHOW_CALLS_AT_LOCKSCREEN_SYSTEM_SETTING");
  [page setShowsInLockScreen:@(YES) specifier:row];
  SimRunLoopRunFor(0.3);
  EXPECT_NSEQ([page getShowsInLockScreen:row], @(YES));
  [page setShowsInLockScreen:@(NO) specifier:row];
  SimRunLoopRunFor(0.3);
  EXPECT_NSEQ([page getShowsInLockScreen:row], @(NO));
  CFPreferencesAppSynchronize(CFSTR("com.apple.springboard"));
  id kept = [(id)CFPreferencesCopyAppValue(CFSTR("showsInLockScreen"), CFSTR("com.apple.springboard")) autorelease];
  EXPECT_NSEQ(kept, @(NO));
  EXPECT_NSEQ(StoredPreferences(), before);
  EXPECT_EQ(Posts(), posts);
}

// Touch ID devices show the caller texts as the plist has them; Face ID devices the
// replaced ones.
TEST_F(ListPagesTest, CallerTextsFollowTheSensor) {
  NSDictionary *plist = [NSDictionary
      dictionaryWithContentsOfFile:[@TESSARIN_BUNDLE_PATH
                                       stringByAppendingPathComponent:@"TessarinCallerIDProtection.plist"]];
  if (plist == nil)
    plist = [NSDictionary
        dictionaryWithContentsOfFile:[@TESSARIN_BUNDLE_PATH
                                         stringByAppendingPathComponent:@"Resources/TessarinCallerIDProtection.plist"]];
  ASSERT_NE(plist, nil);
  NSMutableDictionary *resource = [NSMutableDictionary dictionary];
  for (NSDictionary *item in [plist objectForKey:@"items"]) [resource setObject:item forKey:[item objectForKey:@"id"]];
  NSString *top = [[resource objectForKey:@"CALLERID_TOP"] objectForKey:@"footerText"];
  NSString *fingerUp = [[resource objectForKey:@"CALLERID_FINGER_UP"] objectForKey:@"footerText"];
  NSString *hide = [[resource objectForKey:@"CALLERID_HIDE_CALLER"] objectForKey:@"label"];
  struct Case {
    const char *profile;
    NSString *top, *fingerUp, *hide;
  };
  const Case cases[] = {
      {"iphone-touchid-ios14", top, fingerUp, hide},
      {"iphone-faceid-ios16", [top stringByReplacingOccurrencesOfString:@"Touch ID" withString:@"Face ID"],
       [fingerUp stringByReplacingOccurrencesOfString:@"lifting you finger" withString:@"looking away"],
       @"Hide Caller on look away"},
  };
  EXPECT_FALSE([cases[1].top isEqualToString:top]);
  EXPECT_FALSE([cases[1].fingerUp isEqualToString:fingerUp]);
  for (const Case &c : cases) {
    SCOPED_TRACE(c.profile);
    Open(c.profile, false);
    NSArray *rows = [Push(@"TessarinInCallProtectionListController") specifiers];
    EXPECT_NSEQ([rowWithId(rows, @"CALLERID_TOP") propertyForKey:@"footerText"], c.top);
    EXPECT_NSEQ([rowWithId(rows, @"CALLERID_FINGER_UP") propertyForKey:@"footerText"], c.fingerUp);
    PSSpecifier *hideRow = rowWithId(rows, @"CALLERID_HIDE_CALLER");
    EXPECT_NSEQ([hideRow name], c.hide);
    EXPECT_NSEQ([hideRow propertyForKey:@"label"], c.hide);
  }
}

// The delay rows: shown on a fresh install, hidden at once when the page waits until
// the app has opened, back at once when it no longer does.
TEST_F(ListPagesTest, DelayRowsFollowWaitUntilFinishedAtOnce) {
  Open("iphone-faceid-ios16", false);
  PSListController *page = Push(@"TessarinDelayController");
  NSArray *all = @[ @"DELAY_GROUP", @"WAIT_DELAY", @"DELAY_TIME", @"WAIT_TILL_FINISH_GROUP", @"WAIT_TILL_FINISH" ];
  NSArray *waiting = @[ @"DELAY_GROUP", @"WAIT_TILL_FINISH_GROUP", @"WAIT_TILL_FINISH" ];
  EXPECT_NSEQ(idsOf([page specifiers]), all);
  EXPECT_EQ(Stored(@"waitUntilFinished"), nil);

  ASSERT_TRUE(SimListControllerTapSpecifier(page, [page specifierForID:@"WAIT_TILL_FINISH"]));
  EXPECT_NSEQ(Stored(@"waitUntilFinished"), @(YES));
  EXPECT_NSEQ(idsOf([page specifiers]), waiting);
  ASSERT_TRUE(SimListControllerTapSpecifier(page, [page specifierForID:@"WAIT_TILL_FINISH"]));
  EXPECT_NSEQ(Stored(@"waitUntilFinished"), @(NO));
  EXPECT_NSEQ(idsOf([page specifiers]), all);

  // A page opened while the switch is on starts without the delay rows; another row's
  // change keeps the page as it is.
  BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(@(YES), "waitUntilFinished");
  [SimSettingsRootController() popViewControllerAnimated:NO];
  page = Push(@"TessarinDelayController");
  EXPECT_NSEQ(idsOf([page specifiers]), waiting);
  NSArray *rows = [page specifiers];
  [page setPreferenceValue:@(YES) specifier:[page specifierForID:@"WAIT_DELAY"]];
  EXPECT_TRUE([page specifiers] == rows);
}

// "Save" is put on the page when it appears; it stores the text row's text (the empty
// string for an empty field), leaves the page and posts once.
TEST_F(ListPagesTest, SavingTheAlertTitleStoresItLeavesAndPostsOnce) {
  struct Case {
    NSString *typed;
    id stored;
  };
  const Case cases[] = {{@"", @""}, {@"Locked", @"Locked"}};
  for (const Case &c : cases) {
    SCOPED_TRACE(text(c.typed));
    Open("iphone-faceid-ios16", false);
    PSListController *page = Push(@"TessarinAlertTitleController");
    [page viewDidAppear:NO];
    UIBarButtonItem *save = [[page navigationItem] rightBarButtonItem];
    ASSERT_NE(save, nil);
    EXPECT_NSEQ([save title], @"Save");
    EXPECT_EQ([save style], UIBarButtonItemStylePlain);
    PSSpecifier *row = [page specifierForID:@"ALERTTITLE_KEY"];
    ASSERT_NE(row, nil);
    EXPECT_EQ([row cellType], PSEditTextCell);
    EXPECT_NSEQ([row propertyForKey:@"default"], @"Tessarin");
    PSEditableTableCell *cell = (PSEditableTableCell *)[page cachedCellForSpecifier:row];
    ASSERT_TRUE(SimEditableCellType(cell, c.typed));
    const unsigned posts = Posts();
    ASSERT_TRUE(SimTapBarButtonItem(save));
    SimRunLoopRunFor(0.8);
    EXPECT_NSEQ(Stored(@"alertTitle"), c.stored);
    EXPECT_EQ(Posts(), posts + 1);
    EXPECT_FALSE([[SimSettingsRootController() viewControllers] containsObject:page]);
  }
}

// What a phone's user gets from the title page: the table has made the text row's cell
// (as it makes the cell of every row on screen), so "Save" reads what the row shows.
TEST_F(ListPagesTest, TheAlertTitleKeepsWhatTheUserLastSaw) {
  enum class Action { SaveUntouched, SaveWhileEditing, BackAfterEditing };
  struct Case {
    const char *what;
    id stored;  // before the page opens (nil: no key)
    Action action;
    id expected;
    unsigned posts;
  };
  const Case cases[] = {
      {"save untouched keeps the title", @"Hello", Action::SaveUntouched, @"Hello", 1},
      {"save untouched on a first run stores the default shown", nil, Action::SaveUntouched, @"Tessarin", 1},
      {"save while typing: leaving ends the edit, which the row stores", @"Hello", Action::SaveWhileEditing, @"Draft",
       1},
      {"back after editing keeps what the row stored", @"Hello", Action::BackAfterEditing, @"Edited", 0},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    Open("iphone-faceid-ios16", false);
    BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(c.stored, "alertTitle");
    PSListController *page = Push(@"TessarinAlertTitleController");
    [page viewDidAppear:NO];
    SimRunLoopRunFor(0.1);
    PSSpecifier *row = [page specifierForID:@"ALERTTITLE_KEY"];
    PSEditableTableCell *cell = [row propertyForKey:@"cellObject"];
    ASSERT_TRUE([cell isKindOfClass:[PSEditableTableCell class]]) << "the row on screen has its cell";
    const unsigned posts = Posts();
    switch (c.action) {
      case Action::SaveUntouched:
        break;
      case Action::SaveWhileEditing: {
        UITextField *field = [cell textField];
        [field becomeFirstResponder];
        [field setText:@"Draft"];
        [field sendActionsForControlEvents:UIControlEventEditingChanged];
        break;
      }
      case Action::BackAfterEditing:
        ASSERT_TRUE(SimEditableCellType(cell, @"Edited"));
        break;
    }
    if (c.action == Action::BackAfterEditing) {
      [SimSettingsRootController() popViewControllerAnimated:YES];
    } else {
      ASSERT_TRUE(SimTapBarButtonItem([[page navigationItem] rightBarButtonItem]));
    }
    SimRunLoopRunFor(0.8);
    EXPECT_NSEQ(Stored(@"alertTitle"), c.expected);
    EXPECT_EQ(Posts(), posts + c.posts);
    EXPECT_FALSE([[SimSettingsRootController() viewControllers] containsObject:page]);
  }
}

// The delay slider is segmented into whole seconds: wherever the finger lets go, a phone
// stores a whole number, and the row's change is announced.
TEST_F(ListPagesTest, TheDelaySliderStoresWholeSeconds) {
  Open("iphone-faceid-ios16", false);
  PSListController *page = Push(@"TessarinDelayController");
  SimRunLoopRunFor(0.1);
  PSTableCell *cell = [[page specifierForID:@"DELAY_TIME"] propertyForKey:@"cellObject"];
  ASSERT_TRUE([cell respondsToSelector:@selector(control)]);
  UISlider *slider = (UISlider *)[(PSControlTableCell *)cell control];
  const struct {
    float dragged;
    double stored;
  } cases[] = {{4.4f, 4}, {4.6f, 5}, {0.2f, 1}, {99, 10}};
  for (const auto &c : cases) {
    SCOPED_TRACE(c.dragged);
    const unsigned posts = Posts();
    ASSERT_TRUE(SimSliderDrag(slider, c.dragged));
    EXPECT_NSEQ(Stored(@"delayTime"), @(c.stored));
    EXPECT_EQ(Posts(), posts + 1);
  }
}

// The plist pages show their designed rows.
TEST_F(ListPagesTest, PlistPagesShowTheirRows) {
  Open("iphone-faceid-ios16", false);
  EXPECT_NSEQ(idsOf([Push(@"TessarinPowerDownListController") specifiers]),
              (@[ @"POWER_DOWN_GROUP", @"PROTECT_POWER_DOWN", @"RESTART_GROUP", @"PROTECT_RESTART" ]));
  EXPECT_NSEQ(idsOf([Push(@"TessarinHapticController") specifiers]), (@[ @"HAPTIC_GROUP", @"HAPTIC_ON_ERROR" ]));
}
