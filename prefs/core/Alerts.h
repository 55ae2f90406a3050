#pragma once
#import "core/PlatformAPI.h"

// Plain C entry points, so tools and tests can find them by name.
#ifdef __cplusplus
extern "C" {
#endif

// Returns at once; on the main queue builds the alert with the actions in order and
// presents it, animated, from `presenter`. Callable from any thread.
void showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(NSString *title, NSString *message,
                                                                            NSArray *actions,
                                                                            UIViewController *presenter,
                                                                            UIAlertControllerStyle style);

#ifdef __cplusplus
}
#endif
