#ifndef UIKIT_UIDEVICE_H
#define UIKIT_UIDEVICE_H

#import <UIKit/UIKitDefines.h>

typedef NS_ENUM(NSInteger, UIUserInterfaceIdiom) {
  UIUserInterfaceIdiomUnspecified = -1,
  UIUserInterfaceIdiomPhone = 0,
  UIUserInterfaceIdiomPad = 1,
  UIUserInterfaceIdiomTV = 2,
  UIUserInterfaceIdiomCarPlay = 3,
  UIUserInterfaceIdiomMac = 5,
};

typedef NS_ENUM(NSInteger, UIDeviceOrientation) {
  UIDeviceOrientationUnknown,
  UIDeviceOrientationPortrait,
  UIDeviceOrientationPortraitUpsideDown,
  UIDeviceOrientationLandscapeLeft,
  UIDeviceOrientationLandscapeRight,
  UIDeviceOrientationFaceUp,
  UIDeviceOrientationFaceDown,
};

#define UI_USER_INTERFACE_IDIOM() ([[UIDevice currentDevice] userInterfaceIdiom])

/* The device in use, described by its profile ("idiom", "systemVersion", "deviceName", "model"). */
@interface UIDevice : NSObject
+ (UIDevice *)currentDevice;
@property (nonatomic, readonly) NSString *name;
@property (nonatomic, readonly) NSString *model;
@property (nonatomic, readonly) NSString *localizedModel;
@property (nonatomic, readonly) NSString *systemName;
@property (nonatomic, readonly) NSString *systemVersion;
@property (nonatomic, readonly) UIDeviceOrientation orientation;
@property (nonatomic, readonly) NSUUID *identifierForVendor;
@property (nonatomic, readonly) UIUserInterfaceIdiom userInterfaceIdiom;
@property (nonatomic, readonly, getter=isMultitaskingSupported) BOOL multitaskingSupported;
@property (nonatomic, getter=isBatteryMonitoringEnabled) BOOL batteryMonitoringEnabled;
@property (nonatomic, readonly) float batteryLevel;
- (void)playInputClick;
@end

#endif
