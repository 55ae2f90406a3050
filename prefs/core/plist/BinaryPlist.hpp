// Property-list files: the binary "bplist00" format and the XML format.
// Readers accept hostile input and return nullopt on any fault.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin::plist {

// Binary property list. UIDs (keyed-archive references) are rejected here;
// sets are read as arrays; null and fill objects are rejected.
std::optional<Value> readBinaryPlist(const uint8_t *bytes, size_t size);

// XML property list ("<plist version=...>"). Dates are ISO 8601 UTC
// ("2026-11-22T10:00:00Z"), data is base64.
std::optional<Value> readXmlPlist(const uint8_t *bytes, size_t size);

// Either format, chosen by the leading bytes.
std::optional<Value> readPlist(const uint8_t *bytes, size_t size);

// Writers. An empty result means a string of the value is not valid UTF-8.
std::vector<uint8_t> writeBinaryPlist(const Value &value);
std::string writeXmlPlist(const Value &value);

}  // namespace tessarin::plist
