#ifndef PREFERENCES_PSCONTROLTABLECELL_H
#define PREFERENCES_PSCONTROLTABLECELL_H

#import <Preferences/PSTableCell.h>

/* A cell with a control at the right (the accessory view). */
@interface PSControlTableCell : PSTableCell {
  UIControl *_control;
}
@property (nonatomic, retain) UIControl *control;
- (UIControl *)newControl;
- (void)controlChanged:(id)sender;
- (id)controlValue;
@end

#endif
