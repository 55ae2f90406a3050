// Rows every page builds the same way.
#pragma once
#import "core/PlatformAPI.h"

// A group row without header whose footer is `footer` (a page's explanation, or a
// note under its rows), on systems with or without the header-and-footer constructor.
PSSpecifier *footerGroup(NSString *footer);

// A switch row of `target` with the given accessors (no detail, no edit pane).
PSSpecifier *switchRow(NSString *name, id target, SEL setter, SEL getter);
