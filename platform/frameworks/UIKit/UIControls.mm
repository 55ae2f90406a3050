// Labels, image views, controls, buttons, switches, sliders, segmented controls, text fields,
// scroll views and text views.
#import <UIKit/UIKitSimulation.h>
#include <math.h>

#import "UIKitInternal.h"

@implementation UILabel
@synthesize highlightedTextColor = _highlightedTextColor;
@synthesize shadowColor = _shadowColor;
@synthesize shadowOffset = _shadowOffset;
@synthesize lineBreakMode = _lineBreakMode;
@synthesize enabled = _enabled;
@synthesize highlighted = _highlighted;
@synthesize adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth;
@synthesize minimumScaleFactor = _minimumScaleFactor;
@synthesize preferredMaxLayoutWidth = _preferredMaxLayoutWidth;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _font = [[UIFont systemFontOfSize:17] retain];
    _textColor = [[UIColor labelColor] retain];
    _textAlignment = NSTextAlignmentNatural;
    _lineBreakMode = NSLineBreakByTruncatingTail;
    _numberOfLines = 1;
    _enabled = YES;
    _shadowOffset = CGSizeMake(0, -1);
    self.userInteractionEnabled = NO;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_attributedText release];
  [_font release];
  [_textColor release];
  [_highlightedTextColor release];
  [_shadowColor release];
  [super dealloc];
}
- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  if (text == _text) return;
  NSString *copy = [text copy];
  [_text release];
  _text = copy;
  [_attributedText release];
  _attributedText = copy ? [[NSAttributedString alloc] initWithString:copy] : nil;
  [self setNeedsDisplay];
}
- (NSAttributedString *)attributedText {
  return _attributedText;
}
- (void)setAttributedText:(NSAttributedString *)attributedText {
  NSAttributedString *copy = [attributedText copy];
  [_attributedText release];
  _attributedText = copy;
  [_text release];
  _text = [[copy string] copy];
  if (copy.length) {
    NSDictionary *attrs = [copy attributesAtIndex:0 effectiveRange:NULL];
    UIFont *font = [attrs objectForKey:NSFontAttributeName];
    UIColor *color = [attrs objectForKey:NSForegroundColorAttributeName];
    NSParagraphStyle *style = [attrs objectForKey:NSParagraphStyleAttributeName];
    if ([font isKindOfClass:[UIFont class]]) self.font = font;
    if ([color isKindOfClass:[UIColor class]]) self.textColor = color;
    if ([style isKindOfClass:[NSParagraphStyle class]]) _textAlignment = style.alignment;
  }
}
- (UIFont *)font {
  return _font;
}
- (void)setFont:(UIFont *)font {
  if (!font) font = [UIFont systemFontOfSize:17];
  [font retain];
  [_font release];
  _font = font;
}
- (UIColor *)textColor {
  return _textColor;
}
- (void)setTextColor:(UIColor *)color {
  if (!color) color = [UIColor labelColor];
  [color retain];
  [_textColor release];
  _textColor = color;
}
- (NSTextAlignment)textAlignment {
  return _textAlignment;
}
- (void)setTextAlignment:(NSTextAlignment)a {
  _textAlignment = a;
}
- (NSInteger)numberOfLines {
  return _numberOfLines;
}
- (void)setNumberOfLines:(NSInteger)n {
  _numberOfLines = n;
}
- (CGSize)sizeThatFits:(CGSize)size {
  CGFloat maxWidth = _numberOfLines == 1 ? 0 : size.width;
  return SimUIKitTextSize(_text, _font, maxWidth, _numberOfLines);
}
- (CGSize)intrinsicContentSize {
  return SimUIKitTextSize(_text, _font, _preferredMaxLayoutWidth, _numberOfLines);
}
- (CGRect)textRectForBounds:(CGRect)bounds limitedToNumberOfLines:(NSInteger)n {
  CGSize s = SimUIKitTextSize(_text, _font, bounds.size.width, n);
  return CGRectMake(bounds.origin.x, bounds.origin.y, fmin(s.width, bounds.size.width), fmin(s.height, bounds.size.height));
}
- (void)drawTextInRect:(CGRect)rect {
  if (_text.length) [_text drawInRect:rect withAttributes:[NSDictionary dictionaryWithObject:_font forKey:NSFontAttributeName]];
}
- (void)drawRect:(CGRect)rect {
  [self drawTextInRect:rect];
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<%@: %p; frame = %@; text = '%@'>", NSStringFromClass([self class]), (void *)self,
                                    NSStringFromCGRect(self.frame), _text];
}
@end

