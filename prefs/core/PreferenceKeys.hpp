// The keys of the preference domain: every key the bundle's code reads or
// writes and every key its specifier-plist rows carry, with their types,
// their meaning when absent, the page that writes them and whether a write
// is announced; plus readers that apply those defaults to a stored value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin {

enum class KeyType { Boolean, Integer, String, StringArray, DictionaryArray };

enum class Absent {
  Value,         // the table's boolean or integer default
  None,          // no value (no product passcode)
  Empty,         // an empty list
  DefaultTitle,  // the prompt's default title
  PageDecides,   // the owning page chooses
};

/// Who writes the key and whether the write is announced with the change
/// notification.
enum class Writer {
  CodeAnnounced,  // the page's code, then the change notification
  CodeSilent,     // the page's code, no notification (trusted networks)
  PlistRow,       // a specifier-plist row, written by the platform, which
                  // posts the row's "PostNotification" (the change notification)
};

struct PreferenceKey {
  std::string_view key;
  KeyType type;
  Absent absent;
  bool absentBool;        ///< when type is Boolean and absent is Value
  int64_t absentInteger;  ///< when type is Integer and absent is Value
  Writer writer;
  std::string_view owner;  ///< the page that writes the key
  std::string_view row;    ///< the id of the specifier-plist row that writes it, if one does

  /// The key for the store's C interface; every key is a string literal, so
  /// its view ends at a NUL (checked below).
  constexpr const char *name() const { return key.data(); }
};

// Every key of the domain that the bundle reads or writes, and every key a
// specifier-plist row of the bundle carries. Pages name keys only through
// these entries: storePreference / storedPreference (core/PreferenceStore.h)
// take an entry; the readers outside the store (the Wi-Fi manager's direct
// CFPreferences read, the delay page's defaults suite) use its name().
namespace key {
inline constexpr PreferenceKey kEnabled{"Enabled", KeyType::Boolean, Absent::Value, true,
                                        0,         Writer::PlistRow, "root page",   "ENABLED"};
inline constexpr PreferenceKey kPasscode{"passcode", KeyType::String,       Absent::None,     false,
                                         0,          Writer::CodeAnnounced, "passcode pages", ""};
inline constexpr PreferenceKey kProtected{"protected", KeyType::StringArray,  Absent::Empty,       false,
                                          0,           Writer::CodeAnnounced, "applications list", ""};
inline constexpr PreferenceKey kProtectedNotifications{"protectedNotifications",
                                                       KeyType::StringArray,
                                                       Absent::Empty,
                                                       false,
                                                       0,
                                                       Writer::CodeAnnounced,
                                                       "application notifications list",
                                                       ""};
inline constexpr PreferenceKey kProtectedFolders{
    "protectedFolders", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced, "folders list", ""};
inline constexpr PreferenceKey kProtectedCCItems{"protectedCCItems",
                                                 KeyType::StringArray,
                                                 Absent::Empty,
                                                 false,
                                                 0,
                                                 Writer::CodeAnnounced,
                                                 "Control Center items list",
                                                 ""};
inline constexpr PreferenceKey kProtectedCCSettingsItems{"protectedCCSettingsItems",
                                                         KeyType::StringArray,
                                                         Absent::Empty,
                                                         false,
                                                         0,
                                                         Writer::CodeAnnounced,
                                                         "CCSettings items list",
                                                         ""};
inline constexpr PreferenceKey kProtectedSettings{"protectedSettings",
                                                  KeyType::StringArray,
                                                  Absent::Empty,
                                                  false,
                                                  0,
                                                  Writer::CodeAnnounced,
                                                  "settings-pane list",
                                                  ""};
inline constexpr PreferenceKey kProtectedSwitches{
    "protectedSwitches", KeyType::StringArray, Absent::Empty, false, 0, Writer::CodeAnnounced, "toggle list", ""};
inline constexpr PreferenceKey kAllowedWiFis{
    "allowedWiFis", KeyType::DictionaryArray, Absent::Empty, false, 0, Writer::CodeSilent, "trusted networks page", ""};
inline constexpr PreferenceKey kIconColor{"IconColor", KeyType::Integer,      Absent::Value,      false,
                                          4,           Writer::CodeAnnounced, "appearance cells", ""};
inline constexpr PreferenceKey kAlertTitle{
    "alertTitle", KeyType::String, Absent::DefaultTitle, false, 0, Writer::CodeAnnounced, "alert-title page", ""};
inline constexpr PreferenceKey kWaitUntilFinished{"waitUntilFinished", KeyType::Boolean, Absent::PageDecides, false, 0,
                                                  Writer::PlistRow,    "delay page",     "WAIT_TILL_FINISH"};
/// Keys that only a plist row carries: the code knows these rows by id.
inline constexpr PreferenceKey kKeepSession{"keepSession",    KeyType::Boolean, Absent::Value, false, 0,
                                            Writer::PlistRow, "root page",      "KEEP_SESSION"};
inline constexpr PreferenceKey kUnlockWithTouchID{"unlockWithTouchID", KeyType::Boolean, Absent::Value,        true, 0,
                                                  Writer::PlistRow,    "root page",      "UNLOCK_WITH_TOUCHID"};
inline constexpr PreferenceKey kUseOnlyPasscode{
    "useOnlyPasscode",           KeyType::Boolean, Absent::Value, false, 0, Writer::PlistRow, "passcode settings page",
    "USE_ONLY_TESSARIN_PASSCODE"};
inline constexpr PreferenceKey kErrorHaptic{"errorHaptic",    KeyType::Integer, Absent::Value,    false, 2,
                                            Writer::PlistRow, "haptic page",    "HAPTIC_ON_ERROR"};
inline constexpr PreferenceKey kWaitDelay{"waitDelay", KeyType::Boolean, Absent::Value, false,
                                          0,           Writer::PlistRow, "delay page",  "WAIT_DELAY"};
inline constexpr PreferenceKey kDelayTime{"delayTime", KeyType::Integer, Absent::Value, false,
                                          3,           Writer::PlistRow, "delay page",  "DELAY_TIME"};
inline constexpr PreferenceKey kProtectCallerID{"protectCallerID", KeyType::Boolean, Absent::Value,     false, 0,
                                                Writer::PlistRow,  "caller ID page", "CALLERID_PROTECT"};
inline constexpr PreferenceKey kHideCallerOnFingerUp{
    "hideCallerOnFingerUp", KeyType::Boolean, Absent::Value,         false, 0,
    Writer::PlistRow,       "caller ID page", "CALLERID_HIDE_CALLER"};
inline constexpr PreferenceKey kProtectPowerDown{"protectPowerDown", KeyType::Boolean,  Absent::Value,       false, 0,
                                                 Writer::PlistRow,   "power-down page", "PROTECT_POWER_DOWN"};
inline constexpr PreferenceKey kProtectRestart{"protectRestart", KeyType::Boolean,  Absent::Value,    false, 0,
                                               Writer::PlistRow, "power-down page", "PROTECT_RESTART"};
}  // namespace key

