#import "UIKitInternal.h"

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
