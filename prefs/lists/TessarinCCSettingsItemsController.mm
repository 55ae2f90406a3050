#import "lists/TessarinCCSettingsItemsController.h"

#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "lists/ListPageSupport.h"
#include "core/plist/BinaryPlist.hpp"
#include "lists/ControlCenterItems.hpp"

namespace {

namespace lists = tessarin::lists;

// The CCSettings toggle identifiers in the extension's order.
NSArray *CCSettingsArray() {
  NSData *data = [NSData dataWithContentsOfFile:devicePath(@(lists::kCCSettingsOrderFile))];
  std::optional<tessarin::plist::Value> order;
  if (data != nil) order = tessarin::plist::readPlist(static_cast<const uint8_t *>([data bytes]), [data length]);
  NSMutableArray *identifiers = [NSMutableArray array];
  for (const std::string &identifier : lists::ccSettingsOrder(order ? &*order : nullptr)) {
    NSString *text = nsString(identifier);
    if (text != nil) [identifiers addObject:text];
  }
  return identifiers;
}

}  // namespace

@implementation TessarinCCSettingsItemsController

#pragma mark - Rows

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  NSMutableArray *rows = [NSMutableArray array];
  [rows addObject:footerGroup(
                      localizedString(@"CCSETTINGS_FOOTER",
                                      @"Choose the CCSettings items that you want to protect from the list below"))];
  [rows addObject:[PSSpecifier emptyGroupSpecifier]];

  NSBundle *settings = deviceBundle(lists::kCCSettingsBundle);
  for (NSString *identifier in CCSettingsArray()) {
    const char *utf8 = [identifier UTF8String];
    if (utf8 == NULL) continue;
    PSSpecifier *row = switchRow(nsString(lists::ccSettingsTitle(utf8, localizedCoreText)), self,
                                 @selector(setCCSettingsItemProtectEnabled:specifier:),
                                 @selector(getCCSettingsItemProtectEnabledForSpecifier:));
    [row setProperty:identifier forKey:@"id"];
    NSString *icon = nsString(lists::ccSettingsIconName(utf8));
    if (icon != nil && [settings pathForResource:[NSString stringWithFormat:@"%@@2x", icon] ofType:@"png"] != nil) {
      UIImage *image = imageInBundle(icon, settings);
      if (image != nil) [row setProperty:image forKey:@"iconImage"];
    }
    [rows addObject:row];
  }
  _specifiers = [rows copy];
  return _specifiers;
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtectedCCSettingsItems;
}

- (NSNumber *)getCCSettingsItemProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

- (void)setCCSettingsItemProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

@end
