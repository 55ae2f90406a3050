// The crash-log list and viewer as the user meets them: rows and subtitles, deletion by
// swiping and through the latest link, the viewer's text and the mail, and a log
// directory a damaged or hostile device holds (links, FIFOs, a directory that is a link).
#import <UIKit/UIKit.h>
#import <MessageUI/MessageUISimulation.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#import "BundleFixture.h"
#import "core/Endpoints.h"
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace {

NSString *const kDir = @"/var/mobile/Library/Logs/Tessarin";
NSString *const kNewest = @"Tessarin-12-Nov-2026-08-15-42.log";
NSString *const kNoProcess = @"Tessarin-03-Nov-2026-21-04-10.log";
NSString *const kNotUTF8 = @"Tessarin-28-Oct-2026-09-30-00.log";
NSString *const kBadlyNamed = @"Tessarin-crash.log";
NSString *const kLatest = @"Latest-Tessarin.log";
NSString *const kHostile = @"Tessarin-01-Nov-2026-10-00-00.log";
NSString *const kSecret = @"/var/mobile/Library/Preferences/secret.plist";
NSString *const kSecretText = @"Process: passcode [1234]\npasscode=1234\n";
const char *const kSettingsFile = "/var/mobile/Library/Preferences/net.corvane.tessarin.plist";

NSString *inDir(NSString *file) { return [kDir stringByAppendingPathComponent:file]; }
NSDictionary *logFile(NSString *name, id contents) { return @{@"path" : inDir(name), @"contents" : contents}; }
NSDictionary *link(NSString *path, NSString *target) { return @{@"path" : path, @"symlink" : target}; }
NSDictionary *secretFile(NSString *path = kSecret) { return @{@"path" : path, @"contents" : kSecretText}; }
NSDictionary *folder(NSString *name) { return @{@"path" : [NSString stringWithFormat:@"%@/%@/", kDir, name]}; }
// A listed log as Listed() gives it; the subtitle as the cell shows it (untrimmed).
NSString *withSubtitle(NSString *name, NSString *subtitle) {
  return [NSString stringWithFormat:@"%@ |%@", name, subtitle];
}
NSString *utf8(NSData *data) {
  return [[[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding] autorelease];
}

// Opens a FIFO for writing, again and again, if the test still runs after a few
// seconds: a page blocked on opening it goes on, and the test fails instead of hanging.
class FifoGuard {
 public:
  explicit FifoGuard(const std::string &path)
      : thread_([this, path] {
          std::unique_lock<std::mutex> lock(mutex_);
          for (auto wait = std::chrono::seconds(5); !done_.wait_for(lock, wait, [this] { return released_; });
               wait = std::chrono::seconds(0)) {
            fired_ = true;
            const int writer = open(path.c_str(), O_WRONLY | O_NONBLOCK);
            if (writer >= 0) close(writer);
          }
        }) {}
  ~FifoGuard() { Fired(); }
  // Whether something waited on the FIFO until the guard opened it.
  bool Fired() {
    {
      std::lock_guard<std::mutex> lock(mutex_);
      released_ = true;
    }
    done_.notify_all();
    if (thread_.joinable()) thread_.join();
    return fired_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable done_;
  bool released_ = false, fired_ = false;
  std::thread thread_;
};

}  // namespace

class LogsPagesTest : public BundleTest {
 protected:
  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimMailReset();
    SimSettingsReset();
    BundleTest::TearDown();
  }

  // A device whose log directory holds `files` (nil: the profile's own logs), on the stopped clock.
  void Start(NSArray *files = nil, bool mailAccount = true) {
    StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false, ^(NSMutableDictionary *profile) {
      if (files != nil) [profile setObject:files forKey:@"files"];
      if (!mailAccount) [profile setObject:@(NO) forKey:@"mailAccount"];
    });
    SimClockUseVirtualTime();
  }

  PSEditableListController *OpenPage() {
    return (PSEditableListController *)OpenSettingsPane(@"TessarinDebugLogsController");
  }

  static NSArray *LogRows(PSListController *page) {
    NSMutableArray *out = [NSMutableArray array];
    for (PSSpecifier *row in [page specifiers])
      if ([row cellType] != PSGroupCell) [out addObject:row];
    return out;
  }

  // The logs listed, as "name" or "name | subtitle" where the row's cell shows one.
  static NSArray *Listed(PSListController *page) {
    NSMutableArray *out = [NSMutableArray array];
    for (PSSpecifier *row in LogRows(page)) {
      NSString *subtitle = [[[page cachedCellForSpecifier:row] detailTextLabel] text];
      [out addObject:[subtitle length] ? withSubtitle([row name], subtitle) : [row name]];
    }
    return out;
  }

  static NSString *NoCrashesFooter(PSListController *page) {
    NSArray *rows = [page specifiers];
    return [rows count] == 2 ? [[rows objectAtIndex:0] propertyForKey:@"footerText"] : nil;
  }

  // The row of `file`: the listed one, or else a row such as the page would make,
  // added to it (for names the page must not list).
  static PSSpecifier *Row(PSListController *page, NSString *file) {
    for (PSSpecifier *row in LogRows(page))
      if ([[row propertyForKey:@"logFile"] isEqual:file]) return row;
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:file
                                                      target:nil
                                                         set:NULL
                                                         get:NULL
                                                      detail:NSClassFromString(@"TessarinCrashLogViewer")
                                                        cell:PSLinkCell
                                                        edit:Nil];
    [row setProperty:file forKey:@"logFile"];
    [page addSpecifier:row];
    return row;
  }

  // Taps a log's row and lets the viewer slide in.
  PSViewController *OpenViewer(PSListController *page, NSString *file) {
    EXPECT_TRUE(SimListControllerTapSpecifier(page, Row(page, file)));
    SimRunLoopRunFor(SimTransitionDuration + 0.1);
    UIViewController *top = [SimSettingsRootController() topViewController];
    EXPECT_NSEQ(NSStringFromClass([top class]), @"TessarinCrashLogViewer");
    return (PSViewController *)top;
  }

  static NSString *TextOf(UIViewController *viewer) {
    for (UIView *view in [[viewer view] subviews])
      if ([view isKindOfClass:[UITextView class]]) return [(UITextView *)view text];
    return nil;
  }

  // Presses the viewer's share button; the composer it presents, if any.
  MFMailComposeViewController *Share(UIViewController *viewer) {
    EXPECT_TRUE(SimTapBarButtonItem([[viewer navigationItem] rightBarButtonItem]));
    SimRunLoopRunFor(SimTransitionDuration + 0.1);
    UIViewController *presented = [viewer presentedViewController];
    return [presented isKindOfClass:[MFMailComposeViewController class]] ? (MFMailComposeViewController *)presented
                                                                         : nil;
  }

  // What the viewer of `file` shows, then whether its mail carries the same text; back on the list.
  NSString *ViewAndMail(PSListController *page, NSString *file) {
    PSViewController *viewer = OpenViewer(page, file);
    NSString *text = [[TextOf(viewer) copy] autorelease];
    MFMailComposeViewController *composer = Share(viewer);
    EXPECT_NE(composer, nil);
    EXPECT_NSEQ([composer _simMessageBody], text) << [file UTF8String];
    SimMailComposerFinish(composer, MFMailComposeResultCancelled);
    SimRunLoopRunFor(SimTransitionDuration + 0.1);
    [SimSettingsRootController() popViewControllerAnimated:NO];
    return text;
  }

  bool Exists(NSString *devicePath) {
    struct stat about;
    return lstat(HostPath([devicePath fileSystemRepresentation]).c_str(), &about) == 0;
  }
};

