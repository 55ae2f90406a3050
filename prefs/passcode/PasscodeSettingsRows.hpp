// Which rows the passcode settings page keeps, and the footer of its group.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/LocalText.hpp"

namespace tessarin::passcode {

struct SettingsContext {
  bool passcodeStored = false;  ///< any value under "passcode"
  bool biometric = false;       ///< the device has a biometric sensor
  bool faceID = false;          ///< the device has Face ID hardware
};

/// The row identifiers the page knows.
inline constexpr const char *kAddRowID = "ADD_TESSARIN_PASSCODE";
inline constexpr const char *kChangeRowID = "CHANGE_TESSARIN_PASSCODE";
inline constexpr const char *kRemoveRowID = "REMOVE_TESSARIN_PASSCODE";
inline constexpr const char *kUseOnlyRowID = "USE_ONLY_TESSARIN_PASSCODE";

/// The specifier file the rows are loaded from.
inline constexpr const char *kSettingsPlistName = "TessarinPasscodeProtection";
/// Name of the use-only switch on Face ID devices, instead of the file's; it
/// goes into the row's "label" and "name" properties and its name.
inline constexpr LocalText kUseOnlyFaceIDName{"USE_ONLY_PASSCODE_NO_FACE_ID", "Use only passcode (no FaceID)"};

/// The footers. Each is a whole sentence per device, so that every language can
/// word it; the English texts are kept exactly as users know them, including the
/// two blanks before " FaceID" (the filler brings its own) and "them main". With a
/// passcode stored, the link follows the footer after one blank.
inline constexpr LocalText kRecoveryFaceIDFooter{
    "PASSCODE_FOOTER_RECOVERY_FACE_ID",
    "In this page you can add a recovery passcode in cases where your BiometricID is repeatedly not "
    "recognized. This passcode is different from your device passcode. If you forgot your passcode, you can "
    "clear it using  FaceID."};
inline constexpr LocalText kRecoveryTouchIDFooter{
    "PASSCODE_FOOTER_RECOVERY_TOUCH_ID",
    "In this page you can add a recovery passcode in cases where your BiometricID is repeatedly not "
    "recognized. This passcode is different from your device passcode. If you forgot your passcode, you can "
    "clear it using TouchID."};
inline constexpr LocalText kForgotPasscodeLink{"FORGOT_PASSCODE_LINK", "I forgot my passcode..."};
inline constexpr LocalText kFaceFooter{
    "PASSCODE_FOOTER_FACE",
    "In this page you can add a Tessarin passcode in cases where your face is repeatedly not recognized. "
    "This passcode is different from your device passcode."};
inline constexpr LocalText kFingerprintFooter{
    "PASSCODE_FOOTER_FINGERPRINT",
    "In this page you can add a Tessarin passcode in cases where your fingerprint is repeatedly not "
    "recognized. This passcode is different from your device passcode."};
inline constexpr LocalText kPlainFooter{
    "PASSCODE_FOOTER_NO_BIOMETRICS",
    "In this page you can add them main Tessarin passcode. This passcode is different from your device "
    "passcode."};

/// Footer link: the properties of the group row that carry it.
inline constexpr const char *kFooterCellClass = "PSFooterHyperlinkView";
inline constexpr const char *kFooterLinkAction = "forgotTapped:";

struct SettingsFooter {
  std::string text;
  bool hasLink = false;
  /// The link's range in UTF-16 units: it starts one unit before the link text
  /// and is as long as the link text, so it takes in the blank before "I forgot
  /// my passcode..." and leaves out its last full stop (in English: location =
  /// length - 24, length 23).
  std::size_t linkLocation = 0;
  std::size_t linkLength = 0;
};

/// The footer in the language `lookup` gives (English without one).
SettingsFooter settingsFooter(const SettingsContext &ctx, TextLookup lookup = englishText);

/// The number of UTF-16 units of a UTF-8 text (as the platform measures ranges).
std::size_t utf16Length(std::string_view utf8);

enum class RowAction {
  None,  // the row as the specifier file defines it (the use-only switch)
  AddPassword,
  ChangePassword,
  RemovePassword,
};

/// The selector name of a button action ("addPassword", ...); empty for None.
std::string_view actionSelector(RowAction action);

struct KeptRow {
  std::size_t index = 0;  ///< position in the loaded rows
  std::string_view id;    ///< one of the k...RowID constants
  RowAction action = RowAction::None;
  bool renameForFaceID = false;  ///< give it kUseOnlyFaceIDName
};

/// The loaded rows to keep, in their loaded order, given their "id"
/// properties (empty for a row without one). Unknown rows are dropped.
std::vector<KeptRow> keptSettingsRows(const SettingsContext &ctx, const std::vector<std::string> &loadedIDs);

}  // namespace tessarin::passcode
