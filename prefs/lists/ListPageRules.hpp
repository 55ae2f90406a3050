// The rules of the settings-pane, toggle and caller-ID pages, apart from the
// platform: which source rows become what, the item a row stands for, and the
// texts a Face ID device shows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/LocalText.hpp"

namespace tessarin::lists {

/// The Settings app's own list, as the settings-pane page mirrors it.
enum class PaneRow {
  Skip,    // this product's own pane
  Group,   // a section of the Settings list: an empty group
  Switch,  // a pane: a switch row
};
inline constexpr std::string_view kOwnPaneName = "Tessarin";
inline constexpr int kGroupCellType = 0;
PaneRow paneRow(std::string_view name, int cellType);

/// The item a pane or toggle row stands for in its list: its "id", else its name.
std::string rowItem(const std::optional<std::string> &identifier, std::string_view name);

/// Toggles of the toggle library: every switch but this product's own.
bool listsToggle(std::string_view switchIdentifier);

/// The caller-ID page on a Face ID device: the text of a row's property as shown
/// there (unchanged for rows and properties the adaptation does not touch).
inline constexpr std::string_view kCallerTopRow = "CALLERID_TOP";
inline constexpr std::string_view kCallerFingerUpRow = "CALLERID_FINGER_UP";
inline constexpr std::string_view kCallerHideRow = "CALLERID_HIDE_CALLER";
inline constexpr LocalText kHideCallerFaceIDTitle{"CALLERID_HIDE_CALLER_FACE_ID", "Hide Caller on look away"};
/// The phrase of the finger-up footer that speaks of the finger, and what a Face ID
/// device reads instead. Each language gives the phrase exactly as its footer has it
/// (the English keeps the footer's missing "r").
inline constexpr LocalText kLiftFingerPhrase{"CALLERID_LIFT_FINGER_PHRASE", "lifting you finger"};
inline constexpr LocalText kLookAwayPhrase{"CALLERID_LOOK_AWAY_PHRASE", "looking away"};
/// The system's names, as the user's language writes them (most keep the English).
inline constexpr LocalText kTouchIDName{"TOUCH_ID", "Touch ID"};
inline constexpr LocalText kFaceIDName{"FACE_ID", "Face ID"};
enum class RowText { Footer, Label, Name };
/// `text` is in the language `lookup` gives (English without one).
std::string faceIDText(std::string_view row, RowText property, std::string_view text, TextLookup lookup = englishText);

}  // namespace tessarin::lists
