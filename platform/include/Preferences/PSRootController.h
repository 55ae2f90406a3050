#ifndef PREFERENCES_PSROOTCONTROLLER_H
#define PREFERENCES_PSROOTCONTROLLER_H

#import <UIKit/UIKit.h>

/* The Settings app's root navigation controller. */
@interface PSRootController : UINavigationController {
  id _rootListController;
}
/* The Settings app's root list page (class PrefsListController). */
- (id)rootListController;
- (void)setRootListController:(id)controller;
@end

#endif
