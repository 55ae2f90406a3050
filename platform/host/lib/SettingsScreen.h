// What the simulated Settings app shows right now, as text a person reads at a glance,
// with the numbered things on it that commands can act on.
#pragma once
#import <Foundation/Foundation.h>
#import "SettingsScreenItem.h"

@class PSSpecifier;
@class UIViewController;
@class UIAlertController;
@class UIView;
@class UINavigationController;

@interface SettingsScreen : NSObject {
  NSString *_text;
  NSArray *_items;
  UIViewController *_page;
  UINavigationController *_navigation;
  UINavigationController *_modal;
  UIAlertController *_alert;
  UIView *_passcodeField;
}
// Looks at the Settings app's controllers now and renders them.
+ (SettingsScreen *)currentScreen;

@property (nonatomic, copy) NSString *text;
@property (nonatomic, retain) NSArray *items;  // SettingsScreenItem, numbered from 1
// The page on top (inside a presented navigation controller when one is up).
@property (nonatomic, retain) UIViewController *page;
// The navigation controller holding `page`.
@property (nonatomic, retain) UINavigationController *navigation;
// The navigation controller presented modally, or nil.
@property (nonatomic, retain) UINavigationController *modal;
// The alert presented over everything, or nil.
@property (nonatomic, retain) UIAlertController *alert;
// The passcode entry field of the page, or nil.
@property (nonatomic, retain) UIView *passcodeField;
@end

// Wraps `text` into lines of at most `width` columns (words longer than a line are cut),
// keeping the text's own line breaks. Each line is prefixed with `indent`.
NSArray *SettingsScreenWrap(NSString *text, NSUInteger width, NSString *indent);

// Title shown for a page: its navigation item's title, its title, or its row's name.
NSString *SettingsScreenPageTitle(UIViewController *page);

// The object a row's actions go to: its target (unwrapped when boxed in an NSValue), else the page.
id SettingsScreenRowTarget(PSSpecifier *specifier, UIViewController *page);
// The row's "getter" or "setter" selector, or NULL.
SEL SettingsScreenRowSelector(PSSpecifier *specifier, const char *which);
// The row's current value as its cell would show it (its getter, else the stored preference).
id SettingsScreenRowValue(PSSpecifier *specifier, UIViewController *page);
// NO when the row carries "enabled" = false (shown greyed).
BOOL SettingsScreenRowEnabled(PSSpecifier *specifier);
