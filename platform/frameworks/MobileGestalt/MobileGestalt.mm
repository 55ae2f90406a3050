// MobileGestalt answers from the device profile. Looked up by name (dlsym), not declared.

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include "Simulator/SimInternal.h"

extern "C" __attribute__((visibility("default"))) CFTypeRef MGCopyAnswer(CFStringRef question);

CFTypeRef MGCopyAnswer(CFStringRef question) {
  NSString *q = (NSString *)question;
  if (![q isKindOfClass:[NSString class]]) return NULL;
  id answer = nil;
  if ([q isEqualToString:@"UserAssignedDeviceName"] || [q isEqualToString:@"DeviceName"]) {
    answer = SimProfileValue(@"deviceName", [NSString class]);
    if (answer == nil && [q isEqualToString:@"DeviceName"]) answer = @"iPhone";
  } else if ([q isEqualToString:@"DeviceCornerRadius"]) {
    answer = SimProfileValue(@"deviceCornerRadius", [NSNumber class]);
  } else if ([q isEqualToString:@"ProductType"]) {
    answer = SimProfileValue(@"model", [NSString class]);
  } else if ([q isEqualToString:@"ProductVersion"]) {
    answer = SimProfileValue(@"systemVersion", [NSString class]);
  } else if ([q isEqualToString:@"BuildVersion"]) {
    answer = SimProfileValue(@"build", [NSString class]);
  } else if ([q isEqualToString:@"DeviceClass"]) {
    NSNumber *idiom = SimProfileValue(@"idiom", [NSNumber class]);
    if ([SimDeviceProfile() count] > 0) answer = [idiom intValue] == 1 ? @"iPad" : @"iPhone";
  }
  return (CFTypeRef)[answer retain];
}
