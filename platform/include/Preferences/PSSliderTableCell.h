#ifndef PREFERENCES_PSSLIDERTABLECELL_H
#define PREFERENCES_PSSLIDERTABLECELL_H

#import <Preferences/PSControlTableCell.h>

@interface PSSliderTableCell : PSControlTableCell
@end

#endif
