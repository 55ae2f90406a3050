// The toggle page: the toggle library's switches, each a switch that protects it.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinFlipswitchController : TessarinProtectedListController
- (void)setFlipswitchProtectEnabled:(id)value specifier:(PSSpecifier *)specifier;
- (id)getFlipswitchProtectEnabledForSpecifier:(PSSpecifier *)specifier;
@end
