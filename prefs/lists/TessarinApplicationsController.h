// The applications page: one switch per installed application SpringBoard offers,
// storing the protected applications' bundle identifiers; searchable, with an index.
#pragma once
#import "lists/TessarinSearchableListController.h"

@interface TessarinApplicationsController : TessarinSearchableListController
- (NSNumber *)getProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
@end