@implementation UIImageView
@synthesize highlightedImage = _highlightedImage;
@synthesize highlighted = _highlighted;
@synthesize animationImages = _animationImages;
@synthesize animationDuration = _animationDuration;
@synthesize animationRepeatCount = _animationRepeatCount;
@synthesize animating = _animating;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) self.userInteractionEnabled = NO;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image {
  CGSize s = image ? image.size : CGSizeZero;
  if ((self = [self initWithFrame:CGRectMake(0, 0, s.width, s.height)])) self.image = image;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image highlightedImage:(UIImage *)highlightedImage {
  if ((self = [self initWithImage:image])) self.highlightedImage = highlightedImage;
  return self;
}
- (void)dealloc {
  [_image release];
  [_highlightedImage release];
  [_animationImages release];
  [super dealloc];
}
- (UIImage *)image {
  return _image;
}
- (void)setImage:(UIImage *)image {
  if (image == _image) return;
  [image retain];
  [_image release];
  _image = image;
  self.layer.contents = (id)image.CGImage;
}
- (CGSize)sizeThatFits:(CGSize)size {
  return _image ? _image.size : CGSizeZero;
}
- (CGSize)intrinsicContentSize {
  return _image ? _image.size : CGSizeMake(UIViewNoIntrinsicMetric, UIViewNoIntrinsicMetric);
}
- (void)startAnimating {
  _animating = _animationImages.count > 0;
}
- (void)stopAnimating {
  _animating = NO;
}
@end

// Controls.

@implementation UIControl
@synthesize tracking = _tracking;
@synthesize contentHorizontalAlignment = _contentHorizontalAlignment;
@synthesize contentVerticalAlignment = _contentVerticalAlignment;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _targetActions = [[NSMutableArray alloc] init];
    _enabled = YES;
  }
  return self;
}
- (void)dealloc {
  [_targetActions release];
  [super dealloc];
}
- (BOOL)isEnabled {
  return _enabled;
}
- (void)setEnabled:(BOOL)enabled {
  _enabled = enabled;
}
- (BOOL)isSelected {
  return _selected;
}
- (void)setSelected:(BOOL)selected {
  _selected = selected;
}
- (BOOL)isHighlighted {
  return _highlighted;
}
- (void)setHighlighted:(BOOL)highlighted {
  _highlighted = highlighted;
}
- (BOOL)isTouchInside {
  return _tracking;
}
- (UIControlState)state {
  UIControlState s = UIControlStateNormal;
  if (_highlighted) s |= UIControlStateHighlighted;
  if (!_enabled) s |= UIControlStateDisabled;
  if (_selected) s |= UIControlStateSelected;
  return s;
}
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  if (!action) return;
  for (NSMutableArray *entry in _targetActions) {
    if ([[entry objectAtIndex:0] nonretainedObjectValue] == target &&
        [[entry objectAtIndex:1] isEqualToString:NSStringFromSelector(action)]) {
      NSUInteger merged = [[entry objectAtIndex:2] unsignedIntegerValue] | events;
      [entry replaceObjectAtIndex:2 withObject:[NSNumber numberWithUnsignedInteger:merged]];
      return;
    }
  }
  [_targetActions addObject:[NSMutableArray arrayWithObjects:[NSValue valueWithNonretainedObject:target],
                                                             NSStringFromSelector(action),
                                                             [NSNumber numberWithUnsignedInteger:events], nil]];
}
- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  for (NSMutableArray *entry in [[_targetActions copy] autorelease]) {
    if (target && [[entry objectAtIndex:0] nonretainedObjectValue] != target) continue;
    if (action && ![[entry objectAtIndex:1] isEqualToString:NSStringFromSelector(action)]) continue;
    NSUInteger left = [[entry objectAtIndex:2] unsignedIntegerValue] & ~events;
    if (left)
      [entry replaceObjectAtIndex:2 withObject:[NSNumber numberWithUnsignedInteger:left]];
    else
      [_targetActions removeObjectIdenticalTo:entry];
  }
}
- (NSSet *)allTargets {
  NSMutableSet *set = [NSMutableSet set];
  for (NSArray *entry in _targetActions) {
    id t = [[entry objectAtIndex:0] nonretainedObjectValue];
    [set addObject:t ? t : (id)[NSNull null]];
  }
  return set;
}
- (UIControlEvents)allControlEvents {
  NSUInteger all = 0;
  for (NSArray *entry in _targetActions) all |= [[entry objectAtIndex:2] unsignedIntegerValue];
  return all;
}
- (NSArray *)actionsForTarget:(id)target forControlEvent:(UIControlEvents)event {
  NSMutableArray *out = [NSMutableArray array];
  for (NSArray *entry in _targetActions)
    if ([[entry objectAtIndex:0] nonretainedObjectValue] == target && ([[entry objectAtIndex:2] unsignedIntegerValue] & event))
      [out addObject:[entry objectAtIndex:1]];
  return out.count ? out : nil;
}
- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event {
  [[UIApplication sharedApplication] sendAction:action to:target from:self forEvent:event];
}
- (void)sendActionsForControlEvents:(UIControlEvents)events {
  [[self retain] autorelease];
  for (NSArray *entry in [[_targetActions copy] autorelease]) {
    if (!([[entry objectAtIndex:2] unsignedIntegerValue] & events)) continue;
    [self sendAction:NSSelectorFromString([entry objectAtIndex:1]) to:[[entry objectAtIndex:0] nonretainedObjectValue]
            forEvent:nil];
  }
}
- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
  return YES;
}
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event {
}
- (void)cancelTrackingWithEvent:(UIEvent *)event {
}
- (void)_simTapped {
}
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
  if (!_enabled) return;
  _tracking = [self beginTrackingWithTouch:[touches anyObject] withEvent:event];
  self.highlighted = YES;
  [self sendActionsForControlEvents:UIControlEventTouchDown];
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  if (!_enabled) return;
  self.highlighted = NO;
  UITouch *touch = [touches anyObject];
  BOOL inside = [self pointInside:[touch locationInView:self] withEvent:event];
  if (_tracking) [self endTrackingWithTouch:touch withEvent:event];
  _tracking = NO;
  if (inside) {
    [self _simTapped];
    [self sendActionsForControlEvents:UIControlEventTouchUpInside | UIControlEventPrimaryActionTriggered];
  } else {
    [self sendActionsForControlEvents:UIControlEventTouchUpOutside];
  }
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
  self.highlighted = NO;
  if (_tracking) [self cancelTrackingWithEvent:event];
  _tracking = NO;
  [self sendActionsForControlEvents:UIControlEventTouchCancel];
}
@end

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

