// Measures and colours of the root page's custom cells and views. The views
// only set colours, fonts and frames; these values are what they set.
#pragma once

#include <array>
#include <string_view>

#include "core/Geometry.hpp"

namespace tessarin::root {

using tessarin::Rect;
using tessarin::Rgba;

/// Text alignment values of the platform's label (NSTextAlignment on iOS).
inline constexpr int kTextAlignmentLeft = 0;
inline constexpr int kTextAlignmentCenter = 1;
inline constexpr int kTextAlignmentRight = 2;

/// The platform's light grey (a white level of 2/3).
inline constexpr Rgba kLightGrey = {2.0 / 3.0, 2.0 / 3.0, 2.0 / 3.0, 1};
inline constexpr Rgba kClear = {0, 0, 0, 0};
inline constexpr Rgba kWhite = {1, 1, 1, 1};

// TessarinTrustedWiFiWarningCell: dark red, white centred text on any number of lines.
namespace warning_cell {
inline constexpr Rgba kBackground = {0.667, 0, 0.1, 1};
inline constexpr Rgba kText = kWhite;
inline constexpr double kFontSize = 15;
inline constexpr int kNumberOfLines = 0;
inline constexpr int kAlignment = kTextAlignmentCenter;
/// The label starts 2 points below the cell's top; 65 points high during the
/// grace period (row 70), else 40 (row 45).
Rect labelFrame(double cellWidth, bool gracePeriod);
}  // namespace warning_cell

// TessarinCreditsCell: clear background and separator, light grey text.
namespace credits_cell {
inline constexpr Rgba kBackground = kClear;
inline constexpr Rgba kText = kLightGrey;
inline constexpr double kFontSize = 14;
}  // namespace credits_cell

// TessarinColorCell: the switch's on-tint.
namespace color_cell {
inline constexpr Rgba kSwitchOnTint = {0.8, 0.176471, 0.1333, 1};
}  // namespace color_cell

// TessarinSwitchCell: the icon is dimmed while the switch is off.
namespace switch_cell {
double iconAlpha(bool value);
}  // namespace switch_cell

// TessarinLabelView: a footer with a link-blue label that performs the
// specifier's button action on touch.
namespace label_view {
inline constexpr Rgba kBackground = {1, 1, 1, 0.01};
inline constexpr Rgba kText = {0, 0.478431, 1.0, 1};
inline constexpr int kAlignment = kTextAlignmentCenter;
inline constexpr double kPreferredHeight = 47;  ///< whatever the width
inline constexpr std::string_view kTextProperty = "ACUIFooterText";
inline constexpr double kActionDelay = 0;  ///< performed on the next run-loop turn
Rect labelFrame(double width);
}  // namespace label_view

// TessarinHightlightView (the name is spelt so on purpose): a dashed grey outline.
namespace highlight_view {
inline constexpr Rgba kStroke = {0.7921568751335144, 0.7921568751335144, 0.7921568751335144, 1};
inline constexpr std::array<double, 2> kDashPattern = {4, 2};
}  // namespace highlight_view

}  // namespace tessarin::root
