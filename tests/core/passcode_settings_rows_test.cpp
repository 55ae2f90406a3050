#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "passcode/PasscodeSettingsRows.hpp"

namespace tessarin::passcode {
namespace {

// The rows as a specifier file might list them, with an unknown row and a
// row without an identifier among them.
const std::vector<std::string> kLoaded = {
    "ADD_TESSARIN_PASSCODE",      "CHANGE_TESSARIN_PASSCODE", "SOMETHING_ELSE", "REMOVE_TESSARIN_PASSCODE", "",
    "USE_ONLY_TESSARIN_PASSCODE",
};

struct RowsCase {
  const char *name;
  SettingsContext ctx;
  std::vector<std::string> ids;      // kept rows, in order
  std::vector<std::size_t> indexes;  // their places in kLoaded
  std::vector<std::string> actions;
  bool renamed;  // the use-only row gets the Face ID name
};

class SettingsRowsTable : public ::testing::TestWithParam<RowsCase> {};

TEST_P(SettingsRowsTable, KeepsTheRightRowsInOrder) {
  const RowsCase &c = GetParam();
  std::vector<KeptRow> kept = keptSettingsRows(c.ctx, kLoaded);
  std::vector<std::string> ids;
  std::vector<std::size_t> indexes;
  std::vector<std::string> actions;
  bool renamed = false;
  for (const KeptRow &r : kept) {
    ids.emplace_back(r.id);
    indexes.push_back(r.index);
    actions.emplace_back(actionSelector(r.action));
    renamed = renamed || r.renameForFaceID;
    EXPECT_EQ(kLoaded[r.index], r.id);
  }
  EXPECT_EQ(ids, c.ids);
  EXPECT_EQ(indexes, c.indexes);
  EXPECT_EQ(actions, c.actions);
  EXPECT_EQ(renamed, c.renamed);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SettingsRowsTable,
    ::testing::Values(
        RowsCase{"no_passcode_touchid", {false, true, false}, {"ADD_TESSARIN_PASSCODE"}, {0}, {"addPassword"}, false},
        RowsCase{"no_passcode_faceid", {false, true, true}, {"ADD_TESSARIN_PASSCODE"}, {0}, {"addPassword"}, false},
        RowsCase{
            "no_passcode_no_biometrics", {false, false, false}, {"ADD_TESSARIN_PASSCODE"}, {0}, {"addPassword"}, false},
        RowsCase{"passcode_no_biometrics",
                 {true, false, false},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE"},
                 {1, 3},
                 {"changePassword", "removePassword"},
                 false},
        RowsCase{"passcode_touchid",
                 {true, true, false},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE", "USE_ONLY_TESSARIN_PASSCODE"},
                 {1, 3, 5},
                 {"changePassword", "removePassword", ""},
                 false},
        RowsCase{"passcode_faceid",
                 {true, true, true},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE", "USE_ONLY_TESSARIN_PASSCODE"},
                 {1, 3, 5},
                 {"changePassword", "removePassword", ""},
                 true}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(SettingsRows, OrderFollowsTheFile) {
  const std::vector<std::string> reversed = {"USE_ONLY_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE",
                                             "CHANGE_TESSARIN_PASSCODE"};
  std::vector<KeptRow> kept = keptSettingsRows({true, true, false}, reversed);
  ASSERT_EQ(kept.size(), 3u);
  EXPECT_EQ(kept[0].id, "USE_ONLY_TESSARIN_PASSCODE");
  EXPECT_EQ(kept[1].action, RowAction::RemovePassword);
  EXPECT_EQ(kept[2].action, RowAction::ChangePassword);
  EXPECT_TRUE(keptSettingsRows({true, true, true}, {}).empty());
}

// ---------------------------------------------------------------------------
// Footers (their texts and link range are checked in the app)

// Face ID without a biometric sensor cannot happen on a device; the sensor test decides.
TEST(SettingsFooter, WithoutASensorTheFaceIDFlagIsIgnored) {
  SettingsFooter f = settingsFooter({true, false, true});
  EXPECT_EQ(f.text, settingsFooter({true, false, false}).text);
  EXPECT_FALSE(f.hasLink);
}

// A language whose link text is not the English one: the range still starts at
// the blank before the link and leaves out its last character, counted in UTF-16
// units (the emoji takes two).
std::string testLanguage(const LocalText &text) {
  if (text.key == kForgotPasscodeLink.key) return "Code vergessen \xF0\x9F\x94\x91...";
  if (text.key == kRecoveryTouchIDFooter.key)
    return "\xC3\x9C"
           "ber TouchID l\xC3\xB6schen.";
  return std::string(text.english);
}

TEST(SettingsFooter, LinkRangeFollowsTheLinkTextInEveryLanguage) {
  const SettingsFooter english = settingsFooter({true, true, false});
  EXPECT_EQ(english.linkLength, 23u);
  EXPECT_EQ(english.linkLocation, english.text.size() - 24);
  EXPECT_EQ(english.text.substr(english.linkLocation, 24), " I forgot my passcode...");

  const SettingsFooter german = settingsFooter({true, true, false}, testLanguage);
  EXPECT_EQ(german.text,
            "\xC3\x9C"
            "ber TouchID l\xC3\xB6schen. Code vergessen \xF0\x9F\x94\x91...");
  // "Über TouchID löschen." is 21 units, the link 20 (the key is two).
  EXPECT_EQ(german.linkLocation, 21u);
  EXPECT_EQ(german.linkLength, 20u);
  EXPECT_EQ(utf16Length(german.text), 42u);
  // Without a link the footer is the one sentence the language gives.
  EXPECT_EQ(settingsFooter({false, true, true}, testLanguage).text, kFaceFooter.english);
}

TEST(SettingsFooter, EnglishFootersReadAsUsersKnowThem) {
  EXPECT_NE(settingsFooter({true, true, true}).text.find("using  FaceID. I forgot"), std::string::npos);
  EXPECT_NE(settingsFooter({true, true, false}).text.find("using TouchID. I forgot"), std::string::npos);
  EXPECT_NE(settingsFooter({false, false, false}).text.find("add them main Tessarin"), std::string::npos);
  EXPECT_NE(settingsFooter({false, true, false}).text.find("where your fingerprint is"), std::string::npos);
}

}  // namespace
}  // namespace tessarin::passcode
