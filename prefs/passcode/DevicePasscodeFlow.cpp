#include "passcode/DevicePasscodeFlow.hpp"

namespace tessarin::passcode {

int entryFieldCount(long long length) { return length == 6 ? kSixDigitEntryFields : kDigitEntryFields; }

std::string_view systemControllerClass(bool faceID, FunctionRef<bool(std::string_view)> yieldsController) {
  if (!yieldsController) return {};
  if (faceID) {
    return yieldsController(kFaceIDControllerClass) ? std::string_view(kFaceIDControllerClass) : std::string_view();
  }
  for (const char *name : kFingerprintControllerClasses) {
    if (yieldsController(name)) return name;
  }
  return {};
}

bool holdsAuthorisation(TokenAnswer privateToken, TokenAnswer publicToken) {
  return privateToken != TokenAnswer::Null && publicToken != TokenAnswer::Null;
}

Step DevicePasscodeFlow::enter(std::string_view entry, Checker isRight) {
  if (closed_) return Step{};
  if (errorCount_ >= kAllowedErrors) {
    closed_ = true;
    return refuseStep();
  }
  if (isRight && isRight(entry)) {
    closed_ = true;
    return successStep();
  }
  ++errorCount_;
  return shakeStep(text::kDevicePrompt, text::kWrong);
}

Step DevicePasscodeFlow::cancel() {
  closed_ = true;
  return Step{};
}

DevicePasscodeFlow::State DevicePasscodeFlow::state() const {
  if (closed_) return State::Closed;
  return errorCount_ >= kAllowedErrors ? State::Locked : State::Asking;
}

}  // namespace tessarin::passcode
