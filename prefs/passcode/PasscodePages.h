// Helpers shared by the passcode pages: their texts and views, the error sound
// and the refresh of the visible settings pages after the passcode changed.
#pragma once
#import "core/Geometry.h"
#include <optional>
#include <string>
#include "passcode/PasscodeFlow.hpp"

// The text in its table (the bundle's own strings or the Accessibility
// bundle's Guided Access table), its default when missing; "" for kNone.
NSString *passcodePageText(const tessarin::passcode::Text &text);

// The system sound of a wrong entry.
void playPasscodeErrorSound(void);

// The Settings app's root navigation controller (nil outside Settings).
UINavigationController *settingsRootController(void);

// On iOS 8 and later: every page of the navigation next to the Settings root
// list (its parent's children), except the root list itself, reloads its
// rows after `delay` seconds.
void scheduleSettingsPagesReload(NSTimeInterval delay);

// The flows' colours as UIKit values (their frames go through core/Geometry.h).
UIColor *passcodeColour(const tessarin::passcode::Rgb &colour);

// A centred label of the passcode pages' font, as the prompt and the warning line are.
UILabel *passcodePageLabel(const tessarin::passcode::Rect &frame, NSString *text);

// The stored product passcode when it is a string (anything else never matches), and
// its text for the flows.
NSString *storedProductPasscode(void);
std::optional<std::string> passcodeText(NSString *passcode);

// The entry as text the flows take; empty for nil.
std::string_view passcodeEntryView(NSString *entry);
