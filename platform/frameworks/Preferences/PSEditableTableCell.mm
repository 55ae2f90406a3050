#import <Preferences/PreferencesSimulation.h>

@implementation PSEditableTableCell
@synthesize delegate = _delegate;
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
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

#pragma mark - Editing

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

#pragma mark - Layout

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

BOOL SimEditableCellType(PSEditableTableCell *cell, NSString *text) {
  if (![cell isKindOfClass:[PSEditableTableCell class]] ||
      [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return NO;
  if (!cell.userInteractionEnabled) return NO;
  UITextField *field = [cell textField];
  [field becomeFirstResponder];
  field.text = text ? text : @"";
  [field sendActionsForControlEvents:UIControlEventEditingChanged];
  id<UITextFieldDelegate> delegate = field.delegate;
  if ([delegate respondsToSelector:@selector(textFieldShouldReturn:)])
    [delegate textFieldShouldReturn:field];
  else
    [field resignFirstResponder];
  return YES;
}
