// libFuzzer target over the reply path as the transport runs it: the input lands in a
// reply file, readReplyFile reads it, decodeReply decodes it. Nothing may crash or
// hang, the file must read back whole, and a decoded reply must be a value the
// archive writer writes and the decoder takes back unchanged.
//   reply_fuzz -dict=tests/fuzz/plist.dict corpus   (archive_fuzz_seeds writes seeds)
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>
#include <vector>

#include "core/Reply.hpp"
#include "core/ReplyPoll.hpp"
#include "core/plist/KeyedArchive.hpp"

namespace {

std::string replyPath;

void removeReplyFile() { std::remove(replyPath.c_str()); }

void check(bool ok) {
  if (!ok) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  const char *dir = std::getenv("TMPDIR");
  std::string pattern = std::string(dir && *dir ? dir : "/tmp") + "/reply_fuzz.XXXXXX";
  const int fd = mkstemp(pattern.data());
  if (fd < 0) std::abort();
  close(fd);
  replyPath = pattern;
  std::atexit(removeReplyFile);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  std::FILE *file = std::fopen(replyPath.c_str(), "wb");
  check(file != nullptr);
  check(std::fwrite(data, 1, size, file) == size);
  check(std::fclose(file) == 0);

  const std::optional<tessarin::Bytes> bytes = tessarin::readReplyFile(replyPath);
  check(bytes && *bytes == std::vector<uint8_t>(data, data + size));
  if (const std::optional<tessarin::plist::Value> reply = tessarin::decodeReply(*bytes)) {
    const std::vector<uint8_t> again = tessarin::plist::encodeKeyedArchive(*reply);
    if (!again.empty()) {  // empty: a string that is not UTF-8
      const std::optional<tessarin::plist::Value> back = tessarin::decodeReply(again);
      check(back && tessarin::plist::encodeKeyedArchive(*back) == again);
    }
  }
  return 0;
}
