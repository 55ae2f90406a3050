// Keyed archives (as NSKeyedArchiver writes them) holding property-list
// objects only: dictionaries, arrays, strings, numbers, data and dates.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin::plist {

// Decodes the object under the "root" key of a keyed archive written as a
// binary or XML property list. nullopt when the bytes are not such an
// archive, or when the archive holds anything but property-list classes,
// a null inside a container, a dangling or cyclic reference, or nests too
// deeply.
std::optional<Value> decodeKeyedArchive(const uint8_t *bytes, size_t size);

// Encodes a value the way archivedDataWithRootObject: does on iOS (binary
// property list; dictionaries as NSDictionary, arrays as NSArray, dates as
// NSDate; strings, numbers and data inline). Empty when a string of the
// value is not valid UTF-8.
std::vector<uint8_t> encodeKeyedArchive(const Value &root);

// The same archive written as an XML property list (UIDs as "CF$UID"
// dictionaries). Empty on the same failure.
std::string encodeKeyedArchiveXml(const Value &root);

}  // namespace tessarin::plist
