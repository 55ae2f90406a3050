#ifndef UIKIT_UITABLEVIEW_H
#define UIKIT_UITABLEVIEW_H

#import <UIKit/UIScrollView.h>
#import <UIKit/UITableViewCell.h>

@class UITableView;
@class UIColor;

typedef NS_ENUM(NSInteger, UITableViewStyle) {
  UITableViewStylePlain,
  UITableViewStyleGrouped,
  UITableViewStyleInsetGrouped,
};

typedef NS_ENUM(NSInteger, UITableViewScrollPosition) {
  UITableViewScrollPositionNone,
  UITableViewScrollPositionTop,
  UITableViewScrollPositionMiddle,
  UITableViewScrollPositionBottom,
};

typedef NS_ENUM(NSInteger, UITableViewRowAnimation) {
  UITableViewRowAnimationFade,
  UITableViewRowAnimationRight,
  UITableViewRowAnimationLeft,
  UITableViewRowAnimationTop,
  UITableViewRowAnimationBottom,
  UITableViewRowAnimationNone,
  UITableViewRowAnimationMiddle,
  UITableViewRowAnimationAutomatic = 100,
};

UIKIT_EXTERN const CGFloat UITableViewAutomaticDimension;

@interface NSIndexPath (UIKitAdditions)
+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
+ (instancetype)indexPathForItem:(NSInteger)item inSection:(NSInteger)section;
@property (nonatomic, readonly) NSInteger section;
@property (nonatomic, readonly) NSInteger row;
@property (nonatomic, readonly) NSInteger item;
@end

@protocol UITableViewDataSource <NSObject>
@required
- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section;
- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath;
@optional
- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView;
- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section;
- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section;
- (BOOL)tableView:(UITableView *)tableView canEditRowAtIndexPath:(NSIndexPath *)indexPath;
- (void)tableView:(UITableView *)tableView
    commitEditingStyle:(UITableViewCellEditingStyle)editingStyle
     forRowAtIndexPath:(NSIndexPath *)indexPath;
/* The section index: its titles (nil: no index), and the section a title leads to. */
- (NSArray *)sectionIndexTitlesForTableView:(UITableView *)tableView;
- (NSInteger)tableView:(UITableView *)tableView sectionForSectionIndexTitle:(NSString *)title atIndex:(NSInteger)index;
@end

@protocol UITableViewDelegate <UIScrollViewDelegate>
@optional
- (void)tableView:(UITableView *)tableView
      willDisplayCell:(UITableViewCell *)cell
    forRowAtIndexPath:(NSIndexPath *)indexPath;
- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath;
- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section;
- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section;
- (NSIndexPath *)tableView:(UITableView *)tableView willSelectRowAtIndexPath:(NSIndexPath *)indexPath;
- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)indexPath;
- (void)tableView:(UITableView *)tableView didDeselectRowAtIndexPath:(NSIndexPath *)indexPath;
- (BOOL)tableView:(UITableView *)tableView shouldHighlightRowAtIndexPath:(NSIndexPath *)indexPath;
- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView
           editingStyleForRowAtIndexPath:(NSIndexPath *)indexPath;
- (BOOL)tableView:(UITableView *)tableView shouldIndentWhileEditingRowAtIndexPath:(NSIndexPath *)indexPath;
- (NSString *)tableView:(UITableView *)tableView
    titleForDeleteConfirmationButtonForRowAtIndexPath:(NSIndexPath *)indexPath;
@end

/* A table. cellForRowAtIndexPath: asks the data source for a row's cell the first time after
   a reload, sizes it to the table's width and the row's height, lays it out and keeps it until
   the next reload; layout makes the cells of the rows on screen. Heights are asked of the
   delegate when the data is loaded and kept (a row is measured again when its cell is made),
   until reloadData, reloadSections:, reloadRowsAtIndexPaths:, endUpdates, a new width, table
   header or default height. */
