// The applications pages as a person with many applications uses them: the search field in
// the navigation bar, the index down the side, switches flipped while searching, and
// applications whose Info.plist is odd in every way an installed bundle can be.
#import <Foundation/Foundation.h>
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSTableCell.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/SimApplications.h>
#include <Simulator/Simulator.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#import "BundleFixture.h"
#include "core/Names.hpp"

namespace {

NSString *const kPages[] = {@"TessarinApplicationsController", @"TessarinAppNotificationsController"};

NSDictionary *app(NSString *source, NSString *name, NSString *identifier) {
  NSString *bundle = [[identifier stringByReplacingOccurrencesOfString:@"."
                                                            withString:@"_"] stringByAppendingString:@".app"];
  return @{
    @"source" : source,
    @"bundle" : bundle,
    @"info" : @{@"CFBundleIdentifier" : identifier, @"CFBundleDisplayName" : name, @"CFBundleExecutable" : @"Exe"}
  };
}

// Names as a person sees them: a left-to-right mark before Signal, fullwidth LINE, accents.
NSArray *phone() {
  return @[
    app(@"Applications", @"Safari", @"com.apple.mobilesafari"),
    app(@"Containers", @"\u200ESignal", @"org.whispersystems.signal"),
    app(@"Containers", @"\u00C9cole Directe", @"fr.ecole.directe"),
    app(@"Binpack", @"\uFF2C\uFF29\uFF2E\uFF25", @"jp.naver.line"),
    app(@"Containers", @"Stra\u00DFenbahn", @"de.bahn.strasse"),
    app(@"Containers", @"Google Maps", @"com.google.Maps"),
    app(@"Applications", @"Maps", @"com.apple.Maps"),
    app(@"Containers", @"1Password", @"com.agilebits.onepassword"),
    app(@"Containers", @"\u00C4rlig", @"se.arlig"),
  ];
}

}  // namespace

class ApplicationSearchTest : public BundleTest {
 protected:
  void SetUp() override {
    BundleTest::SetUp();
    SimSettingsReset();
  }
  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }

  void Start(NSArray *installed, NSArray *languages = nil, const char *profile = SIM_DEFAULT_PROFILE) {
    StartDevice(profile, false, ^(NSMutableDictionary *edit) {
      [edit setObject:installed forKey:@"installedApplications"];
      [edit removeObjectForKey:@"files"];
      if (languages != nil) [edit setObject:languages forKey:@"languages"];
    });
  }

  // The page shown as a Settings pane, laid out as the screen shows it.
  PSListController *Show(NSString *pageClass) {
    PSListController *page = OpenSettingsPane(pageClass);
    [[page table] layoutIfNeeded];
    return page;
  }

  static UISearchBar *Bar(PSListController *page) { return [[[page navigationItem] searchController] searchBar]; }

  // Types into the page's search field from empty, as a person does.
  static void Search(PSListController *page, NSString *text) {
    ASSERT_TRUE(SimSearchBarClear(Bar(page)));
    ASSERT_TRUE(SimSearchBarType(Bar(page), text));
    [[page table] layoutIfNeeded];
  }

  // The application rows the page shows, top to bottom, as its table holds them.
  static NSArray *Shown(PSListController *page) {
    NSMutableArray *names = [NSMutableArray array];
    UITableView *table = [page table];
    for (NSInteger section = 0; section < [table numberOfSections]; section++) {
      for (NSInteger row = 0; row < [table numberOfRowsInSection:section]; row++) {
        PSSpecifier *s = [page specifierAtIndexPath:[NSIndexPath indexPathForRow:row inSection:section]];
        if ([s cellType] == PSSwitchCell) [names addObject:[s name]];
      }
    }
    return names;
  }

  // The whole list's names in its order, keeping those in `wanted`.
  static NSArray *InListOrder(NSArray *whole, NSArray *wanted) {
    NSMutableArray *kept = [NSMutableArray array];
    for (NSString *name in whole)
      if ([wanted containsObject:name]) [kept addObject:name];
    return kept;
  }

  static PSSpecifier *Row(PSListController *page, NSString *identifier) {
    for (PSSpecifier *row in [page specifiers])
      if ([[row propertyForKey:@"id"] isEqual:identifier]) return row;
    return nil;
  }

  // The footers of the groups the page shows.
  static NSArray *Footers(PSListController *page) {
    NSMutableArray *footers = [NSMutableArray array];
    UITableView *table = [page table];
    for (NSInteger section = 0; section < [table numberOfSections]; section++) {
      NSString *footer = [[table dataSource] tableView:table titleForFooterInSection:section];
      if (footer != nil) [footers addObject:footer];
    }
    return footers;
  }
};

