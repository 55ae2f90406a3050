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

/// Decodes the object under the "root" key of a keyed archive written as a binary or
/// XML property list; the time is O(n log n) in the size of the archive. nullopt when:
/// - the bytes are not a property list the raw readers accept (RawNode.hpp; among
///   others a UID written in more than 8 bytes), or its top level is not a dictionary;
/// - "$archiver" is not "NSKeyedArchiver", "$version" not the integer 100000,
///   "$objects" not an array whose first object is the string "$null", or "$top" holds
///   no UID under "root";
/// - a reference is 0 ("$null", so no nulls in containers), past the end of
///   "$objects" (dangling) or to an object being decoded (a cycle), or a container
///   holds a value inline where a reference belongs;
/// - an object is neither a property-list value nor an instance of NSDictionary,
///   NSArray, NSString, NSData, NSDate or their mutable forms (named by "$classname" of
///   the object its "$class" references); a dictionary has keys other than strings or
///   "NS.keys" and "NS.objects" of different lengths; a string, data or date instance
///   lacks its "NS.string", "NS.data" / "NS.bytes" or numeric "NS.time";
/// - the references nest deeper than kMaxDepth, or expand to more than kMaxNodes
///   objects or kMaxPayloadBytes of strings and data (shared objects count each time).
/// A dictionary that names a key twice keeps its first place and its last value.
std::optional<Value> decodeKeyedArchive(const uint8_t *bytes, size_t size);

/// Encodes a value the way archivedDataWithRootObject: does on iOS (binary
/// property list; dictionaries as NSDictionary, arrays as NSArray, dates as
/// NSDate; strings, numbers and data inline). Empty when a string of the
/// value is not valid UTF-8.
std::vector<uint8_t> encodeKeyedArchive(const Value &root);

/// The same archive written as an XML property list (UIDs as "CF$UID"
/// dictionaries). Empty when writeXmlPlist would refuse the value (NSDate instances
/// carry their time as a real, so any date is written).
std::string encodeKeyedArchiveXml(const Value &root);

}  // namespace tessarin::plist