@implementation UISwitch
@synthesize onTintColor = _onTintColor;
@synthesize thumbTintColor = _thumbTintColor;
- (instancetype)initWithFrame:(CGRect)frame {
  frame.size = CGSizeMake(51, 31);
  return [super initWithFrame:frame];
}
- (void)dealloc {
  [_onTintColor release];
  [_thumbTintColor release];
  [super dealloc];
}
- (void)setFrame:(CGRect)frame {
  frame.size = CGSizeMake(51, 31);
  [super setFrame:frame];
}
- (BOOL)isOn {
  return _on;
}
- (void)setOn:(BOOL)on {
  _on = on;
}
- (void)setOn:(BOOL)on animated:(BOOL)animated {
  self.on = on;
}
- (CGSize)sizeThatFits:(CGSize)size {
  return CGSizeMake(51, 31);
}
- (void)_simTapped {
  [self setOn:!_on animated:YES];
  [self sendActionsForControlEvents:UIControlEventValueChanged];
}
@end

@implementation UISlider
@synthesize minimumValue = _minimumValue;
@synthesize maximumValue = _maximumValue;
@synthesize continuous = _continuous;
@synthesize minimumTrackTintColor = _minimumTrackTintColor;
@synthesize maximumTrackTintColor = _maximumTrackTintColor;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _maximumValue = 1;
    _continuous = YES;
  }
  return self;
}
- (void)dealloc {
  [_minimumTrackTintColor release];
  [_maximumTrackTintColor release];
  [super dealloc];
}
- (float)value {
  return _value;
}
- (void)setValue:(float)value {
  _value = value < _minimumValue ? _minimumValue : value > _maximumValue ? _maximumValue : value;
}
- (void)setValue:(float)value animated:(BOOL)animated {
  self.value = value;
}
@end

