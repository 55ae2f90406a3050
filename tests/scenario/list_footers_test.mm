// The sentence each protection list page shows above its list, as the table shows it: the
// whole text, as the footer of the page's first group, on a system with header-and-footer
// groups and on one without.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PreferencesSimulation.h>

#include <string>

#import "BundleFixture.h"
#import "SettingsHost.h"
#include "core/SystemVersion.hpp"

class ListFootersTest : public BundleTest {
 protected:
  // The Settings app on a fresh device of `profile`, its list built around the bundle.
  void Open(const char *profile) {
    StopSpringBoard();
    SimSettingsReset();
    StartDevice(profile, true, ^(NSMutableDictionary *edit) { [edit setObject:@{} forKey:@"ccsettings"]; });
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  }

  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }

  // A page of the product's pane, pushed as its root page pushes it, on screen.
  PSListController *Push(NSString *className) {
    Class pageClass = NSClassFromString(className);
    EXPECT_NE(pageClass, Nil) << [className UTF8String];
    PSListController *page = [[[pageClass alloc] init] autorelease];
    ShowAsSettingsPane([[[PSListController alloc] init] autorelease]);
    [SimSettingsRootController() pushViewController:page animated:NO];
    [page view];
    [[page table] layoutIfNeeded];
    return page;
  }
};

TEST_F(ListFootersTest, EachListPageExplainsItselfAboveItsList) {
  NSString *applications = @"Choose the applications that you want to protect from the list below";
  const struct {
    NSString *page;
    NSString *footer;
  } pages[] = {
      {@"TessarinApplicationsController", applications},
      {@"TessarinAppNotificationsController", applications},
      {@"TessarinFoldersController",
       @"Choose the folders that you want to protect from the list below. This only protects opening the folder, "
       @"not the applications inside them. For this, use Application protection per application. If you have "
       @"more than one folder with the same name, value applies to all identical named folders."},
      {@"TessarinCCItemsController", @"Choose the Control Center items that you want to protect from the list below"},
      {@"TessarinCCSettingsItemsController",
       @"Choose the CCSettings items that you want to protect from the list below"},
      {@"TessarinProtectedSpecsController",
       @"Choose the settings panes that you want to protect access to from the list below"},
  };
  for (const char *profile : {"iphone-faceid-ios16", "iphone-ios12"}) {
    Open(profile);
    for (const auto &p : pages) {
      SCOPED_TRACE(std::string(profile) + " " + [p.page UTF8String]);
      PSListController *page = Push(p.page);
      UITableView *table = [page table];
      ASSERT_GE([table numberOfSections], 2);
      EXPECT_EQ([[table dataSource] tableView:table titleForHeaderInSection:0], nil);
      EXPECT_NSEQ([[table dataSource] tableView:table titleForFooterInSection:0], p.footer);
      // The list follows in the next groups: the sentence stands alone at the top.
      EXPECT_EQ([table numberOfRowsInSection:0], 0);
    }
  }
}
