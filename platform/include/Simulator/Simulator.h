/*
 * The simulated device: one directory tree that stands for the device's file system,
 * described by a device profile (a property list under platform/profiles/).
 *
 * Linux only. The product reaches it through its path module; tests and the Settings
 * host use it directly. Child processes find the device through TESSARIN_DEVICE_ROOT.
 */
#ifndef SIMULATOR_SIMULATOR_H
#define SIMULATOR_SIMULATOR_H

#include <stdbool.h>
#include <stddef.h>
#include <sys/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Environment variable that names the device root for this process and its children. */
#define SIM_DEVICE_ROOT_ENV "TESSARIN_DEVICE_ROOT"
/* The profile used when none is named. */
#define SIM_DEFAULT_PROFILE "iphone-faceid-ios16"
/* Environment variable that overrides the folder the profiles are read from. */
#define SIM_PROFILES_DIR_ENV "TESSARIN_PROFILES_DIR"
/* Darwin notification a simulated SpringBoard posts once it answers messages. */
#define SIM_SPRINGBOARD_READY_NOTIFICATION "net.corvane.tessarin.simulator.ready"

/* Lays out a fresh device tree at `root` (created if missing, emptied if present) from
   `profile`: a profile name under platform/profiles (without ".plist") or a path to a
   profile plist. Creates the profile's files (add-on libraries, application bundles...).
   Returns 0 on success, -1 with errno-style failure otherwise. */
int SimDeviceCreate(const char *root, const char *profile);

/* Deletes the device tree at `root` (stops using it first when it is the device in use).
   Returns 0 on success, -1 otherwise. */
int SimDeviceRemove(const char *root);

/* Puts `language` (a language ID: "de", "pt-BR", "zh-Hans") first among the user's languages of
   the device in use, as a user who chose it in Settings does; the languages before follow it.
   Meant for before the device's processes start. Returns 0 on success, -1 otherwise. */
int SimDeviceChooseLanguage(const char *language);

/* Makes `root` the device of this process (NULL: no device); also exports SIM_DEVICE_ROOT_ENV so processes
   started afterwards share it. Drops every per-process cache tied to the previous device
   (preference caches, notify registrations, profile). */
void SimDeviceUse(const char *root);

/* Creates a unique fresh device under the system temp folder and uses it.
   Returns the root (owned by the simulator; valid until the next call). */
const char *SimDeviceCreateTemporary(const char *profile);

/* The device root in use: set by SimDeviceUse, else SIM_DEVICE_ROOT_ENV, else NULL. */
const char *SimDeviceRoot(void);

/* Host path of an absolute device path ("/tmp/x" -> "<root>/tmp/x"). Writes into buf
   (size bytes); returns buf, or NULL when there is no device or the buffer is too small. */
char *SimDevicePath(const char *devicePath, char *buf, size_t size);

/* Counts of Darwin notifications posted on this device, by any process, since it was created. */
unsigned SimNotifyPostCount(const char *name);
/* How many notify tokens this process has registered for `name`, on any device. */
unsigned SimNotifyRegistrationCount(const char *name);

/* Number of IOServiceGetMatchingService calls made in this process. */
unsigned SimIOKitMatchCount(void);

/* The process's ordered record of platform calls (see SimEventLog below); the Settings host
   adds "load <bundle name>" before it loads a preference bundle. */
void SimEventLogAppend(const char *event);

/* Runs the calling thread's run loop (the main one, in practice) for `seconds`. */
void SimRunLoopRunFor(double seconds);

/* The display pass: what iOS does when a run-loop turn ends (Core Animation's commit): the
   UIKit stand-in lays out its windows there, so tables make the cells of the rows on screen.
   SimRunLoopRunFor, SimRunLoopRunUntil and SimClockAdvance run it after every turn. */
void SimRunLoopSetDisplayPass(void (*pass)(void));
void SimRunLoopDisplayPass(void);

/* Starts the simulated SpringBoard executable at `path` on the current device and waits
   until it is ready to answer. Returns its pid, or -1. */
pid_t SimSpringBoardStart(const char *path);
/* The same, giving up (and stopping it) after `timeout` seconds; SimSpringBoardStart waits 30 s. */
pid_t SimSpringBoardStartWithin(const char *path, double timeout);
/* Stops it (SIGTERM, then waits). */
void SimSpringBoardStop(pid_t pid);

#ifdef __cplusplus
}
#endif

/* The clock that the main run loop's delayed work waits on: main-queue dispatch_after,
   performSelector:withObject:afterDelay: on the main thread and UIKit's animation and
   transition timeline. It follows real time unless a test stops it: then time moves only
   with SimClockAdvance (and SimRunLoopRunFor / SimRunLoopRunUntil, which advance it). */
double SimClockNow(void);
void SimClockUseVirtualTime(void);
/* Back on real time; work the stopped clock had not reached waits the rest of its delay. */
void SimClockUseRealTime(void);
bool SimClockIsVirtual(void);
/* Moves the stopped clock on by exactly `seconds`, running in due order everything that
   falls due by then (each at its own time, work it schedules included) and whatever the
   run loop has ready. Does nothing on real time. */
void SimClockAdvance(double seconds);

#ifdef __OBJC__
#import <Foundation/Foundation.h>
/* Runs `block` on the main thread `delay` seconds from now on the clock above, after
   everything due at or before that moment. Main thread only. */
FOUNDATION_EXPORT void SimClockSchedule(double delay, void (^block)(void));
/* The profile of the device in use (an immutable dictionary; empty when none). */
FOUNDATION_EXPORT NSDictionary *SimDeviceProfile(void);
/* What this process asked of the platform, in order, one string each:
   "MSHookMessageEx -[Class selector]" (or "+[...]" on a metaclass), "notify_register_check NAME"
   (and _plain, _dispatch), "NSLog MESSAGE", "operatingSystemVersionString" (each read),
   "load NAME" (the Settings host loading a bundle). Kept for the life of the process. */
FOUNDATION_EXPORT NSArray *SimEventLog(void);
/* The user's languages, most preferred first: the profile's "languages" (English when it names
   none). NSLocale's preferredLanguages answers the same. */
FOUNDATION_EXPORT NSArray *SimUserLanguages(void);
/* The localisation iOS shows a bundle in: the first of `preferences` that one of `available`
   (.lproj names) matches, with iOS's fallbacks (script and region dropped, zh-Hans/zh_CN,
   zh-Hant/zh_TW, nb/no, pt as Brazilian, old names such as "English"); else the development
   region when available; else nil. */
FOUNDATION_EXPORT NSString *SimBestLocalization(NSArray *available, NSArray *preferences, NSString *developmentRegion);
/* Runs the run loop until `condition` returns YES or `timeout` seconds pass; returns the last answer. */
FOUNDATION_EXPORT BOOL SimRunLoopRunUntil(BOOL (^condition)(void), double timeout);
#endif

#endif
