/* The toggle library's panel, an add-on of jailbroken devices. Not a framework of the
   system: the library is loaded by path (dlopen) when its panel class is absent, and only
   then do its classes exist. */
#ifndef FLIPSWITCH_FSSWITCHPANEL_H
#define FLIPSWITCH_FSSWITCHPANEL_H

#import <UIKit/UIKit.h>

typedef NS_ENUM(NSInteger, FSSwitchState) {
  FSSwitchStateOff = 0,
  FSSwitchStateOn = 1,
  FSSwitchStateIndeterminate = -1,
};

@interface FSSwitchPanel : NSObject
+ (instancetype)sharedPanel;
/* The identifiers of the installed switches, in the library's own order. */
@property (nonatomic, readonly, copy) NSArray *switchIdentifiers;
- (NSString *)titleForSwitchIdentifier:(NSString *)switchIdentifier;
/* The switch's glyph drawn with the template bundle; nil without a template bundle or
   for an unknown switch. */
- (UIImage *)imageOfSwitchState:(FSSwitchState)state
                   controlState:(UIControlState)controlState
            forSwitchIdentifier:(NSString *)switchIdentifier
                  usingTemplate:(NSBundle *)templateBundle;
@end

#endif
