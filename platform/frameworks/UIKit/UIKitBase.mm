// Foundation-level parts of the UIKit stand-in: geometry strings and boxing, colours, fonts,
// images and image contexts, paths, the device, screen and traits, the pasteboard, the
// records kept for tests, and the timeline that runs animation completions.
#import <UIKit/UIKitSimulation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>
#include <Simulator/Simulator.h>

#include <math.h>

#import "UIKitInternal.h"

const UIEdgeInsets UIEdgeInsetsZero = {0, 0, 0, 0};
const UIOffset UIOffsetZero = {0, 0};
const NSTimeInterval SimTransitionDuration = 0.35;

// Profile access.

NSDictionary *SimUIKitProfile(void) {
  NSDictionary *p = SimDeviceProfile();
  return [p isKindOfClass:[NSDictionary class]] ? p : [NSDictionary dictionary];
}

static CGFloat profileScreenValue(NSString *key, CGFloat fallback) {
  id screen = [SimUIKitProfile() objectForKey:@"screen"];
  if (![screen isKindOfClass:[NSDictionary class]]) return fallback;
  id v = [screen objectForKey:key];
  return [v respondsToSelector:@selector(doubleValue)] && [v doubleValue] > 0 ? [v doubleValue] : fallback;
}

CGFloat SimUIKitScreenScale(void) { return profileScreenValue(@"scale", 3); }

BOOL SimUIKitDarkMode(void) {
  id v = [SimUIKitProfile() objectForKey:@"darkMode"];
  return [v respondsToSelector:@selector(boolValue)] && [v boolValue];
}

// Records.

@interface _SimUIKitRecords : NSObject {
  NSMutableArray *_sounds;
  NSMutableArray *_urls;
  NSMutableArray *_urlOptions;
  NSMutableArray *_animations;
}
@property(nonatomic, readonly) NSMutableArray *sounds;
@property(nonatomic, readonly) NSMutableArray *urls;
@property(nonatomic, readonly) NSMutableArray *urlOptions;
@property(nonatomic, readonly) NSMutableArray *animations;
@end
@implementation _SimUIKitRecords
@synthesize sounds = _sounds;
@synthesize urls = _urls;
@synthesize urlOptions = _urlOptions;
@synthesize animations = _animations;
- (instancetype)init {
  if ((self = [super init])) {
    _sounds = [[NSMutableArray alloc] init];
    _urls = [[NSMutableArray alloc] init];
    _urlOptions = [[NSMutableArray alloc] init];
    _animations = [[NSMutableArray alloc] init];
  }
  return self;
}
@end

_SimUIKitRecords *SimUIKitRecords(void) {
  static _SimUIKitRecords *records;
  if (!records) records = [[_SimUIKitRecords alloc] init];
  return records;
}

NSArray *SimPlayedSystemSounds(void) { return [NSArray arrayWithArray:SimUIKitRecords().sounds]; }
NSArray *SimOpenedURLs(void) { return [NSArray arrayWithArray:SimUIKitRecords().urls]; }
NSArray *SimOpenedURLOptions(void) { return [NSArray arrayWithArray:SimUIKitRecords().urlOptions]; }
NSArray *SimRecordedViewAnimations(void) { return [NSArray arrayWithArray:SimUIKitRecords().animations]; }
void SimUIKitRecordURL(NSURL *url, NSDictionary *options) {
  if (!url) return;
  [SimUIKitRecords().urls addObject:url];
  [SimUIKitRecords().urlOptions addObject:options ? (id)options : (id)[NSNull null]];
}
void SimUIKitRecordAnimation(NSTimeInterval duration, NSTimeInterval delay, NSUInteger options) {
  NSDictionary *d = [NSDictionary dictionaryWithObjectsAndKeys:[NSNumber numberWithDouble:duration], @"duration",
                                                               [NSNumber numberWithDouble:delay], @"delay",
                                                               [NSNumber numberWithUnsignedInteger:options],
                                                               @"options", nil];
  [SimUIKitRecords().animations addObject:d];
}

void SimUIKitReset(void) {
  _SimUIKitRecords *r = SimUIKitRecords();
  [r.sounds removeAllObjects];
  [r.urls removeAllObjects];
  [r.urlOptions removeAllObjects];
  [r.animations removeAllObjects];
  [UIPasteboard generalPasteboard].items = [NSArray array];
  SimUIKitResetResponders();
  SimUIKitResetApplication();
}

// Blocks are not objects under this runtime: a box owns a heap copy.
@implementation _SimBlockBox
- (instancetype)initWithBlock:(void (^)(void))block {
  if ((self = [super init]) && block) _block = Block_copy(block);
  return self;
}
- (void)dealloc {
  if (_block) Block_release(_block);
  [super dealloc];
}
- (void)run {
  if (_block) _block();
}
@end

// Animation and transition completions wait on the main run loop's clock, in due order.
void SimUIKitSchedule(NSTimeInterval delay, void (^block)(void)) { SimClockSchedule(delay, block); }

// Geometry strings and boxing.

NSString *NSStringFromCGPoint(CGPoint p) { return [NSString stringWithFormat:@"{%g, %g}", p.x, p.y]; }
NSString *NSStringFromCGSize(CGSize s) { return [NSString stringWithFormat:@"{%g, %g}", s.width, s.height]; }
NSString *NSStringFromCGRect(CGRect r) {
  return [NSString stringWithFormat:@"{{%g, %g}, {%g, %g}}", r.origin.x, r.origin.y, r.size.width, r.size.height];
}
NSString *NSStringFromCGAffineTransform(CGAffineTransform t) {
  return [NSString stringWithFormat:@"[%g, %g, %g, %g, %g, %g]", t.a, t.b, t.c, t.d, t.tx, t.ty];
}
NSString *NSStringFromUIEdgeInsets(UIEdgeInsets i) {
  return [NSString stringWithFormat:@"{%g, %g, %g, %g}", i.top, i.left, i.bottom, i.right];
}
static int scanNumbers(NSString *s, double *out, int max) {
  if (![s isKindOfClass:[NSString class]]) return 0;
  NSScanner *scanner = [NSScanner scannerWithString:s];
  NSCharacterSet *skip = [NSCharacterSet characterSetWithCharactersInString:@"{}, \t\n"];
  int n = 0;
  while (n < max && ![scanner isAtEnd]) {
    [scanner scanCharactersFromSet:skip intoString:NULL];
    double d;
    if (![scanner scanDouble:&d]) break;
    out[n++] = d;
  }
  return n;
}
CGPoint CGPointFromString(NSString *s) {
  double v[2] = {0, 0};
  return scanNumbers(s, v, 2) == 2 ? CGPointMake(v[0], v[1]) : CGPointZero;
}
CGSize CGSizeFromString(NSString *s) {
  double v[2] = {0, 0};
  return scanNumbers(s, v, 2) == 2 ? CGSizeMake(v[0], v[1]) : CGSizeZero;
}
CGRect CGRectFromString(NSString *s) {
  double v[4] = {0, 0, 0, 0};
  return scanNumbers(s, v, 4) == 4 ? CGRectMake(v[0], v[1], v[2], v[3]) : CGRectZero;
}

