#import "UIKitInternal.h"
#include <math.h>

@implementation UILabel
@synthesize highlightedTextColor = _highlightedTextColor;
@synthesize shadowColor = _shadowColor;
@synthesize shadowOffset = _shadowOffset;
@synthesize lineBreakMode = _lineBreakMode;
@synthesize enabled = _enabled;
@synthesize highlighted = _highlighted;
@synthesize adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth;
@synthesize minimumScaleFactor = _minimumScaleFactor;
@synthesize preferredMaxLayoutWidth = _preferredMaxLayoutWidth;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _font = [[UIFont systemFontOfSize:17] retain];
    _textColor = [[UIColor labelColor] retain];
    _textAlignment = NSTextAlignmentNatural;
    _lineBreakMode = NSLineBreakByTruncatingTail;
    _numberOfLines = 1;
    _enabled = YES;
    _shadowOffset = CGSizeMake(0, -1);
    self.userInteractionEnabled = NO;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_attributedText release];
  [_font release];
  [_textColor release];
  [_highlightedTextColor release];
  [_shadowColor release];
  [super dealloc];
}

#pragma mark - Text

- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  if (text == _text) return;
  NSString *copy = [text copy];
  [_text release];
  _text = copy;
  [_attributedText release];
  _attributedText = copy ? [[NSAttributedString alloc] initWithString:copy] : nil;
  [self setNeedsDisplay];
}
- (NSAttributedString *)attributedText {
  return _attributedText;
}
- (void)setAttributedText:(NSAttributedString *)attributedText {
  NSAttributedString *copy = [attributedText copy];
  [_attributedText release];
  _attributedText = copy;
  [_text release];
  _text = [[copy string] copy];
  if (copy.length) {
    NSDictionary *attrs = [copy attributesAtIndex:0 effectiveRange:NULL];
    UIFont *font = [attrs objectForKey:NSFontAttributeName];
    UIColor *color = [attrs objectForKey:NSForegroundColorAttributeName];
    NSParagraphStyle *style = [attrs objectForKey:NSParagraphStyleAttributeName];
    if ([font isKindOfClass:[UIFont class]]) self.font = font;
    if ([color isKindOfClass:[UIColor class]]) self.textColor = color;
    if ([style isKindOfClass:[NSParagraphStyle class]]) _textAlignment = style.alignment;
  }
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
- (UIColor *)textColor {
  return _textColor;
}
- (void)setTextColor:(UIColor *)color {
  if (!color) color = [UIColor labelColor];
  [color retain];
  [_textColor release];
  _textColor = color;
}
- (NSTextAlignment)textAlignment {
  return _textAlignment;
}
- (void)setTextAlignment:(NSTextAlignment)a {
  _textAlignment = a;
}
- (NSInteger)numberOfLines {
  return _numberOfLines;
}
- (void)setNumberOfLines:(NSInteger)n {
  _numberOfLines = n;
}

#pragma mark - Layout and drawing

- (CGSize)sizeThatFits:(CGSize)size {
  CGFloat maxWidth = _numberOfLines == 1 ? 0 : size.width;
  return SimUIKitTextSize(_text, _font, maxWidth, _numberOfLines);
}
- (CGSize)intrinsicContentSize {
  return SimUIKitTextSize(_text, _font, _preferredMaxLayoutWidth, _numberOfLines);
}
- (CGRect)textRectForBounds:(CGRect)bounds limitedToNumberOfLines:(NSInteger)n {
  CGSize s = SimUIKitTextSize(_text, _font, bounds.size.width, n);
  return CGRectMake(bounds.origin.x, bounds.origin.y, fmin(s.width, bounds.size.width),
                    fmin(s.height, bounds.size.height));
}
- (void)drawTextInRect:(CGRect)rect {
  if (_text.length)
    [_text drawInRect:rect withAttributes:[NSDictionary dictionaryWithObject:_font forKey:NSFontAttributeName]];
}
- (void)drawRect:(CGRect)rect {
  [self drawTextInRect:rect];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<%@: %p; frame = %@; text = '%@'>", NSStringFromClass([self class]), (void *)self,
                                    NSStringFromCGRect(self.frame), _text];
}
@end
