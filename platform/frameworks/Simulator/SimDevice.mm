// The simulated device: its root folder, its profile and the system identity it gives
// to the processes that run on it.

#import <Foundation/Foundation.h>
#include <string>
#include <Simulator/Simulator.h>
#include <Simulator/SimSystemFiles.h>
#include <Simulator/SimApplications.h>
#include <Simulator/SimSystemResources.h>
#include "SimInternal.h"

#include <errno.h>
#include <ftw.h>
#include <unistd.h>
#include <limits.h>
#include <objc/runtime.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#ifndef TESSARIN_PROFILES_DIR
#define TESSARIN_PROFILES_DIR "platform/profiles"
#endif

static pthread_mutex_t gDeviceLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
static char gRoot[PATH_MAX];
static bool gRootKnown;  // gRoot was set by SimDeviceUse (possibly to "none")
static unsigned gGeneration;
static NSDictionary *gProfile;  // profile of the device in use, loaded on first use
static char gTemporaryRoot[PATH_MAX];

// MARK: - Small file helpers

BOOL SimMakeDirectories(NSString *hostPath) {
  if (hostPath == nil) return NO;
  BOOL isDir = NO;
  NSFileManager *fm = [NSFileManager defaultManager];
  if ([fm fileExistsAtPath:hostPath isDirectory:&isDir]) return isDir;
  return [fm createDirectoryAtPath:hostPath withIntermediateDirectories:YES attributes:nil error:NULL];
}

static int removeEntry(const char *path, const struct stat *st, int flag, struct FTW *ftw) {
  (void)st;
  (void)ftw;
  if (flag == FTW_DP || flag == FTW_D) return rmdir(path) == 0 || errno == ENOENT ? 0 : -1;
  return unlink(path) == 0 || errno == ENOENT ? 0 : -1;
}

// Removes everything under `root` (and `root` itself when `keepRoot` is false).
static int removeTree(const char *root, bool keepRoot) {
  if (root == NULL || root[0] == '\0' || strcmp(root, "/") == 0) {
    errno = EINVAL;
    return -1;
  }
  struct stat st;
  if (lstat(root, &st) != 0) return errno == ENOENT ? 0 : -1;
  if (nftw(root, removeEntry, 16, FTW_DEPTH | FTW_PHYS) != 0 && errno != ENOENT) return -1;
  if (keepRoot && mkdir(root, 0755) != 0 && errno != EEXIST) return -1;
  return 0;
}

// MARK: - Profiles

static NSString *profilePathFor(const char *profile) {
  if (profile == NULL || profile[0] == '\0') profile = SIM_DEFAULT_PROFILE;
  NSString *name = [NSString stringWithUTF8String:profile];
  if (name == nil) return nil;
  if ([name rangeOfString:@"/"].location != NSNotFound || [name hasSuffix:@".plist"]) return name;
  const char *dir = getenv(SIM_PROFILES_DIR_ENV);
  if (dir == NULL || dir[0] == '\0') dir = TESSARIN_PROFILES_DIR;
  return [[NSString stringWithUTF8String:dir]
      stringByAppendingPathComponent:[name stringByAppendingPathExtension:@"plist"]];
}

static NSDictionary *readDictionary(NSString *path) {
  NSData *data = path ? [NSData dataWithContentsOfFile:path] : nil;
  if (data == nil) return nil;
  id plist = nil;
  @try {
    plist = [NSPropertyListSerialization propertyListWithData:data
                                                      options:NSPropertyListImmutable
                                                       format:NULL
                                                        error:NULL];
  } @catch (NSException *e) {
    plist = nil;
  }
  return [plist isKindOfClass:[NSDictionary class]] ? plist : nil;
}

