#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "passcode/PasscodeSettingsRows.hpp"

namespace tessarin::passcode {
namespace {

// The rows as a specifier file might list them, with an unknown row and a
// row without an identifier among them.
const std::vector<std::string> kLoaded = {
    "ADD_TESSARIN_PASSCODE", "CHANGE_TESSARIN_PASSCODE", "SOMETHING_ELSE",
    "REMOVE_TESSARIN_PASSCODE", "", "USE_ONLY_TESSARIN_PASSCODE",
};

struct RowsCase {
  const char *name;
  SettingsContext ctx;
  std::vector<std::string> ids;       // kept rows, in order
  std::vector<std::size_t> indexes;   // their places in kLoaded
  std::vector<std::string> actions;
  bool renamed;                       // the use-only row gets the Face ID name
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
        RowsCase{"no_passcode_touchid", {false, true, false}, {"ADD_TESSARIN_PASSCODE"}, {0},
                 {"addPassword"}, false},
        RowsCase{"no_passcode_faceid", {false, true, true}, {"ADD_TESSARIN_PASSCODE"}, {0},
                 {"addPassword"}, false},
        RowsCase{"no_passcode_no_biometrics", {false, false, false}, {"ADD_TESSARIN_PASSCODE"},
                 {0}, {"addPassword"}, false},
        RowsCase{"passcode_no_biometrics",
                 {true, false, false},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE"},
                 {1, 3},
                 {"changePassword", "removePassword"},
                 false},
        RowsCase{"passcode_touchid",
                 {true, true, false},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE",
                  "USE_ONLY_TESSARIN_PASSCODE"},
                 {1, 3, 5},
                 {"changePassword", "removePassword", ""},
                 false},
        RowsCase{"passcode_faceid",
                 {true, true, true},
                 {"CHANGE_TESSARIN_PASSCODE", "REMOVE_TESSARIN_PASSCODE",
                  "USE_ONLY_TESSARIN_PASSCODE"},
                 {1, 3, 5},
                 {"changePassword", "removePassword", ""},
                 true}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(SettingsRows, OrderFollowsTheFile) {
  const std::vector<std::string> reversed = {"USE_ONLY_TESSARIN_PASSCODE",
                                             "REMOVE_TESSARIN_PASSCODE",
                                             "CHANGE_TESSARIN_PASSCODE"};
  std::vector<KeptRow> kept = keptSettingsRows({true, true, false}, reversed);
  ASSERT_EQ(kept.size(), 3u);
  EXPECT_EQ(kept[0].id, "USE_ONLY_TESSARIN_PASSCODE");
  EXPECT_EQ(kept[1].action, RowAction::RemovePassword);
  EXPECT_EQ(kept[2].action, RowAction::ChangePassword);
  EXPECT_TRUE(keptSettingsRows({true, true, true}, {}).empty());
}

TEST(SettingsRows, FaceIDName) {
  EXPECT_STREQ(kUseOnlyFaceIDName, "Use only passcode (no FaceID)");
}

// ---------------------------------------------------------------------------
// Footers

constexpr const char *kRecoveryFace =
    "In this page you can add a recovery passcode in cases where your BiometricID is repeatedly "
    "not recognized. This passcode is different from your device passcode. If you forgot your "
    "passcode, you can clear it using  FaceID. I forgot my passcode...";
constexpr const char *kRecoveryTouch =
    "In this page you can add a recovery passcode in cases where your BiometricID is repeatedly "
    "not recognized. This passcode is different from your device passcode. If you forgot your "
    "passcode, you can clear it using TouchID. I forgot my passcode...";
constexpr const char *kAddFace =
    "In this page you can add a Tessarin passcode in cases where your face is repeatedly not "
    "recognized. This passcode is different from your device passcode.";
constexpr const char *kAddFinger =
    "In this page you can add a Tessarin passcode in cases where your fingerprint is repeatedly "
    "not recognized. This passcode is different from your device passcode.";
constexpr const char *kPlain =
    "In this page you can add them main Tessarin passcode. This passcode is different from your "
    "device passcode.";

TEST(SettingsFooter, Texts) {
  const struct {
    const char *name;
    SettingsContext ctx;
    const char *text;
    bool link;
  } cases[] = {
      {"passcode_faceid", {true, true, true}, kRecoveryFace, true},
      {"passcode_touchid", {true, true, false}, kRecoveryTouch, true},
      {"none_faceid", {false, true, true}, kAddFace, false},
      {"none_touchid", {false, true, false}, kAddFinger, false},
      {"passcode_no_biometrics", {true, false, false}, kPlain, false},
      {"none_no_biometrics", {false, false, false}, kPlain, false},
      // Face ID without a biometric sensor cannot happen; the sensor test decides.
      {"faceid_flag_alone", {true, false, true}, kPlain, false},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.name);
    SettingsFooter f = settingsFooter(c.ctx);
    EXPECT_EQ(f.text, c.text);
    EXPECT_EQ(f.hasLink, c.link);
    if (!c.link) {
      EXPECT_EQ(f.linkLocation, 0u);
      EXPECT_EQ(f.linkLength, 0u);
    }
  }
}

TEST(SettingsFooter, TwoBlanksBeforeFaceID) {
  SettingsFooter f = settingsFooter({true, true, true});
  EXPECT_NE(f.text.find("using  FaceID."), std::string::npos);
  EXPECT_NE(settingsFooter({true, true, false}).text.find("using TouchID."), std::string::npos);
}

TEST(SettingsFooter, LinkRangeTakesTheBlankAndLeavesTheLastStop) {
  for (bool faceID : {true, false}) {
    SettingsFooter f = settingsFooter({true, true, faceID});
    ASSERT_TRUE(f.hasLink);
    EXPECT_EQ(f.linkLocation, f.text.size() - 24);
    EXPECT_EQ(f.linkLength, 23u);
    EXPECT_EQ(f.text.substr(f.linkLocation, f.linkLength), " I forgot my passcode..");
    // ASCII only, so byte offsets are UTF-16 offsets.
    for (unsigned char ch : f.text) EXPECT_LT(ch, 0x80);
  }
}

}  // namespace
}  // namespace tessarin::passcode
