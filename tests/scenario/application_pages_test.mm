// The applications pages with the real bundle: the rows the scan of the installed
// bundles gives, filtered by SpringBoard's offer, and what their switches store.
#import <Foundation/Foundation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#include <Simulator/SimApplications.h>
#include <Simulator/Simulator.h>

#import "BundleFixture.h"
#import "DomainWrite.h"

namespace {

NSDictionary *app(NSString *source, NSString *bundle, NSDictionary *info, NSString *container = nil) {
  NSMutableDictionary *entry =
      [NSMutableDictionary dictionaryWithObjectsAndKeys:source, @"source", bundle, @"bundle", nil];
  if (info != nil) [entry setObject:info forKey:@"info"];
  if (container != nil) [entry setObject:container forKey:@"container"];
  return entry;
}

NSDictionary *info(NSString *identifier, NSString *displayName) {
  return @{@"CFBundleIdentifier" : identifier, @"CFBundleDisplayName" : displayName, @"CFBundleExecutable" : @"Exe"};
}

NSArray *offered(NSArray *identifiers) {
  NSMutableArray *apps = [NSMutableArray array];
  for (NSString *identifier in identifiers)
    [apps addObject:@{@"bundleIdentifier" : identifier, @"displayName" : identifier}];
  return apps;
}

}  // namespace

class ApplicationPagesTest : public BundleTest {
 protected:
  // A device with these applications installed; SpringBoard offers `offers` (nil: no SpringBoard).
  void Start(NSArray *installed, NSArray *offers) {
    StartDevice(SIM_DEFAULT_PROFILE, offers != nil, ^(NSMutableDictionary *profile) {
      [profile setObject:installed forKey:@"installedApplications"];
      [profile setObject:offered(offers ? offers : @[]) forKey:@"apps"];
      [profile removeObjectForKey:@"files"];
    });
  }

  PSListController *Open(NSString *className = @"TessarinApplicationsController") {
    Class pageClass = NSClassFromString(className);
    EXPECT_NE(pageClass, Nil);
    PSListController *page = [[[pageClass alloc] init] autorelease];
    [page specifiers];
    return page;
  }

  static NSArray *Names(PSListController *page) {
    NSMutableArray *names = [NSMutableArray array];
    for (PSSpecifier *row in [page specifiers])
      if ([row cellType] == PSSwitchCell) [names addObject:[row name]];
    return names;
  }

  static PSSpecifier *Row(PSListController *page, NSString *identifier) {
    for (PSSpecifier *row in [page specifiers])
      if ([[row identifier] isEqual:identifier]) return row;
    return nil;
  }
};

TEST_F(ApplicationPagesTest, NamesFollowTheInfoDictionaryAndItsStrings) {
  NSArray *installed = @[
    app(@"Applications", @"Maps.app", info(@"com.test.maps", @"Maps~iphone")),
    app(@"Applications", @"Tool.app",
        @{@"CFBundleIdentifier" : @"com.test.tool", @"CFBundleName" : @"Tool~iphone~iphone"}),
    app(@"Binpack", @"Exec.app", @{@"CFBundleIdentifier" : @"com.test.exec", @"CFBundleExecutable" : @"Runner"}),
    app(@"LegacyContainers", @"Old.app", info(@"com.test.old", @"Old Game"), @"AAAA"),
    @{
      @"source" : @"Applications",
      @"bundle" : @"Loc.app",
      @"info" : info(@"com.test.loc", @"Raw~iphone"),
      @"strings" : @{@"en" : @{@"CFBundleDisplayName" : @"Localised"}}
    },
    app(
        @"Applications", @"Typed.app",
        @{@"CFBundleIdentifier" : @"com.test.typed",
          @"CFBundleDisplayName" : @(7)}),
    // Outside the container root a name of the wrong type still takes its strings' name.
    @{
      @"source" : @"Binpack",
      @"bundle" : @"Seven.app",
      @"info" : @{@"CFBundleIdentifier" : @"com.test.seven", @"CFBundleDisplayName" : @(7)},
      @"strings" : @{@"en" : @{@"CFBundleDisplayName" : @"Seven"}}
    },
    app(@"Applications", @"Empty.app", nil),
    app(@"Containers", @"Bare.app", @{@"CFBundleIdentifier" : @"com.test.bare"}, @"BBBB"),
    app(
        @"Containers", @"TypedToo.app",
        @{@"CFBundleIdentifier" : @"com.test.typed2",
          @"CFBundleName" : @[]},
        @"CCCC"),
  ];
  Start(installed, nil);
  NSArray *expected =
      @[ @"com.test.bare", @"com.test.typed2", @"Localised", @"Maps", @"Old Game", @"Runner", @"Seven", @"Tool" ];
  EXPECT_NSEQ(Names(Open()), expected);
  // The first rows are the explanation's group and the empty group above the applications.
  NSArray *rows = [Open() specifiers];
  ASSERT_GE([rows count], 2u);
  EXPECT_EQ([[rows objectAtIndex:0] cellType], PSGroupCell);
  EXPECT_NE([[rows objectAtIndex:0] propertyForKey:@"footerText"], nil);
  EXPECT_EQ([[rows objectAtIndex:1] cellType], PSGroupCell);
  PSSpecifier *maps = Row(Open(), @"com.test.maps");
  ASSERT_NE(maps, nil);
  EXPECT_NSEQ([maps propertyForKey:@"useLazyIcons"], @(YES));
  EXPECT_NSEQ([maps propertyForKey:@"appIDForLazyIcon"], @"com.test.maps");
}

