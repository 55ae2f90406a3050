// Reals as property-list text: "<real>" content read and written the same way in
// every locale, and written in the shortest form that reads back as the same double.
//
// Apple's C++ library has no floating-point std::from_chars before iOS 16.3 and no
// floating-point std::to_chars before iOS 16.3 either, so these go through strtod and
// snprintf with the C numeric conventions in force for the calling thread only.
#pragma once

#include <string>
#include <string_view>

namespace tessarin::plist {

/// Reads a decimal real: an optional '-', digits with an optional '.' and fraction,
/// an optional exponent; or "inf", "infinity", "nan" in any case. No hexadecimal
/// form, no surrounding space. A finite text too large for a double is refused; one
/// too small reads as the nearest double (a subnormal or zero).
bool parseRealText(std::string_view text, double &out);

/// The shortest decimal text that parseRealText reads back as exactly `value`
/// ("0.1", "1e+300", "-0"); "inf", "-inf" and "nan" for the non-finite values.
std::string formatRealText(double value);

}  // namespace tessarin::plist
