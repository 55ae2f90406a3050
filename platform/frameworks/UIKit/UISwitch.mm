#import "UIKitInternal.h"

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
