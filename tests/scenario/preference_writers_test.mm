// Every writer of the product's domain, as the pages perform it: each stores under
// exactly the key its entry in the key table names, touches no other key, and posts
// the change signal exactly as that entry says.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSPasscodeField.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/SimSystemFiles.h>

#include <functional>

#import "BundleFixture.h"
#import "DomainWrite.h"
#import "SettingsHost.h"
#include "core/SystemVersion.hpp"

@interface NSObject (PreferenceWritersPages)
- (id)passcodeField;
- (void)addPassword;
- (void)changePassword;
- (void)removePassword;
@end

namespace {

using tessarin::PreferenceKey;
namespace key = tessarin::key;

// Every delayed step of a passcode flow and the page's dismissal, with room on a loaded machine.
constexpr double kFlowSettle = 2.5;
constexpr double kEntrySettle = 0.8;

NSString *stringOf(std::string_view s) {
  return [[[NSString alloc] initWithBytes:s.data() length:s.size() encoding:NSUTF8StringEncoding] autorelease];
}

// A value of the entry's type that no writer below stores. Lists also hold entries no
// page understands (another version's, a hand edit's): a switch must keep them.
id seedValue(const PreferenceKey &entry) {
  switch (entry.type) {
    case tessarin::KeyType::Boolean:
      return @(NO);
    case tessarin::KeyType::Integer:
      return @(1);
    case tessarin::KeyType::String:
      return @"seed";
    case tessarin::KeyType::StringArray:
      return @[ @(3), @"seed.identifier", @{@"x" : @(1)} ];
    case tessarin::KeyType::DictionaryArray:
      return @[ @"junk", @{@"bssid" : @"02:00:00:00:00:01", @"ssid" : @"Seed"} ];
  }
  return nil;
}

// Another value of the entry's type, as a page would write it.
id writtenValue(const PreferenceKey &entry) {
  switch (entry.type) {
    case tessarin::KeyType::Boolean:
      return @(YES);
    case tessarin::KeyType::Integer:
      return @(5);
    case tessarin::KeyType::String:
      return @"";  // a value, distinct from an absent key
    case tessarin::KeyType::StringArray:
      return @[ @"written.identifier" ];
    case tessarin::KeyType::DictionaryArray:
      return @[ @{@"bssid" : @"02:00:00:00:00:02", @"ssid" : @"Written"} ];
  }
  return nil;
}

PSSpecifier *rowWithId(NSArray *rows, std::string_view identifier) {
  NSString *wanted = stringOf(identifier);
  for (PSSpecifier *row in rows)
    if ([[row identifier] isEqualToString:wanted]) return row;
  return nil;
}

}  // namespace

class PreferenceWritersTest : public BundleTest {
 protected:
  // A Settings app on a fresh device whose domain holds a value under every key of
  // the table (the passcode only when given), so that a write to a wrong key shows.
  void Start(id passcode) {
    StopSpringBoard();
    StartDevice(SIM_DEFAULT_PROFILE, true);
    ASSERT_EQ(SimInstallSystemFiles(Root().c_str()), 0);
    *BundleSymbol<uint32_t *>("cachedLibraryVersion") = 0;
    *BundleSymbol<BOOL *>("springBoardEmergency") = NO;
    *BundleSymbol<BOOL *>("hasSetPearl") = NO;
    *BundleSymbol<BOOL *>("hasPearlCam") = NO;
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
    SimSettingsReset();
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
    auto set = BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey");
    for (const PreferenceKey &entry : tessarin::kPreferenceKeys)
      set(entry.key == key::kPasscode.key ? passcode : seedValue(entry), entry.name());
  }

  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }

  PSListController *Push(const char *className) {
    Class pageClass = NSClassFromString(@(className));
    EXPECT_NE(pageClass, Nil) << className;
    PSListController *page = [[[pageClass alloc] init] autorelease];
    [SimSettingsRootController() pushViewController:page animated:NO];
    [page view];
    [page specifiers];
    SimRunLoopRunFor(0.1);
    return page;
  }

  // Opens a passcode page from the passcode settings page and types the entries into it.
  void TypeInto(SEL opener, NSArray *entries) {
    PSListController *settings = Push("TessarinPasscodeSettingsController");
    [settings performSelector:opener];
    SimRunLoopRunFor(0.5);
    UINavigationController *modal = (UINavigationController *)[settings presentedViewController];
    ASSERT_NE(modal, nil);
    ASSERT_GT([[modal childViewControllers] count], 0u);
    id page = [[modal childViewControllers] objectAtIndex:0];
    [page view];
    for (NSUInteger i = 0; i < [entries count]; i++) {
      SimPasscodeFieldType([page passcodeField], [entries objectAtIndex:i]);
      SimRunLoopRunFor(i + 1 == [entries count] ? kFlowSettle : kEntrySettle);
    }
  }

  // Switches a plist row of a page, as the user would.
  void Switch(const char *pageClass, const PreferenceKey &entry, id value) {
    PSListController *page = Push(pageClass);
    PSSpecifier *row = rowWithId([page specifiers], entry.row);
    ASSERT_NE(row, nil) << std::string(entry.row);
    [page setPreferenceValue:value specifier:row];
    SimRunLoopRunFor(0.1);
  }
};

