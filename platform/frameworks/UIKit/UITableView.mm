#import "UIKitInternal.h"
#include <math.h>

#include <vector>

const CGFloat UITableViewAutomaticDimension = -1;

// What the table measured since its data was loaded, as UIKit keeps its row data: each
// section's header, rows and footer, asked of the delegate once, and where each begins.
struct _SimTableGeometry {
  CGFloat top = 0;  // below the table header view
  std::vector<CGFloat> header, footer;
  std::vector<std::vector<CGFloat>> rows;
  std::vector<CGFloat> sectionTop;
  std::vector<std::vector<CGFloat>> rowTop;  // from the section's first row
  bool summed = false;

  void sum() {
    if (summed) return;
    sectionTop.assign(header.size(), 0);
    rowTop.assign(header.size(), {});
    CGFloat y = top;
    for (size_t s = 0; s < header.size(); ++s) {
      sectionTop[s] = y;
      CGFloat inside = 0;
      rowTop[s].resize(rows[s].size());
      for (size_t r = 0; r < rows[s].size(); ++r) {
        rowTop[s][r] = inside;
        inside += rows[s][r];
      }
      y += header[s] + inside + footer[s];
    }
    summed = true;
  }
  CGFloat sectionHeight(size_t s) const {
    return header[s] + (rows[s].empty() ? 0 : rowTop[s].back() + rows[s].back()) + footer[s];
  }
  bool has(NSInteger s, NSInteger r) const {
    return s >= 0 && (size_t)s < rows.size() && r >= 0 && (size_t)r < rows[s].size();
  }
};

@implementation UITableView
@synthesize style = _style;
@dynamic delegate;
@synthesize estimatedRowHeight = _estimatedRowHeight;
@synthesize separatorStyle = _separatorStyle;
@synthesize separatorInset = _separatorInset;
@synthesize allowsSelection = _allowsSelection;
@synthesize allowsSelectionDuringEditing = _allowsSelectionDuringEditing;
@synthesize allowsMultipleSelection = _allowsMultipleSelection;
@synthesize separatorColor = _separatorColor;
@synthesize backgroundView = _backgroundView;
- (instancetype)initWithFrame:(CGRect)frame {
  return [self initWithFrame:frame style:UITableViewStylePlain];
}
- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
  if ((self = [super initWithFrame:frame])) {
    _style = style;
    _rowHeight = UITableViewAutomaticDimension;
    _sectionHeaderHeight = UITableViewAutomaticDimension;
    _sectionFooterHeight = UITableViewAutomaticDimension;
    _separatorStyle = UITableViewCellSeparatorStyleSingleLine;
    _separatorInset = UIEdgeInsetsMake(0, 15, 0, 0);
    _allowsSelection = YES;
    _visibleCells = [[NSMutableDictionary alloc] init];
    _reusableCells = [[NSMutableDictionary alloc] init];
    _registeredClasses = [[NSMutableDictionary alloc] init];
    self.alwaysBounceVertical = YES;
    self.backgroundColor =
        style == UITableViewStylePlain ? [UIColor systemBackgroundColor] : [UIColor systemGroupedBackgroundColor];
  }
  return self;
}
- (void)dealloc {
  [_separatorColor release];
  [_tableHeaderView release];
  [_tableFooterView release];
  [_backgroundView release];
  [_visibleCells release];
  [_reusableCells release];
  [_registeredClasses release];
  [_selectedIndexPath release];
  delete _geometry;
  [super dealloc];
}
- (CGFloat)rowHeight {
  return _rowHeight;
}
- (void)setRowHeight:(CGFloat)h {
  _rowHeight = h;
  [self _simForgetGeometry];
}
- (CGFloat)sectionHeaderHeight {
  return _sectionHeaderHeight;
}
- (void)setSectionHeaderHeight:(CGFloat)h {
  _sectionHeaderHeight = h;
  [self _simForgetGeometry];
}
- (CGFloat)sectionFooterHeight {
  return _sectionFooterHeight;
}
- (void)setSectionFooterHeight:(CGFloat)h {
  _sectionFooterHeight = h;
  [self _simForgetGeometry];
}
- (UIView *)tableHeaderView {
  return _tableHeaderView;
}
- (void)setTableHeaderView:(UIView *)view {
  if (view == _tableHeaderView) return;
  [_tableHeaderView removeFromSuperview];
  [_tableHeaderView release];
  _tableHeaderView = [view retain];
  [self _simForgetGeometry];
  if (view) {
    CGRect f = view.frame;
    view.frame = CGRectMake(0, 0, self.bounds.size.width, f.size.height);
    [self addSubview:view];
  }
}
- (UIView *)tableFooterView {
  return _tableFooterView;
}
- (void)setTableFooterView:(UIView *)view {
  if (view == _tableFooterView) return;
  [_tableFooterView removeFromSuperview];
  [_tableFooterView release];
  _tableFooterView = [view retain];
  if (view) [self addSubview:view];
}
- (BOOL)isEditing {
  return _editing;
}
- (void)setEditing:(BOOL)editing {
  [self setEditing:editing animated:NO];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  _editing = editing;
  for (UITableViewCell *cell in [_visibleCells allValues]) [cell setEditing:editing animated:animated];
}

