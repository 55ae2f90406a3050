// Application preference domains, stored as property lists in the device's
// /var/mobile/Library/Preferences. Each process keeps a cache per domain, loaded on first
// access; writes change the cache and mark the key dirty; a synchronise merges the dirty
// keys onto the file as it is now (under a lock, replacing the file atomically) and reloads.

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include "Simulator/SimInternal.h"
#include "CoreFoundation/CFPreferencesInternal.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <unistd.h>

const CFStringRef kCFPreferencesAnyApplication = (CFStringRef) @"kCFPreferencesAnyApplication";
const CFStringRef kCFPreferencesCurrentApplication = (CFStringRef) @"kCFPreferencesCurrentApplication";
const CFStringRef kCFPreferencesAnyHost = (CFStringRef) @"kCFPreferencesAnyHost";
const CFStringRef kCFPreferencesCurrentHost = (CFStringRef) @"kCFPreferencesCurrentHost";
const CFStringRef kCFPreferencesAnyUser = (CFStringRef) @"kCFPreferencesAnyUser";
const CFStringRef kCFPreferencesCurrentUser = (CFStringRef) @"kCFPreferencesCurrentUser";

#pragma mark - Domains: the cache and the files

// The cached state of one domain in this process.
@interface SimPreferenceDomain : NSObject {
  NSMutableDictionary *_values;
  NSMutableSet *_dirtyKeys;
}
@property (nonatomic, retain) NSMutableDictionary *values;
@property (nonatomic, retain) NSMutableSet *dirtyKeys;
@end

@implementation SimPreferenceDomain
@synthesize values = _values;
@synthesize dirtyKeys = _dirtyKeys;

- (instancetype)init {
  if ((self = [super init])) {
    _values = [[NSMutableDictionary alloc] init];
    _dirtyKeys = [[NSMutableSet alloc] init];
  }
  return self;
}

- (void)dealloc {
  [_values release];
  [_dirtyKeys release];
  [super dealloc];
}
@end

static pthread_mutex_t gPrefsLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
static NSMutableDictionary *gDomains;  // domain name -> SimPreferenceDomain

void SimPreferencesDeviceChanged(void) {
  pthread_mutex_lock(&gPrefsLock);
  [gDomains release];
  gDomains = nil;
  pthread_mutex_unlock(&gPrefsLock);
}

NSString *SimPreferencesDomainName(CFStringRef applicationID) {
  NSString *app = (NSString *)applicationID;
  if (![app isKindOfClass:[NSString class]] || [app length] == 0) return nil;
  if ([app isEqual:(NSString *)kCFPreferencesAnyApplication]) return @".GlobalPreferences";
  if ([app isEqual:(NSString *)kCFPreferencesCurrentApplication]) {
    NSString *bundleID = [[NSBundle mainBundle] bundleIdentifier];
    return bundleID ? bundleID : [[NSProcessInfo processInfo] processName];
  }
  if ([app rangeOfString:@"/"].location != NSNotFound) return nil;
  return app;
}

static NSString *domainPath(NSString *domain) {
  return SimHostPath([NSString stringWithFormat:@"/var/mobile/Library/Preferences/%@.plist", domain]);
}

// The domain's file as a dictionary; anything else (missing, malformed, not a dictionary) is empty.
static NSDictionary *readDomainFile(NSString *path) {
  NSData *data = path ? [NSData dataWithContentsOfFile:path] : nil;
  if ([data length] == 0) return [NSDictionary dictionary];
  id plist = nil;
  @try {
    plist = [NSPropertyListSerialization propertyListWithData:data
                                                      options:NSPropertyListImmutable
                                                       format:NULL
                                                        error:NULL];
  } @catch (NSException *e) {
    plist = nil;
  }
  return [plist isKindOfClass:[NSDictionary class]] ? plist : [NSDictionary dictionary];
}

static BOOL writeDomainFile(NSString *path, NSDictionary *values) {
  NSData *data = [NSPropertyListSerialization dataWithPropertyList:values
                                                            format:NSPropertyListXMLFormat_v1_0
                                                           options:0
                                                             error:NULL];
  if (data == nil || !SimMakeDirectories([path stringByDeletingLastPathComponent])) return NO;
  return [data writeToFile:path atomically:YES];  // temporary file + rename
}

