#include "logs/CrashLogs.hpp"

#include <algorithm>
#include <cctype>
#include <climits>
#include <ctime>
#include <time.h>

namespace tessarin::logs {

namespace {

constexpr const char *kMonths[] = {"jan", "feb", "mar", "apr", "may", "jun", "jul", "aug", "sep", "oct", "nov", "dec"};

// Reads 1 to `maxDigits` digits at `pos`.
std::optional<int> number(std::string_view text, std::size_t &pos, std::size_t maxDigits) {
  std::size_t start = pos;
  int value = 0;
  while (pos < text.size() && pos - start < maxDigits && std::isdigit(static_cast<unsigned char>(text[pos]))) {
    value = value * 10 + (text[pos] - '0');
    ++pos;
  }
  if (pos == start) return std::nullopt;
  return value;
}

bool hyphen(std::string_view text, std::size_t &pos) {
  if (pos >= text.size() || text[pos] != '-') return false;
  ++pos;
  return true;
}

std::optional<int> month(std::string_view text, std::size_t &pos) {
  if (text.size() - pos < 3) return std::nullopt;
  for (int m = 0; m < 12; ++m) {
    bool same = true;
    for (int k = 0; k < 3 && same; ++k) same = std::tolower(static_cast<unsigned char>(text[pos + k])) == kMonths[m][k];
    if (same) {
      pos += 3;
      return m + 1;
    }
  }
  return std::nullopt;
}

bool leapYear(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int daysInMonth(int year, int month) {
  static const int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && leapYear(year) ? 29 : days[month - 1];
}

// Days from 1970-01-01 to a Gregorian date.
int64_t daysSince1970(int year, int month, int day) {
  const int64_t y = month <= 2 ? year - 1 : year;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const int64_t yearOfEra = y - era * 400;
  const int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + dayOfEra - 719468;
}

// Seconds the local zone is ahead of UTC at a moment (0 when it cannot be told).
int64_t utcOffsetAt(int64_t seconds) {
  const std::time_t moment = static_cast<std::time_t>(seconds);
  std::tm local{};
  if (localtime_r(&moment, &local) == nullptr) return 0;
  return local.tm_gmtoff;
}

std::string withoutAll(std::string text, std::string_view part) {
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at)) text.erase(at, part.size());
  return text;
}

bool beginsWith(std::string_view text, std::string_view prefix) { return text.substr(0, prefix.size()) == prefix; }

}  // namespace

std::optional<CrashTime> crashTime(std::string_view fileName) {
  std::string prefix = std::string(kProductName) + "-";
  std::string_view rest = fileName;
  if (beginsWith(rest, prefix)) rest.remove_prefix(prefix.size());
  const std::string text = withoutAll(std::string(rest), ".log");

  std::size_t pos = 0;
  CrashTime t{};
  std::optional<int> day = number(text, pos, 2);
  if (!day || !hyphen(text, pos)) return std::nullopt;
  std::optional<int> mon = month(text, pos);
  if (!mon || !hyphen(text, pos)) return std::nullopt;
  std::optional<int> year = number(text, pos, 4);
  if (!year || !hyphen(text, pos)) return std::nullopt;
  std::optional<int> hour = number(text, pos, 2);
  if (!hour || !hyphen(text, pos)) return std::nullopt;
  std::optional<int> minute = number(text, pos, 2);
  if (!minute || !hyphen(text, pos)) return std::nullopt;
  std::optional<int> second = number(text, pos, 2);
  if (!second || pos != text.size()) return std::nullopt;

  t.year = *year;
  t.month = *mon;
  t.day = *day;
  t.hour = *hour;
  t.minute = *minute;
  t.second = *second;
  if (t.year < 1 || t.day < 1 || t.day > daysInMonth(t.year, t.month) || t.hour > 23 || t.minute > 59 || t.second > 59)
    return std::nullopt;
  return t;
}

uint64_t secondsSince1970(const CrashTime &time) {
  if (time.year < 1970) return 0;
  // The moment as if it were UTC, then moved by the zone's offset at that moment. (mktime
  // would do the same but re-reads the zone on every call, which a list of a thousand
  // logs notices.)
  const int64_t asUTC =
      daysSince1970(time.year, time.month, time.day) * 86400 + time.hour * 3600 + time.minute * 60 + time.second;
  int64_t seconds = asUTC - utcOffsetAt(asUTC);
  seconds = asUTC - utcOffsetAt(seconds);  // the offset in force at the local moment itself
  return seconds > 0 ? static_cast<uint64_t>(seconds) : 0;
}

uint64_t logTimestamp(std::string_view fileName) {
  const std::optional<CrashTime> time = crashTime(fileName);
  return time ? secondsSince1970(*time) : 0;
}

std::vector<std::string> newestFirst(std::vector<LogEntry> entries) {
  std::stable_sort(entries.begin(), entries.end(),
                   [](const LogEntry &a, const LogEntry &b) { return a.timestamp > b.timestamp; });
  std::vector<std::string> files;
  files.reserve(entries.size());
  for (LogEntry &entry : entries) files.push_back(std::move(entry.file));
  return files;
}

