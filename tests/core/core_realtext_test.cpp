// Reals as property-list text: what is read, what is refused, exact round trips,
// and independence from the process locale.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "core/plist/RealText.hpp"
#include "core/plist/Value.hpp"
#include "core/plist/BinaryPlist.hpp"

namespace tessarin::plist {
namespace {

uint64_t bitsOf(double d) {
  uint64_t bits;
  std::memcpy(&bits, &d, sizeof bits);
  return bits;
}

double doubleOf(uint64_t bits) {
  double d;
  std::memcpy(&d, &bits, sizeof d);
  return d;
}

TEST(RealText, ReadsTheDecimalForms) {
  const struct {
    const char *text;
    double value;
  } cases[] = {
      {"0", 0.0},
      {"-0", -0.0},
      {"2.5e1", 25.0},
      {"1.", 1.0},
      {".5", 0.5},
      {"1E-2", 0.01},
      {"1e+2", 100.0},
      {"007", 7.0},
      {"0.1", 0.1},
      {"4.9406564584124654e-324", doubleOf(1)},
      {"1.7976931348623157e308", std::numeric_limits<double>::max()},
      {"INF", HUGE_VAL},
      {"-Infinity", -HUGE_VAL},
  };
  for (const auto &c : cases) {
    double out = 12345;
    ASSERT_TRUE(parseRealText(c.text, out)) << c.text;
    EXPECT_EQ(bitsOf(out), bitsOf(c.value)) << c.text;
  }
  double nan = 0;
  EXPECT_TRUE(parseRealText("NaN", nan) && std::isnan(nan));
}

TEST(RealText, RefusesWhatIsNotADecimalReal) {
  for (const char *text : {"", "-", ".", "e5", "1e", "1e+", "1.5.2", " 1", "1 ", "0x1p3", "1,5", "nan(1)", "infinite",
                           "--1", "1e400", "-1e400", "one"}) {
    double out = 12345;
    EXPECT_FALSE(parseRealText(text, out)) << text;
    EXPECT_EQ(out, 12345) << text;
  }
}

TEST(RealText, AnUnderflowingTextReadsAsZero) {
  double out = 1;
  ASSERT_TRUE(parseRealText("1e-400", out));
  EXPECT_EQ(bitsOf(out), bitsOf(0.0));
}

TEST(RealText, WritesTheShortestTextThatReadsBack) {
  const struct {
    double value;
    const char *text;
  } cases[] = {
      {0.1, "0.1"},
      {-0.0, "-0"},
      {25.0, "25"},
      {1e300, "1e+300"},
      {doubleOf(1), "5e-324"},
      {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
      {1.0 / 3, "0.3333333333333333"},
      {HUGE_VAL, "inf"},
      {-HUGE_VAL, "-inf"},
      {std::nan(""), "nan"},
  };
  for (const auto &c : cases) EXPECT_EQ(formatRealText(c.value), c.text);
}

TEST(RealText, EveryDoubleSurvivesTheRoundTripBitForBit) {
  std::mt19937_64 random(20261123);
  for (int i = 0; i < 50000; ++i) {
    const double value = doubleOf(random());
    if (std::isnan(value)) continue;
    double back = 0;
    const std::string text = formatRealText(value);
    ASSERT_TRUE(parseRealText(text, back)) << text;
    ASSERT_EQ(bitsOf(back), bitsOf(value)) << text;
  }
}

// A locale whose decimal point is a comma, made from the system's locale sources
// into a scratch directory when it is not installed.
bool useCommaLocale() {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8")) return true;
  const std::string dir = testing::TempDir() + "tessarin-locales";
  const std::string make =
      "mkdir -p '" + dir + "' && localedef -i de_DE -f UTF-8 '" + dir + "/de_DE.UTF-8' >/dev/null 2>&1";
  if (std::system(make.c_str()) != 0) return false;
  setenv("LOCPATH", dir.c_str(), 1);
  return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
}

TEST(RealText, AProcessLocaleWithADecimalCommaChangesNothing) {
  if (!useCommaLocale()) GTEST_SKIP() << "no de_DE locale sources on this machine";
  char probe[16];
  std::snprintf(probe, sizeof probe, "%.1f", 1.5);
  ASSERT_STREQ(probe, "1,5") << "the process locale is not in force";

  double out = 0;
  EXPECT_TRUE(parseRealText("1.5", out));
  EXPECT_EQ(out, 1.5);
  EXPECT_FALSE(parseRealText("1,5", out));
  EXPECT_EQ(formatRealText(1.5), "1.5");

  const std::string xml = "<plist><real>2.5e1</real></plist>";
  const auto decoded = readXmlPlist(reinterpret_cast<const uint8_t *>(xml.data()), xml.size());
  const std::string written = writeXmlPlist(Value::real(0.5));
  std::setlocale(LC_ALL, "C");
  ASSERT_TRUE(decoded);
  EXPECT_EQ(*decoded, Value::real(25.0));
  EXPECT_NE(written.find("<real>0.5</real>"), std::string::npos) << written;
}

}  // namespace
}  // namespace tessarin::plist
