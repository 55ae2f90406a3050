#import "UIKitInternal.h"

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
