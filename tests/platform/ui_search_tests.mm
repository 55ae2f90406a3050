// Search bars, search controllers and the table's section index: what a page hears as the
// user types, clears and cancels a search, and where a touch on the index scrolls.
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>

#include <math.h>

#include "DeviceFixture.h"

// Writes down, in order, what a search page hears.
@interface SearchEars : NSObject <UISearchResultsUpdating, UISearchBarDelegate, UISearchControllerDelegate> {
  NSMutableArray *_heard;
  BOOL _refusesToBegin;
}
@property (nonatomic, retain) NSMutableArray *heard;
@property (nonatomic, assign) BOOL refusesToBegin;
@end

@implementation SearchEars
@synthesize heard = _heard;
@synthesize refusesToBegin = _refusesToBegin;
- (instancetype)init {
  if ((self = [super init])) _heard = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [_heard release];
  [super dealloc];
}
- (void)updateSearchResultsForSearchController:(UISearchController *)controller {
  [_heard addObject:[NSString stringWithFormat:@"update \"%@\" %@", controller.searchBar.text,
                                               controller.active ? @"active" : @"inactive"]];
}
- (BOOL)searchBarShouldBeginEditing:(UISearchBar *)bar {
  return !_refusesToBegin;
}
- (void)searchBarTextDidBeginEditing:(UISearchBar *)bar {
  [_heard addObject:@"begin"];
}
- (void)searchBar:(UISearchBar *)bar textDidChange:(NSString *)text {
  [_heard addObject:[NSString stringWithFormat:@"change \"%@\"", text]];
}
- (void)searchBarCancelButtonClicked:(UISearchBar *)bar {
  [_heard addObject:@"cancel"];
}
- (void)willPresentSearchController:(UISearchController *)controller {
  [_heard addObject:@"willPresent"];
}
- (void)didPresentSearchController:(UISearchController *)controller {
  [_heard addObject:@"didPresent"];
}
- (void)willDismissSearchController:(UISearchController *)controller {
  [_heard addObject:@"willDismiss"];
}
- (void)didDismissSearchController:(UISearchController *)controller {
  [_heard addObject:@"didDismiss"];
}
@end

// A table of `sections` sections of `rows` rows, with an index of `titles`; writes down what
// the table asks the index for, and answers `answer` when it is set.
@interface IndexedRows : NSObject <UITableViewDataSource> {
  NSInteger _sections;
  NSInteger _rows;
  NSArray *_titles;
  NSMutableArray *_asked;
  NSInteger _answer;
  BOOL _answers;
}
@property (nonatomic, assign) NSInteger sections;
@property (nonatomic, assign) NSInteger rows;
@property (nonatomic, copy) NSArray *titles;
@property (nonatomic, retain) NSMutableArray *asked;
@property (nonatomic, assign) NSInteger answer;
@property (nonatomic, assign) BOOL answers;
@end

@implementation IndexedRows
@synthesize sections = _sections;
@synthesize rows = _rows;
@synthesize titles = _titles;
@synthesize asked = _asked;
@synthesize answer = _answer;
@synthesize answers = _answers;
- (instancetype)init {
  if ((self = [super init])) _asked = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [_titles release];
  [_asked release];
  [super dealloc];
}
- (NSInteger)numberOfSectionsInTableView:(UITableView *)table {
  return _sections;
}
- (NSInteger)tableView:(UITableView *)table numberOfRowsInSection:(NSInteger)section {
  return _rows;
}
- (UITableViewCell *)tableView:(UITableView *)table cellForRowAtIndexPath:(NSIndexPath *)path {
  return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault reuseIdentifier:@"row"] autorelease];
}
- (NSArray *)sectionIndexTitlesForTableView:(UITableView *)table {
  return _titles;
}
- (NSInteger)tableView:(UITableView *)table sectionForSectionIndexTitle:(NSString *)title atIndex:(NSInteger)index {
  [_asked addObject:[NSString stringWithFormat:@"%@ %ld", title, (long)index]];
  return _answers ? _answer : index;
}
@end

// The same without an answer of its own: the index's position is the section.
@interface IndexedRowsByPosition : IndexedRows
@end
@implementation IndexedRowsByPosition
- (BOOL)respondsToSelector:(SEL)selector {
  if ([NSStringFromSelector(selector) isEqual:@"tableView:sectionForSectionIndexTitle:atIndex:"]) return NO;
  return [super respondsToSelector:selector];
}
@end

