#import "UIKitInternal.h"

@implementation UITraitCollection
@synthesize userInterfaceStyle = _userInterfaceStyle;
@synthesize userInterfaceIdiom = _userInterfaceIdiom;
@synthesize displayScale = _displayScale;
@synthesize horizontalSizeClass = _horizontalSizeClass;
@synthesize verticalSizeClass = _verticalSizeClass;
+ (UITraitCollection *)currentTraitCollection {
  UITraitCollection *t = [[[self alloc] init] autorelease];
  t->_userInterfaceStyle = SimUIKitDarkMode() ? UIUserInterfaceStyleDark : UIUserInterfaceStyleLight;
  t->_userInterfaceIdiom = [UIDevice currentDevice].userInterfaceIdiom;
  t->_displayScale = SimUIKitScreenScale();
  t->_horizontalSizeClass = t->_userInterfaceIdiom == UIUserInterfaceIdiomPad ? UIUserInterfaceSizeClassRegular
                                                                              : UIUserInterfaceSizeClassCompact;
  t->_verticalSizeClass = UIUserInterfaceSizeClassRegular;
  return t;
}
+ (UITraitCollection *)traitCollectionWithUserInterfaceStyle:(UIUserInterfaceStyle)style {
  UITraitCollection *t = [[[self alloc] init] autorelease];
  t->_userInterfaceStyle = style;
  t->_userInterfaceIdiom = UIUserInterfaceIdiomUnspecified;
  return t;
}
- (id)copyWithZone:(NSZone *)zone {
  return [self retain];
}
@end
