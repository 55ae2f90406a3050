#include "root/RootBehaviour.hpp"

#include <cstdio>

namespace tessarin::root {

std::string versionText(std::uint32_t libraryVersion) {
  if (libraryVersion == 0) return {};
  const unsigned major = (libraryVersion >> 16) & 0xff;
  const unsigned minor = (libraryVersion >> 8) & 0xff;
  const unsigned build = libraryVersion & 0xff;
  char text[32];
  std::snprintf(text, sizeof text, "v%u.%u-%u", major, minor, build);
  return text;
}

Rect header::headerFrame(double viewWidth) { return {0, 0, viewWidth, kHeaderHeight}; }

Rect header::versionLabelFrame(double viewWidth, bool rightToLeft) {
  return {rightToLeft ? kLabelWidthInset : 0, 0, viewWidth - kLabelWidthInset, kLabelHeight};
}

namespace {

Alert okayNotice(LocalText title, LocalText message) {
  return {title, message, {{kOkayTitle, ActionStyle::Cancel, Effect::Nothing}}};
}

}  // namespace

Alert noSpringBoardAlert() { return okayNotice(kNoSpringBoardTitle, kNoSpringBoardMessage); }

std::optional<Alert> firstRunPrompt(const FirstRunFacts &facts) {
  if (!facts.idsnReplied || !facts.appsPresent || facts.idsnValue >= 1 || facts.productPasscodeStored)
    return std::nullopt;

  Alert prompt{kAlertTitle, {}, {}};
  const AlertButton setPasscode{kSetPasscodeTitle, ActionStyle::Default, Effect::PushPasscodeSettings};
  const AlertButton no{kNo, ActionStyle::Cancel, Effect::Nothing};

  if (facts.biometricSensor) {
    prompt.message = facts.faceID ? kNoFaceIdSet : kNoFingerprintSet;
    const LocalText setup = facts.faceID ? kSetupFaceId : kSetupTouchId;
    prompt.buttons = {{setup, ActionStyle::Default, Effect::SetUpDeviceAuthentication}, setPasscode, no};
  } else {
    prompt.message = kNoPasscodeSet;
    prompt.buttons = {setPasscode, no};
  }
  return prompt;
}

std::string_view userPasscodeControllerClass(const PasscodeCharacteristics &characteristics) {
  return isSimplePasscode(characteristics) ? kUserPasscodeControllerClass : kUserComplexPasscodeControllerClass;
}

SetupDecision setupDecision(const SetupFacts &facts, SetupOrigin origin) {
  SetupDecision decision;
  if (facts.devicePasscode) {
    decision.userPasscodeControllerClass = userPasscodeControllerClass(*facts.devicePasscode);
    return decision;
  }

  if (facts.faceID)
    decision.systemPageClasses = {kPearlPasscodeControllerClass};
  else
    decision.systemPageClasses = {kMesaSettingsControllerClass, kTouchIdPasscodeControllerClass,
                                  kUITouchIdPasscodeControllerClass};

  if (origin == SetupOrigin::AlertViewButton) {
    decision.pushSystemPage = true;
    return decision;
  }

  if (facts.iOS16) {
    // On iOS 16 the jailbreak allows no passcode: only the notice, nothing pushed.
    decision.notice = okayNotice(kAlertTitle, kIOS16Notice);
    decision.noticeFrom = NoticeFrom::RootPage;
    return decision;
  }

  decision.pushSystemPage = true;
  if (facts.deviceCornerRadius > 0 && facts.iOS14 && facts.loaderAppInstalled) {
    decision.notice = okayNotice(kAlertTitle, kLoaderNotice);
    decision.noticeFrom = NoticeFrom::PushedPage;
  }
  return decision;
}

Alert resetQuestionAlert() {
  return {kAlertTitle,
          kResetQuestion,
          {{kCancelTitle, ActionStyle::Cancel, Effect::Nothing},
           {kResetTitle, ActionStyle::Default, Effect::ResetAllSettings}}};
}

Alert resetDoneAlert() {
  return {kAlertTitle, kResetDone, {{kOkTitle, ActionStyle::Cancel, Effect::LeaveProductSettings}}};
}

Effect alertViewButtonEffect(bool biometricSensor, long long buttonIndex) {
  if (buttonIndex == 1) return biometricSensor ? Effect::SetUpDeviceAuthentication : Effect::PushPasscodeSettings;
  if (buttonIndex == 2 && biometricSensor) return Effect::PushPasscodeSettings;
  return Effect::Nothing;
}

}  // namespace tessarin::root
