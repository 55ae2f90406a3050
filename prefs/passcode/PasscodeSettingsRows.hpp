// Which rows the passcode settings page keeps, and the footer of its group.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

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
/// Fixed (not localised) name of the use-only switch on Face ID devices; it
/// goes into the row's "label" and "name" properties and its name.
inline constexpr const char *kUseOnlyFaceIDName = "Use only passcode (no FaceID)";

/// Footer link: the properties of the group row that carry it.
inline constexpr const char *kFooterCellClass = "PSFooterHyperlinkView";
inline constexpr const char *kFooterLinkAction = "forgotTapped:";

struct SettingsFooter {
  std::string text;
  bool hasLink = false;
  /// The link's range in UTF-16 units (the footers are ASCII, so these are
  /// also byte offsets): location = length - 24, length 23. It takes in the
  /// blank before "I forgot my passcode..." and leaves out its last full stop.
  std::size_t linkLocation = 0;
  std::size_t linkLength = 0;
};

SettingsFooter settingsFooter(const SettingsContext &ctx);

enum class RowAction {
  None,  // the row as the specifier file defines it (the use-only switch)
  AddPassword,
  ChangePassword,
  RemovePassword,
};

/// The selector name of a button action ("addPassword", ...); empty for None.
std::string_view actionSelector(RowAction action);

struct KeptRow {
  std::size_t index = 0;      ///< position in the loaded rows
  std::string_view id;        ///< one of the k...RowID constants
  RowAction action = RowAction::None;
  bool renameForFaceID = false;  ///< give it kUseOnlyFaceIDName
};

/// The loaded rows to keep, in their loaded order, given their "id"
/// properties (empty for a row without one). Unknown rows are dropped.
std::vector<KeptRow> keptSettingsRows(const SettingsContext &ctx,
                                      const std::vector<std::string> &loadedIDs);

}  // namespace tessarin::passcode
