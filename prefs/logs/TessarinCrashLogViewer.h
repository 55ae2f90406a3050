// The crash-log viewer: one log's text, mailed to support from the share button.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinCrashLogViewer : PSViewController <MFMailComposeViewControllerDelegate> {
  UITextView *_textView;
}
@property (nonatomic, retain) UITextView *textView;
// The share button's action: the mail composer, or an alert where mail cannot be sent.
- (void)sendEmail:(id)sender;
@end
