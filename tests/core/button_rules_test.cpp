#include "appearance/ButtonRules.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace tessarin::appearance;
using tessarin::SystemVersionFlags;

namespace {

SystemVersionFlags flagsFor(const char *version) { return tessarin::systemVersionFlags(version); }

// What the flags are in a process whose start-up never set iOS 11 (an older Settings).
SystemVersionFlags withoutIOS11(const char *version) {
  SystemVersionFlags f = flagsFor(version);
  f.iOS11 = false;
  return f;
}

}  // namespace

TEST(ButtonRules, TapsChooseByColumnAndTheLeftEdgeChoosesNothing) {
  const struct {
    double x;
    std::optional<int64_t> button, glyph;
  } cases[] = {
      {-1, std::nullopt, std::nullopt},
      {0, std::nullopt, std::nullopt},  // exactly 0: nothing
      {0.5, 0, 3},
      {105.99, 0, 3},
      {106, 1, 4},
      {211.99, 1, 4},
      {212, 2, 5},
      {319.99, 2, 5},
      {320, std::nullopt, std::nullopt},
      {400, std::nullopt, std::nullopt},
      {std::nan(""), std::nullopt, std::nullopt},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(buttonChoiceAt(c.x), c.button) << c.x;
    EXPECT_EQ(glyphChoiceAt(c.x), c.glyph) << c.x;
  }
}

TEST(ButtonRules, GlyphStatesFollowTheSystemFlags) {
  const struct {
    const char *name;
    SystemVersionFlags flags;
    int chosen;
    std::vector<int> chain;
    bool reapplies;
  } cases[] = {
      {"iOS 16 (start-up sets iOS 11)", flagsFor("Version 16.4 (Build 20E247)"), 11, {1, 8, 1, 11}, true},
      {"iOS 12 without iOS 11", withoutIOS11("Version 12.5 (Build 16H20)"), 7, {1, 2, 1, 7}, false},
      {"iOS 10.2 without iOS 11", withoutIOS11("Version 10.2 (Build 14C92)"), 7, {1, 2, 1, 7}, false},
      {"iOS 10.1 without iOS 11", withoutIOS11("Version 10.1 (Build 14B72)"), 6, {1, 2, 1, 6}, false},
      // The 10.2 list stops at 13 on purpose: iOS 14 without the iOS 11 flag shows 6.
      {"iOS 14 without iOS 11", withoutIOS11("Version 14.8 (Build 18H17)"), 6, {1, 2, 1, 6}, false},
      {"no flags", SystemVersionFlags{}, 6, {1, 2, 1, 6}, false},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(glyph::chosenState(c.flags), c.chosen) << c.name;
    EXPECT_EQ(glyph::tapChain(c.flags), c.chain) << c.name;
    EXPECT_EQ(glyph::reappliesPaletteBeforeLastStep(c.flags), c.reapplies) << c.name;
  }
}

TEST(ButtonRules, HexColoursReadAsTheScannerReadsThem) {
  const struct {
    const char *text;
    std::optional<uint32_t> scanned;
  } cases[] = {
      {"305a94", 0x305a94u},
      {"8a9bb1", 0x8a9bb1u},
      {"#305a94", std::nullopt},
      {"0x305a94", 0x305a94u},
      {"0X305A94", 0x305a94u},
      {"  ff0000", 0xff0000u},
      {"305a94zz", 0x305a94u},
      {"", std::nullopt},
      {"zz", std::nullopt},
      {"0x", 0u},
      {"0xg", 0u},
      {"1ffffffff", 0xFFFFFFFFu},
      {"ffffffff", 0xFFFFFFFFu},
  };
  for (const auto &c : cases) EXPECT_EQ(scanHexInt(c.text), c.scanned) << c.text;

  const struct {
    const char *text;
    double r, g, b;
  } colours[] = {
      {"305a94", 48 / 255.0, 90 / 255.0, 148 / 255.0},
      {"#305a94", 0, 0, 0},
      {"nothing", 0, 0, 0},
      {"ffffff", 1, 1, 1},
      {"1ff0080", 1, 0, 128 / 255.0},  // bits above 23 are ignored
  };
  for (const auto &c : colours) {
    Rgb rgb = rgbFromHexString(c.text);
    EXPECT_DOUBLE_EQ(rgb.red, c.r) << c.text;
    EXPECT_DOUBLE_EQ(rgb.green, c.g) << c.text;
    EXPECT_DOUBLE_EQ(rgb.blue, c.b) << c.text;
  }
}