#define SIM_VALUE_BOX(Type, Name)                                   \
  +(NSValue *)valueWith##Name : (Type)v {                           \
    return [NSValue valueWithBytes:&v objCType:@encode(Type)];      \
  }                                                                 \
  -(Type)Name##Value {                                              \
    Type v;                                                         \
    memset(&v, 0, sizeof v);                                        \
    if (strcmp([self objCType], @encode(Type)) == 0) [self getValue:&v]; \
    return v;                                                       \
  }

@implementation NSValue (NSValueUIGeometryExtensions)
SIM_VALUE_BOX(CGPoint, CGPoint)
SIM_VALUE_BOX(CGVector, CGVector)
SIM_VALUE_BOX(CGSize, CGSize)
SIM_VALUE_BOX(CGRect, CGRect)
SIM_VALUE_BOX(CGAffineTransform, CGAffineTransform)
SIM_VALUE_BOX(UIEdgeInsets, UIEdgeInsets)
SIM_VALUE_BOX(UIOffset, UIOffset)
@end

// Text attributes.

NSString *const NSFontAttributeName = @"NSFont";
NSString *const NSParagraphStyleAttributeName = @"NSParagraphStyle";
NSString *const NSForegroundColorAttributeName = @"NSColor";
NSString *const NSBackgroundColorAttributeName = @"NSBackgroundColor";
NSString *const NSUnderlineStyleAttributeName = @"NSUnderline";
NSString *const NSStrikethroughStyleAttributeName = @"NSStrikethrough";
NSString *const NSLinkAttributeName = @"NSLink";
NSString *const NSKernAttributeName = @"NSKern";

@implementation NSParagraphStyle
@synthesize alignment = _alignment;
@synthesize lineBreakMode = _lineBreakMode;
@synthesize lineSpacing = _lineSpacing;
@synthesize paragraphSpacing = _paragraphSpacing;
+ (NSParagraphStyle *)defaultParagraphStyle {
  return [[[NSParagraphStyle alloc] init] autorelease];
}
- (instancetype)init {
  if ((self = [super init])) _alignment = NSTextAlignmentNatural;
  return self;
}
- (id)copyWithZone:(NSZone *)zone {
  NSParagraphStyle *s = [[NSParagraphStyle allocWithZone:zone] init];
  s->_alignment = _alignment;
  s->_lineBreakMode = _lineBreakMode;
  s->_lineSpacing = _lineSpacing;
  s->_paragraphSpacing = _paragraphSpacing;
  return s;
}
- (id)mutableCopyWithZone:(NSZone *)zone {
  NSMutableParagraphStyle *s = [[NSMutableParagraphStyle allocWithZone:zone] init];
  s.alignment = _alignment;
  s.lineBreakMode = _lineBreakMode;
  s.lineSpacing = _lineSpacing;
  s.paragraphSpacing = _paragraphSpacing;
  return s;
}
@end

@implementation NSMutableParagraphStyle
@dynamic alignment, lineBreakMode, lineSpacing, paragraphSpacing;
- (void)setAlignment:(NSTextAlignment)a {
  _alignment = a;
}
- (void)setLineBreakMode:(NSLineBreakMode)m {
  _lineBreakMode = m;
}
- (void)setLineSpacing:(CGFloat)s {
  _lineSpacing = s;
}
- (void)setParagraphSpacing:(CGFloat)s {
  _paragraphSpacing = s;
}
@end

// Colours.

static CGFloat clamp01(CGFloat v) { return v < 0 ? 0 : v > 1 ? 1 : v; }

@implementation UIColor
+ (UIColor *)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
  return [[[self alloc] initWithWhite:white alpha:alpha] autorelease];
}
+ (UIColor *)colorWithHue:(CGFloat)h saturation:(CGFloat)s brightness:(CGFloat)b alpha:(CGFloat)a {
  return [[[self alloc] initWithHue:h saturation:s brightness:b alpha:a] autorelease];
}
+ (UIColor *)colorWithRed:(CGFloat)r green:(CGFloat)g blue:(CGFloat)b alpha:(CGFloat)a {
  return [[[self alloc] initWithRed:r green:g blue:b alpha:a] autorelease];
}
+ (UIColor *)colorWithDisplayP3Red:(CGFloat)r green:(CGFloat)g blue:(CGFloat)b alpha:(CGFloat)a {
  return [self colorWithRed:r green:g blue:b alpha:a];
}
+ (UIColor *)colorWithCGColor:(CGColorRef)c {
  return [[[self alloc] initWithCGColor:c] autorelease];
}
+ (UIColor *)colorWithPatternImage:(UIImage *)image {
  return [[[self alloc] initWithPatternImage:image] autorelease];
}
- (UIColor *)initWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
  return [self initWithRed:white green:white blue:white alpha:alpha];
}
- (UIColor *)initWithHue:(CGFloat)h saturation:(CGFloat)s brightness:(CGFloat)v alpha:(CGFloat)a {
  h = fmod(clamp01(h) * 6, 6);
  int i = (int)floor(h);
  CGFloat f = h - i, p = v * (1 - s), q = v * (1 - s * f), t = v * (1 - s * (1 - f));
  CGFloat r, g, b;
  switch (i) {
    case 0: r = v; g = t; b = p; break;
    case 1: r = q; g = v; b = p; break;
    case 2: r = p; g = v; b = t; break;
    case 3: r = p; g = q; b = v; break;
    case 4: r = t; g = p; b = v; break;
    default: r = v; g = p; b = q; break;
  }
  return [self initWithRed:r green:g blue:b alpha:a];
}
- (UIColor *)initWithRed:(CGFloat)r green:(CGFloat)g blue:(CGFloat)b alpha:(CGFloat)a {
  if ((self = [super init])) {
    _red = r;
    _green = g;
    _blue = b;
    _alpha = clamp01(a);
  }
  return self;
}
- (UIColor *)initWithCGColor:(CGColorRef)c {
  size_t n = CGColorGetNumberOfComponents(c);
  const CGFloat *v = CGColorGetComponents(c);
  if (n == 2) return [self initWithWhite:v[0] alpha:v[1]];
  if (n >= 4) return [self initWithRed:v[0] green:v[1] blue:v[2] alpha:v[3]];
  return [self initWithWhite:0 alpha:0];
}
- (UIColor *)initWithPatternImage:(UIImage *)image {
  if ((self = [self initWithWhite:0.5 alpha:1])) _patternImage = [image retain];
  return self;
}
- (void)dealloc {
  CGColorRelease(_cgColor);
  [_patternImage release];
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  return [self retain];
}