namespace {

class UISearchTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice("iphone-faceid-ios16");
    SimUIKitReset();
  }
};

// 10 sections of 5 rows of 44 points, each with a 35-point header and a 5-point footer
// (grouped), in a 400-point high table: sections 260 points apart, 2600 points in all, so
// the offset goes from 0 to 2200.
UITableView *indexedTable(IndexedRows *rows) {
  UITableView *table = [[[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 400)
                                                     style:UITableViewStyleGrouped] autorelease];
  rows.sections = 10;
  rows.rows = 5;
  table.dataSource = rows;
  [table reloadData];
  [table layoutIfNeeded];
  return table;
}

}  // namespace

TEST_F(UISearchTest, TheUpdaterHearsTheUserTypeClearAndCancel) {
  UISearchController *search = [[[UISearchController alloc] initWithSearchResultsController:nil] autorelease];
  SearchEars *ears = [[[SearchEars alloc] init] autorelease];
  search.searchResultsUpdater = ears;
  search.delegate = ears;
  search.searchBar.delegate = ears;
  EXPECT_TRUE(search.obscuresBackgroundDuringPresentation);
  EXPECT_TRUE(search.hidesNavigationBarDuringPresentation);
  EXPECT_FALSE(search.active);

  // Text set in code tells nobody.
  search.searchBar.text = @"x";
  search.searchBar.text = @"";
  EXPECT_EQ(ears.heard.count, 0u);

  // Typing: the bar takes the keyboard, the search begins, then one change per keystroke (a
  // letter with its accent is one).
  ASSERT_TRUE(SimSearchBarType(search.searchBar, @"se\u0301"));
  EXPECT_NSEQ(ears.heard, (@[
                @"begin", @"willPresent", @"update \"\" active", @"didPresent", @"change \"s\"", @"update \"s\" active",
                @"change \"se\u0301\"", @"update \"se\u0301\" active"
              ]));
  EXPECT_TRUE(search.active);
  EXPECT_TRUE(search.searchBar.showsCancelButton);
  EXPECT_TRUE([search.searchBar isFirstResponder]);

  // The clear button: one change, the search goes on.
  [ears.heard removeAllObjects];
  ASSERT_TRUE(SimSearchBarClear(search.searchBar));
  EXPECT_NSEQ(ears.heard, (@[ @"change \"\"", @"update \"\" active" ]));
  EXPECT_TRUE(search.active);

  // Typing again goes on from there; Cancel ends the search with the text emptied.
  ASSERT_TRUE(SimSearchBarType(search.searchBar, @"m"));
  [ears.heard removeAllObjects];
  ASSERT_TRUE(SimSearchBarTapCancel(search.searchBar));
  EXPECT_NSEQ(ears.heard, (@[ @"cancel", @"willDismiss", @"update \"\" inactive", @"didDismiss" ]));
  EXPECT_FALSE(search.active);
  EXPECT_NSEQ(search.searchBar.text, @"");
  EXPECT_FALSE([search.searchBar isFirstResponder]);
  EXPECT_FALSE(search.searchBar.showsCancelButton);

  // No Cancel button without a search; setting `active` to what it is does nothing.
  [ears.heard removeAllObjects];
  EXPECT_FALSE(SimSearchBarTapCancel(search.searchBar));
  search.active = NO;
  EXPECT_EQ(ears.heard.count, 0u);

  // A delegate may keep the keyboard away: no search begins.
  ears.refusesToBegin = YES;
  EXPECT_FALSE(SimSearchBarType(search.searchBar, @"a"));
  EXPECT_FALSE(search.active);
  EXPECT_EQ(ears.heard.count, 0u);

  // The code ends a search as Cancel does, without the cancel message.
  ears.refusesToBegin = NO;
  ASSERT_TRUE(SimSearchBarType(search.searchBar, @"q"));
  [ears.heard removeAllObjects];
  search.active = NO;
  EXPECT_NSEQ(ears.heard, (@[ @"willDismiss", @"update \"\" inactive", @"didDismiss" ]));
}

TEST_F(UISearchTest, ANavigationItemHoldsItsSearchController) {
  UINavigationItem *item = [[[UINavigationItem alloc] initWithTitle:@"Page"] autorelease];
  EXPECT_EQ(item.searchController, nil);
  EXPECT_TRUE(item.hidesSearchBarWhenScrolling);
  UISearchController *search = [[UISearchController alloc] initWithSearchResultsController:nil];
  item.searchController = search;
  [search release];
  EXPECT_EQ(item.searchController, search);  // kept alive by the item
  EXPECT_NE(search.searchBar, nil);
  item.hidesSearchBarWhenScrolling = NO;
  EXPECT_FALSE(item.hidesSearchBarWhenScrolling);
}

