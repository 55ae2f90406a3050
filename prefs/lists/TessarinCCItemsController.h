// The Control Center page: the system's Control Center items (and add-on modules),
// storing the protected items' identifiers.
#pragma once
#import "lists/TessarinProtectedListController.h"

@interface TessarinCCItemsController : TessarinProtectedListController
// A switch row for an item, its icon rounded (owned by the caller).
- (PSSpecifier *)newSpecifierWithName:(NSString *)name andID:(NSString *)identifier andImage:(UIImage *)image;
// The image clipped to rounded corners (the generic application icon when none is given),
// tinted white while the connectivity glyph rows are made.
- (UIImage *)roundedImage:(UIImage *)image;
- (NSNumber *)getCCItemProtectEnabledForSpecifier:(PSSpecifier *)specifier;
- (void)setCCItemProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier;
@end
