// Stand-in parts the protection-list pages rely on: sorting with descriptors as iOS sorts
// (nil key values first, stable), installed application bundles read through NSBundle with
// their string tables, and the system resources of each system version.
#import <Foundation/Foundation.h>
#import <CoreGraphics/CoreGraphicsSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/SimApplications.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

// Private on iOS, so not in UIKit's header.
@interface UIImage (PrivateLookup)
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle;
@end

namespace {

class ListsStandInTest : public DeviceTest {};

NSString *HostFile(const std::string &root, NSString *devicePath) {
  return [NSString stringWithFormat:@"%s%@", root.c_str(), devicePath];
}

}  // namespace

TEST_F(ListsStandInTest, SortDescriptorsPutNilFirstAndKeepEqualsInOrder) {
  NSArray *items = @[
    @{@"name" : @"beta",
      @"n" : @1},
    @{@"n" : @2},
    @{@"name" : @"Alpha",
      @"n" : @3},
    @{@"name" : @"BETA",
      @"n" : @4},
    @{@"n" : @5},
    @{@"name" : @"alpha",
      @"n" : @6}
  ];
  NSSortDescriptor *byName = [NSSortDescriptor sortDescriptorWithKey:@"name"
                                                           ascending:YES
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
  NSString *path = SimInstallApplication(
      NULL, @{
        @"source" : @"Containers",
        @"bundle" : @"Game.app",
        @"container" : @"ABC",
        @"info" : @{
          @"CFBundleIdentifier" : @"com.test.game",
          @"CFBundleDisplayName" : @"Game~iphone",
          @"CFBundleVersion" : @(3)
        },
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
  EXPECT_FALSE([[NSFileManager defaultManager]
      fileExistsAtPath:HostFile(Root(), [bare stringByAppendingPathComponent:@"Info.plist"])]);
  EXPECT_EQ(SimInstallApplication(NULL, @{@"source" : @"Elsewhere", @"bundle" : @"X.app"}), nil);
}

NSString *InstallApp(NSString *source, NSString *bundle, NSDictionary *info, NSDictionary *strings) {
  NSMutableDictionary *entry =
      [NSMutableDictionary dictionaryWithObjectsAndKeys:source, @"source", bundle, @"bundle", info, @"info", nil];
  if (strings) [entry setObject:strings forKey:@"strings"];
  return SimInstallApplication(NULL, entry);
}

// Application bundles read as iOS reads them: one per path, even for an application
// installed twice; string tables from the top, the user's languages, then the
// development region.
TEST_F(ListsStandInTest, ApplicationBundlesAreFlatAndOnePerPath) {
  NSString *profile = [NSString stringWithFormat:@"%@/lists-languages-%d.plist", NSTemporaryDirectory(), getpid()];
  UseDevice();
  NSMutableDictionary *facts = [NSMutableDictionary dictionaryWithDictionary:SimDeviceProfile()];
  [facts setObject:@[ @"de", @"fr" ] forKey:@"languages"];
  ASSERT_TRUE([facts writeToFile:profile atomically:YES]);
  UseDevice([profile fileSystemRepresentation]);
  [[NSFileManager defaultManager] removeItemAtPath:profile error:NULL];

  NSDictionary *same = @{@"CFBundleIdentifier" : @"com.test.twice"};
  NSBundle *first = [NSBundle bundleWithPath:HostFile(Root(), InstallApp(@"Applications", @"Twice.app", same, nil))];
  NSBundle *second = [NSBundle bundleWithPath:HostFile(Root(), InstallApp(@"Binpack", @"Twice.app", same, nil))];
  ASSERT_NE(first, nil);
  ASSERT_NE(second, nil);
  EXPECT_NE(first, second);
  EXPECT_TRUE([[second bundlePath] hasSuffix:@"/private/var/binpack/Applications/Twice.app"]);
  EXPECT_EQ([NSBundle bundleWithPath:[[first bundlePath] stringByAppendingString:@"/"]], first);
  EXPECT_EQ([NSBundle bundleWithPath:HostFile(Root(), @"/Applications/Missing.app")], nil);

  struct Case {
    NSDictionary *strings;
    NSString *region, *topTable, *expected;
  } cases[] = {
      {@{@"en" : @{@"K" : @"en"}, @"fr" : @{@"K" : @"fr"}, @"de" : @{@"K" : @"de"}}, nil, nil, @"de"},
      {@{@"en" : @{@"K" : @"en"}, @"fr" : @{@"K" : @"fr"}}, nil, nil, @"fr"},
      {@{@"en" : @{@"K" : @"en"}, @"it" : @{@"K" : @"it"}}, @"it", nil, @"it"},
      {@{@"en" : @{@"K" : @"en"}}, nil, nil, @"en"},
      {@{@"it" : @{@"K" : @"it"}}, nil, nil, @"value"},
      {@{@"fr" : @{@"K" : @"fr"}}, nil, @"\"K\" = \"top\";", @"top"},
      {@{@"fr" : @{@"Other" : @"fr"}}, nil, nil, @"value"},
      {nil, nil, @"\"K\" = \"unterminated;", @"value"},
  };
  int n = 0;
  for (const Case &c : cases) {
    NSMutableDictionary *info = [NSMutableDictionary dictionaryWithObject:@"com.test.strings"
                                                                   forKey:@"CFBundleIdentifier"];
    if (c.region) [info setObject:c.region forKey:@"CFBundleDevelopmentRegion"];
    NSString *path =
        HostFile(Root(), InstallApp(@"Applications", [NSString stringWithFormat:@"S%d.app", n++], info, c.strings));
    if (c.topTable) [c.topTable writeToFile:[path stringByAppendingPathComponent:@"InfoPlist.strings"] atomically:YES];
    NSBundle *bundle = [NSBundle bundleWithPath:path];
    EXPECT_NSEQ([bundle localizedStringForKey:@"K" value:@"value" table:@"InfoPlist"], c.expected) << n;
    EXPECT_NSEQ([bundle localizedStringForKey:@"Absent" value:@"" table:@"InfoPlist"], @"Absent") << n;
  }
}

// One device per test: a bundle made again at the same path in one process may be read
// from GNUstep's caches of the first.
void ExpectSystemResources(const std::string &root, bool newsstand, bool settingsIcons, bool quickNote) {
  NSFileManager *files = [NSFileManager defaultManager];
  EXPECT_EQ(
      [files
          fileExistsAtPath:HostFile(root,
                                    @"/System/Library/CoreServices/SpringBoard.app/NewsstandIconInternational@2x.png")],
      newsstand);
  EXPECT_EQ(
      [files fileExistsAtPath:HostFile(root,
                                       @"/System/Library/PrivateFrameworks/Preferences.framework/AirplaneMode@2x.png")],
      settingsIcons);
  EXPECT_EQ(
      [files
          fileExistsAtPath:HostFile(root, @"/System/Library/ControlCenter/Bundles/QuickNoteModule.bundle/Info.plist")],
      quickNote);
  NSBundle *timer =
      [NSBundle bundleWithPath:HostFile(root, @"/System/Library/ControlCenter/Bundles/TimerModule.bundle")];
  EXPECT_EQ([[timer infoDictionary] objectForKey:@"CFBundleDisplayName"], nil);
  EXPECT_NSEQ([[timer infoDictionary] objectForKey:@"CFBundleName"], @"TimerModule");
  UIImage *icon = [UIImage imageNamed:@"SettingsIcon" inBundle:timer compatibleWithTraitCollection:nil];
  ASSERT_NE(icon, nil);
  EXPECT_EQ(icon.size.width, 29);
  EXPECT_NSEQ(SimCGImageDescription([UIImage imageNamed:@"SettingsIcon" inBundle:timer].CGImage),
              SimCGImageDescription(icon.CGImage));
}

TEST_F(ListsStandInTest, SystemResourcesOfIOS14) {
  UseDevice("iphone-touchid-ios14");
  ExpectSystemResources(Root(), true, false, false);
}

TEST_F(ListsStandInTest, SystemResourcesOfIOS16) {
  UseDevice("iphone-faceid-ios16");
  ExpectSystemResources(Root(), false, true, true);
}
