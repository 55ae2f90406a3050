#include "wifi/TrustedNetworks.hpp"

#include <algorithm>
#include <cstdint>

#include "wifi/WiFiNetworks.hpp"

namespace tessarin::wifi {

namespace {

const std::string *stringEntry(const plist::Value &dictionary, std::string_view key) {
  const plist::Value *value = dictionary.find(key);
  return value ? value->asString() : nullptr;
}

bool hasBssid(const plist::Value &entry, std::string_view bssid) {
  const std::string *stored = stringEntry(entry, kBssidKey);
  return stored && *stored == bssid;
}

plist::Value::Array storedEntries(const plist::Value *stored) {
  if (stored)
    if (const plist::Value::Array *entries = stored->asArray()) return *entries;
  return {};
}

}  // namespace

std::vector<NetworkRow> networkRows(const plist::Value *records) {
  std::vector<NetworkRow> rows;
  const plist::Value::Array *list = records ? records->asArray() : nullptr;
  if (!list) return rows;
  for (const plist::Value &record : *list) {
    const std::string *ssid = stringEntry(record, kSsidKey);
    const std::string *bssid = stringEntry(record, kBssidKey);
    if (!ssid || !bssid) continue;
    NetworkRow row{*ssid, *bssid, std::nullopt};
    if (const std::string *password = stringEntry(record, kPasswordKey)) row.password = *password;
    rows.push_back(std::move(row));
  }
  return rows;
}

bool isNetworkTrusted(const plist::Value *stored, std::string_view bssid, std::string_view ssid) {
  const plist::Value::Array *entries = stored ? stored->asArray() : nullptr;
  if (!entries) return false;
  return std::any_of(entries->begin(), entries->end(), [&](const plist::Value &entry) {
    const std::string *entrySsid = stringEntry(entry, kSsidKey);
    return hasBssid(entry, bssid) && entrySsid && *entrySsid == ssid;
  });
}

plist::Value trustNetwork(const plist::Value *stored, std::string_view bssid, std::string_view ssid) {
  plist::Value::Array entries = storedEntries(stored);
  entries.push_back(plist::Value::dictionary({
      {std::string(kBssidKey), plist::Value::string(std::string(bssid))},
      {std::string(kSsidKey), plist::Value::string(std::string(ssid))},
  }));
  return plist::Value::array(std::move(entries));
}

plist::Value untrustNetwork(const plist::Value *stored, std::string_view bssid) {
  plist::Value::Array entries = storedEntries(stored);
  for (uint32_t i = 0; i < entries.size(); ++i) {
    if (!hasBssid(entries[i], bssid)) continue;
    const plist::Value removed = entries[i];
    entries.erase(std::remove(entries.begin(), entries.end(), removed), entries.end());
    ++i;  // with the loop's own step: past the entry that slid into place i
  }
  return plist::Value::array(std::move(entries));
}

}  // namespace tessarin::wifi
