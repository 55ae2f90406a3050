#import "lists/TessarinPowerDownListController.h"

@implementation TessarinPowerDownListController

- (NSArray *)specifiers {
  if (_specifiers == nil)
    _specifiers = [[self loadSpecifiersFromPlistName:@"TessarinPowerDownProtection" target:self] copy];
  return _specifiers;
}

@end
