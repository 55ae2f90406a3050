// The decisions shared by the passcode pages: what a page does after an
// entry (a Step), the texts the pages show, and the timings and geometry of
// their views and animations. The Objective-C pages only carry these out.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Geometry.hpp"

namespace tessarin::passcode {

// ---------------------------------------------------------------------------
// Texts

/// Where a text is looked up.
enum class TextTable {
  Bundle,        // the preference bundle's own strings, default table
  GuidedAccess,  // the system Accessibility bundle, table "GuidedAccessSettings"
};

inline constexpr const char *kAccessibilityBundlePath =
    "/System/Library/PreferenceBundles/AccessibilitySettings.bundle";
inline constexpr const char *kGuidedAccessTable = "GuidedAccessSettings";

/// A localisable text: lookup key, English default and the table to look in.
/// An empty key stands for the empty string (no lookup).
struct Text {
  std::string_view key;
  std::string_view defaultText;
  TextTable table = TextTable::Bundle;

  constexpr bool empty() const { return key.empty(); }
};

constexpr bool operator==(const Text &a, const Text &b) {
  return a.key == b.key && a.defaultText == b.defaultText && a.table == b.table;
}
constexpr bool operator!=(const Text &a, const Text &b) { return !(a == b); }

namespace text {
inline constexpr Text kNone{};
inline constexpr Text kAddTitle{"ADD_TESSARIN_PASSCODE", "Add a Tessarin passcode"};
inline constexpr Text kCancel{"CANCEL", "Cancel"};
inline constexpr Text kEnter{"ENTER_TESSARIN_PASSCODE", "Enter a Tessarin passcode"};
inline constexpr Text kReenter{"REENTER_TESSARIN_PASSCODE", "Re-enter Tessarin passcode"};
inline constexpr Text kMismatch{"PASSCODES_DID_NOT_MATCH_TRY_AGAIN", "Passcodes didn't match. Try again."};
inline constexpr Text kEnterOld{"ENTER_OLD_TESSARIN_PASSCODE", "Enter old Tessarin passcode"};
inline constexpr Text kRemoveTitle{"REMOVE_TESSARIN_PASSCODE", "Remove Tessarin passcode"};
inline constexpr Text kChangeTitle{"CHANGE_TESSARIN_PASSCODE", "Change Tessarin passcode"};
inline constexpr Text kWrong{"WRONG_PASSCODE_TRY_AGAIN", "Wrong passcode. Try again."};
inline constexpr Text kTooMany{"TOO_MANY_ATTEMPTS_SORRY", "Too many attempts. Sorry."};
inline constexpr Text kOptionsTitle{"PASSCODE_OPTIONS", "Passcode options"};
/// The device-passcode pages borrow the system's own passcode prompts.
inline constexpr Text kDevicePrompt{"PMENTER_1_PROMPT", "Enter your passcode", TextTable::GuidedAccess};
inline constexpr Text kDeviceTitle{"PMENTER", "Enter passcode", TextTable::GuidedAccess};
/// Same key as kDeviceTitle; the complex page's default is capitalised differently.
inline constexpr Text kComplexDeviceTitle{"PMENTER", "Enter Passcode", TextTable::GuidedAccess};
}  // namespace text

// ---------------------------------------------------------------------------
// Steps

enum class Transition {
  None,
  Slide,  // prompt and field leave to the left and come back from the right
  Shake,  // five short side-to-side moves of prompt and field
};

enum class Commit {
  None,
  Store,   // write Step::value under "passcode", announce, refresh, close
  Remove,  // delete "passcode" (write null, never an empty string), announce, refresh, close
};

/// What a page does after one entry.
///
/// prompt and warning are the label and warning line to show after the step:
/// for a Slide they are set half-way (when the views jump to the right), for
/// a Shake when the fifth move ends; in both cases the entry field is cleared
/// then. With refuse they are set at once. A step with neither a transition
/// nor refuse leaves labels and field alone.
struct Step {
  Transition transition = Transition::None;
  Text prompt;
  Text warning;
  bool playErrorSound = false;  ///< system sound kErrorSound, at once
  Commit commit = Commit::None;
  std::string value;  ///< the value to store with Commit::Store
  /// Too many attempts: prompt empty, warning shown, field hidden, touches
  /// suspended, close after kRefuseDismissDelay.
  bool refuse = false;
  /// Device passcode right: touches suspended, close after
  /// kSuccessDismissDelay, push the system page after kSuccessPushDelay.
  bool success = false;

