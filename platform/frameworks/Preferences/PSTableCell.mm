#import <Preferences/PreferencesSimulation.h>

static NSArray *cellTypeNames(void) {
  static NSArray *names;
  if (!names)
    names = [[NSArray alloc] initWithObjects:@"PSGroupCell", @"PSLinkCell", @"PSLinkListCell", @"PSListItemCell",
                                             @"PSTitleValueCell", @"PSSliderCell", @"PSSwitchCell", @"PSStaticTextCell",
                                             @"PSEditTextCell", @"PSSegmentCell", @"PSGiantIconCell", @"PSGiantCell",
                                             @"PSSecureEditTextCell", @"PSButtonCell", @"PSEditTextViewCell", nil];
  return names;
}

@implementation PSTableCell
@synthesize specifier = _specifier;
@synthesize type = _type;
@synthesize cellTarget = _cellTarget;
@synthesize cellAction = _cellAction;
+ (PSCellType)cellTypeFromString:(NSString *)cellType {
  NSUInteger i = [cellType isKindOfClass:[NSString class]] ? [cellTypeNames() indexOfObject:cellType] : NSNotFound;
  return i == NSNotFound ? (PSCellType)-1 : (PSCellType)i;
}
+ (NSString *)stringFromCellType:(PSCellType)cellType {
  return cellType >= 0 && (NSUInteger)cellType < cellTypeNames().count ? [cellTypeNames() objectAtIndex:cellType] : nil;
}
+ (NSString *)reuseIdentifierForClassAndType:(PSCellType)cellType {
  return [NSString stringWithFormat:@"%@-%@", NSStringFromClass(self), [self stringFromCellType:cellType]];
}
+ (NSString *)reuseIdentifierForSpecifier:(PSSpecifier *)specifier {
  return [self reuseIdentifierForClassAndType:specifier.cellType];
}
+ (UITableViewCellStyle)cellStyle {
  return UITableViewCellStyleValue1;
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier {
  return [self initWithStyle:style reuseIdentifier:reuseIdentifier specifier:nil];
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier])) {
    _cellEnabled = YES;
    _type = specifier ? specifier.cellType : PSLinkCell;
    self.specifier = specifier;
    if (_type == PSLinkCell || _type == PSLinkListCell)
      self.accessoryType = UITableViewCellAccessoryDisclosureIndicator;
    if (_type == PSButtonCell) self.textLabel.textColor = [UIColor systemBlueColor];
    if (_type == PSStaticTextCell || _type == PSTitleValueCell || _type == PSGroupCell)
      self.selectionStyle = UITableViewCellSelectionStyleNone;
  }
  return self;
}
- (void)dealloc {
  [_specifier release];
  [_value release];
  [_valueLabel release];
  [super dealloc];
}

#pragma mark - State

- (BOOL)isChecked {
  return _checked;
}
- (void)setChecked:(BOOL)checked {
  _checked = checked;
  self.accessoryType = checked ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone;
}
- (BOOL)cellEnabled {
  return _cellEnabled;
}
- (void)setCellEnabled:(BOOL)enabled {
  _cellEnabled = enabled;
  self.textLabel.enabled = enabled;
  self.detailTextLabel.enabled = enabled;
  self.textLabel.alpha = enabled ? 1 : 0.5;
  self.userInteractionEnabled = enabled;
}

#pragma mark - Content

- (UILabel *)titleLabel {
  return self.textLabel;
}
- (UILabel *)valueLabel {
  return self.detailTextLabel;
}
- (UIImageView *)iconImageView {
  return self.imageView;
}
- (void)setIcon:(UIImage *)icon {
  self.imageView.image = icon;
  [self setNeedsLayout];
}
- (void)setTitle:(NSString *)title {
  self.textLabel.text = title;
}
- (void)setValue:(id)value {
  [value retain];
  [_value release];
  _value = value;
  if (_type == PSTitleValueCell || _type == PSLinkListCell) {
    id shown = value;
    NSDictionary *titles = _specifier.titleDictionary;
    if (titles && value && [titles objectForKey:value]) shown = [titles objectForKey:value];
    self.detailTextLabel.text = [shown isKindOfClass:[NSString class]] ? shown : shown ? [shown description] : nil;
  }
}
- (id)value {
  return _value;
}

#pragma mark - Refreshing from the row

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
  if (specifier && specifier != _specifier) self.specifier = specifier;
  specifier = _specifier;
  if (!specifier) return;
  [self setTitle:specifier.name];
  UIImage *icon = [specifier propertyForKey:PSIconImageKey];
  if (![icon isKindOfClass:[UIImage class]]) icon = nil;
  if (!icon && [[specifier propertyForKey:PSLazyIconLoading] boolValue]) {
    NSString *appID = [specifier propertyForKey:PSLazyIconAppID];
    if ([appID isKindOfClass:[NSString class]])
      icon = [UIImage _applicationIconImageForBundleIdentifier:appID format:0 scale:0];
  }
  if (icon || self.imageView.image) [self setIcon:icon];
  id enabled = [specifier propertyForKey:PSEnabledKey];
  [self setCellEnabled:enabled ? [enabled boolValue] : YES];
  id alignment = [specifier propertyForKey:PSAlignmentKey];
  if ([alignment respondsToSelector:@selector(integerValue)])
    self.textLabel.textAlignment = (NSTextAlignment)[alignment integerValue];
  if (_type == PSButtonCell) {
    _cellTarget = specifier.target;
    _cellAction = specifier.buttonAction;
  }
}
- (void)reloadWithSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
  [self refreshCellContentsWithSpecifier:specifier];
}
- (BOOL)canReload {
  return YES;
}

#pragma mark - Height

- (CGFloat)preferredHeightForWidth:(CGFloat)width {
  return 44;
}
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView {
  return [self preferredHeightForWidth:width];
}
@end
