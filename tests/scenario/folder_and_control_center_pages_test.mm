// The folders and Control Center pages with the real bundle: rows from SpringBoard's
// folders and from the system's module bundles, their pictures and what their switches store.
#import <Foundation/Foundation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>

#include <string>
#include <vector>

#import "BundleFixture.h"
#import "DomainWrite.h"
#include "lists/ControlCenterItems.hpp"

namespace {

NSDictionary *folder(NSString *displayName, id content, NSString *defaultName = nil, id type = @(0)) {
  NSMutableDictionary *f = [NSMutableDictionary dictionary];
  if (displayName) [f setObject:displayName forKey:@"displayName"];
  if (defaultName) [f setObject:defaultName forKey:@"defaultDisplayName"];
  if (type) [f setObject:type forKey:@"folderType"];
  [f setObject:content forKey:@"bundleIdentifiers"];
  return f;
}

NSArray *apps(int count) {
  NSMutableArray *ids = [NSMutableArray array];
  for (int i = 1; i <= count; i++) [ids addObject:[NSString stringWithFormat:@"com.test.app%d", i]];
  return ids;
}

// A drawn picture's image draws: what each shows and where (points).
struct Draw {
  std::string what;
  CGRect rect;
};

std::vector<Draw> imageDraws(UIImage *picture) {
  std::vector<Draw> draws;
  for (NSString *op in [picture _simDrawOperations]) {
    if (![op hasPrefix:@"drawImage "]) continue;
    NSRange brace = [op rangeOfString:@" {{" options:NSBackwardsSearch];
    if (brace.location == NSNotFound) continue;
    NSString *what = [op substringWithRange:NSMakeRange(10, brace.location - 10)];
    CGRect r = CGRectFromString([op substringFromIndex:brace.location + 1]);
    draws.push_back({[what UTF8String], r});
  }
  return draws;
}

}  // namespace

class ListPagesTest : public BundleTest {
 protected:
  PSListController *Open(NSString *className) {
    Class pageClass = NSClassFromString(className);
    EXPECT_NE(pageClass, Nil) << [className UTF8String];
    PSListController *page = [[[pageClass alloc] init] autorelease];
    [page specifiers];
    return page;
  }

  static NSArray *Switches(PSListController *page) {
    NSMutableArray *rows = [NSMutableArray array];
    for (PSSpecifier *row in [page specifiers])
      if ([row cellType] == PSSwitchCell) [rows addObject:row];
    return rows;
  }

  static NSArray *Names(PSListController *page) {
    NSMutableArray *names = [NSMutableArray array];
    for (PSSpecifier *row in Switches(page)) [names addObject:[row name] ? [row name] : (id)[NSNull null]];
    return names;
  }

  static NSArray *Ids(PSListController *page) {
    NSMutableArray *ids = [NSMutableArray array];
    for (PSSpecifier *row in Switches(page)) [ids addObject:[row propertyForKey:@"id"] ?: (id)[NSNull null]];
    return ids;
  }

  static PSSpecifier *Named(PSListController *page, NSString *name) {
    for (PSSpecifier *row in Switches(page))
      if ([[row name] isEqual:name]) return row;
    return nil;
  }
};

TEST_F(ListPagesTest, FolderRowsAreNamedAndSortedPlainly) {
  StartDevice("iphone-touchid-ios14", true, ^(NSMutableDictionary *profile) {
    [profile setObject:@[
      folder(@"zebra", apps(1)), folder(@"Shown", apps(1), @"Default"), folder(@"apple", apps(1)),
      folder(@"Papers", @[], @"Zeitung", @"newsstand"), folder(@"Beta", apps(2)), folder(nil, apps(1))
    ]
                forKey:@"folders"];
  });
  PSListController *page = Open(@"TessarinFoldersController");
  EXPECT_NSEQ(Names(page), (@[ [NSNull null], @"Beta", @"Default", @"apple", @"newsstand", @"zebra" ]));
  PSSpecifier *newsstand = Named(page, @"newsstand");
  ASSERT_NE(newsstand, nil);
  EXPECT_NSEQ([newsstand propertyForKey:@"folderType"], @"newsstand");
  EXPECT_NSEQ([newsstand propertyForKey:@"defaultDisplayName"], @"Zeitung");
  // SpringBoard's newsstand icon made into an application icon.
  NSString *icon = [[newsstand propertyForKey:@"iconImage"] _simDescription];
  EXPECT_TRUE([icon hasPrefix:@"icon(NewsstandIconInternational"]) << [icon UTF8String];
}

