#import "root/TessarinCreditsCell.h"
#import "core/Geometry.h"
#import "root/CellSeparator.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinCreditsCell

- (void)layoutSubviews {
  [super layoutSubviews];
  [self setBackgroundColor:uiColor(views::credits_cell::kBackground)];
  clearSeparator(self);
  UILabel *label = [self textLabel];
  [label setBackgroundColor:[UIColor clearColor]];
  [label setTextColor:uiColor(views::credits_cell::kText)];
  [label setFont:[UIFont systemFontOfSize:views::credits_cell::kFontSize]];
}

@end
