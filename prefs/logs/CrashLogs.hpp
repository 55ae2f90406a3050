// The crash-log pages' rules: reading the moment of a crash from a log's file
// name, the order of the list, which directory entries are logs, the subtitle taken
// from the head of a log, where the latest link may lead, which files a deletion
// removes, and how much of a log the viewer shows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::logs {

/// Logs are named "Tessarin-dd-MMM-yyyy-HH-mm-ss.log" (Gregorian calendar, English
/// month abbreviations, local time); the newest is also reachable through the link
/// "Latest-Tessarin.log" in the same directory.
inline constexpr std::string_view kProductName = "Tessarin";
inline constexpr std::string_view kLogDirectory = "/var/mobile/Library/Logs/Tessarin";
inline constexpr std::string_view kLatestLinkName = "Latest-Tessarin.log";
inline constexpr std::string_view kProcessMarker = "Process:";
/// How much of a log's head is read for its subtitle, and how much of that is used.
inline constexpr std::size_t kHeadBytes = 150;

/// A moment as written in a log's name.
struct CrashTime {
  int year, month, day;  ///< month 1 to 12
  int hour, minute, second;
};

/// The moment in a name, after the product name's prefix "Tessarin-" and every
/// ".log" are taken out; nothing when the rest is not "dd-MMM-yyyy-HH-mm-ss" or not
/// a real date (February 30th, hour 24...).
std::optional<CrashTime> crashTime(std::string_view fileName);

/// Seconds since 1970 of a moment read as local time (the zone's offset at that moment);
/// 0 before 1970.
uint64_t secondsSince1970(const CrashTime &time);

/// The list's sort key of a file name: 0 when the name does not parse.
uint64_t logTimestamp(std::string_view fileName);

struct LogEntry {
  std::string file;
  uint64_t timestamp;
};

/// The file names of the entries, newest first. Entries of the same second keep no
/// particular order.
std::vector<std::string> newestFirst(std::vector<LogEntry> entries);

/// Names that stand for the latest link rather than a log: every name containing
/// "Latest" in any case.
bool isLatestName(std::string_view fileName);

/// The subtitle of a log from the first bytes read from it (at most kHeadBytes):
/// the text ends after byte 149 (or at a NUL byte); after "Process:" up to the next
/// line feed, untrimmed. Nothing without "Process:" or without a line feed after it.
std::optional<std::string> logSubtitle(std::string_view head);

/// What a directory entry is, never following a link: from fstat of the opened
/// descriptor, or from lstat when it could not be opened.
enum class EntryKind { RegularFile, SymbolicLink, Other, Missing };

/// Whether a directory entry is a log of the list: a regular file not named as the
/// latest link. A symbolic link is never a log: the latest link is one by design,
/// and any other may lead anywhere on the device. Directories, FIFOs, sockets and
/// devices are not logs either.
bool isListedLog(std::string_view fileName, EntryKind kind);

/// The name of the file that `resolvedPath` is right inside `realDirectory`, both
/// real paths (realpath: absolute, no links, no "." or ".."). Nothing when the path
/// lies outside it, deeper down, or is the directory itself.
std::optional<std::string> fileInDirectory(std::string_view resolvedPath, std::string_view realDirectory);

/// A name that stands for a file inside a directory: not empty, not "." or "..", no slash.
bool isPlainFileName(std::string_view name);

/// Whether a deletion may remove a directory entry: a regular file, or the latest
/// link itself (never what a link points at, never anything else).
bool mayDelete(std::string_view fileName, EntryKind kind);

/// The files of the log directory to delete for a row. A row whose file begins with
/// "Latest" removes every directory entry named as the link's target; any other row
/// removes its own file and, when it is the link's target, the link too. A row whose
/// file is not a plain file name removes nothing.
std::vector<std::string> filesToDelete(std::string_view rowFile, const std::optional<std::string> &linkFile,
                                       const std::vector<std::string> &directoryEntries);

/// The file of the log directory the viewer opens for a row: the latest link's
/// target (`linkFile`, already resolved and checked) for the link's own name, the
/// row's file when it is a plain file name, else nothing.
std::optional<std::string> fileToView(std::string_view rowFile, const std::optional<std::string> &linkFile);

/// How much of a log the viewer reads and shows (and mails): its head. A crash log
/// begins with the process, the exception and the crashed thread's backtrace, which
/// is what support needs; what makes one grow without bound is appended at its end.
/// A megabyte is some ten thousand lines, and a text view of it still opens at once.
inline constexpr std::size_t kViewerBytes = 1000 * 1000;

/// The number of bytes of `head` (the first bytes of a file of `fileSize` bytes) to
/// show: all of them when that is the whole file; otherwise up to the last whole
/// UTF-8 character, so that a character the cut split does not make the text
/// unreadable. Only the cut end is trimmed: bad bytes elsewhere stay bad.
std::size_t shownLength(std::string_view head, uint64_t fileSize);

/// A size as the viewer states it, in decimal units with at most one decimal:
/// "512 bytes", "1 KB", "33.6 MB", "2.1 GB".
std::string sizeText(uint64_t bytes);

/// `format` with each "%@" replaced, in order, by the next of `values`; a "%@"
/// beyond them stays as it is. (A translated text never reaches a printf format.)
std::string fillIn(std::string_view format, const std::vector<std::string> &values);

}  // namespace tessarin::logs
