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
    if (saved_)
      setenv("TZ", saved_->c_str(), 1);
    else
      unsetenv("TZ");
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
      {"Tessarin-5-mar-2024-14-7-9.log", 1709647629},         // short fields and any case parse
      {"Tessarin-31-Dec-2023-12-00-00.log.log", 1704024000},  // every ".log" goes
      {"05-Mar-2024-14-07-09.log", 1709647629},               // the prefix is optional
      {"Tessarin-29-Feb-2023-10-00-00.log", 0},               // no such day
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

TEST_F(CrashLogs, WhichEntriesAreListedAndDeleted) {
  const char *const log = "Tessarin-05-Mar-2024-14-07-09.log";
  struct Case {
    const char *name;
    EntryKind kind;
    bool listed, deleted;
  };
  const Case cases[] = {
      {log, EntryKind::RegularFile, true, true},
      {"notes.txt", EntryKind::RegularFile, true, true},  // badly named, still a log
      // A link named like a log may lead anywhere; a FIFO or folder named so is no file to read.
      {log, EntryKind::SymbolicLink, false, false},
      {log, EntryKind::Other, false, false},
      {log, EntryKind::Missing, false, false},
      {"Latest-Tessarin.log", EntryKind::SymbolicLink, false, true},  // the link itself goes with its log
      // Whatever contains "latest" in any case stands for the link, not a log.
      {"Latest-Tessarin.log", EntryKind::RegularFile, false, true},
      {"latest.log", EntryKind::RegularFile, false, true},
      {"Tessarin-LATEST.log", EntryKind::RegularFile, false, true},
      {"Lates", EntryKind::RegularFile, true, true},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(isListedLog(c.name, c.kind), c.listed) << c.name << " " << int(c.kind);
    EXPECT_EQ(mayDelete(c.name, c.kind), c.deleted) << c.name << " " << int(c.kind);
  }
}

TEST_F(CrashLogs, ResolvedPathInsideTheDirectory) {
  const std::string dir = "/private/var/mobile/Library/Logs/Tessarin";
  struct Case {
    std::string resolved;
    std::string directory;
    std::optional<std::string> file;
  };
  const Case cases[] = {
      {dir + "/Tessarin-05-Mar-2024-14-07-09.log", dir, std::string("Tessarin-05-Mar-2024-14-07-09.log")},
      {dir + "/x.log", dir + "/", std::string("x.log")},
      {"/private/var/mobile/Library/Preferences/secret.plist", dir, std::nullopt},
      {dir + "/deeper/x.log", dir, std::nullopt},
      {dir, dir, std::nullopt},
      {dir + "/", dir, std::nullopt},
      {dir + "Other/x.log", dir, std::nullopt},                        // a sibling that only begins like it
      {"/var/mobile/Library/Logs/Tessarin/x.log", dir, std::nullopt},  // not the real path
      {"/x.log", "/", std::string("x.log")},
      {dir + "/x.log", "", std::nullopt},
      {dir + "/x.log", "Tessarin", std::nullopt},
  };
  for (const Case &c : cases) EXPECT_EQ(fileInDirectory(c.resolved, c.directory), c.file) << c.resolved;
}

TEST_F(CrashLogs, Deletion) {
  const std::string newest = "Tessarin-06-Mar-2024-08-00-00.log";
  const std::string older = "Tessarin-05-Mar-2024-14-07-09.log";
  const std::vector<std::string> dir = {"Latest-Tessarin.log", older, newest};
  const std::optional<std::string> link = newest;

  struct Case {
    const char *name;
    std::string row;
    std::optional<std::string> link;
    std::vector<std::string> files;
  };
  const Case cases[] = {
      {"newest takes the link along", newest, link, {"Latest-Tessarin.log", newest}},
      {"older log alone", older, link, {older}},
      {"no link, or one leading outside", newest, std::nullopt, {newest}},
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

TEST_F(CrashLogs, WhatTheViewerOpens) {
  const std::optional<std::string> link = std::string("Tessarin-06-Mar-2024-08-00-00.log");
  struct Case {
    std::string row;
    std::optional<std::string> link;
    std::optional<std::string> file;
  };
  const Case cases[] = {
      {"Tessarin-05-Mar-2024-14-07-09.log", link, std::string("Tessarin-05-Mar-2024-14-07-09.log")},
      {"Latest-Tessarin.log", link, link},
      {"Latest-Tessarin.log", std::nullopt, std::nullopt},  // gone, or leading outside
      {"../../Preferences/secret.txt", link, std::nullopt},
      {"/var/mobile/Library/Preferences/secret.txt", link, std::nullopt},
      {"..", link, std::nullopt},
      {"", link, std::nullopt},
  };
  for (const Case &c : cases) EXPECT_EQ(fileToView(c.row, c.link), c.file) << c.row;
}

TEST_F(CrashLogs, TheViewerCutsAtAWholeCharacter) {
  const std::string euro = "\xE2\x82\xAC", lock = "\xF0\x9F\x94\x92", e = "\xC3\xA9";
  struct Case {
    const char *name;
    std::string head;
    uint64_t fileSize;
    std::size_t shown;
  };
  const Case cases[] = {
      {"the whole file", "ab" + euro, 5, 5},
      {"the whole file, even ending short", "ab" + euro.substr(0, 2), 4, 4},  // bad bytes stay bad
      {"cut after a whole character", "ab" + euro, 9, 5},
      {"cut after ASCII", "abc", 9, 3},
      {"cut after 1 of 2", "ab" + e.substr(0, 1), 9, 2},
      {"cut after 1 of 3", "ab" + euro.substr(0, 1), 9, 2},
      {"cut after 2 of 3", "ab" + euro.substr(0, 2), 9, 2},
      {"cut after 3 of 4", "ab" + lock.substr(0, 3), 9, 2},
      {"cut after a whole 4", "ab" + lock, 9, 6},
      {"cut in stray continuation bytes", "ab\x80\x80\x80\x80", 9, 6},
      {"cut at nothing", "", 9, 0},
  };
  for (const Case &c : cases) EXPECT_EQ(shownLength(c.head, c.fileSize), c.shown) << c.name;
}

TEST_F(CrashLogs, SizeText) {
  struct Case {
    uint64_t bytes;
    const char *text;
  };
  const Case cases[] = {
      {0, "0 bytes"},         {999, "999 bytes"},
      {1000, "1 KB"},         {1050, "1.1 KB"},
      {999949, "999.9 KB"},   {999950, "1 MB"},
      {1000000, "1 MB"},      {33554432, "33.6 MB"},
      {2100000000, "2.1 GB"}, {5000000000000000, "5000 TB"},
  };
  for (const Case &c : cases) EXPECT_EQ(sizeText(c.bytes), c.text) << c.bytes;
}

TEST_F(CrashLogs, FillIn) {
  EXPECT_EQ(fillIn("This log is %@: only its first %@ is shown.", {"33.6 MB", "1 MB"}),
            "This log is 33.6 MB: only its first 1 MB is shown.");
  EXPECT_EQ(fillIn("%@%@", {"a", "b"}), "ab");
  EXPECT_EQ(fillIn("cut (%@)", {"1 MB", "unused"}), "cut (1 MB)");
  EXPECT_EQ(fillIn("%@ of %@ and %@, 100%", {"a", "b"}), "a of b and %@, 100%");  // no value, no crash
  EXPECT_EQ(fillIn("Cut.", {"a"}), "Cut.");
}
