// The settings-pane page: the Settings app's own list, each pane a switch that
// protects it.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinProtectedSpecsController : PSListController
- (void)setPreferenceProtectEnabled:(id)value specifier:(PSSpecifier *)specifier;
- (id)getPreferenceProtectEnabledForSpecifier:(PSSpecifier *)specifier;
@end
