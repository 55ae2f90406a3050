// Geometry constants and strings.
#import "UIKitInternal.h"

const UIEdgeInsets UIEdgeInsetsZero = {0, 0, 0, 0};
const UIOffset UIOffsetZero = {0, 0};

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
