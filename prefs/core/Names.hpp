// Names shared with the SpringBoard half: the preference domain, its Darwin
// notifications, the messaging centre and the message identifiers.
#pragma once

namespace tessarin {

inline constexpr const char *kDomain = "net.corvane.tessarin";

inline constexpr const char *kPrefsChangedNotification = "net.corvane.tessarin.prefsChanged";
inline constexpr const char *kGracePeriodNotification = "net.corvane.tessarin.graceperiod";
inline constexpr const char *kTransportSignal = "net.corvane.tessarin.ipcoverride";
inline constexpr const char *kPasscodeResetNotification = "net.corvane.tessarin.passcodeReset";
inline constexpr const char *kCenterName = "net.corvane.tessarin.center";
inline constexpr const char *kSwitchIdentifier = "net.corvane.tessarin.switch";

namespace message {
inline constexpr const char *kLibraryVersion = "dlbv";
inline constexpr const char *kBiometricsEnrolled = "idsn";
inline constexpr const char *kApplications = "appL";
inline constexpr const char *kFolders = "fldr";
inline constexpr const char *kWiFiNetworks = "wfls";
inline constexpr const char *kGetCallerIDVisibility = "gpsi";
inline constexpr const char *kSetCallerIDVisibility = "spsi";
inline constexpr const char *kPasscodeResetRequest = "prrc";
}  // namespace message

}  // namespace tessarin
