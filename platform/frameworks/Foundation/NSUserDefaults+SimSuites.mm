// NSUserDefaults on the device's preference store: a suite reads and writes its preference
// domain through CFPreferences, and the standard defaults' named persistent domains are the
// device's domains too.
#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include "CoreFoundation/CFPreferencesInternal.h"
#include "Simulator/SimInternal.h"

#include <objc/runtime.h>

#pragma mark - Suites

// A suite's defaults: reads and writes go to the preference domain of the suite.
@interface SimSuiteUserDefaults : NSUserDefaults {
  NSString *_suiteName;
  NSMutableDictionary *_registered;
}
@property (nonatomic, copy) NSString *suiteName;
@property (nonatomic, retain) NSMutableDictionary *registered;
- (instancetype)initSuite:(NSString *)suiteName;
@end

@implementation SimSuiteUserDefaults
@synthesize suiteName = _suiteName;
@synthesize registered = _registered;

- (instancetype)initSuite:(NSString *)suiteName {
  // NSUserDefaults' own set-up (the user's defaults database) is skipped on purpose:
  // every method a suite answers is overridden here.
  _suiteName = [suiteName copy];
  _registered = [[NSMutableDictionary alloc] init];
  return self;
}

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wobjc-missing-super-calls"
- (void)dealloc {
  [_suiteName release];
  [_registered release];
  // NSUserDefaults' -dealloc would tear down state this object never set up.
  IMP rootDealloc = class_getMethodImplementation([NSObject class], @selector(dealloc));
  ((void (*)(id, SEL))rootDealloc)(self, _cmd);
}
#pragma clang diagnostic pop

- (id)objectForKey:(NSString *)defaultName {
  id value = [(id)CFPreferencesCopyAppValue((CFStringRef)defaultName, (CFStringRef)_suiteName) autorelease];
  return value ? value : [_registered objectForKey:defaultName];
}

- (void)setObject:(id)value forKey:(NSString *)defaultName {
  CFPreferencesSetAppValue((CFStringRef)defaultName, (CFPropertyListRef)value, (CFStringRef)_suiteName);
}

- (void)removeObjectForKey:(NSString *)defaultName {
  CFPreferencesSetAppValue((CFStringRef)defaultName, NULL, (CFStringRef)_suiteName);
}

- (BOOL)synchronize {
  return CFPreferencesAppSynchronize((CFStringRef)_suiteName) ? YES : NO;
}

- (void)registerDefaults:(NSDictionary *)dictionary {
  [_registered addEntriesFromDictionary:dictionary];
}

- (NSDictionary *)dictionaryRepresentation {
  NSMutableDictionary *all = [NSMutableDictionary dictionaryWithDictionary:_registered];
  [all addEntriesFromDictionary:SimPreferencesCachedValues(_suiteName)];
  return all;
}

- (NSString *)stringForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return [value isKindOfClass:[NSString class]] ? value : nil;
}

- (NSArray *)arrayForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return [value isKindOfClass:[NSArray class]] ? value : nil;
}

- (NSDictionary *)dictionaryForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return [value isKindOfClass:[NSDictionary class]] ? value : nil;
}

- (NSData *)dataForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return [value isKindOfClass:[NSData class]] ? value : nil;
}

static BOOL isScalar(id value) {
  return [value isKindOfClass:[NSNumber class]] || [value isKindOfClass:[NSString class]];
}

- (BOOL)boolForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return isScalar(value) ? [value boolValue] : NO;
}

- (NSInteger)integerForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return isScalar(value) ? [value integerValue] : 0;
}

- (float)floatForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return isScalar(value) ? [value floatValue] : 0;
}

- (double)doubleForKey:(NSString *)defaultName {
  id value = [self objectForKey:defaultName];
  return isScalar(value) ? [value doubleValue] : 0;
}

- (void)setBool:(BOOL)value forKey:(NSString *)defaultName {
  [self setObject:[NSNumber numberWithBool:value] forKey:defaultName];
}

- (void)setInteger:(NSInteger)value forKey:(NSString *)defaultName {
  [self setObject:[NSNumber numberWithInteger:value] forKey:defaultName];
}

- (void)setFloat:(float)value forKey:(NSString *)defaultName {
  [self setObject:[NSNumber numberWithFloat:value] forKey:defaultName];
}

- (void)setDouble:(double)value forKey:(NSString *)defaultName {
  [self setObject:[NSNumber numberWithDouble:value] forKey:defaultName];
}

- (NSDictionary *)persistentDomainForName:(NSString *)domain {
  return SimPreferencesDomainSnapshot(domain);
}

- (void)setPersistentDomain:(NSDictionary *)domain forName:(NSString *)domainName {
  SimPreferencesReplaceDomain(domainName, domain);
}

- (void)removePersistentDomainForName:(NSString *)domain {
  SimPreferencesReplaceDomain(domain, nil);
}
@end

@implementation NSUserDefaults (SimSuites)
- (instancetype)initWithSuiteName:(NSString *)suiteName {
  if (suiteName == nil || [suiteName length] == 0) return [self init];
  // This object never ran NSUserDefaults' initialiser: free it without its -dealloc.
  NSDeallocateObject(self);
  return [[SimSuiteUserDefaults alloc] initSuite:suiteName];
}
@end

#pragma mark - Persistent domains

// The standard defaults reach the device's preference domains for named persistent domains.
static IMP gOriginalRemoveDomain, gOriginalPersistentDomain, gOriginalSetDomain;

static void simRemovePersistentDomain(id self, SEL _cmd, NSString *domain) {
  if (SimDeviceRoot() != NULL && [domain isKindOfClass:[NSString class]] &&
      SimPreferencesDomainName((CFStringRef)domain))
    SimPreferencesReplaceDomain(domain, nil);
  else
    ((void (*)(id, SEL, NSString *))gOriginalRemoveDomain)(self, _cmd, domain);
}

static NSDictionary *simPersistentDomain(id self, SEL _cmd, NSString *domain) {
  if (SimDeviceRoot() != NULL && [domain isKindOfClass:[NSString class]] &&
      SimPreferencesDomainName((CFStringRef)domain))
    return SimPreferencesDomainSnapshot(domain);
  return ((NSDictionary * (*)(id, SEL, NSString *)) gOriginalPersistentDomain)(self, _cmd, domain);
}

static void simSetPersistentDomain(id self, SEL _cmd, NSDictionary *values, NSString *domain) {
  if (SimDeviceRoot() != NULL && [domain isKindOfClass:[NSString class]] &&
      SimPreferencesDomainName((CFStringRef)domain))
    SimPreferencesReplaceDomain(domain, values);
  else
    ((void (*)(id, SEL, NSDictionary *, NSString *))gOriginalSetDomain)(self, _cmd, values, domain);
}

@interface SimUserDefaultsLoader : NSObject
@end

@implementation SimUserDefaultsLoader
+ (void)load {
  Class cls = objc_getClass("NSUserDefaults");
  struct {
    SEL sel;
    IMP imp;
    IMP *original;
  } hooks[] = {
      {@selector(removePersistentDomainForName:), (IMP)simRemovePersistentDomain, &gOriginalRemoveDomain},
      {@selector(persistentDomainForName:), (IMP)simPersistentDomain, &gOriginalPersistentDomain},
      {@selector(setPersistentDomain:forName:), (IMP)simSetPersistentDomain, &gOriginalSetDomain},
  };
  for (auto &h : hooks) {
    Method m = class_getInstanceMethod(cls, h.sel);
    if (m) *h.original = method_setImplementation(m, h.imp);
  }
}
@end
