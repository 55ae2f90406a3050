#import "appearance/TessarinHapticController.h"

@implementation TessarinHapticController

- (NSArray *)specifiers {
  if (_specifiers == nil) _specifiers = [[self loadSpecifiersFromPlistName:@"Haptic" target:self] copy];
  return _specifiers;
}

@end