// Exclusive lock on the domain's file across processes; -1 when there is no device.
static int lockDomain(NSString *domain) {
  NSString *dir = SimPrivatePath(@"locks");
  if (dir == nil || !SimMakeDirectories(dir)) return -1;
  NSString *path = [dir stringByAppendingPathComponent:[domain stringByAppendingPathExtension:@"lock"]];
  int fd = open([path fileSystemRepresentation], O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return -1;
  while (flock(fd, LOCK_EX) != 0) {
    if (errno != EINTR) break;
  }
  return fd;
}

static void unlockDomain(int fd) {
  if (fd < 0) return;
  flock(fd, LOCK_UN);
  close(fd);
}

// The cached domain, loaded from disk on first access. Caller holds gPrefsLock.
static SimPreferenceDomain *cachedDomain(NSString *domain) {
  SimDeviceRoot();  // a device named in the environment counts from the first access on
  if (gDomains == nil) gDomains = [[NSMutableDictionary alloc] init];
  SimPreferenceDomain *d = [gDomains objectForKey:domain];
  if (d == nil) {
    d = [[[SimPreferenceDomain alloc] init] autorelease];
    [[d values] addEntriesFromDictionary:readDomainFile(domainPath(domain))];
    [gDomains setObject:d forKey:domain];
  }
  return d;
}

static bool isPropertyList(id value, int depth) {
  if (depth > 64) return false;
  if ([value isKindOfClass:[NSString class]] || [value isKindOfClass:[NSNumber class]] ||
      [value isKindOfClass:[NSData class]] || [value isKindOfClass:[NSDate class]])
    return true;
  if ([value isKindOfClass:[NSArray class]]) {
    for (id item in (NSArray *)value)
      if (!isPropertyList(item, depth + 1)) return false;
    return true;
  }
  if ([value isKindOfClass:[NSDictionary class]]) {
    for (id key in (NSDictionary *)value)
      if (![key isKindOfClass:[NSString class]] || !isPropertyList([(NSDictionary *)value objectForKey:key], depth + 1))
        return false;
    return true;
  }
  return false;
}

// A deep, immutable copy of a property-list value, or nil when it is not one.
static id propertyListCopy(id value) {
  if (value == nil || !isPropertyList(value, 0)) return nil;
  NSData *data = nil;
  @try {
    data = [NSPropertyListSerialization dataWithPropertyList:value
                                                      format:NSPropertyListBinaryFormat_v1_0
                                                     options:0
                                                       error:NULL];
    if (data == nil) return nil;
    return [NSPropertyListSerialization propertyListWithData:data
                                                     options:NSPropertyListImmutable
                                                      format:NULL
                                                       error:NULL];
  } @catch (NSException *e) {
    return nil;
  }
}

#pragma mark - CFPreferences

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID) {
  NSString *domain = SimPreferencesDomainName(applicationID);
  if (domain == nil || ![(id)key isKindOfClass:[NSString class]]) return NULL;
  pthread_mutex_lock(&gPrefsLock);
  id value = [[[cachedDomain(domain) values] objectForKey:(NSString *)key] retain];
  pthread_mutex_unlock(&gPrefsLock);
  return (CFPropertyListRef)value;
}

void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID) {
  NSString *domain = SimPreferencesDomainName(applicationID);
  if (domain == nil || ![(id)key isKindOfClass:[NSString class]]) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  id copy = propertyListCopy((id)value);
  if (value == NULL || copy != nil) {  // values that are not property lists are dropped
    pthread_mutex_lock(&gPrefsLock);
    SimPreferenceDomain *d = cachedDomain(domain);
    if (copy)
      [[d values] setObject:copy forKey:(NSString *)key];
    else
      [[d values] removeObjectForKey:(NSString *)key];
    [[d dirtyKeys] addObject:(NSString *)key];
    pthread_mutex_unlock(&gPrefsLock);
  }
  [pool release];
}

