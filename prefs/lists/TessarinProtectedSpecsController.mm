#import "lists/TessarinProtectedSpecsController.h"
#import "core/Specifiers.h"
#import "core/Strings.h"
#import "core/BundleLookup.h"
#import "root/TessarinSwitchCell.h"
#include <optional>
#include <string>
#include "lists/ListPageRules.hpp"
#include "root/RootViews.hpp"

namespace {

// The pane a row stands for: its "id", else its name.
NSString *paneItem(PSSpecifier *row) {
  id identifier = [row propertyForKey:@"id"];
  std::optional<std::string> given;
  if ([identifier isKindOfClass:[NSString class]]) given = stdString(identifier);
  const std::string item = tessarin::lists::rowItem(given, stdString([row name]));
  return [NSString stringWithUTF8String:item.c_str()];
}

// The rows of the Settings app's root list as they are now (nothing outside Settings).
NSArray *settingsListRows(void) {
  UIApplication *app = [UIApplication sharedApplication];
  if (![app respondsToSelector:@selector(rootController)]) return nil;
  UINavigationController *root = [app rootController];
  if (![root respondsToSelector:@selector(rootListController)]) return nil;
  id list = [root rootListController];
  if (![list respondsToSelector:@selector(specifiers)]) return nil;
  id rows = [list specifiers];
  return [rows isKindOfClass:[NSArray class]] ? rows : nil;
}

}  // namespace

@implementation TessarinProtectedSpecsController

#pragma mark - Rows

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  NSMutableArray *rows = [NSMutableArray array];
  [rows addObject:footerGroup(localizedString(
                      @"SETTINGS_PANES_FOOTER",
                      @"Choose the settings panes that you want to protect access to from the list below"))];
  for (PSSpecifier *source in settingsListRows()) {
    if (![source isKindOfClass:[PSSpecifier class]]) continue;
    NSString *name = [source name];
    switch (tessarin::lists::paneRow(stdString(name), (int)[source cellType])) {
      case tessarin::lists::PaneRow::Skip:
        break;
      case tessarin::lists::PaneRow::Group:
        [rows addObject:[PSSpecifier emptyGroupSpecifier]];
        break;
      case tessarin::lists::PaneRow::Switch: {
        PSSpecifier *row = switchRow(name, self, @selector(setPreferenceProtectEnabled:specifier:),
                                     @selector(getPreferenceProtectEnabledForSpecifier:));
        id icon = [source propertyForKey:@"iconImage"];
        if (icon != nil) [row setProperty:icon forKey:@"iconImage"];
        [row setProperty:@(YES) forKey:@"useLazyIcons"];
        id appID = [source propertyForKey:@"appIDForLazyIcon"];
        if (appID != nil) [row setProperty:appID forKey:@"appIDForLazyIcon"];
        [row setProperty:paneItem(source) forKey:@"id"];
        [row setProperty:[TessarinSwitchCell class] forKey:@"cellClass"];
        [rows addObject:row];
        break;
      }
    }
  }
  _specifiers = [rows copy];
  return _specifiers;
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtectedSettings;
}

- (id)protectedItemForSpecifier:(PSSpecifier *)specifier {
  return paneItem(specifier);
}

// The icon follows the switch at once, without a rebuild of the page.
- (void)specifier:(PSSpecifier *)specifier didSwitchProtection:(BOOL)on {
  id cell = [specifier propertyForKey:@"cellObject"];
  if ([cell respondsToSelector:@selector(iconImageView)])
    [[cell iconImageView] setAlpha:tessarin::root::switch_cell::iconAlpha(on)];
}

- (void)setPreferenceProtectEnabled:(id)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

- (id)getPreferenceProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

@end
