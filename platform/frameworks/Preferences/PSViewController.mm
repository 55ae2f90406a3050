#import <Preferences/PreferencesSimulation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>

@implementation PSViewController
@synthesize parentController = _parentController;
- (instancetype)initForContentSize:(CGSize)contentSize {
  return [self init];
}
- (void)dealloc {
  [_specifier release];
  [super dealloc];
}
- (PSSpecifier *)specifier {
  return _specifier;
}
- (void)setSpecifier:(PSSpecifier *)specifier {
  [specifier retain];
  [_specifier release];
  _specifier = specifier;
  if (!self.title && specifier.name) self.title = specifier.name;
}
- (id)rootController {
  return _rootController ? _rootController : self.navigationController;
}
- (void)setRootController:(id)root {
  _rootController = root;
}

#pragma mark - Preference values

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
  NSString *domain = [specifier propertyForKey:PSDefaultsKey];
  NSString *key = [specifier propertyForKey:PSKeyNameKey];
  if ([domain isKindOfClass:[NSString class]] && [key isKindOfClass:[NSString class]]) {
    CFPreferencesSetAppValue((CFStringRef)key, (CFPropertyListRef)value, (CFStringRef)domain);
    CFPreferencesAppSynchronize((CFStringRef)domain);
  }
  NSString *note = [specifier propertyForKey:PSValueChangedNotificationKey];
  if ([note isKindOfClass:[NSString class]] && note.length) notify_post([note UTF8String]);
}
- (id)readPreferenceValue:(PSSpecifier *)specifier {
  NSString *domain = [specifier propertyForKey:PSDefaultsKey];
  NSString *key = [specifier propertyForKey:PSKeyNameKey];
  id value = nil;
  if ([domain isKindOfClass:[NSString class]] && [key isKindOfClass:[NSString class]]) {
    CFPreferencesAppSynchronize((CFStringRef)domain);
    value = [(id)CFPreferencesCopyAppValue((CFStringRef)key, (CFStringRef)domain) autorelease];
  }
  return value ? value : [specifier propertyForKey:PSDefaultValueKey];
}

#pragma mark - Navigation

- (void)pushController:(UIViewController *)controller animate:(BOOL)animate {
  if (!controller) return;
  if ([controller isKindOfClass:[PSViewController class]]) {
    PSViewController *page = (PSViewController *)controller;
    page.parentController = self;
    page.rootController = self.rootController;
  }
  UINavigationController *nav = self.navigationController;
  if (!nav && [self.rootController isKindOfClass:[UINavigationController class]]) nav = self.rootController;
  [nav pushViewController:controller animated:animate];
}
- (void)showController:(UIViewController *)controller animate:(BOOL)animate {
  [self pushController:controller animate:animate];
}
- (void)showController:(UIViewController *)controller {
  [self pushController:controller animate:YES];
}
- (void)handleURL:(NSDictionary *)url {
}
- (BOOL)canBeShownFromSuspendedState {
  return YES;
}
- (void)suspend {
}
@end
