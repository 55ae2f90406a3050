#ifndef PREFERENCESUI_PSMESASETTINGSCONTROLLER_H
#define PREFERENCESUI_PSMESASETTINGSCONTROLLER_H

#import <PreferencesUI/PSUIBiometricSettingsControllerBase.h>

/* One of the Touch ID & Passcode pages. */
@interface PSMesaSettingsController : PSUIBiometricSettingsControllerBase
@end

#endif
