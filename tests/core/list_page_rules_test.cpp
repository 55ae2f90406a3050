#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "appearance/BehaviourRules.hpp"
#include "lists/ListPageRules.hpp"

using namespace tessarin;

TEST(ListPageRules, SettingsListRowsBecomeGroupsOrSwitchesWithoutTheOwnPane) {
  struct Case {
    const char *name;
    int cellType;
    lists::PaneRow expected;
  };
  const Case cases[] = {
      {"Tessarin", 1, lists::PaneRow::Skip},          {"Tessarin", 0, lists::PaneRow::Skip},
      {"tessarin", 1, lists::PaneRow::Switch},  // names compare exactly
      {"Tessarin Extras", 1, lists::PaneRow::Switch}, {"", 0, lists::PaneRow::Group},
      {"General", 0, lists::PaneRow::Group},          {"Wi-Fi", 1, lists::PaneRow::Switch},
      {"Battery", 6, lists::PaneRow::Switch},
  };
  for (const Case &c : cases) EXPECT_EQ(lists::paneRow(c.name, c.cellType), c.expected) << c.name << " " << c.cellType;
}

TEST(ListPageRules, RowItemIsTheIdElseTheName) {
  EXPECT_EQ(lists::rowItem(std::string("WIFI"), "Wi-Fi"), "WIFI");
  EXPECT_EQ(lists::rowItem(std::nullopt, "Exposure Notifications"), "Exposure Notifications");
  EXPECT_EQ(lists::rowItem(std::string(""), "Wi-Fi"), "");  // an id, even empty, is the item
}

TEST(ListPageRules, TogglesOmitOnlyTheProductsOwnSwitch) {
  EXPECT_FALSE(lists::listsToggle("net.corvane.tessarin.switch"));
  EXPECT_TRUE(lists::listsToggle("net.corvane.tessarin.switch2"));
  EXPECT_TRUE(lists::listsToggle("org.toggles.wifi"));
  EXPECT_TRUE(lists::listsToggle(""));
}

TEST(ListPageRules, FaceIDTextsReplaceExactlyWhatTheyName) {
  using lists::RowText;
  struct Case {
    const char *row;
    RowText property;
    const char *text;
    const char *expected;
  };
  const Case cases[] = {
      {"CALLERID_TOP", RowText::Footer, "Use Touch ID. Touch ID again.", "Use Face ID. Face ID again."},
      {"CALLERID_TOP", RowText::Footer, "touch id stays", "touch id stays"},
      {"CALLERID_TOP", RowText::Label, "Touch ID", "Touch ID"},
      {"CALLERID_FINGER_UP", RowText::Footer, "hidden when lifting you finger.", "hidden when looking away."},
      // The search text keeps its missing "r": the corrected phrase is left alone.
      {"CALLERID_FINGER_UP", RowText::Footer, "when lifting your finger", "when lifting your finger"},
      {"CALLERID_FINGER_UP", RowText::Footer, "Touch ID", "Touch ID"},
      {"CALLERID_HIDE_CALLER", RowText::Label, "Hide Caller on lift finger", "Hide Caller on look away"},
      {"CALLERID_HIDE_CALLER", RowText::Name, "", "Hide Caller on look away"},
      {"CALLERID_HIDE_CALLER", RowText::Footer, "lifting you finger", "lifting you finger"},
      {"OTHER", RowText::Footer, "Touch ID and lifting you finger", "Touch ID and lifting you finger"},
  };
  for (const Case &c : cases) EXPECT_EQ(lists::faceIDText(c.row, c.property, c.text), c.expected) << c.row;
}

// On a Face ID device the finger phrase is searched for as the user's language words it.
TEST(ListPageRules, FaceIDTextsFollowTheLanguage) {
  const TextLookup german = [](const LocalText &text) -> std::string {
    if (text.key == lists::kLiftFingerPhrase.key) return "beim Anheben des Fingers";
    if (text.key == lists::kLookAwayPhrase.key) return "beim Wegsehen";
    if (text.key == lists::kHideCallerFaceIDTitle.key) return "Anrufer beim Wegsehen ausblenden";
    return std::string(text.english);
  };
  using lists::RowText;
  EXPECT_EQ(lists::faceIDText("CALLERID_FINGER_UP", RowText::Footer, "wieder beim Anheben des Fingers.", german),
            "wieder beim Wegsehen.");
  EXPECT_EQ(lists::faceIDText("CALLERID_FINGER_UP", RowText::Footer, "lifting you finger", german),
            "lifting you finger");
  EXPECT_EQ(lists::faceIDText("CALLERID_HIDE_CALLER", RowText::Label, "x", german), "Anrufer beim Wegsehen ausblenden");
  EXPECT_EQ(lists::faceIDText("CALLERID_TOP", RowText::Footer, "mit Touch ID", german), "mit Face ID");
  // A language without the phrase changes nothing.
  const TextLookup empty = [](const LocalText &) { return std::string(); };
  EXPECT_EQ(lists::faceIDText("CALLERID_FINGER_UP", RowText::Footer, "any text", empty), "any text");
}

TEST(BehaviourRules, DelayRowsHideWhileWaitingUntilFinished) {
  struct Case {
    const char *row;
    bool wait;
    bool shown;
  };
  const Case cases[] = {
      {"DELAY_TIME", false, true},
      {"DELAY_TIME", true, false},
      {"WAIT_DELAY", false, true},
      {"WAIT_DELAY", true, false},
      {"WAIT_TILL_FINISH", true, true},
      {"DELAY_GROUP", true, true},
      {"", true, true},
      {"delay_time", true, true},
  };
  for (const Case &c : cases) EXPECT_EQ(behaviour::showsDelayRow(c.row, c.wait), c.shown) << c.row << " " << c.wait;
  EXPECT_TRUE(behaviour::reloadsDelayPage("WAIT_TILL_FINISH"));
  EXPECT_FALSE(behaviour::reloadsDelayPage("WAIT_DELAY"));
  EXPECT_FALSE(behaviour::reloadsDelayPage("KEEP_SESSION"));
}

TEST(BehaviourRules, SavedTitleIsTheTextOrTheEmptyString) {
  EXPECT_EQ(behaviour::savedAlertTitle(std::nullopt), "");
  EXPECT_EQ(behaviour::savedAlertTitle(std::string("")), "");
  EXPECT_EQ(behaviour::savedAlertTitle(std::string(" Locked ")), " Locked ");
}
