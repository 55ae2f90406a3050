// The full-screen page on which the product passcode is chosen, and the base
// of the remove, change and device-passcode pages: view, fields, slide and
// shake, commit with page refresh, and dismissal.
#pragma once
#import "core/PlatformAPI.h"
#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {
class SetPasscodeFlow;
}

@interface TessarinPasscodeController : PSViewController <PSPasscodeFieldDelegate> {
  UILabel *_label;
  UILabel *_warnLabel;
  id _passcodeField;  // a PSPasscodeField; a UITextField on the complex device page
  NSString *_pass1;
  NSString *_pass2;
  id _item;  // declared for subclasses; never assigned
  UIViewController *_parent;
  UITextField *_passField;
  tessarin::passcode::SetPasscodeFlow *_setFlow;
}

@property (nonatomic, retain) UILabel *label;
@property (nonatomic, retain) UILabel *warnLabel;
@property (nonatomic, retain) id passcodeField;
@property (nonatomic, retain) NSString *pass1;
@property (nonatomic, retain) NSString *pass2;
@property (nonatomic, assign) id item;
@property (nonatomic, assign) UIViewController *parent;
@property (nonatomic, retain) UITextField *passField;

- (instancetype)initWithParent:(UIViewController *)parent;

- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode;
- (void)dismissSelf;
- (void)cancelAndCleanup;

// For the pages built on this one.
// Error sound, transition, commit or refusal of one step; `centre` is the
// root view's centre taken when the entry arrived.
- (void)carryOutStep:(const tessarin::passcode::Step &)step centre:(CGPoint)centre;
// Store `value` under "passcode" (nil deletes the key), announce, refresh
// the visible pages and close after a second.
- (void)commitPasscode:(NSString *)value;
- (void)clearEntryField;
// The page's view: the entry field with the prompt and warning lines under the
// title, on a root view of the screen's width, and a Cancel button.
- (void)setUpPageWithField:(UIView *)field
                background:(UIColor *)background
                    prompt:(NSString *)prompt
               promptFrame:(const tessarin::passcode::Rect &)promptFrame
              warningFrame:(const tessarin::passcode::Rect &)warningFrame
                     title:(NSString *)title;
// Whether the page looks dark: the system-wide dark mode, else the trait collection.
- (BOOL)usesDarkAppearance;
@end