#pragma mark - Structure

- (NSInteger)numberOfSections {
  if ([_dataSource respondsToSelector:@selector(numberOfSectionsInTableView:)])
    return [_dataSource numberOfSectionsInTableView:self];
  return _dataSource ? 1 : 0;
}
- (NSInteger)numberOfRowsInSection:(NSInteger)section {
  if (section < 0 || section >= self.numberOfSections) return 0;
  return [_dataSource tableView:self numberOfRowsInSection:section];
}
- (BOOL)_simValidIndexPath:(NSIndexPath *)path {
  return path && path.section >= 0 && path.section < self.numberOfSections && path.row >= 0 &&
         path.row < [self numberOfRowsInSection:path.section];
}
- (CGFloat)_simHeightForRow:(NSIndexPath *)path {
  id<UITableViewDelegate> d = self.delegate;
  CGFloat h = [d respondsToSelector:@selector(tableView:heightForRowAtIndexPath:)]
                  ? [d tableView:self heightForRowAtIndexPath:path]
                  : _rowHeight;
  return h < 0 ? 44 : h;
}
- (CGFloat)_simHeightForHeader:(NSInteger)section {
  id<UITableViewDelegate> d = self.delegate;
  if ([d respondsToSelector:@selector(tableView:heightForHeaderInSection:)]) {
    CGFloat h = [d tableView:self heightForHeaderInSection:section];
    if (h >= 0) return h;
  }
  if (_sectionHeaderHeight >= 0) return _sectionHeaderHeight;
  NSString *title = [_dataSource respondsToSelector:@selector(tableView:titleForHeaderInSection:)]
                        ? [_dataSource tableView:self titleForHeaderInSection:section]
                        : nil;
  BOOL titled = title.length > 0;
  if (_style == UITableViewStylePlain) return titled ? 28 : 0;
  if (!titled) return 35;
  // A header of one line of 13-point capitals is 55.5 points high; a longer one wraps within
  // the section's text margins (inset sections: 32 points each side) and grows by its lines.
  CGSize s = SimUIKitTextSize([title uppercaseString], [UIFont systemFontOfSize:13], self.bounds.size.width - 64, 0);
  return 39.5 + fmax(s.height, 16);
}
- (CGFloat)_simHeightForFooter:(NSInteger)section {
  id<UITableViewDelegate> d = self.delegate;
  if ([d respondsToSelector:@selector(tableView:heightForFooterInSection:)]) {
    CGFloat h = [d tableView:self heightForFooterInSection:section];
    if (h >= 0) return h;
  }
  if (_sectionFooterHeight >= 0) return _sectionFooterHeight;
  NSString *title = [_dataSource respondsToSelector:@selector(tableView:titleForFooterInSection:)]
                        ? [_dataSource tableView:self titleForFooterInSection:section]
                        : nil;
  if (!title.length) return _style == UITableViewStylePlain ? 0 : 5;
  // Footers wrap within the section's text margins too.
  CGSize s = SimUIKitTextSize(title, [UIFont systemFontOfSize:13], self.bounds.size.width - 64, 0);
  return s.height + 17;
}
// The measures, taken when first needed after they were forgotten.
- (_SimTableGeometry *)_simGeometry {
  if (_geometry == NULL) {
    _SimTableGeometry *g = new _SimTableGeometry();
    g->top = _tableHeaderView ? _tableHeaderView.frame.size.height : 0;
    const NSInteger n = self.numberOfSections;
    for (NSInteger s = 0; s < n; ++s) {
      g->header.push_back([self _simHeightForHeader:s]);
      g->footer.push_back([self _simHeightForFooter:s]);
      g->rows.emplace_back();
      const NSInteger rows = [_dataSource tableView:self numberOfRowsInSection:s];
      for (NSInteger r = 0; r < rows; ++r)
        g->rows.back().push_back([self _simHeightForRow:[NSIndexPath indexPathForRow:r inSection:s]]);
    }
    _geometry = g;
  }
  _geometry->sum();
  return _geometry;
}
- (void)_simForgetGeometry {
  delete _geometry;
  _geometry = NULL;
}
- (void)_simMeasureRowAgain:(NSIndexPath *)path {
  if (_geometry == NULL || !_geometry->has(path.section, path.row)) return;
  const CGFloat height = [self _simHeightForRow:path];
  if (height == _geometry->rows[path.section][path.row]) return;
  _geometry->rows[path.section][path.row] = height;
  _geometry->summed = false;
  [self _simUpdateContentSize];
}
- (void)_simUpdateContentSize {
  _SimTableGeometry *g = [self _simGeometry];
  CGFloat bottom = g->top;
  if (!g->header.empty()) bottom = g->sectionTop.back() + g->sectionHeight(g->header.size() - 1);
  self.contentSize =
      CGSizeMake(self.bounds.size.width, bottom + (_tableFooterView ? _tableFooterView.frame.size.height : 0));
}
- (CGRect)rectForSection:(NSInteger)section {
  _SimTableGeometry *g = [self _simGeometry];
  if (section < 0 || (size_t)section >= g->header.size()) return CGRectZero;
  return CGRectMake(0, g->sectionTop[section], self.bounds.size.width, g->sectionHeight(section));
}
- (CGRect)rectForRowAtIndexPath:(NSIndexPath *)path {
  _SimTableGeometry *g = [self _simGeometry];
  if (!path || !g->has(path.section, path.row)) return CGRectZero;
  const CGFloat y = g->sectionTop[path.section] + g->header[path.section] + g->rowTop[path.section][path.row];
  return CGRectMake(0, y, self.bounds.size.width, g->rows[path.section][path.row]);
}
- (void)setFrame:(CGRect)frame {
  if (frame.size.width != self.frame.size.width) [self _simForgetGeometry];
  [super setFrame:frame];
}
- (void)setBounds:(CGRect)bounds {
  if (bounds.size.width != self.bounds.size.width) [self _simForgetGeometry];
  [super setBounds:bounds];
}
- (id)dataSource {
  return _dataSource;
}
- (void)setDataSource:(id)dataSource {
  _dataSource = dataSource;
  [self _simForgetGeometry];
}
- (NSIndexPath *)indexPathForRowAtPoint:(CGPoint)point {
  NSInteger n = self.numberOfSections;
  for (NSInteger s = 0; s < n; ++s) {
    NSInteger rows = [self numberOfRowsInSection:s];
    for (NSInteger r = 0; r < rows; ++r) {
      NSIndexPath *p = [NSIndexPath indexPathForRow:r inSection:s];
      if (CGRectContainsPoint([self rectForRowAtIndexPath:p], point)) return p;
    }
  }
  return nil;
}

