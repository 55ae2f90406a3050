#include "passcode/SetPasscodeFlow.hpp"

namespace tessarin::passcode {

Step SetPasscodeFlow::enter(std::string_view entry) {
  if (closed_) return Step{};

  // The second entry equals the first: store it, as text.
  if (pass1_ && *pass1_ == entry) {
    closed_ = true;
    return storeStep(entry);
  }
  // First entry: keep it and ask again.
  if (!pass1_) {
    pass1_.emplace(entry.data(), entry.size());
    return slideStep(text::kReenter);
  }
  // Second entry differs: forget the first and start over.
  pass1_.reset();
  return shakeStep(text::kEnter, text::kMismatch);
}

Step SetPasscodeFlow::cancel() {
  closed_ = true;
  pass1_.reset();
  return Step{};
}

SetPasscodeFlow::State SetPasscodeFlow::state() const {
  if (closed_) return State::Closed;
  return pass1_ ? State::Reenter : State::Enter;
}

}  // namespace tessarin::passcode
