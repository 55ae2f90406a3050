#import <Preferences/PSTableCell.h>
