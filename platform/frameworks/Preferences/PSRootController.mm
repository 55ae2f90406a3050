#import <Preferences/PreferencesSimulation.h>

@implementation PSRootController
- (id)rootListController {
  return _rootListController;
}
- (void)setRootListController:(id)controller {
  _rootListController = controller;
}
@end
