// The crash-log list and viewer: the rows of the log directory, deletion by swiping and
// through the latest link, the viewer's text and the mail that sends a log away.
#import <UIKit/UIKit.h>
#import <MessageUI/MessageUISimulation.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#import "BundleFixture.h"
#import "core/Endpoints.h"
#include <sys/stat.h>

namespace {

const char *const kDir = "/var/mobile/Library/Logs/Tessarin";
NSString *const kNewest = @"Tessarin-12-Nov-2026-08-15-42.log";
NSString *const kNoProcess = @"Tessarin-03-Nov-2026-21-04-10.log";
NSString *const kNotUTF8 = @"Tessarin-28-Oct-2026-09-30-00.log";
NSString *const kBadlyNamed = @"Tessarin-crash.log";
NSString *const kLatest = @"Latest-Tessarin.log";
// After the row's removal, the page rebuilds its rows 0.4 s later; room for a loaded machine.
const double kReloadSettle = 1.0;

NSArray *logRows(NSArray *rows) {
    NSMutableArray *out = [NSMutableArray array];
    for (PSSpecifier *row in rows)
        if ([row cellType] != PSGroupCell) [out addObject:row];
    return out;
}

NSArray *logNames(NSArray *rows) {
    NSMutableArray *out = [NSMutableArray array];
    for (PSSpecifier *row in logRows(rows)) [out addObject:[row propertyForKey:@"logFile"]];
    return out;
}

NSDictionary *logFile(NSString *name, NSString *text) {
    return @{@"path" : [@(kDir) stringByAppendingPathComponent:name], @"contents" : text};
}

}  // namespace

class LogsPagesTest : public BundleTest {
protected:
    void TearDown() override {
        SimRunLoopRunFor(0.1);
        SimMailReset();
        SimSettingsReset();
        BundleTest::TearDown();
    }

    // A device whose log directory holds `files` (nil: the profile's own logs).
    void Start(NSArray *files = nil, bool mailAccount = true) {
        StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false, ^(NSMutableDictionary *profile) {
            if (files != nil) [profile setObject:files forKey:@"files"];
            if (!mailAccount) [profile setObject:@(NO) forKey:@"mailAccount"];
        });
    }

    PSEditableListController *OpenPage() {
        return (PSEditableListController *)OpenSettingsPane(@"TessarinDebugLogsController");
    }

    PSSpecifier *Row(PSListController *page, NSString *file) {
        for (PSSpecifier *row in logRows([page specifiers]))
            if ([[row propertyForKey:@"logFile"] isEqual:file]) return row;
        return nil;
    }

    // Taps a log's row and lets the viewer slide in.
    PSViewController *OpenViewer(PSListController *page, NSString *file) {
        PSSpecifier *row = Row(page, file);
        EXPECT_NE(row, nil);
        EXPECT_TRUE(SimListControllerTapSpecifier(page, row));
        SimRunLoopRunFor(SimTransitionDuration + 0.1);
        UIViewController *top = [SimSettingsRootController() topViewController];
        EXPECT_NSEQ(NSStringFromClass([top class]), @"TessarinCrashLogViewer");
        [top view];
        return (PSViewController *)top;
    }

    UITextView *TextOf(UIViewController *viewer) {
        for (UIView *view in [[viewer view] subviews])
            if ([view isKindOfClass:[UITextView class]]) return (UITextView *)view;
        return nil;
    }

    bool LogExists(NSString *file) {
        return DeviceFileExists([[@(kDir) stringByAppendingPathComponent:file] fileSystemRepresentation]);
    }

    bool LinkExists() {
        struct stat st;
        return lstat(HostPath([[@(kDir) stringByAppendingPathComponent:kLatest] fileSystemRepresentation]).c_str(), &st) == 0;
    }

    // Presses the viewer's share button; the composer it presents, if any.
    MFMailComposeViewController *Share(UIViewController *viewer) {
        UIBarButtonItem *share = [[viewer navigationItem] rightBarButtonItem];
        EXPECT_NE(share, nil);
        EXPECT_TRUE(SimTapBarButtonItem(share));
        SimRunLoopRunFor(SimTransitionDuration + 0.1);
        UIViewController *presented = [viewer presentedViewController];
        return [presented isKindOfClass:[MFMailComposeViewController class]] ? (MFMailComposeViewController *)presented : nil;
    }
};