static UIColor *rgb255(CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  return [UIColor colorWithRed:r / 255.0 green:g / 255.0 blue:b / 255.0 alpha:a];
}
static UIColor *dynamic(UIColor *light, UIColor *dark) { return SimUIKitDarkMode() ? dark : light; }

+ (UIColor *)blackColor { return [self colorWithWhite:0 alpha:1]; }
+ (UIColor *)darkGrayColor { return [self colorWithWhite:1.0 / 3 alpha:1]; }
+ (UIColor *)lightGrayColor { return [self colorWithWhite:2.0 / 3 alpha:1]; }
+ (UIColor *)whiteColor { return [self colorWithWhite:1 alpha:1]; }
+ (UIColor *)grayColor { return [self colorWithWhite:0.5 alpha:1]; }
+ (UIColor *)redColor { return [self colorWithRed:1 green:0 blue:0 alpha:1]; }
+ (UIColor *)greenColor { return [self colorWithRed:0 green:1 blue:0 alpha:1]; }
+ (UIColor *)blueColor { return [self colorWithRed:0 green:0 blue:1 alpha:1]; }
+ (UIColor *)cyanColor { return [self colorWithRed:0 green:1 blue:1 alpha:1]; }
+ (UIColor *)yellowColor { return [self colorWithRed:1 green:1 blue:0 alpha:1]; }
+ (UIColor *)magentaColor { return [self colorWithRed:1 green:0 blue:1 alpha:1]; }
+ (UIColor *)orangeColor { return [self colorWithRed:1 green:0.5 blue:0 alpha:1]; }
+ (UIColor *)purpleColor { return [self colorWithRed:0.5 green:0 blue:0.5 alpha:1]; }
+ (UIColor *)brownColor { return [self colorWithRed:0.6 green:0.4 blue:0.2 alpha:1]; }
+ (UIColor *)clearColor { return [self colorWithWhite:0 alpha:0]; }
+ (UIColor *)systemRedColor { return dynamic(rgb255(255, 59, 48, 1), rgb255(255, 69, 58, 1)); }
+ (UIColor *)systemGreenColor { return dynamic(rgb255(52, 199, 89, 1), rgb255(48, 209, 88, 1)); }
+ (UIColor *)systemBlueColor { return dynamic(rgb255(0, 122, 255, 1), rgb255(10, 132, 255, 1)); }
+ (UIColor *)systemOrangeColor { return dynamic(rgb255(255, 149, 0, 1), rgb255(255, 159, 10, 1)); }
+ (UIColor *)systemYellowColor { return dynamic(rgb255(255, 204, 0, 1), rgb255(255, 214, 10, 1)); }
+ (UIColor *)systemPinkColor { return dynamic(rgb255(255, 45, 85, 1), rgb255(255, 55, 95, 1)); }
+ (UIColor *)systemPurpleColor { return dynamic(rgb255(175, 82, 222, 1), rgb255(191, 90, 242, 1)); }
+ (UIColor *)systemTealColor { return dynamic(rgb255(90, 200, 250, 1), rgb255(100, 210, 255, 1)); }
+ (UIColor *)systemIndigoColor { return dynamic(rgb255(88, 86, 214, 1), rgb255(94, 92, 230, 1)); }
+ (UIColor *)systemGrayColor { return rgb255(142, 142, 147, 1); }
+ (UIColor *)systemGray2Color { return dynamic(rgb255(174, 174, 178, 1), rgb255(99, 99, 102, 1)); }
+ (UIColor *)systemGray3Color { return dynamic(rgb255(199, 199, 204, 1), rgb255(72, 72, 74, 1)); }
+ (UIColor *)systemGray4Color { return dynamic(rgb255(209, 209, 214, 1), rgb255(58, 58, 60, 1)); }
+ (UIColor *)systemGray5Color { return dynamic(rgb255(229, 229, 234, 1), rgb255(44, 44, 46, 1)); }
+ (UIColor *)systemGray6Color { return dynamic(rgb255(242, 242, 247, 1), rgb255(28, 28, 30, 1)); }
+ (UIColor *)labelColor { return dynamic(rgb255(0, 0, 0, 1), rgb255(255, 255, 255, 1)); }
+ (UIColor *)secondaryLabelColor { return dynamic(rgb255(60, 60, 67, 0.6), rgb255(235, 235, 245, 0.6)); }
+ (UIColor *)tertiaryLabelColor { return dynamic(rgb255(60, 60, 67, 0.3), rgb255(235, 235, 245, 0.3)); }
+ (UIColor *)quaternaryLabelColor { return dynamic(rgb255(60, 60, 67, 0.18), rgb255(235, 235, 245, 0.16)); }
+ (UIColor *)linkColor { return dynamic(rgb255(0, 122, 255, 1), rgb255(9, 132, 255, 1)); }
+ (UIColor *)placeholderTextColor { return dynamic(rgb255(60, 60, 67, 0.3), rgb255(235, 235, 245, 0.3)); }
+ (UIColor *)separatorColor { return dynamic(rgb255(60, 60, 67, 0.29), rgb255(84, 84, 88, 0.6)); }
+ (UIColor *)opaqueSeparatorColor { return dynamic(rgb255(198, 198, 200, 1), rgb255(56, 56, 58, 1)); }
+ (UIColor *)systemBackgroundColor { return dynamic(rgb255(255, 255, 255, 1), rgb255(0, 0, 0, 1)); }
+ (UIColor *)secondarySystemBackgroundColor { return dynamic(rgb255(242, 242, 247, 1), rgb255(28, 28, 30, 1)); }
+ (UIColor *)tertiarySystemBackgroundColor { return dynamic(rgb255(255, 255, 255, 1), rgb255(44, 44, 46, 1)); }
+ (UIColor *)systemGroupedBackgroundColor { return dynamic(rgb255(242, 242, 247, 1), rgb255(0, 0, 0, 1)); }
+ (UIColor *)secondarySystemGroupedBackgroundColor { return dynamic(rgb255(255, 255, 255, 1), rgb255(28, 28, 30, 1)); }
+ (UIColor *)tertiarySystemGroupedBackgroundColor { return dynamic(rgb255(242, 242, 247, 1), rgb255(44, 44, 46, 1)); }
+ (UIColor *)systemFillColor { return dynamic(rgb255(120, 120, 128, 0.2), rgb255(120, 120, 128, 0.36)); }
+ (UIColor *)groupTableViewBackgroundColor { return rgb255(239, 239, 244, 1); }
+ (UIColor *)lightTextColor { return [self colorWithWhite:1 alpha:0.6]; }
+ (UIColor *)darkTextColor { return [self colorWithWhite:0 alpha:1]; }

