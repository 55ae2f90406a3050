// Proving knowledge of the device passcode before the system's biometric
// settings page is opened, on a digit page for four- and six-digit passcodes
// (the text page for the others is its subclass).
#pragma once
#import "passcode/TessarinPasscodeController.h"

#include "passcode/DevicePasscodeFlow.hpp"

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

#pragma mark - For the text page

// Which page the device passcode is entered on: digits here, text on the subclass.
- (tessarin::passcode::DevicePage)devicePage;
// A new check of the device passcode, its error count back at zero.
- (void)startFlow;
@end