TEST_F(LogsPagesTest, NewestFirstWithTheProcessUnderTheName) {
    Start();
    PSEditableListController *page = OpenPage();
    NSArray *rows = [page specifiers];
    ASSERT_GT([rows count], 0u);
    EXPECT_NSEQ([[rows objectAtIndex:0] name], @"Crash Logs");
    EXPECT_EQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], nil);
    // The latest link is no row; the badly named log comes last.
    EXPECT_NSEQ(logNames(rows), (@[ kNewest, kNoProcess, kNotUTF8, kBadlyNamed ]));

    PSSpecifier *newest = Row(page, kNewest);
    EXPECT_NSEQ([newest name], kNewest);
    EXPECT_EQ([newest cellType], PSLinkCell);
    EXPECT_EQ([newest target], nil);
    EXPECT_NSEQ([newest detailControllerClass], NSClassFromString(@"TessarinCrashLogViewer"));
    EXPECT_NSEQ([newest propertyForKey:@"cellClass"], NSClassFromString(@"PSUIAppleIDAccountDetailsLinkCell"));
    EXPECT_NSEQ([newest propertyForKey:@"cellSubtitleText"], @" SpringBoard [57]");
    EXPECT_EQ([Row(page, kNoProcess) propertyForKey:@"cellSubtitleText"], nil);
    EXPECT_NSEQ([Row(page, kNotUTF8) propertyForKey:@"cellSubtitleText"], @" Preferences [312]");
    EXPECT_NSEQ([[[page cachedCellForSpecifier:newest] detailTextLabel] text], @" SpringBoard [57]");

    // Every row can be swiped away.
    UITableView *table = [page table];
    for (PSSpecifier *row in logRows(rows)) {
        NSIndexPath *path = [page indexPathForSpecifier:row];
        EXPECT_EQ([page tableView:table editingStyleForRowAtIndexPath:path], UITableViewCellEditingStyleDelete);
        EXPECT_TRUE([page tableView:table shouldIndentWhileEditingRowAtIndexPath:path]);
    }
}

TEST_F(LogsPagesTest, LogsOfTheSameSecondComeInEitherOrder) {
    NSString *older = @"Tessarin-05-Mar-2024-14-07-09.log";
    NSString *one = @"Tessarin-05-Mar-2024-14-07-10.log", *other = @"Tessarin-5-Mar-2024-14-7-10.log";
    Start(@[ logFile(older, @"a\n"), logFile(one, @"b\n"), logFile(other, @"c\n"), logFile(@"notes.txt", @"d\n") ]);
    NSArray *names = logNames([OpenPage() specifiers]);
    ASSERT_EQ([names count], 4u);
    EXPECT_NSEQ([NSSet setWithArray:[names subarrayWithRange:NSMakeRange(0, 2)]], ([NSSet setWithObjects:one, other, nil]));
    EXPECT_NSEQ([names objectAtIndex:2], older);
    EXPECT_NSEQ([names objectAtIndex:3], @"notes.txt");
}

TEST_F(LogsPagesTest, DeletingTheNewestLogDeletesTheLatestLinkToo) {
    Start();
    PSEditableListController *page = OpenPage();
    ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNewest)));
    EXPECT_FALSE(LogExists(kNewest));
    EXPECT_FALSE(LinkExists());
    EXPECT_EQ(Row(page, kNewest), nil);  // the row goes at once

    ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNoProcess)));
    EXPECT_FALSE(LogExists(kNoProcess));
    SimRunLoopRunFor(kReloadSettle);
    EXPECT_NSEQ(logNames([page specifiers]), (@[ kNotUTF8, kBadlyNamed ]));
}

