// A link cell with a subtitle line.
#import <PreferencesUI/PSUIAppleIDAccountDetailsLinkCell.h>
#import <Preferences/PSSpecifier.h>

@implementation PSUIAppleIDAccountDetailsLinkCell
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
  id subtitle = [[self specifier] propertyForKey:@"cellSubtitleText"];
  self.detailTextLabel.text = [subtitle isKindOfClass:[NSString class]] ? subtitle : nil;
}
@end
