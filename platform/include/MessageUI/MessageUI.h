#import <MessageUI/MFMailComposeViewController.h>
