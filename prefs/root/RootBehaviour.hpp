// What the root page does besides choosing its rows: the version header, the
// first-run prompt, the device-authentication setup, the reset-all flow and
// the old alert-view buttons. Each decision comes back as plain data: an
// alert to show (title, message, buttons with what each one does) or the
// page to show. Every string_view constant is backed by a string literal; the
// texts of an alert are LocalTexts, which the page shows in the user's language.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "root/RootRows.hpp"
#include "root/RootViews.hpp"

namespace tessarin::root {

// ---------------------------------------------------------------------------
// Version header.

/// "v<major>.<minor>-<build>" from bits 16-23, 8-15 and 0-7 of the SpringBoard
/// library version; empty while the version is 0 (the label stays empty).
std::string versionText(std::uint32_t libraryVersion);

// The header view and the version label inside it.
namespace header {
inline constexpr double kHeaderHeight = 22;
inline constexpr double kLabelHeight = 17;
inline constexpr double kLabelWidthInset = 6;
inline constexpr double kFontSize = 12;
/// The label stands at the header's trailing edge: on the right, and on the left in a
/// right-to-left language (mirrored with its inset).
inline constexpr int kAlignment = kTextAlignmentRight;
inline constexpr int kRightToLeftAlignment = kTextAlignmentLeft;
inline constexpr int alignment(bool rightToLeft) { return rightToLeft ? kRightToLeftAlignment : kAlignment; }
inline constexpr Rgba kText = kLightGrey;
inline constexpr bool kClipsToBounds = false;
/// Laid out again with the page view's width on each viewDidLayoutSubviews.
Rect headerFrame(double viewWidth);
Rect versionLabelFrame(double viewWidth, bool rightToLeft = false);
}  // namespace header

// ---------------------------------------------------------------------------
// Alerts, as the page shows them (alert controller style "alert").

inline constexpr int kAlertControllerStyleAlert = 1;

/// Values of the platform's alert action styles.
enum class ActionStyle { Default = 0, Cancel = 1 };

/// What pressing a button does.
enum class Effect {
  Nothing,
  /// The device-authentication setup (setupDecision with SetupOrigin::Prompt), on the main queue.
  SetUpDeviceAuthentication,
  /// Push a new TessarinPasscodeSettingsController on the Settings app's root
  /// navigation controller, animated, from the main queue.
  PushPasscodeSettings,
  /// Remove the whole preference domain, post the change notification, then show resetDoneAlert().
  ResetAllSettings,
  /// Pop the navigation controller's parent, animated, when it responds to
  /// popViewControllerAnimated:; this leaves the product's settings.
  LeaveProductSettings,
};

struct AlertButton {
  LocalText title;
  ActionStyle style;
  Effect effect;
};

struct Alert {
  LocalText title;
  LocalText message;
  std::vector<AlertButton> buttons;  ///< in the order they are added
};

/// The product's name, the same in every language.
inline constexpr LocalText kAlertTitle{"", "Tessarin"};
inline constexpr std::string_view kPasscodeSettingsControllerClass = "TessarinPasscodeSettingsController";

/// SpringBoard did not answer the second library-version request.
Alert noSpringBoardAlert();

// ---------------------------------------------------------------------------
// First-run prompt.

inline constexpr LocalText kNoPasscodeSet{
    "NO_TESSARIN_PASSCODE_SET",
    "You haven't set a Tessarin passcode yet. To enable this application, you must have a Tessarin passcode "
    "set. Would you like to setup one now?"};
/// With a biometric sensor the message names what is missing. Written out whole,
/// one sentence per device, so that each language can word it as a sentence; the
/// English reads as "You do not have %@ set. To enable this application, you must
/// have %@ set. Would you like to setup one now?" filled for each device.
inline constexpr LocalText kNoFaceIdSet{
    "NO_FACE_ID_SET",
    "You do not have Face ID set. To enable this application, you must have FaceID or a Tessarin passcode set. "
    "Would you like to setup one now?"};
inline constexpr LocalText kNoFingerprintSet{
    "NO_FINGERPRINT_SET",
    "You do not have any fingerprints set. To enable this application, you must have at least one fingerprint or "
    "a Tessarin passcode set. Would you like to setup one now?"};
/// "Setup %@" with "Face ID" or "Touch ID".
inline constexpr LocalText kSetupFaceId{"SETUP_FACE_ID", "Setup Face ID"};
inline constexpr LocalText kSetupTouchId{"SETUP_TOUCH_ID", "Setup Touch ID"};
inline constexpr LocalText kNo{"NO", "No"};
inline constexpr LocalText kSetPasscodeTitle{"SET_TESSARIN_PASSCODE", "Set Tessarin Passcode"};

struct FirstRunFacts {
  bool idsnReplied = false;            ///< the "idsn" request got a reply
  long long idsnValue = 0;             ///< its "idsn" value as an integer (missing: 0)
  bool appsPresent = false;            ///< the "appL" reply holds "apps"
  bool productPasscodeStored = false;  ///< the "passcode" preference is present
  bool biometricSensor = false;        ///< iPhone64Bit
  bool faceID = false;                 ///< hasPearl
};

/// The prompt sending the user to set up biometrics or the product passcode;
/// nothing when SpringBoard did not answer, biometrics are set up or a product
/// passcode is stored.
std::optional<Alert> firstRunPrompt(const FirstRunFacts &facts);

// ---------------------------------------------------------------------------
// Device-authentication setup.

/// The setup reached from the prompt shows the jailbreak notices; the one
/// reached from an alert-view button does not.
enum class SetupOrigin { Prompt, AlertViewButton };

inline constexpr std::string_view kLoaderAppId = "kjc.loader";
inline constexpr std::string_view kUserPasscodeControllerClass = "TessarinUserPasscodeController";
inline constexpr std::string_view kUserComplexPasscodeControllerClass = "TessarinUserComplexPasscodeController";
inline constexpr std::string_view kUITouchIdPasscodeControllerClass = "PSUITouchIDPasscodeController";

inline constexpr LocalText kIOS16Notice{
    "IOS16_NOTICE",
    "You are jailbroken on iOS 16.x\nIn this case, a passcode is not allowed by default, so in order to use Face "
    "ID, you need to use a tweak that enables passcode and Face ID first, such as checkL0ck. Follow the tweak's "
    "instructions to add a passcode and Face ID first, then you can use Tessarin with Face ID."};
inline constexpr LocalText kLoaderNotice{
    "LOADER_NOTICE",
    "Checkr4in jailbreak detected on iOS 14.x!\nIn this case, a passcode is not allowed so in order to use Face "
    "ID/Touch ID, you need to add a fingerprint or Face ID first, then attempt to add a passcode and let the phone "
    "crash and reboot. Then the biometrics will have been added but the passcode will still be empty, allowing the "
    "jailbreak to function."};
inline constexpr LocalText kOkayTitle{"OKAY", "Okay"};

struct SetupFacts {
  bool faceID = false;
  std::optional<PasscodeCharacteristics> devicePasscode;  ///< absent: the device has no passcode
  bool iOS14 = false;
  bool iOS16 = false;
  long long deviceCornerRadius = 0;  ///< MobileGestalt "DeviceCornerRadius" as an integer
  bool loaderAppInstalled = false;   ///< the "apps" collection contains kLoaderAppId
};

enum class NoticeFrom { RootPage, PushedPage };

struct SetupDecision {
  /// Device without a passcode: the system's own page, made with
  /// initForContentSize: (zero size) from the first of these classes that
  /// gives one. Empty when the user passcode page is shown instead.
  std::vector<std::string_view> systemPageClasses;
  bool pushSystemPage = false;  ///< on the root navigation controller, animated
  /// A notice with one cancel-style "Okay" button, presented from `noticeFrom`
  /// after the push (if any). When no system page could be made, present it
  /// from the root page.
  std::optional<Alert> notice;
  NoticeFrom noticeFrom = NoticeFrom::RootPage;
  /// Device with a passcode: present this controller as the child of a new
  /// navigation controller, modally from the root page, animated.
  std::string_view userPasscodeControllerClass;
};

SetupDecision setupDecision(const SetupFacts &facts, SetupOrigin origin);

/// The class that checks the device passcode of these characteristics.
std::string_view userPasscodeControllerClass(const PasscodeCharacteristics &characteristics);

// ---------------------------------------------------------------------------
// Reset all.

inline constexpr LocalText kResetQuestion{
    "RESET_QUESTION",
    "This will reset all settings to defaults, including any apps or toggles that you have set as protected. "
    "Do you want to continue?"};
inline constexpr LocalText kResetDone{"RESET_DONE", "All Tessarin settings have been reset to defaults."};
inline constexpr LocalText kCancelTitle{"CANCEL", "Cancel"};
inline constexpr LocalText kResetTitle{"RESET", "Reset"};
inline constexpr LocalText kOkTitle{"OK", "OK"};

/// "Cancel" (does nothing) and "Reset" (Effect::ResetAllSettings).
Alert resetQuestionAlert();
/// "OK" (Effect::LeaveProductSettings).
Alert resetDoneAlert();

// ---------------------------------------------------------------------------
// alertView:clickedButtonAtIndex: (index counted from 0). SetUpDeviceAuthentication
// here means setupDecision with SetupOrigin::AlertViewButton.
Effect alertViewButtonEffect(bool biometricSensor, long long buttonIndex);

}  // namespace tessarin::root
