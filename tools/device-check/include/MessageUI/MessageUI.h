// The part of MessageUI the bundle uses, for tools/device-check.sh (the SDK's framework
// has these declarations; the Linux stand-ins do not provide MessageUI).
#import <UIKit/UIKit.h>
typedef NS_ENUM(NSInteger, MFMailComposeResult) { MFMailComposeResultCancelled, MFMailComposeResultSaved, MFMailComposeResultSent, MFMailComposeResultFailed };
@class MFMailComposeViewController;
@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController *)controller didFinishWithResult:(MFMailComposeResult)result error:(NSError *)error;
@end
@interface MFMailComposeViewController : UINavigationController
+ (BOOL)canSendMail;
@property (nonatomic, assign) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;
- (void)setSubject:(NSString *)subject;
- (void)setToRecipients:(NSArray *)toRecipients;
- (void)setMessageBody:(NSString *)body isHTML:(BOOL)isHTML;
@end
