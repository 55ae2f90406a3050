#include "core/ProtectedList.hpp"

#include <algorithm>

#include "core/PreferenceKeys.hpp"

namespace tessarin {

std::vector<std::string> toggled(const plist::Value *stored, std::string_view item, bool on) {
    std::vector<std::string> list = readStringArray(stored);
    if (on) {
        if (std::find(list.begin(), list.end(), item) == list.end()) list.emplace_back(item);
    } else {
        list.erase(std::remove(list.begin(), list.end(), item), list.end());
    }
    return list;
}

ListEdit protectedListEdit(const plist::Value *stored, std::string_view item, bool on) {
    ListEdit edit;
    edit.list = readStringArray(stored);
    const bool present = std::find(edit.list.begin(), edit.list.end(), item) != edit.list.end();
    if (on) {
        if (present) return edit;
        edit.list.emplace_back(item);
    } else {
        edit.list.erase(std::remove(edit.list.begin(), edit.list.end(), item), edit.list.end());
    }
    edit.store = true;
    return edit;
}

bool protectedListContains(const plist::Value *stored, std::string_view item) {
    const std::vector<std::string> list = readStringArray(stored);
    return std::find(list.begin(), list.end(), item) != list.end();
}

plist::Value appendTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid) {
    plist::Value list = plist::Value::array(readDictionaryArray(stored));
    plist::Value entry = plist::Value::dictionary();
    entry.set("bssid", plist::Value::string(std::string(bssid)));
    entry.set("ssid", plist::Value::string(std::string(ssid)));
    list.append(std::move(entry));
    return list;
}

}  // namespace tessarin
