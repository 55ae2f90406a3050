#import "core/Specifiers.h"

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
