/*
 * The platform API of the bundle: system frameworks, private classes and methods, and
 * the functions it looks up by name at run time. Every Objective-C++ source of the
 * bundle imports this header for them instead of naming framework headers itself.
 *
 * Two builds compile the same sources:
 * - the device build (Theos, iOS SDK), TESSARIN_SIMULATED 0: public SDK headers, the
 *   substrate and jail-root headers of Theos, and our own declarations of the private
 *   API in core/ios/;
 * - the Linux build (CMake), TESSARIN_SIMULATED 1: the stand-in frameworks under
 *   platform/include, which declare the private API under Apple's header paths.
 *
 * Rules for callers:
 * - Classes of frameworks the bundle does not link are reached by name:
 *   NSClassFromString(@"CPDistributedMessagingCenter"), @"MCPasscodeManager",
 *   @"PKGlyphView", @"FSSwitchPanel", and the system's biometric settings pages.
 *   Their declarations only make messages to the looked-up class type-check.
 * - MobileGestalt, MobileWiFi and Accessibility functions are looked up with
 *   dlsym(RTLD_DEFAULT, "..."); use the pointer types at the end of this header.
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
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSViewController.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSEditableListController.h>
#import <Preferences/PSTableCell.h>
#import <Preferences/PSSwitchTableCell.h>
#import <Preferences/PSPasscodeField.h>
#import <Preferences/PSFooterHyperlinkView.h>
#import <AppSupport/CPDistributedMessagingCenter.h>
#if __has_include(<ManagedConfiguration/MCPasscodeManager.h>)
#import <ManagedConfiguration/MCPasscodeManager.h>
#endif
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