TEST_F(ApplicationSearchTest, TheSearchFieldIsTheNavigationBarsAsInSettings) {
  for (const char *profile : {"iphone-ios12", "iphone-ios17"}) {
    SCOPED_TRACE(profile);
    SimSettingsReset();
    Start(phone(), nil, profile);
    for (NSString *pageClass : kPages) {
      PSListController *page = Show(pageClass);
      UINavigationItem *item = [page navigationItem];
      UISearchController *search = [item searchController];
      ASSERT_NE(search, nil);
      EXPECT_EQ([search searchResultsUpdater], (id)page);
      EXPECT_FALSE([search obscuresBackgroundDuringPresentation]);  // the results are the page's own rows
      EXPECT_TRUE([item hidesSearchBarWhenScrolling]);
      EXPECT_TRUE([page definesPresentationContext]);
      EXPECT_FALSE([search isActive]);
    }
  }
}

TEST_F(ApplicationSearchTest, SearchNarrowsTheListAsTheUserTypesAndCancelBringsItBack) {
  Start(phone());
  struct Case {
    NSString *typed;
    NSArray *found;  // nil: the whole list
  };
  const Case cases[] = {
      {@"saf", @[ @"Safari" ]},
      {@"SAFARI", @[ @"Safari" ]},
      {@"com.apple.mobilesafari", @[ @"Safari" ]},
      {@"com.apple.", @[ @"Safari", @"Maps" ]},
      {@"maps", @[ @"Google Maps", @"Maps" ]},
      {@"maps google", @[ @"Google Maps" ]},
      {@"ecole", @[ @"\u00C9cole Directe" ]},
      {@"\u00E9COLE", @[ @"\u00C9cole Directe" ]},
      {@"\uFF53\uFF41\uFF46", @[ @"Safari" ]},  // typed in fullwidth
      {@"signal", @[ @"\u200ESignal" ]},
      {@"strasse", @[ @"Stra\u00DFenbahn" ]},
      {@"line", @[ @"\uFF2C\uFF29\uFF2E\uFF25" ]},
      {@"1pass", @[ @"1Password" ]},
      {@"arlig", @[ @"\u00C4rlig" ]},
      {@"   ", nil},  // spaces alone ask for nothing
  };
  for (NSString *pageClass : kPages) {
    SCOPED_TRACE([pageClass UTF8String]);
    PSListController *page = Show(pageClass);
    NSArray *whole = [page specifiers];
    NSArray *names = Shown(page);
    ASSERT_EQ([names count], 9u);
    UITableView *table = [page table];
    ASSERT_EQ([SimTableViewSectionIndexTitles(table) count], 27u);
    for (const Case &c : cases) {
      SCOPED_TRACE([c.typed UTF8String]);
      Search(page, c.typed);
      EXPECT_TRUE([[[page navigationItem] searchController] isActive]);
      if (c.found == nil) {
        EXPECT_EQ([page specifiers], whole);
        EXPECT_EQ([SimTableViewSectionIndexTitles(table) count], 27u);
        continue;
      }
      EXPECT_NSEQ(Shown(page), InListOrder(names, c.found));
      EXPECT_EQ(SimTableViewSectionIndexTitles(table), nil);  // no index while searching
      EXPECT_NSEQ(Footers(page), @[]);
    }

    // Each keystroke narrows at once.
    ASSERT_TRUE(SimSearchBarClear(Bar(page)));
    const struct {
      NSString *key;
      NSArray *found;
    } keys[] = {
        {@"m", @[ @"1Password", @"Google Maps", @"Maps", @"Safari", @"\u200ESignal" ]},  // "com.", "whispersystems"
        {@"a", @[ @"Google Maps", @"Maps" ]},
        {@"p", @[ @"Google Maps", @"Maps" ]},
        {@"s", @[ @"Google Maps", @"Maps" ]},
        {@"x", @[]},
    };
    for (const auto &key : keys) {
      ASSERT_TRUE(SimSearchBarType(Bar(page), key.key));
      [table layoutIfNeeded];
      EXPECT_NSEQ(Shown(page), InListOrder(names, key.found)) << [[Bar(page) text] UTF8String];
    }
    // Nothing found: "No Results", alone.
    EXPECT_NSEQ(Footers(page), @[ @"No Results" ]);
    EXPECT_EQ([table numberOfSections], 1);
    EXPECT_EQ([table numberOfRowsInSection:0], 0);

    // Cancel: the whole list as it was, with its index.
    ASSERT_TRUE(SimSearchBarTapCancel(Bar(page)));
    [table layoutIfNeeded];
    EXPECT_FALSE([[[page navigationItem] searchController] isActive]);
    EXPECT_EQ([page specifiers], whole);
    EXPECT_NSEQ(Shown(page), names);
    EXPECT_EQ([SimTableViewSectionIndexTitles(table) count], 27u);
  }
}

