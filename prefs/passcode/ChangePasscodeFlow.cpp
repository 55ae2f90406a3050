#include "passcode/ChangePasscodeFlow.hpp"

namespace tessarin::passcode {

namespace {

bool equals(const std::optional<std::string> &held, std::string_view entry) { return held && *held == entry; }

}  // namespace

Step RemovePasscodeFlow::enter(std::string_view entry) {
  if (closed_) return Step{};
  if (equals(stored_, entry)) {
    closed_ = true;
    return removeStep();
  }
  return shakeStep(text::kEnterOld, text::kWrong);
}

Step RemovePasscodeFlow::cancel() {
  closed_ = true;
  return Step{};
}

Step ChangePasscodeFlow::enter(std::string_view entry) {
  if (closed_) return Step{};

  // Step one: the old passcode.
  if (!pass1_) {
    if (!equals(stored_, entry)) return shakeStep(text::kEnterOld, text::kWrong);
    pass1_.emplace(entry.data(), entry.size());
    return slideStep(text::kEnter);
  }
  // Step three: the confirmation matches. The new passcode may equal the old one.
  if (equals(pass2_, entry)) {
    closed_ = true;
    return storeStep(entry);
  }
  // Step two: first entry of the new passcode.
  if (!pass2_) {
    pass2_.emplace(entry.data(), entry.size());
    return slideStep(text::kReenter);
  }
  // Step three, mismatch: back to the new passcode; the old one is not asked again.
  pass2_.reset();
  return shakeStep(text::kEnter, text::kMismatch);
}

Step ChangePasscodeFlow::cancel() {
  closed_ = true;
  pass1_.reset();
  pass2_.reset();
  return Step{};
}

ChangePasscodeFlow::State ChangePasscodeFlow::state() const {
  if (closed_) return State::Closed;
  if (!pass1_) return State::Old;
  return pass2_ ? State::Confirm : State::New;
}

}  // namespace tessarin::passcode
