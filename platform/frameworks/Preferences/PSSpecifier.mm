// Rows of the Preferences framework and the pages that show them.
#import <Preferences/PreferencesSimulation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>
#include <Simulator/Simulator.h>

// The framework has groupSpecifierWithHeader:footer: from iOS 13 on.
static BOOL systemHasHeaderFooterGroups(void) {
  id version = [SimDeviceProfile() objectForKey:@"systemVersion"];
  return ![version isKindOfClass:[NSString class]] || [version integerValue] >= 13;
}

NSString *const PSIDKey = @"id";
NSString *const PSKeyNameKey = @"key";
NSString *const PSDefaultsKey = @"defaults";
NSString *const PSDefaultValueKey = @"default";
NSString *const PSCellClassKey = @"cellClass";
NSString *const PSTableCellKey = @"cellObject";
NSString *const PSControlKey = @"control";
NSString *const PSFooterTextGroupKey = @"footerText";
NSString *const PSHeaderFooterViewKey = @"headerFooterView";
NSString *const PSFooterCellClassGroupKey = @"footerCellClass";
NSString *const PSHeaderCellClassGroupKey = @"headerCellClass";
NSString *const PSTitleKey = @"label";
NSString *const PSEnabledKey = @"enabled";
NSString *const PSIconImageKey = @"iconImage";
NSString *const PSLazyIconLoading = @"useLazyIcons";
NSString *const PSLazyIconAppID = @"appIDForLazyIcon";
NSString *const PSTableCellHeightKey = @"height";
NSString *const PSValueChangedNotificationKey = @"PostNotification";
NSString *const PSActionKey = @"action";
NSString *const PSButtonActionKey = @"action";
NSString *const PSControllerLoadActionKey = @"controllerLoadAction";
NSString *const PSAlignmentKey = @"alignment";
NSString *const PSTargetKey = @"target";

@implementation PSSpecifier
@synthesize name = _name;
@synthesize buttonAction = _buttonAction;
@synthesize confirmationAction = _confirmationAction;
@synthesize confirmationCancelAction = _confirmationCancelAction;
@synthesize controllerLoadAction = _controllerLoadAction;
@synthesize userInfo = _userInfo;
@synthesize values = _values;
@synthesize titleDictionary = _titleDict;
@synthesize shortTitleDictionary = _shortTitleDict;
@synthesize properties = _properties;
@synthesize showContentString = _showContentString;

