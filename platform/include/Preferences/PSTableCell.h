#ifndef PREFERENCES_PSTABLECELL_H
#define PREFERENCES_PSTABLECELL_H

#import <UIKit/UIKit.h>
#import <Preferences/PSSpecifier.h>

/* A row's cell. refreshCellContentsWithSpecifier: takes the title, icon, enabled state and
   accessory from the row; the value comes through setValue:. */
@interface PSTableCell : UITableViewCell {
  PSSpecifier *_specifier;
  PSCellType _type;
  id _value;
  BOOL _cellEnabled;
  BOOL _checked;
  BOOL _shouldHideTitle;
  id _cellTarget;
  SEL _cellAction;
  SEL _pAction;
  id _pTarget;
  UILabel *_valueLabel;
}
+ (PSCellType)cellTypeFromString:(NSString *)cellType;
+ (NSString *)stringFromCellType:(PSCellType)cellType;
+ (NSString *)reuseIdentifierForSpecifier:(PSSpecifier *)specifier;
+ (NSString *)reuseIdentifierForClassAndType:(PSCellType)cellType;
+ (UITableViewCellStyle)cellStyle;
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier specifier:(PSSpecifier *)specifier;
@property(nonatomic, retain) PSSpecifier *specifier;
@property(nonatomic) PSCellType type;
@property(nonatomic, assign) id cellTarget;
@property(nonatomic) SEL cellAction;
@property(nonatomic, getter=isChecked) BOOL checked;
@property(nonatomic) BOOL cellEnabled;
- (void)setCellEnabled:(BOOL)enabled;
- (UILabel *)titleLabel;
- (UILabel *)valueLabel;
- (UIImageView *)iconImageView;
- (void)setIcon:(UIImage *)icon;
- (void)setTitle:(NSString *)title;
- (void)setValue:(id)value;
- (id)value;
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier;
- (void)reloadWithSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (BOOL)canReload;
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(UITableView *)tableView;
@end

/* A cell with a control at the right (the accessory view). */
@interface PSControlTableCell : PSTableCell {
  UIControl *_control;
}
@property(nonatomic, retain) UIControl *control;
- (UIControl *)newControl;
- (void)controlChanged:(id)sender;
- (id)controlValue;
@end

/* A text entry row: the text field shows and edits the row's value. */
@interface PSEditableTableCell : PSTableCell <UITextFieldDelegate> {
  UITextField *_textField;
  id _delegate;
  BOOL _valueChanged;
}
- (UITextField *)textField;
- (UITextField *)editableTextField;
@property(nonatomic, assign) id delegate;
@end

// The slider of a slider row: with "isSegmented" it is segmented into "segmentCount" equal
// steps between its minimum and maximum and its value locks to the nearest step, so a row
// from 1 to 10 in 9 segments only ever stores whole numbers (as the class-dump of iOS 12's
// Preferences shows it: segmented, segmentCount, locksToSegment, snapsToSegment).
@interface PSSegmentableSlider : UISlider {
  BOOL _segmented;
  BOOL _locksToSegment;
  BOOL _snapsToSegment;
  unsigned long long _segmentCount;
}
@property(nonatomic, assign, getter=isSegmented) BOOL segmented;
@property(nonatomic, assign) BOOL locksToSegment;
@property(nonatomic, assign) BOOL snapsToSegment;
@property(nonatomic, assign) unsigned long long segmentCount;
@end

@interface PSSliderTableCell : PSControlTableCell
@end

@interface PSSegmentTableCell : PSControlTableCell
@end

#endif
