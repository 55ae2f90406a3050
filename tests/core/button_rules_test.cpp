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

void expectFrame(const Frame &f, double x, double y, double w, double h, const char *what) {
  EXPECT_DOUBLE_EQ(f.x, x) << what;
  EXPECT_DOUBLE_EQ(f.y, y) << what;
  EXPECT_DOUBLE_EQ(f.width, w) << what;
  EXPECT_DOUBLE_EQ(f.height, h) << what;
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

TEST(ButtonRules, StoredValueSelectsOneRowOnly) {
  const struct {
    int64_t stored;
    std::optional<int> button, glyph;
  } cases[] = {
      {-1, std::nullopt, std::nullopt}, {0, 0, std::nullopt}, {1, 1, std::nullopt}, {2, 2, std::nullopt},
      {3, std::nullopt, 0},             {4, std::nullopt, 1}, {5, std::nullopt, 2}, {6, std::nullopt, std::nullopt},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(chosenButton(c.stored), c.button) << c.stored;
    EXPECT_EQ(chosenGlyph(c.stored), c.glyph) << c.stored;
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

TEST(ButtonRules, SampleGlyphLooksPerSystemFlag) {
  const SystemVersionFlags modern = flagsFor("Version 15.0 (Build 19A346)");
  const SystemVersionFlags old = withoutIOS11("Version 10.3 (Build 14E277)");
  const struct {
    const char *name;
    int glyph;
    SystemVersionFlags flags;
    int style, palette;
    std::string_view primary, secondary;
  } cases[] = {
      {"black", 0, modern, 0, 3, "", ""},          {"blue", 1, modern, 0, 2, "", ""},
      {"red", 2, modern, 0, 1, "", ""},            {"old black", 0, old, 1, 0, "", ""},
      {"old blue", 1, old, 1, 0, "305a94", "8a9bb1"}, {"old red", 2, old, 0, 0, "", ""},
  };
  for (const auto &c : cases) {
    glyph::Look l = glyph::look(c.glyph, c.flags);
    EXPECT_EQ(l.style, c.style) << c.name;
    EXPECT_EQ(l.paletteStyle, c.palette) << c.name;
    EXPECT_EQ(l.primaryHex, c.primary) << c.name;
    EXPECT_EQ(l.secondaryHex, c.secondary) << c.name;
  }
  // The hooks keep each sample in the palette it was made with on modern systems.
  for (int g = 0; g < 3; ++g) EXPECT_EQ(glyph::hookPaletteStyle(g), glyph::look(g, modern).paletteStyle) << g;
  EXPECT_EQ(glyph::hookPaletteStyle(3), 0);
}

TEST(ButtonRules, HexColoursReadAsTheScannerReadsThem) {
  const struct {
    const char *text;
    std::optional<uint32_t> scanned;
  } cases[] = {
      {"305a94", 0x305a94u},   {"8a9bb1", 0x8a9bb1u},  {"#305a94", std::nullopt}, {"0x305a94", 0x305a94u},
      {"0X305A94", 0x305a94u}, {"  ff0000", 0xff0000u}, {"305a94zz", 0x305a94u},  {"", std::nullopt},
      {"zz", std::nullopt},    {"0x", 0u},              {"0xg", 0u},              {"1ffffffff", 0xFFFFFFFFu},
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

TEST(ButtonRules, ButtonAndGlyphMeasures) {
  expectFrame(containerFrame(375), 27.5, 0, 320, 96, "container on a 375-point row");
  expectFrame(containerFrame(320), 0, 0, 320, 96, "container on a 320-point row");
  expectFrame(button::thirdFrame(0), 0, 0, 96, 96, "left third");
  expectFrame(button::thirdFrame(1), 106, 0, 96, 96, "middle third");
  expectFrame(button::thirdFrame(2), 212, 0, 96, 96, "right third");
  expectFrame(button::kInThird, 18, 13, 70, 70, "button in its third");
  expectFrame(glyph::frameInThird(125), 31.5, 17, 63, 63, "glyph on a 375-point row");
  expectFrame(glyph::thirdFrame(2, 125), 250, 0, 96, 96, "right glyph third");
  EXPECT_EQ(button::thumbImage(true), "thumb-black");
  EXPECT_EQ(button::thumbImage(false), "thumb-white");
  EXPECT_FLOAT_EQ(button::kRingRotation.to, static_cast<float>(2 * M_PI));
  // The strip and the red print move by the same amount in opposite directions.
  EXPECT_EQ(button::kStripSweep.to, -button::kRedPrintSweep.to);
  EXPECT_EQ(button::kStripSweep.to, -button::kGhost.y);
}
