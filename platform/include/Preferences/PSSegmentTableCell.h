#ifndef PREFERENCES_PSSEGMENTTABLECELL_H
#define PREFERENCES_PSSEGMENTTABLECELL_H

#import <Preferences/PSControlTableCell.h>

@interface PSSegmentTableCell : PSControlTableCell
@end

#endif
