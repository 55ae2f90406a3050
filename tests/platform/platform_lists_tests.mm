// Stand-in parts the protection-list pages rely on: sorting with descriptors as iOS sorts
// (nil key values first, stable), installed application bundles read through NSBundle with
// their string tables, and the system resources of each system version.
#import <Foundation/Foundation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/SimApplications.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

namespace {

class ListsStandInTest : public DeviceTest {};

NSString *HostFile(const std::string &root, NSString *devicePath) {
    return [NSString stringWithFormat:@"%s%@", root.c_str(), devicePath];
}

}  // namespace

TEST_F(ListsStandInTest, SortDescriptorsPutNilFirstAndKeepEqualsInOrder) {
    NSArray *items = @[
        @{@"name" : @"beta", @"n" : @1}, @{@"n" : @2}, @{@"name" : @"Alpha", @"n" : @3}, @{@"name" : @"BETA", @"n" : @4},
        @{@"n" : @5}, @{@"name" : @"alpha", @"n" : @6}
    ];
    NSSortDescriptor *byName = [NSSortDescriptor sortDescriptorWithKey:@"name" ascending:YES
                                                             selector:@selector(caseInsensitiveCompare:)];
    NSArray *sorted = [items sortedArrayUsingDescriptors:@[ byName ]];
    EXPECT_NSEQ([sorted valueForKey:@"n"], (@[ @2, @5, @3, @6, @1, @4 ]));
    NSSortDescriptor *descending = [NSSortDescriptor sortDescriptorWithKey:@"n" ascending:NO];
    NSMutableArray *copy = [[items mutableCopy] autorelease];
    [copy sortUsingDescriptors:@[ descending ]];
    EXPECT_NSEQ([copy valueForKey:@"n"], (@[ @6, @5, @4, @3, @2, @1 ]));
}

TEST_F(ListsStandInTest, InstalledApplicationsAreBundlesWithTheirStrings) {
    UseDevice();
    NSString *path = SimInstallApplication(NULL, @{
        @"source" : @"Containers", @"bundle" : @"Game.app", @"container" : @"ABC",
        @"info" : @{@"CFBundleIdentifier" : @"com.test.game", @"CFBundleDisplayName" : @"Game~iphone", @"CFBundleVersion" : @(3)},
        @"strings" : @{@"en" : @{@"CFBundleDisplayName" : @"Spiel \"2\""}}
    });
    ASSERT_NSEQ(path, @"/var/containers/Bundle/Application/ABC/Game.app");
    NSBundle *bundle = [NSBundle bundleWithPath:HostFile(Root(), path)];
    ASSERT_NE(bundle, nil);
    EXPECT_NSEQ([bundle bundleIdentifier], @"com.test.game");
    EXPECT_NSEQ([[bundle infoDictionary] objectForKey:@"CFBundleVersion"], @(3));
    EXPECT_NSEQ([bundle localizedStringForKey:@"CFBundleDisplayName" value:@"x" table:@"InfoPlist"], @"Spiel \"2\"");
    EXPECT_NSEQ([bundle localizedStringForKey:@"Other" value:@"fallback" table:@"InfoPlist"], @"fallback");

    NSString *bare = SimInstallApplication(NULL, @{@"source" : @"Binpack", @"bundle" : @"Bare.app"});
    ASSERT_NSEQ(bare, @"/private/var/binpack/Applications/Bare.app");
    EXPECT_FALSE([[NSFileManager defaultManager] fileExistsAtPath:HostFile(Root(), [bare stringByAppendingPathComponent:@"Info.plist"])]);
    EXPECT_EQ(SimInstallApplication(NULL, @{@"source" : @"Elsewhere", @"bundle" : @"X.app"}), nil);
}

// One device per test: a bundle made again at the same path in one process may be read
// from GNUstep's caches of the first.
void ExpectSystemResources(const std::string &root, bool newsstand, bool settingsIcons, bool quickNote) {
    NSFileManager *files = [NSFileManager defaultManager];
    EXPECT_EQ([files fileExistsAtPath:HostFile(root, @"/System/Library/CoreServices/SpringBoard.app/NewsstandIconInternational@2x.png")],
              newsstand);
    EXPECT_EQ([files fileExistsAtPath:HostFile(root, @"/System/Library/PrivateFrameworks/Preferences.framework/AirplaneMode@2x.png")],
              settingsIcons);
    EXPECT_EQ([files fileExistsAtPath:HostFile(root, @"/System/Library/ControlCenter/Bundles/QuickNoteModule.bundle/Info.plist")],
              quickNote);
    NSBundle *timer = [NSBundle bundleWithPath:HostFile(root, @"/System/Library/ControlCenter/Bundles/TimerModule.bundle")];
    EXPECT_EQ([[timer infoDictionary] objectForKey:@"CFBundleDisplayName"], nil);
    EXPECT_NSEQ([[timer infoDictionary] objectForKey:@"CFBundleName"], @"TimerModule");
    UIImage *icon = [UIImage imageNamed:@"SettingsIcon" inBundle:timer compatibleWithTraitCollection:nil];
    ASSERT_NE(icon, nil);
    EXPECT_EQ(icon.size.width, 29);
}

TEST_F(ListsStandInTest, SystemResourcesOfIOS14) {
    UseDevice("iphone-touchid-ios14");
    ExpectSystemResources(Root(), true, false, false);
}

TEST_F(ListsStandInTest, SystemResourcesOfIOS16) {
    UseDevice("iphone-faceid-ios16");
    ExpectSystemResources(Root(), false, true, true);
}
