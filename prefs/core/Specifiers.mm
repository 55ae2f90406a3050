#import "core/Specifiers.h"
#import "core/BundleLookup.h"

PSSpecifier *footerGroup(NSString *footer) {
  if ([PSSpecifier respondsToSelector:@selector(groupSpecifierWithHeader:footer:)])
    return [PSSpecifier groupSpecifierWithHeader:nil footer:footer];
  PSSpecifier *group = [PSSpecifier groupSpecifierWithName:nil];
  [group setProperty:footer forKey:@"footerText"];
  return group;
}

PSSpecifier *switchRow(NSString *name, id target, SEL setter, SEL getter) {
  return [PSSpecifier preferenceSpecifierNamed:name
                                        target:target
                                           set:setter
                                           get:getter
                                        detail:Nil
                                          cell:PSSwitchCell
                                          edit:Nil];
}

void localizeSubtitle(PSSpecifier *row, NSString *plistName) {
  id subtitle = [row propertyForKey:@"cellSubtitleText"];
  NSBundle *bundle = tessarinBundle();
  if (![subtitle isKindOfClass:[NSString class]] || bundle == nil) return;
  [row setProperty:[bundle localizedStringForKey:subtitle value:subtitle table:plistName] forKey:@"cellSubtitleText"];
}