// Fills in what the profile leaves implicit, so every process reads the same values.
static NSDictionary *completedProfile(NSDictionary *profile) {
  NSMutableDictionary *p = [[profile mutableCopy] autorelease];
  NSString *passcode = [p objectForKey:@"devicePasscode"];
  if ([passcode isKindOfClass:[NSString class]] &&
      ![[p objectForKey:@"passcodeCharacteristics"] isKindOfClass:[NSDictionary class]]) {
    BOOL allDigits = [passcode length] > 0, hasAlpha = NO;
    for (NSUInteger i = 0; i < [passcode length]; i++) {
      unichar c = [passcode characterAtIndex:i];
      if (c < '0' || c > '9') allDigits = NO;
      if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) hasAlpha = YES;
    }
    NSDictionary *chars = [NSDictionary
        dictionaryWithObjectsAndKeys:[NSNumber numberWithBool:allDigits], @"allDigits",
                                     [NSNumber numberWithBool:hasAlpha], @"hasAlpha",
                                     [NSNumber numberWithUnsignedInteger:[passcode length]], @"length", nil];
    [p setObject:chars forKey:@"passcodeCharacteristics"];
  }
  if ([p objectForKey:@"jailbreak"] == nil) [p setObject:@"rootless" forKey:@"jailbreak"];
  return p;
}

static BOOL writeEntry(NSString *root, id entry) {
  NSString *devicePath = nil;
  id contents = nil;
  id linkTarget = nil;
  if ([entry isKindOfClass:[NSString class]]) {
    devicePath = entry;
  } else if ([entry isKindOfClass:[NSDictionary class]]) {
    devicePath = [entry objectForKey:@"path"];
    contents = [entry objectForKey:@"contents"];
    linkTarget = [entry objectForKey:@"symlink"];
  }
  if (![devicePath isKindOfClass:[NSString class]] || ![devicePath isAbsolutePath]) return NO;
  NSString *hostPath = [root stringByAppendingString:devicePath];
  if ([devicePath hasSuffix:@"/"]) return SimMakeDirectories(hostPath);
  if (!SimMakeDirectories([hostPath stringByDeletingLastPathComponent])) return NO;
  // A symbolic link holds its target as written: a device path, as the device would have it.
  if ([linkTarget isKindOfClass:[NSString class]])
    return symlink([linkTarget fileSystemRepresentation], [hostPath fileSystemRepresentation]) == 0;
#ifdef TESSARIN_TOGGLE_LIBRARY_PATH
  // The toggle library is a real library of this build: the device holds it (linked in)
  // where the profile installs it, so loading it by its device path gives its classes.
  if (contents == nil && [[devicePath lastPathComponent] isEqualToString:@"libflipswitch.dylib"] &&
      access(TESSARIN_TOGGLE_LIBRARY_PATH, R_OK) == 0)
    return symlink(TESSARIN_TOGGLE_LIBRARY_PATH, [hostPath fileSystemRepresentation]) == 0;
#endif
  NSData *data = nil;
  if ([contents isKindOfClass:[NSString class]]) {
    data = [contents dataUsingEncoding:NSUTF8StringEncoding];
  } else if ([contents isKindOfClass:[NSData class]]) {
    data = contents;
  } else if ([contents isKindOfClass:[NSDictionary class]] || [contents isKindOfClass:[NSArray class]]) {
    data = [NSPropertyListSerialization dataWithPropertyList:contents
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:NULL];
  } else {
    data = [@"simulated\n" dataUsingEncoding:NSUTF8StringEncoding];
  }
  return [data writeToFile:hostPath atomically:YES];
}

