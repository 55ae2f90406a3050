#import "UIKitInternal.h"

@implementation UINavigationItem
@synthesize title = _title;
@synthesize titleView = _titleView;
@synthesize prompt = _prompt;
@synthesize backBarButtonItem = _backBarButtonItem;
@synthesize hidesBackButton = _hidesBackButton;
@synthesize leftBarButtonItems = _leftBarButtonItems;
@synthesize rightBarButtonItems = _rightBarButtonItems;
@synthesize largeTitleDisplayMode = _largeTitleDisplayMode;
- (instancetype)init {
  return [self initWithTitle:nil];
}
- (instancetype)initWithTitle:(NSString *)title {
  if ((self = [super init])) _title = [title copy];
  return self;
}
- (void)dealloc {
  [_title release];
  [_titleView release];
  [_prompt release];
  [_backBarButtonItem release];
  [_leftBarButtonItems release];
  [_rightBarButtonItems release];
  [_searchController release];
  [super dealloc];
}
- (void)setHidesBackButton:(BOOL)hidden animated:(BOOL)animated {
  self.hidesBackButton = hidden;
}
- (void)setLeftBarButtonItems:(NSArray *)items animated:(BOOL)animated {
  self.leftBarButtonItems = items;
}
- (void)setRightBarButtonItems:(NSArray *)items animated:(BOOL)animated {
  self.rightBarButtonItems = items;
}
- (UIBarButtonItem *)leftBarButtonItem {
  return [_leftBarButtonItems firstObject];
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item {
  self.leftBarButtonItems = item ? [NSArray arrayWithObject:item] : nil;
}
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
  self.leftBarButtonItem = item;
}
- (UIBarButtonItem *)rightBarButtonItem {
  return [_rightBarButtonItems firstObject];
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)item {
  self.rightBarButtonItems = item ? [NSArray arrayWithObject:item] : nil;
}
- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
  self.rightBarButtonItem = item;
}
@end
