#import "UIKitInternal.h"

@implementation UIDevice
+ (UIDevice *)currentDevice {
  static UIDevice *device;
  if (!device) device = [[UIDevice alloc] init];
  return device;
}
- (NSString *)_simProfileString:(NSString *)key fallback:(NSString *)fallback {
  id v = [SimUIKitProfile() objectForKey:key];
  return [v isKindOfClass:[NSString class]] && [v length] ? v : fallback;
}
- (UIUserInterfaceIdiom)userInterfaceIdiom {
  id v = [SimUIKitProfile() objectForKey:@"idiom"];
  if ([v isKindOfClass:[NSString class]])
    return [v isEqualToString:@"pad"] ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
  return [v respondsToSelector:@selector(integerValue)] ? (UIUserInterfaceIdiom)[v integerValue]
                                                        : UIUserInterfaceIdiomPhone;
}
- (NSString *)name {
  return [self _simProfileString:@"deviceName" fallback:@"iPhone"];
}
- (NSString *)model {
  return self.userInterfaceIdiom == UIUserInterfaceIdiomPad ? @"iPad" : @"iPhone";
}
- (NSString *)localizedModel {
  return self.model;
}
- (NSString *)systemName {
  return @"iOS";
}
- (NSString *)systemVersion {
  return [self _simProfileString:@"systemVersion" fallback:@"16.0"];
}
- (UIDeviceOrientation)orientation {
  return UIDeviceOrientationPortrait;
}
- (NSUUID *)identifierForVendor {
  return [[[NSUUID alloc] initWithUUIDString:@"6F1C2A34-5B7D-4E8F-9A0B-1C2D3E4F5A6B"] autorelease];
}
- (BOOL)isMultitaskingSupported {
  return YES;
}
- (BOOL)isBatteryMonitoringEnabled {
  return NO;
}
- (void)setBatteryMonitoringEnabled:(BOOL)enabled {
}
- (float)batteryLevel {
  return -1;
}
- (void)playInputClick {
}
- (void)_playSystemSound:(unsigned int)soundID {
  [SimUIKitRecords().sounds addObject:[NSNumber numberWithUnsignedInt:soundID]];
}
@end
