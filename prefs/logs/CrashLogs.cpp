#include "logs/CrashLogs.hpp"

#include <algorithm>
#include <cctype>
#include <climits>
#include <ctime>
#include <time.h>

namespace tessarin::logs {

namespace {

constexpr const char *kMonths[] = {"jan", "feb", "mar", "apr", "may", "jun",
                                   "jul", "aug", "sep", "oct", "nov", "dec"};

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
    for (int k = 0; k < 3 && same; ++k)
      same = std::tolower(static_cast<unsigned char>(text[pos + k])) == kMonths[m][k];
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
  if (t.year < 1 || t.day < 1 || t.day > daysInMonth(t.year, t.month) || t.hour > 23 || t.minute > 59 ||
      t.second > 59)
    return std::nullopt;
  return t;
}

uint64_t secondsSince1970(const CrashTime &time) {
  if (time.year < 1970) return 0;
  // The moment as if it were UTC, then moved by the zone's offset at that moment. (mktime
  // would do the same but re-reads the zone on every call, which a list of a thousand
  // logs notices.)
  const int64_t asUTC = daysSince1970(time.year, time.month, time.day) * 86400 + time.hour * 3600 +
                        time.minute * 60 + time.second;
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

std::string latestLinkFile(std::string_view linkTarget) {
  const std::string directory = std::string(kLogDirectory) + "/";
  std::string_view file = linkTarget;
  if (beginsWith(file, directory)) file.remove_prefix(directory.size());
  return std::string(file);
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

}  // namespace tessarin::logs