#pragma mark - Cells

- (void)_simDropVisibleCells {
  for (UITableViewCell *cell in [_visibleCells allValues]) {
    if (cell.superview == self) [cell removeFromSuperview];
    NSString *rid = cell.reuseIdentifier;
    if (rid) {
      NSMutableArray *pool = [_reusableCells objectForKey:rid];
      if (!pool) {
        pool = [NSMutableArray array];
        [_reusableCells setObject:pool forKey:rid];
      }
      if ([pool indexOfObjectIdenticalTo:cell] == NSNotFound) [pool addObject:cell];
    }
  }
  [_visibleCells removeAllObjects];
}
- (void)reloadData {
  [self _simDropVisibleCells];
  [_selectedIndexPath release];
  _selectedIndexPath = nil;
  [self _simForgetGeometry];
  [self _simUpdateContentSize];
  [self reloadSectionIndexTitles];
  [self setNeedsLayout];
}
- (void)reloadSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation {
  [self reloadData];
}
- (void)reloadRowsAtIndexPaths:(NSArray *)paths withRowAnimation:(UITableViewRowAnimation)animation {
  for (NSIndexPath *p in paths) {
    UITableViewCell *cell = [_visibleCells objectForKey:p];
    if (!cell) continue;
    if (cell.superview == self) [cell removeFromSuperview];
    [_visibleCells removeObjectForKey:p];
  }
  for (NSIndexPath *p in paths) [self _simMeasureRowAgain:p];
}
- (void)insertSections:(NSIndexSet *)s withRowAnimation:(UITableViewRowAnimation)a {
  [self reloadData];
}
- (void)deleteSections:(NSIndexSet *)s withRowAnimation:(UITableViewRowAnimation)a {
  [self reloadData];
}
- (void)insertRowsAtIndexPaths:(NSArray *)p withRowAnimation:(UITableViewRowAnimation)a {
  [self reloadData];
}
- (void)deleteRowsAtIndexPaths:(NSArray *)p withRowAnimation:(UITableViewRowAnimation)a {
  [self reloadData];
}
- (void)beginUpdates {
  ++_updateDepth;
}
- (void)endUpdates {
  if (_updateDepth > 0) --_updateDepth;
  if (_updateDepth > 0) return;
  [self _simForgetGeometry];  // heights are asked again, as UIKit does after updates
  [self _simUpdateContentSize];
  [self setNeedsLayout];
}
- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)path {
  if (!path || ![self _simGeometry]->has(path.section, path.row)) return nil;
  NSIndexPath *key = [NSIndexPath indexPathForRow:path.row inSection:path.section];
  UITableViewCell *cell = [_visibleCells objectForKey:key];
  if (cell) return cell;
  cell = [_dataSource tableView:self cellForRowAtIndexPath:key];
  if (!cell) return nil;
  [self _simMeasureRowAgain:key];  // the row's cell may know its height better
  // A cell shown for another row moves here.
  for (NSIndexPath *other in [_visibleCells allKeysForObject:cell]) [_visibleCells removeObjectForKey:other];
  for (NSString *rid in _reusableCells) [[_reusableCells objectForKey:rid] removeObjectIdenticalTo:cell];
  [_visibleCells setObject:cell forKey:key];
  cell.frame = [self rectForRowAtIndexPath:key];
  if (cell.superview != self) [self addSubview:cell];
  if (_editing != cell.editing) [cell setEditing:_editing animated:NO];
  id<UITableViewDelegate> d = self.delegate;
  if ([d respondsToSelector:@selector(tableView:willDisplayCell:forRowAtIndexPath:)])
    [d tableView:self willDisplayCell:cell forRowAtIndexPath:key];
  [cell layoutIfNeeded];
  return cell;
}
- (NSArray *)visibleCells {
  NSMutableArray *out = [NSMutableArray array];
  for (NSIndexPath *p in self.indexPathsForVisibleRows) [out addObject:[_visibleCells objectForKey:p]];
  return out;
}
- (NSArray *)indexPathsForVisibleRows {
  return [[_visibleCells allKeys] sortedArrayUsingSelector:@selector(compare:)];
}
- (NSIndexPath *)indexPathForCell:(UITableViewCell *)cell {
  NSArray *keys = [_visibleCells allKeysForObject:cell];
  return keys.count ? [keys objectAtIndex:0] : nil;
}
- (UIView *)headerViewForSection:(NSInteger)section {
  id<UITableViewDelegate> d = self.delegate;
  return [d respondsToSelector:@selector(tableView:viewForHeaderInSection:)]
             ? [d tableView:self viewForHeaderInSection:section]
             : nil;
}
- (UIView *)footerViewForSection:(NSInteger)section {
  id<UITableViewDelegate> d = self.delegate;
  return [d respondsToSelector:@selector(tableView:viewForFooterInSection:)]
             ? [d tableView:self viewForFooterInSection:section]
             : nil;
}
// The row (for a row NSNotFound, the section from its header) brought to the asked place on
// screen, the offset kept within the content.
- (void)scrollToRowAtIndexPath:(NSIndexPath *)path
              atScrollPosition:(UITableViewScrollPosition)pos
                      animated:(BOOL)animated {
  if (!path || path.section < 0 || path.section >= self.numberOfSections) return;
  if (path.row != NSNotFound && ![self _simValidIndexPath:path]) return;
  CGRect target = path.row == NSNotFound ? [self rectForSection:path.section] : [self rectForRowAtIndexPath:path];
  CGRect visible = self.bounds;
  UIEdgeInsets inset = self.contentInset;
  CGFloat y = visible.origin.y, height = visible.size.height - inset.top - inset.bottom;
  if (pos == UITableViewScrollPositionNone)
    pos = target.origin.y < y + inset.top                  ? UITableViewScrollPositionTop
          : CGRectGetMaxY(target) > y + inset.top + height ? UITableViewScrollPositionBottom
                                                           : UITableViewScrollPositionNone;
  if (pos == UITableViewScrollPositionTop) y = target.origin.y - inset.top;
  if (pos == UITableViewScrollPositionMiddle) y = CGRectGetMidY(target) - height / 2 - inset.top;
  if (pos == UITableViewScrollPositionBottom) y = CGRectGetMaxY(target) - height - inset.top;
  CGFloat lowest = -inset.top, highest = fmax(self.contentSize.height + inset.bottom - visible.size.height, lowest);
  [self setContentOffset:CGPointMake(visible.origin.x, fmin(fmax(y, lowest), highest)) animated:animated];
}

