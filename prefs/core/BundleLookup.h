// The product's bundle, for its localised texts and images.
#pragma once
#import <Foundation/Foundation.h>

#include <string>

#include "core/LocalText.hpp"

// The installed bundle, looked for where jailbreaks put it, else the one this code came from.
NSBundle *tessarinBundle(void);
// The bundle's string for `key` in the default table, in the user's language; `fallback`
// when the table has none (and for an empty key).
NSString *localizedString(NSString *key, NSString *fallback);
// A core text in the user's language: its key looked up, its English text as the
// fallback; a text without a key (a name) as it stands.
NSString *localizedText(const tessarin::LocalText &text);
// The same as UTF-8, for the core rules that compose texts (a tessarin::TextLookup).
std::string localizedCoreText(const tessarin::LocalText &text);
