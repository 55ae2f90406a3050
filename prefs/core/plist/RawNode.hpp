// The tree a property-list reader produces before it becomes a Value: the
// same shapes, plus the UID references that keyed archives use. Used by the
// readers, the writer and the keyed-archive coder; users see only Value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/plist/Value.hpp"

namespace tessarin::plist {

struct RawNode {
  enum class Kind { Scalar, Uid, Array, Dictionary };

  Kind kind = Kind::Scalar;
  Value scalar;                                          ///< Scalar: never an array or dictionary
  uint64_t uid = 0;                                      ///< Uid
  std::vector<RawNode> items;                            ///< Array
  std::vector<std::pair<std::string, RawNode>> entries;  ///< Dictionary, file order

  static RawNode makeScalar(Value v);
  static RawNode makeUid(uint64_t uid);
  static RawNode makeArray(std::vector<RawNode> items = {});
  static RawNode makeDictionary(std::vector<std::pair<std::string, RawNode>> entries = {});

  bool isUid() const noexcept { return kind == Kind::Uid; }
  bool isArray() const noexcept { return kind == Kind::Array; }
  bool isDictionary() const noexcept { return kind == Kind::Dictionary; }
  bool isScalar() const noexcept { return kind == Kind::Scalar; }
  /// Dictionary lookup (first match); nullptr when absent or not a dictionary.
  const RawNode *find(const char *key) const noexcept;
};

/// Limits that hold for every reader: nesting depth, and the number of nodes
/// and payload bytes a file may expand to (binary files may share objects,
/// so a small file could otherwise describe an enormous tree).
inline constexpr size_t kMaxDepth = 64;
inline constexpr size_t kMaxNodes = size_t{1} << 18;
inline constexpr size_t kMaxPayloadBytes = size_t{16} << 20;

/// Converts a tree to a Value, taking its strings and data rather than copying
/// them; nullopt when it holds a UID anywhere. A key repeated in a dictionary keeps
/// its first place and its last value (Value::dictionary), in O(n log n) for n keys.
std::optional<Value> toValue(RawNode &&node);
/// The inverse; never fails.
RawNode toRaw(const Value &value);

// Readers returning the raw tree (UIDs kept). nullopt on any fault.
/// The binary reader refuses: a file shorter than header and trailer or without the
/// "bplist00" header; offset or reference sizes outside 1 to 8 bytes; no objects, a top
/// object past the count, an offset table that does not fit before the trailer, an
/// object offset outside the object area; a reference past the object count or to an
/// object that contains it (a cycle); null, fill and unknown markers; integers beyond
/// 64 bits; reals of other than 4 or 8 bytes; dates of other than 8; ASCII strings
/// with a byte above 0x7F, UTF-16 strings with an unpaired surrogate; dictionary keys
/// other than strings; a UID written in more than 8 bytes (the marker allows 16, and
/// reading only the low 64 bits would point the reference elsewhere); and trees deeper
/// than kMaxDepth or expanding to more than kMaxNodes nodes or kMaxPayloadBytes.
std::optional<RawNode> readBinaryPlistRaw(const uint8_t *bytes, size_t size);
/// With uidDictionaries set, a dictionary whose only key is "CF$UID" holding
/// a non-negative integer becomes a UID node, as keyed archives write them.
std::optional<RawNode> readXmlPlistRaw(const uint8_t *bytes, size_t size, bool uidDictionaries);

/// Writers of the raw tree; an empty result means the tree could not be written:
/// what writeBinaryPlist and writeXmlPlist refuse.
std::vector<uint8_t> writeBinaryPlistRaw(const RawNode &root);
std::string writeXmlPlistRaw(const RawNode &root);

}  // namespace tessarin::plist