TEST_F(ListPagesTest, AFolderPictureDrawsNineInTheGridTheTenthAtTheEdgeAndKeepsNestedCellsEmpty) {
  NSMutableArray *nested = [[apps(3) mutableCopy] autorelease];
  [nested insertObject:@{@"listType" : @"folder", @"iconLists" : @[]} atIndex:1];
  [nested insertObject:@{@"listType" : @"newsstand"} atIndex:3];
  StartDevice("iphone-touchid-ios14", true, ^(NSMutableDictionary *profile) {
    [profile setObject:@[ folder(@"Twelve", apps(12)), folder(@"Nested", nested) ] forKey:@"folders"];
  });
  PSListController *page = Open(@"TessarinFoldersController");

  UIImage *twelve = [Named(page, @"Twelve") propertyForKey:@"iconImage"];
  ASSERT_NE(twelve, nil);
  EXPECT_EQ(twelve.size.width, 60);
  EXPECT_EQ(twelve.size.height, 60);
  std::vector<Draw> draws = imageDraws(twelve);
  ASSERT_EQ(draws.size(), 12u);
  int inside = 0, cut = 0, outside = 0;
  for (size_t i = 0; i < draws.size(); i++) {
    SCOPED_TRACE(i);
    EXPECT_EQ(draws[i].what, "appicon:com.test.app" + std::to_string(i + 1));
    const CGRect r = draws[i].rect;
    EXPECT_EQ(r.size.width, 13);
    if (CGRectGetMaxX(r) <= 60)
      inside++;
    else if (CGRectGetMinX(r) < 60)
      cut++;
    else
      outside++;
  }
  EXPECT_EQ(inside, 9);
  EXPECT_EQ(cut, 1);
  EXPECT_EQ(outside, 2);
  EXPECT_EQ(draws[9].rect.origin.x, 53);
  EXPECT_EQ(draws[9].rect.origin.y, 38);

  // app1, (nested folder: nothing), app2, newsstand at 20 points redrawn into its cell, app3.
  std::vector<Draw> withNested = imageDraws([Named(page, @"Nested") propertyForKey:@"iconImage"]);
  ASSERT_EQ(withNested.size(), 4u);
  EXPECT_EQ(withNested[0].what, "appicon:com.test.app1");
  EXPECT_EQ(withNested[0].rect.origin.x, 8);
  EXPECT_EQ(withNested[1].what, "appicon:com.test.app2");
  EXPECT_EQ(withNested[1].rect.origin.x, 38);  // the second cell stays empty
  EXPECT_EQ(withNested[2].what, "drawn");
  EXPECT_EQ(withNested[2].rect.origin.x, 8);
  EXPECT_EQ(withNested[2].rect.origin.y, 23);
  EXPECT_EQ(withNested[3].what, "appicon:com.test.app3");
  EXPECT_EQ(withNested[3].rect.origin.x, 23);
  EXPECT_EQ(withNested[3].rect.origin.y, 23);
}

