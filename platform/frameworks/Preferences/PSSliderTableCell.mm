#import <Preferences/PreferencesSimulation.h>

@implementation PSSliderTableCell
- (UIControl *)newControl {
  PSSegmentableSlider *slider = [[PSSegmentableSlider alloc] initWithFrame:CGRectMake(0, 0, 200, 31)];
  id min = [_specifier propertyForKey:@"min"], max = [_specifier propertyForKey:@"max"];
  if ([max respondsToSelector:@selector(floatValue)]) slider.maximumValue = [max floatValue];
  if ([min respondsToSelector:@selector(floatValue)]) slider.minimumValue = [min floatValue];
  id segmented = [_specifier propertyForKey:@"isSegmented"], count = [_specifier propertyForKey:@"segmentCount"];
  if ([segmented respondsToSelector:@selector(boolValue)] && [segmented boolValue]) {
    slider.segmented = YES;
    slider.locksToSegment = YES;
    slider.snapsToSegment = YES;
    if ([count respondsToSelector:@selector(longLongValue)] && [count longLongValue] > 0)
      slider.segmentCount = (unsigned long long)[count longLongValue];
  }
  return slider;
}
- (id)controlValue {
  return [NSNumber numberWithFloat:((UISlider *)_control).value];
}
- (void)setValue:(id)value {
  [super setValue:value];
  if ([value respondsToSelector:@selector(floatValue)]) ((UISlider *)_control).value = [value floatValue];
}
@end
