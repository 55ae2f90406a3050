#import <Preferences/PreferencesSimulation.h>

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
    [_stringValue
        deleteCharactersInRange:NSMakeRange(_numberOfEntryFields, _stringValue.length - _numberOfEntryFields)];
}

#pragma mark - Typing

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
    if ([_delegate respondsToSelector:@selector(passcodeField:shouldInsertText:)] && ![_delegate passcodeField:self
                                                                                              shouldInsertText:ch])
      continue;
    [_stringValue appendString:ch];
    if (_stringValue.length == _numberOfEntryFields) {
      [[self retain] autorelease];
      NSString *entry = [NSString stringWithString:_stringValue];
      if ([_delegate respondsToSelector:@selector(passcodeField:enteredPasscode:)])
        [_delegate passcodeField:self enteredPasscode:entry];
      if ([_delegate respondsToSelector:@selector(passcodeFieldDidAcceptEntry:)])
        [_delegate passcodeFieldDidAcceptEntry:self];
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
  if (!field || ![digits isKindOfClass:[NSString class]] ||
      [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return;
  for (NSUInteger i = 0; i < digits.length; ++i) [field insertText:[digits substringWithRange:NSMakeRange(i, 1)]];
}
