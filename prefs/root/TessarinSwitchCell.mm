#import "root/TessarinSwitchCell.h"
#import "core/Geometry.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinSwitchCell

- (void)setValue:(id)value {
  [super setValue:value];
  BOOL on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
  UIImageView *icon = [self respondsToSelector:@selector(iconImageView)] ? [self iconImageView] : [self imageView];
  [icon setAlpha:views::switch_cell::iconAlpha(on)];
}

@end
