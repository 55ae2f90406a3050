// The simulated Settings app on the protection-list pages: rows with their switch state and
// icon ("icons"), folder pictures read back, and switches flipped from the console.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include <string>

#import "HostConsoleFixture.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"

class HostListPagesTest : public HostConsoleFixture {
 protected:
  // The product's page open, then its row titled `page`.
  void Open(const char *profile, const char *page) {
    OpenSettings(profile);
    Tap(page);
    ASSERT_TRUE(Contains(screen_, std::string("Tessarin > ") + page)) << screen_;
  }
};

TEST_F(HostListPagesTest, FoldersShowTheirPicturesAndSameNamedOnesSwitchTogether) {
  Open("iphone-touchid-ios14", "Folders");
  const std::string icons = Run("icons");
  const std::string everything = LineWith(icons, "Everything");
  EXPECT_TRUE(Contains(everything, "at 38,38;")) << everything;
  EXPECT_TRUE(Contains(everything, "at 53,38 (cut at the edge)")) << everything;
  EXPECT_TRUE(Contains(everything, "at 68,38 (outside)")) << everything;
  const std::string nested = LineWith(icons, "Nested");
  EXPECT_TRUE(Contains(nested, "at 8,8;")) << nested;
  EXPECT_TRUE(Contains(nested, "at 38,8")) << nested;
  EXPECT_FALSE(Contains(nested, "at 23,8")) << nested;  // the nested folder's cell is empty
  EXPECT_TRUE(Contains(LineWith(icons, "newsstand"), "icon(NewsstandIconInternational")) << icons;

  const unsigned games = NumberOf(screen_, "Games");
  ASSERT_GT(games, 0u) << screen_;
  Run("switch " + std::to_string(games) + " on");
  const std::string after = Run("icons");
  EXPECT_TRUE(Contains(LineWith(after, "[" + std::to_string(games) + "] Games"), "[on]")) << after;
  EXPECT_TRUE(Contains(LineWith(after, "[" + std::to_string(games + 1) + "] Games"), "[on]")) << after;
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protectedFolders"], @[ @"Games" ]);
}

TEST_F(HostListPagesTest, ApplicationsShowTheirLazyIconsAndFlip) {
  Open(SIM_DEFAULT_PROFILE, "Applications");
  const std::string icons = Run("icons");
  EXPECT_TRUE(Contains(LineWith(icons, "Instagram"), "com.burbn.instagram (application icon")) << icons;
  EXPECT_TRUE(Contains(icons, "] Notes [off]")) << icons;  // "Notes~iphone" in its Info.plist
  const unsigned notes = NumberOf(screen_, "Notes");
  Run("flip " + std::to_string(notes));
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protected"], @[ @"com.apple.mobilenotes" ]);
  EXPECT_TRUE(Contains(LineWith(Run("icons"), "Notes"), "[on]"));
}

TEST_F(HostListPagesTest, ControlCenterIconsAreRoundedSettingsIcons) {
  Open(SIM_DEFAULT_PROFILE, "Control Center");
  const std::string icons = Run("icons");
  EXPECT_TRUE(Contains(LineWith(icons, "Airplane Mode"), "rounded: AirplaneMode@")) << icons;
  EXPECT_TRUE(Contains(LineWith(icons, "Flashlight"), "rounded: SettingsIcon@")) << icons;
  EXPECT_FALSE(Contains(icons, "tinted")) << icons;
}

TEST_F(HostListPagesTest, CCSettingsTogglesWithoutTheirSettingsBundleHaveNoIcons) {
  Open("iphone-touchid-ios14", "CCSettings toggles");
  const std::string icons = Run("icons");
  EXPECT_TRUE(Contains(LineWith(icons, "Airplane Mode"), "icon: no icon")) << icons;
  EXPECT_TRUE(Contains(icons, "] LTE [off]")) << icons;
  Run("switch " + std::to_string(NumberOf(screen_, "LTE")) + " on");
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protectedCCSettingsItems"], @[ @"dataRate" ]);
}

TEST_F(HostListPagesTest, SearchAndTheIndexFromTheConsole) {
  Open(SIM_DEFAULT_PROFILE, "Applications");
  EXPECT_TRUE(Contains(screen_, "[ Search ")) << screen_;
  EXPECT_TRUE(Contains(screen_, "Index: A B C D E F G H I J K L M N O P Q R S T U V W X Y Z #")) << screen_;

  Run("search saf");
  EXPECT_TRUE(Contains(LineWith(screen_, "[ saf "), "Cancel")) << screen_;
  EXPECT_EQ(NumberOf(screen_, "MobileSafari"), 1u) << screen_;
  EXPECT_EQ(NumberOf(screen_, "Notes"), 0u) << screen_;
  EXPECT_FALSE(Contains(screen_, "Index:")) << screen_;

  Run("search com.apple.");  // what the field held gives way to the new words
  EXPECT_TRUE(Contains(screen_, "[ com.apple. ")) << screen_;
  EXPECT_GT(NumberOf(screen_, "Notes"), 0u) << screen_;
  EXPECT_EQ(NumberOf(screen_, "Instagram"), 0u) << screen_;
  Run("flip " + std::to_string(NumberOf(screen_, "MobileSafari")));
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protected"], @[ @"com.apple.mobilesafari" ]);
  EXPECT_TRUE(Contains(LineWith(screen_, "MobileSafari"), "[on]")) << screen_;

  Run("search zzz");
  EXPECT_TRUE(Contains(screen_, "No Results")) << screen_;
  EXPECT_EQ(NumberOf(screen_, "MobileSafari"), 0u) << screen_;

  Run("search");
  EXPECT_FALSE(Contains(LineWith(screen_, "[ Search "), "Cancel")) << screen_;
  EXPECT_TRUE(Contains(screen_, "Index: A")) << screen_;
  EXPECT_TRUE(Contains(LineWith(screen_, "MobileSafari"), "[on]")) << screen_;
  EXPECT_GT(NumberOf(screen_, "Instagram"), 0u) << screen_;
  EXPECT_EQ(Run("search"), "The search field is empty.\n");

  // A touch on T scrolls as far down as the list goes: the screen begins lower and the
  // search field has scrolled away with the list.
  Run("index t");
  EXPECT_TRUE(Contains(screen_, "Index:")) << screen_;
  EXPECT_TRUE(Contains(screen_, "  -----")) << screen_;
  EXPECT_FALSE(Contains(screen_, "[ Search ")) << screen_;
  EXPECT_EQ(Run("index 7"),
            "The index has no \"7\": it shows A B C D E F G H I J K L M N O P Q R S T U V W X Y Z #.\n");
  Run("back");
  EXPECT_EQ(Run("search saf"), "This page has no search field.\n");
  EXPECT_EQ(Run("index A"), "This page shows no index.\n");
}
