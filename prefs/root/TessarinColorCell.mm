#import "root/TessarinColorCell.h"
#import "core/Geometry.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinColorCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier])) {
    id control = [self control];
    if ([control isKindOfClass:[UISwitch class]])
      [(UISwitch *)control setOnTintColor:uiColor(views::color_cell::kSwitchOnTint)];
  }
  return self;
}

@end