TEST_F(LogsPagesTest, DeletingAnOlderLogKeepsTheLink) {
    Start();
    PSEditableListController *page = OpenPage();
    ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNoProcess)));
    EXPECT_FALSE(LogExists(kNoProcess));
    EXPECT_TRUE(LogExists(kNewest));
    EXPECT_TRUE(LinkExists());
}

TEST_F(LogsPagesTest, DeletingThroughTheLatestRowDeletesWhatItPointsAt) {
    Start();
    PSEditableListController *page = OpenPage();
    PSSpecifier *latest = [PSSpecifier preferenceSpecifierNamed:kLatest target:nil set:NULL get:NULL
                                                         detail:NSClassFromString(@"TessarinCrashLogViewer")
                                                           cell:PSLinkCell edit:Nil];
    [latest setProperty:kLatest forKey:@"logFile"];
    [page addSpecifier:latest];
    EXPECT_TRUE([page performDeletionActionForSpecifier:latest]);
    EXPECT_FALSE(LogExists(kNewest));
    EXPECT_TRUE(LinkExists());  // the link itself stays
    EXPECT_TRUE(LogExists(kNoProcess));
    SimRunLoopRunFor(kReloadSettle);
    EXPECT_NSEQ(logNames([page specifiers]), (@[ kNoProcess, kNotUTF8, kBadlyNamed ]));
}

TEST_F(LogsPagesTest, TheLastDeletionLeavesTheNoCrashesText) {
    Start(@[ logFile(kNoProcess, @"Exception\n") ]);
    PSEditableListController *page = OpenPage();
    ASSERT_TRUE(SimEditableListSwipeToDelete(page, Row(page, kNoProcess)));
    // The row goes at once; the rows are rebuilt only a moment later.
    EXPECT_EQ([[page specifiers] count], 1u);
    SimRunLoopRunUntil(^BOOL {
        return [[page specifiers] count] == 2;
    }, 3.0);
    NSArray *rows = [page specifiers];
    ASSERT_EQ([rows count], 2u);
    EXPECT_EQ([[rows objectAtIndex:0] name], nil);
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], @"No crashes recorded :)");
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerAlignment"], @(1));
    EXPECT_NSEQ([[rows objectAtIndex:1] name], @"Crash Logs");
}

TEST_F(LogsPagesTest, NoLogDirectoryShowsTheNoCrashesText) {
    Start(@[]);
    NSArray *rows = [OpenPage() specifiers];
    ASSERT_EQ([rows count], 2u);
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], @"No crashes recorded :)");
}

TEST_F(LogsPagesTest, TheViewerShowsTheWholeLogAndNothingForOneThatIsNotUTF8) {
    Start();
    PSEditableListController *page = OpenPage();
    PSViewController *viewer = OpenViewer(page, kNewest);
    UITextView *text = TextOf(viewer);
    ASSERT_NE(text, nil);
    NSString *expected = [[[NSString alloc] initWithData:ReadDeviceFile([[@(kDir) stringByAppendingPathComponent:kNewest]
                                                                           fileSystemRepresentation])
                                                encoding:NSUTF8StringEncoding] autorelease];
    EXPECT_NSEQ([text text], expected);
    EXPECT_TRUE(CGRectEqualToRect([text frame], [[viewer view] bounds]));
    UIBarButtonItem *share = [[viewer navigationItem] rightBarButtonItem];
    ASSERT_NE(share, nil);
    EXPECT_EQ([share style], UIBarButtonItemStyleDone);
    EXPECT_NE([share image], nil);

    [SimSettingsRootController() popViewControllerAnimated:NO];
    viewer = OpenViewer(page, kNotUTF8);
    EXPECT_EQ([[TextOf(viewer) text] length], 0u);
}