TEST_F(ApplicationSearchTest, ASwitchWhileSearchingStoresWhatTheWholeListStores) {
  // Taps on a row's switch, each found by a search first (or in the whole list), and what
  // the page's list holds after each.
  const struct {
    NSString *identifier;
    NSString *typed;
    NSArray *stored;
  } taps[] = {
      {@"com.apple.Maps", @"maps", @[ @"com.apple.Maps" ]},
      {@"com.apple.mobilesafari", @"com.apple.", @[ @"com.apple.Maps", @"com.apple.mobilesafari" ]},
      {@"com.apple.Maps", @"apple maps", @[ @"com.apple.mobilesafari" ]},  // off again
      {@"org.whispersystems.signal", @"sig", @[ @"com.apple.mobilesafari", @"org.whispersystems.signal" ]},
      {@"com.google.Maps", @"maps", @[ @"com.apple.mobilesafari", @"org.whispersystems.signal", @"com.google.Maps" ]},
  };
  // Each page once searching and once in the whole list, each time on a device of its own.
  for (const bool applicationsSearch : {true, false}) {
    SimSettingsReset();
    Start(phone());
    for (NSString *pageClass : kPages) {
      const bool applications = [pageClass isEqual:kPages[0]];
      const bool searching = applications == applicationsSearch;
      SCOPED_TRACE(std::string([pageClass UTF8String]) + (searching ? " searching" : " whole list"));
      NSString *key = applications ? @"protected" : @"protectedNotifications";
      PSListController *page = Show(pageClass);
      for (const auto &tap : taps) {
        if (searching) Search(page, tap.typed);
        PSSpecifier *row = Row(page, tap.identifier);
        ASSERT_NE(row, nil);
        const unsigned posts = SimNotifyPostCount(tessarin::kPrefsChangedNotification);
        ASSERT_TRUE(SimListControllerTapSpecifier(page, row));  // the switch in the row's cell
        EXPECT_NSEQ([StoredPreferences() objectForKey:key], tap.stored);
        EXPECT_EQ(SimNotifyPostCount(tessarin::kPrefsChangedNotification) - posts, 1u);
      }
      if (searching) ASSERT_TRUE(SimSearchBarTapCancel(Bar(page)));
      [[page table] layoutIfNeeded];
      // Every switch of the whole list shows what is stored.
      NSArray *last = taps[4].stored;
      for (PSSpecifier *row in [page specifiers]) {
        if ([row cellType] != PSSwitchCell) continue;
        UISwitch *control = (UISwitch *)[(PSControlTableCell *)[page cachedCellForSpecifier:row] control];
        EXPECT_EQ([control isOn], [last containsObject:[row propertyForKey:@"id"]]) << [[row name] UTF8String];
      }
    }
  }
}

