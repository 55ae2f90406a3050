#ifndef PREFERENCESUI_PSUIAPPLEIDACCOUNTDETAILSLINKCELL_H
#define PREFERENCESUI_PSUIAPPLEIDACCOUNTDETAILSLINKCELL_H

#import <Preferences/PSTableCell.h>

/* A link cell with a subtitle: the row's "cellSubtitleText" under its name. */
@interface PSUIAppleIDAccountDetailsLinkCell : PSTableCell
@end

#endif
