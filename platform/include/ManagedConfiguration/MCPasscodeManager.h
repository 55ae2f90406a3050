/*
 * ManagedConfiguration's passcode manager: what the device passcode looks like.
 *
 * Answered from the device profile: "devicePasscode" (absent: the device has no
 * passcode) and "passcodeCharacteristics" ({allDigits, hasAlpha, length}).
 * `_privatePasscodeDictWithOutError:` exists from iOS 14 on (the profile's
 * "systemVersion"); on older systems the manager does not respond to it.
 */
#ifndef MANAGEDCONFIGURATION_MCPASSCODEMANAGER_H
#define MANAGEDCONFIGURATION_MCPASSCODEMANAGER_H

#import <Foundation/Foundation.h>

@interface MCPasscodeManager : NSObject

+ (instancetype)sharedManager;

// YES when the device has a passcode.
- (BOOL)isPasscodeSet;

// Newer systems: the passcode record, {"characteristics": {"1": {allDigits, hasAlpha, length}}};
// nil without a device passcode. The error argument may be NULL and is never set.
- (NSDictionary *)_privatePasscodeDictWithOutError:(NSError **)outError;

// {allDigits, hasAlpha, length}; nil without a device passcode.
- (NSDictionary *)_passcodeCharacteristics;

@end

#endif
