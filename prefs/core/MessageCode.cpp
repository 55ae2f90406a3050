#include "core/MessageCode.hpp"

namespace tessarin {

std::optional<uint32_t> messageCode(std::string_view identifier) {
  if (identifier.size() < 4) return std::nullopt;
  uint32_t code = 0;
  for (size_t i = 0; i < 4; ++i) code = (code << 8) | static_cast<uint8_t>(identifier[i]);
  return code;
}

std::string messageIdentifier(uint64_t state) {
  std::string id(4, '\0');
  for (int i = 0; i < 4; ++i) {
    const auto c = static_cast<uint8_t>(state >> (8 * (3 - i)));
    if (c < 0x20 || c > 0x7E) return std::string();
    id[static_cast<size_t>(i)] = static_cast<char>(c);
  }
  return id;
}

std::string requestFilePath(std::string_view identifier) {
  std::string path("/tmp/.");
  path.append(identifier);
  return path;
}

std::string replyFilePath(std::string_view identifier) {
  std::string path = requestFilePath(identifier);
  path.append("-reply");
  return path;
}

const MessageInfo *findMessage(std::string_view identifier) {
  for (const MessageInfo &m : kMessages)
    if (identifier == m.identifier) return &m;
  return nullptr;
}

bool isRequestReply(std::string_view identifier) {
  const MessageInfo *m = findMessage(identifier);
  return m && m->kind == MessageKind::RequestReply;
}

}  // namespace tessarin
