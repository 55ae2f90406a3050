#import "passcode/TessarinUserPasscodeController.h"
#import "passcode/PasscodePages.h"
#import "core/Hardware.h"
#import "core/VersionFlags.h"
#include "passcode/DevicePasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

// The root settings page, reached by name.
@interface NSObject (TessarinRootPageLookup)
+ (id)sharedInstance;
@end

namespace {

NSString *nameOf(std::string_view name) {
  return [[[NSString alloc] initWithBytes:name.data() length:name.size() encoding:NSUTF8StringEncoding] autorelease];
}

// The device passcode's length from the passcode manager; 0 when unknown.
long long devicePasscodeLength(void) {
  Class managerClass = NSClassFromString(@"MCPasscodeManager");
  MCPasscodeManager *manager = [managerClass sharedManager];
  if (manager == nil) return 0;
  NSDictionary *characteristics = nil;
  if ([manager respondsToSelector:@selector(_privatePasscodeDictWithOutError:)]) {
    NSDictionary *record = [manager _privatePasscodeDictWithOutError:NULL];
    id outer = [record isKindOfClass:[NSDictionary class]] ? [record objectForKey:@"characteristics"] : nil;
    id inner = [outer isKindOfClass:[NSDictionary class]] ? [outer objectForKey:@"characteristics"] : nil;
    // Records that hold the characteristics one level up are read there.
    if (![inner isKindOfClass:[NSDictionary class]]) inner = outer;
    id first = [inner isKindOfClass:[NSDictionary class]] ? [inner objectForKey:@"1"] : nil;
    characteristics = first != nil ? first : inner;
  } else if ([manager respondsToSelector:@selector(_passcodeCharacteristics)]) {
    characteristics = [manager _passcodeCharacteristics];
  }
  if (![characteristics isKindOfClass:[NSDictionary class]]) return 0;
  id length = [characteristics objectForKey:@"length"];
  return [length respondsToSelector:@selector(longLongValue)] ? [length longLongValue] : 0;
}

passcode::TokenAnswer tokenAnswer(id controller, SEL selector) {
  if (![controller respondsToSelector:selector]) return passcode::TokenAnswer::NotAnswered;
  return [controller performSelector:selector] != nil ? passcode::TokenAnswer::Present : passcode::TokenAnswer::Null;
}

}  // namespace

@implementation TessarinUserPasscodeController

@synthesize oldPass = _oldPass;
@synthesize errorCount = _errorCount;

- (void)dealloc {
  [_oldPass release];
  _oldPass = nil;
  delete _deviceFlow;
  _deviceFlow = nullptr;
  [super dealloc];
}

- (passcode::DevicePage)devicePage {
  return passcode::DevicePage::Numeric;
}

- (void)startFlow {
  _errorCount = 0;
  delete _deviceFlow;
  _deviceFlow = new passcode::DevicePasscodeFlow([self devicePage]);
}

- (void)loadView {
  [self startFlow];
  [super loadView];

  const int fields = passcode::entryFieldCount(devicePasscodeLength());
  if (fields != passcode::kDigitEntryFields &&
      [self.passcodeField respondsToSelector:@selector(setNumberOfEntryFields:)])
    [self.passcodeField setNumberOfEntryFields:fields];
  UIView *field = self.passcodeField;
  CGPoint centre = [field center];
  centre.x = [[self view] center].x;
  [field setCenter:centre];

  [self.label setText:passcodePageText(passcode::DevicePasscodeFlow::initialPrompt())];
  [self setTitle:passcodePageText(_deviceFlow->title())];
}

// The system page for the entry, unlocked when the entry is the device
// passcode; nil when the device has none of the system pages. +1.
- (id)newSystemControllerForPasscode:(NSString *)passcode {
  id controller = nil;
  passcode::systemControllerClass(hasPearl(), [&controller](std::string_view name) {
    Class cls = NSClassFromString(nameOf(name));
    if (cls == Nil) return false;
    controller = [[cls alloc] initForContentSize:CGSizeZero];
    return controller != nil;
  });
  if (controller == nil) return nil;
  PSSpecifier *specifier = [PSSpecifier preferenceSpecifierNamed:nameOf(passcode::kSystemSpecifierName)
                                                          target:nil
                                                             set:NULL
                                                             get:NULL
                                                          detail:Nil
                                                            cell:(PSCellType)passcode::kSystemSpecifierCellType
                                                            edit:Nil];
  [specifier setProperty:passcode forKey:nameOf(passcode::kSystemSpecifierPasscodeProperty)];
  [controller setSpecifier:specifier];
  return controller;
}

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_deviceFlow == nullptr) [self startFlow];
  id controller = nil;
  passcode::Step step = _deviceFlow->enter(passcodeEntryView(passcode), [&](std::string_view) {
    controller = [self newSystemControllerForPasscode:passcode];
    // Without a system page there is nothing to check with: refuse.
    if (controller == nil) return false;
    return holdsAuthorisation(tokenAnswer(controller, @selector(_authorizationToken)),
                              tokenAnswer(controller, @selector(authorizationToken)));
  });
  _errorCount = _deviceFlow->errorCount();

  if (step.success) {
    [[UIApplication sharedApplication] beginIgnoringInteractionEvents];
    [self performSelector:@selector(dismissSelf) withObject:nil afterDelay:passcode::kSuccessDismissDelay];
    [self performSelector:@selector(pushMesa:) withObject:controller afterDelay:passcode::kSuccessPushDelay];
  } else {
    [self carryOutStep:step centre:centre];
  }
  [controller release];
}

- (void)pushMesa:(UIViewController *)controller {
  if (!systemVersion.iOS8) {
    [settingsRootController() pushViewController:controller animated:YES];
    return;
  }
  Class rootPage = NSClassFromString(@"TessarinPrefsListController");
  id shared = [rootPage respondsToSelector:@selector(sharedInstance)] ? [rootPage sharedInstance] : nil;
  [shared pushController:controller animate:YES];
}

- (void)cancelAndCleanup {
  if (_deviceFlow != nullptr) _deviceFlow->cancel();
  [super cancelAndCleanup];
}

@end
