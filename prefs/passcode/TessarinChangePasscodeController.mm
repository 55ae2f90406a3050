#import "passcode/TessarinChangePasscodeController.h"
#import "passcode/PasscodePages.h"
#include "passcode/ChangePasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

@implementation TessarinChangePasscodeController

@synthesize oldPass = _oldPass;

- (void)dealloc {
  [_oldPass release];
  _oldPass = nil;
  delete _changeFlow;
  _changeFlow = nullptr;
  [super dealloc];
}

- (void)loadView {
  [super loadView];
  self.pass1 = nil;
  self.oldPass = storedProductPasscode();
  delete _changeFlow;
  _changeFlow = new passcode::ChangePasscodeFlow(passcodeText(_oldPass));
  [self.label setText:passcodePageText(passcode::ChangePasscodeFlow::initialPrompt())];
  // The title goes to `item`, which nothing assigns: the page keeps the add
  // page's title, as it always has.
  [self.item setTitle:passcodePageText(passcode::text::kChangeTitle)];
}

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_changeFlow == nullptr) _changeFlow = new passcode::ChangePasscodeFlow(passcodeText(_oldPass));
  passcode::Step step = _changeFlow->enter(passcodeEntryView(passcode));
  // pass1 marks the verified old passcode, pass2 the first new entry.
  passcode::ChangePasscodeFlow::State state = _changeFlow->state();
  NSString *entry = [[passcode copy] autorelease];
  if (state == passcode::ChangePasscodeFlow::State::New && self.pass1 == nil) self.pass1 = entry;
  if (state == passcode::ChangePasscodeFlow::State::Confirm) self.pass2 = entry;
  if (state == passcode::ChangePasscodeFlow::State::New) self.pass2 = nil;
  [self carryOutStep:step centre:centre];
}

- (void)cancelAndCleanup {
  if (_changeFlow != nullptr) _changeFlow->cancel();
  [super cancelAndCleanup];
}

@end
