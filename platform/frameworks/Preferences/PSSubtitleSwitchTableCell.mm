#import <Preferences/PreferencesSimulation.h>

@implementation PSSubtitleSwitchTableCell
+ (UITableViewCellStyle)cellStyle {
  return UITableViewCellStyleSubtitle;
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  return [super initWithStyle:UITableViewCellStyleSubtitle reuseIdentifier:reuseIdentifier specifier:specifier];
}
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
  [super refreshCellContentsWithSpecifier:specifier];
  id subtitle = [_specifier propertyForKey:@"cellSubtitleText"];
  self.detailTextLabel.text = [subtitle isKindOfClass:[NSString class]] ? subtitle : nil;
}
@end
