#import "UIKitInternal.h"

@implementation UITextView
@synthesize font = _font;
@synthesize textColor = _textColor;
@synthesize textAlignment = _textAlignment;
@synthesize editable = _editable;
@synthesize selectable = _selectable;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _text = [@"" copy];
    _font = [[UIFont systemFontOfSize:12] retain];
    _textColor = [[UIColor labelColor] retain];
    _editable = YES;
    _selectable = YES;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_font release];
  [_textColor release];
  [super dealloc];
}
- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  NSString *copy = text ? [text copy] : [@"" copy];
  [_text release];
  _text = copy;
  CGSize s = SimUIKitTextSize(_text, _font, self.bounds.size.width, 0);
  self.contentSize = CGSizeMake(self.bounds.size.width, s.height);
}
- (BOOL)canBecomeFirstResponder {
  return _editable;
}
- (BOOL)hasText {
  return _text.length > 0;
}
- (void)insertText:(NSString *)text {
  if (_editable && [text isKindOfClass:[NSString class]]) self.text = [_text stringByAppendingString:text];
}
- (void)deleteBackward {
  if (_editable && _text.length) self.text = [_text substringToIndex:_text.length - 1];
}
@end
