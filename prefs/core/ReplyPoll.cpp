#include "core/ReplyPoll.hpp"

#include <cstdio>

namespace tessarin {

std::optional<Bytes> readReplyFile(const std::string &path) {
  std::FILE *file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return std::nullopt;
  Bytes bytes;
  std::uint8_t chunk[16384];
  std::size_t count;
  while ((count = std::fread(chunk, 1, sizeof chunk, file)) > 0) {
    if (bytes.size() + count > kMaxReplyBytes) {
      bytes.clear();
      break;
    }
    bytes.insert(bytes.end(), chunk, chunk + count);
  }
  std::fclose(file);
  return bytes;
}

std::optional<Bytes> awaitReply(FunctionRef<std::optional<Bytes>()> read, FunctionRef<double()> now,
                                double budgetSeconds) {
  const double start = now();
  while (now() - start <= budgetSeconds) {
    if (auto data = read()) return data;
  }
  return read();
}

}  // namespace tessarin
