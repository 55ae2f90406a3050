// The Control Center pages' tables and rules: the rows of the two layouts,
// the modules skipped, the module titles and images, the CCSettings titles and
// the CCSettings order.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/LocalText.hpp"
#include "core/plist/Value.hpp"

namespace tessarin::lists {

inline constexpr const char *kSystemModulesDirectory = "/System/Library/ControlCenter/Bundles";
inline constexpr const char *kAddOnModulesDirectory = "/Library/ControlCenter/Bundles";
inline constexpr const char *kCCSupportLibrary = "/Library/MobileSubstrate/DynamicLibraries/CCSupport.dylib";
inline constexpr const char *kPreferencesFramework = "/System/Library/PrivateFrameworks/Preferences.framework/";
inline constexpr const char *kSharingFramework = "/System/Library/PrivateFrameworks/Sharing.framework";
inline constexpr const char *kConnectivityModule = "/System/Library/ControlCenter/Bundles/ConnectivityModule.bundle";
inline constexpr const char *kLegacyGameKitFramework = "/System/Library/PrivateFrameworks/LegacyGameKit.framework";
inline constexpr const char *kSpringBoardApp = "/System/Library/CoreServices/SpringBoard.app";
inline constexpr const char *kControlCenterUIFramework = "/System/Library/PrivateFrameworks/ControlCenterUI.framework";
inline constexpr const char *kCCSettingsBundle = "/Library/PreferenceBundles/CCSettingsPreferences.bundle/";
/// The CCSettings order file. The name is not ours: the extension keeps its
/// toggles' positions beside its own preferences, under its reverse-domain
/// preferences name with ".order.plist" appended, in the mobile user's
/// preferences folder.
inline constexpr const char *kCCSettingsPreferencesName = "com.ccsettings";
inline constexpr const char *kCCSettingsOrderFile = "/var/mobile/Library/Preferences/com.ccsettings.order.plist";

/// A row of a fixed table: its title, stored identifier, image name and the
/// bundle the image is taken from ("" for the one the layout names).
struct CCTableRow {
  LocalText title;
  std::string_view identifier;
  std::string_view image;
  std::string_view bundle;
};

/// Modular layout, connectivity rows from the settings icons (when the
/// Preferences framework has "AirplaneMode"), else from the connectivity glyphs.
extern const CCTableRow kConnectivitySettingsIconRows[6];
extern const CCTableRow kConnectivityGlyphRows[6];
inline constexpr const char *kConnectivityProbeImage = "AirplaneMode";
/// Classic layout: glyphs from SpringBoard, else from ControlCenterUI, drawn at 20 by 17.
extern const CCTableRow kClassicRows[5];
inline constexpr double kClassicGlyphWidth = 20;
inline constexpr double kClassicGlyphHeight = 17;
/// The corner radius of a modular row's icon, and the blend mode (source-in)
/// that tints a connectivity glyph white.
inline constexpr double kRoundedIconRadius = 6;
inline constexpr int kWhiteTintBlendMode = 18;

enum class CCLayout { Modular, Classic };
inline CCLayout controlCenterLayout(bool systemModulesDirectoryExists) {
  return systemModulesDirectoryExists ? CCLayout::Modular : CCLayout::Classic;
}
/// Add-on modules are listed only with both their directory and CCSupport.
inline bool listsAddOnModules(bool addOnDirectoryExists, bool ccSupportExists) {
  return addOnDirectoryExists && ccSupportExists;
}

/// The module bundles that get no row of their own.
extern const std::string_view kSkippedModules[6];
bool isSkippedModule(std::string_view bundleName);

/// The image a module's row shows, from the module bundle.
std::string_view moduleImageName(std::string_view bundleName);

/// A module row's title: "Screen Recording" for the screen-recording module (in
/// the language `lookup` gives); else the display name as it stands; else the
/// bundle name with every "Module" removed; none when the bundle has neither.
inline constexpr LocalText kScreenRecordingTitle{"CC_SCREEN_RECORDING", "Screen Recording"};
std::optional<std::string> moduleTitle(std::string_view bundleName, const std::optional<std::string> &displayName,
                                       const std::optional<std::string> &bundleDisplayName,
                                       TextLookup lookup = englishText);

/// Every occurrence of `word` removed from `text`.
std::string withoutWord(std::string_view text, std::string_view word);

/// A CCSettings toggle's title: four fixed titles, otherwise a blank inserted
/// before every upper-case letter and each word capitalised. The toggles of the
/// fixed list have their titles in the language `lookup` gives (English
/// without one); any other toggle keeps the English title made from its name.
std::string ccSettingsTitle(std::string_view identifier, TextLookup lookup = englishText);
struct CCSettingsTitle {
  std::string_view identifier;
  LocalText title;  ///< its English text is the title made from the identifier
};
extern const CCSettingsTitle kCCSettingsTitles[21];
/// The English title made from the identifier alone.
std::string madeCCSettingsTitle(std::string_view identifier);
/// Word-by-word capitalisation (first letter of each blank-separated word upper
/// case, the rest lower case), for ASCII letters.
std::string capitalisedWords(std::string_view text);
/// The icon name of a toggle: "LTE" for the one titled "LTE", else its identifier.
std::string ccSettingsIconName(std::string_view identifier);

/// The CCSettings toggles when the order file cannot be read.
extern const std::string_view kCCSettingsFixedOrder[21];
/// The toggle order from the order file (nullptr or not a dictionary: the fixed
/// list): the positions sorted ascending, and for each position every key that
/// holds it, in key order; so a position shared by two keys lists both, twice.
/// Positions that are not numbers (a hand-edited file) sort after the numbers, strings
/// first, and keep their keys: a toggle is never dropped from the page.
std::vector<std::string> ccSettingsOrder(const plist::Value *orderFile);

}  // namespace tessarin::lists
