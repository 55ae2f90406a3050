#import <PreferencesUI/PSBiometricSettingsControllers.h>
