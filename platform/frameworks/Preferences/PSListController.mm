#import <Preferences/PreferencesSimulation.h>

static PSCellType defaultCellType(NSString *name) {
  if (!name) return PSGroupCell;
  PSCellType t = [PSTableCell cellTypeFromString:name];
  return t == (PSCellType)-1 ? PSLinkCell : t;
}

@interface PSListController (SimPrivate)
- (UITableViewCell *)_simCellForSpecifier:(PSSpecifier *)specifier;
@end

@implementation PSListController
- (void)dealloc {
  _table.dataSource = nil;
  _table.delegate = nil;
  [_table release];
  [_specifiers release];
  [_bundle release];
  [_groups release];
  [_specifiersByID release];
  [super dealloc];
}

#pragma mark - View

- (Class)tableViewClass {
  return [UITableView class];
}
- (UITableViewStyle)tableViewStyle {
  return UITableViewStyleGrouped;
}
- (void)loadView {
  UITableView *table = [[[self tableViewClass] alloc] initWithFrame:[UIScreen mainScreen].bounds
                                                              style:[self tableViewStyle]];
  table.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  table.dataSource = self;
  table.delegate = self;
  [_table release];
  _table = table;
  self.view = table;
}
- (UITableView *)table {
  return _table;
}
- (NSBundle *)bundle {
  return _bundle ? _bundle : [NSBundle bundleForClass:[self class]];
}
- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_table reloadData];
}

#pragma mark - Rows

- (NSArray *)specifiers {
  return _specifiers;
}
- (void)setSpecifiers:(NSArray *)specifiers {
  if (specifiers == _specifiers) return;
  NSArray *copy = [specifiers copy];
  [_specifiers release];
  _specifiers = copy;
  [_table reloadData];
}
- (NSArray *)_simRows {
  NSArray *rows = [self specifiers];
  return [rows isKindOfClass:[NSArray class]] ? rows : [NSArray array];
}
- (void)_simReplaceRows:(NSArray *)rows {
  NSArray *copy = [rows copy];
  [_specifiers release];
  _specifiers = copy;
  [_table reloadData];
}
- (void)reloadSpecifiers {
  if (_reloadingSpecifiers) return;
  _reloadingSpecifiers = YES;
  [_specifiers release];
  _specifiers = nil;
  [self specifiers];
  [_table reloadData];
  _reloadingSpecifiers = NO;
}
- (void)reload {
  [_table reloadData];
}
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
  if (!specifier) return;
  NSIndexPath *path = [self indexPathForSpecifier:specifier];
  if (path) [_table reloadRowsAtIndexPaths:[NSArray arrayWithObject:path] withRowAnimation:UITableViewRowAnimationNone];
  if ([specifier propertyForKey:PSTableCellKey]) [self _simCellForSpecifier:specifier];
}
- (void)reloadSpecifier:(PSSpecifier *)specifier {
  [self reloadSpecifier:specifier animated:NO];
}
- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated {
  [self reloadSpecifier:[self specifierForID:identifier] animated:animated];
}
- (void)reloadSpecifierID:(NSString *)identifier {
  [self reloadSpecifierID:identifier animated:NO];
}
- (void)reloadSpecifierAtIndex:(NSInteger)index {
  [self reloadSpecifier:[self specifierAtIndex:index] animated:NO];
}
- (void)clearCache {
}
- (void)beginUpdates {
  [_table beginUpdates];
}
- (void)endUpdates {
  [_table endUpdates];
}

#pragma mark - Loading rows from a property list

// As on iOS, the texts a plist gives a person to read are localised from the strings table of
// the plist's own name (Delay.plist from Delay.strings, in the bundle's .lproj of the user's
// language), through the bundle's localizedStringForKey:value:table: with the text as written
// in the plist as both key and fallback: the page's "title", each row's "label" (its name) and
// "footerText", and the titles of its choices ("validTitles", "shortTitles"). This rests on the
// header dumps of the Preferences framework, where loadSpecifiersFromPlistName:target: hands
// SpecifiersFromPlist the plist's name as its strings table, and on Apple's Settings
// Application Schema Reference, which names the same texts (title, footer, choice titles)
// localisable from the plist's table. Every other property, a cell's subtitle included, is
// copied as it stands.

