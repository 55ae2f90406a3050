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

/// Binary property list. UIDs (keyed-archive references) are rejected here;
/// sets are read as arrays; null and fill objects are rejected.
std::optional<Value> readBinaryPlist(const uint8_t *bytes, size_t size);

/// XML property list ("<plist version=...>"). Dates are ISO 8601 UTC
/// ("2026-11-22T10:00:00Z"; years as Apple writes them: "10000-01-01T00:00:00Z",
/// "-001-01-01T00:00:00Z" for 2 BC), data is base64.
std::optional<Value> readXmlPlist(const uint8_t *bytes, size_t size);

/// Either format, chosen by the leading bytes.
std::optional<Value> readPlist(const uint8_t *bytes, size_t size);

/// Binary writer. An empty result means a string of the value is not valid UTF-8.
std::vector<uint8_t> writeBinaryPlist(const Value &value);

/// XML writer, whose documents read back the same with Apple's, Python's (plistlib)
/// and libplist's readers as with ours, for every value they can hold (plistlib's
/// dates end at year 9999, libplist's XML dates at four-digit years). Dates are kept
/// to the whole second (rounded down), the infinities written "+infinity" and
/// "-infinity" as Apple writes them, NaN "nan". An empty result means the value holds
/// what no XML document can carry: a string or key that is not valid UTF-8, or that
/// holds a C0 control other than tab, line feed and carriage return, or U+FFFE or
/// U+FFFF (XML 1.0 allows these neither raw nor as references; the binary format
/// carries them); or a date that is not finite or lies beyond year 2,147,483,647 either
/// way (Apple's reader holds the year in 32 bits).
std::string writeXmlPlist(const Value &value);

}  // namespace tessarin::plist
