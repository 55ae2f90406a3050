#include "logs/CrashLogs.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

using namespace tessarin::logs;

namespace {

// Log names are local time; these tests read them in UTC.
class CrashLogs : public ::testing::Test {
protected:
  void SetUp() override {
    const char *tz = std::getenv("TZ");
    saved_ = tz ? std::optional<std::string>(tz) : std::nullopt;
    setenv("TZ", "UTC", 1);
    tzset();
  }
  void TearDown() override {
    if (saved_) setenv("TZ", saved_->c_str(), 1);
    else unsetenv("TZ");
    tzset();
  }

private:
  std::optional<std::string> saved_;
};

}  // namespace

TEST_F(CrashLogs, TimestampFromName) {
  struct Case {
    const char *name;
    uint64_t seconds;
  };
  const Case cases[] = {
      {"Tessarin-05-Mar-2024-14-07-09.log", 1709647629},
      {"Tessarin-01-Jan-1970-00-00-01.log", 1},
      {"Tessarin-29-Feb-2024-23-59-59.log", 1709251199},
      {"Tessarin-5-mar-2024-14-7-9.log", 1709647629},      // short fields and any case parse
      {"Tessarin-31-Dec-2023-12-00-00.log.log", 1704024000},  // every ".log" goes
      {"05-Mar-2024-14-07-09.log", 1709647629},            // the prefix is optional
      {"Tessarin-29-Feb-2023-10-00-00.log", 0},            // no such day
      {"Tessarin-31-Apr-2024-10-00-00.log", 0},
      {"Tessarin-05-Mar-2024-24-00-00.log", 0},
      {"Tessarin-05-Mar-2024-14-60-00.log", 0},
      {"Tessarin-05-March-2024-14-07-09.log", 0},
      {"Tessarin-05-Mar-2024-14-07.log", 0},
      {"Tessarin-05-Mar-2024-14-07-09-1.log", 0},
      {"Tessarin-05-Mar-2024-14-07-09.txt", 0},
      {"Latest-Tessarin.log", 0},
      {"notes.txt", 0},
      {"", 0},
      {"Tessarin-31-Dec-1969-23-59-59.log", 0},  // before 1970
  };
  for (const Case &c : cases) EXPECT_EQ(logTimestamp(c.name), c.seconds) << c.name;
}

TEST_F(CrashLogs, NamesAreLocalTime) {
  setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
  tzset();
  struct Case {
    const char *name;
    uint64_t seconds;
  };
  const Case cases[] = {
      {"Tessarin-05-Mar-2024-14-07-09.log", 1709644029},  // winter: UTC+1
      {"Tessarin-01-Jul-2024-12-00-00.log", 1719828000},  // summer: UTC+2
      {"Tessarin-31-Mar-2024-01-59-59.log", 1711846799},  // the last second before the change
      {"Tessarin-31-Mar-2024-03-00-00.log", 1711846800},  // the first one after it
  };
  for (const Case &c : cases) EXPECT_EQ(logTimestamp(c.name), c.seconds) << c.name;
}

TEST_F(CrashLogs, NewestFirst) {
  const std::string a = "Tessarin-05-Mar-2024-14-07-09.log";
  const std::string b = "Tessarin-06-Mar-2024-08-00-00.log";
  const std::string c = "Tessarin-01-Jan-2025-00-00-00.log";
  const std::string bad = "crash.txt";
  std::vector<LogEntry> entries;
  for (const std::string &name : {bad, a, c, b}) entries.push_back({name, logTimestamp(name)});
  EXPECT_EQ(newestFirst(entries), (std::vector<std::string>{c, b, a, bad}));
  EXPECT_TRUE(newestFirst({}).empty());

  // Two names of the same second: both come before older logs, in either order.
  const std::string same1 = "Tessarin-05-Mar-2024-14-07-10.log";
  const std::string same2 = "Tessarin-5-Mar-2024-14-7-10.log";
  const auto order = newestFirst({{a, logTimestamp(a)}, {same1, logTimestamp(same1)}, {same2, logTimestamp(same2)}});
  ASSERT_EQ(order.size(), 3u);
  EXPECT_EQ(order[2], a);
}

TEST_F(CrashLogs, LatestNames) {
  struct Case {
    const char *name;
    bool latest;
  };
  const Case cases[] = {
      {"Latest-Tessarin.log", true},  {"latest.log", true},   {"Tessarin-LATEST.log", true},
      {"Tessarin-05-Mar-2024-14-07-09.log", false}, {"Lates", false}, {"", false},
  };
  for (const Case &c : cases) EXPECT_EQ(isLatestName(c.name), c.latest) << c.name;
}

TEST_F(CrashLogs, Subtitle) {
  const std::string pad(120, 'x');
  struct Case {
    const char *name;
    std::string head;
    std::optional<std::string> subtitle;
  };
  const Case cases[] = {
      {"process line", "Incident\nProcess: SpringBoard [57]\nPath: /x\n", std::string(" SpringBoard [57]")},
      {"untrimmed", "Process:\tPreferences  \r\nmore", std::string("\tPreferences  \r")},
      {"empty name", "Process:\n", std::string("")},
      {"no line feed after it", "Header\nProcess: SpringBoard", std::nullopt},
      {"no marker", "Exception: NSRangeException\n", std::nullopt},
      {"marker past byte 149", pad + std::string(40, 'y') + "Process: late\n", std::nullopt},
      // The line feed is byte 150: the text ends before it.
      {"line feed at byte 150", pad + "Process: SpringBoar" + std::string(10, 'z') + "\n", std::nullopt},
      {"line feed at byte 149", pad + "Process: SpringBoar" + std::string(9, 'z') + "\n",
       std::string(" SpringBoar") + std::string(9, 'z')},
      {"NUL ends the text", std::string("Head\0Process: X\n", 16), std::nullopt},
      {"empty file", "", std::nullopt},
  };
  for (const Case &c : cases) EXPECT_EQ(logSubtitle(c.head), c.subtitle) << c.name;
}

TEST_F(CrashLogs, Deletion) {
  const std::string newest = "Tessarin-06-Mar-2024-08-00-00.log";
  const std::string older = "Tessarin-05-Mar-2024-14-07-09.log";
  const std::vector<std::string> dir = {"Latest-Tessarin.log", older, newest};
  const std::optional<std::string> link = latestLinkFile("/var/mobile/Library/Logs/Tessarin/" + newest);
  EXPECT_EQ(link, newest);
  EXPECT_EQ(latestLinkFile(newest), newest);  // a relative target is a file name already

  struct Case {
    const char *name;
    std::string row;
    std::optional<std::string> link;
    std::vector<std::string> files;
  };
  const Case cases[] = {
      {"newest takes the link along", newest, link, {"Latest-Tessarin.log", newest}},
      {"older log alone", older, link, {older}},
      {"no link", newest, std::nullopt, {newest}},
      {"through the link: its target", "Latest-Tessarin.log", link, {newest}},
      {"through the link, target gone", "Latest-Tessarin.log", std::string("Tessarin-gone.log"), {}},
      {"through the link, no link", "Latest-Tessarin.log", std::nullopt, {}},
      // A row without a file, or one naming a path, must never reach the directory itself.
      {"no file", "", link, {}},
      {"the directory", ".", link, {}},
      {"above it", "..", link, {}},
      {"a path", "../Preferences/net.corvane.tessarin.plist", link, {}},
      {"a path inside", "sub/" + newest, link, {}},
  };
  for (const Case &c : cases) EXPECT_EQ(filesToDelete(c.row, c.link, dir), c.files) << c.name;
}
