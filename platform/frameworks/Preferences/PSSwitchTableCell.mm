#import <Preferences/PreferencesSimulation.h>

@implementation PSSwitchTableCell
- (UIControl *)newControl {
  return [[UISwitch alloc] initWithFrame:CGRectZero];
}
- (id)controlValue {
  return [NSNumber numberWithBool:((UISwitch *)_control).on];
}
- (void)setValue:(id)value {
  [super setValue:value];
  [(UISwitch *)_control setOn:[value respondsToSelector:@selector(boolValue)] && [value boolValue] animated:NO];
}
@end
