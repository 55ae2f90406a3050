#import "UIKitInternal.h"
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

// Draws the string into the current context's pixels with its attributes' font, colour and
// alignment; `width` <= 0 draws one line from `origin`.
static void drawString(NSString *text, NSDictionary *attrs, CGPoint origin, CGFloat width) {
  cairo_t *cr = SimCGContextCairo(UIGraphicsGetCurrentContext());
  if (cr == NULL || [text length] == 0) return;
  UIFont *font = [attrs objectForKey:NSFontAttributeName];
  if (![font isKindOfClass:[UIFont class]]) font = [UIFont systemFontOfSize:12];
  UIColor *colour = [attrs objectForKey:NSForegroundColorAttributeName];
  CGFloat r = 0, g = 0, b = 0, a = 1;
  if ([colour isKindOfClass:[UIColor class]]) [colour getRed:&r green:&g blue:&b alpha:&a];
  NSParagraphStyle *paragraph = [attrs objectForKey:NSParagraphStyleAttributeName];
  int alignment = [paragraph isKindOfClass:[NSParagraphStyle class]] ? (int)[paragraph alignment] : SimTextAlignNatural;
  PangoLayout *layout =
      SimTextCreateLayout(text, SimTextFontNamed([font fontName], [font pointSize]), width, 0, alignment, NO);
  SimTextDrawLayout(cr, layout, origin, r, g, b, a);
  g_object_unref(layout);
}

@implementation NSString (UIStringDrawing)
- (CGSize)sizeWithAttributes:(NSDictionary *)attrs {
  return SimUIKitTextSize(self, [attrs objectForKey:NSFontAttributeName], 0, 0);
}
- (CGRect)boundingRectWithSize:(CGSize)size
                       options:(NSInteger)options
                    attributes:(NSDictionary *)attributes
                       context:(id)context {
  CGSize s = SimUIKitTextSize(self, [attributes objectForKey:NSFontAttributeName], size.width, 0);
  return CGRectMake(0, 0, s.width, s.height);
}
- (void)drawAtPoint:(CGPoint)point withAttributes:(NSDictionary *)attrs {
  drawString(self, attrs, point, 0);
  SimCGContextRecord(UIGraphicsGetCurrentContext(),
                     [NSString stringWithFormat:@"drawText \"%@\" at %@", self, NSStringFromCGPoint(point)]);
}
- (void)drawInRect:(CGRect)rect withAttributes:(NSDictionary *)attrs {
  drawString(self, attrs, rect.origin, rect.size.width);
  SimCGContextRecord(UIGraphicsGetCurrentContext(),
                     [NSString stringWithFormat:@"drawText \"%@\" in %@", self, NSStringFromCGRect(rect)]);
}
@end
