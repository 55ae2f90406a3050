#import "UIKitInternal.h"

@implementation UITextField
@synthesize placeholder = _placeholder;
@synthesize textAlignment = _textAlignment;
@synthesize borderStyle = _borderStyle;
@synthesize delegate = _delegate;
@synthesize secureTextEntry = _secureTextEntry;
@synthesize keyboardType = _keyboardType;
@synthesize keyboardAppearance = _keyboardAppearance;
@synthesize returnKeyType = _returnKeyType;
@synthesize autocapitalizationType = _autocapitalizationType;
@synthesize autocorrectionType = _autocorrectionType;
@synthesize clearButtonMode = _clearButtonMode;
@synthesize clearsOnBeginEditing = _clearsOnBeginEditing;
@synthesize adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth;
@synthesize leftView = _leftView;
@synthesize rightView = _rightView;
@synthesize inputView = _inputView;
@synthesize inputAccessoryView = _inputAccessoryView;
@synthesize editing = _editing;
@synthesize textColor = _textColor;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _text = [@"" copy];
    _font = [[UIFont systemFontOfSize:17] retain];
    _textColor = [[UIColor labelColor] retain];
    _textAlignment = NSTextAlignmentNatural;
    _autocapitalizationType = UITextAutocapitalizationTypeSentences;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_placeholder release];
  [_font release];
  [_textColor release];
  [_leftView release];
  [_rightView release];
  [_inputView release];
  [_inputAccessoryView release];
  [super dealloc];
}

#pragma mark - Text and attributes

- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  NSString *copy = text ? [text copy] : [@"" copy];
  [_text release];
  _text = copy;
}
- (NSAttributedString *)attributedText {
  return [[[NSAttributedString alloc] initWithString:_text] autorelease];
}
- (void)setAttributedText:(NSAttributedString *)text {
  self.text = [text string];
}
- (UIFont *)font {
  return _font;
}
- (void)setFont:(UIFont *)font {
  if (!font) font = [UIFont systemFontOfSize:17];
  [font retain];
  [_font release];
  _font = font;
}

#pragma mark - Editing

- (BOOL)canBecomeFirstResponder {
  return self.enabled;
}
- (BOOL)becomeFirstResponder {
  if (self.isFirstResponder) return YES;
  if (![self canBecomeFirstResponder]) return NO;
  if ([_delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)] &&
      ![_delegate textFieldShouldBeginEditing:self])
    return NO;
  if (![super becomeFirstResponder]) return NO;
  _editing = YES;
  if (_clearsOnBeginEditing) self.text = @"";
  if ([_delegate respondsToSelector:@selector(textFieldDidBeginEditing:)]) [_delegate textFieldDidBeginEditing:self];
  [self sendActionsForControlEvents:UIControlEventEditingDidBegin];
  return YES;
}
- (BOOL)canResignFirstResponder {
  if ([_delegate respondsToSelector:@selector(textFieldShouldEndEditing:)])
    return [_delegate textFieldShouldEndEditing:self];
  return YES;
}
- (BOOL)resignFirstResponder {
  if (!self.isFirstResponder) return YES;
  if (![self canResignFirstResponder]) return NO;
  [[self retain] autorelease];
  [super resignFirstResponder];
  _editing = NO;
  if ([_delegate respondsToSelector:@selector(textFieldDidEndEditing:)]) [_delegate textFieldDidEndEditing:self];
  [self sendActionsForControlEvents:UIControlEventEditingDidEnd];
  return YES;
}

#pragma mark - Typing

- (BOOL)hasText {
  return _text.length > 0;
}
- (void)_simReplaceRange:(NSRange)range with:(NSString *)string {
  if ([_delegate respondsToSelector:@selector(textField:shouldChangeCharactersInRange:replacementString:)] &&
      ![_delegate textField:self shouldChangeCharactersInRange:range replacementString:string])
    return;
  self.text = [_text stringByReplacingCharactersInRange:range withString:string];
  [self sendActionsForControlEvents:UIControlEventEditingChanged];
}
- (void)insertText:(NSString *)text {
  if (![text isKindOfClass:[NSString class]]) return;
  NSArray *parts = [text componentsSeparatedByString:@"\n"];
  for (NSUInteger i = 0; i < parts.count; ++i) {
    NSString *part = [parts objectAtIndex:i];
    if (part.length) [self _simReplaceRange:NSMakeRange(_text.length, 0) with:part];
    if (i + 1 < parts.count) {
      // Return key.
      [[self retain] autorelease];
      if ([_delegate respondsToSelector:@selector(textFieldShouldReturn:)]) [_delegate textFieldShouldReturn:self];
      [self sendActionsForControlEvents:UIControlEventEditingDidEndOnExit];
    }
  }
}
- (void)deleteBackward {
  if (!_text.length) return;
  [self _simReplaceRange:NSMakeRange(_text.length - 1, 1) with:@""];
}
- (void)_simTapped {
  [self becomeFirstResponder];
}
@end
