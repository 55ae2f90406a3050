#import "logs/TessarinDebugLogsController.h"
#import "core/Strings.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/Endpoints.h"
#import "core/Paths.h"
#include "logs/CrashLogs.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <string.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <vector>

namespace {

namespace logs = tessarin::logs;

// The rows are rebuilt this long after a deletion, once the row's removal has played.
const double kReloadDelay = 0.4;

// A file name or path in the file system's own encoding (what the directory listing gives).
std::string pathString(id text) {
  const char *bytes = [text isKindOfClass:[NSString class]] ? [(NSString *)text fileSystemRepresentation] : NULL;
  return bytes != NULL ? std::string(bytes) : std::string();
}

NSString *logDirectory(void) { return nsString(logs::kLogDirectory); }

// The file-system path of a file of the log directory.
NSString *logPath(NSString *file) { return devicePath([logDirectory() stringByAppendingPathComponent:file]); }

// The names in the log directory (none when it is missing). Read straight from the
// directory: a list of thousands of logs should not cost a look at each file.
std::vector<std::string> directoryEntries(void) {
  std::vector<std::string> names;
  DIR *directory = opendir([devicePath(logDirectory()) fileSystemRepresentation]);
  if (directory == NULL) return names;
  while (struct dirent *entry = readdir(directory)) {
    if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0) continue;
    names.emplace_back(entry->d_name);
  }
  closedir(directory);
  return names;
}

NSString *fileName(const std::string &file) {
  return [[NSFileManager defaultManager] stringWithFileSystemRepresentation:file.c_str() length:file.size()];
}

// The process named in the head of a log (`path`: its file-system path), when it names one.
NSString *subtitleOfLog(const std::string &path) {
  const int log = open(path.c_str(), O_RDONLY);
  if (log < 0) return nil;
  char head[logs::kHeadBytes];
  size_t length = 0;
  while (length < sizeof head) {
    const ssize_t got = read(log, head + length, sizeof head - length);
    if (got <= 0) break;
    length += (size_t)got;
  }
  close(log);
  std::optional<std::string> subtitle = logs::logSubtitle(std::string_view(head, length));
  return subtitle ? nsString(*subtitle) : nil;
}

}  // namespace

@implementation TessarinDebugLogsController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  std::vector<logs::LogEntry> entries;
  for (std::string &file : directoryEntries()) {
    const uint64_t timestamp = logs::logTimestamp(file);
    entries.push_back({std::move(file), timestamp});
  }
  const std::vector<std::string> files = logs::newestFirst(std::move(entries));

  NSMutableArray *rows = [NSMutableArray array];
  if (files.empty()) {
    PSSpecifier *nothing = [PSSpecifier groupSpecifierWithName:nil];
    [nothing setProperty:localizedString(@"NO_CRASHES_RECORDED", @"No crashes recorded :)") forKey:@"footerText"];
    [nothing setProperty:@(1) forKey:@"footerAlignment"];
    [rows addObject:nothing];
  }
  [rows addObject:[PSSpecifier groupSpecifierWithName:localizedString(@"CRASH_LOGS_GROUP", @"Crash Logs")]];

  const std::string directory = devicePath(std::string(logs::kLogDirectory).c_str()) + "/";
  Class viewer = [TessarinCrashLogViewer class];
  Class cellClass = NSClassFromString(@"PSUIAppleIDAccountDetailsLinkCell");
  for (const std::string &file : files) {
    if (logs::isLatestName(file)) continue;
    NSString *name = fileName(file);
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
    NSString *subtitle = subtitleOfLog(directory + file);
    if (subtitle != nil) [row setProperty:subtitle forKey:@"cellSubtitleText"];
    [rows addObject:row];
  }

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
  NSFileManager *files = [NSFileManager defaultManager];
  NSString *link = [files destinationOfSymbolicLinkAtPath:logPath(nsString(logs::kLatestLinkName)) error:NULL];
  std::optional<std::string> linkFile;
  if ([link isKindOfClass:[NSString class]]) linkFile = logs::latestLinkFile(pathString(link));

  const std::string rowFile = pathString([specifier propertyForKey:@"logFile"]);
  for (const std::string &file : logs::filesToDelete(rowFile, linkFile, directoryEntries())) {
    NSString *name = fileName(file);
    if (name != nil) [files removeItemAtPath:logPath(name) error:NULL];
  }

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
  // A log that is not UTF-8 reads as nothing: the viewer stays empty.
  NSString *file = [self logFile];
  text.text = file != nil ? [NSString stringWithContentsOfFile:logPath(file) encoding:NSUTF8StringEncoding error:NULL]
                          : nil;
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
