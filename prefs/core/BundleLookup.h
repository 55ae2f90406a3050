// The product's bundle, for its localised texts and images.
#pragma once
#import <Foundation/Foundation.h>

// The installed bundle, looked for where jailbreaks put it, else the one this code came from.
NSBundle *tessarinBundle(void);
// The bundle's string for `key` in the default table, `fallback` when it has none.
NSString *localizedString(NSString *key, NSString *fallback);