TEST_F(LogsPagesTest, SendingALogByMailRemovesIt) {
    Start();
    PSEditableListController *page = OpenPage();
    PSViewController *viewer = OpenViewer(page, kNoProcess);
    MFMailComposeViewController *composer = Share(viewer);
    ASSERT_NE(composer, nil);
    EXPECT_NSEQ([composer _simSubject], @"Tessarin Crash");
    EXPECT_NSEQ([composer _simToRecipients], @[ kSupportAddress ]);
    EXPECT_NSEQ([composer _simMessageBody], [TextOf(viewer) text]);
    EXPECT_FALSE([composer _simMessageBodyIsHTML]);

    ASSERT_TRUE(SimMailComposerFinish(composer, MFMailComposeResultSent));
    SimRunLoopRunFor(kReloadSettle);
    EXPECT_EQ([viewer presentedViewController], nil);
    EXPECT_EQ([[viewer navigationItem] rightBarButtonItem], nil);
    EXPECT_FALSE(LogExists(kNoProcess));
    EXPECT_EQ(Row(page, kNoProcess), nil);
    EXPECT_EQ([SimSentMails() count], 1u);
}

TEST_F(LogsPagesTest, CancelSaveAndFailureKeepTheLog) {
    Start();
    PSEditableListController *page = OpenPage();
    PSViewController *viewer = OpenViewer(page, kNewest);
    const MFMailComposeResult answers[] = {MFMailComposeResultCancelled, MFMailComposeResultSaved,
                                           MFMailComposeResultFailed};
    for (MFMailComposeResult answer : answers) {
        SCOPED_TRACE(answer);
        MFMailComposeViewController *composer = Share(viewer);
        ASSERT_NE(composer, nil);
        ASSERT_TRUE(SimMailComposerFinish(composer, answer));
        SimRunLoopRunFor(SimTransitionDuration + 0.1);
        EXPECT_EQ([viewer presentedViewController], nil);
        EXPECT_NE([[viewer navigationItem] rightBarButtonItem], nil);
        EXPECT_TRUE(LogExists(kNewest));
        EXPECT_TRUE(LinkExists());
        EXPECT_NE(Row(page, kNewest), nil);
    }
}

TEST_F(LogsPagesTest, WithoutAMailAccountTheShareButtonSaysSo) {
    Start(nil, /*mailAccount=*/false);
    PSEditableListController *page = OpenPage();
    PSViewController *viewer = OpenViewer(page, kNewest);
    EXPECT_EQ(Share(viewer), nil);
    SimRunLoopRunUntil(^BOOL {
        return [[viewer presentedViewController] isKindOfClass:[UIAlertController class]];
    }, 2.0);
    UIAlertController *alert = (UIAlertController *)[viewer presentedViewController];
    ASSERT_TRUE([alert isKindOfClass:[UIAlertController class]]);
    EXPECT_NSEQ([alert title], @"No mail account");
    ASSERT_EQ([[alert actions] count], 1u);
    EXPECT_NSEQ([[[alert actions] objectAtIndex:0] title], @"Okay");
    EXPECT_TRUE(LogExists(kNewest));
    EXPECT_NE(Row(page, kNewest), nil);
}

TEST_F(LogsPagesTest, ARowWithoutALogFileDeletesNothing) {
    Start();
    PSEditableListController *page = OpenPage();
    for (id file : @[ [NSNull null], @"", @"..", @"../../Preferences" ]) {
        PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:@"Odd" target:nil set:NULL get:NULL detail:Nil
                                                            cell:PSLinkCell edit:Nil];
        if ([file isKindOfClass:[NSString class]]) [row setProperty:file forKey:@"logFile"];
        [page addSpecifier:row];
        EXPECT_TRUE([page performDeletionActionForSpecifier:row]);
    }
    EXPECT_EQ([[[NSFileManager defaultManager] contentsOfDirectoryAtPath:HostPathString(@(kDir)) error:NULL] count], 5u);
    EXPECT_TRUE(DeviceFileExists("/var/mobile/Library/Preferences"));
    SimRunLoopRunFor(kReloadSettle);
    EXPECT_EQ([logRows([page specifiers]) count], 4u);
}
