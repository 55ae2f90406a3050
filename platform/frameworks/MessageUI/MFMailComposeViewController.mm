// The mail composer: what the product gives it, and the user's answer through a hook.
#import <MessageUI/MessageUISimulation.h>
#include <Simulator/Simulator.h>

NSString *const MFMailComposeErrorDomain = @"MFMailComposeErrorDomain";

static NSMutableArray *sentMails(void) {
  static NSMutableArray *mails;
  if (!mails) mails = [[NSMutableArray alloc] init];
  return mails;
}

@implementation MFMailComposeViewController
@synthesize mailComposeDelegate = _mailComposeDelegate;

+ (BOOL)canSendMail {
  id account = [SimDeviceProfile() objectForKey:@"mailAccount"];
  return ![account respondsToSelector:@selector(boolValue)] || [account boolValue];
}
- (instancetype)init {
  // As on the device: without a mail account there is no composer to show.
  if (![[self class] canSendMail]) {
    [self release];
    return nil;
  }
  if ((self = [super initWithNibName:nil bundle:nil])) {
    _attachments = [[NSMutableArray alloc] init];
    UIViewController *page = [[[UIViewController alloc] init] autorelease];
    page.title = @"New Message";
    [self pushViewController:page animated:NO];
  }
  return self;
}
- (void)dealloc {
  [_subject release];
  [_toRecipients release];
  [_ccRecipients release];
  [_bccRecipients release];
  [_messageBody release];
  [_attachments release];
  [super dealloc];
}
- (void)setSubject:(NSString *)subject {
  NSString *copy = [subject copy];
  [_subject release];
  _subject = copy;
  self.topViewController.title = subject.length ? subject : @"New Message";
}
- (void)setToRecipients:(NSArray *)toRecipients {
  NSArray *copy = [toRecipients copy];
  [_toRecipients release];
  _toRecipients = copy;
}
- (void)setCcRecipients:(NSArray *)ccRecipients {
  NSArray *copy = [ccRecipients copy];
  [_ccRecipients release];
  _ccRecipients = copy;
}
- (void)setBccRecipients:(NSArray *)bccRecipients {
  NSArray *copy = [bccRecipients copy];
  [_bccRecipients release];
  _bccRecipients = copy;
}
- (void)setMessageBody:(NSString *)body isHTML:(BOOL)isHTML {
  NSString *copy = [body copy];
  [_messageBody release];
  _messageBody = copy;
  _messageBodyIsHTML = isHTML;
}
- (void)addAttachmentData:(NSData *)attachment mimeType:(NSString *)mimeType fileName:(NSString *)filename {
  if (attachment && mimeType && filename)
    [_attachments addObject:[NSArray arrayWithObjects:attachment, mimeType, filename, nil]];
}
- (NSString *)_simSubject {
  return _subject;
}
- (NSArray *)_simToRecipients {
  return _toRecipients;
}
- (NSString *)_simMessageBody {
  return _messageBody;
}
- (BOOL)_simMessageBodyIsHTML {
  return _messageBodyIsHTML;
}
@end

BOOL SimMailComposerFinish(MFMailComposeViewController *composer, MFMailComposeResult result) {
  if (!composer) return NO;
  [[composer retain] autorelease];
  if (result == MFMailComposeResultSent) {
    NSDictionary *mail = [NSDictionary
        dictionaryWithObjectsAndKeys:[composer _simSubject] ? [composer _simSubject] : @"", @"subject",
                                     [composer _simToRecipients] ? [composer _simToRecipients] : [NSArray array], @"to",
                                     [composer _simMessageBody] ? [composer _simMessageBody] : @"", @"body", nil];
    [sentMails() addObject:mail];
  }
  NSError *error = result == MFMailComposeResultFailed
                       ? [NSError errorWithDomain:MFMailComposeErrorDomain code:1 userInfo:nil]
                       : nil;
  id delegate = composer.mailComposeDelegate;
  if ([delegate respondsToSelector:@selector(mailComposeController:didFinishWithResult:error:)])
    [delegate mailComposeController:composer didFinishWithResult:result error:error];
  return YES;
}

NSArray *SimSentMails(void) { return [NSArray arrayWithArray:sentMails()]; }

void SimMailReset(void) { [sentMails() removeAllObjects]; }
