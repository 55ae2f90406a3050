// Proving knowledge of the device passcode before the system's biometric
// settings page is opened: a digit page for four- and six-digit passcodes and
// a text page for the others.
#pragma once
#import "passcode/TessarinPasscodeController.h"

namespace tessarin::passcode {
class DevicePasscodeFlow;
}

@interface TessarinUserPasscodeController : TessarinPasscodeController {
  NSString *_oldPass;  // declared, not used by these pages
  int _errorCount;
  tessarin::passcode::DevicePasscodeFlow *_deviceFlow;
}
@property (nonatomic, retain) NSString *oldPass;
// Wrong device passcodes entered since the page was loaded.
@property (nonatomic, assign) int errorCount;

// Pushes the unlocked system settings page onto the Settings navigation.
- (void)pushMesa:(UIViewController *)controller;
@end

@interface TessarinUserComplexPasscodeController : TessarinUserPasscodeController <UITextFieldDelegate>
- (BOOL)textFieldShouldReturn:(UITextField *)textField;
@end
