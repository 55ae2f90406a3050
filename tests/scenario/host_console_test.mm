// The Settings host's command interpreter driven in-process: the real bundle in the
// simulated Settings app, a simulated SpringBoard answering, commands in and screens out.

#include <string>
#include <vector>

#import "HostConsoleFixture.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"

namespace {

std::string HostScript(const char *name) {
  std::string here = __FILE__;
  return here.substr(0, here.rfind('/')) + "/../../platform/host/scripts/" + name;
}

}  // namespace

class HostConsoleTest : public HostConsoleFixture {};

TEST_F(HostConsoleTest, TheDefaultProfileOpensOnTheRootPageWithItsRows) {
  OpenSettings();
  for (const char *part : {"Settings > Tessarin", "Passcode options", "Trusted Wi-Fi networks", "Crash logs",
                           "Reset all settings", "(button)"}) {
    EXPECT_TRUE(Contains(screen_, part)) << part << " missing from:\n" << screen_;
  }
  // Biometrics are set up on this device: nothing is greyed and no prompt is up.
  EXPECT_FALSE(Contains(screen_, "(disabled)")) << screen_;
  EXPECT_FALSE(Contains(screen_, "<alert 1>")) << screen_;
  EXPECT_TRUE(Contains(screen_, "[on]") || Contains(screen_, "[off]")) << screen_;
}

TEST_F(HostConsoleTest, BackReturnsToTheSettingsListAndTheEntryOpensAgain) {
  OpenSettings();
  std::string list = Run("back");
  EXPECT_TRUE(Contains(list, "Settings")) << list;
  EXPECT_GT(NumberOf(list, "] Tessarin"), 0u) << list;
  EXPECT_FALSE(Contains(list, "Passcode options")) << list;
  EXPECT_EQ(Run("back"), "This is the Settings list already.\n");
  std::string page = Tap("] Tessarin");
  EXPECT_TRUE(Contains(page, "Passcode options")) << page;
}

TEST_F(HostConsoleTest, ResetAllAsksAndCancelByNumberLeavesThePage) {
  OpenSettings();
  std::string asked = Tap("Reset all settings");
  ASSERT_TRUE(Contains(asked, "This will reset all settings to defaults")) << asked;
  EXPECT_TRUE(Contains(asked, "<alert 1> Cancel (cancel)")) << asked;
  EXPECT_TRUE(Contains(asked, "<alert 2> Reset")) << asked;
  EXPECT_EQ(Run("tap 1"), "Answer the alert first (alert N).\n");

  std::string cancelled = Run("alert 1");
  EXPECT_FALSE(Contains(cancelled, "<alert")) << cancelled;
  EXPECT_TRUE(Contains(cancelled, "Passcode options")) << cancelled;
  EXPECT_TRUE(Contains(Run("alert 1"), "No alert is showing.")) << "the alert is gone";
}

TEST_F(HostConsoleTest, TheFirstRunPromptIsAnsweredByNumber) {
  OpenSettings("iphone-nopasscode-ios16");
  ASSERT_TRUE(Contains(screen_, "You do not have Face ID set.")) << screen_;
  EXPECT_TRUE(Contains(screen_, "<alert 1> Setup Face ID")) << screen_;
  EXPECT_TRUE(Contains(screen_, "<alert 3> No (cancel)")) << screen_;
  EXPECT_TRUE(Contains(Run("alert 4"), "The alert has 3 actions.")) << screen_;
  std::string page = Run("alert 3");
  EXPECT_FALSE(Contains(page, "<alert")) << page;
  EXPECT_TRUE(Contains(page, "Passcode options")) << page;
  EXPECT_TRUE(Contains(page, "(disabled)")) << page;
}

TEST_F(HostConsoleTest, CommandsThatCannotRunSayWhy) {
  OpenSettings();
  struct Case {
    const char *command;
    const char *answer;
  };
  const Case cases[] = {
      {"tap 999", "Choose a number from 1 to"},
      {"tap x", "No row here is called \"x\"."},
      {"frobnicate", "Unknown command"},
      {"alert 1", "No alert is showing."},
      {"type 1234", "no text field"},
      {"cancel", "no bar button"},
      {"switch 1 maybe", "Say on or off"},
      {"wait soon", "Say how long"},
      {"flip 999", "Choose a number from 1 to"},
  };
  for (const Case &c : cases) {
    std::string answer = Run(c.command);
    EXPECT_TRUE(Contains(answer, c.answer)) << c.command << " answered:\n" << answer;
  }
  EXPECT_TRUE(Contains(Run("frobnicate"), "tap N")) << "unknown commands print the help";
  EXPECT_EQ(Run("# a comment"), "");
  EXPECT_EQ(Run("   "), "");
}

