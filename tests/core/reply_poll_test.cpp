// The reply wait: a busy loop bounded by the budget, with one read after it.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "core/ReplyPoll.hpp"

namespace {

using tessarin::Bytes;

// A clock that advances by `step` seconds each time it is read.
struct SteppingClock {
  double now = 100.0;
  double step;
  double operator()() { return now += step; }
};

}  // namespace

TEST(ReplyPoll, StopsAtTheFirstDataAndCountsOnlyTheBudget) {
  struct Case {
    const char *what;
    int dataOnRead;  // 1-based read that first returns data; 0 = never
    int expectedReads;
    bool expectedData;
  };
  // The clock moves 0.1 s per reading: the loop may read while at most 0.7 s have passed.
  const Case cases[] = {
      {"first read", 1, 1, true},
      {"inside the budget", 5, 5, true},
      {"never", 0, 8, false},  // seven reads inside the budget, then the extra one
      {"only the extra read", 8, 8, true},
      {"after the extra read", 9, 8, false},
  };
  for (const Case &c : cases) {
    int reads = 0;
    SteppingClock clock{100.0, 0.1};
    auto read = [&]() -> std::optional<Bytes> {
      ++reads;
      if (c.dataOnRead != 0 && reads >= c.dataOnRead) return Bytes{1, 2, 3};
      return std::nullopt;
    };
    auto result = tessarin::awaitReply(read, std::ref(clock), 0.7);
    EXPECT_EQ(result.has_value(), c.expectedData) << c.what;
    EXPECT_EQ(reads, c.expectedReads) << c.what;
  }
}

TEST(ReplyPoll, ReadsWholeFilesAndRefusesHugeOnes) {
  std::string path = testing::TempDir() + "reply_poll_test.bin";
  std::remove(path.c_str());
  EXPECT_FALSE(tessarin::readReplyFile(path).has_value());

  std::FILE *file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  std::string content(40000, 'x');
  std::fwrite(content.data(), 1, content.size(), file);
  std::fclose(file);
  auto bytes = tessarin::readReplyFile(path);
  ASSERT_TRUE(bytes.has_value());
  EXPECT_EQ(bytes->size(), content.size());

  // Present but oversized: reads as empty data, which never decodes.
  file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  std::string chunk(1 << 20, 'y');
  for (std::size_t written = 0; written <= tessarin::kMaxReplyBytes; written += chunk.size()) {
    std::fwrite(chunk.data(), 1, chunk.size(), file);
  }
  std::fclose(file);
  bytes = tessarin::readReplyFile(path);
  ASSERT_TRUE(bytes.has_value());
  EXPECT_TRUE(bytes->empty());
  std::remove(path.c_str());
}
