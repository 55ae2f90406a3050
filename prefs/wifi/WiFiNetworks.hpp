// The known Wi-Fi networks as records for the trusted-networks page, and the
// trusted-network test. The manager reads the platform's network handles
// into `PlatformNetwork` values and asks these functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/FunctionRef.hpp"

namespace tessarin::wifi {

/// The "bssid" of a network whose access point address is unknown.
inline constexpr std::string_view kUnknownBssid = "ff:ff:ff:ff:ff:ff";

/// Keys of a network record and of a trusted-network entry.
inline constexpr std::string_view kSsidKey = "ssid";
inline constexpr std::string_view kBssidKey = "bssid";
inline constexpr std::string_view kPasswordKey = "password";

/// Platform record keys and property names.
inline constexpr std::string_view kPlatformSsidKey = "SSID_STR";
inline constexpr std::string_view kPlatformBssidProperty = "BSSID";
inline constexpr std::string_view kPlatformLastJoinedKey = "lastJoined";

/// One known network as the platform describes it. Absent values are the ones
/// the platform did not give (or gave with the wrong type).
struct PlatformNetwork {
  std::optional<std::string> ssid;      ///< record "SSID_STR"
  std::optional<std::string> bssid;     ///< "BSSID" property
  std::optional<std::string> password;  ///< stored password
  std::optional<double> lastJoined;     ///< record "lastJoined", seconds since the reference date
};

/// One entry of the list shown to the user (and of the "wfls" reply).
struct NetworkRecord {
  std::string ssid;
  std::string bssid;                    ///< kUnknownBssid when the platform has none
  std::optional<std::string> password;  ///< only when the platform returns a non-empty one
};

/// The records, most recently joined first. A network never joined counts as
/// joined at the reference date (0) and so comes after every joined one; the
/// sort is stable, so networks joined at the same moment keep the platform's
/// order. Networks without a name are left out; an empty BSSID or password
/// counts as none.
std::vector<NetworkRecord> networkRecords(std::vector<PlatformNetwork> networks);

/// One entry of the trusted-network list ("allowedWiFis").
struct TrustedEntry {
  std::optional<std::string> bssid;
  std::optional<std::string> ssid;
};

/// The BSSID of the network the device is on now; nothing when there is no
/// current network or it reports no BSSID.
using CurrentBssid = FunctionRef<std::optional<std::string>()>;

/// True when the current network's BSSID equals the "bssid" of a trusted entry.
/// The match is by BSSID alone; the entry's SSID is not compared. The current
/// network is asked for only when the list is not empty.
bool isTrusted(const std::vector<TrustedEntry> &trusted, CurrentBssid currentBssid);

}  // namespace tessarin::wifi