inline constexpr PreferenceKey kPreferenceKeys[] = {
    key::kEnabled,
    key::kPasscode,
    key::kProtected,
    key::kProtectedNotifications,
    key::kProtectedFolders,
    key::kProtectedCCItems,
    key::kProtectedCCSettingsItems,
    key::kProtectedSettings,
    key::kProtectedSwitches,
    key::kAllowedWiFis,
    key::kIconColor,
    key::kAlertTitle,
    key::kWaitUntilFinished,
    key::kKeepSession,
    key::kUnlockWithTouchID,
    key::kUseOnlyPasscode,
    key::kErrorHaptic,
    key::kWaitDelay,
    key::kDelayTime,
    key::kProtectCallerID,
    key::kHideCallerOnFingerUp,
    key::kProtectPowerDown,
    key::kProtectRestart,
};

namespace detail {
constexpr bool keysEndAtNul() {
  for (const PreferenceKey &k : kPreferenceKeys)
    if (k.key.empty() || k.key.data()[k.key.size()] != '\0') return false;
  return true;
}
constexpr bool keysAreUnique() {
  for (size_t i = 0; i < std::size(kPreferenceKeys); i++)
    for (size_t j = i + 1; j < std::size(kPreferenceKeys); j++)
      if (kPreferenceKeys[i].key == kPreferenceKeys[j].key) return false;
  return true;
}
}  // namespace detail
static_assert(detail::keysEndAtNul(), "preference keys are passed on as C strings");
static_assert(detail::keysAreUnique(), "a key has one entry");

/// Whether a write of the key is followed by the change notification: every
/// write is, except the trusted-network list's.
constexpr bool postsChangeSignal(const PreferenceKey &k) { return k.writer != Writer::CodeSilent; }

/// Removing the whole domain ("reset all") is announced once, as a write is.
inline constexpr bool kResetAllPostsChangeSignal = true;

/// The table entry of a key; nullptr for keys the table does not name.
const PreferenceKey *findPreferenceKey(std::string_view key);

/// Readers of a stored value (nullptr when the key is absent). Booleans and
/// integers are both numbers in the domain, so a boolean reads any number
/// (non-zero is true) and an integer reads any number (reals truncated
/// toward zero when in range). Anything else is wrong-typed and gives the
/// absent value.
bool readBool(const plist::Value *v, bool absent);
int64_t readInteger(const plist::Value *v, int64_t absent);
/// nullopt when absent or not a string; the empty string is a value.
std::optional<std::string> readString(const plist::Value *v);

/// Table-driven forms: the absent value comes from the key's entry (false
/// and 0 for keys outside the table or whose page decides).
bool readBoolForKey(std::string_view key, const plist::Value *v);
int64_t readIntegerForKey(std::string_view key, const plist::Value *v);

}  // namespace tessarin
