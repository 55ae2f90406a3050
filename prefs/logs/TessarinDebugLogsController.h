// The crash-log pages: the list of the product's crash logs, newest first, deleted by
// swiping, and the viewer that shows one and mails it to support.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinDebugLogsController : PSEditableListController
@end

@interface TessarinCrashLogViewer : PSViewController <MFMailComposeViewControllerDelegate> {
  UITextView *_textView;
}
@property (nonatomic, retain) UITextView *textView;
// The share button's action: the mail composer, or an alert where mail cannot be sent.
- (void)sendEmail:(id)sender;
@end
