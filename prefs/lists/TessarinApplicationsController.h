// The applications page: one switch per installed application SpringBoard offers,
// storing the protected applications' bundle identifiers.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinApplicationsController : TessarinProtectedListController
- (NSNumber *)getProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
@end