BOOL SimSliderDrag(UISlider *slider, float value) {
  if (![slider isKindOfClass:[UISlider class]] || !slider.enabled || !slider.userInteractionEnabled ||
      [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return NO;
  [slider setValue:value animated:NO];
  [slider sendActionsForControlEvents:UIControlEventValueChanged];
  return YES;
}

@implementation UISegmentedControl
@synthesize momentary = _momentary;
- (instancetype)initWithItems:(NSArray *)items {
  if ((self = [self initWithFrame:CGRectMake(0, 0, 60.0 * items.count, 32)])) {
    for (id item in items) [_segments addObject:[item isKindOfClass:[NSString class]] ? item : @""];
  }
  return self;
}
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _segments = [[NSMutableArray alloc] init];
    _selectedSegmentIndex = UISegmentedControlNoSegment;
  }
  return self;
}
- (void)dealloc {
  [_segments release];
  [super dealloc];
}
- (NSUInteger)numberOfSegments {
  return _segments.count;
}
- (NSInteger)selectedSegmentIndex {
  return _selectedSegmentIndex;
}
- (void)setSelectedSegmentIndex:(NSInteger)index {
  _selectedSegmentIndex = index >= 0 && (NSUInteger)index < _segments.count ? index : UISegmentedControlNoSegment;
}
- (void)insertSegmentWithTitle:(NSString *)title atIndex:(NSUInteger)segment animated:(BOOL)animated {
  if (segment > _segments.count) segment = _segments.count;
  [_segments insertObject:title ? title : @"" atIndex:segment];
}
- (void)removeSegmentAtIndex:(NSUInteger)segment animated:(BOOL)animated {
  if (segment < _segments.count) [_segments removeObjectAtIndex:segment];
}
- (void)removeAllSegments {
  [_segments removeAllObjects];
  _selectedSegmentIndex = UISegmentedControlNoSegment;
}
- (void)setTitle:(NSString *)title forSegmentAtIndex:(NSUInteger)segment {
  if (segment < _segments.count) [_segments replaceObjectAtIndex:segment withObject:title ? title : @""];
}
- (NSString *)titleForSegmentAtIndex:(NSUInteger)segment {
  return segment < _segments.count ? [_segments objectAtIndex:segment] : nil;
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  CGPoint p = [[touches anyObject] locationInView:self];
  if (_segments.count && self.enabled && [self pointInside:p withEvent:event]) {
    NSInteger i = (NSInteger)(p.x / (self.bounds.size.width / _segments.count));
    if (i != _selectedSegmentIndex) {
      self.selectedSegmentIndex = i;
      [self sendActionsForControlEvents:UIControlEventValueChanged];
    }
  }
  [super touchesEnded:touches withEvent:event];
}
@end

