#import "root/TessarinHightlightView.h"
#import "core/Geometry.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinHightlightView

+ (Class)layerClass {
  return [CAShapeLayer class];
}

- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    CAShapeLayer *layer = (CAShapeLayer *)[self layer];
    [layer setStrokeColor:[uiColor(views::highlight_view::kStroke) CGColor]];
    [layer setFillColor:NULL];
    NSMutableArray *dashes = [NSMutableArray array];
    for (double length : views::highlight_view::kDashPattern) [dashes addObject:@(length)];
    [layer setLineDashPattern:dashes];
  }
  return self;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  CAShapeLayer *layer = (CAShapeLayer *)[self layer];
  CGRect bounds = [self bounds];
  CGPathRef path = CGPathCreateWithRect(bounds, NULL);
  [layer setPath:path];
  CGPathRelease(path);
  [layer setFrame:bounds];
}

@end
