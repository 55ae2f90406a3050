// Every page in the user's language: the simulated Settings app, on a device whose user chose
// German, Japanese or Arabic, walked page by page as a person would (every row of the root page,
// the pages and dialogs below them), shows no English text of ours; and pages read right to left
// in Arabic.
#import <Foundation/Foundation.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#import "HostConsoleFixture.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"

namespace {

struct Walk {
  const char *language;
  const char *profile;
};

std::string Utf8(NSString *text) { return text != nil && [text UTF8String] != NULL ? [text UTF8String] : ""; }

// Every string value of a property list, recursively.
void CollectStrings(id value, std::set<std::string> &into) {
  if ([value isKindOfClass:[NSString class]]) {
    into.insert(Utf8(value));
  } else if ([value isKindOfClass:[NSArray class]]) {
    for (id element in value) CollectStrings(element, into);
  } else if ([value isKindOfClass:[NSDictionary class]]) {
    for (id key in value) CollectStrings([value objectForKey:key], into);
  }
}

NSDictionary *StringsTable(NSString *path) {
  NSString *text = [NSString stringWithContentsOfFile:path encoding:NSUTF8StringEncoding error:NULL];
  id table = [text propertyListFromStringsFileFormat];
  return [table isKindOfClass:[NSDictionary class]] ? table : nil;
}

class LanguagesTest : public HostConsoleFixture, public ::testing::WithParamInterface<Walk> {
 protected:
  void OpenIn(const Walk &walk) {
    StartDeviceIn(walk);
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
    console_ = [[SettingsConsole alloc] init];
    ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
    screen_ = [[console_ render] UTF8String];
    Record("root page");
  }

  void StartDeviceIn(const Walk &walk) {
    NSString *language = [NSString stringWithUTF8String:walk.language];
    StartDevice(walk.profile, true, ^(NSMutableDictionary *profile) {
      [profile setObject:@[ language, @"en" ] forKey:@"languages"];
    });
  }

