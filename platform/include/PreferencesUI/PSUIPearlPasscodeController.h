#ifndef PREFERENCESUI_PSUIPEARLPASSCODECONTROLLER_H
#define PREFERENCESUI_PSUIPEARLPASSCODECONTROLLER_H

#import <PreferencesUI/PSUIBiometricSettingsControllerBase.h>

/* The Face ID & Passcode page. */
@interface PSUIPearlPasscodeController : PSUIBiometricSettingsControllerBase
- (NSData *)authorizationToken;
@end

#endif