+ (instancetype)preferenceSpecifierNamed:(NSString *)name
                                  target:(id)t
                                     set:(SEL)set
                                     get:(SEL)get
                                  detail:(Class)detail
                                    cell:(PSCellType)cell
                                    edit:(Class)edit {
  PSSpecifier *s = [[[self alloc] init] autorelease];
  s.name = name;
  s->target = t;
  s->setter = set;
  s->getter = get;
  s->detailControllerClass = detail;
  s->cellType = cell;
  s->editPaneClass = edit;
  return s;
}
+ (instancetype)groupSpecifierWithName:(NSString *)name {
  return [self preferenceSpecifierNamed:name target:nil set:NULL get:NULL detail:Nil cell:PSGroupCell edit:Nil];
}
+ (BOOL)respondsToSelector:(SEL)selector {
  if (sel_isEqual(selector, @selector(groupSpecifierWithHeader:footer:))) return systemHasHeaderFooterGroups();
  return [super respondsToSelector:selector];
}
+ (instancetype)groupSpecifierWithHeader:(NSString *)header footer:(NSString *)footer {
  PSSpecifier *s = [self groupSpecifierWithName:header];
  if (footer) [s setProperty:footer forKey:PSFooterTextGroupKey];
  return s;
}
+ (instancetype)emptyGroupSpecifier {
  return [self groupSpecifierWithName:nil];
}
+ (instancetype)groupSpecifierWithID:(NSString *)identifier {
  return [self groupSpecifierWithID:identifier name:nil];
}
+ (instancetype)groupSpecifierWithID:(NSString *)identifier name:(NSString *)name {
  PSSpecifier *s = [self groupSpecifierWithName:name];
  s.identifier = identifier;
  return s;
}
+ (PSCellType)autoCellTypeForClass:(Class)cls {
  if ([cls isSubclassOfClass:[PSSwitchTableCell class]]) return PSSwitchCell;
  if ([cls isSubclassOfClass:[PSEditableTableCell class]]) return PSEditTextCell;
  if ([cls isSubclassOfClass:[PSSliderTableCell class]]) return PSSliderCell;
  return PSLinkCell;
}
- (instancetype)init {
  if ((self = [super init])) _properties = [[NSMutableDictionary alloc] init];
  return self;
}
- (void)dealloc {
  [_name release];
  [_values release];
  [_titleDict release];
  [_shortTitleDict release];
  [_userInfo release];
  [_properties release];
  [super dealloc];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"G: <%@ %p: ID %@, Name '%@' target <%@>>", NSStringFromClass([self class]),
                                    (void *)self, self.identifier, _name,
                                    target ? NSStringFromClass([target class]) : @"(null)"];
}
- (NSString *)identifier {
  id i = [_properties objectForKey:PSIDKey];
  return i ? i : _name;
}
- (void)setIdentifier:(NSString *)identifier {
  [self setProperty:identifier forKey:PSIDKey];
}
- (id)target {
  return target;
}
- (void)setTarget:(id)t {
  target = t;
}
- (SEL)getter {
  return getter;
}
- (void)setGetter:(SEL)g {
  getter = g;
}
- (SEL)setter {
  return setter;
}
- (void)setSetter:(SEL)s {
  setter = s;
}
- (Class)detailControllerClass {
  return detailControllerClass;
}
- (void)setDetailControllerClass:(Class)c {
  detailControllerClass = c;
}
- (Class)editPaneClass {
  return editPaneClass;
}
- (void)setEditPaneClass:(Class)c {
  editPaneClass = c;
}
- (PSCellType)cellType {
  return cellType;
}
- (void)setCellType:(PSCellType)t {
  cellType = t;
}
- (id)propertyForKey:(NSString *)key {
  return key ? [_properties objectForKey:key] : nil;
}
- (void)setProperty:(id)value forKey:(NSString *)key {
  if (!key) return;
  if (!_properties) _properties = [[NSMutableDictionary alloc] init];
  if (value)
    [_properties setObject:value forKey:key];
  else
    [_properties removeObjectForKey:key];
  if ([key isEqualToString:PSActionKey] && [value isKindOfClass:[NSString class]])
    _buttonAction = NSSelectorFromString(value);
}
- (void)removePropertyForKey:(NSString *)key {
  [self setProperty:nil forKey:key];
}
- (void)setValues:(NSArray *)values titles:(NSArray *)titles {
  [self setValues:values titles:titles shortTitles:nil];
}
- (void)setValues:(NSArray *)values titles:(NSArray *)titles shortTitles:(NSArray *)shortTitles {
  self.values = values;
  NSMutableDictionary *t = [NSMutableDictionary dictionary], *s = [NSMutableDictionary dictionary];
  for (NSUInteger i = 0; i < values.count; ++i) {
    id v = [values objectAtIndex:i];
    if (i < titles.count) [t setObject:[titles objectAtIndex:i] forKey:v];
    if (i < shortTitles.count) [s setObject:[shortTitles objectAtIndex:i] forKey:v];
  }
  self.titleDictionary = t;
  self.shortTitleDictionary = shortTitles ? s : nil;
}
- (void)setupIconImageWithBundle:(NSBundle *)bundle {
  NSString *icon = [self propertyForKey:@"icon"];
  if (![icon isKindOfClass:[NSString class]]) return;
  UIImage *image = [UIImage imageNamed:icon inBundle:bundle compatibleWithTraitCollection:nil];
  if (image) [self setProperty:image forKey:PSIconImageKey];
}
- (void)setupIconImageWithPath:(NSString *)path {
  UIImage *image = [UIImage imageWithContentsOfFile:path];
  if (image) [self setProperty:image forKey:PSIconImageKey];
}
- (void)performGetter {
  if (target && getter && [target respondsToSelector:getter]) [target performSelector:getter withObject:self];
}
- (void)performSetterWithValue:(id)value {
  if (target && setter && [target respondsToSelector:setter])
    [target performSelector:setter withObject:value withObject:self];
}
@end
