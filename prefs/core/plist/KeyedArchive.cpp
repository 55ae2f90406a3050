#include "core/plist/KeyedArchive.hpp"

namespace tessarin::plist {

std::optional<Value> decodeKeyedArchive(const uint8_t *, size_t) { return std::nullopt; }

std::vector<uint8_t> encodeKeyedArchive(const Value &) { return {}; }

}  // namespace tessarin::plist
