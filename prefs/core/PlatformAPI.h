/*
 * The platform API of the bundle: system frameworks, private classes and methods, and
 * the functions it looks up by name at run time. Every Objective-C++ source of the
 * bundle imports this header for them instead of naming framework headers itself.
 *
 * Two builds compile the same sources:
 * - the device build (Theos, iOS SDK), TESSARIN_SIMULATED 0: public SDK headers, the
 *   substrate and jail-root headers of Theos, and our own declarations of the private
 *   frameworks' classes in core/ios/;
 * - the Linux build (CMake), TESSARIN_SIMULATED 1: the stand-in frameworks under
 *   platform/include, which declare those classes under Apple's header paths.
 * Private members of public classes (UIKit, the Settings app) are declared below for
 * both builds.
 *
 * Rules for callers:
 * - Classes of frameworks the bundle does not link are reached by name:
 *   NSClassFromString(@"CPDistributedMessagingCenter"), @"MCPasscodeManager",
 *   @"PKGlyphView", @"FSSwitchPanel", and the system's biometric settings pages.
 *   Their declarations only make messages to the looked-up class type-check.
 * - MobileGestalt, MobileWiFi and Accessibility functions are looked up with
 *   dlsym(RTLD_DEFAULT, "..."); use the pointer types at the end of this header.
 * - Code that only makes sense on Linux goes under #if TESSARIN_SIMULATED.
 * - Pass kIOMasterPortDefault to IOKit (kIOMainPortDefault exists only from iOS 15).
 */
#ifndef TESSARIN_PLATFORM_API_H
#define TESSARIN_PLATFORM_API_H

#ifndef __OBJC__
#error "core/PlatformAPI.h is for Objective-C++ sources; the C++ core stays free of platform API"
#endif

#ifndef TESSARIN_SIMULATED
#define TESSARIN_SIMULATED 0
#endif

#import <Foundation/Foundation.h>
#import <UIKit/UIKit.h>
#import <QuartzCore/QuartzCore.h>
#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>
#include <dlfcn.h>
#include <notify.h>
#include <objc/runtime.h>
#include <libroot.h>
#include <substrate.h>

#if TESSARIN_SIMULATED

#include <IOKit/IOKitLib.h>
#import <Preferences/Preferences.h>
#import <AppSupport/CPDistributedMessagingCenter.h>
#import <ManagedConfiguration/MCPasscodeManager.h>
#if __has_include(<PassKit/PKGlyphView.h>)
#import <PassKit/PKGlyphView.h>
#endif
#if __has_include(<Flipswitch/FSSwitchPanel.h>)
#import <Flipswitch/FSSwitchPanel.h>
#endif
#if __has_include(<MessageUI/MessageUI.h>)
#import <MessageUI/MessageUI.h>
#endif

#else  // device build

// The iOS SDK ships IOKit without headers; Theos may or may not provide them.
#if __has_include(<IOKit/IOKitLib.h>)
#include <IOKit/IOKitLib.h>
#else
#include "ios/IOKitDeclarations.h"
#endif
#import <MessageUI/MessageUI.h>
#import "ios/PrivateFrameworks.h"

#endif

#pragma mark - Private members of public classes

// No SDK header declares these on either build; the device's UIKit and the Settings
// app implement them, and so does the Linux stand-in.

@interface UIApplication (TessarinSettingsApp)
// The Settings app's root navigation controller (the Settings application only).
- (UINavigationController *)rootController;
@end

@interface UINavigationController (TessarinSettingsApp)
// On the Settings app's root controller: the list of Settings panes (class PrefsListController).
- (id)rootListController;
@end

@interface UIDevice (TessarinPrivate)
- (void)_playSystemSound:(unsigned int)soundID;
@end

@interface UIImage (TessarinPrivate)
+ (UIImage *)imageNamed:(NSString *)name inBundle:(NSBundle *)bundle;
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format;
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier
                                               format:(int)format
                                                scale:(CGFloat)scale;
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed;
@end

@interface UITableViewCell (TessarinPrivate)
@property (nonatomic, retain) UIColor *separatorColor;
@end

// The system's biometric settings pages, reached by name: PSUIPearlPasscodeController,
// PSMesaSettingsController, PSTouchIDPasscodeController, PSUITouchIDPasscodeController
// (PSViewController subclasses, made with initForContentSize:). Given the device passcode
// as their specifier's "passcode" property, an unlocked page holds an authorisation
// token; which of the two getters a system has varies, so ask respondsToSelector: first.
@protocol TessarinBiometricSettingsPage <NSObject>
@optional
- (NSData *)_authorizationToken;
- (NSData *)authorizationToken;
@end

#pragma mark - Functions looked up with dlsym(RTLD_DEFAULT, name)

#ifdef __cplusplus
extern "C" {
#endif

// MobileGestalt: MGCopyAnswer("UserAssignedDeviceName"), ("DeviceCornerRadius"); +1 result.
typedef CFPropertyListRef (*MGCopyAnswerFunction)(CFStringRef question);

// Accessibility: whether the system-wide dark (inverted) mode is on.
typedef Boolean (*AXInvertColorsIsSystemWideDarkModeEnabledFunction)(void);

// MobileWiFi. Handles are opaque CoreFoundation objects.
typedef struct __WiFiManagerClient *WiFiManagerClientRef;
typedef struct __WiFiDeviceClient *WiFiDeviceClientRef;
typedef struct __WiFiNetwork *WiFiNetworkRef;

typedef WiFiManagerClientRef (*WiFiManagerClientCreateFunction)(CFAllocatorRef allocator, int flags);
typedef void (*WiFiManagerClientScheduleWithRunLoopFunction)(WiFiManagerClientRef client, CFRunLoopRef runLoop,
                                                             CFStringRef mode);
// +1 arrays of WiFiDeviceClientRef / WiFiNetworkRef.
typedef CFArrayRef (*WiFiManagerClientCopyDevicesFunction)(WiFiManagerClientRef client);
typedef CFArrayRef (*WiFiManagerClientCopyNetworksFunction)(WiFiManagerClientRef client);
typedef WiFiNetworkRef (*WiFiDeviceClientCopyCurrentNetworkFunction)(WiFiDeviceClientRef device);
// Not owned by the caller: "SSID_STR", "BSSID".
typedef CFTypeRef (*WiFiNetworkGetPropertyFunction)(WiFiNetworkRef network, CFStringRef property);
// +1 string, or NULL.
typedef CFStringRef (*WiFiNetworkCopyPasswordFunction)(WiFiNetworkRef network);
// +1 dictionary with "SSID_STR", "BSSID", "lastJoined".
typedef CFDictionaryRef (*WiFiNetworkCopyRecordFunction)(WiFiNetworkRef network);

#ifdef __cplusplus
}
#endif

#endif
