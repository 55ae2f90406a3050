/*
 * The system's biometric settings pages (Face ID & Passcode, Touch ID & Passcode).
 * A page unlocks itself with the device passcode given as its specifier's "passcode"
 * property: only then does it hold an authorisation token.
 *
 * Which of them exist on the simulated device follows its profile: "systemControllers"
 * (array of class names) when present; otherwise all four on a device with Face ID
 * hardware, the three fingerprint ones on a device with Touch ID, none without a
 * biometric sensor. On a device without one, +alloc gives nil.
 */
#ifndef PREFERENCESUI_PSUIBIOMETRICSETTINGSCONTROLLERBASE_H
#define PREFERENCESUI_PSUIBIOMETRICSETTINGSCONTROLLERBASE_H

#import <Preferences/PSListController.h>

@interface PSUIBiometricSettingsControllerBase : PSListController {
  NSData *_simAuthorizationToken;
}
/* The token that unlocks the page; nil until the right passcode was given. */
- (NSData *)_authorizationToken;
@end

#ifdef __cplusplus
extern "C" {
#endif
/* Whether the named system settings page exists on the device in use. */
BOOL SimSystemControllerAvailable(NSString *className);
#ifdef __cplusplus
}
#endif

#endif
