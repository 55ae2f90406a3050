#include "appearance/BehaviourRules.hpp"

namespace tessarin::behaviour {

bool showsDelayRow(std::string_view row, bool waitUntilFinished) {
  if (row == kDelayTimeRow || row == kWaitDelayRow) return !waitUntilFinished;
  return true;
}

bool reloadsDelayPage(std::string_view row) { return row == kWaitTillFinishRow; }

std::string savedAlertTitle(const std::optional<std::string> &text) { return text ? *text : std::string(); }

}  // namespace tessarin::behaviour
