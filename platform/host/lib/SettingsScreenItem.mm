#import "SettingsScreenItem.h"
#import <Preferences/PSSpecifier.h>

@implementation SettingsScreenItem
@synthesize specifier = _specifier;
@synthesize controller = _controller;
@synthesize footerLink = _footerLink;

- (void)dealloc {
  [_specifier release];
  [super dealloc];
}
@end
