#import "UIKitInternal.h"

@implementation UIPasteboard
@synthesize name = _name;
@synthesize items = _items;
+ (UIPasteboard *)generalPasteboard {
  static UIPasteboard *board;
  if (!board) {
    board = [[UIPasteboard alloc] init];
    board->_name = [@"com.apple.UIKit.pboard.general" copy];
    board->_items = [[NSArray alloc] init];
  }
  return board;
}
+ (UIPasteboard *)pasteboardWithName:(NSString *)name create:(BOOL)create {
  static NSMutableDictionary *boards;
  if (!boards) boards = [[NSMutableDictionary alloc] init];
  UIPasteboard *b = [boards objectForKey:name];
  if (!b && create && name) {
    b = [[[UIPasteboard alloc] init] autorelease];
    b->_name = [name copy];
    b->_items = [[NSArray alloc] init];
    [boards setObject:b forKey:name];
  }
  return b;
}
- (void)dealloc {
  [_name release];
  [_items release];
  [super dealloc];
}
- (NSInteger)numberOfItems {
  return _items.count;
}
- (NSArray *)_simValuesOfClass:(Class)cls {
  NSMutableArray *out = [NSMutableArray array];
  for (NSDictionary *item in _items)
    for (id v in [item allValues])
      if ([v isKindOfClass:cls]) [out addObject:v];
  return out;
}
- (void)_simSetValues:(NSArray *)values type:(NSString *)type {
  NSMutableArray *items = [NSMutableArray array];
  for (id v in values) [items addObject:[NSDictionary dictionaryWithObject:v forKey:type]];
  self.items = items;
}
- (NSString *)string {
  return [[self _simValuesOfClass:[NSString class]] firstObject];
}
- (void)setString:(NSString *)string {
  [self _simSetValues:string ? [NSArray arrayWithObject:string] : [NSArray array] type:@"public.utf8-plain-text"];
}
- (NSArray *)strings {
  NSArray *s = [self _simValuesOfClass:[NSString class]];
  return s.count ? s : nil;
}
- (void)setStrings:(NSArray *)strings {
  [self _simSetValues:strings ? strings : [NSArray array] type:@"public.utf8-plain-text"];
}
- (NSURL *)URL {
  return [[self _simValuesOfClass:[NSURL class]] firstObject];
}
- (void)setURL:(NSURL *)URL {
  [self _simSetValues:URL ? [NSArray arrayWithObject:URL] : [NSArray array] type:@"public.url"];
}
- (UIImage *)image {
  return [[self _simValuesOfClass:[UIImage class]] firstObject];
}
- (void)setImage:(UIImage *)image {
  [self _simSetValues:image ? [NSArray arrayWithObject:image] : [NSArray array] type:@"public.png"];
}
- (BOOL)hasStrings {
  return [self _simValuesOfClass:[NSString class]].count > 0;
}
@end
