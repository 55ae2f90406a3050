#import "passcode/TessarinRemovePasscodeController.h"
#import "passcode/PasscodePages.h"
#import "core/PreferenceStore.h"
#include "passcode/ChangePasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

namespace {

// The stored passcode, when it is a string (anything else never matches).
NSString *storedPasscode(void) {
  id value = storedPreference(&tessarin::key::kPasscode);
  return [value isKindOfClass:[NSString class]] ? value : nil;
}

std::optional<std::string> optionalOf(NSString *stored) {
  const char *bytes = [stored UTF8String];
  if (bytes == nullptr) return std::nullopt;
  return std::string(bytes);
}

}  // namespace

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
  self.oldPass = storedPasscode();
  delete _removeFlow;
  _removeFlow = new passcode::RemovePasscodeFlow(optionalOf(_oldPass));
  [self.label setText:passcodePageText(passcode::RemovePasscodeFlow::initialPrompt())];
  [self setTitle:passcodePageText(passcode::RemovePasscodeFlow::title())];
}

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_removeFlow == nullptr) _removeFlow = new passcode::RemovePasscodeFlow(optionalOf(_oldPass));
  passcode::Step step = _removeFlow->enter(passcodeEntryView(passcode));
  [self carryOutStep:step centre:centre];
}

- (void)cancelAndCleanup {
  if (_removeFlow != nullptr) _removeFlow->cancel();
  [super cancelAndCleanup];
}

@end

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
  self.oldPass = storedPasscode();
  delete _changeFlow;
  _changeFlow = new passcode::ChangePasscodeFlow(optionalOf(_oldPass));
  [self.label setText:passcodePageText(passcode::ChangePasscodeFlow::initialPrompt())];
  // The title goes to `item`, which nothing assigns: the page keeps the add
  // page's title, as it always has.
  [self.item setTitle:passcodePageText(passcode::text::kChangeTitle)];
}

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_changeFlow == nullptr) _changeFlow = new passcode::ChangePasscodeFlow(optionalOf(_oldPass));
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
