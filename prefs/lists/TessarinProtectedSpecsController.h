// The settings-pane page: the Settings app's own list, each pane a switch that
// protects it.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinProtectedSpecsController : TessarinProtectedListController
- (void)setPreferenceProtectEnabled:(id)value specifier:(PSSpecifier *)specifier;
- (id)getPreferenceProtectEnabledForSpecifier:(PSSpecifier *)specifier;
@end
