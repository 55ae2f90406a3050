#include "passcode/PasscodeSettingsRows.hpp"

namespace tessarin::passcode {

namespace {

// The footers, split at their "%@". The texts are kept exactly as shown to
// users, including "them main".
constexpr std::string_view kRecoveryHead =
    "In this page you can add a recovery passcode in cases where your BiometricID is "
    "repeatedly not recognized. This passcode is different from your device passcode. "
    "If you forgot your passcode, you can clear it using ";
constexpr std::string_view kRecoveryTail = ". I forgot my passcode...";
// The Face ID filler brings its own blank, so two blanks precede it.
constexpr std::string_view kRecoveryFaceID = " FaceID";
constexpr std::string_view kRecoveryTouchID = "TouchID";

constexpr std::string_view kBiometricHead =
    "In this page you can add a Tessarin passcode in cases where your ";
constexpr std::string_view kBiometricTail =
    " is repeatedly not recognized. This passcode is different from your device passcode.";
constexpr std::string_view kBiometricFace = "face";
constexpr std::string_view kBiometricFinger = "fingerprint";

constexpr std::string_view kPlainFooter =
    "In this page you can add them main Tessarin passcode. This passcode is different from "
    "your device passcode.";

constexpr std::size_t kLinkFromEnd = 24;
constexpr std::size_t kLinkLength = 23;

std::string joined(std::string_view a, std::string_view b, std::string_view c) {
  std::string s;
  s.reserve(a.size() + b.size() + c.size());
  s.append(a.data(), a.size());
  s.append(b.data(), b.size());
  s.append(c.data(), c.size());
  return s;
}

}  // namespace

SettingsFooter settingsFooter(const SettingsContext &ctx) {
  SettingsFooter f;
  if (ctx.passcodeStored && ctx.biometric) {
    f.text = joined(kRecoveryHead, ctx.faceID ? kRecoveryFaceID : kRecoveryTouchID, kRecoveryTail);
    f.hasLink = true;
    f.linkLocation = f.text.size() - kLinkFromEnd;
    f.linkLength = kLinkLength;
  } else if (ctx.biometric) {
    f.text = joined(kBiometricHead, ctx.faceID ? kBiometricFace : kBiometricFinger, kBiometricTail);
  } else {
    f.text.assign(kPlainFooter.data(), kPlainFooter.size());
  }
  return f;
}

std::string_view actionSelector(RowAction action) {
  switch (action) {
    case RowAction::AddPassword:
      return "addPassword";
    case RowAction::ChangePassword:
      return "changePassword";
    case RowAction::RemovePassword:
      return "removePassword";
    case RowAction::None:
      break;
  }
  return {};
}

std::vector<KeptRow> keptSettingsRows(const SettingsContext &ctx,
                                      const std::vector<std::string> &loadedIDs) {
  std::vector<KeptRow> kept;
  for (std::size_t i = 0; i < loadedIDs.size(); ++i) {
    const std::string &id = loadedIDs[i];
    KeptRow row;
    row.index = i;
    if (id == kAddRowID && !ctx.passcodeStored) {
      row.id = kAddRowID;
      row.action = RowAction::AddPassword;
    } else if (id == kChangeRowID && ctx.passcodeStored) {
      row.id = kChangeRowID;
      row.action = RowAction::ChangePassword;
    } else if (id == kRemoveRowID && ctx.passcodeStored) {
      row.id = kRemoveRowID;
      row.action = RowAction::RemovePassword;
    } else if (id == kUseOnlyRowID && ctx.passcodeStored && ctx.biometric) {
      row.id = kUseOnlyRowID;
      row.renameForFaceID = ctx.faceID;
    } else {
      continue;
    }
    kept.push_back(row);
  }
  return kept;
}

}  // namespace tessarin::passcode
