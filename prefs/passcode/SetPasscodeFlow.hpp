// Choosing a new product passcode: asked twice, stored when both entries agree.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {

class SetPasscodeFlow {
 public:
  enum class State { Enter, Reenter, Closed };

  SetPasscodeFlow() = default;

  /// One complete entry from the field, exactly as the field reports it.
  Step enter(std::string_view entry);
  /// The Cancel button: nothing is written; later entries do nothing.
  Step cancel();

  State state() const;
  bool closed() const { return closed_; }
  static constexpr Text title() { return text::kAddTitle; }
  static constexpr Text initialPrompt() { return text::kEnter; }

 private:
  std::optional<std::string> pass1_;
  bool closed_ = false;
};

}  // namespace tessarin::passcode
