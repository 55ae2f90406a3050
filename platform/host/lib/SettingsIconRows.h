// Rows whose cell is a strip of three tappable choices (the unlock-button page's button and
// glyph rows): what they show, and a tap on one third of them.
#pragma once
#import <Foundation/Foundation.h>

@class PSSpecifier;
@class UIViewController;

// What the row shows on the right, e.g. "white  black  [golden, animating]" or
// "black 0  [blue, state 11]  red 0"; nil for any other row.
NSString *SettingsIconRowText(PSSpecifier *specifier, UIViewController *page);

// Taps the middle of the row's left, middle or right third ("left", "middle", "right",
// or 1 to 3). Returns nil when the tap was delivered, else what went wrong.
NSString *SettingsIconRowTap(PSSpecifier *specifier, UIViewController *page, NSString *third);