- (NSArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target {
  return [self loadSpecifiersFromPlistName:plistName target:target bundle:[self bundle]];
}
- (NSArray *)loadSpecifiersFromPlistName:(NSString *)plistName target:(id)target bundle:(NSBundle *)bundle {
  NSMutableArray *rows = [NSMutableArray array];
  if (![plistName isKindOfClass:[NSString class]] || !bundle) return rows;
  if (!_bundle) _bundle = [bundle retain];
  NSString *path = [bundle pathForResource:plistName ofType:@"plist"];
  NSDictionary *plist = path ? [NSDictionary dictionaryWithContentsOfFile:path] : nil;
  if (![plist isKindOfClass:[NSDictionary class]]) return rows;
  NSString *title = [plist objectForKey:@"title"];
  if ([title isKindOfClass:[NSString class]])
    self.title = [bundle localizedStringForKey:title value:title table:plistName];
  NSArray *items = [plist objectForKey:@"items"];
  if (![items isKindOfClass:[NSArray class]]) return rows;
  for (NSDictionary *item in items) {
    if (![item isKindOfClass:[NSDictionary class]]) continue;
    NSString *cell = [item objectForKey:@"cell"];
    NSString *label = [item objectForKey:@"label"];
    if (![label isKindOfClass:[NSString class]]) label = nil;
    if (label) label = [bundle localizedStringForKey:label value:label table:plistName];
    NSString *set = [item objectForKey:@"set"], *get = [item objectForKey:@"get"];
    SEL setter =
        [set isKindOfClass:[NSString class]] ? NSSelectorFromString(set) : @selector(setPreferenceValue:specifier:);
    SEL getter = [get isKindOfClass:[NSString class]] ? NSSelectorFromString(get) : @selector(readPreferenceValue:);
    NSString *detail = [item objectForKey:@"detail"];
    Class detailClass = [detail isKindOfClass:[NSString class]] ? NSClassFromString(detail) : Nil;
    PSCellType type = defaultCellType([cell isKindOfClass:[NSString class]] ? cell : nil);
    PSSpecifier *s = [PSSpecifier preferenceSpecifierNamed:label
                                                    target:target
                                                       set:setter
                                                       get:getter
                                                    detail:detailClass
                                                      cell:type
                                                      edit:Nil];
    for (NSString *key in item) [s setProperty:[item objectForKey:key] forKey:key];
    NSString *cellClass = [item objectForKey:PSCellClassKey];
    if ([cellClass isKindOfClass:[NSString class]]) {
      Class cls = NSClassFromString(cellClass);
      [s setProperty:cls forKey:PSCellClassKey];
    }
    NSString *footer = [item objectForKey:PSFooterTextGroupKey];
    if ([footer isKindOfClass:[NSString class]])
      [s setProperty:[bundle localizedStringForKey:footer value:footer table:plistName] forKey:PSFooterTextGroupKey];
    NSString *action = [item objectForKey:@"action"];
    if ([action isKindOfClass:[NSString class]]) s.buttonAction = NSSelectorFromString(action);
    NSString *confirm = [item objectForKey:@"confirmationAction"];
    if ([confirm isKindOfClass:[NSString class]]) s.confirmationAction = NSSelectorFromString(confirm);
    NSString *load = [item objectForKey:@"controllerLoadAction"];
    if ([load isKindOfClass:[NSString class]]) s.controllerLoadAction = NSSelectorFromString(load);
    NSArray *values = [item objectForKey:@"validValues"], *titles = [item objectForKey:@"validTitles"];
    if ([values isKindOfClass:[NSArray class]]) {
      NSMutableArray *localized = [NSMutableArray array];
      for (id t in [titles isKindOfClass:[NSArray class]] ? titles : values)
        [localized addObject:[t isKindOfClass:[NSString class]] ? [bundle localizedStringForKey:t
                                                                                          value:t
                                                                                          table:plistName]
                                                                : t];
      NSArray *shortTitles = [item objectForKey:@"shortTitles"];
      NSMutableArray *localizedShort = nil;
      if ([shortTitles isKindOfClass:[NSArray class]]) {
        localizedShort = [NSMutableArray array];
        for (id t in shortTitles)
          [localizedShort addObject:[t isKindOfClass:[NSString class]] ? [bundle localizedStringForKey:t
                                                                                                 value:t
                                                                                                 table:plistName]
                                                                       : t];
      }
      [s setValues:values titles:localized shortTitles:localizedShort];
    }
    NSString *keyboard = [item objectForKey:@"keyboard"];
    if ([keyboard isEqual:@"numbers"]) s->keyboardType = UIKeyboardTypeNumberPad;
    if ([[item objectForKey:@"isNumeric"] boolValue]) s->keyboardType = UIKeyboardTypeNumberPad;
    if ([[item objectForKey:@"isEmail"] boolValue]) s->keyboardType = UIKeyboardTypeEmailAddress;
    if ([[item objectForKey:@"isURL"] boolValue]) s->keyboardType = UIKeyboardTypeURL;
    if ([[item objectForKey:@"icon"] isKindOfClass:[NSString class]]) [s setupIconImageWithBundle:bundle];
    [rows addObject:s];
  }
  return rows;
}

#pragma mark - Groups

// Each group specifier starts a group; rows before the first one form a group too. Kept
// while the rows stay the same array of the same length, as the framework keeps its group
// indices until the rows change (the table asks for them for every row it measures).
- (NSArray *)_simGroupStarts:(NSArray *)rows {
  if (_groups.count == 3 && [_groups objectAtIndex:0] == rows &&
      [[_groups objectAtIndex:1] unsignedIntegerValue] == rows.count)
    return [_groups objectAtIndex:2];
  NSMutableArray *starts = [NSMutableArray array];
  for (NSUInteger i = 0; i < rows.count; ++i) {
    PSSpecifier *s = [rows objectAtIndex:i];
    if (i == 0 || s.cellType == PSGroupCell) [starts addObject:[NSNumber numberWithUnsignedInteger:i]];
  }
  [_groups release];
  _groups = [[NSMutableArray alloc] initWithObjects:rows, [NSNumber numberWithUnsignedInteger:rows.count], starts, nil];
  return starts;
}
// The group's rows in the rows: [first, end).
- (BOOL)_simGroup:(NSInteger)group first:(NSUInteger *)first end:(NSUInteger *)end inRows:(NSArray *)rows {
  NSArray *starts = [self _simGroupStarts:rows];
  if (group < 0 || (NSUInteger)group >= starts.count) return NO;
  NSUInteger start = [[starts objectAtIndex:group] unsignedIntegerValue];
  *end = (NSUInteger)group + 1 < starts.count ? [[starts objectAtIndex:group + 1] unsignedIntegerValue] : rows.count;
  *first = [(PSSpecifier *)[rows objectAtIndex:start] cellType] == PSGroupCell ? start + 1 : start;
  return YES;
}
- (NSInteger)numberOfGroups {
  return [self _simGroupStarts:[self _simRows]].count;
}
- (NSInteger)indexOfGroup:(NSInteger)group {
  NSArray *starts = [self _simGroupStarts:[self _simRows]];
  return group >= 0 && (NSUInteger)group < starts.count ? (NSInteger)[[starts objectAtIndex:group] unsignedIntegerValue]
                                                        : NSNotFound;
}
- (PSSpecifier *)_simGroupSpecifier:(NSInteger)group {
  NSArray *rows = [self _simRows];
  NSInteger i = [self indexOfGroup:group];
  if (i == NSNotFound) return nil;
  PSSpecifier *s = [rows objectAtIndex:i];
  return s.cellType == PSGroupCell ? s : nil;
}
- (NSArray *)specifiersInGroup:(NSInteger)group {
  NSArray *rows = [self _simRows];
  NSArray *starts = [self _simGroupStarts:rows];
  if (group < 0 || (NSUInteger)group >= starts.count) return [NSArray array];
  NSUInteger start = [[starts objectAtIndex:group] unsignedIntegerValue];
  NSUInteger end =
      (NSUInteger)group + 1 < starts.count ? [[starts objectAtIndex:group + 1] unsignedIntegerValue] : rows.count;
  NSMutableArray *out = [NSMutableArray array];
  for (NSUInteger i = start; i < end; ++i) {
    PSSpecifier *s = [rows objectAtIndex:i];
    if (s.cellType != PSGroupCell) [out addObject:s];
  }
  return out;
}
- (NSInteger)rowsForGroup:(NSInteger)group {
  NSUInteger first, end;
  return [self _simGroup:group first:&first end:&end inRows:[self _simRows]] ? (NSInteger)(end - first) : 0;
}
- (NSInteger)indexForRow:(NSInteger)row inGroup:(NSInteger)group {
  PSSpecifier *s = [self specifierAtIndexPath:[NSIndexPath indexPathForRow:row inSection:group]];
  return s ? [[self _simRows] indexOfObjectIdenticalTo:s] : NSNotFound;
}
- (PSSpecifier *)specifierAtIndexPath:(NSIndexPath *)indexPath {
  NSArray *rows = [self _simRows];
  NSUInteger first, end;
  if (![self _simGroup:indexPath.section first:&first end:&end inRows:rows] || indexPath.row < 0 ||
      (NSUInteger)indexPath.row >= end - first)
    return nil;
  return [rows objectAtIndex:first + indexPath.row];
}
- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifier:(PSSpecifier *)specifier {
  NSArray *rows = [self _simRows];
  NSUInteger index = [rows indexOfObjectIdenticalTo:specifier];
  if (index == NSNotFound) return NO;
  return [self getGroup:group row:row ofSpecifierAtIndex:index];
}
- (BOOL)getGroup:(NSInteger *)group row:(NSInteger *)row ofSpecifierAtIndex:(NSInteger)index {
  NSArray *rows = [self _simRows];
  if (index < 0 || (NSUInteger)index >= rows.count) return NO;
  NSInteger g = -1, r = -1;
  for (NSInteger i = 0; i <= index; ++i) {
    PSSpecifier *s = [rows objectAtIndex:i];
    if (i == 0 || s.cellType == PSGroupCell) {
      ++g;
      r = -1;
    }
    if (s.cellType != PSGroupCell) ++r;
  }
  if (group) *group = g;
  if (row) *row = r;
  return YES;
}
- (NSIndexPath *)indexPathForSpecifier:(PSSpecifier *)specifier {
  NSInteger g, r;
  if (![self getGroup:&g row:&r ofSpecifier:specifier] || specifier.cellType == PSGroupCell) return nil;
  return [NSIndexPath indexPathForRow:r inSection:g];
}
- (NSIndexPath *)indexPathForIndex:(NSInteger)index {
  NSArray *rows = [self _simRows];
  return index >= 0 && (NSUInteger)index < rows.count ? [self indexPathForSpecifier:[rows objectAtIndex:index]] : nil;
}
- (NSInteger)indexForIndexPath:(NSIndexPath *)indexPath {
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  return s ? [[self _simRows] indexOfObjectIdenticalTo:s] : NSNotFound;
}

#pragma mark - Look-ups

// Look-ups search the cached rows only (they are used while the rows are being built).
- (PSSpecifier *)specifierForID:(NSString *)identifier {
  if (!identifier) return nil;
  for (PSSpecifier *s in _specifiers)
    if ([s.identifier isEqual:identifier]) return s;
  return nil;
}
- (PSSpecifier *)specifierAtIndex:(NSInteger)index {
  return index >= 0 && (NSUInteger)index < _specifiers.count ? [_specifiers objectAtIndex:index] : nil;
}
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier {
  NSUInteger i = specifier ? [_specifiers indexOfObjectIdenticalTo:specifier] : NSNotFound;
  return i == NSNotFound ? NSNotFound : (NSInteger)i;
}
- (NSInteger)indexOfSpecifierID:(NSString *)identifier {
  return [self indexOfSpecifier:[self specifierForID:identifier]];
}
- (BOOL)containsSpecifier:(PSSpecifier *)specifier {
  return [self indexOfSpecifier:specifier] != NSNotFound;
}

#pragma mark - Editing the rows

- (NSMutableArray *)_simMutableRows {
  return [NSMutableArray arrayWithArray:[self _simRows]];
}
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(NSInteger)index animated:(BOOL)animated {
  NSMutableArray *rows = [self _simMutableRows];
  if (index < 0 || (NSUInteger)index > rows.count) index = rows.count;
  [rows insertObjects:specifiers
            atIndexes:[NSIndexSet indexSetWithIndexesInRange:NSMakeRange(index, specifiers.count)]];
  [self _simReplaceRows:rows];
}
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(NSInteger)index {
  [self insertContiguousSpecifiers:specifiers atIndex:index animated:NO];
}
- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifier:(PSSpecifier *)other animated:(BOOL)animated {
  NSUInteger i = [[self _simRows] indexOfObjectIdenticalTo:other];
  [self insertContiguousSpecifiers:specifiers
                           atIndex:i == NSNotFound ? NSNotFound : (NSInteger)i + 1
                          animated:animated];
}
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index animated:(BOOL)animated {
  if (specifier) [self insertContiguousSpecifiers:[NSArray arrayWithObject:specifier] atIndex:index animated:animated];
}
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(NSInteger)index {
  [self insertSpecifier:specifier atIndex:index animated:NO];
}
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)other animated:(BOOL)animated {
  if (specifier)
    [self insertContiguousSpecifiers:[NSArray arrayWithObject:specifier] afterSpecifier:other animated:animated];
}
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)other {
  [self insertSpecifier:specifier afterSpecifier:other animated:NO];
}
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier animated:(BOOL)animated {
  [self insertSpecifier:specifier afterSpecifier:[self specifierForID:identifier] animated:animated];
}
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier {
  [self insertSpecifier:specifier afterSpecifierID:identifier animated:NO];
}
- (void)addSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
  [self insertSpecifier:specifier atIndex:NSNotFound animated:animated];
}
- (void)addSpecifier:(PSSpecifier *)specifier {
  [self addSpecifier:specifier animated:NO];
}
- (void)addSpecifiersFromArray:(NSArray *)specifiers animated:(BOOL)animated {
  [self insertContiguousSpecifiers:specifiers atIndex:NSNotFound animated:animated];
}
- (void)addSpecifiersFromArray:(NSArray *)specifiers {
  [self addSpecifiersFromArray:specifiers animated:NO];
}
- (void)removeContiguousSpecifiers:(NSArray *)specifiers animated:(BOOL)animated {
  NSMutableArray *rows = [self _simMutableRows];
  for (PSSpecifier *s in specifiers) [rows removeObjectIdenticalTo:s];
  [self _simReplaceRows:rows];
}
- (void)removeContiguousSpecifiers:(NSArray *)specifiers {
  [self removeContiguousSpecifiers:specifiers animated:NO];
}
- (void)removeSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
  if (specifier) [self removeContiguousSpecifiers:[NSArray arrayWithObject:specifier] animated:animated];
}
- (void)removeSpecifier:(PSSpecifier *)specifier {
  [self removeSpecifier:specifier animated:NO];
}
- (void)removeSpecifierID:(NSString *)identifier animated:(BOOL)animated {
  [self removeSpecifier:[self specifierForID:identifier] animated:animated];
}
- (void)removeSpecifierID:(NSString *)identifier {
  [self removeSpecifierID:identifier animated:NO];
}
- (void)removeSpecifierAtIndex:(NSInteger)index animated:(BOOL)animated {
  [self removeSpecifier:[self specifierAtIndex:index] animated:animated];
}
- (void)removeSpecifierAtIndex:(NSInteger)index {
  [self removeSpecifierAtIndex:index animated:NO];
}
- (void)replaceContiguousSpecifiers:(NSArray *)specifiers
                     withSpecifiers:(NSArray *)newSpecifiers
                           animated:(BOOL)animated {
  NSMutableArray *rows = [self _simMutableRows];
  NSUInteger at = specifiers.count ? [rows indexOfObjectIdenticalTo:[specifiers objectAtIndex:0]] : NSNotFound;
  for (PSSpecifier *s in specifiers) [rows removeObjectIdenticalTo:s];
  if (at == NSNotFound || at > rows.count) at = rows.count;
  [rows insertObjects:newSpecifiers
            atIndexes:[NSIndexSet indexSetWithIndexesInRange:NSMakeRange(at, newSpecifiers.count)]];
  [self _simReplaceRows:rows];
}
- (void)replaceContiguousSpecifiers:(NSArray *)specifiers withSpecifiers:(NSArray *)newSpecifiers {
  [self replaceContiguousSpecifiers:specifiers withSpecifiers:newSpecifiers animated:NO];
}

