#import "UIKitInternal.h"
#include <math.h>

static NSNumber *stateKey(UIControlState state) { return [NSNumber numberWithUnsignedInteger:state]; }

@implementation UIButton
@synthesize buttonType = _buttonType;
@synthesize contentEdgeInsets = _contentEdgeInsets;
@synthesize titleEdgeInsets = _titleEdgeInsets;
@synthesize imageEdgeInsets = _imageEdgeInsets;
@synthesize adjustsImageWhenHighlighted = _adjustsImageWhenHighlighted;
@synthesize showsTouchWhenHighlighted = _showsTouchWhenHighlighted;
+ (instancetype)buttonWithType:(UIButtonType)type {
  UIButton *b = [[[self alloc] initWithFrame:CGRectZero] autorelease];
  b->_buttonType = type;
  if (type == UIButtonTypeSystem) [b setTitleColor:[UIColor systemBlueColor] forState:UIControlStateNormal];
  if (type == UIButtonTypeInfoLight || type == UIButtonTypeInfoDark || type == UIButtonTypeDetailDisclosure ||
      type == UIButtonTypeContactAdd)
    b.frame = CGRectMake(0, 0, 22, 22);
  return b;
}
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _titles = [[NSMutableDictionary alloc] init];
    _titleColors = [[NSMutableDictionary alloc] init];
    _images = [[NSMutableDictionary alloc] init];
    _backgroundImages = [[NSMutableDictionary alloc] init];
    _titleLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    _titleLabel.font = [UIFont systemFontOfSize:[UIFont buttonFontSize]];
    _titleLabel.textAlignment = NSTextAlignmentCenter;
    _imageView = [[UIImageView alloc] initWithFrame:CGRectZero];
    _adjustsImageWhenHighlighted = YES;
    [self addSubview:_imageView];
    [self addSubview:_titleLabel];
    [_titleColors setObject:[UIColor whiteColor] forKey:stateKey(UIControlStateNormal)];
  }
  return self;
}
- (void)dealloc {
  [_titles release];
  [_titleColors release];
  [_images release];
  [_backgroundImages release];
  [_titleLabel release];
  [_imageView release];
  [super dealloc];
}

#pragma mark - Content per state

- (UILabel *)titleLabel {
  return _titleLabel;
}
- (UIImageView *)imageView {
  return _imageView;
}
- (id)_simValueIn:(NSDictionary *)d state:(UIControlState)state {
  id v = [d objectForKey:stateKey(state)];
  return v ? v : [d objectForKey:stateKey(UIControlStateNormal)];
}
- (void)_simRefresh {
  UIControlState s = self.state;
  _titleLabel.text = [self _simValueIn:_titles state:s];
  _titleLabel.textColor = [self _simValueIn:_titleColors state:s];
  _imageView.image = [self _simValueIn:_images state:s];
  [self setNeedsLayout];
}
- (void)setTitle:(NSString *)title forState:(UIControlState)state {
  if (title)
    [_titles setObject:[[title copy] autorelease] forKey:stateKey(state)];
  else
    [_titles removeObjectForKey:stateKey(state)];
  [self _simRefresh];
}
- (void)setAttributedTitle:(NSAttributedString *)title forState:(UIControlState)state {
  [self setTitle:[title string] forState:state];
}
- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state {
  if (color)
    [_titleColors setObject:color forKey:stateKey(state)];
  else
    [_titleColors removeObjectForKey:stateKey(state)];
  [self _simRefresh];
}
- (void)setImage:(UIImage *)image forState:(UIControlState)state {
  if (image)
    [_images setObject:image forKey:stateKey(state)];
  else
    [_images removeObjectForKey:stateKey(state)];
  [self _simRefresh];
}
- (void)setBackgroundImage:(UIImage *)image forState:(UIControlState)state {
  if (image)
    [_backgroundImages setObject:image forKey:stateKey(state)];
  else
    [_backgroundImages removeObjectForKey:stateKey(state)];
}
- (NSString *)titleForState:(UIControlState)state {
  return [self _simValueIn:_titles state:state];
}
- (UIColor *)titleColorForState:(UIControlState)state {
  return [self _simValueIn:_titleColors state:state];
}
- (UIImage *)imageForState:(UIControlState)state {
  return [self _simValueIn:_images state:state];
}
- (UIImage *)backgroundImageForState:(UIControlState)state {
  return [self _simValueIn:_backgroundImages state:state];
}
- (NSString *)currentTitle {
  return [self titleForState:self.state];
}
- (UIColor *)currentTitleColor {
  return [self titleColorForState:self.state];
}
- (UIImage *)currentImage {
  return [self imageForState:self.state];
}
- (void)setHighlighted:(BOOL)highlighted {
  [super setHighlighted:highlighted];
  [self _simRefresh];
}
- (void)setSelected:(BOOL)selected {
  [super setSelected:selected];
  [self _simRefresh];
}
- (void)setEnabled:(BOOL)enabled {
  [super setEnabled:enabled];
  [self _simRefresh];
}

#pragma mark - Layout

- (CGSize)sizeThatFits:(CGSize)size {
  CGSize t = [_titleLabel sizeThatFits:size];
  CGSize i = _imageView.image ? _imageView.image.size : CGSizeZero;
  return CGSizeMake(t.width + i.width + _contentEdgeInsets.left + _contentEdgeInsets.right,
                    fmax(fmax(t.height, i.height), 0) + _contentEdgeInsets.top + _contentEdgeInsets.bottom);
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGRect b = UIEdgeInsetsInsetRect(self.bounds, _contentEdgeInsets);
  CGSize i = _imageView.image ? _imageView.image.size : CGSizeZero;
  CGSize t = [_titleLabel sizeThatFits:b.size];
  CGFloat total = i.width + t.width, x = b.origin.x + (b.size.width - total) / 2;
  _imageView.frame = CGRectMake(x, b.origin.y + (b.size.height - i.height) / 2, i.width, i.height);
  _titleLabel.frame = CGRectMake(x + i.width, b.origin.y + (b.size.height - t.height) / 2, t.width, t.height);
}
@end
