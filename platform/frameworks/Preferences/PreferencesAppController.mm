#import <Preferences/PreferencesSimulation.h>

@implementation PreferencesAppController
- (PSRootController *)rootController {
  return SimSettingsRootController();
}
@end
