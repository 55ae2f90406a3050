#ifndef PREFERENCES_PSSWITCHTABLECELL_H
#define PREFERENCES_PSSWITCHTABLECELL_H

#import <Preferences/PSTableCell.h>

/* A switch row: `control` is a UISwitch; setValue: turns it on or off; switching it sends
   the new value to the row's setter. */
@interface PSSwitchTableCell : PSControlTableCell {
  id _activityIndicator;
}
@end

/* A switch row with a subtitle taken from the row's "cellSubtitleText". */
@interface PSSubtitleSwitchTableCell : PSSwitchTableCell
@end

#endif
