#ifndef MESSAGEUI_MFMAILCOMPOSEVIEWCONTROLLER_H
#define MESSAGEUI_MFMAILCOMPOSEVIEWCONTROLLER_H

#import <UIKit/UIKit.h>

typedef NS_ENUM(NSInteger, MFMailComposeResult) {
  MFMailComposeResultCancelled = 0,
  MFMailComposeResultSaved = 1,
  MFMailComposeResultSent = 2,
  MFMailComposeResultFailed = 3,
};

UIKIT_EXTERN NSString *const MFMailComposeErrorDomain;

@class MFMailComposeViewController;

@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController *)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError *)error;
@end

/* The system's mail composer. Whether the device can send mail follows its profile
   ("mailAccount", default YES); without an account +canSendMail answers NO and -init
   gives nil. The user's answer comes through SimMailComposerFinish (MessageUISimulation.h). */
@interface MFMailComposeViewController : UINavigationController {
  id _mailComposeDelegate;
  NSString *_subject;
  NSArray *_toRecipients;
  NSArray *_ccRecipients;
  NSArray *_bccRecipients;
  NSString *_messageBody;
  BOOL _messageBodyIsHTML;
  NSMutableArray *_attachments;
}
+ (BOOL)canSendMail;
@property (nonatomic, assign) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;
- (void)setSubject:(NSString *)subject;
- (void)setToRecipients:(NSArray *)toRecipients;
- (void)setCcRecipients:(NSArray *)ccRecipients;
- (void)setBccRecipients:(NSArray *)bccRecipients;
- (void)setMessageBody:(NSString *)body isHTML:(BOOL)isHTML;
- (void)addAttachmentData:(NSData *)attachment mimeType:(NSString *)mimeType fileName:(NSString *)filename;
@end

#endif