int SimDeviceCreate(const char *root, const char *profile) {
  if (root == NULL || root[0] != '/') {
    errno = EINVAL;
    return -1;
  }
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  int result = -1;
  NSDictionary *loaded = readDictionary(profilePathFor(profile));
  if (loaded == nil) {
    errno = ENOENT;
  } else if (removeTree(root, true) == 0) {
    NSString *rootPath = [NSString stringWithUTF8String:root];
    NSDictionary *p = completedProfile(loaded);
    bool rootless = ![[p objectForKey:@"jailbreak"] isEqual:@"rootful"];
    NSString *jb = rootless ? @"/var/jb" : @"";
    NSArray *folders =
        [NSArray arrayWithObjects:@"/.simulator/notify", @"/tmp", @"/var/mobile/Library/Preferences",
                                  @"/var/mobile/Library/Logs/CrashReporter", @"/Applications",
                                  @"/System/Library/ControlCenter/Bundles", [jb stringByAppendingString:@"/tmp"],
                                  [jb stringByAppendingString:@"/Library/PreferenceBundles"],
                                  [jb stringByAppendingString:@"/Library/MobileSubstrate/DynamicLibraries"], nil];
    BOOL ok = YES;
    for (NSUInteger i = 0; i < [folders count]; i++)
      ok = ok && SimMakeDirectories([rootPath stringByAppendingString:[folders objectAtIndex:i]]);
    NSData *data = [NSPropertyListSerialization dataWithPropertyList:p
                                                              format:NSPropertyListXMLFormat_v1_0
                                                             options:0
                                                               error:NULL];
    ok = ok && [data writeToFile:[rootPath stringByAppendingPathComponent:@".simulator/profile.plist"] atomically:YES];
    NSArray *files = [p objectForKey:@"files"];
    if ([files isKindOfClass:[NSArray class]]) {
      for (NSUInteger i = 0; i < [files count]; i++) writeEntry(rootPath, [files objectAtIndex:i]);
    }
    ok = ok && SimInstallSystemFiles(root) == 0;
    ok = ok && SimInstallSystemFrameworks(root, p) == 0;
    ok = ok && SimInstallProfileApplications(root, p) == 0;
    ok = ok && SimInstallSystemResources(root, p) == 0;
    if (ok)
      result = 0;
    else
      errno = EIO;
  }
  [pool release];
  return result;
}

int SimDeviceRemove(const char *root) {
  if (root == NULL) return -1;
  const char *current = SimDeviceRoot();
  if (current != NULL && strcmp(current, root) == 0) SimDeviceUse(NULL);
  return removeTree(root, false);
}

// MARK: - Device in use

static void installSystemIdentity(void);

void SimDeviceUse(const char *root) {
  pthread_mutex_lock(&gDeviceLock);
  if (root != NULL && strlen(root) < sizeof gRoot) {
    strcpy(gRoot, root);
    setenv(SIM_DEVICE_ROOT_ENV, root, 1);
  } else {
    gRoot[0] = '\0';
    unsetenv(SIM_DEVICE_ROOT_ENV);
  }
  gRootKnown = true;
  gGeneration++;
  [gProfile release];
  gProfile = nil;
  pthread_mutex_unlock(&gDeviceLock);
  SimPreferencesDeviceChanged();
  SimNotifyDeviceChanged();
  installSystemIdentity();
}

const char *SimDeviceRoot(void) {
  pthread_mutex_lock(&gDeviceLock);
  if (!gRootKnown) {
    const char *env = getenv(SIM_DEVICE_ROOT_ENV);
    if (env != NULL && env[0] == '/' && strlen(env) < sizeof gRoot) strcpy(gRoot, env);
    gRootKnown = true;
    gGeneration++;
  }
  const char *root = gRoot[0] ? gRoot : NULL;
  pthread_mutex_unlock(&gDeviceLock);
  return root;
}

unsigned SimDeviceGeneration(void) {
  SimDeviceRoot();
  return gGeneration;
}

const char *SimDeviceCreateTemporary(const char *profile) {
  const char *tmp = getenv("TMPDIR");
  if (tmp == NULL || tmp[0] != '/') tmp = "/tmp";
  char path[PATH_MAX];
  if (snprintf(path, sizeof path, "%s/tessarin-device-XXXXXX", tmp) >= (int)sizeof path) return NULL;
  if (mkdtemp(path) == NULL) return NULL;
  if (SimDeviceCreate(path, profile) != 0) {
    removeTree(path, false);
    return NULL;
  }
  strcpy(gTemporaryRoot, path);
  SimDeviceUse(gTemporaryRoot);
  return gTemporaryRoot;
}

char *SimDevicePath(const char *devicePath, char *buf, size_t size) {
  const char *root = SimDeviceRoot();
  if (root == NULL || devicePath == NULL || buf == NULL) return NULL;
  const char *sep = devicePath[0] == '/' ? "" : "/";
  int n = snprintf(buf, size, "%s%s%s", root, sep, devicePath);
  if (n < 0 || (size_t)n >= size) return NULL;
  return buf;
}

NSString *SimHostPath(NSString *devicePath) {
  char buf[PATH_MAX];
  const char *path = [devicePath fileSystemRepresentation];
  if (path == NULL || SimDevicePath(path, buf, sizeof buf) == NULL) return nil;
  return [NSString stringWithUTF8String:buf];
}

