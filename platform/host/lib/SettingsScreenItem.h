// One numbered thing on the Settings host's screen: a row, or the link in a group's footer.
#pragma once
#import <Foundation/Foundation.h>

@class PSSpecifier;
@class UIViewController;

@interface SettingsScreenItem : NSObject {
  PSSpecifier *_specifier;
  UIViewController *_controller;
  BOOL _footerLink;
}
@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, assign) UIViewController *controller;  // the page showing it
@property (nonatomic, assign) BOOL footerLink;
@end