@implementation UITextField
@synthesize placeholder = _placeholder;
@synthesize textAlignment = _textAlignment;
@synthesize borderStyle = _borderStyle;
@synthesize delegate = _delegate;
@synthesize secureTextEntry = _secureTextEntry;
@synthesize keyboardType = _keyboardType;
@synthesize keyboardAppearance = _keyboardAppearance;
@synthesize returnKeyType = _returnKeyType;
@synthesize autocapitalizationType = _autocapitalizationType;
@synthesize autocorrectionType = _autocorrectionType;
@synthesize clearButtonMode = _clearButtonMode;
@synthesize clearsOnBeginEditing = _clearsOnBeginEditing;
@synthesize adjustsFontSizeToFitWidth = _adjustsFontSizeToFitWidth;
@synthesize leftView = _leftView;
@synthesize rightView = _rightView;
@synthesize inputView = _inputView;
@synthesize inputAccessoryView = _inputAccessoryView;
@synthesize editing = _editing;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _text = [@"" copy];
    _font = [[UIFont systemFontOfSize:17] retain];
    _textColor = [[UIColor labelColor] retain];
    _textAlignment = NSTextAlignmentNatural;
    _autocapitalizationType = UITextAutocapitalizationTypeSentences;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_placeholder release];
  [_font release];
  [_textColor release];
  [_leftView release];
  [_rightView release];
  [_inputView release];
  [_inputAccessoryView release];
  [super dealloc];
}
- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  NSString *copy = text ? [text copy] : [@"" copy];
  [_text release];
  _text = copy;
}
- (NSAttributedString *)attributedText {
  return [[[NSAttributedString alloc] initWithString:_text] autorelease];
}
- (void)setAttributedText:(NSAttributedString *)text {
  self.text = [text string];
}
- (UIFont *)font {
  return _font;
}
- (void)setFont:(UIFont *)font {
  if (!font) font = [UIFont systemFontOfSize:17];
  [font retain];
  [_font release];
  _font = font;
}
- (UIColor *)textColor {
  return _textColor;
}
- (void)setTextColor:(UIColor *)color {
  [color retain];
  [_textColor release];
  _textColor = color;
}
- (BOOL)canBecomeFirstResponder {
  return self.enabled;
}
- (BOOL)becomeFirstResponder {
  if (self.isFirstResponder) return YES;
  if (![self canBecomeFirstResponder]) return NO;
  if ([_delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)] && ![_delegate textFieldShouldBeginEditing:self])
    return NO;
  if (![super becomeFirstResponder]) return NO;
  _editing = YES;
  if (_clearsOnBeginEditing) self.text = @"";
  if ([_delegate respondsToSelector:@selector(textFieldDidBeginEditing:)]) [_delegate textFieldDidBeginEditing:self];
  [self sendActionsForControlEvents:UIControlEventEditingDidBegin];
  return YES;
}
- (BOOL)canResignFirstResponder {
  if ([_delegate respondsToSelector:@selector(textFieldShouldEndEditing:)]) return [_delegate textFieldShouldEndEditing:self];
  return YES;
}
- (BOOL)resignFirstResponder {
  if (!self.isFirstResponder) return YES;
  if (![self canResignFirstResponder]) return NO;
  [[self retain] autorelease];
  [super resignFirstResponder];
  _editing = NO;
  if ([_delegate respondsToSelector:@selector(textFieldDidEndEditing:)]) [_delegate textFieldDidEndEditing:self];
  [self sendActionsForControlEvents:UIControlEventEditingDidEnd];
  return YES;
}
- (BOOL)hasText {
  return _text.length > 0;
}
- (void)_simReplaceRange:(NSRange)range with:(NSString *)string {
  if ([_delegate respondsToSelector:@selector(textField:shouldChangeCharactersInRange:replacementString:)] &&
      ![_delegate textField:self shouldChangeCharactersInRange:range replacementString:string])
    return;
  self.text = [_text stringByReplacingCharactersInRange:range withString:string];
  [self sendActionsForControlEvents:UIControlEventEditingChanged];
}
- (void)insertText:(NSString *)text {
  if (![text isKindOfClass:[NSString class]]) return;
  NSArray *parts = [text componentsSeparatedByString:@"\n"];
  for (NSUInteger i = 0; i < parts.count; ++i) {
    NSString *part = [parts objectAtIndex:i];
    if (part.length) [self _simReplaceRange:NSMakeRange(_text.length, 0) with:part];
    if (i + 1 < parts.count) {
      // Return key.
      [[self retain] autorelease];
      if ([_delegate respondsToSelector:@selector(textFieldShouldReturn:)]) [_delegate textFieldShouldReturn:self];
      [self sendActionsForControlEvents:UIControlEventEditingDidEndOnExit];
    }
  }
}
- (void)deleteBackward {
  if (!_text.length) return;
  [self _simReplaceRange:NSMakeRange(_text.length - 1, 1) with:@""];
}
- (void)_simTapped {
  [self becomeFirstResponder];
}
@end