NSString *SimPrivatePath(NSString *name) { return SimHostPath([@"/.simulator" stringByAppendingPathComponent:name]); }

NSDictionary *SimDeviceProfile(void) {
  const char *root = SimDeviceRoot();
  pthread_mutex_lock(&gDeviceLock);
  if (gProfile == nil && root != NULL) {
    NSString *path = [[NSString stringWithUTF8String:root] stringByAppendingPathComponent:@".simulator/profile.plist"];
    gProfile = [readDictionary(path) copy];
  }
  NSDictionary *profile = [[gProfile retain] autorelease];
  pthread_mutex_unlock(&gDeviceLock);
  return profile ? profile : [NSDictionary dictionary];
}

int SimDeviceChooseLanguage(const char *language) {
  const char *root = SimDeviceRoot();
  if (root == NULL || language == NULL || language[0] == '\0' || strchr(language, '/') != NULL) return -1;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *path = [[NSString stringWithUTF8String:root] stringByAppendingPathComponent:@".simulator/profile.plist"];
  NSMutableDictionary *profile = [[readDictionary(path) mutableCopy] autorelease];
  NSString *chosen = [NSString stringWithUTF8String:language];
  int result = -1;
  if (profile != nil && chosen != nil) {
    // As Settings does when the user picks a language: it goes first, the others follow.
    NSMutableArray *languages = [NSMutableArray arrayWithObject:chosen];
    id before = [profile objectForKey:@"languages"];
    for (id other in [before isKindOfClass:[NSArray class]] ? before : @[ @"en" ])
      if ([other isKindOfClass:[NSString class]] && ![other isEqual:chosen]) [languages addObject:other];
    [profile setObject:languages forKey:@"languages"];
    NSData *data = [NSPropertyListSerialization dataWithPropertyList:profile
                                                              format:NSPropertyListXMLFormat_v1_0
                                                             options:0
                                                               error:NULL];
    if ([data writeToFile:path atomically:YES]) {
      std::string again(root);      // the root may be the buffer SimDeviceUse writes
      SimDeviceUse(again.c_str());  // every cache made from the old profile goes
      result = 0;
    }
  }
  [pool release];
  return result;
}

id SimProfileValue(NSString *key, Class expectedClass) {
  id value = [SimDeviceProfile() objectForKey:key];
  return (value != nil && (expectedClass == Nil || [value isKindOfClass:expectedClass])) ? value : nil;
}

const char *SimJailRootPrefix(void) {
  return [SimProfileValue(@"jailbreak", [NSString class]) isEqual:@"rootful"] ? "" : "/var/jb";
}

// MARK: - System identity

// NSProcessInfo reports the profile's system version, as iOS words it.
static IMP gOriginalVersionString;

static NSString *simOperatingSystemVersionString(id self, SEL _cmd) {
  SimEventLogAppend("operatingSystemVersionString");
  NSDictionary *profile = SimDeviceProfile();
  NSString *version = [profile objectForKey:@"systemVersion"];
  NSString *build = [profile objectForKey:@"build"];
  if ([version isKindOfClass:[NSString class]]) {
    if (![build isKindOfClass:[NSString class]]) build = @"0A000";
    return [NSString stringWithFormat:@"Version %@ (Build %@)", version, build];
  }
  return gOriginalVersionString ? ((NSString * (*)(id, SEL)) gOriginalVersionString)(self, _cmd) : nil;
}

static void installSystemIdentity(void) {
  static pthread_once_t once = PTHREAD_ONCE_INIT;
  pthread_once(&once, [] {
    Class cls = [NSProcessInfo class];
    SEL sel = @selector(operatingSystemVersionString);
    Method m = class_getInstanceMethod(cls, sel);
    if (m == NULL) return;
    gOriginalVersionString = method_getImplementation(m);
    class_replaceMethod(cls, sel, (IMP)simOperatingSystemVersionString, method_getTypeEncoding(m));
  });
}

// Processes started on a device (through SIM_DEVICE_ROOT_ENV) take its identity at load.
@interface SimDeviceLoader : NSObject
@end

@implementation SimDeviceLoader
+ (void)load {
  if (getenv(SIM_DEVICE_ROOT_ENV) != NULL) installSystemIdentity();
}
@end
