#import <Preferences/PreferencesSimulation.h>

@implementation PSSegmentTableCell
- (UIControl *)newControl {
  NSMutableArray *titles = [NSMutableArray array];
  for (id v in _specifier.values) {
    id t = [_specifier.titleDictionary objectForKey:v];
    [titles addObject:t ? t : [v description]];
  }
  return [[UISegmentedControl alloc] initWithItems:titles];
}
- (id)controlValue {
  NSInteger i = ((UISegmentedControl *)_control).selectedSegmentIndex;
  NSArray *values = _specifier.values;
  return i >= 0 && (NSUInteger)i < values.count ? [values objectAtIndex:i] : nil;
}
- (void)setValue:(id)value {
  [super setValue:value];
  NSUInteger i = value ? [_specifier.values indexOfObject:value] : NSNotFound;
  ((UISegmentedControl *)_control).selectedSegmentIndex = i == NSNotFound ? UISegmentedControlNoSegment : (NSInteger)i;
}
@end