TEST_F(ApplicationSearchTest, TheIndexLeadsToTheFirstRowsOfEachLetter) {
  // Enough applications that the list is several screens long; names under every kind of
  // first character.
  NSMutableArray *installed = [NSMutableArray arrayWithArray:phone()];
  NSArray *more = @[
    @"Authenticator", @"Banking", @"Calendar", @"Camera", @"Deliveroo", @"\u00D8lstue", @"Revolut", @"Shazam", @"Slack",
    @"Spotify", @"Telegram", @"Uber", @"WhatsApp", @"\u03A9mega", @"\u202BTwitter\u202C", @"Zoom"
  ];
  for (NSUInteger i = 0; i < [more count]; i++)
    [installed addObject:app(@"Containers", [more objectAtIndex:i],
                             [NSString stringWithFormat:@"com.test.more%lu", (unsigned long)i])];
  for (int i = 0; i < 40; i++)
    [installed addObject:app(@"Containers", [NSString stringWithFormat:@"Game %02d", i],
                             [NSString stringWithFormat:@"com.test.game%02d", i])];
  Start(installed);
  PSListController *page = Show(kPages[0]);
  UITableView *table = [page table];

  // The whole list: the page's two groups, then a header over each run of one letter; the
  // applications in the order the page gives them.
  NSArray *rows = [page specifiers];
  ASSERT_GT([rows count], 2u);
  EXPECT_NE([[rows objectAtIndex:0] propertyForKey:@"footerText"], nil);
  EXPECT_EQ([[rows objectAtIndex:1] cellType], PSGroupCell);
  EXPECT_EQ([[rows objectAtIndex:1] name], nil);
  NSDictionary *letterOf = @{
    @"1Password" : @"#",
    @"\u00C4rlig" : @"A",
    @"Authenticator" : @"A",
    @"Banking" : @"B",
    @"Calendar" : @"C",
    @"Camera" : @"C",
    @"Deliveroo" : @"D",
    @"\u00C9cole Directe" : @"E",
    @"Google Maps" : @"G",
    @"\uFF2C\uFF29\uFF2E\uFF25" : @"L",
    @"Maps" : @"M",
    @"\u00D8lstue" : @"O",
    @"Revolut" : @"R",
    @"Safari" : @"S",
    @"Shazam" : @"S",
    @"\u200ESignal" : @"S",
    @"Slack" : @"S",
    @"Spotify" : @"S",
    @"Stra\u00DFenbahn" : @"S",
    @"Telegram" : @"T",
    @"\u202BTwitter\u202C" : @"T",
    @"Uber" : @"U",
    @"WhatsApp" : @"W",
    @"Zoom" : @"Z",
    @"\u03A9mega" : @"#",
  };
  NSMutableArray *sectionOf = [NSMutableArray array];  // letter -> first section with its header
  NSMutableDictionary *firstSection = [NSMutableDictionary dictionary];
  NSString *header = nil;
  NSInteger section = 0;
  for (NSUInteger i = 2; i < [rows count]; i++) {
    PSSpecifier *row = [rows objectAtIndex:i];
    if ([row cellType] == PSGroupCell) {
      EXPECT_FALSE([[row name] isEqual:header]) << "two runs of " << [header UTF8String] << " side by side";
      header = [row name];
      section = [page indexPathForSpecifier:[rows objectAtIndex:i + 1]].section;
      if ([firstSection objectForKey:header] == nil) [firstSection setObject:@(section) forKey:header];
      [sectionOf addObject:header];
      continue;
    }
    NSString *expected = [[row name] hasPrefix:@"Game "] ? @"G" : [letterOf objectForKey:[row name]];
    EXPECT_NSEQ(header, expected) << [[row name] UTF8String];
  }
  NSMutableArray *withoutHeaders = [NSMutableArray array];
  for (PSSpecifier *row in rows)
    if ([row cellType] == PSSwitchCell) [withoutHeaders addObject:[row name]];
  EXPECT_NSEQ(withoutHeaders, Shown(page));

  NSArray *titles = SimTableViewSectionIndexTitles(table);
  EXPECT_NSEQ([titles componentsJoinedByString:@""], @"ABCDEFGHIJKLMNOPQRSTUVWXYZ#");
  const CGFloat lowest = 0;
  const CGFloat highest = fmax([table contentSize].height - table.bounds.size.height, 0);
  ASSERT_GT(highest, 0) << "the list should be longer than the screen";
  // A letter without applications leads to the next letter that has some; after Z there is
  // nothing, so the nearest before.
  NSDictionary *landsOn = @{
    @"S" : @"S",
    @"G" : @"G",
    @"A" : @"A",
    @"#" : @"#",
    @"F" : @"G",
    @"Q" : @"R",
    @"X" : @"Z",
    @"Y" : @"Z",
    @"E" : @"E"
  };
  for (NSString *letter in landsOn) {
    SCOPED_TRACE([letter UTF8String]);
    table.contentOffset = CGPointMake(0, 0);
    ASSERT_TRUE(SimTableViewTapSectionIndex(table, letter));
    const NSInteger target = [[firstSection objectForKey:[landsOn objectForKey:letter]] integerValue];
    const CGFloat top = [table rectForSection:target].origin.y;
    EXPECT_EQ(table.contentOffset.y, fmin(fmax(top, lowest), highest));
    [table layoutIfNeeded];
    // The rows of that letter are the ones on screen (unless the end of the list is).
    if (top <= highest) {
      NSIndexPath *first = [[table indexPathsForVisibleRows] firstObject];
      EXPECT_EQ(first.section, target);
      EXPECT_EQ(first.row, 0);
    }
  }
  // Searching hides the index; the letters come back with the whole list.
  Search(page, @"game 1");  // both words anywhere: Game 01, 10 to 19, 21, 31
  EXPECT_EQ([Shown(page) count], 13u);
  EXPECT_EQ(SimTableViewSectionIndexTitles(table), nil);
  ASSERT_TRUE(SimSearchBarTapCancel(Bar(page)));
  EXPECT_EQ([SimTableViewSectionIndexTitles(table) count], 27u);
}

