// The caller-ID page: its plist's rows, with Face ID wording on Face ID devices, and
// the lock-screen call setting that SpringBoard keeps.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinInCallProtectionListController : PSListController
- (id)getShowsInLockScreen:(PSSpecifier *)specifier;
- (void)setShowsInLockScreen:(id)value specifier:(PSSpecifier *)specifier;
@end