TEST_F(HostConsoleTest, FlippingASwitchStoresItsValue) {
  OpenSettings();
  unsigned session = NumberOf(screen_, "Keep session");
  ASSERT_GT(session, 0u) << screen_;
  std::string on = Run("switch " + std::to_string(session) + " on");
  EXPECT_TRUE(Contains(on, "Keep session")) << on;
  NSDictionary *stored = StoredPreferences();
  ASSERT_NE(stored, nil);
  std::string off = Run("flip " + std::to_string(NumberOf(on, "Keep session")));
  NSDictionary *after = StoredPreferences();
  ASSERT_NE(after, nil);
  EXPECT_NE([[stored description] UTF8String], std::string([[after description] UTF8String]));
}

TEST_F(HostConsoleTest, AMismatchedPasscodeShowsTheWarningAndStartsOver) {
  OpenSettings("iphone-nopasscode-ios16");
  ASSERT_TRUE(Contains(screen_, "Set Tessarin Passcode")) << screen_;
  Run("alert \"Set Tessarin Passcode\"");
  std::string entry = Tap("Add");
  ASSERT_TRUE(Contains(entry, "[ ][ ][ ][ ]")) << entry;
  EXPECT_TRUE(Contains(entry, "Enter a Tessarin passcode")) << entry;
  EXPECT_TRUE(Contains(entry, "[Cancel]")) << entry;
  std::string again = Run("type 1234");
  EXPECT_TRUE(Contains(again, "Re-enter Tessarin passcode")) << again;
  Run("type 5678");
  std::string warned = Run("wait 0.8");
  EXPECT_TRUE(Contains(warned, "Passcodes didn't match. Try again.")) << warned;
  EXPECT_TRUE(Contains(warned, "Enter a Tessarin passcode")) << warned;
  std::string closed = Run("cancel");
  EXPECT_FALSE(Contains(closed, "(modal page)")) << closed;
  EXPECT_EQ([StoredPreferences() objectForKey:@"passcode"], nil);
}

TEST_F(HostConsoleTest, TheSetPasscodeScriptTakesTheFirstRunStateToAUsableRootPage) {
  OpenSettings("iphone-nopasscode-ios16");
  EXPECT_TRUE(Contains(screen_, "(disabled)")) << screen_;
  EXPECT_TRUE(Contains(screen_, "<alert 2> Set Tessarin Passcode")) << screen_;

  FILE *script = fopen(HostScript("set-passcode.txt").c_str(), "r");
  ASSERT_NE(script, nullptr) << HostScript("set-passcode.txt");
  char line[512];
  std::string transcript;
  while (fgets(line, sizeof line, script) != NULL) transcript += "> " + std::string(line) + Run(line);
  fclose(script);

  EXPECT_TRUE(Contains(screen_, "Settings > Tessarin")) << transcript;
  EXPECT_TRUE(Contains(screen_, "Passcode options")) << transcript;
  EXPECT_FALSE(Contains(screen_, "(disabled)")) << transcript;
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"1234");
}

TEST_F(HostConsoleTest, TheComplexDevicePasscodePageTakesTypedText) {
  OpenSettings("ipad-ios15");
  std::string check = Tap("] Touch ID");
  ASSERT_TRUE(Contains(check, "(modal page)")) << check;
  ASSERT_TRUE(Contains(check, "Enter your passcode")) << check;
  std::string wrong = Run("type nope");
  EXPECT_TRUE(Contains(wrong, "Wrong passcode. Try again.")) << wrong;
  Run("type qwerty12");
  std::string unlocked = Run("wait 2");
  EXPECT_FALSE(Contains(unlocked, "(modal page)")) << unlocked;
  EXPECT_TRUE(Contains(unlocked, "Settings > Tessarin > MESA")) << unlocked;  // the unlocked system page
}

