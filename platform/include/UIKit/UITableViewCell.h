#ifndef UIKIT_UITABLEVIEWCELL_H
#define UIKIT_UITABLEVIEWCELL_H

#import <UIKit/UIView.h>

@class UILabel;
@class UIImageView;
@class UIColor;

typedef NS_ENUM(NSInteger, UITableViewCellStyle) {
  UITableViewCellStyleDefault,
  UITableViewCellStyleValue1,
  UITableViewCellStyleValue2,
  UITableViewCellStyleSubtitle,
};

typedef NS_ENUM(NSInteger, UITableViewCellSeparatorStyle) {
  UITableViewCellSeparatorStyleNone,
  UITableViewCellSeparatorStyleSingleLine,
  UITableViewCellSeparatorStyleSingleLineEtched,
};

typedef NS_ENUM(NSInteger, UITableViewCellSelectionStyle) {
  UITableViewCellSelectionStyleNone,
  UITableViewCellSelectionStyleBlue,
  UITableViewCellSelectionStyleGray,
  UITableViewCellSelectionStyleDefault,
};

typedef NS_ENUM(NSInteger, UITableViewCellEditingStyle) {
  UITableViewCellEditingStyleNone,
  UITableViewCellEditingStyleDelete,
  UITableViewCellEditingStyleInsert,
};

typedef NS_ENUM(NSInteger, UITableViewCellAccessoryType) {
  UITableViewCellAccessoryNone,
  UITableViewCellAccessoryDisclosureIndicator,
  UITableViewCellAccessoryDetailDisclosureButton,
  UITableViewCellAccessoryCheckmark,
  UITableViewCellAccessoryDetailButton,
};

/* A table row. Its layout puts the image view at the left, the labels after it as the style
   wants, and the accessory at the right; a separator view (class _UITableViewCellSeparatorView)
   is a direct subview along the bottom edge. */
@interface UITableViewCell : UIView {
  UITableViewCellStyle _style;
  NSString *_reuseIdentifier;
  UIView *_contentView;
  UILabel *_textLabel;
  UILabel *_detailTextLabel;
  UIImageView *_imageView;
  UIView *_accessoryView;
  UIView *_editingAccessoryView;
  UITableViewCellAccessoryType _accessoryType;
  UITableViewCellAccessoryType _editingAccessoryType;
  UITableViewCellSelectionStyle _selectionStyle;
  UIView *_backgroundView;
  UIView *_selectedBackgroundView;
  BOOL _selected;
  BOOL _highlighted;
  BOOL _editing;
  BOOL _showsReorderControl;
  NSInteger _indentationLevel;
  CGFloat _indentationWidth;
  UIEdgeInsets _separatorInset;
  UIColor *_separatorColor;
  UIView *_separatorView;
  UITableViewCellSeparatorStyle _separatorStyle;
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier;
@property (nonatomic, readonly) UITableViewCellStyle style;
@property (nonatomic, readonly, copy) NSString *reuseIdentifier;
@property (nonatomic, readonly) UIView *contentView;
@property (nonatomic, readonly) UILabel *textLabel;
/* nil in the default style. */
@property (nonatomic, readonly) UILabel *detailTextLabel;
@property (nonatomic, readonly) UIImageView *imageView;
@property (nonatomic, retain) UIView *accessoryView;
@property (nonatomic, retain) UIView *editingAccessoryView;
@property (nonatomic) UITableViewCellAccessoryType accessoryType;
@property (nonatomic) UITableViewCellAccessoryType editingAccessoryType;
@property (nonatomic) UITableViewCellSelectionStyle selectionStyle;
@property (nonatomic, retain) UIView *backgroundView;
@property (nonatomic, retain) UIView *selectedBackgroundView;
@property (nonatomic, getter=isSelected) BOOL selected;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic, getter=isEditing) BOOL editing;
@property (nonatomic) BOOL showsReorderControl;
@property (nonatomic) NSInteger indentationLevel;
@property (nonatomic) CGFloat indentationWidth;
@property (nonatomic) UIEdgeInsets separatorInset;
- (void)setSelected:(BOOL)selected animated:(BOOL)animated;
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
- (void)prepareForReuse;
@end

#endif
