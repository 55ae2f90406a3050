// The rules of the delay and alert-title pages, apart from the platform.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarin::behaviour {

inline constexpr std::string_view kDelayTimeRow = "DELAY_TIME";
inline constexpr std::string_view kWaitDelayRow = "WAIT_DELAY";
inline constexpr std::string_view kWaitTillFinishRow = "WAIT_TILL_FINISH";

/// The delay page shows its two delay rows only while it does not wait until the
/// app has finished; every other row always.
bool showsDelayRow(std::string_view row, bool waitUntilFinished);

/// A change of this row rebuilds the delay page.
bool reloadsDelayPage(std::string_view row);

inline constexpr std::string_view kAlertTitleRow = "ALERTTITLE_KEY";
inline constexpr std::string_view kDefaultAlertTitle = "Tessarin";
/// What "Save" stores: the text row's text, the empty string when it has none.
std::string savedAlertTitle(const std::optional<std::string> &text);

}  // namespace tessarin::behaviour
