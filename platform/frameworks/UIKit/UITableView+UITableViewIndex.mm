// The table's section index: its titles, its place, and the scroll a touch on it makes.
//
// What it rests on (UIKit documentation of UITableView and UITableViewDataSource): the table
// asks its data source for sectionIndexTitlesForTableView: when it loads its data (reloadData)
// and on reloadSectionIndexTitles, and shows an index of those titles unless it gets none; a
// touch on a title asks tableView:sectionForSectionIndexTitle:atIndex: (the title's position
// when the data source does not answer it) and scrolls that section to the top, as
// scrollToRowAtIndexPath: does for a row NSNotFound. A section out of range scrolls nowhere.
#import <UIKit/UIKitSimulation.h>

#import "UIKitInternal.h"

static const CGFloat kIndexWidth = 16;

@implementation UITableView (UITableViewIndex)
- (UITableViewIndex *)_simSectionIndex {
  for (UIView *view in self.subviews)
    if ([view isKindOfClass:[UITableViewIndex class]]) return (UITableViewIndex *)view;
  return nil;
}
- (void)reloadSectionIndexTitles {
  id<UITableViewDataSource> source = self.dataSource;
  NSArray *titles = [source respondsToSelector:@selector(sectionIndexTitlesForTableView:)]
                        ? [source sectionIndexTitlesForTableView:self]
                        : nil;
  if (![titles isKindOfClass:[NSArray class]]) titles = nil;
  UITableViewIndex *index = [self _simSectionIndex];
  if (titles.count == 0) {
    [index removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
    [index removeFromSuperview];
    return;
  }
  if (!index) {
    index = [[[UITableViewIndex alloc] initWithFrame:CGRectZero] autorelease];
    [index addTarget:self action:@selector(_sectionIndexChanged:) forControlEvents:UIControlEventValueChanged];
    [self addSubview:index];
  }
  index.titles = titles;
  [self _simLayOutSectionIndex];
}
- (void)_simLayOutSectionIndex {
  UITableViewIndex *index = [self _simSectionIndex];
  if (!index) return;
  CGRect visible = self.bounds;
  UIEdgeInsets inset = self.contentInset;
  index.frame = CGRectMake(CGRectGetMaxX(visible) - kIndexWidth, visible.origin.y + inset.top, kIndexWidth,
                           fmax(visible.size.height - inset.top - inset.bottom, 0));
  [self bringSubviewToFront:index];
}
- (void)_sectionIndexChanged:(UITableViewIndex *)index {
  NSInteger section = index.selectedSection;
  NSString *title = index.selectedSectionTitle;
  id<UITableViewDataSource> source = self.dataSource;
  if ([source respondsToSelector:@selector(tableView:sectionForSectionIndexTitle:atIndex:)])
    section = [source tableView:self sectionForSectionIndexTitle:title atIndex:index.selectedSection];
  if (section < 0 || section >= self.numberOfSections) return;
  [self scrollToRowAtIndexPath:[NSIndexPath indexPathForRow:NSNotFound inSection:section]
              atScrollPosition:UITableViewScrollPositionTop
                      animated:NO];
}
@end

NSArray *SimTableViewSectionIndexTitles(UITableView *table) { return [[table _simSectionIndex] titles]; }

BOOL SimTableViewTapSectionIndex(UITableView *table, NSString *title) {
  if (!table || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  UITableViewIndex *index = [table _simSectionIndex];
  NSUInteger position = title ? [index.titles indexOfObject:title] : NSNotFound;
  if (!index || position == NSNotFound || index.hidden || !index.enabled) return NO;
  [index _simSelect:(NSInteger)position];
  return YES;
}
