#include "core/plist/BinaryPlist.hpp"

namespace tessarin::plist {

std::optional<Value> readBinaryPlist(const uint8_t *, size_t) { return std::nullopt; }
std::optional<Value> readXmlPlist(const uint8_t *, size_t) { return std::nullopt; }
std::optional<Value> readPlist(const uint8_t *, size_t) { return std::nullopt; }
std::vector<uint8_t> writeBinaryPlist(const Value &) { return {}; }
std::string writeXmlPlist(const Value &) { return {}; }

}  // namespace tessarin::plist
