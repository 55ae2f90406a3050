// System-version flags, derived from the operating system version string
// (for example "Version 15.4 (Build 19E241)").
#pragma once

#include <string_view>

namespace tessarin {

struct SystemVersionFlags {
  bool iOS8 = false;
  bool iOS10 = false;
  bool iOS10_2 = false;
  bool iOS11 = false;
  bool iOS13 = false;
  bool iOS14 = false;
  bool iOS15 = false;
  bool iOS16 = false;
  bool iOS17 = false;
};

/// All flags for a version string. iOS11 is always set (the Settings
/// process). The iOS 10.2 and iOS 10 lists stop at 13 on purpose.
SystemVersionFlags systemVersionFlags(std::string_view versionString);

/// True when the string names iOS 12 to 17 ("Version 12." ... "Version 17.").
bool isSupportedSystem(std::string_view versionString);

}  // namespace tessarin