// Swedish sorts "Ä" after "Z": its applications make a second run of A at the end, and the
// index's A leads to the first.
TEST_F(ApplicationSearchTest, ALetterTheLanguageSortsApartHasASecondRun) {
  Start(
      @[
        app(@"Applications", @"apple", @"com.test.apple"), app(@"Applications", @"Zebra", @"com.test.zebra"),
        app(@"Applications", @"\u00C4rlig", @"com.test.arlig")
      ],
      @[ @"sv" ]);
  PSListController *page = Show(kPages[0]);
  NSMutableArray *shape = [NSMutableArray array];
  for (PSSpecifier *row in [page specifiers])
    [shape
        addObject:[row cellType] == PSGroupCell ? [NSString stringWithFormat:@"[%@]", [row name] ?: @""] : [row name]];
  EXPECT_NSEQ(shape, (@[ @"[]", @"[]", @"[A]", @"apple", @"[Z]", @"Zebra", @"[A]", @"\u00C4rlig" ]));
  UITableView *table = [page table];
  EXPECT_EQ([[table dataSource] tableView:table sectionForSectionIndexTitle:@"A" atIndex:0], 2);
  EXPECT_EQ([[table dataSource] tableView:table sectionForSectionIndexTitle:@"Z" atIndex:25], 3);
}

