#import "passcode/TessarinRemovePasscodeController.h"
#import "passcode/PasscodePages.h"
#include "passcode/ChangePasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

@implementation TessarinRemovePasscodeController

@synthesize oldPass = _oldPass;

- (void)dealloc {
  [_oldPass release];
  _oldPass = nil;
  delete _removeFlow;
  _removeFlow = nullptr;
  [super dealloc];
}

- (void)loadView {
  [super loadView];
  self.pass1 = nil;
  self.oldPass = storedProductPasscode();
  delete _removeFlow;
  _removeFlow = new passcode::RemovePasscodeFlow(passcodeText(_oldPass));
  [self.label setText:passcodePageText(passcode::RemovePasscodeFlow::initialPrompt())];
  [self setTitle:passcodePageText(passcode::RemovePasscodeFlow::title())];
}

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_removeFlow == nullptr) _removeFlow = new passcode::RemovePasscodeFlow(passcodeText(_oldPass));
  passcode::Step step = _removeFlow->enter(passcodeEntryView(passcode));
  [self carryOutStep:step centre:centre];
}

- (void)cancelAndCleanup {
  if (_removeFlow != nullptr) _removeFlow->cancel();
  [super cancelAndCleanup];
}

@end
