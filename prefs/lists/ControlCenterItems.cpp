#include "lists/ControlCenterItems.hpp"

#include <algorithm>
#include <cmath>

namespace tessarin::lists {

namespace {
constexpr LocalText kAirplaneMode{"CC_AIRPLANE_MODE", "Airplane Mode"};
constexpr LocalText kCellularData{"CC_CELLULAR_DATA", "Cellular Data"};
constexpr LocalText kWiFi{"CC_WIFI", "WiFi"};
constexpr LocalText kBluetooth{"CC_BLUETOOTH", "Bluetooth"};
constexpr LocalText kAirDrop{"CC_AIRDROP", "AirDrop"};
constexpr LocalText kPersonalHotspot{"CC_PERSONAL_HOTSPOT", "Personal Hotspot"};
}  // namespace

const CCTableRow kConnectivitySettingsIconRows[6] = {
    {kAirplaneMode, "airplane", "AirplaneMode", kPreferencesFramework},
    {kCellularData, "cellular", "CellularData", kPreferencesFramework},
    {kWiFi, "wifi", "WiFi", kPreferencesFramework},
    {kBluetooth, "bluetooth", "Bluetooth", kPreferencesFramework},
    {kAirDrop, "airdrop", "AirDrop-Settings", kSharingFramework},
    {kPersonalHotspot, "hotspot", "PersonalHotspot", kPreferencesFramework},
};

const CCTableRow kConnectivityGlyphRows[6] = {
    {kAirplaneMode, "airplane", "AirplaneGlyph", kConnectivityModule},
    {kCellularData, "cellular", "CellularDataGlyph", kConnectivityModule},
    {kWiFi, "wifi", "WiFiSignalHighGlyph", kConnectivityModule},
    {kBluetooth, "bluetooth", "bt_logo", kLegacyGameKitFramework},
    {kAirDrop, "airdrop", "AirDropGlyph", kConnectivityModule},
    {kPersonalHotspot, "hotspot", "HotspotGlyph", kConnectivityModule},
};

// The classic layout takes each glyph from SpringBoard, else from ControlCenterUI.
// Its titles are its own ("Wifi", not "WiFi"): they have keys of their own.
const CCTableRow kClassicRows[5] = {
    {kAirplaneMode, "airplaneMode", "ControlCenterGlyphAirplane", ""},
    {{"CC_CLASSIC_WIFI", "Wifi"}, "wifi", "ControlCenterGlyphWifi", ""},
    {kBluetooth, "bluetooth", "ControlCenterGlyphBluetooth", ""},
    {{"CC_DO_NOT_DISTURB", "Do not disturb"}, "doNotDisturb", "ControlCenterGlyphMoon", ""},
    {{"CC_ORIENTATION_LOCK", "Orientation lock"}, "orientationLock", "ControlCenterGlyphOrientationLocked", ""},
};

const std::string_view kSkippedModules[6] = {
    "AudioModule.bundle",   "ConnectivityModule.bundle",    "MuteModule.bundle",
    "DisplayModule.bundle", "OrientationLockModule.bundle", "MediaControlsModule.bundle",
};

bool isSkippedModule(std::string_view bundleName) {
  return std::find(std::begin(kSkippedModules), std::end(kSkippedModules), bundleName) != std::end(kSkippedModules);
}

std::string_view moduleImageName(std::string_view bundleName) {
  if (bundleName == "AirPlayMirroringModule.bundle") return "AirPlayMirroringGlyph";
  if (bundleName == "DoNotDisturbModule.bundle") return "DND";
  return "SettingsIcon";
}

std::string withoutWord(std::string_view text, std::string_view word) {
  if (word.empty()) return std::string(text);
  std::string out;
  size_t at = 0;
  for (size_t found; (found = text.find(word, at)) != std::string_view::npos; at = found + word.size())
    out.append(text.substr(at, found - at));
  out.append(text.substr(at));
  return out;
}

std::optional<std::string> moduleTitle(std::string_view bundleName, const std::optional<std::string> &displayName,
                                       const std::optional<std::string> &bundleDisplayName, TextLookup lookup) {
  if (bundleName == "ReplayKitModule.bundle") return lookup(kScreenRecordingTitle);
  if (displayName) return displayName;
  if (bundleDisplayName) return withoutWord(*bundleDisplayName, "Module");
  return std::nullopt;
}

std::string capitalisedWords(std::string_view text) {
  std::string out(text);
  bool wordStart = true;
  for (char &c : out) {
    const bool blank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (blank) {
      wordStart = true;
      continue;
    }
    if (c >= 'a' && c <= 'z' && wordStart)
      c = static_cast<char>(c - 'a' + 'A');
    else if (c >= 'A' && c <= 'Z' && !wordStart)
      c = static_cast<char>(c - 'A' + 'a');
    wordStart = false;
  }
  return out;
}

const CCSettingsTitle kCCSettingsTitles[21] = {
    {"wifi", {"CCS_WIFI", "WiFi"}},
    {"airplaneMode", {"CCS_AIRPLANE_MODE", "Airplane Mode"}},
    {"location", {"CCS_LOCATION", "Location"}},
    {"doNotDisturb", {"CCS_DO_NOT_DISTURB", "Do Not Disturb"}},
    {"home", {"CCS_HOME", "Home"}},
    {"lock", {"CCS_LOCK", "Lock"}},
    {"bluetooth", {"CCS_BLUETOOTH", "Bluetooth"}},
    {"hotspot", {"CCS_HOTSPOT", "Hotspot"}},
    {"VPN", {"CCS_VPN", "VPN"}},
    {"autoLock", {"CCS_AUTO_LOCK", "Auto Lock"}},
    {"orientationLock", {"CCS_ORIENTATION_LOCK", "Orientation Lock"}},
    {"vibrate", {"CCS_VIBRATE", "Vibrate"}},
    {"mute", {"CCS_MUTE", "Mute"}},
    {"dataRate", {"CCS_LTE", "LTE"}},
    {"killbackground", {"CCS_KILL_BACKGROUND", "Kill Background"}},
    {"clearBadge", {"CCS_CLEAR_BADGE", "Clear Badge"}},
    {"shutdown", {"CCS_SHUTDOWN", "Shutdown"}},
    {"reboot", {"CCS_REBOOT", "Reboot"}},
    {"respring", {"CCS_RESPRING", "Respring"}},
    {"screenShot", {"CCS_SCREEN_SHOT", "Screen Shot"}},
    {"data", {"CCS_DATA", "Data"}},
};

std::string ccSettingsTitle(std::string_view identifier, TextLookup lookup) {
  for (const CCSettingsTitle &known : kCCSettingsTitles)
    if (known.identifier == identifier) return lookup(known.title);
  return madeCCSettingsTitle(identifier);
}

std::string madeCCSettingsTitle(std::string_view identifier) {
  if (identifier == "dataRate") return "LTE";
  if (identifier == "killbackground") return "Kill Background";
  if (identifier == "VPN") return "VPN";
  if (identifier == "wifi") return "WiFi";
  std::string split;
  for (char c : identifier) {
    if (c >= 'A' && c <= 'Z') split.push_back(' ');
    split.push_back(c);
  }
  return capitalisedWords(split);
}

std::string ccSettingsIconName(std::string_view identifier) {
  if (madeCCSettingsTitle(identifier) == "LTE") return "LTE";
  return std::string(identifier);
}

const std::string_view kCCSettingsFixedOrder[21] = {
    "wifi",           "airplaneMode", "location", "doNotDisturb",    "home",     "lock",       "bluetooth",
    "hotspot",        "VPN",          "autoLock", "orientationLock", "vibrate",  "mute",       "dataRate",
    "killbackground", "clearBadge",   "shutdown", "reboot",          "respring", "screenShot", "data",
};

namespace {

// Where a position sorts: numbers by value first (as NSNumber compares them), then
// strings, then whatever else the file holds. Positions are meant to be numbers; the
// others only need a place, not to be lost.
int positionRank(const plist::Value &position) {
  if (std::optional<double> number = position.numberValue()) return std::isnan(*number) ? 1 : 0;
  if (position.isString()) return 2;
  return 3;
}

bool positionBefore(const plist::Value &a, const plist::Value &b) {
  const int rankA = positionRank(a), rankB = positionRank(b);
  if (rankA != rankB) return rankA < rankB;
  if (rankA == 0) return *a.numberValue() < *b.numberValue();
  if (rankA == 2) return *a.asString() < *b.asString();
  return false;
}

// As the numbers' own equality, but a NaN is the same position as a NaN, so that its
// key is listed.
bool samePosition(const plist::Value &a, const plist::Value &b) {
  if (a.isNumber() && b.isNumber()) {
    const double x = *a.numberValue(), y = *b.numberValue();
    return x == y || (std::isnan(x) && std::isnan(y));
  }
  return a == b;
}

}  // namespace

std::vector<std::string> ccSettingsOrder(const plist::Value *orderFile) {
  const plist::Value::Dictionary *entries = orderFile ? orderFile->asDictionary() : nullptr;
  if (entries == nullptr) return {std::begin(kCCSettingsFixedOrder), std::end(kCCSettingsFixedOrder)};
  std::vector<const plist::Value *> positions;
  for (const plist::Value::Entry &e : *entries) positions.push_back(&e.second);
  std::stable_sort(positions.begin(), positions.end(),
                   [](const plist::Value *a, const plist::Value *b) { return positionBefore(*a, *b); });
  std::vector<std::string> order;
  for (const plist::Value *position : positions)
    for (const plist::Value::Entry &e : *entries)
      if (samePosition(e.second, *position)) order.push_back(e.first);
  return order;
}

}  // namespace tessarin::lists
