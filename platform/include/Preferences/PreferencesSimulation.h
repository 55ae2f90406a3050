/* The Settings application around the Preferences stand-in, and test and host hooks. Not
   part of the device's framework: product code never includes this header. */
#ifndef PREFERENCES_PREFERENCESSIMULATION_H
#define PREFERENCES_PREFERENCESSIMULATION_H

#import <Preferences/Preferences.h>
#import <UIKit/UIKitSimulation.h>

/* The Settings application: UIApplication's shared instance is of this class. */
@interface PreferencesAppController : UIApplication
/* The root navigation controller, made (with its window, key and visible, and its root list
   page) on first use. */
- (PSRootController *)rootController;
@end

/* The Settings root list page; its rows are set with SimSettingsSetRootSpecifiers. */
@interface PrefsListController : PSListController
@end

/* The iPad's Settings window: the list's navigation beside the pane's. */
@interface PSSplitViewController : UIViewController
/* The list's navigation controller, then the pane's. */
@property (nonatomic, copy) NSArray *viewControllers;
@end

/* Makes the Settings app's window, its navigation and root list page (once). Returns the
   pane navigation controller (the app's rootController), which holds the pages a row of the
   list opens; its rootListController is the Settings list. The list has a navigation
   controller of its own: on a phone the pane is pushed into it as one level above the list
   (so a pane page's navigation controller has a parent that can pop it); on an iPad the
   window shows a PSSplitViewController with the list beside the pane. */
UIKIT_EXTERN PSRootController *SimSettingsRootController(void);
/* The Settings window's root: the list's navigation controller, or the iPad's split view. */
UIKIT_EXTERN UIViewController *SimSettingsWindowRootController(void);
/* Rows of the Settings root list (for pages that read them). */
UIKIT_EXTERN void SimSettingsSetRootSpecifiers(NSArray *specifiers);
/* Drops the Settings window and its controllers (with SimUIKitReset). */
UIKIT_EXTERN void SimSettingsReset(void);

/* Taps a row of a list page as the user would: switches flip, buttons act, links push. */
UIKIT_EXTERN BOOL SimListControllerTapSpecifier(PSListController *controller, PSSpecifier *specifier);
/* Swipes a row of an editable list to the left and presses its delete button, as the user
   would: only rows whose editing style is delete can be; the commit goes through the
   table's data source (PSEditableListController: performDeletionActionForSpecifier:). */
UIKIT_EXTERN BOOL SimEditableListSwipeToDelete(PSListController *controller, PSSpecifier *specifier);
/* Types into a passcode field, one character at a time. */
UIKIT_EXTERN void SimPasscodeFieldType(PSPasscodeField *field, NSString *digits);
/* Types into an edit-text row as the user does: focuses its field, replaces the text,
   then ends editing with the return key (the row's setter runs when the text changed). */
UIKIT_EXTERN BOOL SimEditableCellType(PSEditableTableCell *cell, NSString *text);
/* Taps the link of a hyperlink footer. */
UIKIT_EXTERN BOOL SimFooterHyperlinkTap(PSFooterHyperlinkView *view);

#endif
