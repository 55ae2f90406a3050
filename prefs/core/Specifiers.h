// Rows every page builds the same way.
#pragma once
#import "core/PlatformAPI.h"

// A group row without header whose footer is `footer` (a page's explanation, or a
// note under its rows), on systems with or without the header-and-footer constructor.
PSSpecifier *footerGroup(NSString *footer);

// A switch row of `target` with the given accessors (no detail, no edit pane).
PSSpecifier *switchRow(NSString *name, id target, SEL setter, SEL getter);

// A plist row's subtitle ("cellSubtitleText") in the user's language, from the plist's own
// table as its label and footer are: the Preferences framework localises those, and only
// those are documented to be.
void localizeSubtitle(PSSpecifier *row, NSString *plistName);