TEST_F(LogsPagesTest, NewestFirstWithTheProcessUnderTheName) {
  Start();
  PSEditableListController *page = OpenPage();
  EXPECT_NSEQ([[[page specifiers] objectAtIndex:0] name], @"Crash Logs");
  EXPECT_EQ(NoCrashesFooter(page), nil);
  // The latest link is no row; the badly named log comes last.
  EXPECT_NSEQ(Listed(page), (@[
                withSubtitle(kNewest, @" SpringBoard [57]"), kNoProcess, withSubtitle(kNotUTF8, @" Preferences [312]"),
                withSubtitle(kBadlyNamed, @" SpringBoard [88]")
              ]));
  // A log that is not UTF-8 opens empty.
  EXPECT_EQ([ViewAndMail(page, kNotUTF8) length], 0u);
}

TEST_F(LogsPagesTest, ALogReadsAsUTF8InTheListTheViewerAndTheMail) {
  NSString *text = @"Process: Réglages 🔒 [57]\nRaison : « accès refusé » — 東京\n";
  Start(@[ logFile(kNewest, text) ]);
  PSEditableListController *page = OpenPage();
  EXPECT_NSEQ(Listed(page), (@[ withSubtitle(kNewest, @" Réglages 🔒 [57]") ]));
  EXPECT_NSEQ(ViewAndMail(page, kNewest), text);
}