TEST_F(UISearchTest, TheIndexShowsTheDataSourcesTitlesAndScrollsToTheSectionItNames) {
  IndexedRows *rows = [[[IndexedRows alloc] init] autorelease];
  rows.titles = @[ @"A", @"B", @"C", @"D" ];
  UITableView *table = indexedTable(rows);
  EXPECT_NSEQ(SimTableViewSectionIndexTitles(table), (@[ @"A", @"B", @"C", @"D" ]));
  EXPECT_EQ([table rectForSection:3].origin.y, 780);

  struct Case {
    NSString *title;
    BOOL answers;
    NSInteger answer;
    NSString *asked;
    CGFloat offset;
  };
  const Case cases[] = {
      {@"C", YES, 3, @"C 2", 780},  // the section the data source names, to the top
      {@"A", YES, 0, @"A 0", 0},
      {@"D", YES, 9, @"D 3", 2200},   // the last sections cannot come to the top: the end shows
      {@"B", YES, 12, @"B 1", 2200},  // no such section: no scroll
      {@"B", YES, -1, @"B 1", 2200},
      {@"B", NO, 0, @"B 1", 260},  // the position, as the data source answers it
  };
  for (const Case &c : cases) {
    SCOPED_TRACE([c.title UTF8String]);
    rows.answers = c.answers;
    rows.answer = c.answer;
    [rows.asked removeAllObjects];
    ASSERT_TRUE(SimTableViewTapSectionIndex(table, c.title));
    EXPECT_NSEQ(rows.asked, @[ c.asked ]);
    EXPECT_EQ(table.contentOffset.y, c.offset);
    [table layoutIfNeeded];
    // The index stays along the visible right edge; the rows on screen are those there.
    EXPECT_EQ(CGRectGetMinY([[table.subviews lastObject] frame]), c.offset);
    NSIndexPath *first = [table.indexPathsForVisibleRows firstObject];
    EXPECT_TRUE(CGRectIntersectsRect([table rectForRowAtIndexPath:first], table.bounds));
  }
  EXPECT_FALSE(SimTableViewTapSectionIndex(table, @"Q"));

  // New titles show once the data is reloaded; none, no index.
  rows.titles = @[ @"#" ];
  EXPECT_NSEQ(SimTableViewSectionIndexTitles(table), (@[ @"A", @"B", @"C", @"D" ]));
  [table reloadSectionIndexTitles];
  EXPECT_NSEQ(SimTableViewSectionIndexTitles(table), @[ @"#" ]);
  rows.titles = nil;
  [table reloadData];
  EXPECT_EQ(SimTableViewSectionIndexTitles(table), nil);
  EXPECT_FALSE(SimTableViewTapSectionIndex(table, @"#"));
}

TEST_F(UISearchTest, WithoutAnAnswerTheIndexPositionIsTheSection) {
  IndexedRowsByPosition *rows = [[[IndexedRowsByPosition alloc] init] autorelease];
  rows.titles = @[ @"A", @"B", @"C" ];
  UITableView *table = indexedTable(rows);
  ASSERT_TRUE(SimTableViewTapSectionIndex(table, @"C"));
  EXPECT_EQ(table.contentOffset.y, 520);
  EXPECT_EQ(rows.asked.count, 0u);
}

