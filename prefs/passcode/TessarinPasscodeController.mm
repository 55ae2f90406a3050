#import "passcode/TessarinPasscodeController.h"
#import "passcode/PasscodePages.h"
#import "core/PreferenceStore.h"
#include "passcode/SetPasscodeFlow.hpp"

namespace passcode = tessarin::passcode;

namespace {

NSString *stringOf(NSString *entry) { return entry != nil ? entry : @""; }

void setOriginX(UIView *view, CGFloat x) {
  CGRect frame = [view frame];
  frame.origin.x = x;
  [view setFrame:frame];
}

void setCentreX(UIView *view, CGFloat x) {
  CGPoint centre = [view center];
  centre.x = x;
  [view setCenter:centre];
}

}  // namespace

@implementation TessarinPasscodeController

@synthesize label = _label;
@synthesize warnLabel = _warnLabel;
@synthesize passcodeField = _passcodeField;
@synthesize pass1 = _pass1;
@synthesize pass2 = _pass2;
@synthesize item = _item;
@synthesize parent = _parent;
@synthesize passField = _passField;

- (instancetype)initWithParent:(UIViewController *)parent {
  self = [super init];
  if (self != nil) _parent = parent;
  return self;
}

- (void)dealloc {
  [_pass1 release];
  _pass1 = nil;
  [_pass2 release];
  _pass2 = nil;
  [_label release];
  [_warnLabel release];
  [_passcodeField release];
  [_passField release];
  delete _setFlow;
  _setFlow = nullptr;
  [super dealloc];
}

- (NSUInteger)supportedInterfaceOrientations {
  return passcode::kPortraitOnlyMask;
}

- (BOOL)usesDarkAppearance {
  BOOL dark = NO;
  AXInvertColorsIsSystemWideDarkModeEnabledFunction systemWideDark =
      (AXInvertColorsIsSystemWideDarkModeEnabledFunction)dlsym(RTLD_DEFAULT,
                                                               "AXInvertColorsIsSystemWideDarkModeEnabled");
  if (systemWideDark != NULL) dark = systemWideDark() ? YES : NO;
  if (!dark && [self respondsToSelector:@selector(traitCollection)]) {
    UITraitCollection *traits = [self traitCollection];
    if ([traits respondsToSelector:@selector(userInterfaceStyle)])
      dark = [traits userInterfaceStyle] == UIUserInterfaceStyleDark;
  }
  return dark;
}

- (void)loadView {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  CGFloat width = [[UIScreen mainScreen] bounds].size.width;

  self.pass1 = nil;
  self.pass2 = nil;
  delete _setFlow;
  _setFlow = new passcode::SetPasscodeFlow();

  PSPasscodeField *field =
      [[[PSPasscodeField alloc] initWithNumberOfEntryFields:passcode::kDigitEntryFields] autorelease];
  [field setFrame:cgRect(passcode::digitFieldFrame(width))];
  [field setSecurePasscodeEntry:YES];
  [field setDelegate:self];
  [self setUpPageWithField:field
                background:passcodeColour([self usesDarkAppearance] ? passcode::kDarkBackground
                                                                    : passcode::kLightBackground)
                    prompt:passcodePageText(passcode::SetPasscodeFlow::initialPrompt())
               promptFrame:passcode::promptFrame(width)
              warningFrame:passcode::warningFrame(width)
                     title:passcodePageText(passcode::SetPasscodeFlow::title())];
  [pool release];
}

- (void)setUpPageWithField:(UIView *)field
                background:(UIColor *)background
                    prompt:(NSString *)prompt
               promptFrame:(const passcode::Rect &)promptFrame
              warningFrame:(const passcode::Rect &)warningFrame
                     title:(NSString *)title {
  const CGFloat width = [[UIScreen mainScreen] bounds].size.width;
  UIView *root = [[[UIView alloc] initWithFrame:cgRect(passcode::rootViewFrame(width))] autorelease];
  [root setAutoresizingMask:passcode::kFlexibleSizeMask];
  [root setBackgroundColor:background];
  if ([self respondsToSelector:@selector(setView:)]) [self setView:root];

  self.passcodeField = field;
  self.label = passcodePageLabel(promptFrame, prompt);
  self.warnLabel = passcodePageLabel(warningFrame, @"");
  [root addSubview:field];
  [root addSubview:self.label];
  [root addSubview:self.warnLabel];

  [self setTitle:title];
  UIBarButtonItem *cancel = [[[UIBarButtonItem alloc] initWithTitle:passcodePageText(passcode::text::kCancel)
                                                              style:UIBarButtonItemStylePlain
                                                             target:self
                                                             action:@selector(cancelAndCleanup)] autorelease];
  [[self navigationItem] setRightBarButtonItem:cancel animated:NO];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  CGFloat x = [[self view] center].x;
  setCentreX(_passcodeField, x);
  setCentreX(_label, x);
  setCentreX(_warnLabel, x);
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
  [_passcodeField becomeFirstResponder];
}

