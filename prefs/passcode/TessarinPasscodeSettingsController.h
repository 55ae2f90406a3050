// The product passcode's settings page: add, change or remove it, the
// use-only switch, and the link that asks SpringBoard to clear a forgotten one.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinPasscodeSettingsController : PSListController
- (void)addPassword;
- (void)changePassword;
- (void)removePassword;
- (void)forgotTapped:(id)sender;
@end

#ifdef __cplusplus
extern "C" {
#endif
// Darwin callback of "net.corvane.tessarin.passcodeReset": SpringBoard cleared
// the passcode, so delete it here too and redraw the visible pages.
void resetPasscode(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
                   CFDictionaryRef userInfo);
#ifdef __cplusplus
}
#endif
