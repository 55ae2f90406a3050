// The applications page: one switch per installed application SpringBoard offers,
// storing the protected applications' bundle identifiers.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinApplicationsController : PSListController
- (NSNumber *)getProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
@end

// The same rows, storing the applications whose notifications are protected.
@interface TessarinAppNotificationsController : TessarinApplicationsController
@end
