#include "core/Reply.hpp"

#include "core/plist/KeyedArchive.hpp"

namespace tessarin {

std::optional<plist::Value> decodeReply(const std::vector<std::uint8_t> &bytes) {
  if (bytes.empty()) return std::nullopt;
  return plist::decodeKeyedArchive(bytes.data(), bytes.size());
}

}  // namespace tessarin