// Whatever an application's Info.plist holds, the page opens, lists what the rules give a
// name, skips the rest quietly, and searches and indexes what it lists.
TEST_F(ApplicationSearchTest, OddInfoPlistsNeverBreakThePage) {
  NSData * (^plist)(id) = ^NSData *(id object) {
    return [NSPropertyListSerialization dataWithPropertyList:object
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:NULL];
  };
  struct Case {
    const char *what;
    NSData *infoPlist;  // written as the bundle's Info.plist (nil: none)
    bool directory;     // an Info.plist that is a directory
    bool unreadable;    // mode 000 (only where the tests do not run as root)
    bool loop;          // a link to itself: no one can read it
    NSDictionary *strings;
    NSString *listedOutside;    // the row's name in /Applications (nil: skipped)
    NSString *listedContainer;  // the row's name in the bundle container root (nil: skipped)
  };
  const Case cases[] = {
      {"no Info.plist", nil, false, false, false, nil, nil, nil},
      {"an Info.plist that is a directory", nil, true, false, false, nil, nil, nil},
      {"an unreadable Info.plist", plist(@{@"CFBundleIdentifier" : @"com.odd.locked", @"CFBundleName" : @"Locked"}),
       false, true, false, nil, nil, nil},
      {"an Info.plist that links to itself", nil, false, false, true, nil, nil, nil},
      {"bytes that are no property list", [@"\x01\x02 not a plist <dict>" dataUsingEncoding:NSUTF8StringEncoding],
       false, false, false, nil, nil, nil},
      {"a binary property list cut short", [NSData dataWithBytes:"bplist00\xd1\x01\x02" length:11], false, false, false,
       nil, nil, nil},
      {"an array", plist(@[ @"com.odd.array", @"Array" ]), false, false, false, nil, nil, nil},
      {"a string", plist(@"com.odd.string"), false, false, false, nil, nil, nil},
      {"names all absent", plist(@{@"CFBundleIdentifier" : @"com.odd.nameless"}), false, false, false, nil, nil,
       @"com.odd.nameless"},
      {"names all empty", plist(@{
         @"CFBundleIdentifier" : @"com.odd.empty",
         @"CFBundleDisplayName" : @"",
         @"CFBundleName" : @"",
         @"CFBundleExecutable" : @""
       }),
       false, false, false, nil, nil, @"com.odd.empty"},
      {"names of the wrong type", plist(@{
         @"CFBundleIdentifier" : @"com.odd.typed",
         @"CFBundleDisplayName" : @[ @"x" ],
         @"CFBundleName" : @(4),
         @"CFBundleExecutable" : @{@"a" : @"b"}
       }),
       false, false, false, nil, nil, @"com.odd.typed"},
      {"a name of only invisible marks",
       plist(@{@"CFBundleIdentifier" : @"com.odd.invisible", @"CFBundleDisplayName" : @"\u200E\u200F \u2066\u2069"}),
       false, false, false, nil, nil, @"com.odd.invisible"},
      {"strings that name it with nothing",
       plist(@{@"CFBundleIdentifier" : @"com.odd.blanked", @"CFBundleDisplayName" : @"Blanked"}), false, false, false,
       @{@"en" : @{@"CFBundleDisplayName" : @""}}, nil, @"com.odd.blanked"},
      {"no name and an identifier of the wrong type",
       plist(
           @{@"CFBundleIdentifier" : @(12)}),
       false, false, false, nil, nil, nil},
      {"a plain application beside them",
       plist(@{@"CFBundleIdentifier" : @"com.odd.plain", @"CFBundleDisplayName" : @"Plain"}), false, false, false, nil,
       @"Plain", @"Plain"},
  };
  const bool root = geteuid() == 0;
  for (const Case &c : cases) {
    if (c.unreadable && root) continue;
    for (NSString *source : @[ @"Applications", @"Containers" ]) {
      SCOPED_TRACE(std::string(c.what) + " in " + [source UTF8String]);
      SimSettingsReset();
      Start(@[ app(@"Applications", @"Safari", @"com.apple.mobilesafari") ]);
      NSMutableDictionary *entry =
          [NSMutableDictionary dictionaryWithObjectsAndKeys:source, @"source", @"Odd.app", @"bundle", nil];
      if (c.strings != nil) [entry setObject:c.strings forKey:@"strings"];
      NSString *bundle = SimInstallApplication(NULL, entry);
      ASSERT_NE(bundle, nil);
      const std::string info = std::string([bundle UTF8String]) + "/Info.plist";
      if (c.directory) ASSERT_EQ(mkdir(HostPath(info.c_str()).c_str(), 0755), 0);
      if (c.infoPlist != nil) WriteDeviceFile(info.c_str(), c.infoPlist);
      if (c.unreadable) ASSERT_EQ(chmod(HostPath(info.c_str()).c_str(), 0), 0);
      if (c.loop) ASSERT_EQ(symlink(HostPath(info.c_str()).c_str(), HostPath(info.c_str()).c_str()), 0);

      PSListController *page = Show(kPages[0]);
      NSString *listed = [source isEqual:@"Applications"] ? c.listedOutside : c.listedContainer;
      NSArray *expected =
          listed != nil ? [@[ listed, @"Safari" ] sortedArrayUsingSelector:@selector(localizedCaseInsensitiveCompare:)]
                        : @[ @"Safari" ];
      EXPECT_NSEQ(Shown(page), expected);
      EXPECT_EQ([SimTableViewSectionIndexTitles([page table]) count], 27u);
      if (listed != nil) {
        Search(page, [listed hasPrefix:@"com."] ? @"com.odd" : [listed lowercaseString]);
        EXPECT_NSEQ(Shown(page), @[ listed ]);
      }
      if (c.unreadable) chmod(HostPath(info.c_str()).c_str(), 0644);
    }
  }
}
