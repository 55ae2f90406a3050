// Cells of list pages, the hyperlink footer and the passcode field.
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
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier])) {
    _cellEnabled = YES;
    _type = specifier ? specifier.cellType : PSLinkCell;
    self.specifier = specifier;
    if (_type == PSLinkCell || _type == PSLinkListCell) self.accessoryType = UITableViewCellAccessoryDisclosureIndicator;
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
- (PSSpecifier *)specifier {
  return _specifier;
}
- (void)setSpecifier:(PSSpecifier *)specifier {
  [specifier retain];
  [_specifier release];
  _specifier = specifier;
}
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
    self.detailTextLabel.text = [shown isKindOfClass:[NSString class]] ? shown
                                : shown                               ? [shown description]
                                                                      : nil;
  }
}
- (id)value {
  return _value;
}
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
  if (specifier && specifier != _specifier) self.specifier = specifier;
  specifier = _specifier;
  if (!specifier) return;
  [self setTitle:specifier.name];
  UIImage *icon = [specifier propertyForKey:PSIconImageKey];
  if (![icon isKindOfClass:[UIImage class]]) icon = nil;
  if (!icon && [[specifier propertyForKey:PSLazyIconLoading] boolValue]) {
    NSString *appID = [specifier propertyForKey:PSLazyIconAppID];
    if ([appID isKindOfClass:[NSString class]]) icon = [UIImage _applicationIconImageForBundleIdentifier:appID format:0 scale:0];
  }
  if (icon || self.imageView.image) [self setIcon:icon];
  id enabled = [specifier propertyForKey:PSEnabledKey];
  [self setCellEnabled:enabled ? [enabled boolValue] : YES];
  id alignment = [specifier propertyForKey:PSAlignmentKey];
  if ([alignment respondsToSelector:@selector(integerValue)]) self.textLabel.textAlignment = (NSTextAlignment)[alignment integerValue];
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
- (CGFloat)preferredHeightForWidth:(CGFloat)width {
  return 44;
}
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView {
  return [self preferredHeightForWidth:width];
}
@end