- (void)set {
  [self setFill];
  [self setStroke];
}
- (void)setFill {
  CGContextSetFillColorWithColor(UIGraphicsGetCurrentContext(), self.CGColor);
}
- (void)setStroke {
  CGContextSetStrokeColorWithColor(UIGraphicsGetCurrentContext(), self.CGColor);
}
- (BOOL)getWhite:(CGFloat *)white alpha:(CGFloat *)alpha {
  if (_red != _green || _green != _blue) return NO;
  if (white) *white = _red;
  if (alpha) *alpha = _alpha;
  return YES;
}
- (BOOL)getRed:(CGFloat *)r green:(CGFloat *)g blue:(CGFloat *)b alpha:(CGFloat *)a {
  if (r) *r = _red;
  if (g) *g = _green;
  if (b) *b = _blue;
  if (a) *a = _alpha;
  return YES;
}
- (BOOL)getHue:(CGFloat *)hue saturation:(CGFloat *)sat brightness:(CGFloat *)bri alpha:(CGFloat *)alpha {
  CGFloat mx = fmax(_red, fmax(_green, _blue)), mn = fmin(_red, fmin(_green, _blue)), d = mx - mn, h = 0;
  if (d > 0) {
    if (mx == _red)
      h = fmod((_green - _blue) / d, 6);
    else if (mx == _green)
      h = (_blue - _red) / d + 2;
    else
      h = (_red - _green) / d + 4;
    h /= 6;
    if (h < 0) h += 1;
  }
  if (hue) *hue = h;
  if (sat) *sat = mx > 0 ? d / mx : 0;
  if (bri) *bri = mx;
  if (alpha) *alpha = _alpha;
  return YES;
}
- (UIColor *)colorWithAlphaComponent:(CGFloat)alpha {
  return [UIColor colorWithRed:_red green:_green blue:_blue alpha:alpha];
}
- (UIColor *)resolvedColorWithTraitCollection:(UITraitCollection *)traitCollection {
  return self;
}
- (CGColorRef)CGColor {
  if (!_cgColor) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGFloat c[4] = {_red, _green, _blue, _alpha};
    _cgColor = CGColorCreate(space, c);
    CGColorSpaceRelease(space);
  }
  return _cgColor;
}
- (BOOL)isEqual:(id)other {
  if (other == self) return YES;
  if (![other isKindOfClass:[UIColor class]]) return NO;
  CGFloat r, g, b, a;
  [other getRed:&r green:&g blue:&b alpha:&a];
  return fabs(r - _red) < 1e-6 && fabs(g - _green) < 1e-6 && fabs(b - _blue) < 1e-6 && fabs(a - _alpha) < 1e-6;
}
- (NSUInteger)hash {
  return (NSUInteger)(_red * 255) << 24 ^ (NSUInteger)(_green * 255) << 16 ^ (NSUInteger)(_blue * 255) << 8 ^
         (NSUInteger)(_alpha * 255);
}
- (NSString *)description {
  return [NSString stringWithFormat:@"UIExtendedSRGBColorSpace %g %g %g %g", _red, _green, _blue, _alpha];
}
@end

// Fonts.

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
+ (CGFloat)labelFontSize { return 17; }
+ (CGFloat)buttonFontSize { return 18; }
+ (CGFloat)smallSystemFontSize { return 12; }
+ (CGFloat)systemFontSize { return 14; }
- (UIFont *)fontWithSize:(CGFloat)fontSize {
  return [UIFont _simFontNamed:_fontName size:fontSize weight:_weight];
}
- (NSString *)familyName {
  return [_fontName hasPrefix:@".SFUI"] ? @".AppleSystemUIFont" : _fontName;
}
- (CGFloat)ascender { return round(_pointSize * 0.95 * 100) / 100; }
- (CGFloat)descender { return -round(_pointSize * 0.25 * 100) / 100; }
- (CGFloat)capHeight { return _pointSize * 0.7; }
- (CGFloat)xHeight { return _pointSize * 0.52; }
- (CGFloat)lineHeight { return ceil(_pointSize * 1.2); }
- (CGFloat)leading { return 0; }
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

CGSize SimUIKitTextSize(NSString *text, UIFont *font, CGFloat maxWidth, NSInteger maxLines) {
  if (!font) font = [UIFont systemFontOfSize:17];
  if (![text isKindOfClass:[NSString class]] || !text.length) return CGSizeZero;
  CGFloat charWidth = font.pointSize * 0.5, lineHeight = font.lineHeight, width = 0;
  NSInteger lines = 0;
  for (NSString *para in [text componentsSeparatedByString:@"\n"]) {
    CGFloat w = ceil(para.length * charWidth);
    NSInteger n = 1;
    if (maxWidth > 0 && w > maxWidth) {
      n = (NSInteger)ceil(w / maxWidth);
      w = maxWidth;
    }
    width = fmax(width, w);
    lines += n;
  }
  if (maxLines > 0 && lines > maxLines) lines = maxLines;
  return CGSizeMake(width, lines * lineHeight);
}

@implementation NSString (UIStringDrawing)
- (CGSize)sizeWithAttributes:(NSDictionary *)attrs {
  return SimUIKitTextSize(self, [attrs objectForKey:NSFontAttributeName], 0, 0);
}
- (CGRect)boundingRectWithSize:(CGSize)size options:(NSInteger)options attributes:(NSDictionary *)attributes
                       context:(id)context {
  CGSize s = SimUIKitTextSize(self, [attributes objectForKey:NSFontAttributeName], size.width, 0);
  return CGRectMake(0, 0, s.width, s.height);
}
- (void)drawAtPoint:(CGPoint)point withAttributes:(NSDictionary *)attrs {
  SimCGContextRecord(UIGraphicsGetCurrentContext(),
                     [NSString stringWithFormat:@"drawText \"%@\" at %@", self, NSStringFromCGPoint(point)]);
}
- (void)drawInRect:(CGRect)rect withAttributes:(NSDictionary *)attrs {
  SimCGContextRecord(UIGraphicsGetCurrentContext(),
                     [NSString stringWithFormat:@"drawText \"%@\" in %@", self, NSStringFromCGRect(rect)]);
}
@end

