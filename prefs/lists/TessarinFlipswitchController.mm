#import "lists/TessarinFlipswitchController.h"
#import "core/Strings.h"
#import "core/Paths.h"
#import "core/Specifiers.h"
#include <string>
#include "lists/ListPageRules.hpp"

namespace {

NSString *const kToggleLibraryPath = @"/usr/lib/libflipswitch.dylib";
NSString *const kTemplateBundlePath = @"/Library/Application Support/FlipControlCenter/TopShelf.bundle";

// The library's panel class, loading the library by path when the class is absent
// (a missing library leaves it absent, quietly).
Class switchPanelClass(void) {
  Class panel = NSClassFromString(@"FSSwitchPanel");
  if (panel != Nil) return panel;
  NSString *path = devicePath(kToggleLibraryPath);
  if (path != nil) dlopen([path fileSystemRepresentation], RTLD_NOW);
  panel = NSClassFromString(@"FSSwitchPanel");
  NSString *jailed = jbroot(kToggleLibraryPath);
  if (panel == Nil && jailed != nil && ![jailed isEqualToString:kToggleLibraryPath]) {
    path = devicePath(jailed);
    if (path != nil) dlopen([path fileSystemRepresentation], RTLD_NOW);
    panel = NSClassFromString(@"FSSwitchPanel");
  }
  return panel;
}

}  // namespace

@implementation TessarinFlipswitchController

#pragma mark - Rows

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  NSMutableArray *rows = [NSMutableArray array];
  Class panelClass = switchPanelClass();
  FSSwitchPanel *panel = [panelClass respondsToSelector:@selector(sharedPanel)] ? [panelClass sharedPanel] : nil;
  NSString *templatePath = devicePath(jbroot(kTemplateBundlePath));
  NSBundle *templateBundle = templatePath != nil ? [NSBundle bundleWithPath:templatePath] : nil;
  NSArray *identifiers = panel != nil ? [panel switchIdentifiers] : nil;
  for (NSString *identifier in [identifiers isKindOfClass:[NSArray class]] ? identifiers : @[]) {
    if (![identifier isKindOfClass:[NSString class]] || !tessarin::lists::listsToggle(stdString(identifier))) continue;
    NSString *title = [panel titleForSwitchIdentifier:identifier];
    PSSpecifier *row = switchRow([title isKindOfClass:[NSString class]] ? title : identifier, self,
                                 @selector(setFlipswitchProtectEnabled:specifier:),
                                 @selector(getFlipswitchProtectEnabledForSpecifier:));
    [row setProperty:identifier forKey:@"id"];
    UIImage *icon = [panel imageOfSwitchState:FSSwitchStateOff
                                 controlState:UIControlStateNormal
                          forSwitchIdentifier:identifier
                                usingTemplate:templateBundle];
    if (icon != nil) [row setProperty:icon forKey:@"iconImage"];
    [rows addObject:row];
  }
  [rows
      sortUsingComparator:^NSComparisonResult(PSSpecifier *a, PSSpecifier *b) { return [[a name] compare:[b name]]; }];
  _specifiers = [rows copy];
  return _specifiers;
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtectedSwitches;
}

- (void)setFlipswitchProtectEnabled:(id)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

- (id)getFlipswitchProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

@end
