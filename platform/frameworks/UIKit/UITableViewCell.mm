#import "UIKitInternal.h"
#include <math.h>

@interface _UITableViewCellSeparatorView : UIView
@end
@implementation _UITableViewCellSeparatorView
@end

@implementation UITableViewCell
@synthesize style = _style;
@synthesize reuseIdentifier = _reuseIdentifier;
@synthesize editingAccessoryView = _editingAccessoryView;
@synthesize editingAccessoryType = _editingAccessoryType;
@synthesize selectionStyle = _selectionStyle;
@synthesize showsReorderControl = _showsReorderControl;
@synthesize indentationLevel = _indentationLevel;
@synthesize indentationWidth = _indentationWidth;
@synthesize separatorInset = _separatorInset;
@synthesize selectedBackgroundView = _selectedBackgroundView;
- (instancetype)initWithFrame:(CGRect)frame {
  return [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
}
- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier {
  CGFloat width = [UIScreen mainScreen].bounds.size.width;
  if ((self = [super initWithFrame:CGRectMake(0, 0, width, 44)])) {
    _style = style;
    _reuseIdentifier = [reuseIdentifier copy];
    _selectionStyle = UITableViewCellSelectionStyleDefault;
    _indentationWidth = 10;
    _separatorInset = UIEdgeInsetsMake(0, 15, 0, 0);
    _separatorStyle = UITableViewCellSeparatorStyleSingleLine;
    _contentView = [[UIView alloc] initWithFrame:self.bounds];
    [self addSubview:_contentView];
    _textLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    _textLabel.font = [UIFont systemFontOfSize:17];
    if (style != UITableViewCellStyleDefault) {
      _detailTextLabel = [[UILabel alloc] initWithFrame:CGRectZero];
      _detailTextLabel.font = [UIFont systemFontOfSize:style == UITableViewCellStyleSubtitle ? 12 : 17];
      if (style == UITableViewCellStyleValue1) _detailTextLabel.textColor = [UIColor secondaryLabelColor];
      if (style == UITableViewCellStyleValue2) _textLabel.textColor = [UIColor systemBlueColor];
    }
    _imageView = [[UIImageView alloc] initWithFrame:CGRectZero];
    [_contentView addSubview:_imageView];
    [_contentView addSubview:_textLabel];
    if (_detailTextLabel) [_contentView addSubview:_detailTextLabel];
    _separatorView = [[_UITableViewCellSeparatorView alloc] initWithFrame:CGRectZero];
    [self addSubview:_separatorView];
    self.backgroundColor = [UIColor secondarySystemGroupedBackgroundColor];
  }
  return self;
}
- (void)dealloc {
  [_reuseIdentifier release];
  [_contentView release];
  [_textLabel release];
  [_detailTextLabel release];
  [_imageView release];
  [_accessoryView release];
  [_editingAccessoryView release];
  [_backgroundView release];
  [_selectedBackgroundView release];
  [_separatorColor release];
  [_separatorView release];
  [super dealloc];
}

#pragma mark - Subviews

- (UIView *)contentView {
  return _contentView;
}
- (UILabel *)textLabel {
  return _textLabel;
}
- (UILabel *)detailTextLabel {
  return _detailTextLabel;
}
- (UIImageView *)imageView {
  return _imageView;
}
- (UIView *)accessoryView {
  return _accessoryView;
}
- (void)setAccessoryView:(UIView *)view {
  if (view == _accessoryView) return;
  [_accessoryView removeFromSuperview];
  [_accessoryView release];
  _accessoryView = [view retain];
  if (view) [self addSubview:view];
  [self setNeedsLayout];
}
- (UITableViewCellAccessoryType)accessoryType {
  return _accessoryType;
}
- (void)setAccessoryType:(UITableViewCellAccessoryType)type {
  _accessoryType = type;
  [self setNeedsLayout];
}
- (UIView *)backgroundView {
  return _backgroundView;
}
- (void)setBackgroundView:(UIView *)view {
  if (view == _backgroundView) return;
  [_backgroundView removeFromSuperview];
  [_backgroundView release];
  _backgroundView = [view retain];
  if (view) [self insertSubview:view atIndex:0];
  [self setNeedsLayout];
}
- (UIColor *)separatorColor {
  return _separatorColor;
}
- (void)setSeparatorColor:(UIColor *)color {
  [color retain];
  [_separatorColor release];
  _separatorColor = color;
  [self setNeedsLayout];
}

#pragma mark - State

- (BOOL)isSelected {
  return _selected;
}
- (void)setSelected:(BOOL)selected {
  [self setSelected:selected animated:NO];
}
- (void)setSelected:(BOOL)selected animated:(BOOL)animated {
  _selected = selected;
}
- (BOOL)isHighlighted {
  return _highlighted;
}
- (void)setHighlighted:(BOOL)highlighted {
  [self setHighlighted:highlighted animated:NO];
}
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated {
  _highlighted = highlighted;
}
- (BOOL)isEditing {
  return _editing;
}
- (void)setEditing:(BOOL)editing {
  [self setEditing:editing animated:NO];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  _editing = editing;
  [self setNeedsLayout];
}
- (void)prepareForReuse {
}

#pragma mark - Layout

- (UITableView *)_simTableView {
  UIView *v = self.superview;
  while (v && ![v isKindOfClass:[UITableView class]]) v = v.superview;
  return (UITableView *)v;
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGRect b = self.bounds;
  CGFloat w = b.size.width, h = b.size.height, margin = 15;
  UIView *accessory = _editing && _editingAccessoryView ? _editingAccessoryView : _accessoryView;
  CGFloat accessoryWidth = 0;
  if (accessory) {
    CGSize a = accessory.frame.size;
    accessoryWidth = a.width + margin;
    accessory.frame = CGRectMake(w - margin - a.width, floor((h - a.height) / 2), a.width, a.height);
  } else if (_accessoryType != UITableViewCellAccessoryNone) {
    accessoryWidth = 33;
  }
  CGFloat indent = _indentationLevel * _indentationWidth + (_editing ? 38 : 0);
  _contentView.frame = CGRectMake(indent, 0, w - accessoryWidth - indent, h);
  _backgroundView.frame = b;
  CGFloat cw = _contentView.bounds.size.width;
  CGFloat x = margin;
  UIImage *image = _imageView.image;
  if (image) {
    CGSize s = image.size;
    if (s.height > h) s = CGSizeMake(s.width * h / s.height, h);
    _imageView.frame = CGRectMake(margin, floor((h - s.height) / 2), s.width, s.height);
    x = margin + s.width + margin;
  } else {
    _imageView.frame = CGRectZero;
  }
  CGFloat available = fmax(cw - x - margin, 0);
  CGSize t = [_textLabel sizeThatFits:CGSizeMake(available, h)];
  CGSize d = _detailTextLabel ? [_detailTextLabel sizeThatFits:CGSizeMake(available, h)] : CGSizeZero;
  switch (_style) {
    case UITableViewCellStyleDefault:
      _textLabel.frame = CGRectMake(x, 0, available, h);
      break;
    case UITableViewCellStyleValue1: {
      // The title keeps its width and the detail gives way; each label is as high as its text,
      // centred in the row, as UIKit lays the two out.
      CGFloat tw = fmin(t.width, available);
      CGFloat dw = fmin(d.width, fmax(available - tw - 8, 0));
      _detailTextLabel.frame = CGRectMake(cw - margin - dw, floor((h - d.height) / 2), dw, d.height);
      _textLabel.frame = CGRectMake(x, floor((h - t.height) / 2), fmax(available - (dw > 0 ? dw + 8 : 0), 0), t.height);
      break;
    }
    case UITableViewCellStyleValue2:
      _textLabel.frame = CGRectMake(x, 0, 67, h);
      _detailTextLabel.frame = CGRectMake(x + 73, 0, fmax(available - 73, 0), h);
      break;
    case UITableViewCellStyleSubtitle: {
      CGFloat total = t.height + d.height, y = floor((h - total) / 2);
      _textLabel.frame = CGRectMake(x, y, available, t.height);
      _detailTextLabel.frame = CGRectMake(x, y + t.height, available, d.height);
      break;
    }
  }
  // Right to left, UIKit lays the cell out mirrored: accessory on the left, image on the right.
  if ([self effectiveUserInterfaceLayoutDirection] == UIUserInterfaceLayoutDirectionRightToLeft) {
    for (UIView *view in @[ accessory ?: [NSNull null], _contentView ]) {
      if (![view isKindOfClass:[UIView class]]) continue;
      CGRect f = view.frame;
      view.frame = CGRectMake(w - CGRectGetMaxX(f), f.origin.y, f.size.width, f.size.height);
    }
    for (UIView *view in @[ _imageView, _textLabel, _detailTextLabel ?: [NSNull null] ]) {
      if (![view isKindOfClass:[UIView class]]) continue;
      CGRect f = view.frame;
      if (!CGRectIsEmpty(f)) view.frame = CGRectMake(cw - CGRectGetMaxX(f), f.origin.y, f.size.width, f.size.height);
    }
  }
  UITableView *table = [self _simTableView];
  UIColor *separator = _separatorColor ? _separatorColor : table.separatorColor;
  if (!separator) separator = [UIColor separatorColor];
  CGFloat line = 1.0 / [UIScreen mainScreen].scale;
  _separatorView.backgroundColor = separator;
  _separatorView.frame =
      CGRectMake(_separatorInset.left, h - line, fmax(w - _separatorInset.left - _separatorInset.right, 0), line);
  _separatorView.hidden = table && table.separatorStyle == UITableViewCellSeparatorStyleNone;
  [self bringSubviewToFront:_separatorView];
}

#pragma mark - Touches

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  UITableView *table = [self _simTableView];
  NSIndexPath *path = [table indexPathForCell:self];
  if (path)
    SimTableViewSelectRow(table, path);
  else
    [super touchesEnded:touches withEvent:event];
}
@end