// Under the icons, a picture is a translucent grey-blue square of 58 points with corners
// rounded by 13.5, filled before anything else on a 60-point canvas at the screen's scale.
TEST_F(ListPagesTest, AFolderPictureIsATranslucentGreyBlueRoundedSquareUnderItsIcons) {
  StartDevice("iphone-touchid-ios14", true, ^(NSMutableDictionary *profile) {
    [profile setObject:@[ folder(@"Empty", @[]), folder(@"Two", apps(2)) ] forKey:@"folders"];
  });
  PSListController *page = Open(@"TessarinFoldersController");
  const double colour[] = {0.614312, 0.695196, 0.822695, 0.8};
  for (NSString *name in @[ @"Empty", @"Two" ]) {
    SCOPED_TRACE([name UTF8String]);
    UIImage *picture = [Named(page, name) propertyForKey:@"iconImage"];
    ASSERT_NE(picture, nil);
    EXPECT_EQ(picture.size.width, 60);
    EXPECT_EQ(picture.size.height, 60);
    EXPECT_EQ(picture.scale, [UIScreen mainScreen].scale);
    NSArray *ops = [picture _simDrawOperations];
    NSUInteger first = [ops indexOfObjectPassingTest:^BOOL(NSString *op, NSUInteger i, BOOL *stop) {
      return ([op hasPrefix:@"fill"] && ![op hasPrefix:@"fillColor "]) || [op hasPrefix:@"drawImage "];
    }];
    ASSERT_NE(first, (NSUInteger)NSNotFound) << [[ops description] UTF8String];
    EXPECT_NSEQ([ops objectAtIndex:first], @"fillRect {{0, 0}, {58, 58}}");
    NSArray *before = [ops subarrayWithRange:NSMakeRange(0, first)];
    EXPECT_TRUE([before containsObject:@"cornerRadius 13.5"]) << [[before description] UTF8String];
    NSString *fillColour = nil;
    for (NSString *op in before)
      if ([op hasPrefix:@"fillColor "]) fillColour = [op substringFromIndex:10];
    NSArray *parts = [fillColour componentsSeparatedByString:@" "];
    ASSERT_EQ([parts count], 4u) << [[fillColour description] UTF8String];
    for (NSUInteger i = 0; i < 4; i++) EXPECT_NEAR([[parts objectAtIndex:i] doubleValue], colour[i], 5e-7) << i;
    EXPECT_EQ(imageDraws(picture).size(), [name isEqual:@"Two"] ? 2u : 0u);
  }
}

TEST_F(ListPagesTest, SameNamedFoldersSwitchTogetherAndStoreOneName) {
  StartDevice(SIM_DEFAULT_PROFILE, true, ^(NSMutableDictionary *profile) {
    [profile setObject:@[ folder(@"Twin", apps(1)), folder(@"Other", apps(1)), folder(@"Twin", apps(2)) ]
                forKey:@"folders"];
  });
  PSListController *page = Open(@"TessarinFoldersController");
  NSArray *rows = Switches(page);
  ASSERT_EQ([rows count], 3u);
  // Each row's switch, as its cell gives it.
  NSMutableArray *switches = [NSMutableArray array];
  for (PSSpecifier *row in rows) {
    UISwitch *control = [[[UISwitch alloc] initWithFrame:CGRectZero] autorelease];
    [row setProperty:control forKey:@"control"];
    [switches addObject:control];
  }
  PSSpecifier *first = [rows objectAtIndex:1], *second = [rows objectAtIndex:2];
  ASSERT_NSEQ([first name], @"Twin");
  ASSERT_NSEQ([second name], @"Twin");

  DomainWrite on(StoredPreferences());
  [first performSetterWithValue:@(YES)];
  EXPECT_TRUE(on.Wrote(StoredPreferences(), tessarin::key::kProtectedFolders, @[ @"Twin" ]));
  EXPECT_TRUE([[switches objectAtIndex:2] isOn]);
  EXPECT_FALSE([[switches objectAtIndex:0] isOn]);
  [second performSetterWithValue:@(YES)];
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protectedFolders"], @[ @"Twin" ]);
  EXPECT_NSEQ([page performSelector:@selector(getFolderProtectEnabledForSpecifier:) withObject:first], @(YES));

  DomainWrite off(StoredPreferences());
  [second performSetterWithValue:@(NO)];
  EXPECT_TRUE(off.Wrote(StoredPreferences(), tessarin::key::kProtectedFolders, @[]));
  EXPECT_FALSE([[switches objectAtIndex:1] isOn]);
}

// A default name of another type is still the name taken, and it is no name: such a row,
// like one of a folder without names, switches no name but stores its list and posts.
TEST_F(ListPagesTest, AFolderWithoutAUsableNameStoresTheListUnchanged) {
  StartDevice(SIM_DEFAULT_PROFILE, true, ^(NSMutableDictionary *profile) {
    NSMutableDictionary *typed = [[folder(@"Shown", apps(1)) mutableCopy] autorelease];
    [typed setObject:@(42) forKey:@"defaultDisplayName"];
    [profile setObject:@[ typed, folder(nil, apps(1)), folder(@"Work", apps(1)) ] forKey:@"folders"];
  });
  PSListController *page = Open(@"TessarinFoldersController");
  EXPECT_NSEQ(Names(page), (@[ [NSNull null], [NSNull null], @"Work" ]));
  NSArray *stored = @[ @(7), @"Work" ];
  BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(stored, "protectedFolders");
  for (PSSpecifier *row in [Switches(page) subarrayWithRange:NSMakeRange(0, 2)]) {
    for (NSNumber *on in @[ @(YES), @(NO) ]) {
      const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
      [row performSetterWithValue:on];
      EXPECT_NSEQ([StoredPreferences() objectForKey:@"protectedFolders"], stored);
      EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification), posts + 1);
      EXPECT_NSEQ([page performSelector:@selector(getFolderProtectEnabledForSpecifier:) withObject:row], @(NO));
    }
  }
}