TEST_F(ApplicationPagesTest, DuplicateNamesAreSkippedOnlyInTheContainerRoot) {
  NSArray *installed = @[
    app(@"Applications", @"A.app", info(@"com.test.a", @"Twin")),
    app(@"Applications", @"B.app", info(@"com.test.b", @"Twin")),
    app(@"Containers", @"C.app", info(@"com.test.c", @"Pair"), @"C1"),
    app(@"Containers", @"D.app", info(@"com.test.d", @"Pair"), @"D1"),
    app(@"Containers", @"E.app", info(@"com.test.e", @"Twin"), @"E1"),
  ];
  Start(installed, @[ @"com.test.a", @"com.test.b", @"com.test.c", @"com.test.d", @"com.test.e" ]);
  EXPECT_NSEQ(Names(Open()), (@[ @"Pair", @"Twin", @"Twin" ]));
}

TEST_F(ApplicationPagesTest, SpringBoardsOfferFiltersAndItsAbsenceShowsAll) {
  NSArray *installed = @[
    app(@"Applications", @"A.app", info(@"com.test.a", @"Alpha")),
    app(@"Containers", @"B.app", info(@"com.test.b", @"Beta"), @"B1"),
    app(@"Binpack", @"G.app", info(@"com.test.g", @"Gamma")),
  ];
  Start(installed, @[ @"com.test.b", @"com.test.other" ]);
  EXPECT_NSEQ(Names(Open()), @[ @"Beta" ]);
  Start(installed, nil);
  EXPECT_NSEQ(Names(Open()), (@[ @"Alpha", @"Beta", @"Gamma" ]));
}

// The list is in the order of the device's language, whatever the locale of the process
// running the simulation: Swedish puts Å, Ä and Ö after Z.
TEST_F(ApplicationPagesTest, NamesSortInTheDevicesLanguage) {
  NSArray *installed = @[
    app(@"Applications", @"S.app", info(@"com.test.sms", @"MobileSMS")),
    app(@"Applications", @"A.app", info(@"com.test.arlig", @"\u00C4rlig")),
    app(@"Applications", @"Z.app", info(@"com.test.zebra", @"Zebra")),
    app(@"Applications", @"F.app", info(@"com.test.safari", @"MobileSafari")),
    app(@"Applications", @"B.app", info(@"com.test.apple", @"apple")),
  ];
  struct Case {
    NSArray *languages;
    NSArray *names;
  };
  const Case cases[] = {
      {@[ @"en" ], @[ @"apple", @"\u00C4rlig", @"MobileSafari", @"MobileSMS", @"Zebra" ]},
      {@[ @"sv" ], @[ @"apple", @"MobileSafari", @"MobileSMS", @"Zebra", @"\u00C4rlig" ]},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE([[c.languages description] UTF8String]);
    StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) {
      [profile setObject:installed forKey:@"installedApplications"];
      [profile setObject:c.languages forKey:@"languages"];
      [profile removeObjectForKey:@"files"];
    });
    EXPECT_NSEQ(Names(Open()), c.names);
  }
}

