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
