// Switching one item of a protected list from a page: the list rule of
// core/ProtectedList.hpp applied to the list stored under a key-table entry.
#pragma once
#import <Foundation/Foundation.h>

#ifdef __cplusplus
#include "core/PreferenceKeys.hpp"

// C linkage, so tests find them by name.
extern "C" {
// Reads the entry's list, applies the switch, stores the list when the rule
// says so and posts the change signal once either way (when the entry's
// writes are announced, as every list's are). An item that is nil or not a
// string switches nothing, but the list is still stored and the change posted,
// as for an item that is never there.
void switchProtectedItem(id item, BOOL on, const tessarin::PreferenceKey *entry);
// Whether the item (a string) is in the entry's stored list.
BOOL isProtectedItem(id item, const tessarin::PreferenceKey *entry);
}
#endif
