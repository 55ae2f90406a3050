// Changing one entry of a list-valued preference.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin {

// The protected-list rule: the stored value (nullptr or not an array counts
// as empty; only its string entries are kept, in order) with the item
// appended when switched on and not yet present, or with every occurrence
// removed when switched off.
std::vector<std::string> toggled(const plist::Value *stored, std::string_view item, bool on);

// What one switch of a protected list does to the stored list. Switching on
// appends the item when it is not there and leaves the stored value alone
// when it is; switching off removes every occurrence and always stores, even
// when nothing was removed. Every switch is announced, whether it stored or
// not.
struct ProtectedListEdit {
    bool store;                     // write `list` back under the list's key
    std::vector<std::string> list;  // the list to write (the current list when not storing)
};
ProtectedListEdit protectedListEdit(const plist::Value *stored, std::string_view item, bool on);

// Whether the item is in the stored list (same reading as above).
bool protectedListContains(const plist::Value *stored, std::string_view item);

// The trusted-network rule for switching on: the stored dictionaries (other
// entries dropped) with a new {"bssid", "ssid"} entry appended, without
// any presence test. The result is an array value.
plist::Value appendTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid);

}  // namespace tessarin
