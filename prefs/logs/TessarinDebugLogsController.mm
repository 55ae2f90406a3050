#import "logs/TessarinDebugLogsController.h"
#import "core/Strings.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/Endpoints.h"
#import "core/Paths.h"
#include "logs/LogDirectory.hpp"

#include <optional>
#include <string>
#include <vector>

namespace {

namespace logs = tessarin::logs;

// The rows are rebuilt this long after a deletion, once the row's removal has played.
const double kReloadDelay = 0.4;

// A file name in the file system's own encoding (what the directory listing gives).
std::string pathString(id text) {
  const char *bytes = [text isKindOfClass:[NSString class]] ? [(NSString *)text fileSystemRepresentation] : NULL;
  return bytes != NULL ? std::string(bytes) : std::string();
}

NSString *fileName(const std::string &file) {
  return [[NSFileManager defaultManager] stringWithFileSystemRepresentation:file.c_str() length:file.size()];
}

std::string fileSystemPath(const char *path) { return devicePath(path); }

logs::LogDirectory logDirectory() {
  return logs::LogDirectory(fileSystemPath(std::string(logs::kLogDirectory).c_str()), fileSystemPath);
}

// The viewer's text for a row's file: nil when the row names no log of the directory
// or the log is not UTF-8. A log longer than the viewer reads begins with a line that says so.
NSString *viewerText(NSString *rowFile) {
  const std::optional<logs::ViewedLog> log = logs::viewedLog(logDirectory(), pathString(rowFile));
  NSString *text = log ? nsString(log->text) : nil;
  if (text == nil || !log->cut) return text;
  NSString *format = localizedString(@"LOG_CUT_NOTICE", @"This log is %@: only its first %@ is shown.");
  const std::string notice =
      logs::fillIn(stdString(format), {logs::sizeText(log->fileSize), logs::sizeText(log->text.size())});
  return [NSString stringWithFormat:@"%@\n\n%@", nsStringOrEmpty(notice), text];
}

}  // namespace

@implementation TessarinDebugLogsController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  Class viewer = [TessarinCrashLogViewer class];
  Class cellClass = NSClassFromString(@"PSUIAppleIDAccountDetailsLinkCell");
  NSMutableArray *logRows = [NSMutableArray array];
  for (const logs::ListedLog &log : logs::listedLogs(logDirectory())) {
    NSString *name = fileName(log.file);
    if (name == nil) continue;  // a name the system cannot show
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                      target:nil
                                                         set:NULL
                                                         get:NULL
                                                      detail:viewer
                                                        cell:PSLinkCell
                                                        edit:Nil];
    if (cellClass != Nil) [row setProperty:cellClass forKey:@"cellClass"];
    [row setProperty:name forKey:@"logFile"];
    NSString *subtitle = log.subtitle ? nsString(*log.subtitle) : nil;
    if (subtitle != nil) [row setProperty:subtitle forKey:@"cellSubtitleText"];
    [logRows addObject:row];
  }

  NSMutableArray *rows = [NSMutableArray array];
  // Counted in logs listed, not in directory entries: a latest link whose log is gone
  // or anything else that is no log must not hide that there is nothing to read.
  if ([logRows count] == 0) {
    PSSpecifier *nothing = [PSSpecifier groupSpecifierWithName:nil];
    [nothing setProperty:localizedString(@"NO_CRASHES_RECORDED", @"No crashes recorded :)") forKey:@"footerText"];
    [nothing setProperty:@(1) forKey:@"footerAlignment"];
    [rows addObject:nothing];
  }
  [rows addObject:[PSSpecifier groupSpecifierWithName:localizedString(@"CRASH_LOGS_GROUP", @"Crash Logs")]];
  [rows addObjectsFromArray:logRows];

  _specifiers = [rows copy];
  return _specifiers;
}

- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView editingStyleForRowAtIndexPath:(NSIndexPath *)indexPath {
  return UITableViewCellEditingStyleDelete;
}

- (BOOL)tableView:(UITableView *)tableView shouldIndentWhileEditingRowAtIndexPath:(NSIndexPath *)indexPath {
  return YES;
}

- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier {
  logs::deleteForRow(logDirectory(), pathString([specifier propertyForKey:@"logFile"]));

  BOOL removed = [super performDeletionActionForSpecifier:specifier];
  // Rebuilt a moment later, so the last deletion shows that nothing is left.
  [self retain];
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, (int64_t)(kReloadDelay * NSEC_PER_SEC)), dispatch_get_main_queue(), ^{
    [self reloadSpecifiers];
    [self release];
  });
  return removed;
}

@end

@implementation TessarinCrashLogViewer

@synthesize textView = _textView;

- (void)dealloc {
  [_textView release];
  [super dealloc];
}

- (NSString *)logFile {
  id file = [[self specifier] propertyForKey:@"logFile"];
  return [file isKindOfClass:[NSString class]] ? file : nil;
}

- (void)loadView {
  [super loadView];
  UIImage *share = [UIImage imageNamed:@"share" inBundle:tessarinBundle() compatibleWithTraitCollection:nil];
  UIBarButtonItem *button = [[UIBarButtonItem alloc] initWithImage:share
                                                             style:UIBarButtonItemStyleDone
                                                            target:self
                                                            action:@selector(sendEmail:)];
  [self.navigationItem setRightBarButtonItem:button animated:NO];
  [button release];

  UITextView *text = [[UITextView alloc] initWithFrame:self.view.bounds];
  text.autoresizingMask = UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight;
  text.editable = NO;
  // A log that is not UTF-8, or a row that names no log, reads as nothing: the viewer stays empty.
  text.text = viewerText([self logFile]);
  [self.view addSubview:text];
  self.textView = text;
  [text release];
}

- (void)sendEmail:(id)sender {
  MFMailComposeViewController *composer =
      [MFMailComposeViewController canSendMail] ? [[[MFMailComposeViewController alloc] init] autorelease] : nil;
  if (composer == nil) {
    UIAlertAction *okay = [UIAlertAction actionWithTitle:localizedString(@"OKAY", @"Okay")
                                                   style:UIAlertActionStyleCancel
                                                 handler:^(UIAlertAction *action) {
                                                 }];
    showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(
        localizedString(@"NO_MAIL_ACCOUNT_TITLE", @"No mail account"),
        localizedString(@"NO_MAIL_ACCOUNT", @"This device cannot send mail. Add a mail account in Settings to send this crash log."),
        [NSArray arrayWithObject:okay], self, UIAlertControllerStyleAlert);
    return;
  }
  composer.mailComposeDelegate = self;
  [composer setSubject:[NSString stringWithFormat:@"%@ Crash", nsString(tessarin::logs::kProductName)]];
  [composer setMessageBody:self.textView.text isHTML:NO];
  [composer setToRecipients:[NSArray arrayWithObject:kSupportAddress]];
  [self presentViewController:composer animated:YES completion:nil];
}

- (void)mailComposeController:(MFMailComposeViewController *)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError *)error {
  if (result == MFMailComposeResultSent) {
    [self.navigationItem setRightBarButtonItem:nil animated:YES];
    // The log has reached support: the page that opened it deletes it.
    UIViewController *page = [self parentController];
    if ([page respondsToSelector:@selector(performDeletionActionForSpecifier:)])
      [(PSEditableListController *)page performDeletionActionForSpecifier:[self specifier]];
  }
  [self dismissViewControllerAnimated:YES completion:nil];
}

@end
