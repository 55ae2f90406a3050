#ifndef PREFERENCES_PSEDITABLETABLECELL_H
#define PREFERENCES_PSEDITABLETABLECELL_H

#import <Preferences/PSTableCell.h>

/* A text entry row: the text field shows and edits the row's value. */
@interface PSEditableTableCell : PSTableCell <UITextFieldDelegate> {
  UITextField *_textField;
  id _delegate;
  BOOL _valueChanged;
}
- (UITextField *)textField;
- (UITextField *)editableTextField;
@property (nonatomic, assign) id delegate;
@end

#endif
