// Removing and changing the product passcode. Both start by asking for the
// passcode stored when the page was loaded; a page opened with nothing
// stored can only shake and be cancelled.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {

/// `stored` is the value under "passcode" as read when the page loads; pass
/// nullopt when there is none or when it is not a string (such a value never
/// equals an entry).
class RemovePasscodeFlow {
 public:
  enum class State { Old, Closed };

  explicit RemovePasscodeFlow(std::optional<std::string> stored) : stored_(std::move(stored)) {}

  Step enter(std::string_view entry);
  Step cancel();

  State state() const { return closed_ ? State::Closed : State::Old; }
  bool closed() const { return closed_; }
  static constexpr Text title() { return text::kRemoveTitle; }
  static constexpr Text initialPrompt() { return text::kEnterOld; }

 private:
  std::optional<std::string> stored_;
  bool closed_ = false;
};

class ChangePasscodeFlow {
 public:
  enum class State { Old, New, Confirm, Closed };

  explicit ChangePasscodeFlow(std::optional<std::string> stored) : stored_(std::move(stored)) {}

  Step enter(std::string_view entry);
  Step cancel();

  State state() const;
  bool closed() const { return closed_; }
  /// The change page keeps the add page's title on purpose.
  static constexpr Text title() { return text::kAddTitle; }
  static constexpr Text initialPrompt() { return text::kEnterOld; }

 private:
  std::optional<std::string> stored_;
  std::optional<std::string> pass1_;  ///< the verified old passcode: step one done
  std::optional<std::string> pass2_;  ///< first entry of the new passcode
  bool closed_ = false;
};

}  // namespace tessarin::passcode