  // The English texts of ours that this language words otherwise in its tables (a text the
  // language keeps as it is, such as "Face ID" or "OK", is no sign of a page left in English).
  std::vector<std::string> EnglishTexts(const char *language) {
    NSString *bundle = @TESSARIN_RESOURCES_DIR;
    NSFileManager *files = [NSFileManager defaultManager];
    std::set<std::string> found;
    for (NSString *table in [files contentsOfDirectoryAtPath:[bundle stringByAppendingPathComponent:@"en.lproj"]
                                                       error:NULL]) {
      NSDictionary *english = StringsTable([bundle stringByAppendingFormat:@"/en.lproj/%@", table]);
      NSDictionary *own = StringsTable([bundle stringByAppendingFormat:@"/%s.lproj/%@", language, table]);
      EXPECT_NE(own, nil) << language << " " << Utf8(table);
      for (NSString *key in english) {
        NSString *text = [english objectForKey:key];
        if ([text length] < 2 || [[own objectForKey:key] isEqual:text]) continue;
        // Texts laid out over lines are looked for line by line, as the screen shows them.
        for (NSString *line in [text componentsSeparatedByString:@"\n"]) {
          NSString *trimmed = [line stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
          if ([trimmed length] >= 2) found.insert(Utf8(trimmed));
        }
      }
    }
    return std::vector<std::string>(found.begin(), found.end());
  }

  // Names the device shows as they are: its applications, folders, networks, the Settings
  // app's own panes, Control Center modules, toggles, crash logs and the like.
  std::vector<std::string> Names() {
    std::set<std::string> names;
    CollectStrings(SimDeviceProfile(), names);
    for (PSSpecifier *row in [[SimSettingsRootController() rootListController] specifiers])
      if ([row name] != nil) names.insert(Utf8([row name]));
    NSFileManager *files = [NSFileManager defaultManager];
    for (NSString *dir in @[ @"/System/Library/ControlCenter/Bundles", @"/Library/ControlCenter/Bundles" ]) {
      NSString *host = HostPathString(dir);
      for (NSString *module in [files contentsOfDirectoryAtPath:host error:NULL]) {
        NSDictionary *info =
            [NSDictionary dictionaryWithContentsOfFile:[host stringByAppendingFormat:@"/%@/Info.plist", module]];
        CollectStrings(info, names);
      }
    }
    Class panel = NSClassFromString(@"FSSwitchPanel");
    id shared =
        [panel respondsToSelector:@selector(sharedPanel)] ? [panel performSelector:@selector(sharedPanel)] : nil;
    if ([shared respondsToSelector:@selector(switchIdentifiers)])
      for (NSString *identifier in [shared performSelector:@selector(switchIdentifiers)])
        names.insert(Utf8([shared performSelector:@selector(titleForSwitchIdentifier:) withObject:identifier]));
    NSString *logs = HostPathString(@"/var/mobile/Library/Logs/Tessarin");
    for (NSString *log in [files contentsOfDirectoryAtPath:logs error:NULL]) {
      names.insert(Utf8(log));
      NSString *text = [NSString stringWithContentsOfFile:[logs stringByAppendingPathComponent:log]
                                                 encoding:NSUTF8StringEncoding
                                                    error:NULL];
      for (NSString *line in [text componentsSeparatedByString:@"\n"]) names.insert(Utf8(line));
    }
    std::vector<std::string> sorted(names.begin(), names.end());
    std::sort(sorted.begin(), sorted.end(),
              [](const std::string &a, const std::string &b) { return a.size() > b.size(); });
    return sorted;
  }

  // Where `phrase` stands in `text` as a whole word or phrase (not inside a longer word), from `from` on.
  static size_t WholeWordAt(const std::string &text, const std::string &phrase, size_t from) {
    for (size_t at = from; (at = text.find(phrase, at)) != std::string::npos; at++) {
      const size_t end = at + phrase.size();
      const bool before = at > 0 && std::isalnum((unsigned char)text[at - 1]);
      const bool after = end < text.size() && std::isalnum((unsigned char)text[end]);
      if (!before && !after) return at;
    }
    return std::string::npos;
  }

  void Record(const std::string &where) {
    screens_.push_back({where, screen_});
    // LANGUAGES_TEST_DUMP=1 prints every screen the walk records.
    if (getenv("LANGUAGES_TEST_DUMP")) printf("----- %s\n%s\n", where.c_str(), screen_.c_str());
  }

  // The rows of the screen a person opens: numbered rows with a chevron, and buttons.
  std::vector<unsigned> Numbered(const std::string &kind) {
    std::vector<unsigned> numbers;
    std::istringstream lines(screen_);
    std::string line;
    static const std::regex number(R"(\[(\d+)\])");
    while (std::getline(lines, line)) {
      const bool link = kind == "link" && (line.rfind("<", 0) == 0 || (line.size() > 0 && line.back() == '>'));
      const bool button = kind == "button" && line.find("(button)") != std::string::npos;
      std::smatch m;
      if ((link || button) && std::regex_search(line, m, number)) numbers.push_back(std::stoul(m[1]));
    }
    return numbers;
  }

  std::string Title() {
    std::istringstream lines(screen_);
    std::string line;
    for (int i = 0; i < 3 && std::getline(lines, line); i++) {}
    return line;
  }

  // Opens every link row of the screen in turn, and the link rows and buttons of the pages
  // they open, `depth` levels down; each page shown is recorded.
  void VisitLinks(const std::string &where, int depth) {
    const std::string title = Title();
    for (unsigned n : Numbered("link")) {
      Run("tap " + std::to_string(n));
      const std::string here = where + " > row " + std::to_string(n);
      Record(here);
      if (Contains(screen_, "(modal page)")) {
        Run("cancel");
        continue;
      }
      if (Title() == title) continue;  // the row opened nothing
      if (depth > 1) {
        VisitButtons(here);
        TouchRowsWithALineUnderTheirName(here);
        VisitLinks(here, depth - 1);
      }
      Run("back");
    }
  }

  // Touches the switch rows that show a line under their name (a network's password): an alert
  // that comes is recorded and answered.
  void TouchRowsWithALineUnderTheirName(const std::string &where) {
    std::vector<unsigned> rows;
    std::istringstream lines(screen_);
    std::string line, previous;
    static const std::regex number(R"(\[(\d+)\])");
    while (std::getline(lines, line)) {
      std::smatch m;
      const bool switchRow = previous.find("[on]") != std::string::npos || previous.find("[off]") != std::string::npos;
      if (line.rfind("        ", 0) == 0 && switchRow && std::regex_search(previous, m, number))
        rows.push_back(std::stoul(m[1]));
      previous = line;
    }
    for (unsigned n : rows) {
      Run("touch " + std::to_string(n) + " 20");
      if (!Contains(screen_, "<alert 1>")) continue;
      Record(where + " > touch " + std::to_string(n));
      Run("alert 1");
    }
  }

  // Presses every button of the screen: a modal page is cancelled, an alert answered with its first action.
  void VisitButtons(const std::string &where) {
    for (unsigned n : Numbered("button")) {
      Run("tap " + std::to_string(n));
      Record(where + " > button " + std::to_string(n));
      if (Contains(screen_, "(modal page)"))
        Run("cancel");
      else if (Contains(screen_, "<alert 1>"))
        Run("alert 1");
    }
  }

  void ExpectNoEnglish(const char *language) {
    const std::vector<std::string> english = EnglishTexts(language);
    const std::vector<std::string> names = Names();
    ASSERT_GT(english.size(), 100u);
    for (const auto &[where, screen] : screens_) {
      std::string text = screen;
      for (const std::string &name : names) {
        if (name.size() < 3) continue;
        for (size_t at = 0; (at = WholeWordAt(text, name, at)) != std::string::npos;)
          text.replace(at, name.size(), " ");
      }
      for (const std::string &phrase : english) {
        if (WholeWordAt(text, phrase, 0) != std::string::npos)
          ADD_FAILURE() << language << ", " << where << ": English text \"" << phrase << "\" on\n" << screen;
      }
    }
  }

  std::vector<std::pair<std::string, std::string>> screens_;
};

TEST_P(LanguagesTest, EveryPageShowsNoEnglishTextOfOurs) {
  const Walk walk = GetParam();
  OpenIn(walk);
  VisitButtons("root page");
  VisitLinks("root page", 2);
  // Set a product passcode and look at the pages again.
  const std::vector<unsigned> links = Numbered("link");
  ASSERT_FALSE(links.empty());
  Run("tap " + std::to_string(links.front()));  // the passcode options
  const std::vector<unsigned> add = Numbered("button");
  ASSERT_FALSE(add.empty()) << screen_;
  Run("tap " + std::to_string(add.front()));
  Run("type 1234");
  Run("wait 1");
  Record("add passcode, second entry");
  Run("type 1234");
  Run("wait 3");
  Run("show");
  Record("passcode options with a passcode");
  VisitButtons("passcode options with a passcode");
  // A wrong passcode on the remove page.
  const std::vector<unsigned> buttons = Numbered("button");
  ASSERT_EQ(buttons.size(), 2u) << screen_;
  Run("tap " + std::to_string(buttons.back()));
  Run("type 0000");
  Run("wait 1");
  Record("remove passcode, wrong entry");
  Run("cancel");
  ExpectNoEnglish(walk.language);
  EXPECT_GT(screens_.size(), 20u);
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguagesTest,
                         ::testing::Values(Walk{"de", "iphone-faceid-ios16"}, Walk{"de", "iphone-touchid-ios14"},
                                           Walk{"ja", "iphone-faceid-ios16"}, Walk{"ja", "iphone-touchid-ios14"},
                                           Walk{"ar", "iphone-faceid-ios16"}, Walk{"ar", "iphone-touchid-ios14"}),
                         [](const auto &info) {
                           return std::string(info.param.language) + "_" +
                                  (std::string(info.param.profile).find("faceid") != std::string::npos ? "FaceID"
                                                                                                       : "TouchID");
                         });

}  // namespace

namespace {

class RightToLeftTest : public HostConsoleFixture {
 protected:
  void StartIn(const char *language) {
    NSString *code = [NSString stringWithUTF8String:language];
    StartDevice(SIM_DEFAULT_PROFILE, true,
                ^(NSMutableDictionary *profile) { [profile setObject:@[ code ] forKey:@"languages"]; });
  }