// Images.

@implementation UIImage
@synthesize CGImage = _CGImage;
@synthesize scale = _scale;
@synthesize imageOrientation = _imageOrientation;
@synthesize renderingMode = _renderingMode;
@synthesize capInsets = _capInsets;

static CGSize pngPixelSize(NSData *data, BOOL *ok) {
  const unsigned char *b = (const unsigned char *)[data bytes];
  *ok = NO;
  if (data.length >= 24 && b[0] == 0x89 && b[1] == 'P' && b[2] == 'N' && b[3] == 'G') {
    unsigned w = (b[16] << 24) | (b[17] << 16) | (b[18] << 8) | b[19];
    unsigned h = (b[20] << 24) | (b[21] << 16) | (b[22] << 8) | b[23];
    *ok = YES;
    return CGSizeMake(w, h);
  }
  return CGSizeZero;
}

static CGFloat scaleFromFileName(NSString *path) {
  NSString *base = [[path lastPathComponent] stringByDeletingPathExtension];
  if ([base hasSuffix:@"@3x"]) return 3;
  if ([base hasSuffix:@"@2x"]) return 2;
  return 1;
}

- (instancetype)_simInitWithCGImage:(CGImageRef)image scale:(CGFloat)scale {
  if (!image) {
    [self release];
    return nil;
  }
  if ((self = [super init])) {
    _CGImage = CGImageRetain(image);
    _scale = scale > 0 ? scale : 1;
  }
  return self;
}
- (instancetype)_simInitWithData:(NSData *)data scale:(CGFloat)scale description:(NSString *)description {
  BOOL ok;
  CGSize px = pngPixelSize(data, &ok);
  if (!data.length) {
    [self release];
    return nil;
  }
  if (!ok) px = CGSizeMake(1, 1);  // not a PNG: some other bitmap the stand-in cannot measure
  CGImageRef image = SimCGImageCreate((size_t)px.width, (size_t)px.height, description, nil);
  self = [self _simInitWithCGImage:image scale:scale];
  CGImageRelease(image);
  return self;
}
- (instancetype)initWithContentsOfFile:(NSString *)path {
  NSData *data = [path isKindOfClass:[NSString class]] ? [NSData dataWithContentsOfFile:path] : nil;
  return [self _simInitWithData:data scale:scaleFromFileName(path) description:[path lastPathComponent]];
}
- (instancetype)initWithData:(NSData *)data {
  return [self initWithData:data scale:1];
}
- (instancetype)initWithData:(NSData *)data scale:(CGFloat)scale {
  return [self _simInitWithData:data scale:scale description:@"data"];
}
- (instancetype)initWithCGImage:(CGImageRef)cgImage {
  return [self _simInitWithCGImage:cgImage scale:1];
}
- (instancetype)initWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)o {
  if ((self = [self _simInitWithCGImage:cgImage scale:scale])) _imageOrientation = o;
  return self;
}
- (void)dealloc {
  CGImageRelease(_CGImage);
  [super dealloc];
}
+ (UIImage *)imageWithContentsOfFile:(NSString *)path {
  return [[[self alloc] initWithContentsOfFile:path] autorelease];
}
+ (UIImage *)imageWithData:(NSData *)data {
  return [[[self alloc] initWithData:data] autorelease];
}
+ (UIImage *)imageWithData:(NSData *)data scale:(CGFloat)scale {
  return [[[self alloc] initWithData:data scale:scale] autorelease];
}
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage {
  return [[[self alloc] initWithCGImage:cgImage] autorelease];
}
+ (UIImage *)imageWithCGImage:(CGImageRef)cgImage scale:(CGFloat)scale orientation:(UIImageOrientation)o {
  return [[[self alloc] initWithCGImage:cgImage scale:scale orientation:o] autorelease];
}
+ (UIImage *)imageNamed:(NSString *)name {
  return [self imageNamed:name inBundle:[NSBundle mainBundle] compatibleWithTraitCollection:nil];
}
// Private on iOS since long before the public three-argument form; the same lookup.
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle {
  return [self imageNamed:name inBundle:bundle compatibleWithTraitCollection:nil];
}
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle
    compatibleWithTraitCollection:(UITraitCollection *)traitCollection {
  if (![name isKindOfClass:[NSString class]] || !name.length) return nil;
  if (!bundle) bundle = [NSBundle mainBundle];
  NSString *dir = [bundle resourcePath];
  NSString *root = [bundle bundlePath];
  NSString *ext = [name pathExtension];
  NSString *base = ext.length ? [name stringByDeletingPathExtension] : name;
  if (!ext.length) ext = @"png";
  int screen = (int)SimUIKitScreenScale();
  NSMutableArray *candidates = [NSMutableArray array];
  [candidates addObject:[NSString stringWithFormat:@"%@@%dx.%@", base, screen, ext]];
  for (int s = 3; s >= 2; --s)
    if (s != screen) [candidates addObject:[NSString stringWithFormat:@"%@@%dx.%@", base, s, ext]];
  [candidates addObject:[NSString stringWithFormat:@"%@.%@", base, ext]];
  NSFileManager *fm = [NSFileManager defaultManager];
  for (NSString *file in candidates) {
    for (NSString *folder in [NSArray arrayWithObjects:dir ? dir : @"", root ? root : @"", nil]) {
      if (!folder.length) continue;
      NSString *path = [folder stringByAppendingPathComponent:file];
      if ([fm fileExistsAtPath:path]) {
        UIImage *image = [self imageWithContentsOfFile:path];
        if (image) return image;
      }
    }
  }
  return nil;
}

