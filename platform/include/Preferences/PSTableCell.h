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
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier;
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic) PSCellType type;
@property (nonatomic, assign) id cellTarget;
@property (nonatomic) SEL cellAction;
@property (nonatomic, getter=isChecked) BOOL checked;
@property (nonatomic) BOOL cellEnabled;
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

#endif