  UITableViewCell *ShownCell(PSListController *page, NSString *name) {
    for (PSSpecifier *row in [page specifiers]) {
      if ([row cellType] != PSSwitchCell || ![[row name] isEqualToString:name]) continue;
      UITableViewCell *cell = [[page table] cellForRowAtIndexPath:[page indexPathForSpecifier:row]];
      [cell layoutIfNeeded];
      return cell;
    }
    ADD_FAILURE() << "no row " << [name UTF8String];
    return nil;
  }
};

}  // namespace

// A network's password line starts where its name starts: at the left in German, at the right
// (mirrored, right-aligned) in Arabic and Hebrew.
TEST_F(RightToLeftTest, ThePasswordLineFollowsTheLayoutDirection) {
  struct Case {
    const char *language;
    bool rightToLeft;
  } cases[] = {{"de", false}, {"ar", true}, {"he", true}};
  for (const Case &c : cases) {
    SCOPED_TRACE(c.language);
    StartIn(c.language);
    EXPECT_EQ(
        [[UIApplication sharedApplication] userInterfaceLayoutDirection] == UIUserInterfaceLayoutDirectionRightToLeft,
        c.rightToLeft);
    PSListController *page = OpenSettingsPane(@"TessarinWiFiController");
    UITableViewCell *home = ShownCell(page, @"Home Network");
    ASSERT_NE(home, nil);
    const CGRect name = [[home textLabel] frame];
    const CGRect line = [[home detailTextLabel] frame];
    EXPECT_EQ(line.size.width, [UIScreen mainScreen].bounds.size.width - 100);
    if (c.rightToLeft) {
      EXPECT_EQ(CGRectGetMaxX(line), CGRectGetMaxX(name));
      EXPECT_EQ([[home detailTextLabel] textAlignment], NSTextAlignmentRight);
      // The cell itself is mirrored: the switch on the left, the name on the right.
      EXPECT_LT(CGRectGetMaxX([[home accessoryView] frame]), CGRectGetMinX([[home contentView] frame]) + 1);
    } else {
      EXPECT_EQ(line.origin.x, name.origin.x);
      EXPECT_EQ([[home detailTextLabel] textAlignment], NSTextAlignmentLeft);
    }
    StopSpringBoard();
    SimSettingsReset();
  }
}

// The version in the root page's header stands at the trailing edge: the right, or the left in Arabic.
TEST_F(RightToLeftTest, TheVersionLabelStandsAtTheTrailingEdge) {
  StartIn("ar");
  // The header shows the version the rows cached: the page opened again shows it.
  OpenSettingsPane(@"TessarinPrefsListController");
  PSListController *page = OpenSettingsPane(@"TessarinPrefsListController");
  UILabel *label = [page performSelector:@selector(versionLabel)];
  ASSERT_NE(label, nil);
  EXPECT_EQ([label textAlignment], NSTextAlignmentLeft);
  [[page view] setFrame:CGRectMake(0, 0, 400, 800)];
  [page viewDidLayoutSubviews];
  EXPECT_TRUE(CGRectEqualToRect([label frame], CGRectMake(6, 0, 394, 17)));
}

// The host shows an Arabic page right-aligned: a row's name and number on the right, its switch
// or chevron on the left, footers ending at the right edge.
TEST_F(RightToLeftTest, TheHostDrawsArabicPagesRightAligned) {
  StartIn("ar");
  ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  console_ = [[SettingsConsole alloc] init];
  ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
  const std::string screen = [[console_ render] UTF8String];
  EXPECT_EQ(LineWith(screen, "مفعّل").rfind("[on]", 0), 0u) << screen;
  EXPECT_NE(LineWith(screen, "مفعّل").find("مفعّل [1]  "), std::string::npos) << screen;
  EXPECT_EQ(LineWith(screen, "التطبيقات").rfind("<", 0), 0u) << screen;
  EXPECT_NE(LineWith(screen, "Settings >").find("Tessarin < Settings >"), std::string::npos) << screen;

  StopSpringBoard();
  SimSettingsReset();
  StartIn("de");
  ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  [console_ release];
  console_ = [[SettingsConsole alloc] init];
  ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
  const std::string german = [[console_ render] UTF8String];
  EXPECT_EQ(LineWith(german, "Aktiviert").rfind("  [1] Aktiviert", 0), 0u) << german;
  EXPECT_EQ(LineWith(german, "Apps").back(), '>') << german;
}
