#include "root/RootBehaviour.hpp"

#include <gtest/gtest.h>

using namespace tessarin::root;

TEST(RootBehaviour, VersionText) {
  EXPECT_EQ(versionText(0x010203), "v1.2-3");
  EXPECT_EQ(versionText(0xff0a0b0c), "v10.11-12");  // the top byte is not part of the version
  EXPECT_EQ(versionText(0x00000100), "v0.1-0");
  EXPECT_EQ(versionText(0), "");
}

namespace {
FirstRunFacts unsetUp() {
  FirstRunFacts facts;
  facts.idsnReplied = true;
  facts.appsPresent = true;
  return facts;
}
}  // namespace

TEST(RootBehaviour, FirstRunPromptShownOnlyWhenNothingIsSetUp) {
  struct Case {
    const char *name;
    void (*change)(FirstRunFacts &);
    bool shown;
  };
  const Case cases[] = {
      {"nothing set up", [](FirstRunFacts &) {}, true},
      {"product passcode stored", [](FirstRunFacts &f) { f.productPasscodeStored = true; }, false},
      {"biometrics enrolled", [](FirstRunFacts &f) { f.idsnValue = 1; }, false},
      {"negative idsn", [](FirstRunFacts &f) { f.idsnValue = -1; }, true},
      {"no idsn reply", [](FirstRunFacts &f) { f.idsnReplied = false; }, false},
      {"no apps", [](FirstRunFacts &f) { f.appsPresent = false; }, false},
  };
  for (const Case &c : cases) {
    FirstRunFacts facts = unsetUp();
    c.change(facts);
    EXPECT_EQ(firstRunPrompt(facts).has_value(), c.shown) << c.name;
  }
}

// The Face ID prompt is checked in the app.
TEST(RootBehaviour, FirstRunPromptTexts) {
  FirstRunFacts facts = unsetUp();
  facts.biometricSensor = true;
  auto prompt = firstRunPrompt(facts);
  ASSERT_TRUE(prompt);
  ASSERT_EQ(prompt->buttons.size(), 3u);
  EXPECT_EQ(prompt->buttons[0].title, "Setup Touch ID");
  EXPECT_EQ(prompt->message,
            "You do not have any fingerprints set. To enable this application, you must have at least one "
            "fingerprint or a Tessarin passcode set. Would you like to setup one now?");

  facts.biometricSensor = false;
  prompt = firstRunPrompt(facts);
  EXPECT_EQ(prompt->message, kNoPasscodeSet);
  EXPECT_EQ(prompt->message.key, "NO_TESSARIN_PASSCODE_SET");
  ASSERT_EQ(prompt->buttons.size(), 2u);
  EXPECT_EQ(prompt->buttons[0].effect, Effect::PushPasscodeSettings);
  EXPECT_EQ(prompt->buttons[1].title, "No");
  EXPECT_EQ(prompt->buttons[1].title.key, "NO");
}

TEST(RootBehaviour, SetupDecision) {
  struct Case {
    const char *name;
    SetupFacts facts;
    SetupOrigin origin;
    std::string_view firstClass;
    bool push;
    std::string_view notice;
    std::string_view userPage;
  };
  const PasscodeCharacteristics six{true, false, 6}, five{true, false, 5};
  const Case cases[] = {
      {"face id, ios 16",
       {true, std::nullopt, true, true, 40, false},
       SetupOrigin::Prompt,
       "PSUIPearlPasscodeController",
       false,
       kIOS16Notice.english,
       ""},
      {"face id, ios 15",
       {true, std::nullopt, true, false, 40, false},
       SetupOrigin::Prompt,
       "PSUIPearlPasscodeController",
       true,
       "",
       ""},
      {"ios 14 with loader",
       {true, std::nullopt, true, false, 40, true},
       SetupOrigin::Prompt,
       "PSUIPearlPasscodeController",
       true,
       kLoaderNotice.english,
       ""},
      {"loader but square corners",
       {false, std::nullopt, true, false, 0, true},
       SetupOrigin::Prompt,
       "PSMesaSettingsController",
       true,
       "",
       ""},
      {"loader before ios 14",
       {false, std::nullopt, false, false, 40, true},
       SetupOrigin::Prompt,
       "PSMesaSettingsController",
       true,
       "",
       ""},
      {"alert view on ios 16",
       {true, std::nullopt, true, true, 40, true},
       SetupOrigin::AlertViewButton,
       "PSUIPearlPasscodeController",
       true,
       "",
       ""},
      {"six digits",
       {true, six, true, true, 40, true},
       SetupOrigin::Prompt,
       "",
       false,
       "",
       "TessarinUserPasscodeController"},
      {"five digits",
       {false, five, false, false, 0, false},
       SetupOrigin::Prompt,
       "",
       false,
       "",
       "TessarinUserComplexPasscodeController"},
  };
  for (const Case &c : cases) {
    const SetupDecision d = setupDecision(c.facts, c.origin);
    EXPECT_EQ(d.systemPageClasses.empty() ? std::string_view() : d.systemPageClasses.front(), c.firstClass) << c.name;
    EXPECT_EQ(d.pushSystemPage, c.push) << c.name;
    EXPECT_EQ(d.notice ? d.notice->message.english : std::string_view(), c.notice) << c.name;
    EXPECT_EQ(d.userPasscodeControllerClass, c.userPage) << c.name;
  }
  const SetupDecision touch = setupDecision({false, std::nullopt, false, false, 0, false}, SetupOrigin::Prompt);
  EXPECT_EQ(touch.systemPageClasses,
            (std::vector<std::string_view>{"PSMesaSettingsController", "PSTouchIDPasscodeController",
                                           "PSUITouchIDPasscodeController"}));
  const SetupDecision loader = setupDecision({true, std::nullopt, true, false, 40, true}, SetupOrigin::Prompt);
  EXPECT_EQ(loader.noticeFrom, NoticeFrom::PushedPage);
  ASSERT_EQ(loader.notice->buttons.size(), 1u);
  EXPECT_EQ(loader.notice->buttons[0].title, "Okay");
  EXPECT_EQ(loader.notice->buttons[0].style, ActionStyle::Cancel);
}

TEST(RootBehaviour, AlertViewButtons) {
  struct Case {
    bool sensor;
    long long index;
    Effect effect;
  };
  const Case cases[] = {
      {false, 0, Effect::Nothing},
      {false, 1, Effect::PushPasscodeSettings},
      {false, 2, Effect::Nothing},
      {true, 0, Effect::Nothing},
      {true, 1, Effect::SetUpDeviceAuthentication},
      {true, 2, Effect::PushPasscodeSettings},
      {true, 3, Effect::Nothing},
      {true, -1, Effect::Nothing},
  };
  for (const Case &c : cases) EXPECT_EQ(alertViewButtonEffect(c.sensor, c.index), c.effect) << c.sensor << c.index;
}

// The version label stands at the header's trailing edge, mirrored with its inset right to left.
TEST(RootBehaviour, VersionLabelAtTheTrailingEdge) {
  const Rect ltr = header::versionLabelFrame(400), rtl = header::versionLabelFrame(400, true);
  EXPECT_EQ(ltr.x, 0);
  EXPECT_EQ(ltr.width, 394);
  EXPECT_EQ(rtl.x, 6);
  EXPECT_EQ(rtl.width, 394);
  EXPECT_EQ(header::alignment(false), kTextAlignmentRight);
  EXPECT_EQ(header::alignment(true), kTextAlignmentLeft);
}
