// What the protected-list pages share: a page of switch rows over one list of the
// product's domain, each row standing for an item that its switch adds to the list or
// takes out of it (the rule of core/ProtectedList.hpp, through core/ProtectedListStore).
// A page says which list it edits and, where the row's "id" is not the item, which item a
// row stands for; its own getter and setter (the selectors its rows name) forward here.
#pragma once
#import "core/PlatformAPI.h"

#ifdef __cplusplus
#include "core/PreferenceKeys.hpp"
#endif

@interface TessarinProtectedListController : PSListController

#pragma mark - What a page says

#ifdef __cplusplus
// The list the page's switches edit.
- (const tessarin::PreferenceKey *)protectedList;
#endif
// The item a row stands for: by default its "id", when that is a string.
- (id)protectedItemForSpecifier:(PSSpecifier *)specifier;
// After a row's switch changed the list (nothing by default).
- (void)specifier:(PSSpecifier *)specifier didSwitchProtection:(BOOL)on;

#pragma mark - Switches

// Whether the row's item is in the page's list, as a boolean number.
- (NSNumber *)protectionOfSpecifier:(PSSpecifier *)specifier;
// Switches the row's item on or off in the page's list. Anything that does not answer
// boolValue counts as off.
- (void)setProtection:(id)value ofSpecifier:(PSSpecifier *)specifier;
#ifdef __cplusplus
// The same against another list than the page's own.
- (NSNumber *)protectionOfSpecifier:(PSSpecifier *)specifier inList:(const tessarin::PreferenceKey *)list;
- (void)setProtection:(id)value ofSpecifier:(PSSpecifier *)specifier inList:(const tessarin::PreferenceKey *)list;
#endif

@end
