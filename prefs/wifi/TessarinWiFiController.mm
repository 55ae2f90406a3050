#import "wifi/TessarinWiFiController.h"
#import "core/Strings.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/LayoutDirection.h"
#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#import "core/Specifiers.h"
#import "core/VersionFlags.h"
#import "wifi/TessarinWiFiManager.h"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"
#include "wifi/TrustedNetworks.hpp"

#include <optional>
#include <string>

namespace {

namespace wifi = tessarin::wifi;

// Only taps on the left of the screen copy the password.
const CGFloat kCopyAreaWidth = 200;

// The stored trusted list as a value; nothing when absent or not a property list.
std::optional<tessarin::plist::Value> storedTrustedList(void) {
  return plistValueFromObject(storedPreference(&tessarin::key::kAllowedWiFis));
}

// The known networks: in this process from iOS 13 on, from SpringBoard before.
id knownNetworkRecords(void) {
  if (systemVersion.iOS13) return [[TessarinWiFiManager sharedInstance] networksArrayAsDictionaries];
  Class centerClass = NSClassFromString(@"CPDistributedMessagingCenter");
  CPDistributedMessagingCenter *center = [centerClass centerNamed:@(tessarin::kCenterName)];
  NSDictionary *reply = [center sendMessageAndReceiveReplyName:@(tessarin::message::kWiFiNetworks) userInfo:nil];
  return [reply isKindOfClass:[NSDictionary class]] ? [reply objectForKey:@"networks"] : nil;
}

}  // namespace

@implementation TessarinWiFiController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  NSMutableArray *rows = [NSMutableArray array];
  NSString *listHeader = localizedString(@"CHOOSE_TRUSTED_WIFI_NETWORKS", @"Choose trusted WiFi networks");
  PSSpecifier *explanation = nil;
  PSSpecifier *list = nil;
  if ([PSSpecifier respondsToSelector:@selector(groupSpecifierWithHeader:footer:)]) {
    explanation = [PSSpecifier
        groupSpecifierWithHeader:nil
                          footer:localizedString(
                                     @"TRUSTED_WIFI_NETWORKS_FOOTER",
                                     @"Select the WiFi network(s) on which you want to automatically disable Tessarin "
                                     @"when connected to. For security reasons, only already joined networks are "
                                     @"available. If you wish to add a new network, join the network first in order "
                                     @"for it to appear in the list.")];
    list = [PSSpecifier groupSpecifierWithHeader:listHeader footer:nil];
  } else {
    // Older systems word it without "for it".
    explanation = [PSSpecifier groupSpecifierWithName:nil];
    [explanation
        setProperty:localizedString(
                        @"TRUSTED_WIFI_NETWORKS_FOOTER_LEGACY",
                        @"Select the WiFi network(s) on which you want to automatically disable Tessarin when "
                        @"connected to. For security reasons, only already joined networks are available. If you wish "
                        @"to add a new network, join the network first in order to appear in the list.")
             forKey:@"footerText"];
    list = [PSSpecifier groupSpecifierWithName:listHeader];
  }
  [rows addObject:explanation];
  [rows addObject:list];

  std::optional<tessarin::plist::Value> records = plistValueFromObject(knownNetworkRecords());
  for (const wifi::NetworkRow &network : wifi::networkRows(records ? &*records : nullptr)) {
    PSSpecifier *row = switchRow(nsString(network.ssid), self, @selector(setNetworkProtected:specifier:),
                                 @selector(getNetworkProtectedForSpecifier:));
    [row setProperty:nsString(network.bssid) forKey:@"bssid"];
    if (network.password) [row setProperty:nsString(*network.password) forKey:@"password"];
    [row setProperty:[TessarinWifiInfoCell class] forKey:@"cellClass"];
    [rows addObject:row];
  }

  _specifiers = [rows copy];
  return _specifiers;
}

