// A protection-list page whose list is long (one row per installed application): a search
// field in the navigation bar narrows the list, as the user types, to the rows whose name or
// identifier holds every word typed (case, accents and width aside), and a section index
// (A to Z, "#") down the side of the whole list jumps to a letter.
//
// The page builds its list once (listRows); this class keeps it and shows it in one of two
// ways:
// - the whole list: the page's rows in the page's order, the groups it starts with first,
//   then a header group named after the index letter before each run of rows that stand
//   under one letter (the rows keep their order, so a letter the device's language sorts
//   elsewhere, or the names of other scripts after Z, make a second run);
// - while a search finds something: one group holding the rows found, in list order;
//   "No Results" when it finds nothing.
// Both are the same row objects, so a switch stores the same whichever way it was shown.
#pragma once
#import "lists/TessarinProtectedListController.h"

struct TessarinListSearchState;

@interface TessarinSearchableListController : TessarinProtectedListController <UISearchResultsUpdating> {
  NSMutableArray *_wholeList;
  NSArray *_namedRows;
  NSString *_searchText;
  UISearchController *_searchController;
  struct TessarinListSearchState *_searchState;
}
// The page's list as built once: the rows in order, with the headers of the index.
@property (nonatomic, retain) NSMutableArray *wholeList;
// The rows the search and the index go through (every row but the groups), in list order.
@property (nonatomic, retain) NSArray *namedRows;
// What the search field holds (empty when the page shows the whole list).
@property (nonatomic, copy) NSString *searchText;
// The search controller in the page's navigation item (nil on a system without one).
@property (nonatomic, retain) UISearchController *searchController;

#pragma mark - What a page says

// The page's rows, built once when the page first needs them.
- (NSMutableArray *)listRows;

#pragma mark - State

// Whether a search narrows the list (the field holds a word).
- (BOOL)isSearching;

@end