TEST_F(ListPagesTest, WithoutSpringBoardTheFoldersPageHasOnlyItsText) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  PSListController *page = Open(@"TessarinFoldersController");
  EXPECT_EQ([Switches(page) count], 0u);
  EXPECT_EQ([[page specifiers] count], 2u);
}

TEST_F(ListPagesTest, ControlCenterModularRowsFollowTheSystemsResources) {
  struct Case {
    const char *profile;
    NSString *airplaneIcon;  // what the first row's icon draws
    bool tinted;
  };
  const Case cases[] = {
      {"iphone-faceid-ios16", @"drawImage AirplaneMode@", false},
      {"iphone-touchid-ios14", @"drawImage AirplaneGlyph@", true},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.profile);
    StartDevice(c.profile, false);
    PSListController *page = Open(@"TessarinCCItemsController");
    NSArray *ids = Ids(page);
    ASSERT_GE([ids count], 6u);
    EXPECT_NSEQ([ids subarrayWithRange:NSMakeRange(0, 6)],
                (@[ @"airplane", @"cellular", @"wifi", @"bluetooth", @"airdrop", @"hotspot" ]));
    EXPECT_NSEQ([Names(page) subarrayWithRange:NSMakeRange(0, 6)],
                (@[ @"Airplane Mode", @"Cellular Data", @"WiFi", @"Bluetooth", @"AirDrop", @"Personal Hotspot" ]));
    NSArray *ops = [[[Switches(page) objectAtIndex:0] propertyForKey:@"iconImage"] _simDrawOperations];
    NSString *all = [ops componentsJoinedByString:@"\n"];
    EXPECT_NE([all rangeOfString:c.airplaneIcon].location, (NSUInteger)NSNotFound) << [all UTF8String];
    EXPECT_NE([all rangeOfString:@"clip"].location, (NSUInteger)NSNotFound);
    EXPECT_EQ([all rangeOfString:@"blendMode 18"].location != NSNotFound, c.tinted);
    // Module rows: skipped ones absent, titles as the bundles and the special cases give them.
    NSArray *names = Names(page);
    EXPECT_TRUE([names containsObject:@"Screen Recording"]);
    EXPECT_TRUE([names containsObject:@"Timer"]);  // "TimerModule" without display name
    EXPECT_TRUE([names containsObject:@"Flashlight"]);
    EXPECT_FALSE([names containsObject:@"Orientation Lock"]);
    EXPECT_FALSE([Ids(page) containsObject:@"com.apple.control-center.AudioModule"]);
  }
}

TEST_F(ListPagesTest, ControlCenterClassicRowsWithoutTheModuleDirectory) {
  StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) {
    [profile setObject:@[
      @{@"bundle" : @"Extra.bundle",
        @"info" : @{@"CFBundleIdentifier" : @"com.test.extra"}}
    ]
                forKey:@"controlCenterAddOns"];
    [profile setObject:@[ @"/Library/MobileSubstrate/DynamicLibraries/CCSupport.dylib" ] forKey:@"files"];
  });
  NSString *modules = [NSString stringWithFormat:@"%s/System/Library/ControlCenter/Bundles", Root().c_str()];
  ASSERT_TRUE([[NSFileManager defaultManager] removeItemAtPath:modules error:NULL]);
  PSListController *page = Open(@"TessarinCCItemsController");
  EXPECT_NSEQ(Ids(page), (@[ @"airplaneMode", @"wifi", @"bluetooth", @"doNotDisturb", @"orientationLock" ]));
  EXPECT_NSEQ(Names(page), (@[ @"Airplane Mode", @"Wifi", @"Bluetooth", @"Do not disturb", @"Orientation lock" ]));
  // Glyphs from SpringBoard, else ControlCenterUI, drawn at 20 by 17 without rounding.
  UIImage *moon = [[Switches(page) objectAtIndex:3] propertyForKey:@"iconImage"];
  EXPECT_EQ(moon.size.width, 20);
  EXPECT_EQ(moon.size.height, 17);
  NSString *drawn = [[moon _simDrawOperations] componentsJoinedByString:@"\n"];
  EXPECT_NE([drawn rangeOfString:@"ControlCenterGlyphMoon"].location, (NSUInteger)NSNotFound);
  EXPECT_EQ([drawn rangeOfString:@"clip"].location, (NSUInteger)NSNotFound);
}

