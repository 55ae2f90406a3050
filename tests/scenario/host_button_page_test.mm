// The unlock-button page through the Settings host's commands: which button animates,
// which glyph is chosen and in which state, and taps on a third of either row.
#include <stdio.h>

#include <string>

#import "BundleFixture.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"

namespace {

bool Contains(const std::string &text, const std::string &part) { return text.find(part) != std::string::npos; }

// The line of the screen that holds `label`.
std::string LineOf(const std::string &screen, const std::string &label) {
  size_t at = screen.find(label);
  if (at == std::string::npos) return std::string();
  size_t start = screen.rfind('\n', at);
  start = start == std::string::npos ? 0 : start + 1;
  return screen.substr(start, screen.find('\n', at) - start);
}

}  // namespace

class HostButtonPageTest : public BundleTest {
 protected:
  void TearDown() override {
    [console_ release];
    console_ = nil;
    BundleTest::TearDown();
  }

  std::string Run(const std::string &command) {
    return [[console_ perform:[NSString stringWithUTF8String:command.c_str()]] UTF8String];
  }

  SettingsConsole *console_ = nil;
};

TEST_F(HostButtonPageTest, TheRowsShowTheChoiceAndTakeATapOnAThird) {
  StartDevice("iphone-touchid-ios14");
  ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  console_ = [[SettingsConsole alloc] init];
  ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
  std::string root = [[console_ render] UTF8String];
  std::string row = LineOf(root, "Button and glyph");
  unsigned number = 0;
  ASSERT_EQ(sscanf(row.c_str(), " [%u]", &number), 1) << root;

  std::string page = Run("tap " + std::to_string(number));
  EXPECT_TRUE(Contains(LineOf(page, "[1] Buttons"), "white  black  golden")) << page;
  EXPECT_TRUE(Contains(LineOf(page, "[2] Glyphs"), "black 0  [blue, state 11]  red 0")) << page;

  page = Run("tap 1 right");
  EXPECT_TRUE(Contains(LineOf(page, "[1] Buttons"), "white  black  [golden, animating]")) << page;
  EXPECT_TRUE(Contains(LineOf(page, "[2] Glyphs"), "black 0  blue 0  red 0")) << page;

  page = Run("tap 2 left");
  EXPECT_TRUE(Contains(LineOf(page, "[1] Buttons"), "white  black  golden")) << page;
  EXPECT_TRUE(Contains(LineOf(page, "[2] Glyphs"), "[black, state 11]  blue 0  red 0")) << page;
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"IconColor"], @(3));

  EXPECT_TRUE(Contains(Run("tap 2 top"), "Say which third")) << "only thirds";
  EXPECT_TRUE(Contains(Run("tap 3 left"), "1 to 2"));
}
