#import "UIKitInternal.h"
#include <math.h>

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
    case 0:
      r = v;
      g = t;
      b = p;
      break;
    case 1:
      r = q;
      g = v;
      b = p;
      break;
    case 2:
      r = p;
      g = v;
      b = t;
      break;
    case 3:
      r = p;
      g = q;
      b = v;
      break;
    case 4:
      r = t;
      g = p;
      b = v;
      break;
    default:
      r = v;
      g = p;
      b = q;
      break;
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

#pragma mark - Named colours

static UIColor *rgb255(CGFloat r, CGFloat g, CGFloat b, CGFloat a) {
  return [UIColor colorWithRed:r / 255.0 green:g / 255.0 blue:b / 255.0 alpha:a];
}
static UIColor *dynamic(UIColor *light, UIColor *dark) { return SimUIKitDarkMode() ? dark : light; }

+ (UIColor *)blackColor {
  return [self colorWithWhite:0 alpha:1];
}
+ (UIColor *)darkGrayColor {
  return [self colorWithWhite:1.0 / 3 alpha:1];
}
+ (UIColor *)lightGrayColor {
  return [self colorWithWhite:2.0 / 3 alpha:1];
}
+ (UIColor *)whiteColor {
  return [self colorWithWhite:1 alpha:1];
}
+ (UIColor *)grayColor {
  return [self colorWithWhite:0.5 alpha:1];
}
+ (UIColor *)redColor {
  return [self colorWithRed:1 green:0 blue:0 alpha:1];
}
+ (UIColor *)greenColor {
  return [self colorWithRed:0 green:1 blue:0 alpha:1];
}
+ (UIColor *)blueColor {
  return [self colorWithRed:0 green:0 blue:1 alpha:1];
}
+ (UIColor *)cyanColor {
  return [self colorWithRed:0 green:1 blue:1 alpha:1];
}
+ (UIColor *)yellowColor {
  return [self colorWithRed:1 green:1 blue:0 alpha:1];
}
+ (UIColor *)magentaColor {
  return [self colorWithRed:1 green:0 blue:1 alpha:1];
}
+ (UIColor *)orangeColor {
  return [self colorWithRed:1 green:0.5 blue:0 alpha:1];
}
+ (UIColor *)purpleColor {
  return [self colorWithRed:0.5 green:0 blue:0.5 alpha:1];
}
+ (UIColor *)brownColor {
  return [self colorWithRed:0.6 green:0.4 blue:0.2 alpha:1];
}
+ (UIColor *)clearColor {
  return [self colorWithWhite:0 alpha:0];
}
+ (UIColor *)systemRedColor {
  return dynamic(rgb255(255, 59, 48, 1), rgb255(255, 69, 58, 1));
}
+ (UIColor *)systemGreenColor {
  return dynamic(rgb255(52, 199, 89, 1), rgb255(48, 209, 88, 1));
}
+ (UIColor *)systemBlueColor {
  return dynamic(rgb255(0, 122, 255, 1), rgb255(10, 132, 255, 1));
}
+ (UIColor *)systemOrangeColor {
  return dynamic(rgb255(255, 149, 0, 1), rgb255(255, 159, 10, 1));
}
+ (UIColor *)systemYellowColor {
  return dynamic(rgb255(255, 204, 0, 1), rgb255(255, 214, 10, 1));
}
+ (UIColor *)systemPinkColor {
  return dynamic(rgb255(255, 45, 85, 1), rgb255(255, 55, 95, 1));
}
+ (UIColor *)systemPurpleColor {
  return dynamic(rgb255(175, 82, 222, 1), rgb255(191, 90, 242, 1));
}
+ (UIColor *)systemTealColor {
  return dynamic(rgb255(90, 200, 250, 1), rgb255(100, 210, 255, 1));
}
+ (UIColor *)systemIndigoColor {
  return dynamic(rgb255(88, 86, 214, 1), rgb255(94, 92, 230, 1));
}
+ (UIColor *)systemGrayColor {
  return rgb255(142, 142, 147, 1);
}
+ (UIColor *)systemGray2Color {
  return dynamic(rgb255(174, 174, 178, 1), rgb255(99, 99, 102, 1));
}
+ (UIColor *)systemGray3Color {
  return dynamic(rgb255(199, 199, 204, 1), rgb255(72, 72, 74, 1));
}
+ (UIColor *)systemGray4Color {
  return dynamic(rgb255(209, 209, 214, 1), rgb255(58, 58, 60, 1));
}
+ (UIColor *)systemGray5Color {
  return dynamic(rgb255(229, 229, 234, 1), rgb255(44, 44, 46, 1));
}
+ (UIColor *)systemGray6Color {
  return dynamic(rgb255(242, 242, 247, 1), rgb255(28, 28, 30, 1));
}
+ (UIColor *)labelColor {
  return dynamic(rgb255(0, 0, 0, 1), rgb255(255, 255, 255, 1));
}
+ (UIColor *)secondaryLabelColor {
  return dynamic(rgb255(60, 60, 67, 0.6), rgb255(235, 235, 245, 0.6));
}
+ (UIColor *)tertiaryLabelColor {
  return dynamic(rgb255(60, 60, 67, 0.3), rgb255(235, 235, 245, 0.3));
}
+ (UIColor *)quaternaryLabelColor {
  return dynamic(rgb255(60, 60, 67, 0.18), rgb255(235, 235, 245, 0.16));
}
+ (UIColor *)linkColor {
  return dynamic(rgb255(0, 122, 255, 1), rgb255(9, 132, 255, 1));
}
+ (UIColor *)placeholderTextColor {
  return dynamic(rgb255(60, 60, 67, 0.3), rgb255(235, 235, 245, 0.3));
}
+ (UIColor *)separatorColor {
  return dynamic(rgb255(60, 60, 67, 0.29), rgb255(84, 84, 88, 0.6));
}
+ (UIColor *)opaqueSeparatorColor {
  return dynamic(rgb255(198, 198, 200, 1), rgb255(56, 56, 58, 1));
}
+ (UIColor *)systemBackgroundColor {
  return dynamic(rgb255(255, 255, 255, 1), rgb255(0, 0, 0, 1));
}
+ (UIColor *)secondarySystemBackgroundColor {
  return dynamic(rgb255(242, 242, 247, 1), rgb255(28, 28, 30, 1));
}
+ (UIColor *)tertiarySystemBackgroundColor {
  return dynamic(rgb255(255, 255, 255, 1), rgb255(44, 44, 46, 1));
}
+ (UIColor *)systemGroupedBackgroundColor {
  return dynamic(rgb255(242, 242, 247, 1), rgb255(0, 0, 0, 1));
}
+ (UIColor *)secondarySystemGroupedBackgroundColor {
  return dynamic(rgb255(255, 255, 255, 1), rgb255(28, 28, 30, 1));
}
+ (UIColor *)tertiarySystemGroupedBackgroundColor {
  return dynamic(rgb255(242, 242, 247, 1), rgb255(44, 44, 46, 1));
}
+ (UIColor *)systemFillColor {
  return dynamic(rgb255(120, 120, 128, 0.2), rgb255(120, 120, 128, 0.36));
}
+ (UIColor *)groupTableViewBackgroundColor {
  return rgb255(239, 239, 244, 1);
}
+ (UIColor *)lightTextColor {
  return [self colorWithWhite:1 alpha:0.6];
}
+ (UIColor *)darkTextColor {
  return [self colorWithWhite:0 alpha:1];
}

#pragma mark - Drawing and components

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