TEST_F(ListPagesTest, AddOnModulesNeedCCSupport) {
  NSArray *addOns = @[
    @{
      @"bundle" : @"WeatherModule.bundle",
      @"info" : @{@"CFBundleIdentifier" : @"com.test.weather", @"CFBundleName" : @"WeatherModule"}
    },
    @{@"bundle" : @"MuteModule.bundle",
      @"info" : @{@"CFBundleIdentifier" : @"com.test.mute"}},
  ];
  for (bool ccSupport : {false, true}) {
    SCOPED_TRACE(ccSupport ? "with CCSupport" : "without CCSupport");
    StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) {
      [profile setObject:addOns forKey:@"controlCenterAddOns"];
      [profile setObject:ccSupport ? @[ @"/Library/MobileSubstrate/DynamicLibraries/CCSupport.dylib" ] : @[]
                  forKey:@"files"];
    });
    PSListController *page = Open(@"TessarinCCItemsController");
    EXPECT_EQ([Ids(page) containsObject:@"com.test.weather"], ccSupport);
    EXPECT_EQ([Names(page) containsObject:@"Weather"], ccSupport);  // "Module" removed from the bundle name
    EXPECT_FALSE([Ids(page) containsObject:@"com.test.mute"]);      // skipped as the system's is
  }
}

// One case per process: a bundle made again at the same path within a second may be read
// from the platform's caches of the first.
struct OrderCase {
  const char *what;
  int order;  // 0: no file, 1: unreadable, 2: a shared position, 3: positions that are not numbers
};
void PrintTo(const OrderCase &c, std::ostream *out) { *out << c.what; }

class CCSettingsPageTest : public ListPagesTest, public ::testing::WithParamInterface<OrderCase> {};

TEST_P(CCSettingsPageTest, RowsFollowTheOrderFile) {
  NSString *orderFile = @(tessarin::lists::kCCSettingsOrderFile);
  NSArray *fixed = @[
    @"wifi",           @"airplaneMode", @"location", @"doNotDisturb",    @"home",     @"lock",       @"bluetooth",
    @"hotspot",        @"VPN",          @"autoLock", @"orientationLock", @"vibrate",  @"mute",       @"dataRate",
    @"killbackground", @"clearBadge",   @"shutdown", @"reboot",          @"respring", @"screenShot", @"data"
  ];
  id orders[] = {
    nil,
    [@"not a plist" dataUsingEncoding:NSUTF8StringEncoding],
    @{@"dataRate" : @(2), @"wifi" : @(0), @"VPN" : @(2)},
    @{@"dataRate" : @"1", @"wifi" : @(0), @"VPN" : @{}}
  };
  // Keys in the file's order (the stand-in writes plists with sorted keys).
  NSArray *expected[] = {
    fixed,
    fixed,
    @[ @"wifi", @"VPN", @"dataRate", @"VPN", @"dataRate" ],
    @[ @"wifi", @"dataRate", @"VPN" ]
  };
  const int which = GetParam().order;
  id order = orders[which];
  StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) {
    NSMutableDictionary *ccsettings = [NSMutableDictionary
        dictionaryWithObjectsAndKeys:@[ @"LTE", @"wifi", @"airplaneMode" ], @"icons", orderFile, @"orderFile", nil];
    if (order) [ccsettings setObject:order forKey:@"order"];
    [profile setObject:ccsettings forKey:@"ccsettings"];
  });
  PSListController *page = Open(@"TessarinCCSettingsItemsController");
  NSArray *ids = Ids(page);
  ASSERT_NSEQ(ids, expected[which]);
  NSArray *names = Names(page);
  NSUInteger rate = [ids indexOfObject:@"dataRate"], wifi = [ids indexOfObject:@"wifi"],
             vpn = [ids indexOfObject:@"VPN"];
  EXPECT_NSEQ([names objectAtIndex:rate], @"LTE");
  EXPECT_NSEQ([names objectAtIndex:wifi], @"WiFi");
  EXPECT_NSEQ([names objectAtIndex:vpn], @"VPN");
  NSArray *rows = Switches(page);
  EXPECT_TRUE([[[[rows objectAtIndex:rate] propertyForKey:@"iconImage"] _simDescription] hasPrefix:@"LTE@"]);
  EXPECT_TRUE([[[[rows objectAtIndex:wifi] propertyForKey:@"iconImage"] _simDescription] hasPrefix:@"wifi@"]);
  EXPECT_EQ([[rows objectAtIndex:vpn] propertyForKey:@"iconImage"], nil);  // no icon in the settings bundle
  if (which == 0) {
    EXPECT_NSEQ([names objectAtIndex:1], @"Airplane Mode");
    EXPECT_NSEQ([names objectAtIndex:19], @"Screen Shot");
    EXPECT_NSEQ([names objectAtIndex:14], @"Kill Background");
  }
}