- (CGSize)size {
  CGFloat s = _scale > 0 ? _scale : 1;
  CGSize px = CGSizeMake(CGImageGetWidth(_CGImage) / s, CGImageGetHeight(_CGImage) / s);
  if (_imageOrientation == UIImageOrientationLeft || _imageOrientation == UIImageOrientationRight)
    return CGSizeMake(px.height, px.width);
  return px;
}
- (UIImage *)_simCopy {
  UIImage *copy = [[[UIImage alloc] initWithCGImage:_CGImage scale:_scale orientation:_imageOrientation] autorelease];
  copy->_renderingMode = _renderingMode;
  copy->_capInsets = _capInsets;
  return copy;
}
- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)renderingMode {
  UIImage *copy = [self _simCopy];
  copy->_renderingMode = renderingMode;
  return copy;
}
- (UIImage *)imageWithTintColor:(UIColor *)color {
  return [self imageWithRenderingMode:UIImageRenderingModeAlwaysOriginal];
}
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets {
  UIImage *copy = [self _simCopy];
  copy->_capInsets = capInsets;
  return copy;
}
- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)capInsets resizingMode:(UIImageResizingMode)resizingMode {
  return [self resizableImageWithCapInsets:capInsets];
}
- (UIImage *)stretchableImageWithLeftCapWidth:(NSInteger)l topCapHeight:(NSInteger)t {
  return [self resizableImageWithCapInsets:UIEdgeInsetsMake(t, l, t, l)];
}
- (void)drawAtPoint:(CGPoint)point {
  CGSize s = self.size;
  [self drawInRect:CGRectMake(point.x, point.y, s.width, s.height)];
}
- (void)drawInRect:(CGRect)rect {
  CGContextDrawImage(UIGraphicsGetCurrentContext(), rect, _CGImage);
}
- (void)drawInRect:(CGRect)rect blendMode:(CGBlendMode)blendMode alpha:(CGFloat)alpha {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSaveGState(c);
  CGContextSetBlendMode(c, blendMode);
  CGContextSetAlpha(c, alpha);
  CGContextDrawImage(c, rect, _CGImage);
  CGContextRestoreGState(c);
}
- (NSString *)_simDescription {
  return SimCGImageDescription(_CGImage);
}
- (NSArray *)_simDrawOperations {
  return SimCGImageOperations(_CGImage);
}
- (NSString *)description {
  CGSize s = self.size;
  return [NSString stringWithFormat:@"<UIImage %@ {%g, %g} @%gx>", [self _simDescription], s.width, s.height, _scale];
}

static CGFloat iconPoints(int format) {
  switch (format) {
    case 0: return 29;
    case 1: return 40;
    case 2: return 60;
    default: return 60;
  }
}
+ (UIImage *)_simIconNamed:(NSString *)what format:(int)format scale:(CGFloat)scale {
  if (scale <= 0) scale = SimUIKitScreenScale();
  size_t px = (size_t)(iconPoints(format) * scale);
  CGImageRef image = SimCGImageCreate(px, px, what, nil);
  UIImage *result = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return result;
}
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format scale:(CGFloat)scale {
  if (![bundleIdentifier isKindOfClass:[NSString class]] || !bundleIdentifier.length) return nil;
  return [self _simIconNamed:[@"appicon:" stringByAppendingString:bundleIdentifier] format:format scale:scale];
}
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format {
  if (![bundleIdentifier isKindOfClass:[NSString class]] || !bundleIdentifier.length)
    return [self _simIconNamed:@"appicon:generic" format:format scale:0];
  return [self _applicationIconImageForBundleIdentifier:bundleIdentifier format:format scale:0];
}
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed scale:(CGFloat)scale {
  NSString *what = [NSString stringWithFormat:@"icon(%@)", [self _simDescription]];
  return [UIImage _simIconNamed:what format:format scale:scale];
}
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed {
  return [self _applicationIconImageForFormat:format precomposed:precomposed scale:0];
}
@end

NSData *UIImagePNGRepresentation(UIImage *image) {
  if (!image) return nil;
  unsigned char header[24] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 13, 'I', 'H', 'D', 'R'};
  size_t w = CGImageGetWidth(image.CGImage), h = CGImageGetHeight(image.CGImage);
  for (int i = 0; i < 4; ++i) {
    header[16 + i] = (unsigned char)(w >> (24 - 8 * i));
    header[20 + i] = (unsigned char)(h >> (24 - 8 * i));
  }
  return [NSData dataWithBytes:header length:sizeof header];
}
NSData *UIImageJPEGRepresentation(UIImage *image, CGFloat quality) { return UIImagePNGRepresentation(image); }

// Image contexts.

@interface _SimContextStack : NSObject {
  NSMutableArray *_contexts;
  NSMutableArray *_imageContexts;
}
@property(nonatomic, readonly) NSMutableArray *contexts;
@property(nonatomic, readonly) NSMutableArray *imageContexts;
@end
@implementation _SimContextStack
@synthesize contexts = _contexts;
@synthesize imageContexts = _imageContexts;
- (instancetype)init {
  if ((self = [super init])) {
    _contexts = [[NSMutableArray alloc] init];
    _imageContexts = [[NSMutableArray alloc] init];
  }
  return self;
}
@end

static _SimContextStack *contextStack(void) {
  static _SimContextStack *stack;
  if (!stack) stack = [[_SimContextStack alloc] init];
  return stack;
}

CGContextRef UIGraphicsGetCurrentContext(void) { return (CGContextRef)[contextStack().contexts lastObject]; }
void UIGraphicsPushContext(CGContextRef context) {
  if (context) [contextStack().contexts addObject:(id)context];
}
void UIGraphicsPopContext(void) {
  if (contextStack().contexts.count) [contextStack().contexts removeLastObject];
}
void UIRectFill(CGRect rect) { CGContextFillRect(UIGraphicsGetCurrentContext(), rect); }
void UIRectFillUsingBlendMode(CGRect rect, CGBlendMode blendMode) {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSaveGState(c);
  CGContextSetBlendMode(c, blendMode);
  CGContextFillRect(c, rect);
  CGContextRestoreGState(c);
}
void UIRectFrame(CGRect rect) { CGContextStrokeRect(UIGraphicsGetCurrentContext(), rect); }
void UIRectClip(CGRect rect) { CGContextClipToRect(UIGraphicsGetCurrentContext(), rect); }
void UIGraphicsBeginImageContext(CGSize size) { UIGraphicsBeginImageContextWithOptions(size, NO, 1); }
void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale) {
  if (scale <= 0) scale = SimUIKitScreenScale();
  CGContextRef c = SimCGContextCreate(size, scale);
  SimCGContextRecord(c, [NSString stringWithFormat:@"begin %@ scale %g%@", NSStringFromCGSize(size), scale,
                                                   opaque ? @" opaque" : @""]);
  [contextStack().imageContexts addObject:(id)c];
  UIGraphicsPushContext(c);
  CGContextRelease(c);
}
UIImage *UIGraphicsGetImageFromCurrentImageContext(void) {
  id c = [contextStack().imageContexts lastObject];
  if (!c || [contextStack().contexts lastObject] != c) return nil;
  NSArray *ops = SimCGContextOperations((CGContextRef)c);
  NSString *first = ops.count ? [ops objectAtIndex:0] : @"";
  CGSize size = CGSizeZero;
  CGFloat scale = 1;
  // The context's size and scale are on its first line.
  NSScanner *scanner = [NSScanner scannerWithString:first];
  double w = 0, h = 0, s = 1;
  [scanner scanString:@"begin {" intoString:NULL];
  [scanner scanDouble:&w];
  [scanner scanString:@"," intoString:NULL];
  [scanner scanDouble:&h];
  [scanner scanString:@"} scale" intoString:NULL];
  [scanner scanDouble:&s];
  size = CGSizeMake(w, h);
  scale = s > 0 ? s : 1;
  CGImageRef image = SimCGImageCreate((size_t)llround(size.width * scale), (size_t)llround(size.height * scale),
                                      @"drawn", ops);
  UIImage *result = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return result;
}
void UIGraphicsEndImageContext(void) {
  id c = [contextStack().imageContexts lastObject];
  if (!c) return;
  [[c retain] autorelease];
  [contextStack().imageContexts removeLastObject];
  NSUInteger i = [contextStack().contexts indexOfObjectIdenticalTo:c];
  if (i != NSNotFound) [contextStack().contexts removeObjectAtIndex:i];
}

