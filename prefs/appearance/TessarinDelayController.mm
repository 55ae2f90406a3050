#import "appearance/TessarinDelayController.h"
#include <string>
#include "appearance/BehaviourRules.hpp"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"

namespace {

std::string rowId(PSSpecifier *row) {
  id identifier = [row propertyForKey:@"id"];
  const char *bytes = [identifier isKindOfClass:[NSString class]] ? [identifier UTF8String] : NULL;
  return bytes != NULL ? std::string(bytes) : std::string();
}

// The switch's stored value, read as the page's rows are: through the domain's
// defaults suite (absent means off).
BOOL waitsUntilFinished(void) {
  NSUserDefaults *suite = [[NSUserDefaults alloc] initWithSuiteName:@(tessarin::kDomain)];
  BOOL wait = [suite boolForKey:@(tessarin::key::kWaitUntilFinished.name())];
  [suite release];
  return wait;
}

}  // namespace

@implementation TessarinDelayController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  NSArray *loaded = [self loadSpecifiersFromPlistName:@"Delay" target:self];
  const bool wait = waitsUntilFinished();
  NSMutableArray *rows = [NSMutableArray array];
  for (PSSpecifier *row in loaded)
    if (tessarin::behaviour::showsDelayRow(rowId(row), wait)) [rows addObject:row];
  _specifiers = [rows copy];
  return _specifiers;
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
  [super setPreferenceValue:value specifier:specifier];
  if (tessarin::behaviour::reloadsDelayPage(rowId(specifier))) [self reloadSpecifiers];
}

@end
