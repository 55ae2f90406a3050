// The keys of the preference domain that the bundle's code names, with
// their types, their meaning when absent and the page that writes them,
// plus readers that apply those defaults to a stored value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin {

namespace key {
inline constexpr const char *kEnabled = "Enabled";
inline constexpr const char *kPasscode = "passcode";
inline constexpr const char *kProtected = "protected";
inline constexpr const char *kProtectedNotifications = "protectedNotifications";
inline constexpr const char *kProtectedFolders = "protectedFolders";
inline constexpr const char *kProtectedCCItems = "protectedCCItems";
inline constexpr const char *kProtectedCCSettingsItems = "protectedCCSettingsItems";
inline constexpr const char *kProtectedSettings = "protectedSettings";
inline constexpr const char *kProtectedSwitches = "protectedSwitches";
inline constexpr const char *kAllowedWiFis = "allowedWiFis";
inline constexpr const char *kIconColor = "IconColor";
inline constexpr const char *kAlertTitle = "alertTitle";
inline constexpr const char *kWaitUntilFinished = "waitUntilFinished";
}  // namespace key

enum class KeyType { Boolean, Integer, String, StringArray, DictionaryArray };

enum class Absent {
    Value,        // the table's boolean or integer default
    None,         // no value (no product passcode)
    Empty,        // an empty list
    DefaultTitle, // the prompt's default title
    PageDecides,  // the owning page chooses
};

// Who writes the key and whether the write is announced with the change
// notification.
enum class Writer {
    CodeAnnounced,  // the page's code, then the change notification
    CodeSilent,     // the page's code, no notification (trusted networks)
    PlistRow,       // a specifier-plist row, written by the platform
};

struct PreferenceKey {
    std::string_view key;
    KeyType type;
    Absent absent;
    bool absentBool;        // when type is Boolean and absent is Value
    int64_t absentInteger;  // when type is Integer and absent is Value
    Writer writer;
    std::string_view owner;  // the page that writes the key
};

inline constexpr PreferenceKey kPreferenceKeys[] = {
    {"Enabled", KeyType::Boolean, Absent::Value, true, 0, Writer::PlistRow, "root page"},
    {"passcode", KeyType::String, Absent::None, false, 0, Writer::CodeAnnounced, "passcode pages"},
    {"protected", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced, "applications list"},
    {"protectedNotifications", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced,
     "application notifications list"},
    {"protectedFolders", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced, "folders list"},
    {"protectedCCItems", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced,
     "Control Center items list"},
    {"protectedCCSettingsItems", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced,
     "CCSettings items list"},
    {"protectedSettings", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced,
     "settings-pane list"},
    {"protectedSwitches", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced, "toggle list"},
    {"allowedWiFis", KeyType::DictionaryArray, Absent::Empty, false, 0, Writer::CodeSilent,
     "trusted networks page"},
    {"IconColor", KeyType::Integer, Absent::Value, false, 4, Writer::CodeAnnounced, "appearance cells"},
    {"alertTitle", KeyType::String, Absent::DefaultTitle, false, 0, Writer::CodeAnnounced, "alert-title page"},
    {"waitUntilFinished", KeyType::Boolean, Absent::PageDecides, false, 0, Writer::PlistRow, "delay page"},
};

// The table entry of a key; nullptr for keys the table does not name.
const PreferenceKey *findPreferenceKey(std::string_view key);

// Readers of a stored value (nullptr when the key is absent). Booleans and
// integers are both numbers in the domain, so a boolean reads any number
// (non-zero is true) and an integer reads any number (reals truncated
// toward zero when in range). Anything else is wrong-typed and gives the
// absent value.
bool readBool(const plist::Value *v, bool absent);
int64_t readInteger(const plist::Value *v, int64_t absent);
// nullopt when absent or not a string; the empty string is a value.
std::optional<std::string> readString(const plist::Value *v);
// The string entries of an array, in order (other entries skipped); empty
// when absent or not an array.
std::vector<std::string> readStringArray(const plist::Value *v);
// The dictionary entries of an array, in order (other entries skipped).
std::vector<plist::Value> readDictionaryArray(const plist::Value *v);

// Table-driven forms: the absent value comes from the key's entry (false
// and 0 for keys outside the table or whose page decides).
bool readBoolForKey(std::string_view key, const plist::Value *v);
int64_t readIntegerForKey(std::string_view key, const plist::Value *v);

}  // namespace tessarin
