// The text of one log line.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace tessarin {

/// "<device> <Mon> <day> <hh>:<mm>:<ss> <program>[<pid>] <message>\n".
/// The month comes from tm_mon ("Jan".."Dec"; "???" when out of range).
/// The device name may be empty.
std::string logLine(std::string_view deviceName, const std::tm &time, std::string_view programName, int pid,
                    std::string_view message);

/// The three-letter English month name for tm_mon 0..11, "???" otherwise.
const char *monthAbbreviation(int month);

}  // namespace tessarin
