#ifndef PREFERENCESUI_PSUITOUCHIDPASSCODECONTROLLER_H
#define PREFERENCESUI_PSUITOUCHIDPASSCODECONTROLLER_H

#import <PreferencesUI/PSUIBiometricSettingsControllerBase.h>

/* One of the Touch ID & Passcode pages. */
@interface PSUITouchIDPasscodeController : PSUIBiometricSettingsControllerBase
@end

#endif