const OrderCase kOrderCases[] = {{"NoOrderFileGivesTheFixedList", 0},
                                 {"AnUnreadableOrderFileGivesTheFixedList", 1},
                                 {"ASharedPositionIsListedTwice", 2},
                                 {"PositionsThatAreNotNumbersComeLastAndKeepTheirToggles", 3}};
INSTANTIATE_TEST_SUITE_P(Orders, CCSettingsPageTest, ::testing::ValuesIn(kOrderCases),
                         [](const ::testing::TestParamInfo<OrderCase> &info) { return std::string(info.param.what); });

TEST_F(ListPagesTest, ControlCenterSwitchesStoreTheirIdentifiers) {
  StartDevice(SIM_DEFAULT_PROFILE, false,
              ^(NSMutableDictionary *profile) { [profile setObject:@{} forKey:@"ccsettings"]; });
  struct Case {
    NSString *page;
    const tessarin::PreferenceKey &entry;
  };
  const Case cases[] = {{@"TessarinCCItemsController", tessarin::key::kProtectedCCItems},
                        {@"TessarinCCSettingsItemsController", tessarin::key::kProtectedCCSettingsItems}};
  for (const Case &c : cases) {
    SCOPED_TRACE([c.page UTF8String]);
    PSListController *page = Open(c.page);
    PSSpecifier *row = [Switches(page) objectAtIndex:1];
    NSString *identifier = [row propertyForKey:@"id"];
    DomainWrite on(StoredPreferences());
    [row performSetterWithValue:@(YES)];
    EXPECT_TRUE(on.Wrote(StoredPreferences(), c.entry, @[ identifier ]));
    const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
    [row performSetterWithValue:@(YES)];
    EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification) - posts, 1u);
    EXPECT_NSEQ([StoredPreferences() objectForKey:@(c.entry.name())], @[ identifier ]);
    DomainWrite off(StoredPreferences());
    [row performSetterWithValue:@(NO)];
    EXPECT_TRUE(off.Wrote(StoredPreferences(), c.entry, @[]));
  }
}

TEST_F(ListPagesTest, TheFoldersPageRereadsItsSwitchesEachTimeItAppears) {
  StartDevice(SIM_DEFAULT_PROFILE, true);
  PSListController *page = Open(@"TessarinFoldersController");
  NSArray *before = [page specifiers];
  PSSpecifier *social = Named(page, @"Social");
  ASSERT_NE(social, nil);
  EXPECT_NSEQ([page performSelector:@selector(getFolderProtectEnabledForSpecifier:) withObject:social], @(NO));
  // SpringBoard's half (or another page) protects the folder meanwhile.
  BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(@[ @"Social" ], "protectedFolders");
  [page viewDidAppear:NO];
  EXPECT_NE([page specifiers], before);  // rebuilt
  PSSpecifier *again = Named(page, @"Social");
  ASSERT_NE(again, nil);
  EXPECT_NSEQ([page performSelector:@selector(getFolderProtectEnabledForSpecifier:) withObject:again], @(YES));
}