TEST_F(PreferenceWritersTest, TheStoreHelperWritesTheEntrysKeyAndPostsAsTheTableSays) {
  Start(@"1357");
  auto store = BundleSymbol<void (*)(id, const PreferenceKey *)>("storePreference");
  ASSERT_NE(store, nullptr);
  for (const PreferenceKey &entry : tessarin::kPreferenceKeys) {
    if (entry.writer == tessarin::Writer::PlistRow) continue;  // written by the platform, checked below
    SCOPED_TRACE(std::string(entry.key));
    id value = writtenValue(entry);
    {
      DomainWrite write(StoredPreferences());
      store(value, &entry);
      EXPECT_TRUE(write.Wrote(StoredPreferences(), entry, value));
    }
    {
      DomainWrite write(StoredPreferences());
      store(nil, &entry);
      EXPECT_TRUE(write.Wrote(StoredPreferences(), entry, nil));
    }
  }
}

TEST_F(PreferenceWritersTest, ThePasscodePagesWriteOnlyThePasscode) {
  using ResetObserver = void (*)(CFNotificationCenterRef, void *, CFStringRef, const void *, CFDictionaryRef);
  struct Case {
    const char *what;
    id stored;
    std::function<void()> act;
    id expected;
  };
  const Case cases[] = {
      {"set page", nil,
       [this] {
         TypeInto(@selector(addPassword), @[ @"2580", @"2580" ]);
       },
       @"2580"},
      {"change page", @"1357",
       [this] {
         TypeInto(@selector(changePassword), @[ @"1357", @"2468", @"2468" ]);
       },
       @"2468"},
      {"remove page", @"1357", [this] { TypeInto(@selector(removePassword), @[ @"1357" ]); }, nil},
      {"reset observer", @"1357",
       [this] {
         BundleSymbol<ResetObserver>("resetPasscode")(nullptr, nullptr, nullptr, nullptr, nullptr);
         SimRunLoopRunFor(0.1);
       },
       nil},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    Start(c.stored);
    DomainWrite write(StoredPreferences());
    c.act();
    EXPECT_TRUE(write.Wrote(StoredPreferences(), key::kPasscode, c.expected));
  }
}

TEST_F(PreferenceWritersTest, PlistRowsWriteTheirTableKeyAndPostAsTheTableSays) {
  struct Case {
    const char *page;
    const PreferenceKey &entry;
  };
  const Case cases[] = {
      {"TessarinPrefsListController", key::kEnabled},
      {"TessarinPrefsListController", key::kKeepSession},
      {"TessarinPasscodeSettingsController", key::kUseOnlyPasscode},  // shown with a passcode on Face ID
      {"TessarinHapticController", key::kErrorHaptic},
      {"TessarinDelayController", key::kWaitDelay},
      {"TessarinDelayController", key::kDelayTime},
      {"TessarinDelayController", key::kWaitUntilFinished},
      {"TessarinInCallProtectionListController", key::kProtectCallerID},
      {"TessarinInCallProtectionListController", key::kHideCallerOnFingerUp},
      {"TessarinPowerDownListController", key::kProtectPowerDown},
      {"TessarinPowerDownListController", key::kProtectRestart},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(std::string(c.entry.key));
    Start(@"1357");
    DomainWrite write(StoredPreferences());
    id value = writtenValue(c.entry);
    Switch(c.page, c.entry, value);
    EXPECT_TRUE(write.Wrote(StoredPreferences(), c.entry, value));
  }
}

