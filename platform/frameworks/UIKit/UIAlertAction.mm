#import "UIKitInternal.h"

@implementation UIAlertAction
@synthesize title = _title;
@synthesize style = _style;
@synthesize enabled = _enabled;
+ (instancetype)actionWithTitle:(NSString *)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction *))handler {
  UIAlertAction *a = [[[self alloc] init] autorelease];
  a->_title = [title copy];
  a->_style = style;
  a->_enabled = YES;
  if (handler) a->_handler = Block_copy(handler);
  return a;
}
- (void)dealloc {
  [_title release];
  if (_handler) Block_release(_handler);
  [super dealloc];
}
- (id)copyWithZone:(NSZone *)zone {
  return [[UIAlertAction actionWithTitle:_title style:_style handler:_handler] retain];
}
- (void (^)(UIAlertAction *))handler {
  return _handler;
}
- (void)setHandler:(void (^)(UIAlertAction *))handler {
  void (^copy)(UIAlertAction *) = nil;
  if (handler) copy = Block_copy(handler);
  if (_handler) Block_release(_handler);
  _handler = copy;
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<UIAlertAction title=\"%@\" style=%ld>", _title, (long)_style];
}
@end
