#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {

Step slideStep(Text prompt) {
  Step s;
  s.transition = Transition::Slide;
  s.prompt = prompt;
  s.warning = text::kNone;
  return s;
}

Step shakeStep(Text prompt, Text warning) {
  Step s;
  s.transition = Transition::Shake;
  s.prompt = prompt;
  s.warning = warning;
  s.playErrorSound = true;
  return s;
}

Step storeStep(std::string_view value) {
  Step s;
  s.commit = Commit::Store;
  s.value.assign(value.data(), value.size());
  return s;
}

Step removeStep() {
  Step s;
  s.commit = Commit::Remove;
  return s;
}

Step refuseStep() {
  Step s;
  s.refuse = true;
  s.prompt = text::kNone;
  s.warning = text::kTooMany;
  return s;
}

Step successStep() {
  Step s;
  s.success = true;
  return s;
}

}  // namespace tessarin::passcode
