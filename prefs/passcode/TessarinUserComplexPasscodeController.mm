#import "passcode/TessarinUserComplexPasscodeController.h"
#import "passcode/PasscodePages.h"
#include "passcode/DevicePasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

@implementation TessarinUserComplexPasscodeController

- (passcode::DevicePage)devicePage {
  return passcode::DevicePage::Complex;
}

- (void)loadView {
  [self startFlow];
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  CGFloat width = [[UIScreen mainScreen] bounds].size.width;

  UITextField *field = [[[UITextField alloc] initWithFrame:cgRect(passcode::complexFieldFrame(width))] autorelease];
  [field setSecureTextEntry:YES];
  [field setEnabled:YES];
  [field setBackgroundColor:[UIColor whiteColor]];
  [field setDelegate:self];
  [self setUpPageWithField:field
                background:passcodeColour(passcode::kComplexBackground)
                    prompt:passcodePageText(passcode::DevicePasscodeFlow::initialPrompt())
               promptFrame:passcode::complexPromptFrame(width)
              warningFrame:passcode::complexWarningFrame(width)
                     title:passcodePageText(_deviceFlow->title())];
  [pool release];
}

- (BOOL)textFieldShouldReturn:(UITextField *)textField {
  [self passcodeField:(PSPasscodeField *)textField enteredPasscode:[textField text]];
  return YES;
}

@end
