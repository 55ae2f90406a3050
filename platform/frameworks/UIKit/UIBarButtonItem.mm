#import "UIKitInternal.h"

@implementation UIBarButtonItem
@synthesize style = _style;
@synthesize target = _target;
@synthesize action = _action;
@synthesize customView = _customView;
@synthesize tintColor = _tintColor;
@synthesize width = _width;
- (instancetype)init {
  if ((self = [super init])) _systemItem = -1;
  return self;
}
- (instancetype)initWithImage:(UIImage *)image style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    self.image = image;
    _style = style;
    _target = target;
    _action = action;
  }
  return self;
}
- (instancetype)initWithTitle:(NSString *)title style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    self.title = title;
    _style = style;
    _target = target;
    _action = action;
  }
  return self;
}
- (instancetype)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem target:(id)target action:(SEL)action {
  if ((self = [self init])) {
    _systemItem = systemItem;
    _target = target;
    _action = action;
    _style = systemItem == UIBarButtonSystemItemDone ? UIBarButtonItemStyleDone : UIBarButtonItemStylePlain;
  }
  return self;
}
- (instancetype)initWithCustomView:(UIView *)customView {
  if ((self = [self init])) self.customView = customView;
  return self;
}
- (void)dealloc {
  [_customView release];
  [_tintColor release];
  [super dealloc];
}
- (NSInteger)_simSystemItem {
  return _systemItem;
}
@end

BOOL SimTapBarButtonItem(UIBarButtonItem *item) {
  if (!item || !item.enabled || !item.action || [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return NO;
  return [[UIApplication sharedApplication] sendAction:item.action to:item.target from:item forEvent:nil];
}