@implementation PSControlTableCell
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier])) {
    self.accessoryType = UITableViewCellAccessoryNone;
    self.selectionStyle = UITableViewCellSelectionStyleNone;
    UIControl *control = [self newControl];
    self.control = control;
    [control release];
  }
  return self;
}
- (void)dealloc {
  [_control removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
  [_control release];
  [super dealloc];
}
- (UIControl *)control {
  return _control;
}
- (void)setControl:(UIControl *)control {
  if (control == _control) return;
  [_control removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
  [control retain];
  [_control release];
  _control = control;
  [_control addTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
  self.accessoryView = control;
  if (_specifier) [_specifier setProperty:control forKey:PSControlKey];
}
- (void)setSpecifier:(PSSpecifier *)specifier {
  [super setSpecifier:specifier];
  if (_control) [specifier setProperty:_control forKey:PSControlKey];
}
- (UIControl *)newControl {
  return nil;
}
- (id)controlValue {
  return nil;
}
- (void)controlChanged:(id)sender {
  id value = [self controlValue];
  [_value release];
  _value = [value retain];
  [_specifier performSetterWithValue:value];
}
- (void)setCellEnabled:(BOOL)enabled {
  [super setCellEnabled:enabled];
  _control.enabled = enabled;
}
@end

@implementation PSSwitchTableCell
- (UIControl *)newControl {
  return [[UISwitch alloc] initWithFrame:CGRectZero];
}
- (id)controlValue {
  return [NSNumber numberWithBool:((UISwitch *)_control).on];
}
- (void)setValue:(id)value {
  [super setValue:value];
  [(UISwitch *)_control setOn:[value respondsToSelector:@selector(boolValue)] && [value boolValue] animated:NO];
}
@end

@implementation PSSubtitleSwitchTableCell
+ (UITableViewCellStyle)cellStyle {
  return UITableViewCellStyleSubtitle;
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  return [super initWithStyle:UITableViewCellStyleSubtitle reuseIdentifier:reuseIdentifier specifier:specifier];
}
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
  [super refreshCellContentsWithSpecifier:specifier];
  id subtitle = [_specifier propertyForKey:@"cellSubtitleText"];
  self.detailTextLabel.text = [subtitle isKindOfClass:[NSString class]] ? subtitle : nil;
}
@end

@implementation PSSegmentableSlider
@synthesize segmented = _segmented;
@synthesize locksToSegment = _locksToSegment;
@synthesize snapsToSegment = _snapsToSegment;
@synthesize segmentCount = _segmentCount;
- (void)setValue:(float)value {
  float min = self.minimumValue, max = self.maximumValue;
  if (_segmented && _segmentCount > 0 && max > min) {
    float step = (max - min) / (float)_segmentCount;
    value = min + roundf((value - min) / step) * step;
  }
  [super setValue:value];
}
@end

@implementation PSSliderTableCell
- (UIControl *)newControl {
  PSSegmentableSlider *slider = [[PSSegmentableSlider alloc] initWithFrame:CGRectMake(0, 0, 200, 31)];
  id min = [_specifier propertyForKey:@"min"], max = [_specifier propertyForKey:@"max"];
  if ([max respondsToSelector:@selector(floatValue)]) slider.maximumValue = [max floatValue];
  if ([min respondsToSelector:@selector(floatValue)]) slider.minimumValue = [min floatValue];
  id segmented = [_specifier propertyForKey:@"isSegmented"], count = [_specifier propertyForKey:@"segmentCount"];
  if ([segmented respondsToSelector:@selector(boolValue)] && [segmented boolValue]) {
    slider.segmented = YES;
    slider.locksToSegment = YES;
    slider.snapsToSegment = YES;
    if ([count respondsToSelector:@selector(longLongValue)] && [count longLongValue] > 0)
      slider.segmentCount = (unsigned long long)[count longLongValue];
  }
  return slider;
}
- (id)controlValue {
  return [NSNumber numberWithFloat:((UISlider *)_control).value];
}
- (void)setValue:(id)value {
  [super setValue:value];
  if ([value respondsToSelector:@selector(floatValue)]) ((UISlider *)_control).value = [value floatValue];
}
@end

@implementation PSSegmentTableCell
- (UIControl *)newControl {
  NSMutableArray *titles = [NSMutableArray array];
  for (id v in _specifier.values) {
    id t = [_specifier.titleDictionary objectForKey:v];
    [titles addObject:t ? t : [v description]];
  }
  return [[UISegmentedControl alloc] initWithItems:titles];
}
- (id)controlValue {
  NSInteger i = ((UISegmentedControl *)_control).selectedSegmentIndex;
  NSArray *values = _specifier.values;
  return i >= 0 && (NSUInteger)i < values.count ? [values objectAtIndex:i] : nil;
}
- (void)setValue:(id)value {
  [super setValue:value];
  NSUInteger i = value ? [_specifier.values indexOfObject:value] : NSNotFound;
  ((UISegmentedControl *)_control).selectedSegmentIndex = i == NSNotFound ? UISegmentedControlNoSegment : (NSInteger)i;
}
@end

@implementation PSEditableTableCell
@synthesize delegate = _delegate;
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier])) {
    self.accessoryType = UITableViewCellAccessoryNone;
    self.selectionStyle = UITableViewCellSelectionStyleNone;
    _textField = [[UITextField alloc] initWithFrame:CGRectZero];
    _textField.delegate = self;
    _textField.secureTextEntry = specifier.cellType == PSSecureEditTextCell;
    _textField.keyboardType = specifier ? specifier->keyboardType : UIKeyboardTypeDefault;
    id placeholder = [specifier propertyForKey:@"placeholder"];
    if ([placeholder isKindOfClass:[NSString class]]) _textField.placeholder = placeholder;
    [_textField addTarget:self action:@selector(_simTextChanged:) forControlEvents:UIControlEventEditingChanged];
    [self.contentView addSubview:_textField];
  }
  return self;
}
- (void)dealloc {
  _textField.delegate = nil;
  [_textField release];
  [super dealloc];
}
- (UITextField *)textField {
  return _textField;
}
- (UITextField *)editableTextField {
  return _textField;
}
// A row without a name has no title: as on the device, the cell's text label then
// carries the row's text as the field last showed it once editing ended (or the value
// was set), not what is being typed.
- (void)_simMirrorTextInLabel {
  if ([_specifier.name length] == 0) self.textLabel.text = _textField.text;
}
- (void)setValue:(id)value {
  [super setValue:value];
  _textField.text = [value isKindOfClass:[NSString class]] ? value : value ? [value description] : @"";
  [self _simMirrorTextInLabel];
}
- (void)_simTextChanged:(id)sender {
  _valueChanged = YES;
}
- (void)_simCommit {
  [self _simMirrorTextInLabel];
  if (!_valueChanged) return;
  _valueChanged = NO;
  NSString *text = [[_textField.text copy] autorelease];
  [_value release];
  _value = [text retain];
  [_specifier performSetterWithValue:text];
}
- (void)textFieldDidEndEditing:(UITextField *)textField {
  [self _simCommit];
}
- (BOOL)textFieldShouldReturn:(UITextField *)textField {
  [self _simCommit];
  [textField resignFirstResponder];
  return YES;
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGRect content = self.contentView.bounds;
  CGRect title = self.textLabel.frame;
  CGFloat x = [_specifier.name length] && self.textLabel.text.length
                  ? CGRectGetMinX(title) + [self.textLabel sizeThatFits:title.size].width + 15
                  : 15;
  _textField.frame = CGRectMake(x, 0, MAX(content.size.width - x - 15, 0), content.size.height);
}
@end

