// The device passcode check for passcodes that are not four or six digits: a text field.
#pragma once
#import "passcode/TessarinUserPasscodeController.h"

@interface TessarinUserComplexPasscodeController : TessarinUserPasscodeController <UITextFieldDelegate>
- (BOOL)textFieldShouldReturn:(UITextField *)textField;
@end
