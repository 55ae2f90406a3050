#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/MessageCode.hpp"
#include "core/Names.hpp"

using namespace tessarin;

TEST(MessageCode, FirstFourBytesBigEndian) {
  struct Case {
    const char *id;
    uint32_t code;
  };
  const Case cases[] = {
      {"dlbv", 0x646C6276u}, {"idsn", 0x6964736Eu}, {"appL", 0x6170704Cu},
      {"fldr", 0x666C6472u}, {"wfls", 0x77666C73u}, {"gpsi", 0x67707369u},
      {"spsi", 0x73707369u}, {"prrc", 0x70727263u}, {"dlbvEXTRA", 0x646C6276u},  // only four bytes count
  };
  for (const Case &c : cases) EXPECT_EQ(messageCode(c.id), c.code) << c.id;
}

TEST(MessageCode, ShortIdentifiersHaveNoCode) {
  for (const char *id : {"", "d", "dl", "dlb"}) EXPECT_EQ(messageCode(id), std::nullopt) << id;
  EXPECT_EQ(messageCode(std::string_view("\0\0\0\x01", 4)), 1u);
}

TEST(MessageCode, EveryMessageRoundTripsThroughTheState) {
  std::set<uint32_t> codes;
  for (const MessageInfo &m : kMessages) {
    const auto code = messageCode(m.identifier);
    ASSERT_TRUE(code.has_value());
    codes.insert(*code);
    EXPECT_EQ(messageIdentifier(*code), m.identifier);
    // The notify state is 64 bits wide; only the low 32 carry the code.
    EXPECT_EQ(messageIdentifier(0xFFFFFFFF00000000ull | *code), m.identifier);
  }
  EXPECT_EQ(codes.size(), 8u);
}

TEST(MessageCode, NonPrintableStatesGiveNoIdentifier) {
  for (uint64_t state : {0ull, 0x646C6200ull, 0x0A6C6276ull, 0x646C627Full, 0x80808080ull, 0x646C62FFull})
    EXPECT_EQ(messageIdentifier(state), "") << std::hex << state;
  EXPECT_EQ(messageIdentifier(0x20202020ull), "    ");
}

TEST(MessageCode, FilePaths) {
  EXPECT_EQ(requestFilePath("spsi"), "/tmp/.spsi");
  EXPECT_EQ(replyFilePath("dlbv"), "/tmp/.dlbv-reply");
}

TEST(MessageCode, MessageTable) {
  struct Case {
    const char *id;
    bool requestReply;
  };
  const Case cases[] = {
      {message::kLibraryVersion, true},         {message::kBiometricsEnrolled, true},
      {message::kApplications, true},           {message::kFolders, true},
      {message::kWiFiNetworks, true},           {message::kGetCallerIDVisibility, true},
      {message::kSetCallerIDVisibility, false}, {message::kPasscodeResetRequest, false},
  };
  for (const Case &c : cases) {
    ASSERT_NE(findMessage(c.id), nullptr) << c.id;
    EXPECT_EQ(isRequestReply(c.id), c.requestReply) << c.id;
    EXPECT_EQ(findMessage(c.id)->kind == MessageKind::RequestReply, c.requestReply) << c.id;
  }
  EXPECT_EQ(findMessage("zzzz"), nullptr);
  EXPECT_FALSE(isRequestReply("zzzz"));
  EXPECT_FALSE(isRequestReply("dlb"));
}
