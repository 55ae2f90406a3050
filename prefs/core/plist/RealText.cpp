#include "core/plist/RealText.hpp"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <locale.h>
#if defined(__APPLE__)
#include <xlocale.h>
#endif

namespace tessarin::plist {
namespace {

// Switches the calling thread to the C numeric conventions ('.' as the decimal
// point) for its lifetime; other threads and the process locale are untouched.
class CNumericLocale {
 public:
  CNumericLocale() : previous_(cLocale() ? uselocale(cLocale()) : nullptr) {}
  ~CNumericLocale() {
    if (previous_) uselocale(previous_);
  }
  CNumericLocale(const CNumericLocale &) = delete;
  CNumericLocale &operator=(const CNumericLocale &) = delete;

 private:
  static locale_t cLocale() {
    static const locale_t c = newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
    return c;
  }
  locale_t previous_;
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool equalsIgnoringCase(std::string_view s, std::string_view lower) {
  if (s.size() != lower.size()) return false;
  for (size_t i = 0; i < s.size(); ++i) {
    const char c = (s[i] >= 'A' && s[i] <= 'Z') ? static_cast<char>(s[i] - 'A' + 'a') : s[i];
    if (c != lower[i]) return false;
  }
  return true;
}

// The decimal grammar alone, so strtod never sees what it would also accept
// (leading space, hexadecimal, "nan(...)").
bool isDecimalReal(std::string_view s) {
  size_t i = 0;
  if (i < s.size() && s[i] == '-') ++i;
  size_t digits = 0;
  while (i < s.size() && isDigit(s[i])) ++i, ++digits;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && isDigit(s[i])) ++i, ++digits;
  }
  if (digits == 0) return false;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    size_t exponentDigits = 0;
    while (i < s.size() && isDigit(s[i])) ++i, ++exponentDigits;
    if (exponentDigits == 0) return false;
  }
  return i == s.size();
}

}  // namespace

bool parseRealText(std::string_view text, double &out) {
  std::string_view magnitude = text;
  const bool negative = !magnitude.empty() && magnitude.front() == '-';
  if (negative) magnitude.remove_prefix(1);
  if (equalsIgnoringCase(magnitude, "inf") || equalsIgnoringCase(magnitude, "infinity")) {
    out = negative ? -HUGE_VAL : HUGE_VAL;
    return true;
  }
  if (equalsIgnoringCase(magnitude, "nan")) {
    out = negative ? -std::nan("") : std::nan("");
    return true;
  }
  if (!isDecimalReal(text)) return false;

  const std::string terminated(text);
  CNumericLocale c;
  char *end = nullptr;
  errno = 0;
  const double value = std::strtod(terminated.c_str(), &end);
  if (end != terminated.c_str() + terminated.size()) return false;
  if (errno == ERANGE && std::isinf(value)) return false;
  out = value;
  return true;
}

std::string formatRealText(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  CNumericLocale c;
  char text[32];
  // 17 significant digits always read back exactly; fewer often do.
  for (int precision = 1; precision <= 17; ++precision) {
    std::snprintf(text, sizeof text, "%.*g", precision, value);
    if (std::strtod(text, nullptr) == value) break;
  }
  return text;
}

}  // namespace tessarin::plist
