// A reply file's bytes to the reply: keyed archives of property-list objects only.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/Reply.hpp"
#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"
#include "core_test_print.hpp"

using tessarin::plist::Value;
namespace plist = tessarin::plist;

TEST(ReplyDecode, OnlyKeyedArchivesAreReplies) {
  Value reply = Value::dictionary();
  reply.set("networks", Value::array({Value::string("Home")}));
  const std::vector<uint8_t> archive = plist::encodeKeyedArchive(reply);
  const std::string xmlArchive = plist::encodeKeyedArchiveXml(reply);
  struct Case {
    const char *name;
    std::vector<uint8_t> bytes;
    bool isReply;
  };
  const Case cases[] = {
      {"binary archive", archive, true},
      {"XML archive", std::vector<uint8_t>(xmlArchive.begin(), xmlArchive.end()), true},
      {"empty, as an oversized file reads", {}, false},
      {"the same value as a plain property list", plist::writeBinaryPlist(reply), false},
      {"truncated archive", std::vector<uint8_t>(archive.begin(), archive.end() - 1), false},
      {"text", {'o', 'k'}, false},
  };
  for (const Case &c : cases) {
    const std::optional<Value> got = tessarin::decodeReply(c.bytes);
    EXPECT_EQ(got, c.isReply ? std::optional<Value>(reply) : std::nullopt) << c.name;
  }
}
