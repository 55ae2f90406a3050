#import "core/Alerts.h"
#import "core/PlatformAPI.h"

void showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(NSString *title, NSString *message,
                                                                            NSArray *actions,
                                                                            UIViewController *presenter,
                                                                            UIAlertControllerStyle style) {
  // The block copies retain what it captures until it has run.
  dispatch_async(dispatch_get_main_queue(), ^{
    UIAlertController *alert = [UIAlertController alertControllerWithTitle:title message:message preferredStyle:style];
    for (UIAlertAction *action in actions) [alert addAction:action];
    [presenter presentViewController:alert animated:YES completion:nil];
  });
}