bool isLatestName(std::string_view fileName) {
  static constexpr std::string_view kLatest = "latest";
  if (fileName.size() < kLatest.size()) return false;
  for (std::size_t at = 0; at + kLatest.size() <= fileName.size(); ++at) {
    std::size_t k = 0;
    while (k < kLatest.size() && std::tolower(static_cast<unsigned char>(fileName[at + k])) == kLatest[k]) ++k;
    if (k == kLatest.size()) return true;
  }
  return false;
}

std::optional<std::string> logSubtitle(std::string_view head) {
  std::string_view text = head.substr(0, kHeadBytes - 1);
  text = text.substr(0, text.find('\0'));
  const std::size_t marker = text.find(kProcessMarker);
  if (marker == std::string_view::npos) return std::nullopt;
  const std::string_view after = text.substr(marker + kProcessMarker.size());
  const std::size_t end = after.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  return std::string(after.substr(0, end));
}

bool isListedLog(std::string_view fileName, EntryKind kind) {
  return kind == EntryKind::RegularFile && isPlainFileName(fileName) && !isLatestName(fileName);
}

std::optional<std::string> fileInDirectory(std::string_view resolvedPath, std::string_view realDirectory) {
  if (realDirectory.empty() || realDirectory.front() != '/') return std::nullopt;
  std::string prefix(realDirectory);
  if (prefix.back() != '/') prefix += '/';
  if (!beginsWith(resolvedPath, prefix)) return std::nullopt;
  const std::string_view name = resolvedPath.substr(prefix.size());
  if (!isPlainFileName(name)) return std::nullopt;
  return std::string(name);
}

bool mayDelete(std::string_view fileName, EntryKind kind) {
  return kind == EntryKind::RegularFile || (kind == EntryKind::SymbolicLink && fileName == kLatestLinkName);
}

bool isPlainFileName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
         name.find('\0') == std::string_view::npos;
}

std::vector<std::string> filesToDelete(std::string_view rowFile, const std::optional<std::string> &linkFile,
                                       const std::vector<std::string> &directoryEntries) {
  std::vector<std::string> files;
  // Only a file of the log directory itself is ever deleted: never the directory, nothing
  // above or below it.
  if (!isPlainFileName(rowFile)) return files;
  if (beginsWith(rowFile, "Latest")) {
    if (linkFile)
      for (const std::string &entry : directoryEntries)
        if (entry == *linkFile) files.push_back(entry);
    return files;
  }
  if (linkFile && *linkFile == rowFile) files.emplace_back(kLatestLinkName);
  files.emplace_back(rowFile);
  return files;
}

std::optional<std::string> fileToView(std::string_view rowFile, const std::optional<std::string> &linkFile) {
  if (rowFile == kLatestLinkName) return linkFile;
  if (!isPlainFileName(rowFile)) return std::nullopt;
  return std::string(rowFile);
}

std::size_t shownLength(std::string_view head, uint64_t fileSize) {
  if (fileSize <= head.size()) return head.size();
  // Step back over the continuation bytes at the end to the byte that starts the last
  // character; drop that character when the cut left it short.
  std::size_t start = head.size();
  std::size_t continuations = 0;
  while (start > 0 && continuations < 3 && (static_cast<unsigned char>(head[start - 1]) & 0xC0) == 0x80) {
    --start;
    ++continuations;
  }
  if (start == 0) return head.size();
  const unsigned char lead = static_cast<unsigned char>(head[start - 1]);
  const std::size_t length = lead < 0x80             ? 1
                             : (lead & 0xE0) == 0xC0 ? 2
                             : (lead & 0xF0) == 0xE0 ? 3
                             : (lead & 0xF8) == 0xF0 ? 4
                                                     : 0;
  if (length == 0) return head.size();  // not a character's start: bad bytes, left as they are
  return continuations + 1 < length ? start - 1 : head.size();
}

std::string sizeText(uint64_t bytes) {
  static const char *const kUnits[] = {"KB", "MB", "GB", "TB"};
  if (bytes < 1000) return std::to_string(bytes) + " bytes";
  uint64_t unit = 1000;
  std::size_t index = 0;
  while (index + 1 < sizeof kUnits / sizeof *kUnits && bytes >= unit * 1000 - unit / 20) {
    unit *= 1000;
    ++index;
  }
  // Tenths of the unit, rounded: whole numbers only, so no locale decides the decimal mark.
  const uint64_t tenths = bytes / (unit / 10) + (bytes % (unit / 10) >= unit / 20 ? 1 : 0);
  std::string text = std::to_string(tenths / 10);
  if (tenths % 10 != 0) text += "." + std::to_string(tenths % 10);
  return text + " " + kUnits[index];
}

std::string fillIn(std::string_view format, const std::vector<std::string> &values) {
  static constexpr std::string_view kPlaceholder = "%@";
  std::string text;
  std::size_t next = 0;
  while (!format.empty()) {
    const std::size_t at = format.find(kPlaceholder);
    if (at == std::string_view::npos || next == values.size()) break;
    text.append(format.substr(0, at));
    text += values[next++];
    format.remove_prefix(at + kPlaceholder.size());
  }
  text.append(format);
  return text;
}

}  // namespace tessarin::logs
