#import "BundleFixture.h"
#include <unistd.h>
#import "SettingsHost.h"
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>

void BundleTest::TearDown() {
  StopSpringBoard();
  DeviceTest::TearDown();
}

void BundleTest::StartDevice(const char *profile, bool withSpringBoard, void (^edit)(NSMutableDictionary *)) {
  if (edit != nil) {
    UseDevice(profile);
    NSDictionary *completed = SimDeviceProfile();
    NSMutableDictionary *changed = [[completed mutableCopy] autorelease];
    edit(changed);
    // What the simulator derived from the profile is derived again from the edited one,
    // unless the edit set it itself.
    id derived = [changed objectForKey:@"passcodeCharacteristics"];
    if (derived != nil && [derived isEqual:[completed objectForKey:@"passcodeCharacteristics"]]) {
      [changed removeObjectForKey:@"passcodeCharacteristics"];
    }
    NSString *path = [NSString stringWithFormat:@"%s.profile.plist", Root().c_str()];
    ASSERT_TRUE([changed writeToFile:path atomically:YES]);
    UseDevice([path fileSystemRepresentation]);
    unlink([path fileSystemRepresentation]);
  } else {
    UseDevice(profile);
  }
  ASSERT_TRUE(SettingsHostInstallPackage());
  ASSERT_NE(SettingsHostLoadPreferenceBundle(), nil);
  if (withSpringBoard) {
    // A profile may say SpringBoard's half is not running: then none is started.
    NSDictionary *facts = [SimDeviceProfile() objectForKey:@"springboard"];
    id running = [facts isKindOfClass:[NSDictionary class]] ? [facts objectForKey:@"running"] : nil;
    springBoard_ = SettingsHostStartSpringBoard();
    if (running == nil || [running boolValue]) ASSERT_GT(springBoard_, 0);
  }
}

void BundleTest::StopSpringBoard() {
  if (springBoard_ > 0) SimSpringBoardStop(springBoard_);
  springBoard_ = -1;
}

bool BundleTest::DeviceFileExists(const char *devicePath) const {
  return access(HostPath(devicePath).c_str(), F_OK) == 0;
}

void BundleTest::WriteDeviceFile(const char *devicePath, NSData *data) const {
  ASSERT_TRUE([data writeToFile:@(HostPath(devicePath).c_str()) atomically:YES]);
}

NSData *BundleTest::ReadDeviceFile(const char *devicePath) const {
  return [NSData dataWithContentsOfFile:@(HostPath(devicePath).c_str())];
}

NSDictionary *BundleTest::StoredPreferences() const {
  return [NSDictionary
      dictionaryWithContentsOfFile:@(HostPath("/var/mobile/Library/Preferences/net.corvane.tessarin.plist").c_str())];
}

void BundleTest::ShowAsSettingsPane(UIViewController *page) {
  [[SimSettingsRootController() rootListController] pushController:page animate:NO];
}

PSListController *BundleTest::OpenSettingsPane(NSString *className) {
  Class pageClass = NSClassFromString(className);
  EXPECT_NE(pageClass, Nil) << [className UTF8String];
  PSListController *page = [[[pageClass alloc] init] autorelease];
  ShowAsSettingsPane(page);
  [page view];
  [page specifiers];
  return page;
}

UIViewController *BundleTest::OpenProductFromSettingsList() {
  PSListController *list = [SimSettingsRootController() rootListController];
  [list view];
  PSSpecifier *productRow = nil;
  for (PSSpecifier *row in [list specifiers])
    if ([row detailControllerClass] == NSClassFromString(@"TessarinPrefsListController")) productRow = row;
  EXPECT_NE(productRow, nil) << "the Settings list has no Tessarin row";
  EXPECT_TRUE(SimListControllerTapSpecifier(list, productRow));
  SimRunLoopRunFor(SimTransitionDuration + 0.1);
  return [SimSettingsRootController() topViewController];
}
