#include "wifi/WiFiNetworks.hpp"

#include <algorithm>
#include <cmath>

namespace tessarin::wifi {

namespace {

bool present(const std::optional<std::string> &value) { return value && !value->empty(); }

// Seconds since the reference date; never joined (or an unreadable date) is 0.
double joined(const PlatformNetwork &network) {
  const double seconds = network.lastJoined.value_or(0);
  return std::isnan(seconds) ? 0 : seconds;
}

}  // namespace

std::vector<NetworkRecord> networkRecords(std::vector<PlatformNetwork> networks) {
  // Later joins first; stable so that equal dates keep the platform's order.
  std::stable_sort(networks.begin(), networks.end(),
                   [](const PlatformNetwork &a, const PlatformNetwork &b) { return joined(a) > joined(b); });

  std::vector<NetworkRecord> records;
  records.reserve(networks.size());
  for (PlatformNetwork &network : networks) {
    if (!present(network.ssid)) continue;
    NetworkRecord record;
    record.ssid = std::move(*network.ssid);
    record.bssid = present(network.bssid) ? std::move(*network.bssid) : std::string(kUnknownBssid);
    if (present(network.password)) record.password = std::move(network.password);
    records.push_back(std::move(record));
  }
  return records;
}

bool isTrusted(const std::vector<TrustedEntry> &trusted, CurrentBssid currentBssid) {
  if (trusted.empty() || !currentBssid) return false;
  const std::optional<std::string> current = currentBssid();
  if (!current) return false;
  return std::any_of(trusted.begin(), trusted.end(),
                     [&](const TrustedEntry &entry) { return entry.bssid && *entry.bssid == *current; });
}

}  // namespace tessarin::wifi
