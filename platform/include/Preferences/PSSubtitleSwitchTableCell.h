#import <Preferences/PSSwitchTableCell.h>
