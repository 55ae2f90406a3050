#import "appearance/TessarinAlertTitleController.h"
#import "core/Strings.h"
#import "core/BundleLookup.h"
#import "core/PreferenceStore.h"
#include <optional>
#include <string>
#include "appearance/BehaviourRules.hpp"
#include "core/Names.hpp"

namespace {}  // namespace

@implementation TessarinAlertTitleController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;
  PSSpecifier *group =
      [PSSpecifier preferenceSpecifierNamed:localizedString(@"ALERT_TITLE_GROUP", @"Enter a title for the alerts")
                                     target:nil
                                        set:NULL
                                        get:NULL
                                     detail:Nil
                                       cell:PSGroupCell
                                       edit:Nil];
  PSSpecifier *title = [PSSpecifier preferenceSpecifierNamed:nil
                                                      target:self
                                                         set:@selector(setPreferenceValue:specifier:)
                                                         get:@selector(readPreferenceValue:)
                                                      detail:Nil
                                                        cell:PSEditTextCell
                                                        edit:Nil];
  [title setProperty:@(tessarin::kDomain) forKey:@"defaults"];
  [title setProperty:nsStringOrEmpty(tessarin::behaviour::kDefaultAlertTitle) forKey:@"default"];
  [title setProperty:@(tessarin::key::kAlertTitle.name()) forKey:@"key"];
  [title setProperty:nsStringOrEmpty(tessarin::behaviour::kAlertTitleRow) forKey:@"id"];
  _specifiers = [@[ group, title ] copy];
  return _specifiers;
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
  UIBarButtonItem *save = [[UIBarButtonItem alloc] initWithTitle:localizedString(@"SAVE", @"Save")
                                                           style:UIBarButtonItemStylePlain
                                                          target:self
                                                          action:@selector(save:)];
  [[self navigationItem] setRightBarButtonItem:save animated:NO];
  [save release];
}

- (void)save:(id)sender {
  PSSpecifier *row = [self specifierForID:nsStringOrEmpty(tessarin::behaviour::kAlertTitleRow)];
  id cell = [row propertyForKey:@"cellObject"];
  id text = [cell respondsToSelector:@selector(textLabel)] ? [[cell textLabel] text] : nil;
  std::optional<std::string> typed;
  if ([text isKindOfClass:[NSString class]] && [text UTF8String] != NULL) typed = std::string([text UTF8String]);
  const std::string title = tessarin::behaviour::savedAlertTitle(typed);
  setPrefsValueForKey(nsStringOrEmpty(title), tessarin::key::kAlertTitle.name());
  [[self navigationController] popViewControllerAnimated:YES];
  if (tessarin::postsChangeSignal(tessarin::key::kAlertTitle)) postPrefsChanged();
}

@end
