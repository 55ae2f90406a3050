#import "lists/TessarinSearchableListController.h"

#import "core/BundleLookup.h"
#import "core/Specifiers.h"
#import "core/Strings.h"
#include "lists/ListSearch.hpp"
#include "lists/SearchText.hpp"

#include <string>
#include <vector>

namespace lists = tessarin::lists;

// The search's folded names and the index's runs, with the table section each run's header
// opens in the whole list.
struct TessarinListSearchState {
  lists::ListSearch search;
  bool searchFilled = false;
  std::vector<lists::IndexRun> runs;
  std::vector<NSInteger> runSections;
};

namespace {

bool isGroup(id row) { return [row isKindOfClass:[PSSpecifier class]] && [(PSSpecifier *)row cellType] == PSGroupCell; }

std::string textOf(id value) { return stdString(value); }

NSArray *indexTitles() {
  static NSArray *titles;
  if (titles == nil) {
    NSMutableArray *letters = [NSMutableArray array];
    for (char letter : lists::kIndexTitles) [letters addObject:nsString(std::string(1, letter))];
    titles = [letters copy];
  }
  return titles;
}

}  // namespace

@implementation TessarinSearchableListController

@synthesize wholeList = _wholeList;
@synthesize namedRows = _namedRows;
@synthesize searchText = _searchText;
@synthesize searchController = _searchController;

- (void)dealloc {
  [_searchController setSearchResultsUpdater:nil];
  [_wholeList release];
  [_namedRows release];
  [_searchText release];
  [_searchController release];
  delete _searchState;
  [super dealloc];
}

#pragma mark - What a page says

- (NSMutableArray *)listRows {
  return [NSMutableArray array];
}

#pragma mark - Rows

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  if (_wholeList == nil) [self indexList:[self listRows]];
  _specifiers = [([self isSearching] ? [self rowsFound] : _wholeList) retain];
  return _specifiers;
}

// The whole list: the page's leading groups, then each run of rows under one index letter
// after a header group named after the letter.
- (void)indexList:(NSArray *)rows {
  delete _searchState;
  _searchState = new TessarinListSearchState();
  NSMutableArray *whole = [NSMutableArray arrayWithCapacity:[rows count] + lists::kIndexTitles.size()];
  NSMutableArray *named = [NSMutableArray arrayWithCapacity:[rows count]];
  NSInteger sections = 0;
  char previous = 0;
  for (id row in rows) {
    if (![row isKindOfClass:[PSSpecifier class]]) continue;
    if (isGroup(row)) {
      [whole addObject:row];
      ++sections;
      previous = 0;  // a group of the page's own ends the run
      continue;
    }
    const char letter = lists::indexLetter(textOf([(PSSpecifier *)row name]));
    if (letter != previous) {
      [whole addObject:[PSSpecifier groupSpecifierWithName:nsString(std::string(1, letter))]];
      _searchState->runs.push_back({static_cast<size_t>([named count]), letter});
      _searchState->runSections.push_back(sections);
      ++sections;
      previous = letter;
    }
    [whole addObject:row];
    [named addObject:row];
  }
  self.wholeList = whole;
  self.namedRows = named;
}

// The rows the search finds, in list order, in one group; "No Results" when there are none.
- (NSMutableArray *)rowsFound {
  if (!_searchState->searchFilled) {
    for (PSSpecifier *row in _namedRows) {
      id identifier = [row propertyForKey:@"id"];
      _searchState->search.add(textOf([row name]), textOf(identifier));
    }
    _searchState->searchFilled = true;
  }
  NSMutableArray *rows = [NSMutableArray array];
  const std::vector<size_t> found = _searchState->search.matches(textOf(_searchText));
  if (found.empty()) {
    PSSpecifier *none = footerGroup(localizedString(@"NO_RESULTS", @"No Results"));
    [none setProperty:@(1) forKey:@"footerAlignment"];  // centred
    [rows addObject:none];
    return rows;
  }
  [rows addObject:[PSSpecifier emptyGroupSpecifier]];
  for (size_t index : found) [rows addObject:[_namedRows objectAtIndex:index]];
  return rows;
}

#pragma mark - Search

- (BOOL)isSearching {
  return lists::ListSearch::isQuery(textOf(_searchText));
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [self addSearchField];
}

// As Settings' own searchable lists: the search controller's bar in the navigation item
// (iOS 11 and later), shown at the top of the list and scrolling away with it; the results
// are this page's own rows, so nothing dims them.
- (void)addSearchField {
  Class searchClass = NSClassFromString(@"UISearchController");
  UINavigationItem *item = [self navigationItem];
  if (searchClass == Nil || _searchController != nil || ![item respondsToSelector:@selector(setSearchController:)])
    return;
  UISearchController *search = [[[searchClass alloc] initWithSearchResultsController:nil] autorelease];
  [search setSearchResultsUpdater:self];
  [search setObscuresBackgroundDuringPresentation:NO];
  self.searchController = search;
  [item setSearchController:search];
  if ([item respondsToSelector:@selector(setHidesSearchBarWhenScrolling:)]) [item setHidesSearchBarWhenScrolling:YES];
  [self setDefinesPresentationContext:YES];
}

- (void)updateSearchResultsForSearchController:(UISearchController *)searchController {
  NSString *text = [[searchController searchBar] text];
  if (![text isKindOfClass:[NSString class]]) text = @"";
  if ([text isEqualToString:(_searchText != nil ? _searchText : @"")]) return;
  const BOOL wasSearching = [self isSearching];
  self.searchText = text;
  // Spaces typed into an empty field change nothing on the page.
  if (!wasSearching && ![self isSearching]) return;
  [self reloadSpecifiers];
}

#pragma mark - Index

- (NSArray *)sectionIndexTitlesForTableView:(UITableView *)tableView {
  if ([self isSearching] || _searchState == NULL || _searchState->runs.empty()) return nil;
  return indexTitles();
}

- (NSInteger)tableView:(UITableView *)tableView sectionForSectionIndexTitle:(NSString *)title atIndex:(NSInteger)index {
  if (_searchState == NULL) return 0;
  const std::string letter = textOf(title);
  const int run = lists::runForIndexLetter(_searchState->runs, letter.empty() ? '#' : letter[0]);
  return run >= 0 ? _searchState->runSections[static_cast<size_t>(run)] : 0;
}

@end
