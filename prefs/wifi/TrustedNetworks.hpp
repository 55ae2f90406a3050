// The trusted networks page's rules: which network records become rows, and
// how a row's switch reads and changes the stored trusted list
// ("allowedWiFis", an array of dictionaries with "bssid" and "ssid").
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin::wifi {

/// One switch row of the page: named by the SSID, with the record's BSSID and
/// password (when the record has one).
struct NetworkRow {
  std::string ssid;
  std::string bssid;
  std::optional<std::string> password;
};

/// The rows for a list of network records (the Wi-Fi manager's, or the "networks"
/// of SpringBoard's "wfls" reply), in list order. A record without a string "ssid"
/// or a string "bssid" is skipped; a password that is not a string counts as none.
/// Anything that is not an array gives no rows.
std::vector<NetworkRow> networkRows(const plist::Value *records);

/// The switch of a row: on when a stored entry has both the row's BSSID and its
/// SSID. (The trusted-network test of the manager compares the BSSID alone.)
bool isNetworkTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid);

/// The list after switching a row on: the stored list with a new entry
/// {"bssid", "ssid"} appended, whether or not an equal entry is already there.
/// A stored value that is not an array counts as an empty list.
plist::Value trustNetwork(const plist::Value *stored, std::string_view bssid, std::string_view ssid);

/// The list after switching a row off. The walk goes by index from 0 while the
/// index is below the current count; an entry with the row's BSSID is removed
/// together with every entry equal to it as a whole, and the index then moves on
/// by two, so the entry that slid into its place and the one after it are not
/// looked at in this pass. Entries that are not dictionaries are kept.
plist::Value untrustNetwork(const plist::Value *stored, std::string_view bssid);

}  // namespace tessarin::wifi
