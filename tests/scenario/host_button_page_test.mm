// The unlock-button page through the Settings host's commands: which button animates,
// which glyph is chosen and in which state, and taps on a third of either row.
#include <string>

#import "HostConsoleFixture.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"

class HostButtonPageTest : public HostConsoleFixture {};

TEST_F(HostButtonPageTest, TheRowsShowTheChoiceAndTakeATapOnAThird) {
  OpenSettings("iphone-touchid-ios14");
  std::string page = Tap("Button and glyph");
  EXPECT_TRUE(Contains(LineWith(page, "[1] Buttons"), "white  black  golden")) << page;
  EXPECT_TRUE(Contains(LineWith(page, "[2] Glyphs"), "black 0  [blue, state 11]  red 0")) << page;

  page = Run("tap 1 right");
  EXPECT_TRUE(Contains(LineWith(page, "[1] Buttons"), "white  black  [golden, animating]")) << page;
  EXPECT_TRUE(Contains(LineWith(page, "[2] Glyphs"), "black 0  blue 0  red 0")) << page;

  page = Run("tap 2 left");
  EXPECT_TRUE(Contains(LineWith(page, "[1] Buttons"), "white  black  golden")) << page;
  EXPECT_TRUE(Contains(LineWith(page, "[2] Glyphs"), "[black, state 11]  blue 0  red 0")) << page;
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"IconColor"], @(3));

  EXPECT_TRUE(Contains(Run("tap 2 top"), "Say which third")) << "only thirds";
  EXPECT_TRUE(Contains(Run("tap 3 left"), "1 to 2"));
}
