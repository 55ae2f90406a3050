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

  UIView *root = [[[UIView alloc] initWithFrame:cgRect(passcode::rootViewFrame(width))] autorelease];
  [root setAutoresizingMask:passcode::kFlexibleSizeMask];
  [root setBackgroundColor:passcodeColour(passcode::kComplexBackground)];
  if ([self respondsToSelector:@selector(setView:)]) [self setView:root];

  UITextField *field = [[[UITextField alloc] initWithFrame:cgRect(passcode::complexFieldFrame(width))] autorelease];
  [field setSecureTextEntry:YES];
  [field setEnabled:YES];
  [field setBackgroundColor:[UIColor whiteColor]];
  [field setDelegate:self];
  self.passcodeField = field;

  self.label = passcodePageLabel(passcode::complexPromptFrame(width), passcodePageText(passcode::DevicePasscodeFlow::initialPrompt()));
  self.warnLabel = passcodePageLabel(passcode::complexWarningFrame(width), @"");

  [root addSubview:field];
  [root addSubview:self.label];
  [root addSubview:self.warnLabel];

  [self setTitle:passcodePageText(_deviceFlow->title())];
  UIBarButtonItem *cancel = [[[UIBarButtonItem alloc] initWithTitle:passcodePageText(passcode::text::kCancel)
                                                              style:UIBarButtonItemStylePlain
                                                             target:self
                                                             action:@selector(cancelAndCleanup)] autorelease];
  [[self navigationItem] setRightBarButtonItem:cancel animated:NO];
  [pool release];
}

- (BOOL)textFieldShouldReturn:(UITextField *)textField {
  [self passcodeField:(PSPasscodeField *)textField enteredPasscode:[textField text]];
  return YES;
}

@end
