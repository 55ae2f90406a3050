// Proving knowledge of the device passcode before the system's biometric
// settings page is opened: two wrong entries are allowed per opening, the
// third entry is refused whatever it is.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/FunctionRef.hpp"
#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {

enum class DevicePage {
  Numeric,  // digit boxes
  Complex,  // a text field ended by the Return key
};

/// Six boxes for a six-digit passcode, four for any other length.
int entryFieldCount(long long length);

/// The system's biometric settings pages, looked up by name.
inline constexpr const char *kFaceIDControllerClass = "PSUIPearlPasscodeController";
inline constexpr const char *kFingerprintControllerClasses[] = {
    "PSMesaSettingsController",
    "PSTouchIDPasscodeController",
    "PSUITouchIDPasscodeController",
};
/// The row handed to the system page to unlock it with the device passcode.
inline constexpr const char *kSystemSpecifierName = "MESA";
inline constexpr int kSystemSpecifierCellType = 2;
inline constexpr const char *kSystemSpecifierPasscodeProperty = "passcode";

/// The class of the system page to make: on a Face ID device only the Face ID
/// page is tried; otherwise the first fingerprint class for which
/// `yieldsController` (the class exists and gives an object) holds. Empty when
/// none does.
std::string_view systemControllerClass(bool faceID, FunctionRef<bool(std::string_view)> yieldsController);

/// How the system page answered one of its token methods.
enum class TokenAnswer {
  NotAnswered,  // does not respond to the method
  Null,
  Present,
};

/// The system page was unlocked when every token method it answers gives a
/// token; a page answering neither counts as unlocked.
bool holdsAuthorisation(TokenAnswer privateToken, TokenAnswer publicToken);

class DevicePasscodeFlow {
 public:
  /// Answers whether the entry is the device passcode. Called only when the
  /// page still accepts entries. A device with no system page to check with
  /// should answer false rather than let the entry through.
  using Checker = FunctionRef<bool(std::string_view entry)>;

  enum class State { Asking, Locked, Closed };

  static constexpr int kAllowedErrors = 2;

  explicit DevicePasscodeFlow(DevicePage page = DevicePage::Numeric) : page_(page) {}

  /// One entry. Locked (two errors): refused without calling `isRight`.
  /// Otherwise right -> success; wrong -> error count + 1, sound, shake to
  /// the device prompt with kWrong. An empty checker counts as wrong.
  Step enter(std::string_view entry, Checker isRight);
  Step cancel();

  int errorCount() const { return errorCount_; }
  State state() const;
  bool closed() const { return closed_; }
  DevicePage page() const { return page_; }

  Text title() const { return page_ == DevicePage::Complex ? text::kComplexDeviceTitle : text::kDeviceTitle; }
  static constexpr Text initialPrompt() { return text::kDevicePrompt; }

 private:
  DevicePage page_;
  int errorCount_ = 0;
  bool closed_ = false;
};

}  // namespace tessarin::passcode
