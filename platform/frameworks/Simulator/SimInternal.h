/*
 * Private glue between the stand-in frameworks: device switching, host paths and
 * small file helpers shared by preferences, notify and the rest.
 */
#ifndef SIMULATOR_SIMINTERNAL_H
#define SIMULATOR_SIMINTERNAL_H

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Per-process caches tied to the device in use; each is dropped when the device changes. */
void SimPreferencesDeviceChanged(void);
void SimNotifyDeviceChanged(void);

/* Changes every time the device in use changes (0 before any device is known). */
unsigned SimDeviceGeneration(void);

/* Host path of a device path, or nil without a device. */
NSString *SimHostPath(NSString *devicePath);
/* Host path of the simulator's private folder "<root>/.simulator/<name>", or nil. */
NSString *SimPrivatePath(NSString *name);

/* Creates a folder and its parents; YES when it exists afterwards. */
BOOL SimMakeDirectories(NSString *hostPath);

/* Calls [target sel:arg] later on the main run loop (never synchronously, even on the main thread). */
void SimPerformOnMainLoop(id target, SEL sel, id arg);

/* Property-list values of the profile in use (nil when absent or of another type). */
id SimProfileValue(NSString *key, Class expectedClass);

/* The jail root of the device in use: "/var/jb" (rootless) or "" (rootful). */
const char *SimJailRootPrefix(void);

/* Localisation as iOS does it (Foundation/SimLocalization.mm). The .lproj names at the top of
   a bundle; the folders searched for one of its tables (its top, the .lproj of the user's
   language, the development region's); a strings table (UTF-8 or UTF-16 with a byte order
   mark, strings format or property list; nil when malformed); the writing direction of a
   language. */
NSArray *SimBundleLocalizations(NSString *bundlePath);
NSArray *SimLocalizationSearchFolders(NSString *bundlePath, NSString *developmentRegion);
NSDictionary *SimReadStringsTable(NSString *path);
NSLocaleLanguageDirection SimCharacterDirection(NSString *language);

#ifdef __cplusplus
}
#endif

#endif