TEST_F(LogsPagesTest, ALongLogIsCutAtAWholeCharacterAndSaysSo) {
  // 3 MB; the viewer reads the first megabyte, which ends inside the "€" (3 bytes).
  const NSUInteger cap = 1000 * 1000;
  NSMutableData *log = [[[@"Process: Réglages [57]\n" dataUsingEncoding:NSUTF8StringEncoding] mutableCopy] autorelease];
  const NSUInteger start = [log length];
  [log setLength:cap - 1];
  memset((char *)[log mutableBytes] + start, 'x', cap - 1 - start);
  [log appendData:[@"€ and the rest" dataUsingEncoding:NSUTF8StringEncoding]];
  NSString *head = utf8([log subdataWithRange:NSMakeRange(0, cap - 1)]);
  [log setLength:3 * cap];
  Start(@[ logFile(kNewest, log) ]);
  NSString *shown = ViewAndMail(OpenPage(), kNewest);
  EXPECT_NSEQ(shown, ([@"This log is 3 MB: only its first 1 MB is shown.\n\n" stringByAppendingString:head]));
}

TEST_F(LogsPagesTest, ALinkNamedLikeALogIsNotListedShownOrMailed) {
  Start(@[
    logFile(kNewest, @"Process: SpringBoard [57]\n"), link(inDir(kHostile), @"../../Preferences/secret.plist"),
    secretFile()
  ]);
  ASSERT_TRUE(Exists(kSecret));
  PSEditableListController *page = OpenPage();
  EXPECT_NSEQ(Listed(page), (@[ withSubtitle(kNewest, @" SpringBoard [57]") ]));
  EXPECT_EQ([ViewAndMail(page, kHostile) length], 0u);
  ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kHostile)));
  EXPECT_TRUE(Exists(kSecret));
}

TEST_F(LogsPagesTest, TheViewerOpensOnlyAFileOfTheLogDirectory) {
  Start(@[
    logFile(kNewest, @"Process: SpringBoard [57]\n"), secretFile(@"/var/mobile/Library/Preferences/secret.txt"),
    folder(@"folder.log")
  ]);
  PSEditableListController *page = OpenPage();
  for (NSString *file in @[
         @"../../Preferences/secret.txt", @"/var/mobile/Library/Preferences/secret.txt", @"..", @".", @"", @"folder.log"
       ])
    EXPECT_EQ([ViewAndMail(page, file) length], 0u) << [file UTF8String];
}

