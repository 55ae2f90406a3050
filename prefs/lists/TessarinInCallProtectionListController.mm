#import "lists/TessarinInCallProtectionListController.h"
#import "core/Strings.h"
#import "core/Hardware.h"
#import "core/BundleLookup.h"
#include <string>
#include "core/Names.hpp"
#include "lists/ListPageRules.hpp"

namespace {

NSString *const kLockScreenRow = @"SHOW_CALLS_AT_LOCKSCREEN_SYSTEM_SETTING";
NSString *const kShowsInLockScreen = @"showsInLockScreen";

NSString *adapted(NSString *row, tessarin::lists::RowText property, NSString *text) {
  const std::string shown = tessarin::lists::faceIDText(stdString(row), property, stdString(text), localizedCoreText);
  NSString *result = [NSString stringWithUTF8String:shown.c_str()];
  return result != nil ? result : text;
}

// Face ID wording for the rows that speak of Touch ID and the finger.
void adaptForFaceID(PSSpecifier *row) {
  NSString *identifier = [row propertyForKey:@"id"];
  if (![identifier isKindOfClass:[NSString class]]) return;
  id footer = [row propertyForKey:@"footerText"];
  if ([footer isKindOfClass:[NSString class]])
    [row setProperty:adapted(identifier, tessarin::lists::RowText::Footer, footer) forKey:@"footerText"];
  if (![identifier isEqualToString:@(tessarin::lists::kCallerHideRow.data())]) return;
  id label = [row propertyForKey:@"label"];
  [row setProperty:adapted(identifier, tessarin::lists::RowText::Label,
                           [label isKindOfClass:[NSString class]] ? label : @"")
            forKey:@"label"];
  NSString *name = adapted(identifier, tessarin::lists::RowText::Name, [row name] != nil ? [row name] : @"");
  [row setProperty:name forKey:@"name"];
  [row setName:name];
}

CPDistributedMessagingCenter *productCenter(void) {
  Class centerClass = NSClassFromString(@"CPDistributedMessagingCenter");
  return [centerClass centerNamed:@(tessarin::kCenterName)];
}

}  // namespace

@implementation TessarinInCallProtectionListController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  NSArray *rows = [self loadSpecifiersFromPlistName:@"TessarinCallerIDProtection" target:self];
  const BOOL faceID = hasPearl();
  for (PSSpecifier *row in rows) {
    if ([[row propertyForKey:@"id"] isEqual:kLockScreenRow]) [row setTarget:self];
    if (faceID) adaptForFaceID(row);
  }
  _specifiers = [rows copy];
  return _specifiers;
}

- (id)getShowsInLockScreen:(PSSpecifier *)specifier {
  id reply = [productCenter() sendMessageAndReceiveReplyName:@(tessarin::message::kGetCallerIDVisibility) userInfo:nil];
  id shows = [reply isKindOfClass:[NSDictionary class]] ? [reply objectForKey:kShowsInLockScreen] : nil;
  if ([shows respondsToSelector:@selector(boolValue)]) return @([shows boolValue]);
  return @(YES);
}

- (void)setShowsInLockScreen:(id)value specifier:(PSSpecifier *)specifier {
  BOOL shows = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
  [productCenter() sendMessageName:@(tessarin::message::kSetCallerIDVisibility)
                          userInfo:[NSDictionary dictionaryWithObject:@(shows) forKey:kShowsInLockScreen]];
}

@end