// MARK: - Entries

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  CGPoint centre = [[self view] center];
  if (_setFlow == nullptr) _setFlow = new passcode::SetPasscodeFlow();
  passcode::Step step = _setFlow->enter(passcodeEntryView(passcode));
  // pass1 holds the first entry while the page asks for it again.
  self.pass1 =
      _setFlow->state() == passcode::SetPasscodeFlow::State::Reenter ? [[stringOf(passcode) copy] autorelease] : nil;
  [self carryOutStep:step centre:centre];
}

- (void)carryOutStep:(const passcode::Step &)step centre:(CGPoint)centre {
  if (step.playErrorSound) playPasscodeErrorSound();
  NSString *prompt = passcodePageText(step.prompt);
  NSString *warning = passcodePageText(step.warning);
  switch (step.transition) {
    case passcode::Transition::Slide:
      [self slideToPrompt:prompt centre:centre];
      break;
    case passcode::Transition::Shake:
      [self shakeMove:0 centre:centre prompt:prompt warning:warning];
      break;
    case passcode::Transition::None:
      break;
  }
  if (step.commit == passcode::Commit::Store) {
    NSString *value = [[[NSString alloc] initWithBytes:step.value.data()
                                                length:step.value.size()
                                              encoding:NSUTF8StringEncoding] autorelease];
    [self commitPasscode:value];
  } else if (step.commit == passcode::Commit::Remove) {
    [self commitPasscode:nil];
  }
  if (step.refuse) {
    [_warnLabel setText:warning];
    [_label setText:prompt];
    [_passcodeField setAlpha:0.0];
    [[UIApplication sharedApplication] beginIgnoringInteractionEvents];
    [self performSelector:@selector(dismissSelf) withObject:nil afterDelay:passcode::kRefuseDismissDelay];
  }
}

- (void)clearEntryField {
  if ([_passcodeField respondsToSelector:@selector(setStringValue:)])
    [_passcodeField setStringValue:@""];
  else if ([_passcodeField respondsToSelector:@selector(setText:)])
    [_passcodeField setText:@""];
}

// MARK: - Commit

- (void)commitPasscode:(NSString *)value {
  [[UIApplication sharedApplication] beginIgnoringInteractionEvents];
  storePreference(value, &tessarin::key::kPasscode);

  UIViewController *page = [settingsRootController() topViewController];
  if (page == nil) page = _parent;
  scheduleSettingsPagesReload(passcode::kChildRefreshDelay);
  if ([page respondsToSelector:@selector(reloadSpecifiers)]) {
    [page performSelector:@selector(reloadSpecifiers)];
    [page performSelector:@selector(reloadSpecifiers) withObject:nil afterDelay:passcode::kTopRefreshDelay];
  }
  [self performSelector:@selector(dismissSelf) withObject:nil afterDelay:passcode::kCommitDismissDelay];
}

- (void)dismissSelf {
  [_passcodeField resignFirstResponder];
  [_passField resignFirstResponder];
  [[UIApplication sharedApplication] endIgnoringInteractionEvents];
  [self dismissViewControllerAnimated:YES completion:nil];
}

- (void)cancelAndCleanup {
  [_passcodeField resignFirstResponder];
  [_passField resignFirstResponder];
  if (_setFlow != nullptr) _setFlow->cancel();
  [self dismissViewControllerAnimated:YES completion:nil];
}

// MARK: - Animations

// Prompt and field leave to the left, jump to the right with the next
// prompt and come back to the centre.
- (void)slideToPrompt:(NSString *)prompt centre:(CGPoint)centre {
  [UIView animateWithDuration:passcode::kSlideOutDuration
      delay:0
      options:UIViewAnimationOptionCurveEaseIn
      animations:^{
        setOriginX(self->_label, passcode::kSlideOutOriginX);
        setOriginX(self->_passcodeField, passcode::kSlideOutOriginX);
      }
      completion:^(BOOL finished) {
        setOriginX(self->_label, passcode::kSlideReturnOriginX);
        setOriginX(self->_passcodeField, passcode::kSlideReturnOriginX);
        [self->_warnLabel setText:@""];
        [self->_label setText:prompt];
        [self clearEntryField];
        [UIView animateWithDuration:passcode::kSlideInDuration
                              delay:0
                            options:UIViewAnimationOptionCurveEaseOut
                         animations:^{
                           setCentreX(self->_label, centre.x);
                           setCentreX(self->_passcodeField, centre.x);
                         }
                         completion:nil];
      }];
}

// Five short moves side to side, each started when the last one ends; the
// last one shows the prompt and warning and empties the field.
- (void)shakeMove:(int)move centre:(CGPoint)centre prompt:(NSString *)prompt warning:(NSString *)warning {
  [UIView animateWithDuration:passcode::kShakeMoveDuration
      animations:^{
        CGFloat x = passcode::shakeCentreX(centre.x, move);
        setCentreX(self->_label, x);
        setCentreX(self->_passcodeField, x);
      }
      completion:^(BOOL finished) {
        if (move + 1 < passcode::kShakeMoves) {
          [self shakeMove:move + 1 centre:centre prompt:prompt warning:warning];
          return;
        }
        [self->_label setText:prompt];
        [self->_warnLabel setText:warning];
        [self clearEntryField];
      }];
}

@end