@interface UITableView : UIScrollView {
  UITableViewStyle _style;
  id _dataSource;
  CGFloat _rowHeight;
  CGFloat _estimatedRowHeight;
  CGFloat _sectionHeaderHeight;
  CGFloat _sectionFooterHeight;
  UIColor *_separatorColor;
  UITableViewCellSeparatorStyle _separatorStyle;
  UIEdgeInsets _separatorInset;
  UIView *_tableHeaderView;
  UIView *_tableFooterView;
  UIView *_backgroundView;
  BOOL _editing;
  BOOL _allowsSelection;
  BOOL _allowsSelectionDuringEditing;
  BOOL _allowsMultipleSelection;
  NSMutableDictionary *_visibleCells;
  NSMutableDictionary *_reusableCells;
  NSMutableDictionary *_registeredClasses;
  NSIndexPath *_selectedIndexPath;
  NSInteger _updateDepth;
  struct _SimTableGeometry *_geometry;
}
- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;
@property (nonatomic, readonly) UITableViewStyle style;
@property (nonatomic, assign) id<UITableViewDataSource> dataSource;
@property (nonatomic, assign) id<UITableViewDelegate> delegate;
@property (nonatomic) CGFloat rowHeight;
@property (nonatomic) CGFloat estimatedRowHeight;
@property (nonatomic) CGFloat sectionHeaderHeight;
@property (nonatomic) CGFloat sectionFooterHeight;
@property (nonatomic, retain) UIColor *separatorColor;
@property (nonatomic) UITableViewCellSeparatorStyle separatorStyle;
@property (nonatomic) UIEdgeInsets separatorInset;
@property (nonatomic, retain) UIView *tableHeaderView;
@property (nonatomic, retain) UIView *tableFooterView;
@property (nonatomic, retain) UIView *backgroundView;
@property (nonatomic, getter=isEditing) BOOL editing;
@property (nonatomic) BOOL allowsSelection;
@property (nonatomic) BOOL allowsSelectionDuringEditing;
@property (nonatomic) BOOL allowsMultipleSelection;

- (void)reloadData;
- (void)reloadSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation;
- (void)reloadRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation;
- (void)insertSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation;
- (void)deleteSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation;
- (void)insertRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation;
- (void)deleteRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation;
- (void)beginUpdates;
- (void)endUpdates;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;

@property (nonatomic, readonly) NSInteger numberOfSections;
- (NSInteger)numberOfRowsInSection:(NSInteger)section;
- (CGRect)rectForSection:(NSInteger)section;
- (CGRect)rectForRowAtIndexPath:(NSIndexPath *)indexPath;
- (NSIndexPath *)indexPathForCell:(UITableViewCell *)cell;
- (NSIndexPath *)indexPathForRowAtPoint:(CGPoint)point;
- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)indexPath;
@property (nonatomic, readonly) NSArray *visibleCells;
@property (nonatomic, readonly) NSArray *indexPathsForVisibleRows;
- (UIView *)headerViewForSection:(NSInteger)section;
- (UIView *)footerViewForSection:(NSInteger)section;
- (void)scrollToRowAtIndexPath:(NSIndexPath *)indexPath
              atScrollPosition:(UITableViewScrollPosition)scrollPosition
                      animated:(BOOL)animated;

@property (nonatomic, readonly) NSIndexPath *indexPathForSelectedRow;
- (void)selectRowAtIndexPath:(NSIndexPath *)indexPath
                    animated:(BOOL)animated
              scrollPosition:(UITableViewScrollPosition)scrollPosition;
- (void)deselectRowAtIndexPath:(NSIndexPath *)indexPath animated:(BOOL)animated;

- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier;
- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier forIndexPath:(NSIndexPath *)indexPath;
- (void)registerClass:(Class)cellClass forCellReuseIdentifier:(NSString *)identifier;
@end

@interface UITableView (UITableViewIndex)
/* Asks the data source for the section index's titles again (reloadData does too). */
- (void)reloadSectionIndexTitles;
@end

#endif
