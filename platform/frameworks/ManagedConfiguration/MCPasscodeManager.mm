#import <ManagedConfiguration/MCPasscodeManager.h>
#include <objc/runtime.h>
#include "Simulator/SimInternal.h"

namespace {

// The first system whose manager has the private passcode record.
constexpr int kPrivateDictFirstMajorVersion = 14;

int profileMajorVersion(void) {
  NSString *version = SimProfileValue(@"systemVersion", [NSString class]);
  return version == nil ? 0 : [version intValue];
}

// The profile's characteristics, reduced to the three known entries; nil without a passcode.
NSDictionary *profileCharacteristics(void) {
  NSString *passcode = SimProfileValue(@"devicePasscode", [NSString class]);
  if (passcode == nil || [passcode length] == 0) return nil;
  NSDictionary *stored = SimProfileValue(@"passcodeCharacteristics", [NSDictionary class]);
  NSMutableDictionary *result = [NSMutableDictionary dictionary];
  BOOL allDigits = [passcode length] > 0, hasAlpha = NO;
  for (NSUInteger i = 0; i < [passcode length]; i++) {
    unichar c = [passcode characterAtIndex:i];
    if (c < '0' || c > '9') allDigits = NO;
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) hasAlpha = YES;
  }
  [result setObject:[NSNumber numberWithBool:allDigits] forKey:@"allDigits"];
  [result setObject:[NSNumber numberWithBool:hasAlpha] forKey:@"hasAlpha"];
  [result setObject:[NSNumber numberWithUnsignedInteger:[passcode length]] forKey:@"length"];
  // Values the profile states win over the derived ones.
  for (NSString *key in @[ @"allDigits", @"hasAlpha", @"length" ]) {
    id value = [stored objectForKey:key];
    if ([value isKindOfClass:[NSNumber class]]) [result setObject:value forKey:key];
  }
  return result;
}

}  // namespace

@implementation MCPasscodeManager

+ (instancetype)sharedManager {
  static MCPasscodeManager *shared = nil;
  @synchronized(self) {
    if (shared == nil) shared = [[MCPasscodeManager alloc] init];
  }
  return shared;
}

- (BOOL)respondsToSelector:(SEL)selector {
  if (sel_isEqual(selector, @selector(_privatePasscodeDictWithOutError:)))
    return profileMajorVersion() >= kPrivateDictFirstMajorVersion;
  return [super respondsToSelector:selector];
}

- (BOOL)isPasscodeSet {
  return profileCharacteristics() != nil;
}

- (NSDictionary *)_privatePasscodeDictWithOutError:(NSError **)outError {
  NSDictionary *characteristics = profileCharacteristics();
  if (characteristics == nil) return nil;
  return [NSDictionary dictionaryWithObject:[NSDictionary dictionaryWithObject:characteristics forKey:@"1"]
                                     forKey:@"characteristics"];
}

- (NSDictionary *)_passcodeCharacteristics {
  return profileCharacteristics();
}

@end
