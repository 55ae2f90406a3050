#include <gtest/gtest.h>

#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {
namespace {

TEST(PasscodeTexts, KeysAndDefaults) {
  const struct {
    const char *key;
    const char *defaultText;
    TextTable table;
  } cases[] = {
      {"ADD_TESSARIN_PASSCODE", "Add a Tessarin passcode", TextTable::Bundle},
      {"CANCEL", "Cancel", TextTable::Bundle},
      {"ENTER_TESSARIN_PASSCODE", "Enter a Tessarin passcode", TextTable::Bundle},
      {"REENTER_TESSARIN_PASSCODE", "Re-enter Tessarin passcode", TextTable::Bundle},
      {"PASSCODES_DID_NOT_MATCH_TRY_AGAIN", "Passcodes didn't match. Try again.", TextTable::Bundle},
      {"ENTER_OLD_TESSARIN_PASSCODE", "Enter old Tessarin passcode", TextTable::Bundle},
      {"REMOVE_TESSARIN_PASSCODE", "Remove Tessarin passcode", TextTable::Bundle},
      {"CHANGE_TESSARIN_PASSCODE", "Change Tessarin passcode", TextTable::Bundle},
      {"WRONG_PASSCODE_TRY_AGAIN", "Wrong passcode. Try again.", TextTable::Bundle},
      {"TOO_MANY_ATTEMPTS_SORRY", "Too many attempts. Sorry.", TextTable::Bundle},
      {"PASSCODE_OPTIONS", "Passcode options", TextTable::Bundle},
      {"PMENTER_1_PROMPT", "Enter your passcode", TextTable::GuidedAccess},
      {"PMENTER", "Enter passcode", TextTable::GuidedAccess},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.key);
    Text t = findText(c.key);
    EXPECT_EQ(t.key, c.key);
    EXPECT_EQ(t.defaultText, c.defaultText);
    EXPECT_EQ(t.table, c.table);
  }
  EXPECT_TRUE(findText("").empty());
  EXPECT_TRUE(findText("NO_SUCH_KEY").empty());
  EXPECT_TRUE(findText("enter_tessarin_passcode").empty());  // keys are exact
  EXPECT_EQ(text::kComplexDeviceTitle.defaultText, "Enter Passcode");
}

TEST(PasscodeGeometry, FramesFromScreenWidth) {
  const double w = 375.0;
  EXPECT_EQ(rootViewFrame(w), (Rect{0, 0, 375, 460}));
  EXPECT_EQ(digitFieldFrame(w), (Rect{187.5 - 73, 157, 147, 33.404}));
  EXPECT_EQ(promptFrame(w), (Rect{0, 105, 375, 42}));
  EXPECT_EQ(warningFrame(w), (Rect{0, 225, 375, 42}));
  EXPECT_EQ(complexFieldFrame(w), (Rect{0, 177, 375, 40.404}));
  EXPECT_EQ(complexPromptFrame(w), (Rect{0, 125, 375, 42}));
  EXPECT_EQ(complexWarningFrame(w), warningFrame(w));
}

TEST(PasscodeAnimation, ShakeAndSlide) {
  const double cx = 160.0;
  const double expected[] = {140.0, 180.0, 140.0, 180.0, 160.0};
  for (int i = 0; i < kShakeMoves; ++i) EXPECT_EQ(shakeCentreX(cx, i), expected[i]) << i;
  EXPECT_EQ(shakeCentreX(cx, 9), cx);
  EXPECT_DOUBLE_EQ(kShakeMoves * kShakeMoveDuration, 0.5);
  EXPECT_EQ(kSlideOutOriginX, -520.0);
  EXPECT_EQ(kSlideReturnOriginX, 520.0);
  EXPECT_EQ(kSlideOutDuration, 0.1);
  EXPECT_EQ(kSlideInDuration, 0.2);
  // The system page is pushed only after the modal page has gone.
  EXPECT_GT(kSuccessPushDelay, kSuccessDismissDelay);
}

TEST(PasscodeSteps, Blocks) {
  Step slide = slideStep(text::kReenter);
  EXPECT_TRUE(slide.changesLabels());
  EXPECT_TRUE(slide.warning.empty());
  EXPECT_FALSE(slide.playErrorSound);
  EXPECT_FALSE(slide.closesPage());

  Step store = storeStep("0042");
  EXPECT_EQ(store.commit, Commit::Store);
  EXPECT_EQ(store.value, "0042");
  EXPECT_FALSE(store.changesLabels());

  Step remove = removeStep();
  EXPECT_EQ(remove.commit, Commit::Remove);
  EXPECT_TRUE(remove.value.empty());

  EXPECT_TRUE(Step{}.isNothing());
  EXPECT_FALSE(successStep().isNothing());
  EXPECT_TRUE(refuseStep().changesLabels());
}

}  // namespace
}  // namespace tessarin::passcode
