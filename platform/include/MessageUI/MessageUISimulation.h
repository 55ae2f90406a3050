/* Test and host hooks of the MessageUI stand-in. Not part of the device's framework:
   product code never includes this header. */
#ifndef MESSAGEUI_MESSAGEUISIMULATION_H
#define MESSAGEUI_MESSAGEUISIMULATION_H

#import <MessageUI/MessageUI.h>

/* What the composer was given. */
@interface MFMailComposeViewController (Simulation)
- (NSString *)_simSubject;
- (NSArray *)_simToRecipients;
- (NSString *)_simMessageBody;
- (BOOL)_simMessageBodyIsHTML;
@end

/* The user's answer to a composer: sends, saves a draft, cancels, or sending fails.
   Tells the composer's delegate (a failure with an error of MFMailComposeErrorDomain);
   the delegate dismisses the composer. Returns NO when `composer` is nil. */
UIKIT_EXTERN BOOL SimMailComposerFinish(MFMailComposeViewController *composer, MFMailComposeResult result);
/* Messages sent so far by any composer of this process, oldest first: dictionaries with
   "subject", "to" (array), "body". Cleared with SimMailReset. */
UIKIT_EXTERN NSArray *SimSentMails(void);
UIKIT_EXTERN void SimMailReset(void);

#endif
