// The bundle's way in and out of the product's preference domain. Every write a
// page makes is followed by postPrefsChanged() so SpringBoard re-reads the domain.
#pragma once
#import <Foundation/Foundation.h>

// Plain C entry points, so tools and tests can find them by name.
#ifdef __cplusplus
extern "C" {
#endif

// Synchronise, set (nil removes the key), synchronise. Posts nothing.
void setPrefsValueForKey(id value, const char *key);
// Synchronise, then copy the value: the caller owns the result (nil when absent).
id getPrefsValueForKey(const char *key) NS_RETURNS_RETAINED;
// getPrefsValueForKey, autoreleased.
id prefsValueForKey(const char *key);

// Tells SpringBoard that the domain changed.
void postPrefsChanged(void);

// True while SpringBoard's grace period runs (its notify state is above 0).
BOOL gracePeriodIsActive(void);

// Removes every key of the domain and posts one change notification.
void resetAllPreferences(void);

#ifdef __cplusplus
}
#endif
