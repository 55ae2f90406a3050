// The crash-log pages' rules: reading the moment of a crash from a log's file
// name, the order of the list, which names are left out, the subtitle taken from
// the head of a log, and which files a deletion removes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::logs {

// Logs are named "Tessarin-dd-MMM-yyyy-HH-mm-ss.log" (Gregorian calendar, English
// month abbreviations, local time); the newest is also reachable through the link
// "Latest-Tessarin.log" in the same directory.
inline constexpr std::string_view kProductName = "Tessarin";
inline constexpr std::string_view kLogDirectory = "/var/mobile/Library/Logs/Tessarin";
inline constexpr std::string_view kLatestLinkName = "Latest-Tessarin.log";
inline constexpr std::string_view kProcessMarker = "Process:";
// How much of a log's head is read for its subtitle, and how much of that is used.
inline constexpr std::size_t kHeadBytes = 150;

// A moment as written in a log's name.
struct CrashTime {
  int year, month, day;  // month 1 to 12
  int hour, minute, second;
};

// The moment in a name, after the product name's prefix "Tessarin-" and every
// ".log" are taken out; nothing when the rest is not "dd-MMM-yyyy-HH-mm-ss" or not
// a real date (February 30th, hour 24...).
std::optional<CrashTime> crashTime(std::string_view fileName);

// Seconds since 1970 of a moment read as local time (the zone's offset at that moment);
// 0 before 1970.
uint64_t secondsSince1970(const CrashTime &time);

// The list's sort key of a file name: 0 when the name does not parse.
uint64_t logTimestamp(std::string_view fileName);

struct LogEntry {
  std::string file;
  uint64_t timestamp;
};

// The file names of the entries, newest first. Entries of the same second keep no
// particular order.
std::vector<std::string> newestFirst(std::vector<LogEntry> entries);

// Names that stand for the latest link rather than a log: every name containing
// "Latest" in any case.
bool isLatestName(std::string_view fileName);

// The subtitle of a log from the first bytes read from it (at most kHeadBytes):
// the text ends after byte 149 (or at a NUL byte); after "Process:" up to the next
// line feed, untrimmed. Nothing without "Process:" or without a line feed after it.
std::optional<std::string> logSubtitle(std::string_view head);

// The bare file name the latest link points at: its target without the log
// directory's path and the slash after it.
std::string latestLinkFile(std::string_view linkTarget);

// A name that stands for a file inside a directory: not empty, not "." or "..", no slash.
bool isPlainFileName(std::string_view name);

// The files of the log directory to delete for a row. A row whose file begins with
// "Latest" removes every directory entry named as the link's target; any other row
// removes its own file and, when it is the link's target, the link too. A row whose
// file is not a plain file name removes nothing.
std::vector<std::string> filesToDelete(std::string_view rowFile, const std::optional<std::string> &linkFile,
                                       const std::vector<std::string> &directoryEntries);

}  // namespace tessarin::logs
