#import "UIKitInternal.h"
#include <CoreGraphics/CoreGraphicsSimulation.h>

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