  bool changesLabels() const { return transition != Transition::None || refuse; }
  bool closesPage() const { return commit != Commit::None || refuse || success; }
  bool isNothing() const { return !changesLabels() && !closesPage() && !playErrorSound; }
};

/// The building blocks of the flows.
/// Slide to the next prompt; the warning line is cleared.
Step slideStep(Text prompt);
/// Error sound, then shake ending with prompt and warning.
Step shakeStep(Text prompt, Text warning);
/// Store the entry exactly as given (no trimming, leading zeros kept).
Step storeStep(std::string_view value);
/// Delete the stored passcode.
Step removeStep();
/// Too many attempts.
Step refuseStep();
/// Device passcode accepted.
Step successStep();

// ---------------------------------------------------------------------------
// Timings (seconds)

inline constexpr double kSlideOutDuration = 0.1;  ///< ease-in
inline constexpr double kSlideInDuration = 0.2;   ///< ease-out
inline constexpr double kSlideOffset = 520.0;     ///< origin x: -520 out, then +520 before coming back

inline constexpr int kShakeMoves = 5;
inline constexpr double kShakeMoveDuration = 0.1;  ///< default options, chained by completion
/// Centre x of prompt and field for each move, relative to the root view's centre x.
inline constexpr double kShakeOffsets[kShakeMoves] = {-20.0, 20.0, -20.0, 20.0, 0.0};

inline constexpr double kChildRefreshDelay = 0.5;  ///< other pages of the navigation, iOS 8 and later
inline constexpr double kTopRefreshDelay = 1.0;    ///< the top page again, after its immediate refresh
inline constexpr double kCommitDismissDelay = 1.0;
inline constexpr double kSuccessDismissDelay = 0.8;
inline constexpr double kSuccessPushDelay = 1.7;
inline constexpr double kRefuseDismissDelay = 1.5;

// ---------------------------------------------------------------------------
// Other fixed values of the pages

inline constexpr unsigned kErrorSound = 1011;
inline constexpr unsigned long kPortraitOnlyMask = 2;
inline constexpr unsigned long kFlexibleSizeMask = 18;  ///< flexible width | flexible height
inline constexpr int kDigitEntryFields = 4;
inline constexpr int kSixDigitEntryFields = 6;
inline constexpr double kLabelFontSize = 14.0;
/// Pages of this class are left out of the delayed refresh.
inline constexpr const char *kRootListClassName = "PrefsListController";

// ---------------------------------------------------------------------------
// Geometry (W is the main screen's width)

using tessarin::Rect;

struct Rgb {
  int red;  ///< 0..255 each; the views use component / 255, alpha 1
  int green;
  int blue;
};

inline constexpr Rgb kLightBackground{239, 239, 244};
inline constexpr Rgb kDarkBackground{137, 137, 142};  ///< a mid grey, not black
inline constexpr Rgb kComplexBackground{86, 86, 91};  ///< always, no light/dark test

constexpr Rect rootViewFrame(double w) { return {0.0, 0.0, w, 460.0}; }
constexpr Rect digitFieldFrame(double w) { return {w / 2.0 - 73.0, 157.0, 147.0, 33.404}; }
constexpr Rect promptFrame(double w) { return {0.0, 105.0, w, 42.0}; }
constexpr Rect warningFrame(double w) { return {0.0, 225.0, w, 42.0}; }
constexpr Rect complexFieldFrame(double w) { return {0.0, 177.0, w, 40.404}; }
constexpr Rect complexPromptFrame(double w) { return {0.0, 125.0, w, 42.0}; }
constexpr Rect complexWarningFrame(double w) { return warningFrame(w); }

/// Centre x of prompt and field after shake move `move` (0..4); centreX is
/// the root view's centre x taken when the entry arrived.
constexpr double shakeCentreX(double centreX, int move) {
  return (move >= 0 && move < kShakeMoves) ? centreX + kShakeOffsets[move] : centreX;
}

/// Frame origin x of prompt and field at the end of the slide's first half,
/// and the one they jump to before coming back to the centre.
inline constexpr double kSlideOutOriginX = -kSlideOffset;
inline constexpr double kSlideReturnOriginX = kSlideOffset;

}  // namespace tessarin::passcode