TEST_F(ApplicationPagesTest, TheLegacyContainerRootIsReadWhenTheNewOneIsMissing) {
  NSArray *installed = @[ app(@"Containers", @"A.app", info(@"com.test.a", @"Alpha"), @"A1") ];
  StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) {
    [profile setObject:installed forKey:@"installedApplications"];
    [profile setObject:@(YES) forKey:@"legacyContainerRoot"];
    [profile removeObjectForKey:@"files"];
  });
  EXPECT_NSEQ(Names(Open()), @[ @"Alpha" ]);
}

TEST_F(ApplicationPagesTest, NewApplicationsAppearOnlyWhenThePageIsOpenedAgain) {
  Start(@[ app(@"Applications", @"A.app", info(@"com.test.a", @"Alpha")) ], nil);
  PSListController *page = Open();
  NSArray *before = [page specifiers];
  ASSERT_NE(SimInstallApplication(NULL, app(@"Containers", @"N.app", info(@"com.test.n", @"Newcomer"), @"N1")), nil);
  EXPECT_EQ([page specifiers], before);
  EXPECT_NSEQ(Names(page), @[ @"Alpha" ]);
  EXPECT_NSEQ(Names(Open()), (@[ @"Alpha", @"Newcomer" ]));
}

TEST_F(ApplicationPagesTest, SwitchingStoresAsTheListRuleSaysAndAlwaysPosts) {
  Start(
      @[
        app(@"Applications", @"A.app", info(@"com.test.a", @"Alpha")),
        app(@"Applications", @"B.app", info(@"com.test.b", @"Beta"))
      ],
      @[ @"com.test.a", @"com.test.b" ]);
  // `changes`: the stored list differs afterwards, so the write shows in the domain; an
  // unchanged list written again cannot be told from no write, only the signal shows.
  struct Case {
    const char *what;
    NSString *identifier;
    BOOL on;
    bool changes;
    NSArray *after;
  };
  const Case cases[] = {
      {"off when never on, from nothing: an empty list is stored", @"com.test.b", NO, true, @[]},
      {"on", @"com.test.b", YES, true, @[ @"com.test.b" ]},
      {"on again stores nothing", @"com.test.b", YES, false, @[ @"com.test.b" ]},
      {"on appends", @"com.test.a", YES, true, @[ @"com.test.b", @"com.test.a" ]},
      {"off", @"com.test.b", NO, true, @[ @"com.test.a" ]},
      {"off when not on", @"com.test.b", NO, false, @[ @"com.test.a" ]},
  };
  for (NSString *pageClass in @[ @"TessarinApplicationsController", @"TessarinAppNotificationsController" ]) {
    const tessarin::PreferenceKey &entry = [pageClass isEqual:@"TessarinApplicationsController"]
                                               ? tessarin::key::kProtected
                                               : tessarin::key::kProtectedNotifications;
    PSListController *page = Open(pageClass);
    for (const Case &c : cases) {
      SCOPED_TRACE(std::string([pageClass UTF8String]) + ": " + c.what);
      PSSpecifier *row = Row(page, c.identifier);
      ASSERT_NE(row, nil);
      const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
      NSDictionary *before = StoredPreferences();
      DomainWrite write(before);
      [row performSetterWithValue:@(c.on)];  // as the row's switch does
      if (c.changes) {
        EXPECT_TRUE(write.Wrote(StoredPreferences(), entry, c.after));
      } else {
        EXPECT_NSEQ(StoredPreferences(), before);
        EXPECT_NSEQ([StoredPreferences() objectForKey:@(entry.name())], c.after);
        EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification) - posts, 1u);
      }
      EXPECT_NSEQ([page performSelector:@selector(getProtectEnabledForSpecifier:) withObject:row], @(c.on));
    }
  }
}
