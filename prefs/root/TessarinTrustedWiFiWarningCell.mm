#import "root/TessarinTrustedWiFiWarningCell.h"
#import "core/Geometry.h"
#import "core/PreferenceStore.h"
#import "root/CellSeparator.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinTrustedWiFiWarningCell

- (void)layoutSubviews {
  [super layoutSubviews];
  [self setBackgroundColor:uiColor(views::warning_cell::kBackground)];
  clearSeparator(self);
  UILabel *label = [self textLabel];
  [label setTextAlignment:(NSTextAlignment)views::warning_cell::kAlignment];
  [label setBackgroundColor:[UIColor clearColor]];
  [label setTextColor:uiColor(views::warning_cell::kText)];
  [label setFont:[UIFont systemFontOfSize:views::warning_cell::kFontSize]];
  [label setNumberOfLines:views::warning_cell::kNumberOfLines];
  [label setFrame:cgRect(views::warning_cell::labelFrame([self frame].size.width, gracePeriodIsActive()))];
}

@end
