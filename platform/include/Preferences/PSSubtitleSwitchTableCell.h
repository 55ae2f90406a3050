#ifndef PREFERENCES_PSSUBTITLESWITCHTABLECELL_H
#define PREFERENCES_PSSUBTITLESWITCHTABLECELL_H

#import <Preferences/PSSwitchTableCell.h>

/* A switch row with a subtitle taken from the row's "cellSubtitleText". */
@interface PSSubtitleSwitchTableCell : PSSwitchTableCell
@end

#endif
