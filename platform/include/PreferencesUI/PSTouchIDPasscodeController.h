#ifndef PREFERENCESUI_PSTOUCHIDPASSCODECONTROLLER_H
#define PREFERENCESUI_PSTOUCHIDPASSCODECONTROLLER_H

#import <PreferencesUI/PSUIBiometricSettingsControllerBase.h>

/* One of the Touch ID & Passcode pages. */
@interface PSTouchIDPasscodeController : PSUIBiometricSettingsControllerBase
@end

#endif