TEST_F(LogsPagesTest, TheLatestLinkIsFollowedOnlyToALogInsideTheDirectory) {
  NSString *newestText = @"Process: SpringBoard [57]\n";
  Start(@[
    logFile(kNewest, newestText), link(inDir(kHostile), @"../../Preferences/secret.plist"), secretFile(),
    folder(@"folder.log"), secretFile([@"/var/mobile/Library/Preferences" stringByAppendingPathComponent:kNewest])
  ]);
  const std::string linkPath = HostPath([inDir(kLatest) fileSystemRepresentation]);
  mkfifo(HostPath([inDir(@"fifo.log") fileSystemRepresentation]).c_str(), 0644);
  FifoGuard guard(HostPath([inDir(@"fifo.log") fileSystemRepresentation]));
  struct Case {
    NSString *target;
    bool followed;
  };
  const Case cases[] = {
      {inDir(kNewest), true},  // a device path
      {kNewest, true},
      {[@"../Tessarin/" stringByAppendingString:kNewest], true},
      {@"../../Preferences/secret.plist", false},
      {[@"../../Preferences/" stringByAppendingString:kNewest], false},  // outside, though named like a log inside
      {kSecret, false},
      {kHostile, false},  // a link to a link
      {@"fifo.log", false},
      {@"folder.log", false},
      {@".", false},
  };
  PSEditableListController *page = OpenPage();
  for (const Case &c : cases) {
    unlink(linkPath.c_str());
    ASSERT_EQ(symlink([c.target fileSystemRepresentation], linkPath.c_str()), 0);
    EXPECT_NSEQ(ViewAndMail(page, kLatest), c.followed ? newestText : @"") << [c.target UTF8String];
    // Deleting through the link removes only a log it leads to.
    [page performDeletionActionForSpecifier:Row(page, kLatest)];
    EXPECT_EQ(Exists(inDir(kNewest)), !c.followed) << [c.target UTF8String];
    if (c.followed)
      WriteDeviceFile([inDir(kNewest) fileSystemRepresentation], [newestText dataUsingEncoding:NSUTF8StringEncoding]);
    EXPECT_TRUE(Exists(kSecret) && Exists(inDir(@"fifo.log")) && Exists(inDir(@"folder.log")) &&
                Exists(inDir(kHostile)));
  }
  EXPECT_FALSE(guard.Fired());
}

TEST_F(LogsPagesTest, AFIFONamedLikeALogNeitherBlocksNorIsListed) {
  Start(@[ logFile(kNewest, @"Process: SpringBoard [57]\n") ]);
  const std::string fifo = HostPath([inDir(kHostile) fileSystemRepresentation]);
  ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0);
  FifoGuard guard(fifo);
  PSEditableListController *page = OpenPage();
  EXPECT_NSEQ(Listed(page), (@[ withSubtitle(kNewest, @" SpringBoard [57]") ]));
  EXPECT_EQ([ViewAndMail(page, kHostile) length], 0u);
  ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kHostile)));
  EXPECT_TRUE(Exists(inDir(kHostile)));
  EXPECT_FALSE(guard.Fired());
}

TEST_F(LogsPagesTest, ALogDirectoryThatIsALinkListsAndDeletesNothing) {
  NSDictionary *settings = @{@"enabled" : @(YES), @"passcode" : @"2580"};
  Start(@[ link(kDir, @"../Preferences"), @{@"path" : @(kSettingsFile), @"contents" : settings} ]);
  PSEditableListController *page = OpenPage();
  EXPECT_NSEQ(NoCrashesFooter(page), @"No crashes recorded :)");
  NSString *file = [@(kSettingsFile) lastPathComponent];
  EXPECT_EQ([ViewAndMail(page, file) length], 0u);
  for (int swipe = 0; swipe < 2; swipe++) ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, file)));
  SimRunLoopRunFor(1.0);
  EXPECT_NSEQ(StoredPreferences(), settings);
}