#pragma mark - Cells

- (Class)cellClassForSpecifier:(PSSpecifier *)specifier {
  id cls = [specifier propertyForKey:PSCellClassKey];
  if ([cls isKindOfClass:[NSString class]]) cls = NSClassFromString(cls);
  if (cls && class_isMetaClass(object_getClass(cls)) && [cls isSubclassOfClass:[UITableViewCell class]]) return cls;
  switch (specifier.cellType) {
    case PSSwitchCell:
      return [PSSwitchTableCell class];
    case PSEditTextCell:
    case PSSecureEditTextCell:
      return [PSEditableTableCell class];
    case PSSliderCell:
      return [PSSliderTableCell class];
    case PSSegmentCell:
      return [PSSegmentTableCell class];
    default:
      return [PSTableCell class];
  }
}
- (id)_simValueForSpecifier:(PSSpecifier *)specifier {
  id target = specifier.target;
  SEL getter = specifier.getter;
  if (!target || !getter || ![target respondsToSelector:getter]) return nil;
  return [target performSelector:getter withObject:specifier];
}
- (UITableViewCell *)_simCellForSpecifier:(PSSpecifier *)specifier {
  Class cls = [self cellClassForSpecifier:specifier];
  UITableViewCell *cell = [specifier propertyForKey:PSTableCellKey];
  if (![cell isKindOfClass:cls] || [cell class] != cls) {
    UITableViewCellStyle style =
        [cls respondsToSelector:@selector(cellStyle)] ? [cls cellStyle] : UITableViewCellStyleValue1;
    NSString *reuse = [cls respondsToSelector:@selector(reuseIdentifierForSpecifier:)]
                          ? [cls reuseIdentifierForSpecifier:specifier]
                          : NSStringFromClass(cls);
    if ([cls instancesRespondToSelector:@selector(initWithStyle:reuseIdentifier:specifier:)])
      cell = [[[cls alloc] initWithStyle:style reuseIdentifier:reuse specifier:specifier] autorelease];
    else
      cell = [[[cls alloc] initWithStyle:style reuseIdentifier:reuse] autorelease];
    [specifier setProperty:cell forKey:PSTableCellKey];
  }
  if ([cell isKindOfClass:[PSTableCell class]]) {
    PSTableCell *ps = (PSTableCell *)cell;
    if (ps.specifier != specifier) ps.specifier = specifier;
    [ps refreshCellContentsWithSpecifier:specifier];
    if (specifier.cellType != PSGroupCell && specifier.cellType != PSButtonCell) {
      id value = [self _simValueForSpecifier:specifier];
      if (value || specifier.getter) [ps setValue:value];
    }
  } else {
    cell.textLabel.text = specifier.name;
  }
  return cell;
}
- (UITableViewCell *)cachedCellForSpecifier:(PSSpecifier *)specifier {
  if (!specifier) return nil;
  NSIndexPath *path = [self indexPathForSpecifier:specifier];
  if (path && _table) {
    UITableViewCell *cell = [_table cellForRowAtIndexPath:path];
    if ([specifier propertyForKey:PSTableCellKey] == cell) return cell;
  }
  UITableViewCell *cell = [self _simCellForSpecifier:specifier];
  CGFloat width = _table ? _table.bounds.size.width : [UIScreen mainScreen].bounds.size.width;
  CGRect f = cell.frame;
  cell.frame = CGRectMake(f.origin.x, f.origin.y, width, [self _simHeightForSpecifier:specifier cell:cell]);
  [cell layoutIfNeeded];
  return cell;
}
- (UITableViewCell *)cachedCellForSpecifierID:(NSString *)identifier {
  return [self cachedCellForSpecifier:[self specifierForID:identifier]];
}
- (CGFloat)_simHeightForSpecifier:(PSSpecifier *)specifier cell:(UITableViewCell *)cell {
  id h = [specifier propertyForKey:PSTableCellHeightKey];
  if ([h respondsToSelector:@selector(doubleValue)] && [h doubleValue] > 0) return [h doubleValue];
  if ([cell isKindOfClass:[PSTableCell class]]) {
    CGFloat width = _table ? _table.bounds.size.width : [UIScreen mainScreen].bounds.size.width;
    CGFloat p = [(PSTableCell *)cell preferredHeightForWidth:width inTableView:_table];
    if (p > 0) return p;
  }
  return 44;
}
- (id)controllerForSpecifier:(PSSpecifier *)specifier {
  Class cls = specifier.detailControllerClass;
  if (!cls) return nil;
  UIViewController *c = [[[cls alloc] init] autorelease];
  if ([c isKindOfClass:[PSViewController class]]) {
    PSViewController *page = (PSViewController *)c;
    page.rootController = self.rootController;
    page.parentController = self;
    page.specifier = specifier;
  }
  return c;
}
- (void)lazyLoadBundle:(PSSpecifier *)specifier {
}

