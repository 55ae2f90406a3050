#include "core/SystemVersion.hpp"

namespace tessarin {
namespace {

bool containsAny(std::string_view haystack, std::initializer_list<std::string_view> needles) {
  for (std::string_view n : needles)
    if (haystack.find(n) != std::string_view::npos) return true;
  return false;
}

}  // namespace

SystemVersionFlags systemVersionFlags(std::string_view v) {
  SystemVersionFlags f;
  f.iOS17 = containsAny(v, {"Version 17."});
  f.iOS16 = containsAny(v, {"Version 16."}) || f.iOS17;
  f.iOS15 = containsAny(v, {"Version 15."}) || f.iOS16;
  f.iOS14 = containsAny(v, {"Version 14."}) || f.iOS15;
  f.iOS13 = containsAny(v, {"Version 13."}) || f.iOS14;
  f.iOS11 = true;
  // These two lists end at 13 although later systems exist; kept as is.
  f.iOS10_2 = containsAny(v, {"Version 10.2", "Version 10.3", "Version 11.", "Version 12.", "Version 13."});
  f.iOS10 = containsAny(v, {"Version 10.", "Version 11.", "Version 12.", "Version 13."});
  f.iOS8 = containsAny(v, {"Version 8.", "Version 9.", "Version 10.", "Version 11.", "Version 12.", "Version 13.",
                           "Version 14."}) ||
           f.iOS15 || f.iOS16 || f.iOS17;
  return f;
}

bool isSupportedSystem(std::string_view v) {
  return containsAny(v, {"Version 12.", "Version 13.", "Version 14.", "Version 15.", "Version 16.", "Version 17."});
}

}  // namespace tessarin
