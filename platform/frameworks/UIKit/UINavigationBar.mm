#import "UIKitInternal.h"

@implementation UINavigationBar
@synthesize barStyle = _barStyle;
@synthesize translucent = _translucent;
@synthesize barTintColor = _barTintColor;
@synthesize titleTextAttributes = _titleTextAttributes;
@synthesize prefersLargeTitles = _prefersLargeTitles;
@synthesize items = _items;
- (void)dealloc {
  [_barTintColor release];
  [_titleTextAttributes release];
  [_items release];
  [super dealloc];
}
- (UINavigationItem *)topItem {
  return [_items lastObject];
}
- (UINavigationItem *)backItem {
  return _items.count > 1 ? [_items objectAtIndex:_items.count - 2] : nil;
}
@end