#pragma mark - Table data source and delegate

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
  return [self numberOfGroups];
}
- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
  return [self rowsForGroup:section];
}
- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  if (!s) return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil] autorelease];
  return [self _simCellForSpecifier:s];
}
- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
  PSSpecifier *g = [self _simGroupSpecifier:section];
  return g.name.length ? g.name : nil;
}
- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section {
  id text = [[self _simGroupSpecifier:section] propertyForKey:PSFooterTextGroupKey];
  return [text isKindOfClass:[NSString class]] ? text : nil;
}
- (UIView *)_simGroupView:(NSInteger)section key:(NSString *)classKey cache:(NSString *)cacheKey {
  PSSpecifier *g = [self _simGroupSpecifier:section];
  id cls = [g propertyForKey:classKey];
  if ([cls isKindOfClass:[NSString class]]) cls = NSClassFromString(cls);
  if (!cls || !class_isMetaClass(object_getClass(cls)) || ![cls isSubclassOfClass:[UIView class]]) return nil;
  UIView *view = [g propertyForKey:cacheKey];
  if (![view isKindOfClass:cls]) {
    view = [cls instancesRespondToSelector:@selector(initWithSpecifier:)]
               ? [[[cls alloc] initWithSpecifier:g] autorelease]
               : [[[cls alloc] initWithFrame:CGRectZero] autorelease];
    if (view) [g setProperty:view forKey:cacheKey];
  }
  return view;
}
- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section {
  return [self _simGroupView:section key:PSFooterCellClassGroupKey cache:@"footerView"];
}
- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section {
  return [self _simGroupView:section key:PSHeaderCellClassGroupKey cache:@"headerView"];
}
- (CGFloat)_simPreferredHeightOf:(UIView *)view width:(CGFloat)width {
  if ([view respondsToSelector:@selector(preferredHeightForWidth:inTableView:)])
    return [(id)view preferredHeightForWidth:width inTableView:_table];
  if ([view respondsToSelector:@selector(preferredHeightForWidth:)]) return [(id)view preferredHeightForWidth:width];
  return view.frame.size.height;
}
- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section {
  UIView *v = [self tableView:tableView viewForFooterInSection:section];
  return v ? [self _simPreferredHeightOf:v width:tableView.bounds.size.width] : UITableViewAutomaticDimension;
}
- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section {
  UIView *v = [self tableView:tableView viewForHeaderInSection:section];
  return v ? [self _simPreferredHeightOf:v width:tableView.bounds.size.width] : UITableViewAutomaticDimension;
}
- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath {
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  id h = [s propertyForKey:PSTableCellHeightKey];
  if ([h respondsToSelector:@selector(doubleValue)] && [h doubleValue] > 0) return [h doubleValue];
  id cell = [s propertyForKey:PSTableCellKey];
  if ([cell isKindOfClass:[PSTableCell class]]) {
    CGFloat p = [cell preferredHeightForWidth:tableView.bounds.size.width inTableView:tableView];
    if (p > 0) return p;
  }
  return 44;
}
- (NSIndexPath *)tableView:(UITableView *)tableView willSelectRowAtIndexPath:(NSIndexPath *)indexPath {
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  id enabled = [s propertyForKey:PSEnabledKey];
  if (enabled && ![enabled boolValue]) return nil;
  return indexPath;
}
- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)indexPath {
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  [tableView deselectRowAtIndexPath:indexPath animated:YES];
  if (!s) return;
  id target = s.target;
  switch (s.cellType) {
    case PSButtonCell: {
      SEL action = s.buttonAction;
      if (action && [target respondsToSelector:action]) [target performSelector:action withObject:s];
      break;
    }
    case PSLinkCell:
    case PSLinkListCell: {
      SEL load = s.controllerLoadAction;
      if (load && [target respondsToSelector:load]) {
        [target performSelector:load withObject:s];
        break;
      }
      SEL action = s.buttonAction;
      if (!s.detailControllerClass && action && [target respondsToSelector:action]) {
        [target performSelector:action withObject:s];
        break;
      }
      id controller = [self controllerForSpecifier:s];
      if (controller) [self pushController:controller animate:YES];
      break;
    }
    case PSEditTextCell:
    case PSSecureEditTextCell: {
      id cell = [s propertyForKey:PSTableCellKey];
      if ([cell isKindOfClass:[PSEditableTableCell class]]) [[cell textField] becomeFirstResponder];
      break;
    }
    default:
      break;
  }
}
@end

BOOL SimListControllerTapSpecifier(PSListController *controller, PSSpecifier *specifier) {
  if (!controller || !specifier || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  [controller view];
  NSIndexPath *path = [controller indexPathForSpecifier:specifier];
  if (!path) return NO;
  UITableView *table = [controller table];
  UITableViewCell *cell = [controller cachedCellForSpecifier:specifier];
  if ([cell isKindOfClass:[PSControlTableCell class]] && [(PSControlTableCell *)cell control]) {
    UIControl *control = [(PSControlTableCell *)cell control];
    if (!control.enabled || !cell.userInteractionEnabled) return NO;
    CGRect b = control.bounds;
    return SimTapView(control, CGPointMake(CGRectGetMidX(b), CGRectGetMidY(b)));
  }
  if (!cell.userInteractionEnabled) return NO;
  return SimTableViewSelectRow(table, path);
}