#pragma mark - Selection

- (NSIndexPath *)indexPathForSelectedRow {
  return _selectedIndexPath;
}
- (void)selectRowAtIndexPath:(NSIndexPath *)path animated:(BOOL)animated scrollPosition:(UITableViewScrollPosition)pos {
  if (_selectedIndexPath) [[_visibleCells objectForKey:_selectedIndexPath] setSelected:NO animated:animated];
  [path retain];
  [_selectedIndexPath release];
  _selectedIndexPath = path;
  if (path) [[_visibleCells objectForKey:path] setSelected:YES animated:animated];
}
- (void)deselectRowAtIndexPath:(NSIndexPath *)path animated:(BOOL)animated {
  [[_visibleCells objectForKey:path] setSelected:NO animated:animated];
  if ([_selectedIndexPath isEqual:path]) {
    [_selectedIndexPath release];
    _selectedIndexPath = nil;
  }
}

#pragma mark - Reuse

- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier {
  NSMutableArray *pool = identifier ? [_reusableCells objectForKey:identifier] : nil;
  if (pool.count) {
    UITableViewCell *cell = [[[pool lastObject] retain] autorelease];
    [pool removeLastObject];
    [cell prepareForReuse];
    return cell;
  }
  return nil;
}
- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier forIndexPath:(NSIndexPath *)path {
  UITableViewCell *cell = [self dequeueReusableCellWithIdentifier:identifier];
  if (cell) return cell;
  Class cls = [_registeredClasses objectForKey:identifier];
  if (!cls) cls = [UITableViewCell class];
  return [[[cls alloc] initWithStyle:UITableViewCellStyleDefault reuseIdentifier:identifier] autorelease];
}
- (void)registerClass:(Class)cellClass forCellReuseIdentifier:(NSString *)identifier {
  if (!identifier) return;
  if (cellClass)
    [_registeredClasses setObject:cellClass forKey:identifier];
  else
    [_registeredClasses removeObjectForKey:identifier];
}

