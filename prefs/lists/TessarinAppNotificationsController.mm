#import "lists/TessarinAppNotificationsController.h"

@implementation TessarinAppNotificationsController

- (NSNumber *)getProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier inList:&tessarin::key::kProtectedNotifications];
}

- (void)setProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier inList:&tessarin::key::kProtectedNotifications];
}

@end
