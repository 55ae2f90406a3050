#include <gtest/gtest.h>

#include "core/SystemVersion.hpp"

using namespace tessarin;

namespace {
struct Row {
  const char *version;
  // Expected flags, in the order 8, 10, 10.2, 11, 13, 14, 15, 16, 17.
  const char *flags;
  bool supported;
};

std::string flagString(const SystemVersionFlags &f) {
  std::string s;
  for (bool b : {f.iOS8, f.iOS10, f.iOS10_2, f.iOS11, f.iOS13, f.iOS14, f.iOS15, f.iOS16, f.iOS17})
    s.push_back(b ? '1' : '0');
  return s;
}
}  // namespace

TEST(SystemVersion, FlagTable) {
  //                                         8 10 10.2 11 13 14 15 16 17
  const Row rows[] = {
      {"Version 17.0 (Build 21A329)", "100111111", true},
      {"Version 17.4.1 (Build 21E236)", "100111111", true},
      {"Version 16.7.2 (Build 20H115)", "100111110", true},
      {"Version 15.4 (Build 19E241)", "100111100", true},
      {"Version 14.8 (Build 18H17)", "100111000", true},
      {"Version 13.7 (Build 17H35)", "111110000", true},
      {"Version 12.5.7 (Build 16H81)", "111100000", true},
      {"Version 11.4.1 (Build 15G77)", "111100000", false},
      {"Version 10.3.3 (Build 14G60)", "111100000", false},
      {"Version 10.2.1 (Build 14D27)", "111100000", false},
      {"Version 10.1 (Build 14B72)", "110100000", false},
      {"Version 9.3 (Build 13E233)", "100100000", false},
      {"Version 8.4", "100100000", false},
      {"Version 7.1", "000100000", false},
      {"", "000100000", false},
      {"garbage", "000100000", false},
  };
  for (const Row &r : rows) {
    // 15 to 17 set iOS 8 through the later-flag rule; the string lists
    // for 10 and 10.2 end at 13, so 14 to 17 leave them clear.
    EXPECT_EQ(flagString(systemVersionFlags(r.version)), r.flags) << r.version;
    EXPECT_EQ(isSupportedSystem(r.version), r.supported) << r.version;
  }
}

TEST(SystemVersion, TenListsStopAtThirteenOnPurpose) {
  for (const char *v : {"Version 14.0", "Version 15.0", "Version 16.0", "Version 17.0"}) {
    const SystemVersionFlags f = systemVersionFlags(v);
    EXPECT_FALSE(f.iOS10) << v;
    EXPECT_FALSE(f.iOS10_2) << v;
    EXPECT_TRUE(f.iOS8) << v;
    EXPECT_TRUE(f.iOS13) << v;
  }
  EXPECT_TRUE(systemVersionFlags("Version 13.0").iOS10);
  EXPECT_TRUE(systemVersionFlags("Version 13.0").iOS10_2);
}

TEST(SystemVersion, ContainsNotPrefix) {
  // The test is "contains": "Version 1" followed by any of the numbers.
  EXPECT_FALSE(systemVersionFlags("Version 1.0").iOS10);
  EXPECT_FALSE(systemVersionFlags("Version 170.1").iOS17);
  EXPECT_TRUE(systemVersionFlags("xx Version 16.1 yy").iOS16);
  EXPECT_FALSE(isSupportedSystem("Version 18.0"));
  EXPECT_TRUE(systemVersionFlags("Version 18.0").iOS11);
}