#pragma mark - Layout

// As UITableView does in its layout: every row on screen has its cell, asked of the data
// source when it has none yet, and the cells of rows scrolled away go back to the reuse
// pool. The screen is the table's bounds, whose origin is its content offset.
- (void)_simLayOutVisibleRows {
  CGRect visible = self.bounds;
  if (!_dataSource || visible.size.width <= 0 || visible.size.height <= 0) return;
  NSMutableSet *onScreen = [NSMutableSet set];
  const NSInteger sections = self.numberOfSections;
  for (NSInteger section = 0; section < sections; section++) {
    if (!CGRectIntersectsRect([self rectForSection:section], visible)) continue;
    const NSInteger rows = [self numberOfRowsInSection:section];
    for (NSInteger row = 0; row < rows; row++) {
      NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:section];
      CGRect rect = [self rectForRowAtIndexPath:path];
      if (rect.size.height <= 0 || !CGRectIntersectsRect(rect, visible)) continue;
      if ([self cellForRowAtIndexPath:path]) [onScreen addObject:path];
    }
  }
  for (NSIndexPath *path in [_visibleCells allKeys]) {
    if ([onScreen containsObject:path]) continue;
    UITableViewCell *cell = [[[_visibleCells objectForKey:path] retain] autorelease];
    [_visibleCells removeObjectForKey:path];
    if (cell.superview == self) [cell removeFromSuperview];
    NSString *rid = cell.reuseIdentifier;
    if (!rid) continue;
    NSMutableArray *pool = [_reusableCells objectForKey:rid];
    if (!pool) {
      pool = [NSMutableArray array];
      [_reusableCells setObject:pool forKey:rid];
    }
    if ([pool indexOfObjectIdenticalTo:cell] == NSNotFound) [pool addObject:cell];
  }
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGFloat w = self.bounds.size.width;
  if (_tableHeaderView) {
    CGRect f = _tableHeaderView.frame;
    _tableHeaderView.frame = CGRectMake(0, 0, w, f.size.height);
  }
  for (NSIndexPath *p in [_visibleCells allKeys]) {
    UITableViewCell *cell = [_visibleCells objectForKey:p];
    cell.frame = [self rectForRowAtIndexPath:p];
  }
  [self _simLayOutVisibleRows];
  [self _simLayOutSectionIndex];
}
@end

