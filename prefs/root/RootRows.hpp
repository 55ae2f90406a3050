// The root page's rows: which of the plist rows the user sees on this device,
// which of them are greyed, and the rows the page adds on its own (status
// warning, device-authentication row, credits block).
//
// The page gathers facts from the platform into the structs below, asks
// `planRootRows`, and applies the plan to its PSSpecifier rows. Every string
// constant here is backed by a string literal, so `.data()` is NUL-terminated.
// Texts the user reads are LocalTexts: their key in the bundle's table and their
// English text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/FunctionRef.hpp"
#include "core/LocalText.hpp"
#include "core/SystemVersion.hpp"

namespace tessarin::root {

/// Row identifiers ("id" of the plist rows and of the rows added here).
inline constexpr std::string_view kTrustedWarningGroupId = "TRUSTED_WARNING_GROUP";
inline constexpr std::string_view kTrustedWarningId = "TRUSTED_WARNING";
inline constexpr std::string_view kExtrasId = "EXTRAS";
inline constexpr std::string_view kUnlockWithTouchIdId = "UNLOCK_WITH_TOUCHID";
inline constexpr std::string_view kCircleColorId = "CIRCLE_COLOR";
inline constexpr std::string_view kVibrateOnErrorId = "VIBRATE_ON_ERROR";
inline constexpr std::string_view kFlipswitchesId = "FLIPSWITCHES";
inline constexpr std::string_view kControlCenterId = "CONTROLCENTER";
inline constexpr std::string_view kCCSettingsId = "CCSETTINGS_KEY";
inline constexpr std::string_view kApplicationsNotificationsId = "APPLICATIONS_NOTIFICATIONS_KEY";
inline constexpr std::string_view kCallerIdProtectionId = "CALLER_ID_PROTECTION_KEY";
inline constexpr std::string_view kResetAllId = "RESET_ALL";
inline constexpr std::string_view kPasscodeOptionsId = "PASSCODE_OPTIONS";
inline constexpr std::string_view kCrashLogsId = "CRASH_LOGS";
inline constexpr std::string_view kTrustedWiFiNetworksId = "TRUSTED_WIFI_NETWORKS";
inline constexpr std::string_view kKeepSessionId = "KEEP_SESSION";

/// The plist the rows are loaded from.
inline constexpr std::string_view kRowsPlistName = "TessarinPrefs";

/// Cell types of the Preferences framework used by the added rows.
inline constexpr int kGroupCellType = 0;
inline constexpr int kLinkCellType = 1;
inline constexpr int kDeviceAuthCellType = 2;
inline constexpr int kStaticTextCellType = 4;

// ---------------------------------------------------------------------------
// Early exits: the page is a single group with one of these footers.

inline constexpr LocalText kLibraryMissingFooter{
    "LIBRARY_MISSING",
    "SpringBoard library is not correctly installed or not correctly loaded. If you can see this, "
    "this tweak can load correctly in settings but not in SpringBoard. Re-install or check our "
    "jailbreak settings."};
/// Names iOS 16 although iOS 17 is accepted as well.
inline constexpr LocalText kUnsupportedSystemFooter{"UNSUPPORTED_SYSTEM",
                                                    "This app is optimized only for iOS 12 to iOS 16."};

/// The footer of the single-group page, or nothing when the full page is built.
/// `libraryVersion` is the cached SpringBoard library version after asking for
/// it; `supportedSystem` is the answer of the system-version check.
std::optional<LocalText> singleGroupFooter(std::uint32_t libraryVersion, bool supportedSystem);

// ---------------------------------------------------------------------------
// SpringBoard did not answer the second library-version request: the rows are
// built all the same, but this alert (alert style, one cancel-style action
// that does nothing) is shown and the emergency flag is set.

/// The title is the product's name, the same in every language.
inline constexpr LocalText kNoSpringBoardTitle{"", "Tessarin Nova"};
inline constexpr LocalText kNoSpringBoardMessage{
    "NO_SPRINGBOARD",
    "WARNING! Tessarin Nova cannot communicate with SpringBoard. Your device may be in safe mode or "
    "the Tessarin library is missing. Try to respring or to re-install Tessarin and mobilesubstrate"};
inline constexpr LocalText kNoSpringBoardAction{"OKAY", "Okay"};

// ---------------------------------------------------------------------------
// Passcode state.

/// Biometrics are set up unless the "idsn" value is below 1; a missing reply or
/// a reply without the value counts as below 1.
bool biometricsSet(std::optional<long long> idsnValue);

// ---------------------------------------------------------------------------
// The status warning row.

inline constexpr LocalText kGraceWarningText{
    "GRACE_PERIOD_WARNING",
    "Tessarin is disabled.\n(You have authenticated once after unlock \nand you use \"Grace Period\")"};
inline constexpr LocalText kTrustedWarningText{"TRUSTED_NETWORK_WARNING",
                                               "Tessarin is disabled.\n(You are connected to a Trusted WiFi Network)"};
inline constexpr double kGraceWarningHeight = 70;
inline constexpr double kTrustedWarningHeight = 45;
inline constexpr std::string_view kWarningCellClass = "TessarinTrustedWiFiWarningCell";

struct WarningRow {
  LocalText title;
  double height;
};

/// The warning row to add above the plist rows, if any. The grace period wins
/// over the trusted network. No row is added when the plist already has one.
std::optional<WarningRow> warningRow(bool gracePeriod, bool trustedNetwork, bool plistHasWarningRow);

// ---------------------------------------------------------------------------
// Keeping or dropping the plist rows.

struct DeviceFacts {
  bool biometricSensor = false;  ///< iPhone64Bit
  bool faceID = false;           ///< hasPearl
  bool iPad = false;             ///< user interface idiom 1
  bool iOS8 = false;
  bool iOS10 = false;
  bool iOS11 = false;
};

DeviceFacts deviceFacts(bool biometricSensor, bool faceID, bool iPad, const SystemVersionFlags &system);

/// How the file system is asked about add-on libraries; the page answers from the device.
class FileProbe {
 public:
  virtual ~FileProbe() = default;
  /// Whether a file exists at a device path.
  virtual bool exists(std::string_view path) const = 0;
  /// The device path's form under the jail root.
  virtual std::string jailRoot(std::string_view path) const = 0;
};

struct ProbePath {
  std::string_view path;
  bool underJailRoot;  ///< probe the jail-root form of `path`
};

/// Probed in this order; the first file found ends the probe.
inline constexpr std::array<ProbePath, 3> kToggleLibraryProbes = {{
    {"/usr/lib/libflipswitch.dylib", false},
    {"/bootstrap/usr/lib/libflipswitch.dylib", false},
    {"/usr/lib/libflipswitch.dylib", true},
}};
/// Either Control Center add-on hides the built-in Control Center page.
inline constexpr std::array<ProbePath, 5> kControlCenterAddOnProbes = {{
    {"/bootstrap/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib", false},
    {"/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib", true},
    {"/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib", false},
    {"/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib", false},
    {"/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib", true},
}};
/// No jail-root form here, unlike the probe above: kept as it is.
inline constexpr std::array<ProbePath, 2> kCCSettingsProbes = {{
    {"/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib", false},
    {"/bootstrap/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib", false},
}};

/// True when the file exists (at its jail-root form when so marked).
bool fileExists(const ProbePath &path, const FileProbe &probe);

/// True when a file exists at one of the paths, asked in order up to the first found.
template <std::size_t N>
bool anyExists(const std::array<ProbePath, N> &paths, const FileProbe &probe) {
  for (const ProbePath &path : paths) {
    if (fileExists(path, probe)) return true;
  }
  return false;
}

enum class RowAction {
  Drop,
  Keep,
  KeepWithoutFooter,  // remove the row's "footerText" property
  KeepAsResetTarget,  // set the row's "target" to the page (wrapped pointer)
};

/// What happens to one plist row, by its id.
RowAction rowAction(std::string_view id, const DeviceFacts &device, const FileProbe &probe);

// ---------------------------------------------------------------------------
// Greying rows out.

/// Until biometrics or the product passcode are set, nothing can be protected:
/// every row but the passcode page, the logs, reset and trusted networks gets
/// "enabled" = false.
bool rowDisabled(std::string_view id, bool biometricsAreSet, bool productPasscodeSet);

// ---------------------------------------------------------------------------
// The device-authentication row (only on a device with a biometric sensor).

/// The device passcode's characteristics as the passcode manager reports them.
/// Missing values read as false / 0, which chooses the complex passcode page.
struct PasscodeCharacteristics {
  bool allDigits = false;
  bool hasAlpha = false;
  long long length = 0;
};

/// A 4- or 6-digit passcode is entered on the simple passcode page; anything
/// else on the complex one.
bool isSimplePasscode(const PasscodeCharacteristics &characteristics);

/// The system's own page names, in the system's wording.
inline constexpr LocalText kFaceIdRowName{"FACE_ID_PASSCODE", "Face ID & Passcode"};
inline constexpr LocalText kTouchIdRowName{"TOUCH_ID", "Touch ID"};
inline constexpr std::string_view kPearlPasscodeControllerClass = "PSUIPearlPasscodeController";
inline constexpr std::string_view kTouchIdPasscodeControllerClass = "PSTouchIDPasscodeController";
inline constexpr std::string_view kMesaSettingsControllerClass = "PSMesaSettingsController";
inline constexpr std::string_view kLoadUserPasswordAction = "loadUserPasswordController";
inline constexpr std::string_view kLoadUserComplexPasswordAction = "loadUserComplexPasswordController";

struct DeviceAuthRow {
  LocalText name;
  /// Exactly one of these is set: the system's own page as the row's detail
  /// class (the device has no passcode), or the page's action that loads the
  /// device-passcode check (target: the page).
  std::string_view detailClass;
  std::string_view loadAction;
  std::size_t groupIndex;  ///< an empty group is inserted here ...
  std::size_t rowIndex;    ///< ... and the row right after it
};

/// `devicePasscode` is absent when the device has no passcode. `classExists`
/// tells whether a class of that name exists at run time (a missing predicate
/// answers false). The indexes are fixed: 7/8, or 9/10 below a warning row.
std::optional<DeviceAuthRow> deviceAuthRow(const DeviceFacts &device,
                                           const std::optional<PasscodeCharacteristics> &devicePasscode,
                                           bool warningAdded, FunctionRef<bool(std::string_view)> classExists);

// ---------------------------------------------------------------------------
// The credits block at the bottom: an empty group, the credits row, and the
// "more apps" group whose footer view opens the maker's catalogue.

inline constexpr LocalText kCreditsText{"CREDITS", "Tessarin by Corvane"};
inline constexpr std::string_view kCreditsCellClass = "TessarinCreditsCell";
inline constexpr int kCreditsCellType = kStaticTextCellType;
inline constexpr int kCreditsAlignment = 2;
inline constexpr LocalText kMoreAppsFooter{"MORE_APPS", "More apps by Corvane"};
inline constexpr std::string_view kMoreAppsAction = "infoTapped:";
inline constexpr std::string_view kMoreAppsFooterCellClass = "TessarinLabelView";
inline constexpr double kMoreAppsHeight = 50;

// ---------------------------------------------------------------------------
// The whole list, after the early exits.

struct RootPageFacts {
  DeviceFacts device;
  bool biometricsSet = false;       ///< see biometricsSet()
  bool productPasscodeSet = false;  ///< the "passcode" preference is present
  bool gracePeriod = false;         ///< grace-period state above 0
  bool trustedNetwork = false;      ///< on a trusted Wi-Fi network
  /// Only read when the device has a biometric sensor; absent = no device passcode.
  std::optional<PasscodeCharacteristics> devicePasscode;
};

enum class PlannedRowKind {
  Loaded,           // the plist row at `loadedIndex`, treated as `action`
  WarningGroup,     // empty group, id kTrustedWarningGroupId
  Warning,          // the plan's `warning` row, id kTrustedWarningId
  DeviceAuthGroup,  // empty group
  DeviceAuth,       // the plan's `deviceAuth` row
  CreditsGroup,     // empty group
  Credits,          // credits row
  MoreAppsGroup,    // group with the "more apps" footer
};

struct PlannedRow {
  PlannedRowKind kind;
  std::size_t loadedIndex = 0;         ///< Loaded only
  RowAction action = RowAction::Keep;  ///< Loaded only; never Drop
  bool disabled = false;               ///< set "enabled" to false
};

struct RootRowsPlan {
  std::optional<WarningRow> warning;
  std::optional<DeviceAuthRow> deviceAuth;
  std::vector<PlannedRow> rows;  ///< the page's rows, in order
};

/// `loadedIds` are the ids of the plist rows in plist order (empty for a row
/// without one). When the list is too short for the fixed insertion indexes,
/// the device-authentication rows go at its end.
RootRowsPlan planRootRows(const std::vector<std::string> &loadedIds, const RootPageFacts &facts, const FileProbe &probe,
                          FunctionRef<bool(std::string_view)> classExists);

}  // namespace tessarin::root
