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

// What switching one item of a protected list does to the store, the same on
// every list page: switched on, the item is appended and the list stored only
// when it was absent (switching on a present item stores nothing); switched
// off, every occurrence is removed and the list is stored even when nothing
// was removed. The change signal follows every switch, stored or not.
struct ListEdit {
    bool store = false;             // whether `list` is written back
    std::vector<std::string> list;  // the list to write when `store`
};
ListEdit protectedListEdit(const plist::Value *stored, std::string_view item, bool on);
inline constexpr bool kListSwitchPostsChangeSignal = true;

// Whether the stored list (an array; anything else counts as none) holds the item.
bool protectedListContains(const plist::Value *stored, std::string_view item);

// The trusted-network rule for switching on: the stored dictionaries (other
// entries dropped) with a new {"bssid", "ssid"} entry appended, without
// any presence test. The result is an array value.
plist::Value appendTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid);

}  // namespace tessarin
