#ifndef PREFERENCES_PSSWITCHTABLECELL_H
#define PREFERENCES_PSSWITCHTABLECELL_H

#import <Preferences/PSControlTableCell.h>

/* A switch row: `control` is a UISwitch; setValue: turns it on or off; switching it sends
   the new value to the row's setter. */
@interface PSSwitchTableCell : PSControlTableCell {
  id _activityIndicator;
}
@end

#endif