- (id)getNetworkProtectedForSpecifier:(PSSpecifier *)specifier {
  std::optional<tessarin::plist::Value> stored = storedTrustedList();
  const BOOL trusted = wifi::isNetworkTrusted(
      stored ? &*stored : nullptr, stdString([specifier propertyForKey:@"bssid"]), stdString([specifier name]));
  return @(trusted);
}

- (void)setNetworkProtected:(id)value specifier:(PSSpecifier *)specifier {
  std::optional<tessarin::plist::Value> stored = storedTrustedList();
  const std::string bssid = stdString([specifier propertyForKey:@"bssid"]);
  const BOOL on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
  tessarin::plist::Value changed =
      on ? wifi::trustNetwork(stored ? &*stored : nullptr, bssid, stdString([specifier name]))
         : wifi::untrustNetwork(stored ? &*stored : nullptr, bssid);
  // SpringBoard reads this list when it next looks: the key table marks its writes unannounced.
  storePreference(objectFromPlistValue(changed), &tessarin::key::kAllowedWiFis);
}

@end

@implementation TessarinWifiInfoCell

@synthesize tapRecognizer = _tapRecognizer;

- (void)dealloc {
  [_tapRecognizer release];
  [super dealloc];
}

- (NSString *)password {
  id password = [[self specifier] propertyForKey:@"password"];
  return [password isKindOfClass:[NSString class]] ? password : nil;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  NSString *password = [self password];
  if (password == nil) return;

  if (_tapRecognizer == nil) {
    UITapGestureRecognizer *tap = [[UITapGestureRecognizer alloc] initWithTarget:self action:@selector(viewTapped:)];
    tap.numberOfTapsRequired = 1;
    tap.numberOfTouchesRequired = 1;
    tap.cancelsTouchesInView = NO;
    [self.contentView addGestureRecognizer:tap];
    self.tapRecognizer = tap;
    [tap release];
  }

  const CGRect name = self.textLabel.frame;
  const CGFloat screenWidth = [UIScreen mainScreen].bounds.size.width;
  self.textLabel.frame = CGRectMake(name.origin.x, name.origin.y - 5, name.size.width, name.size.height);
  self.detailTextLabel.text = [NSString stringWithFormat:localizedString(@"WIFI_PASSWORD_LINE", @"Pass: %@"), password];
  // The password line starts where the name starts: at its left, or at its right in a right-to-left language.
  const BOOL rtl = isRightToLeft(self);
  const CGFloat lineWidth = screenWidth - 100;
  self.detailTextLabel.frame = CGRectMake(rtl ? CGRectGetMaxX(name) - lineWidth : name.origin.x,
                                          name.origin.y - 7 + name.size.height, lineWidth, name.size.height - 5);
  self.detailTextLabel.textAlignment = rtl ? NSTextAlignmentRight : NSTextAlignmentLeft;
  self.detailTextLabel.font = [UIFont systemFontOfSize:12];
}

- (void)viewTapped:(UITapGestureRecognizer *)recognizer {
  if ([recognizer locationInView:nil].x >= kCopyAreaWidth) return;
  PSSpecifier *row = [self specifier];
  // The password as the row has it now; a row that lost it copies nothing.
  NSString *password = [self password];
  if (password == nil) return;
  [UIPasteboard generalPasteboard].string = password;

  UIAlertAction *okay = [UIAlertAction actionWithTitle:localizedString(@"OKAY", @"Okay")
                                                 style:UIAlertActionStyleCancel
                                               handler:^(UIAlertAction *action){}];
  NSString *message =
      [NSString stringWithFormat:localizedString(@"PASSWORD_COPIED",
                                                 @"Password: %@ for network: %@ has been copied to clipboard."),
                                 password, [row name]];
  id page = row.target;
  showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle(
      @"Tessarin Nova", message, [NSArray arrayWithObject:okay],
      [page isKindOfClass:[UIViewController class]] ? (UIViewController *)page : nil, UIAlertControllerStyleAlert);
}

@end