@implementation UIScrollView
@synthesize contentSize = _contentSize;
@synthesize contentInset = _contentInset;
@synthesize scrollIndicatorInsets = _scrollIndicatorInsets;
@synthesize delegate = _scrollDelegate;
@synthesize scrollEnabled = _scrollEnabled;
@synthesize bounces = _bounces;
@synthesize alwaysBounceVertical = _alwaysBounceVertical;
@synthesize alwaysBounceHorizontal = _alwaysBounceHorizontal;
@synthesize pagingEnabled = _pagingEnabled;
@synthesize showsVerticalScrollIndicator = _showsVerticalScrollIndicator;
@synthesize showsHorizontalScrollIndicator = _showsHorizontalScrollIndicator;
@synthesize keyboardDismissMode = _keyboardDismissMode;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _scrollEnabled = YES;
    _bounces = YES;
    _showsVerticalScrollIndicator = YES;
    _showsHorizontalScrollIndicator = YES;
    self.clipsToBounds = YES;
  }
  return self;
}
- (CGPoint)contentOffset {
  return self.bounds.origin;
}
- (void)setContentOffset:(CGPoint)offset {
  CGRect b = self.bounds;
  b.origin = offset;
  self.bounds = b;
  [self setNeedsLayout];  // what is on screen changed
  if ([_scrollDelegate respondsToSelector:@selector(scrollViewDidScroll:)]) [_scrollDelegate scrollViewDidScroll:self];
}
- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
  self.contentOffset = offset;
}
- (void)scrollRectToVisible:(CGRect)rect animated:(BOOL)animated {
  CGRect b = self.bounds;
  if (CGRectContainsRect(b, rect)) return;
  CGPoint o = b.origin;
  if (rect.origin.y < b.origin.y) o.y = rect.origin.y;
  else if (CGRectGetMaxY(rect) > CGRectGetMaxY(b)) o.y = CGRectGetMaxY(rect) - b.size.height;
  self.contentOffset = o;
}
@end

@implementation UITextView
@synthesize font = _font;
@synthesize textColor = _textColor;
@synthesize textAlignment = _textAlignment;
@synthesize editable = _editable;
@synthesize selectable = _selectable;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _text = [@"" copy];
    _font = [[UIFont systemFontOfSize:12] retain];
    _textColor = [[UIColor labelColor] retain];
    _editable = YES;
    _selectable = YES;
  }
  return self;
}
- (void)dealloc {
  [_text release];
  [_font release];
  [_textColor release];
  [super dealloc];
}
- (NSString *)text {
  return _text;
}
- (void)setText:(NSString *)text {
  NSString *copy = text ? [text copy] : [@"" copy];
  [_text release];
  _text = copy;
  CGSize s = SimUIKitTextSize(_text, _font, self.bounds.size.width, 0);
  self.contentSize = CGSizeMake(self.bounds.size.width, s.height);
}
- (BOOL)canBecomeFirstResponder {
  return _editable;
}
- (BOOL)hasText {
  return _text.length > 0;
}
- (void)insertText:(NSString *)text {
  if (_editable && [text isKindOfClass:[NSString class]]) self.text = [_text stringByAppendingString:text];
}
- (void)deleteBackward {
  if (_editable && _text.length) self.text = [_text substringToIndex:_text.length - 1];
}
@end
