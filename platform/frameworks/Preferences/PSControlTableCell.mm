#import <Preferences/PreferencesSimulation.h>

@implementation PSControlTableCell
@synthesize control = _control;
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier])) {
    self.accessoryType = UITableViewCellAccessoryNone;
    self.selectionStyle = UITableViewCellSelectionStyleNone;
    UIControl *control = [self newControl];
    self.control = control;
    [control release];
  }
  return self;
}
- (void)dealloc {
  [_control removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
  [_control release];
  [super dealloc];
}
- (void)setControl:(UIControl *)control {
  if (control == _control) return;
  [_control removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
  [control retain];
  [_control release];
  _control = control;
  [_control addTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
  self.accessoryView = control;
  if (_specifier) [_specifier setProperty:control forKey:PSControlKey];
}
- (void)setSpecifier:(PSSpecifier *)specifier {
  [super setSpecifier:specifier];
  if (_control) [specifier setProperty:_control forKey:PSControlKey];
}
- (UIControl *)newControl {
  return nil;
}
- (id)controlValue {
  return nil;
}
- (void)controlChanged:(id)sender {
  id value = [self controlValue];
  [_value release];
  _value = [value retain];
  [_specifier performSetterWithValue:value];
}
- (void)setCellEnabled:(BOOL)enabled {
  [super setCellEnabled:enabled];
  _control.enabled = enabled;
}
@end
