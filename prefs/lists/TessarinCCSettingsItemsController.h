// The CCSettings page: the toggles of the CCSettings extension in its own order, storing
// the protected toggles' identifiers.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinCCSettingsItemsController : TessarinProtectedListController
- (NSNumber *)getCCSettingsItemProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setCCSettingsItemProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
@end
