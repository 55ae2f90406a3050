// The system's biometric settings pages, unlocked with the profile's device passcode.
#import <PreferencesUI/PSUIBiometricSettingsControllerBase.h>
#import <Preferences/PSSpecifier.h>
#import "Simulator/SimInternal.h"

namespace {

constexpr const char *kFaceIDPage = "PSUIPearlPasscodeController";
constexpr const char *kFingerprintPages[] = {
    "PSMesaSettingsController",
    "PSTouchIDPasscodeController",
    "PSUITouchIDPasscodeController",
};

bool profileHasService(NSArray *services, NSString *name) {
  return [services isKindOfClass:[NSArray class]] && [services containsObject:name];
}

}  // namespace

extern "C" BOOL SimSystemControllerAvailable(NSString *className) {
  if (className == nil) return NO;
  NSArray *listed = SimProfileValue(@"systemControllers", [NSArray class]);
  if (listed != nil) return [listed containsObject:className];

  NSArray *services = SimProfileValue(@"ioServices", [NSArray class]);
  bool faceID = profileHasService(services, @"AppleH10PearlCam") || profileHasService(services, @"H11ANEIn");
  bool touchID = profileHasService(services, @"AppleMesa");
  if (faceID && [className isEqualToString:@(kFaceIDPage)]) return YES;
  if (!faceID && !touchID) return NO;
  for (const char *name : kFingerprintPages) {
    if ([className isEqualToString:@(name)]) return YES;
  }
  return NO;
}

@implementation PSUIBiometricSettingsControllerBase

+ (id)allocWithZone:(NSZone *)zone {
  if (!SimSystemControllerAvailable(NSStringFromClass(self))) return nil;
  return [super allocWithZone:zone];
}

- (void)dealloc {
  [_simAuthorizationToken release];
  [super dealloc];
}

- (void)setSpecifier:(PSSpecifier *)specifier {
  [super setSpecifier:specifier];
  [_simAuthorizationToken release];
  _simAuthorizationToken = nil;
  id given = [specifier propertyForKey:@"passcode"];
  NSString *devicePasscode = SimProfileValue(@"devicePasscode", [NSString class]);
  if ([given isKindOfClass:[NSString class]] && devicePasscode != nil && [given isEqualToString:devicePasscode]) {
    _simAuthorizationToken = [[[NSString stringWithFormat:@"token:%@", NSStringFromClass([self class])]
        dataUsingEncoding:NSUTF8StringEncoding] retain];
  }
}

- (NSData *)_authorizationToken {
  return _simAuthorizationToken;
}

- (NSArray *)specifiers {
  if (_specifiers == nil) _specifiers = [[NSMutableArray alloc] init];
  return _specifiers;
}

@end
