/*
 * The preference store behind CFPreferences, for NSUserDefaults' suites and persistent
 * domains (Foundation/NSUserDefaults+SimSuites.mm).
 */
#ifndef COREFOUNDATION_CFPREFERENCESINTERNAL_H
#define COREFOUNDATION_CFPREFERENCESINTERNAL_H

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The domain an application ID names (kCFPreferencesAnyApplication: ".GlobalPreferences",
   kCFPreferencesCurrentApplication: the main bundle's identifier), or nil for anything that
   is not a domain name (not a string, empty, or holding a "/"). */
NSString *SimPreferencesDomainName(CFStringRef applicationID);
/* The domain as this process has it cached (loaded on first use), without synchronising. */
NSDictionary *SimPreferencesCachedValues(NSString *domain);
/* The domain after a synchronise. */
NSDictionary *SimPreferencesDomainSnapshot(NSString *domain);
/* Replaces the whole domain on disk (nil: empties it) and the cache with it. */
void SimPreferencesReplaceDomain(NSString *domain, NSDictionary *values);

#ifdef __cplusplus
}
#endif

#endif