// Hyperlink footer.

@implementation PSFooterHyperlinkView
@synthesize text = _text;
@synthesize linkRange = _linkRange;
@synthesize target = _target;
@synthesize action = _action;
@synthesize URL = _URL;
@synthesize textLabel = _textLabel;
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
  if ((self = [super initWithFrame:CGRectMake(0, 0, [UIScreen mainScreen].bounds.size.width, 44)])) {
    _specifier = [specifier retain];
    id text = [specifier propertyForKey:@"headerFooterHyperlinkButtonTitle"];
    if (![text isKindOfClass:[NSString class]]) text = [specifier propertyForKey:PSFooterTextGroupKey];
    _text = [[text isKindOfClass:[NSString class]] ? text : @"" copy];
    id range = [specifier propertyForKey:@"footerHyperlinkRange"];
    _linkRange = [range isKindOfClass:[NSString class]] ? NSRangeFromString(range) : NSMakeRange(NSNotFound, 0);
    if (_linkRange.location == NSNotFound || NSMaxRange(_linkRange) > _text.length) _linkRange = NSMakeRange(NSNotFound, 0);
    id t = [specifier propertyForKey:@"footerHyperlinkTarget"];
    if ([t isKindOfClass:[NSValue class]] && strcmp([t objCType], @encode(id)) == 0) {
      id unboxed = nil;
      [t getValue:&unboxed];
      t = unboxed;
    } else if ([t isKindOfClass:[NSValue class]] && ![t isKindOfClass:[NSNumber class]]) {
      t = [t nonretainedObjectValue];
    }
    _target = t;
    id a = [specifier propertyForKey:@"footerHyperlinkAction"];
    _action = [a isKindOfClass:[NSString class]] ? NSSelectorFromString(a) : NULL;
    id url = [specifier propertyForKey:@"footerHyperlinkURL"];
    if ([url isKindOfClass:[NSString class]]) _URL = [[NSURL URLWithString:url] retain];
    _textLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    _textLabel.numberOfLines = 0;
    _textLabel.font = [UIFont systemFontOfSize:13];
    _textLabel.textColor = [UIColor secondaryLabelColor];
    _textLabel.text = _text;
    [self addSubview:_textLabel];
  }
  return self;
}
- (instancetype)initWithFrame:(CGRect)frame {
  return [self initWithSpecifier:nil];
}
- (void)dealloc {
  [_specifier release];
  [_text release];
  [_URL release];
  [_textLabel release];
  [super dealloc];
}
- (CGFloat)preferredHeightForWidth:(CGFloat)width {
  NSDictionary *attrs = [NSDictionary dictionaryWithObject:_textLabel.font forKey:NSFontAttributeName];
  return [_text boundingRectWithSize:CGSizeMake(width - 30, CGFLOAT_MAX) options:0 attributes:attrs context:nil].size.height + 17;
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGRect b = self.bounds;
  _textLabel.frame = CGRectMake(15, 7, MAX(b.size.width - 30, 0), MAX(b.size.height - 17, 0));
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  SimFooterHyperlinkTap(self);
}
@end