// Bezier paths.

@implementation UIBezierPath
@synthesize lineWidth = _lineWidth;
@synthesize lineCapStyle = _lineCapStyle;
@synthesize lineJoinStyle = _lineJoinStyle;
- (instancetype)init {
  if ((self = [super init])) {
    _path = CGPathCreateMutable();
    _lineWidth = 1;
  }
  return self;
}
- (void)dealloc {
  CGPathRelease(_path);
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  UIBezierPath *p = [[UIBezierPath allocWithZone:zone] init];
  p.CGPath = _path;
  p.lineWidth = _lineWidth;
  return p;
}
+ (instancetype)bezierPath {
  return [[[self alloc] init] autorelease];
}
+ (instancetype)bezierPathWithRect:(CGRect)rect {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRect(p->_path, NULL, rect);
  return p;
}
+ (instancetype)bezierPathWithOvalInRect:(CGRect)rect {
  UIBezierPath *p = [self bezierPath];
  CGPathAddEllipseInRect(p->_path, NULL, rect);
  return p;
}
+ (instancetype)bezierPathWithRoundedRect:(CGRect)rect cornerRadius:(CGFloat)r {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRoundedRect(p->_path, NULL, rect, r, r);
  return p;
}
+ (instancetype)bezierPathWithRoundedRect:(CGRect)rect byRoundingCorners:(UIRectCorner)corners cornerRadii:(CGSize)radii {
  UIBezierPath *p = [self bezierPath];
  CGPathAddRoundedRect(p->_path, NULL, rect, radii.width, radii.height);
  return p;
}
+ (instancetype)bezierPathWithArcCenter:(CGPoint)c radius:(CGFloat)r startAngle:(CGFloat)s endAngle:(CGFloat)e
                              clockwise:(BOOL)cw {
  UIBezierPath *p = [self bezierPath];
  [p addArcWithCenter:c radius:r startAngle:s endAngle:e clockwise:cw];
  return p;
}
+ (instancetype)bezierPathWithCGPath:(CGPathRef)path {
  UIBezierPath *p = [self bezierPath];
  p.CGPath = path;
  return p;
}
- (CGPathRef)CGPath {
  return _path;
}
- (void)setCGPath:(CGPathRef)path {
  CGMutablePathRef copy = path ? CGPathCreateMutableCopy(path) : CGPathCreateMutable();
  CGPathRelease(_path);
  _path = copy;
}
- (CGPoint)currentPoint {
  return CGPathGetCurrentPoint(_path);
}
- (CGRect)bounds {
  return CGPathGetBoundingBox(_path);
}
- (BOOL)isEmpty {
  return CGPathIsEmpty(_path);
}
- (void)moveToPoint:(CGPoint)p {
  CGPathMoveToPoint(_path, NULL, p.x, p.y);
}
- (void)addLineToPoint:(CGPoint)p {
  CGPathAddLineToPoint(_path, NULL, p.x, p.y);
}
- (void)addCurveToPoint:(CGPoint)e controlPoint1:(CGPoint)c1 controlPoint2:(CGPoint)c2 {
  CGPathAddCurveToPoint(_path, NULL, c1.x, c1.y, c2.x, c2.y, e.x, e.y);
}
- (void)addQuadCurveToPoint:(CGPoint)e controlPoint:(CGPoint)c {
  CGPathAddQuadCurveToPoint(_path, NULL, c.x, c.y, e.x, e.y);
}
- (void)addArcWithCenter:(CGPoint)c radius:(CGFloat)r startAngle:(CGFloat)s endAngle:(CGFloat)e clockwise:(BOOL)cw {
  // UIKit's clockwise is CoreGraphics' counter-clockwise in a flipped space.
  CGPathAddArc(_path, NULL, c.x, c.y, r, s, e, !cw);
}
- (void)closePath {
  CGPathCloseSubpath(_path);
}
- (void)removeAllPoints {
  CGPathRelease(_path);
  _path = CGPathCreateMutable();
}
- (void)appendPath:(UIBezierPath *)other {
  CGPathAddPath(_path, NULL, other.CGPath);
}
- (BOOL)containsPoint:(CGPoint)point {
  return CGPathContainsPoint(_path, NULL, point, false);
}
- (void)fill {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextAddPath(c, _path);
  CGContextFillPath(c);
}
- (void)stroke {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextSetLineWidth(c, _lineWidth);
  CGContextAddPath(c, _path);
  CGContextStrokePath(c);
}
- (void)addClip {
  CGContextRef c = UIGraphicsGetCurrentContext();
  CGContextAddPath(c, _path);
  CGContextClip(c);
}
@end

// Device, screen and traits.

