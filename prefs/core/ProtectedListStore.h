// The list pages' one way to read and switch an item of a protected list: the
// edit decision of core/ProtectedList applied to the stored list, written and
// announced through the key table.
#pragma once
#import <Foundation/Foundation.h>

#include "core/PreferenceKeys.hpp"

// Whether the entry's stored list holds the item (an absent or malformed list holds nothing).
BOOL protectedListHolds(const tessarin::PreferenceKey *entry, NSString *item);

// Switches the item on or off in the entry's list: stores the list when the edit
// says so, then the change signal in every case (as the table announces the key).
// A nil item changes nothing and is still announced.
void switchProtectedListItem(const tessarin::PreferenceKey *entry, NSString *item, BOOL on);