BOOL SimEditableCellType(PSEditableTableCell *cell, NSString *text) {
  if (![cell isKindOfClass:[PSEditableTableCell class]] || [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return NO;
  if (!cell.userInteractionEnabled) return NO;
  UITextField *field = [cell textField];
  [field becomeFirstResponder];
  field.text = text ? text : @"";
  [field sendActionsForControlEvents:UIControlEventEditingChanged];
  id<UITextFieldDelegate> delegate = field.delegate;
  if ([delegate respondsToSelector:@selector(textFieldShouldReturn:)]) [delegate textFieldShouldReturn:field];
  else [field resignFirstResponder];
  return YES;
}

BOOL SimFooterHyperlinkTap(PSFooterHyperlinkView *view) {
  if (!view || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  if (view.linkRange.location == NSNotFound) return NO;
  if (view.target && view.action && [view.target respondsToSelector:view.action]) {
    [view.target performSelector:view.action withObject:view];
    return YES;
  }
  if (view.URL) {
    UIApplication *app = [UIApplication sharedApplication];
    if (![app canOpenURL:view.URL]) return NO;
    [app openURL:view.URL options:[NSDictionary dictionary] completionHandler:nil];
    return YES;
  }
  return NO;
}

// Passcode field.

@implementation PSPasscodeField
@synthesize securePasscodeEntry = _securePasscodeEntry;
@synthesize enabled = _enabled;
@synthesize shouldBecomeFirstResponderOnTap = _shouldBecomeFirstResponderOnTap;
@synthesize delegate = _delegate;
@synthesize keyboardType = _keyboardType;
- (instancetype)initWithNumberOfEntryFields:(NSUInteger)fields {
  CGFloat width = fields * 35.0 - 8;
  if ((self = [super initWithFrame:CGRectMake(0, 0, width, 33)])) {
    _stringValue = [[NSMutableString alloc] init];
    _dotFields = [[NSMutableArray alloc] init];
    _enabled = YES;
    _shouldBecomeFirstResponderOnTap = YES;
    _keyboardType = UIKeyboardTypeNumberPad;
    self.numberOfEntryFields = fields;
  }
  return self;
}
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [self initWithNumberOfEntryFields:4])) self.frame = frame;
  return self;
}
- (void)dealloc {
  [_stringValue release];
  [_dotFields release];
  [super dealloc];
}
- (NSUInteger)numberOfEntryFields {
  return _numberOfEntryFields;
}
- (void)setNumberOfEntryFields:(NSUInteger)n {
  _numberOfEntryFields = n;
  for (UIView *v in _dotFields) [v removeFromSuperview];
  [_dotFields removeAllObjects];
  for (NSUInteger i = 0; i < n; ++i) {
    UIView *box = [[UIView alloc] initWithFrame:CGRectMake(i * 35.0, 0, 27, 33)];
    [_dotFields addObject:box];
    [self addSubview:box];
    [box release];
  }
  CGRect f = self.frame;
  f.size.width = n ? n * 35.0 - 8 : 0;
  self.frame = f;
  if (_stringValue.length > n) [_stringValue deleteCharactersInRange:NSMakeRange(n, _stringValue.length - n)];
}
- (NSArray *)dotFields {
  return [NSArray arrayWithArray:_dotFields];
}
- (NSString *)stringValue {
  return [NSString stringWithString:_stringValue];
}
- (void)setStringValue:(NSString *)value {
  [_stringValue setString:[value isKindOfClass:[NSString class]] ? value : @""];
  if (_stringValue.length > _numberOfEntryFields)
    [_stringValue deleteCharactersInRange:NSMakeRange(_numberOfEntryFields, _stringValue.length - _numberOfEntryFields)];
}
- (BOOL)canBecomeFirstResponder {
  return _enabled;
}
- (BOOL)hasText {
  return _stringValue.length > 0;
}
- (void)insertText:(NSString *)text {
  if (!_enabled || ![text isKindOfClass:[NSString class]]) return;
  for (NSUInteger i = 0; i < text.length; ++i) {
    if (_stringValue.length >= _numberOfEntryFields) return;
    NSString *ch = [text substringWithRange:NSMakeRange(i, 1)];
    if ([_delegate respondsToSelector:@selector(passcodeField:shouldInsertText:)] &&
        ![_delegate passcodeField:self shouldInsertText:ch])
      continue;
    [_stringValue appendString:ch];
    if (_stringValue.length == _numberOfEntryFields) {
      [[self retain] autorelease];
      NSString *entry = [NSString stringWithString:_stringValue];
      if ([_delegate respondsToSelector:@selector(passcodeField:enteredPasscode:)])
        [_delegate passcodeField:self enteredPasscode:entry];
      if ([_delegate respondsToSelector:@selector(passcodeFieldDidAcceptEntry:)]) [_delegate passcodeFieldDidAcceptEntry:self];
    }
  }
}
- (void)deleteBackward {
  if (_enabled && _stringValue.length) [_stringValue deleteCharactersInRange:NSMakeRange(_stringValue.length - 1, 1)];
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  if (_shouldBecomeFirstResponderOnTap) [self becomeFirstResponder];
}
@end

void SimPasscodeFieldType(PSPasscodeField *field, NSString *digits) {
  if (!field || ![digits isKindOfClass:[NSString class]] || [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return;
  for (NSUInteger i = 0; i < digits.length; ++i) [field insertText:[digits substringWithRange:NSMakeRange(i, 1)]];
}