@implementation UIDevice
+ (UIDevice *)currentDevice {
  static UIDevice *device;
  if (!device) device = [[UIDevice alloc] init];
  return device;
}
- (NSString *)_simProfileString:(NSString *)key fallback:(NSString *)fallback {
  id v = [SimUIKitProfile() objectForKey:key];
  return [v isKindOfClass:[NSString class]] && [v length] ? v : fallback;
}
- (UIUserInterfaceIdiom)userInterfaceIdiom {
  id v = [SimUIKitProfile() objectForKey:@"idiom"];
  if ([v isKindOfClass:[NSString class]]) return [v isEqualToString:@"pad"] ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
  return [v respondsToSelector:@selector(integerValue)] ? (UIUserInterfaceIdiom)[v integerValue] : UIUserInterfaceIdiomPhone;
}
- (NSString *)name {
  return [self _simProfileString:@"deviceName" fallback:@"iPhone"];
}
- (NSString *)model {
  return self.userInterfaceIdiom == UIUserInterfaceIdiomPad ? @"iPad" : @"iPhone";
}
- (NSString *)localizedModel {
  return self.model;
}
- (NSString *)systemName {
  return @"iOS";
}
- (NSString *)systemVersion {
  return [self _simProfileString:@"systemVersion" fallback:@"16.0"];
}
- (UIDeviceOrientation)orientation {
  return UIDeviceOrientationPortrait;
}
- (NSUUID *)identifierForVendor {
  return [[[NSUUID alloc] initWithUUIDString:@"6F1C2A34-5B7D-4E8F-9A0B-1C2D3E4F5A6B"] autorelease];
}
- (BOOL)isMultitaskingSupported {
  return YES;
}
- (BOOL)isBatteryMonitoringEnabled {
  return NO;
}
- (void)setBatteryMonitoringEnabled:(BOOL)enabled {
}
- (float)batteryLevel {
  return -1;
}
- (void)playInputClick {
}
- (void)_playSystemSound:(unsigned int)soundID {
  [SimUIKitRecords().sounds addObject:[NSNumber numberWithUnsignedInt:soundID]];
}
@end

@implementation UITraitCollection
@synthesize userInterfaceStyle = _userInterfaceStyle;
@synthesize userInterfaceIdiom = _userInterfaceIdiom;
@synthesize displayScale = _displayScale;
@synthesize horizontalSizeClass = _horizontalSizeClass;
@synthesize verticalSizeClass = _verticalSizeClass;
+ (UITraitCollection *)currentTraitCollection {
  UITraitCollection *t = [[[self alloc] init] autorelease];
  t->_userInterfaceStyle = SimUIKitDarkMode() ? UIUserInterfaceStyleDark : UIUserInterfaceStyleLight;
  t->_userInterfaceIdiom = [UIDevice currentDevice].userInterfaceIdiom;
  t->_displayScale = SimUIKitScreenScale();
  t->_horizontalSizeClass =
      t->_userInterfaceIdiom == UIUserInterfaceIdiomPad ? UIUserInterfaceSizeClassRegular : UIUserInterfaceSizeClassCompact;
  t->_verticalSizeClass = UIUserInterfaceSizeClassRegular;
  return t;
}
+ (UITraitCollection *)traitCollectionWithUserInterfaceStyle:(UIUserInterfaceStyle)style {
  UITraitCollection *t = [[[self alloc] init] autorelease];
  t->_userInterfaceStyle = style;
  t->_userInterfaceIdiom = UIUserInterfaceIdiomUnspecified;
  return t;
}
- (id)copyWithZone:(NSZone *)zone {
  return [self retain];
}
@end

@implementation UIScreen
+ (UIScreen *)mainScreen {
  static UIScreen *screen;
  if (!screen) screen = [[UIScreen alloc] init];
  return screen;
}
+ (NSArray *)screens {
  return [NSArray arrayWithObject:[self mainScreen]];
}
- (CGRect)bounds {
  return CGRectMake(0, 0, profileScreenValue(@"width", 390), profileScreenValue(@"height", 844));
}
- (CGFloat)scale {
  return SimUIKitScreenScale();
}
- (CGRect)nativeBounds {
  CGRect b = self.bounds;
  CGFloat s = self.scale;
  return CGRectMake(0, 0, b.size.width * s, b.size.height * s);
}
- (CGFloat)nativeScale {
  return self.scale;
}
- (CGFloat)brightness {
  return 0.5;
}
- (void)setBrightness:(CGFloat)brightness {
}
- (UITraitCollection *)traitCollection {
  return [UITraitCollection currentTraitCollection];
}
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection {
}
@end

// Pasteboard.

@implementation UIPasteboard
@synthesize name = _name;
@synthesize items = _items;
+ (UIPasteboard *)generalPasteboard {
  static UIPasteboard *board;
  if (!board) {
    board = [[UIPasteboard alloc] init];
    board->_name = [@"com.apple.UIKit.pboard.general" copy];
    board->_items = [[NSArray alloc] init];
  }
  return board;
}
+ (UIPasteboard *)pasteboardWithName:(NSString *)name create:(BOOL)create {
  static NSMutableDictionary *boards;
  if (!boards) boards = [[NSMutableDictionary alloc] init];
  UIPasteboard *b = [boards objectForKey:name];
  if (!b && create && name) {
    b = [[[UIPasteboard alloc] init] autorelease];
    b->_name = [name copy];
    b->_items = [[NSArray alloc] init];
    [boards setObject:b forKey:name];
  }
  return b;
}
- (void)dealloc {
  [_name release];
  [_items release];
  [super dealloc];
}
- (NSInteger)numberOfItems {
  return _items.count;
}
- (NSArray *)_simValuesOfClass:(Class)cls {
  NSMutableArray *out = [NSMutableArray array];
  for (NSDictionary *item in _items)
    for (id v in [item allValues])
      if ([v isKindOfClass:cls]) [out addObject:v];
  return out;
}
- (void)_simSetValues:(NSArray *)values type:(NSString *)type {
  NSMutableArray *items = [NSMutableArray array];
  for (id v in values) [items addObject:[NSDictionary dictionaryWithObject:v forKey:type]];
  self.items = items;
}
- (NSString *)string {
  return [[self _simValuesOfClass:[NSString class]] firstObject];
}
- (void)setString:(NSString *)string {
  [self _simSetValues:string ? [NSArray arrayWithObject:string] : [NSArray array] type:@"public.utf8-plain-text"];
}
- (NSArray *)strings {
  NSArray *s = [self _simValuesOfClass:[NSString class]];
  return s.count ? s : nil;
}
- (void)setStrings:(NSArray *)strings {
  [self _simSetValues:strings ? strings : [NSArray array] type:@"public.utf8-plain-text"];
}
- (NSURL *)URL {
  return [[self _simValuesOfClass:[NSURL class]] firstObject];
}
- (void)setURL:(NSURL *)URL {
  [self _simSetValues:URL ? [NSArray arrayWithObject:URL] : [NSArray array] type:@"public.url"];
}
- (UIImage *)image {
  return [[self _simValuesOfClass:[UIImage class]] firstObject];
}
- (void)setImage:(UIImage *)image {
  [self _simSetValues:image ? [NSArray arrayWithObject:image] : [NSArray array] type:@"public.png"];
}
- (BOOL)hasStrings {
  return [self _simValuesOfClass:[NSString class]].count > 0;
}
@end