// The list pages' switches, as the user flips them, and the alert title's "Save".
TEST_F(PreferenceWritersTest, ListSwitchesAndTheTitleWriteTheirKeyAndPostOnce) {
  struct Case {
    const char *page;
    const PreferenceKey &entry;
    NSString *row;  // its id
    id expected;
  };
  const Case cases[] = {
      {"TessarinProtectedSpecsController", key::kProtectedSettings, @"WIFI",
       [seedValue(key::kProtectedSettings) arrayByAddingObject:@"WIFI"]},
      {"TessarinFlipswitchController", key::kProtectedSwitches, @"org.toggles.vpn",
       [seedValue(key::kProtectedSwitches) arrayByAddingObject:@"org.toggles.vpn"]},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(std::string(c.entry.key));
    Start(@"1357");
    PSListController *page = Push(c.page);
    PSSpecifier *row = [page specifierForID:c.row];
    ASSERT_NE(row, nil);
    DomainWrite write(StoredPreferences());
    ASSERT_TRUE(SimListControllerTapSpecifier(page, row));
    EXPECT_TRUE(write.Wrote(StoredPreferences(), c.entry, c.expected));
  }
  Start(@"1357");
  PSListController *page = Push("TessarinAlertTitleController");
  [page viewDidAppear:NO];
  id cell = [page cachedCellForSpecifier:[page specifierForID:@"ALERTTITLE_KEY"]];
  DomainWrite write(StoredPreferences());  // typing, then "Save": one key, one signal
  ASSERT_TRUE(SimEditableCellType(cell, @"Locked"));
  ASSERT_TRUE(SimTapBarButtonItem([[page navigationItem] rightBarButtonItem]));
  SimRunLoopRunFor(0.8);
  EXPECT_TRUE(write.Wrote(StoredPreferences(), key::kAlertTitle, @"Locked"));
}

TEST_F(PreferenceWritersTest, ListPagesWriteOnlyTheirList) {
  struct Case {
    const char *page;
    const PreferenceKey &entry;
  };
  const Case cases[] = {
      {"TessarinApplicationsController", key::kProtected},
      {"TessarinAppNotificationsController", key::kProtectedNotifications},
      {"TessarinCCItemsController", key::kProtectedCCItems},
      {"TessarinCCSettingsItemsController", key::kProtectedCCSettingsItems},
  };
  for (const Case &c : cases) {
    if (NSClassFromString(@(c.page)) == Nil) continue;  // a page this bundle does not have yet
    SCOPED_TRACE(c.page);
    Start(@"1357");
    PSListController *page = Push(c.page);
    PSSpecifier *row = nil;
    for (PSSpecifier *candidate in [page specifiers])
      if ([candidate cellType] == PSSwitchCell && [candidate propertyForKey:@"id"] != nil) {
        row = candidate;
        break;
      }
    ASSERT_NE(row, nil);
    NSArray *expected = [seedValue(c.entry) arrayByAddingObject:[row propertyForKey:@"id"]];
    DomainWrite write(StoredPreferences());
    [row performSetterWithValue:@(YES)];
    EXPECT_TRUE(write.Wrote(StoredPreferences(), c.entry, expected));
  }
}

TEST_F(PreferenceWritersTest, TheFoldersPageWritesOnlyItsList) {
  // As Start, with SpringBoard answering the folder request.
  StartDevice(SIM_DEFAULT_PROFILE, true);
  SimSettingsReset();
  ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  auto set = BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey");
  for (const PreferenceKey &entry : tessarin::kPreferenceKeys)
    set(entry.key == key::kPasscode.key ? @"1357" : seedValue(entry), entry.name());
  PSListController *page = Push("TessarinFoldersController");
  PSSpecifier *row = nil;
  for (PSSpecifier *candidate in [page specifiers])
    if ([candidate cellType] == PSSwitchCell && [candidate name] != nil) {
      row = candidate;
      break;
    }
  ASSERT_NE(row, nil);
  DomainWrite write(StoredPreferences());
  [row performSetterWithValue:@(YES)];
  EXPECT_TRUE(write.Wrote(StoredPreferences(), key::kProtectedFolders,
                          [seedValue(key::kProtectedFolders) arrayByAddingObject:[row name]]));
}
