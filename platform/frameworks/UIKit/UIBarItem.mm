#import "UIKitInternal.h"

@implementation UIBarItem
@synthesize title = _title;
@synthesize image = _image;
@synthesize enabled = _enabled;
@synthesize tag = _tag;
- (instancetype)init {
  if ((self = [super init])) _enabled = YES;
  return self;
}
- (void)dealloc {
  [_title release];
  [_image release];
  [super dealloc];
}
- (void)setTitleTextAttributes:(NSDictionary *)attributes forState:(UIControlState)state {
}
@end
