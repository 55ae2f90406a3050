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

// The trusted-network rule for switching on: the stored dictionaries (other
// entries dropped) with a new {"bssid", "ssid"} entry appended, without
// any presence test. The result is an array value.
plist::Value appendTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid);

}  // namespace tessarin
