#ifndef PREFERENCES_PSLISTCONTROLLER_H
#define PREFERENCES_PSLISTCONTROLLER_H

#import <UIKit/UIKit.h>
#import <Preferences/PSViewController.h>
#import <Preferences/PSSpecifier.h>

/* A list page. Its rows are PSSpecifier objects cached in `_specifiers` (subclasses override
   `specifiers` and fill the cache); a row of cell type PSGroupCell starts a group (rows before
   the first group form a group of their own). The table's sections are the groups, its rows
   the other specifiers; cells are made from the row's "cellClass" (or the class of its cell
   type) with initWithStyle:reuseIdentifier:specifier:, kept in the row's "cellObject" and
   refreshed from the row's getter. */
@interface PSListController : PSViewController <UITableViewDataSource, UITableViewDelegate> {
  NSArray *_specifiers;
  UITableView *_table;
  NSBundle *_bundle;
  NSMutableArray *_groups;
  NSMutableDictionary *_specifiersByID;
  BOOL _cachesCells;
  BOOL _reloadingSpecifiers;
  BOOL _edgeToEdgeCells;
  BOOL _forceSynchronousIconLoadForCreatedCells;
  UIKeyboardType _keyboardType;
}
/* The rows; the base class builds them from its specifier's plist ("bundle"/plist name) or
   returns the cache. */
@property (nonatomic, retain) NSArray *specifiers;
- (UITableView *)table;
- (NSBundle *)bundle;
- (Class)tableViewClass;
- (UITableViewStyle)tableViewStyle;

- (NSArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target;
- (NSArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target bundle:(NSBundle *)bundle;
- (void)reloadSpecifiers;
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)reloadSpecifierID:(NSString *)identifier;
- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated;
- (void)reloadSpecifierAtIndex:(NSInteger)index;
- (void)reload;

- (PSSpecifier *)specifierForID:(NSString *)identifier;
- (PSSpecifier *)specifierAtIndex:(NSInteger)index;
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier;
- (NSInteger)indexOfSpecifierID:(NSString *)identifier;
- (BOOL)containsSpecifier:(PSSpecifier *)specifier;
- (NSArray *)specifiersInGroup:(NSInteger)group;
- (NSInteger)numberOfGroups;
- (NSInteger)rowsForGroup:(NSInteger)group;
- (NSInteger)indexOfGroup:(NSInteger)group;
- (NSInteger)indexForRow:(NSInteger)row inGroup:(NSInteger)group;
- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifier:(PSSpecifier *)specifier;
- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifierAtIndex:(NSInteger)index;
- (PSSpecifier *)specifierAtIndexPath:(NSIndexPath *)indexPath;
- (NSIndexPath *)indexPathForSpecifier:(PSSpecifier *)specifier;
- (NSIndexPath *)indexPathForIndex:(NSInteger)index;
- (NSInteger)indexForIndexPath:(NSIndexPath *)indexPath;

- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)other;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)other animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(NSInteger)index;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(NSInteger)index animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifier:(PSSpecifier *)other animated:(BOOL)animated;
- (void)addSpecifier:(PSSpecifier *)specifier;
- (void)addSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)addSpecifiersFromArray:(NSArray *)specifiers;
- (void)addSpecifiersFromArray:(NSArray *)specifiers animated:(BOOL)animated;
- (void)removeSpecifier:(PSSpecifier *)specifier;
- (void)removeSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)removeSpecifierID:(NSString *)identifier;
- (void)removeSpecifierID:(NSString *)identifier animated:(BOOL)animated;
- (void)removeSpecifierAtIndex:(NSInteger)index;
- (void)removeSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated;
- (void)removeContiguousSpecifiers:(NSArray *)specifiers;
- (void)removeContiguousSpecifiers:(NSArray *)specifiers animated:(BOOL)animated;
- (void)replaceContiguousSpecifiers:(NSArray *)specifiers withSpecifiers:(NSArray *)newSpecifiers;
- (void)replaceContiguousSpecifiers:(NSArray *)specifiers
                     withSpecifiers:(NSArray *)newSpecifiers
                           animated:(BOOL)animated;

/* The cell of a row as the table shows it: made or reused, refreshed and laid out. */
- (UITableViewCell *)cachedCellForSpecifier:(PSSpecifier *)specifier;
- (UITableViewCell *)cachedCellForSpecifierID:(NSString *)identifier;
- (Class)cellClassForSpecifier:(PSSpecifier *)specifier;
/* The controller a link row opens (its detail class), set up for this page. */
- (id)controllerForSpecifier:(PSSpecifier *)specifier;
- (void)lazyLoadBundle:(PSSpecifier *)specifier;
- (void)beginUpdates;
- (void)endUpdates;
- (void)clearCache;
@end

#endif