Boolean CFPreferencesAppSynchronize(CFStringRef applicationID) {
  NSString *domain = SimPreferencesDomainName(applicationID);
  if (domain == nil) return false;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  Boolean ok = false;
  NSString *path = domainPath(domain);
  pthread_mutex_lock(&gPrefsLock);
  SimPreferenceDomain *d = cachedDomain(domain);
  if (path != nil) {
    int lock = lockDomain(domain);
    NSMutableDictionary *merged = [[readDomainFile(path) mutableCopy] autorelease];
    ok = true;
    if ([[d dirtyKeys] count] > 0) {
      for (NSString *key in [d dirtyKeys]) {
        id value = [[d values] objectForKey:key];
        if (value)
          [merged setObject:value forKey:key];
        else
          [merged removeObjectForKey:key];
      }
      ok = writeDomainFile(path, merged) ? true : false;
    }
    unlockDomain(lock);
    [[d dirtyKeys] removeAllObjects];
    [d setValues:merged];
  }
  pthread_mutex_unlock(&gPrefsLock);
  [pool release];
  return ok;
}

Boolean CFPreferencesGetAppBooleanValue(CFStringRef key, CFStringRef applicationID,
                                        Boolean *keyExistsAndHasValidFormat) {
  id value = (id)CFPreferencesCopyAppValue(key, applicationID);
  Boolean valid = [value isKindOfClass:[NSNumber class]] || [value isKindOfClass:[NSString class]];
  Boolean result = valid && [value boolValue];
  [value release];
  if (keyExistsAndHasValidFormat) *keyExistsAndHasValidFormat = valid;
  return result;
}

CFIndex CFPreferencesGetAppIntegerValue(CFStringRef key, CFStringRef applicationID,
                                        Boolean *keyExistsAndHasValidFormat) {
  id value = (id)CFPreferencesCopyAppValue(key, applicationID);
  Boolean valid = [value isKindOfClass:[NSNumber class]] || [value isKindOfClass:[NSString class]];
  CFIndex result = valid ? (CFIndex)[value integerValue] : 0;
  [value release];
  if (keyExistsAndHasValidFormat) *keyExistsAndHasValidFormat = valid;
  return result;
}

CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef applicationID, CFStringRef userName,
                                         CFStringRef hostName) {
  return CFPreferencesCopyAppValue(key, applicationID);
}

void CFPreferencesSetValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID, CFStringRef userName,
                           CFStringRef hostName) {
  CFPreferencesSetAppValue(key, value, applicationID);
}

Boolean CFPreferencesSynchronize(CFStringRef applicationID, CFStringRef userName, CFStringRef hostName) {
  return CFPreferencesAppSynchronize(applicationID);
}

CFArrayRef CFPreferencesCopyKeyList(CFStringRef applicationID, CFStringRef userName, CFStringRef hostName) {
  NSString *domain = SimPreferencesDomainName(applicationID);
  if (domain == nil) return NULL;
  pthread_mutex_lock(&gPrefsLock);
  NSArray *keys = [[[cachedDomain(domain) values] allKeys] copy];
  pthread_mutex_unlock(&gPrefsLock);
  if ([keys count] == 0) {
    [keys release];
    return NULL;
  }
  return (CFArrayRef)keys;
}

#pragma mark - The store for NSUserDefaults

void SimPreferencesReplaceDomain(NSString *domain, NSDictionary *values) {
  NSString *path = domainPath(domain);
  pthread_mutex_lock(&gPrefsLock);
  SimPreferenceDomain *d = cachedDomain(domain);
  if (path != nil) {
    int lock = lockDomain(domain);
    writeDomainFile(path, values ? values : [NSDictionary dictionary]);
    unlockDomain(lock);
  }
  [[d dirtyKeys] removeAllObjects];
  [d setValues:[NSMutableDictionary dictionaryWithDictionary:values ? values : [NSDictionary dictionary]]];
  pthread_mutex_unlock(&gPrefsLock);
}

NSDictionary *SimPreferencesDomainSnapshot(NSString *domain) {
  CFPreferencesAppSynchronize((CFStringRef)domain);
  pthread_mutex_lock(&gPrefsLock);
  NSDictionary *values = [[[cachedDomain(domain) values] copy] autorelease];
  pthread_mutex_unlock(&gPrefsLock);
  return values;
}

NSDictionary *SimPreferencesCachedValues(NSString *domain) {
  pthread_mutex_lock(&gPrefsLock);
  NSDictionary *values = [[[cachedDomain(domain) values] copy] autorelease];
  pthread_mutex_unlock(&gPrefsLock);
  return values;
}
