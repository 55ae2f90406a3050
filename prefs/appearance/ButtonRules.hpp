// The rules of the unlock-button page: which third of a row a tap chooses, what
// "IconColor" holds, the glyph states each system shows, the colours of the sample
// glyphs and the measures and animations of the animated buttons. The cells and
// views only carry these out.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/Geometry.hpp"
#include "core/SystemVersion.hpp"

namespace tessarin::appearance {

using Frame = tessarin::Rect;

struct Rgb {
  double red, green, blue;
};

/// "IconColor": 0 white, 1 black, 2 golden button; 3 black, 4 blue, 5 red glyph.
inline constexpr int64_t kWhiteButton = 0;
inline constexpr int64_t kBlackButton = 1;
inline constexpr int64_t kGoldenButton = 2;
inline constexpr int64_t kBlackGlyph = 3;
inline constexpr int64_t kBlueGlyph = 4;
inline constexpr int64_t kRedGlyph = 5;

// --- Rows -------------------------------------------------------------------

/// Both rows: a 320 x 96 container centred in the content view, split into
/// three columns of 106 points.
inline constexpr double kContainerWidth = 320;
inline constexpr double kRowHeight = 96;
inline constexpr double kColumnWidth = 106;
Frame containerFrame(double contentWidth);

/// The column (0 left, 1 middle, 2 right) of a tap at x in the container, or
/// nothing: 0 < x < 106, 106 <= x < 212, 212 <= x < 320. A tap at exactly 0
/// chooses nothing.
std::optional<int> tappedColumn(double x);

/// The "IconColor" a tap stores in the button row (0 to 2) and in the glyph row (3 to 5).
std::optional<int64_t> buttonChoiceAt(double x);
std::optional<int64_t> glyphChoiceAt(double x);

/// Which button (0 white, 1 black, 2 golden) animates for a stored value, and
/// which glyph (0 black, 1 blue, 2 red) shows as chosen; nothing for the other row's values.
std::optional<int> chosenButton(int64_t iconColor);
std::optional<int> chosenGlyph(int64_t iconColor);

// --- Animated buttons -------------------------------------------------------

namespace button {
/// The three thirds of the button row: 96 x 96 at x 0, 106 and 212.
Frame thirdFrame(int column);
/// A button inside its third, centred on the 106-point column rather than on the
/// 96-point third: (106 / 2 - 35, 13, 70, 70).
inline constexpr Frame kInThird = {kColumnWidth / 2 - 35, 13, 70, 70};

/// The views of one button: the ring, the print inside it, the 15-point strip that
/// starts just below the print's visible area, and the red print inside the strip.
inline constexpr Frame kView = {0, 0, 70, 70};
inline constexpr Frame kCircle = {0, 0, 70, 70};
inline constexpr Frame kThumb = {5, 5, 60, 60};
inline constexpr Frame kGhost = {0, 60, 60, 15};
inline constexpr Frame kThumbRed = {0, -60, 60, 60};

/// Images in the bundle's resources.
inline constexpr std::string_view kCircleImages[3] = {"circle-white", "circle-black", "circle-gold"};
inline constexpr bool kIsBlackButton[3] = {false, true, false};
std::string_view thumbImage(bool isBlackButton);
inline constexpr std::string_view kThumbRedImage = "thumb-red";

/// The three animations. The ring turns once in 7 s; the strip rises 60 points
/// while the red print inside it moves down as much, so the red print stays in
/// place and a red band sweeps up and down over the print.
struct Animation {
  std::string_view keyPath;
  float from, to;
  double duration;
  bool autoreverses;  ///< every one repeats for ever
};
inline constexpr Animation kRingRotation = {"transform.rotation.z", 0.0f, 6.2831855f, 7, false};
inline constexpr Animation kStripSweep = {"transform.translation.y", 0.0f, -60.0f, 1, true};
inline constexpr Animation kRedPrintSweep = {"transform.translation.y", 0.0f, 60.0f, 1, true};
/// The ring's animation key: "Rotation" followed by the view's class name.
inline constexpr std::string_view kRingKeyPrefix = "Rotation";
// The strip and the red print use their key path as key.

/// The chosen button starts this long after the row's first layout.
inline constexpr double kDelayedStart = 2.0;
}  // namespace button

// --- Glyphs -----------------------------------------------------------------

namespace glyph {
/// A glyph in its 96 x 96 third, where `third` is a third of the content view's
/// width when the cell was made; thirds at x 0, third and 2 * third.
Frame frameInThird(double third);
Frame thirdFrame(int column, double third);

/// The states a glyph shows.
inline constexpr int kIdle = 0;

/// The state that shows a glyph as chosen: 11 with the iOS 11 flag, else 7 from
/// iOS 10.2, else 6.
int chosenState(const SystemVersionFlags &flags);

/// The chain a tapped glyph runs through, each step in the completion of the one
/// before: 1, then 8 (2 without the iOS 11 flag), then 1, then the chosen state.
std::vector<int> tapChain(const SystemVersionFlags &flags);
/// Whether the palette colours are applied again before the chain's last step.
bool reappliesPaletteBeforeLastStep(const SystemVersionFlags &flags);

/// How one of the three sample glyphs (0 black, 1 blue, 2 red) is made and coloured.
struct Look {
  int style;                      ///< initWithStyle:
  int paletteStyle;               ///< 0: none; else the glyph's own palette of that style, mode 0
  std::string_view primaryHex;    ///< empty: none
  std::string_view secondaryHex;  ///< empty: none
};
Look look(int glyph, const SystemVersionFlags &flags);

/// The palette style the colour hooks keep a sample glyph in (3 black, 2 blue, 1 red).
int hookPaletteStyle(int glyph);
}  // namespace glyph

// --- Colours ----------------------------------------------------------------

/// Reads a string as NSScanner's scanHexInt: does: white space skipped, an optional
/// "0x" or "0X", then as many hexadecimal digits as follow (a value too large gives
/// 0xFFFFFFFF). Nothing when no digit follows.
std::optional<uint32_t> scanHexInt(std::string_view text);
/// Red from bits 16-23, green 8-15, blue 0-7, each over 255.
Rgb rgbFromHexValue(uint32_t value);
/// Both: an unreadable string gives black.
Rgb rgbFromHexString(std::string_view text);

}  // namespace tessarin::appearance
