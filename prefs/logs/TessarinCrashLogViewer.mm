#import "logs/TessarinCrashLogViewer.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/Endpoints.h"
#import "core/Paths.h"
#import "core/Strings.h"
#import "logs/LogFiles.h"

#include <optional>
#include <string>

namespace {

namespace logs = tessarin::logs;

// The viewer's text for a row's file: nil when the row names no log of the directory
// or the log is not UTF-8. A log longer than the viewer reads begins with a line that says so.
NSString *viewerText(NSString *rowFile) {
  const std::optional<logs::ViewedLog> log = logs::viewedLog(deviceLogDirectory(), fileSystemName(rowFile));
  NSString *text = log ? nsString(log->text) : nil;
  if (text == nil || !log->cut) return text;
  NSString *format = localizedString(@"LOG_CUT_NOTICE", @"This log is %@: only its first %@ is shown.");
  const std::string notice =
      logs::fillIn(stdString(format), {logs::sizeText(log->fileSize), logs::sizeText(log->text.size())});
  return [NSString stringWithFormat:@"%@\n\n%@", nsStringOrEmpty(notice), text];
}

}  // namespace

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
                                                 handler:^(UIAlertAction *action){}];
    showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(
        localizedString(@"NO_MAIL_ACCOUNT_TITLE", @"No mail account"),
        localizedString(@"NO_MAIL_ACCOUNT",
                        @"This device cannot send mail. Add a mail account in Settings to send this crash log."),
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