TEST_F(LogsPagesTest, NoLogsShowTheNoCrashesText) {
  const struct {
    const char *name;
    NSArray *files;
  } cases[] = {
      {"no directory", @[]},
      {"a latest link whose log is gone", @[ link(inDir(kLatest), inDir(kNewest)) ]},
      {"only what is no log", @[ link(inDir(kHostile), @"../../Preferences/secret.plist"), folder(@"folder.log") ]},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.name);
    Start(c.files);
    PSEditableListController *page = OpenPage();
    EXPECT_NSEQ(NoCrashesFooter(page), @"No crashes recorded :)");
    EXPECT_NSEQ([[[page specifiers] firstObject] propertyForKey:@"footerAlignment"], @(1));
    EXPECT_NSEQ([[[page specifiers] lastObject] name], @"Crash Logs");
    SimSettingsReset();
  }
}

TEST_F(LogsPagesTest, DeletingTheNewestLogTakesTheLatestLinkAndTheRowsComeBackAfterPointFourSeconds) {
  Start();
  PSEditableListController *page = OpenPage();
  ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNoProcess)));
  EXPECT_TRUE(Exists(inDir(kLatest)));
  ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNewest)));
  EXPECT_FALSE(Exists(inDir(kNewest)) || Exists(inDir(kLatest)) || Exists(inDir(kNoProcess)));
  NSArray *afterSwipe = [[[page specifiers] retain] autorelease];  // the rows go at once, the page is rebuilt later
  EXPECT_NSEQ(Listed(page),
              (@[ withSubtitle(kNotUTF8, @" Preferences [312]"), withSubtitle(kBadlyNamed, @" SpringBoard [88]") ]));
  SimClockAdvance(0.399);
  EXPECT_EQ([page specifiers], afterSwipe);
  SimClockAdvance(0.001);
  EXPECT_NE([page specifiers], afterSwipe);
  EXPECT_EQ([Listed(page) count], 2u);
}

TEST_F(LogsPagesTest, SendingALogByMailRemovesItOtherAnswersKeepIt) {
  Start();
  PSEditableListController *page = OpenPage();
  PSViewController *viewer = OpenViewer(page, kNewest);
  NSString *text = utf8(ReadDeviceFile([inDir(kNewest) fileSystemRepresentation]));
  EXPECT_NSEQ(TextOf(viewer), text);
  for (MFMailComposeResult answer :
       {MFMailComposeResultCancelled, MFMailComposeResultSaved, MFMailComposeResultFailed, MFMailComposeResultSent}) {
    SCOPED_TRACE(answer);
    MFMailComposeViewController *composer = Share(viewer);
    ASSERT_NE(composer, nil);
    EXPECT_NSEQ([composer _simSubject], @"Tessarin Crash");
    EXPECT_NSEQ([composer _simToRecipients], @[ kSupportAddress ]);
    EXPECT_NSEQ([composer _simMessageBody], text);
    EXPECT_FALSE([composer _simMessageBodyIsHTML]);
    ASSERT_TRUE(SimMailComposerFinish(composer, answer));
    SimRunLoopRunFor(1.0);
    EXPECT_EQ([viewer presentedViewController], nil);
    const bool sent = answer == MFMailComposeResultSent;
    EXPECT_EQ([[viewer navigationItem] rightBarButtonItem] == nil, sent);
    EXPECT_EQ(Exists(inDir(kNewest)), !sent);
    EXPECT_EQ(Exists(inDir(kLatest)), !sent);
    EXPECT_EQ([Listed(page) count], sent ? 3u : 4u);
  }
  EXPECT_EQ([SimSentMails() count], 1u);
}

TEST_F(LogsPagesTest, WithoutAMailAccountTheShareButtonSaysSo) {
  Start(nil, /*mailAccount=*/false);
  PSViewController *viewer = OpenViewer(OpenPage(), kNewest);
  EXPECT_EQ(Share(viewer), nil);
  UIAlertController *alert = (UIAlertController *)[viewer presentedViewController];
  ASSERT_TRUE([alert isKindOfClass:[UIAlertController class]]);
  EXPECT_NSEQ([alert title], @"No mail account");
  ASSERT_EQ([[alert actions] count], 1u);
  EXPECT_NSEQ([[[alert actions] objectAtIndex:0] title], @"Okay");
  EXPECT_TRUE(Exists(inDir(kNewest)));
}
