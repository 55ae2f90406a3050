#include "core/LogLine.hpp"

#include <cstdio>

namespace tessarin {

const char *monthAbbreviation(int month) {
  static constexpr const char *kMonths[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                              "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  if (month < 0 || month > 11) return "???";
  return kMonths[month];
}

std::string logLine(std::string_view deviceName, const std::tm &time, std::string_view programName, int pid,
                    std::string_view message) {
  // "%s %.3s %d %.2d:%.2d:%.2d %s[%d]" then "%s %s\n"; names are taken by
  // length, so they need not be NUL-terminated.
  char stamp[96];
  const int n = std::snprintf(stamp, sizeof stamp, " %.3s %d %.2d:%.2d:%.2d ", monthAbbreviation(time.tm_mon),
                              time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
  char pidText[32];
  const int p = std::snprintf(pidText, sizeof pidText, "[%d] ", pid);

  std::string line;
  line.reserve(deviceName.size() + programName.size() + message.size() + 64);
  line.append(deviceName);
  if (n > 0) line.append(stamp, static_cast<size_t>(n) < sizeof stamp ? static_cast<size_t>(n) : sizeof stamp - 1);
  line.append(programName);
  if (p > 0) line.append(pidText, static_cast<size_t>(p));
  line.append(message);
  line.push_back('\n');
  return line;
}

}  // namespace tessarin
