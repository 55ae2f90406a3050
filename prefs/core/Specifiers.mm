#import "core/Specifiers.h"

PSSpecifier *footerGroup(NSString *footer) {
  if ([PSSpecifier respondsToSelector:@selector(groupSpecifierWithHeader:footer:)])
    return [PSSpecifier groupSpecifierWithHeader:nil footer:footer];
  PSSpecifier *group = [PSSpecifier groupSpecifierWithName:nil];
  [group setProperty:footer forKey:@"footerText"];
  return group;
}
