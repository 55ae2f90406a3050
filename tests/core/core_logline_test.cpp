#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "core/LogLine.hpp"

using namespace tessarin;

namespace {
std::tm makeTime(int month, int day, int hour, int minute, int second) {
  std::tm t{};
  t.tm_year = 126;
  t.tm_mon = month;
  t.tm_mday = day;
  t.tm_hour = hour;
  t.tm_min = minute;
  t.tm_sec = second;
  return t;
}
}  // namespace

TEST(LogLine, Format) {
  struct Case {
    std::string device;
    std::tm time;
    std::string program;
    int pid;
    std::string message;
    std::string expected;
  };
  const Case cases[] = {
      {"Lena's iPhone", makeTime(10, 22, 9, 5, 7), "Preferences", 412, "started",
       "Lena's iPhone Nov 22 09:05:07 Preferences[412] started\n"},
      {"", makeTime(0, 1, 0, 0, 0), "Settings", 1, "x", " Jan 1 00:00:00 Settings[1] x\n"},
      {"Pad", makeTime(11, 31, 23, 59, 59), "p", 99999, "", "Pad Dec 31 23:59:59 p[99999] \n"},
      {"d", makeTime(4, 9, 12, 30, 0), "prog", -1, "a b", "d May 9 12:30:00 prog[-1] a b\n"},
  };
  for (const Case &c : cases) EXPECT_EQ(logLine(c.device, c.time, c.program, c.pid, c.message), c.expected);
}

TEST(LogLine, MonthNames) {
  const char *names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  for (int m = 0; m < 12; ++m) EXPECT_STREQ(monthAbbreviation(m), names[m]);
  for (int m : {-1, 12, 1000, -2147483647 - 1}) EXPECT_STREQ(monthAbbreviation(m), "???");
  EXPECT_EQ(logLine("d", makeTime(12, 1, 1, 1, 1), "p", 2, "m"), "d ??? 1 01:01:01 p[2] m\n");
}

TEST(LogLine, LongTextIsKeptWhole) {
  const std::string message(5000, 'm');
  const std::string device(300, 'd');
  const std::string line = logLine(device, makeTime(2, 3, 4, 5, 6), "prog", 7, message);
  EXPECT_EQ(line, device + " Mar 3 04:05:06 prog[7] " + message + "\n");
}
