#import "passcode/TessarinPasscodeSettingsController.h"
#import "core/Strings.h"
#import "core/Specifiers.h"
#import "passcode/PasscodePages.h"
#import "passcode/TessarinPasscodeController.h"
#import "passcode/TessarinChangePasscodeController.h"
#import "passcode/TessarinRemovePasscodeController.h"
#import "core/BundleLookup.h"
#import "core/Hardware.h"
#import "core/PreferenceStore.h"
#include "core/Names.hpp"
#include "passcode/PasscodeSettingsRows.hpp"

namespace passcode = tessarin::passcode;

namespace {}  // namespace

void resetPasscode(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
                   CFDictionaryRef userInfo) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  storePreference(nil, &tessarin::key::kPasscode);
  UIViewController *top = [settingsRootController() topViewController];
  if ([top respondsToSelector:@selector(reloadSpecifiers)]) [top performSelector:@selector(reloadSpecifiers)];
  scheduleSettingsPagesReload(passcode::kChildRefreshDelay);
  [pool release];
}

@implementation TessarinPasscodeSettingsController

- (NSMutableArray *)specifiers {
  if ([_specifiers count] != 0) return (NSMutableArray *)_specifiers;

  NSArray *loaded = [self loadSpecifiersFromPlistName:nsStringOrEmpty(std::string_view(passcode::kSettingsPlistName))
                                               target:self];
  id stored = storedPreference(&tessarin::key::kPasscode);

  passcode::SettingsContext context;
  context.passcodeStored = stored != nil;
  context.biometric = iPhone64Bit();
  context.faceID = hasPearl();

  NSMutableArray *rows = [NSMutableArray array];
  passcode::SettingsFooter footer = settingsFooter(context, localizedCoreText);
  NSString *footerText = nsStringOrEmpty(footer.text);
  PSSpecifier *group = footerGroup(footerText);
  if (footer.hasLink) {
    [group setTarget:self];
    [group setProperty:nsStringOrEmpty(std::string_view(passcode::kFooterCellClass)) forKey:@"footerCellClass"];
    [group setProperty:NSStringFromRange(NSMakeRange(footer.linkLocation, footer.linkLength))
                forKey:@"footerHyperlinkRange"];
    [group setProperty:footerText forKey:@"headerFooterHyperlinkButtonTitle"];
    [group setProperty:nsStringOrEmpty(std::string_view(passcode::kFooterLinkAction)) forKey:@"footerHyperlinkAction"];
    id target = self;
    [group setProperty:[NSValue value:&target withObjCType:@encode(id)] forKey:@"footerHyperlinkTarget"];
  }
  [rows addObject:group];

  // Every loaded row gets its localised name; the rules then pick the ones to keep.
  std::vector<std::string> ids;
  for (PSSpecifier *row in loaded) {
    id rowID = [row propertyForKey:@"id"];
    if ([rowID isKindOfClass:[NSString class]]) {
      [row setName:localizedString(rowID, [row name])];
      ids.push_back([rowID UTF8String]);
    } else {
      ids.push_back(std::string());
    }
  }
  for (const passcode::KeptRow &kept : keptSettingsRows(context, ids)) {
    PSSpecifier *row = [loaded objectAtIndex:kept.index];
    if (kept.action != passcode::RowAction::None) {
      [row setTarget:self];
      [row setButtonAction:NSSelectorFromString(nsStringOrEmpty(actionSelector(kept.action)))];
    }
    if (kept.renameForFaceID) {
      NSString *name = localizedText(passcode::kUseOnlyFaceIDName);
      [row setProperty:name forKey:@"label"];
      [row setProperty:name forKey:@"name"];
      [row setName:name];
    }
    [rows addObject:row];
  }

  [_specifiers release];
  _specifiers = [rows retain];
  [[self navigationItem] setTitle:passcodePageText(passcode::text::kOptionsTitle)];
  return rows;
}

- (UINavigationItem *)navigationItem {
  UINavigationItem *item = [super navigationItem];
  [item setTitle:passcodePageText(passcode::text::kOptionsTitle)];
  return item;
}

- (void)loadView {
  [super loadView];
  CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), NULL, resetPasscode,
                                  (CFStringRef)[NSString stringWithUTF8String:tessarin::kPasscodeResetNotification],
                                  NULL, CFNotificationSuspensionBehaviorDeliverImmediately);
}

- (void)presentPasscodePage:(Class)pageClass {
  TessarinPasscodeController *page = [[pageClass alloc] initWithParent:self];
  UINavigationController *navigation = [[UINavigationController alloc] init];
  [navigation addChildViewController:page];
  [self presentViewController:navigation animated:YES completion:nil];
  [navigation release];
  [page release];
}

- (void)addPassword {
  [self presentPasscodePage:[TessarinPasscodeController class]];
}

- (void)changePassword {
  [self presentPasscodePage:[TessarinChangePasscodeController class]];
}

- (void)removePassword {
  [self presentPasscodePage:[TessarinRemovePasscodeController class]];
}

- (void)forgotTapped:(id)sender {
  Class centerClass = NSClassFromString(@"CPDistributedMessagingCenter");
  CPDistributedMessagingCenter *center =
      [centerClass centerNamed:[NSString stringWithUTF8String:tessarin::kCenterName]];
  [center sendMessageName:[NSString stringWithUTF8String:tessarin::message::kPasscodeResetRequest] userInfo:nil];
}

@end