BOOL SimTableViewSelectRow(UITableView *table, NSIndexPath *path) {
  if (!table || !path || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  if (table.editing ? !table.allowsSelectionDuringEditing : !table.allowsSelection) return NO;
  if (path.section < 0 || path.section >= table.numberOfSections || path.row < 0 ||
      path.row >= [table numberOfRowsInSection:path.section])
    return NO;
  id<UITableViewDelegate> d = table.delegate;
  if ([d respondsToSelector:@selector(tableView:shouldHighlightRowAtIndexPath:)] &&
      ![d tableView:table shouldHighlightRowAtIndexPath:path])
    return NO;
  if ([d respondsToSelector:@selector(tableView:willSelectRowAtIndexPath:)]) {
    path = [d tableView:table willSelectRowAtIndexPath:path];
    if (!path) return NO;
  }
  [table selectRowAtIndexPath:path animated:NO scrollPosition:UITableViewScrollPositionNone];
  if ([d respondsToSelector:@selector(tableView:didSelectRowAtIndexPath:)])
    [d tableView:table didSelectRowAtIndexPath:path];
  return YES;
}

BOOL SimTableViewCommitEditing(UITableView *table, UITableViewCellEditingStyle style, NSIndexPath *path) {
  if (!table || !path || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  id<UITableViewDataSource> ds = table.dataSource;
  if ([ds respondsToSelector:@selector(tableView:canEditRowAtIndexPath:)] && ![ds tableView:table
                                                                                 canEditRowAtIndexPath:path])
    return NO;
  if (![ds respondsToSelector:@selector(tableView:commitEditingStyle:forRowAtIndexPath:)]) return NO;
  [ds tableView:table commitEditingStyle:style forRowAtIndexPath:path];
  return YES;
}
