#import "lists/TessarinProtectedListController.h"
#import "core/ProtectedListStore.h"

@implementation TessarinProtectedListController

#pragma mark - What a page says

- (const tessarin::PreferenceKey *)protectedList {
  return NULL;  // every page names its own
}

- (id)protectedItemForSpecifier:(PSSpecifier *)specifier {
  id identifier = [specifier propertyForKey:@"id"];
  return [identifier isKindOfClass:[NSString class]] ? identifier : nil;
}

- (void)specifier:(PSSpecifier *)specifier didSwitchProtection:(BOOL)on {
}

#pragma mark - Switches

- (NSNumber *)protectionOfSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier inList:[self protectedList]];
}

- (void)setProtection:(id)value ofSpecifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier inList:[self protectedList]];
}

- (NSNumber *)protectionOfSpecifier:(PSSpecifier *)specifier inList:(const tessarin::PreferenceKey *)list {
  return @(isProtectedItem([self protectedItemForSpecifier:specifier], list));
}

- (void)setProtection:(id)value ofSpecifier:(PSSpecifier *)specifier inList:(const tessarin::PreferenceKey *)list {
  const BOOL on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
  switchProtectedItem([self protectedItemForSpecifier:specifier], on, list);
  [self specifier:specifier didSwitchProtection:on];
}

@end
