// The trusted networks page: one switch per known network; trusted networks are where
// protection is switched off.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinWiFiController : PSListController
// The switch of a network row (boxed boolean) and its change.
- (id)getNetworkProtectedForSpecifier:(PSSpecifier *)specifier;
- (void)setNetworkProtected:(id)value specifier:(PSSpecifier *)specifier;
@end

// A network row: the switch cell, with the network's password under its name when it has one;
// a tap on the left of the row copies the password.
@interface TessarinWifiInfoCell : PSSwitchTableCell {
  UITapGestureRecognizer *_tapRecognizer;
}
@property (nonatomic, retain) UITapGestureRecognizer *tapRecognizer;
- (void)viewTapped:(UITapGestureRecognizer *)recognizer;
@end