TEST_F(HostConsoleTest, ANetworksPasswordIsCopiedByATouchOnItsLeftAndShownByPasteboard) {
  OpenSettings();
  Tap("Trusted Wi-Fi networks");
  EXPECT_TRUE(Contains(screen_, "Pass: correct horse")) << screen_;
  const std::string home = std::to_string(NumberOf(screen_, "Home Network"));
  EXPECT_TRUE(Contains(Run("touch " + home + " 250"), "Home Network"));
  EXPECT_TRUE(Contains(Run("pasteboard"), "The pasteboard is empty."));
  EXPECT_TRUE(Contains(Run("touch " + home + " 120"), "Tessarin Nova"));
  EXPECT_EQ(Run("pasteboard"), "Pasteboard: correct horse\n");
  EXPECT_TRUE(Contains(Run("touch " + home), "Unknown command"));
}

TEST_F(HostConsoleTest, ALogIsReadMailedAndDeleted) {
  OpenSettings();
  Tap("Crash logs");
  EXPECT_TRUE(Contains(screen_, "SpringBoard [57]")) << screen_;
  EXPECT_FALSE(Contains(screen_, "Latest-Tessarin.log")) << screen_;
  Tap("Tessarin-03-Nov-2026-21-04-10.log");
  EXPECT_TRUE(Contains(screen_, "index 3 beyond bounds")) << screen_;
  EXPECT_TRUE(Contains(screen_, "[share]")) << screen_;
  EXPECT_TRUE(Contains(Run("mail send"), "No mail is being written."));

  std::string composer = Run("share");
  EXPECT_TRUE(Contains(composer, "To: support@corvane.example")) << composer;
  EXPECT_TRUE(Contains(composer, "Subject: Tessarin Crash")) << composer;
  EXPECT_TRUE(Contains(Run("mail cancel"), "[share]"));
  Run("share");
  EXPECT_FALSE(Contains(Run("mail send"), "[share]")) << screen_;
  Run("back");
  EXPECT_FALSE(Contains(screen_, "Tessarin-03-Nov-2026-21-04-10.log")) << screen_;

  // Deleting by number: the newest log goes (with the latest link).
  EXPECT_TRUE(Contains(Run("delete 1"), "Crash logs"));
  EXPECT_FALSE(Contains(screen_, "Tessarin-12-Nov-2026-08-15-42.log")) << screen_;
  EXPECT_FALSE(DeviceFileExists("/var/mobile/Library/Logs/Tessarin/Tessarin-12-Nov-2026-08-15-42.log"));
  EXPECT_TRUE(Contains(Run("delete 9"), "Choose a number"));
  Run("back");
  EXPECT_TRUE(Contains(Run("delete 1"), "Rows of this page cannot be deleted."));
}

// The seven smaller pages open from the product's page; a text row takes typing, "Save"
// is pressed by its title, choices and slider values are shown.
TEST_F(HostConsoleTest, OpensTheSmallerPagesTypesAndPressesBarButtons) {
  OpenSettings();
  struct Case {
    const char *row;
    const char *shows;
  };
  const Case cases[] = {
      {"Settings panes", "Choose the settings panes"},
      {"Toggles", "Airplane Mode"},
      {"Caller ID", "Show calls on Lock Screen"},
      {"Power down", "Protect restart"},
      {"Vibrate on error", "Off | Light | [Medium] | Strong"},
      {"Delay", "3 (1 to 10)"},
      {"Alert title", "\"Tessarin\""},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.row);
    std::string page = Tap(c.row);
    EXPECT_TRUE(Contains(page, c.shows)) << page;
    if (std::string(c.row) != "Alert title") Run("back");
  }
  EXPECT_TRUE(Contains(Run("press Done"), "This page has no bar button \"Done\"."));
  EXPECT_TRUE(Contains(Run("text 1 \"Locked\""), "\"Locked\""));
  std::string after = Run("press Save");
  EXPECT_TRUE(Contains(after, "Passcode options")) << after;  // back on the product's page
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"alertTitle"], @"Locked");
  EXPECT_EQ(Run("text 1 \"x\""), "That row is not a text row.\n");
}
