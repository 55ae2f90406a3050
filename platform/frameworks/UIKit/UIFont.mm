#import "UIKitInternal.h"
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <math.h>

const UIFontWeight UIFontWeightUltraLight = -0.8;
const UIFontWeight UIFontWeightThin = -0.6;
const UIFontWeight UIFontWeightLight = -0.4;
const UIFontWeight UIFontWeightRegular = 0;
const UIFontWeight UIFontWeightMedium = 0.23;
const UIFontWeight UIFontWeightSemibold = 0.3;
const UIFontWeight UIFontWeightBold = 0.4;
const UIFontWeight UIFontWeightHeavy = 0.56;
const UIFontWeight UIFontWeightBlack = 0.62;
NSString *const UIFontTextStyleTitle1 = @"UICTFontTextStyleTitle1";
NSString *const UIFontTextStyleHeadline = @"UICTFontTextStyleHeadline";
NSString *const UIFontTextStyleBody = @"UICTFontTextStyleBody";
NSString *const UIFontTextStyleCallout = @"UICTFontTextStyleCallout";
NSString *const UIFontTextStyleSubheadline = @"UICTFontTextStyleSubhead";
NSString *const UIFontTextStyleFootnote = @"UICTFontTextStyleFootnote";
NSString *const UIFontTextStyleCaption1 = @"UICTFontTextStyleCaption1";

@implementation UIFont
@synthesize fontName = _fontName;
@synthesize pointSize = _pointSize;
- (instancetype)_simInitWithName:(NSString *)name size:(CGFloat)size weight:(UIFontWeight)weight {
  if ((self = [super init])) {
    _fontName = [name copy];
    _pointSize = size;
    _weight = weight;
  }
  return self;
}
- (void)dealloc {
  [_fontName release];
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  return [self retain];
}
+ (UIFont *)_simFontNamed:(NSString *)name size:(CGFloat)size weight:(UIFontWeight)weight {
  return [[[self alloc] _simInitWithName:name size:size weight:weight] autorelease];
}
+ (UIFont *)fontWithName:(NSString *)fontName size:(CGFloat)fontSize {
  if (![fontName isKindOfClass:[NSString class]] || !fontName.length) return nil;
  return [self _simFontNamed:fontName size:fontSize > 0 ? fontSize : 12 weight:UIFontWeightRegular];
}
+ (UIFont *)systemFontOfSize:(CGFloat)fontSize {
  return [self systemFontOfSize:fontSize weight:UIFontWeightRegular];
}
+ (UIFont *)boldSystemFontOfSize:(CGFloat)fontSize {
  return [self systemFontOfSize:fontSize weight:UIFontWeightBold];
}
+ (UIFont *)italicSystemFontOfSize:(CGFloat)fontSize {
  return [self _simFontNamed:@".SFUI-RegularItalic" size:fontSize weight:UIFontWeightRegular];
}
+ (UIFont *)systemFontOfSize:(CGFloat)fontSize weight:(UIFontWeight)weight {
  NSString *name = weight >= UIFontWeightBold       ? @".SFUI-Bold"
                   : weight >= UIFontWeightSemibold ? @".SFUI-Semibold"
                   : weight >= UIFontWeightMedium   ? @".SFUI-Medium"
                   : weight <= UIFontWeightLight    ? @".SFUI-Light"
                                                    : @".SFUI-Regular";
  return [self _simFontNamed:name size:fontSize weight:weight];
}
+ (UIFont *)monospacedDigitSystemFontOfSize:(CGFloat)fontSize weight:(UIFontWeight)weight {
  return [self systemFontOfSize:fontSize weight:weight];
}
+ (UIFont *)preferredFontForTextStyle:(NSString *)style {
  CGFloat size = 17;
  if ([style isEqualToString:UIFontTextStyleTitle1]) size = 28;
  if ([style isEqualToString:UIFontTextStyleCallout]) size = 16;
  if ([style isEqualToString:UIFontTextStyleSubheadline]) size = 15;
  if ([style isEqualToString:UIFontTextStyleFootnote]) size = 13;
  if ([style isEqualToString:UIFontTextStyleCaption1]) size = 12;
  if ([style isEqualToString:UIFontTextStyleHeadline]) return [self systemFontOfSize:17 weight:UIFontWeightSemibold];
  return [self systemFontOfSize:size];
}
+ (CGFloat)labelFontSize {
  return 17;
}
+ (CGFloat)buttonFontSize {
  return 18;
}
+ (CGFloat)smallSystemFontSize {
  return 12;
}
+ (CGFloat)systemFontSize {
  return 14;
}
- (UIFont *)fontWithSize:(CGFloat)fontSize {
  return [UIFont _simFontNamed:_fontName size:fontSize weight:_weight];
}
- (NSString *)familyName {
  return [_fontName hasPrefix:@".SFUI"] ? @".AppleSystemUIFont" : _fontName;
}
- (CGFloat)ascender {
  return round(_pointSize * 0.95 * 100) / 100;
}
- (CGFloat)descender {
  return -round(_pointSize * 0.25 * 100) / 100;
}
- (CGFloat)capHeight {
  return _pointSize * 0.7;
}
- (CGFloat)xHeight {
  return _pointSize * 0.52;
}
- (CGFloat)lineHeight {
  return ceil(_pointSize * 1.2);
}
- (CGFloat)leading {
  return 0;
}
- (BOOL)isEqual:(id)other {
  return [other isKindOfClass:[UIFont class]] && [((UIFont *)other).fontName isEqualToString:_fontName] &&
         ((UIFont *)other).pointSize == _pointSize;
}
- (NSUInteger)hash {
  return [_fontName hash] ^ (NSUInteger)(_pointSize * 16);
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<UIFont %@ %gpt>", _fontName, _pointSize];
}
@end

// Texts are measured as they are drawn: laid out by pango in the system font's stand-in face
// (words wrap at `maxWidth`), each line as high as the font's line height.
CGSize SimUIKitTextSize(NSString *text, UIFont *font, CGFloat maxWidth, NSInteger maxLines) {
  if (!font) font = [UIFont systemFontOfSize:17];
  if (![text isKindOfClass:[NSString class]] || !text.length) return CGSizeZero;
  PangoLayout *layout = SimTextCreateLayout(text, SimTextFontNamed(font.fontName, font.pointSize),
                                            maxWidth > 0 ? maxWidth : 0, 0, SimTextAlignNatural, NO);
  PangoRectangle logical;
  pango_layout_get_extents(layout, NULL, &logical);
  NSInteger lines = pango_layout_get_line_count(layout);
  g_object_unref(layout);
  if (maxLines > 0 && lines > maxLines) lines = maxLines;
  CGFloat width = ceil((CGFloat)logical.width / PANGO_SCALE);
  if (maxWidth > 0 && width > maxWidth) width = maxWidth;
  return CGSizeMake(width, lines * font.lineHeight);
}