TEST_F(UISearchTest, ScrollingToARowBringsItWhereAsked) {
  IndexedRows *rows = [[[IndexedRows alloc] init] autorelease];
  UITableView *table = indexedTable(rows);
  // Row 2 of section 4: 4 * 260 + 35 + 2 * 44 = 1163 to 1207.
  NSIndexPath *path = [NSIndexPath indexPathForRow:2 inSection:4];
  EXPECT_EQ([table rectForRowAtIndexPath:path].origin.y, 1163);
  struct Case {
    UITableViewScrollPosition position;
    CGFloat from;
    CGFloat offset;
  };
  const Case cases[] = {
      {UITableViewScrollPositionTop, 0, 1163},
      {UITableViewScrollPositionBottom, 0, 1207 - 400},
      {UITableViewScrollPositionMiddle, 0, 1185 - 200},
      {UITableViewScrollPositionNone, 0, 1207 - 400},  // below the screen: to the bottom
      {UITableViewScrollPositionNone, 2000, 1163},     // above: to the top
      {UITableViewScrollPositionNone, 1000, 1000},     // on screen: stays
  };
  for (const Case &c : cases) {
    table.contentOffset = CGPointMake(0, c.from);
    [table scrollToRowAtIndexPath:path atScrollPosition:c.position animated:NO];
    EXPECT_EQ(table.contentOffset.y, c.offset) << (long)c.position << " from " << c.from;
  }
  // Never past either end.
  [table scrollToRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:0]
               atScrollPosition:UITableViewScrollPositionBottom
                       animated:NO];
  EXPECT_EQ(table.contentOffset.y, 0);
  [table scrollToRowAtIndexPath:[NSIndexPath indexPathForRow:4 inSection:9]
               atScrollPosition:UITableViewScrollPositionTop
                       animated:NO];
  EXPECT_EQ(table.contentOffset.y, 2200);
  // A row that does not exist: nothing.
  [table scrollToRowAtIndexPath:[NSIndexPath indexPathForRow:7 inSection:1]
               atScrollPosition:UITableViewScrollPositionTop
                       animated:NO];
  EXPECT_EQ(table.contentOffset.y, 2200);
}

// Heights a delegate gives, changeable between measures; counts how often it is asked.
@interface ChangingHeights : IndexedRows <UITableViewDelegate> {
  CGFloat _height;
  NSInteger _heightsAsked;
}
@property (nonatomic, assign) CGFloat height;
@property (nonatomic, assign) NSInteger askedForHeights;
@end

@implementation ChangingHeights
@synthesize height = _height;
@synthesize askedForHeights = _heightsAsked;
- (CGFloat)tableView:(UITableView *)table heightForRowAtIndexPath:(NSIndexPath *)path {
  _heightsAsked++;
  return _height;
}
@end

// The table keeps what it measured, as UIKit does, until something tells it the measures
// changed: a long list is measured once per load, not once per row it places.
TEST_F(UISearchTest, TheTableMeasuresOncePerLoadAndAgainWhenTold) {
  ChangingHeights *rows = [[[ChangingHeights alloc] init] autorelease];
  rows.height = 44;
  UITableView *table = [[[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 400)
                                                     style:UITableViewStyleGrouped] autorelease];
  rows.sections = 10;
  rows.rows = 50;
  table.dataSource = rows;
  table.delegate = rows;
  [table reloadData];
  [table layoutIfNeeded];
  // Each row once for the load, and once more as its cell is made for the screen.
  const NSInteger onScreen = (NSInteger)[[table indexPathsForVisibleRows] count];
  EXPECT_GT(onScreen, 0);
  EXPECT_EQ(rows.askedForHeights, 500 + onScreen);
  EXPECT_EQ(table.contentSize.height, 10 * (35 + 50 * 44 + 5));

  NSIndexPath *last = [NSIndexPath indexPathForRow:49 inSection:9];
  const CGFloat before = [table rectForRowAtIndexPath:last].origin.y;
  rows.height = 50;
  [table setNeedsLayout];
  [table layoutIfNeeded];
  EXPECT_EQ([table rectForRowAtIndexPath:last].origin.y, before) << "kept until told";

  // A row reloaded is measured again, and what follows it moves.
  [table reloadRowsAtIndexPaths:@[ [NSIndexPath indexPathForRow:0 inSection:0] ]
               withRowAnimation:UITableViewRowAnimationNone];
  EXPECT_EQ([table rectForRowAtIndexPath:last].origin.y, before + 6);
  // Updates end: everything is measured again, the content grows.
  [table beginUpdates];
  [table endUpdates];
  EXPECT_EQ([table rectForRowAtIndexPath:last].origin.y, 10 * 35 + 9 * 5 + 499 * 50);
  EXPECT_EQ(table.contentSize.height, 10 * (35 + 50 * 50 + 5));
  // So does a new width, or a new load.
  rows.height = 30;
  table.frame = CGRectMake(0, 0, 300, 400);
  EXPECT_EQ([table rectForRowAtIndexPath:last].size.height, 30);
  rows.height = 20;
  [table reloadData];
  EXPECT_EQ([table rectForRowAtIndexPath:last].size.height, 20);
  EXPECT_EQ(table.contentSize.height, 10 * (35 + 50 * 20 + 5));
}
