// What the protection-list pages share: their heading group, their question to
// SpringBoard and the conversions between their rules' strings and Foundation's.
#pragma once
#import "core/PlatformAPI.h"

#include <optional>
#include <string>
#include <string_view>

// A group without header whose footer is `footer` (the page's explanation), on
// systems with or without the header-and-footer constructor.
PSSpecifier *listFooterGroup(NSString *footer);

// The reply dictionary of a request to SpringBoard on the product's centre, nil
// without one.
NSDictionary *askSpringBoardForList(const char *message);

// A switch row of `target` with the given accessors (no detail, no edit pane).
PSSpecifier *listSwitchRow(NSString *name, id target, SEL setter, SEL getter);

// The image redrawn at `size` (points) at the screen's scale.
UIImage *resizedImage(UIImage *image, CGSize size);

// Strings between the rules and Foundation. An NSString of invalid UTF-8 is nil.
NSString *listString(std::string_view text);
// The string's UTF-8, or nothing for nil and anything that is not a string.
std::optional<std::string> listUtf8(id object);
