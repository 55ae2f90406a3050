// The folders page: one switch per home-screen folder SpringBoard reports, with a
// picture of its content, storing the protected folders' names.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinFoldersController : TessarinProtectedListController
- (NSNumber *)getFolderProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setFolderProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
// The folder picture: the content's application icons on a rounded grey-blue square.
- (UIImage *)createIconImageWithIdentifiers:(NSArray *)identifiers;
@end
