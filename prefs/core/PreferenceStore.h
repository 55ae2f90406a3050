// The bundle's way in and out of the product's preference domain. Pages name
// keys by their entries in the key table (core/PreferenceKeys.hpp) and write
// them with storePreference, which posts the change signal, so SpringBoard
// re-reads the domain, exactly when the table says so.
#pragma once
#import <Foundation/Foundation.h>

#ifdef __cplusplus
#include "core/PreferenceKeys.hpp"
#endif

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
// setPrefsValueForKey under the entry's key (nil removes it), then the change
// signal when the entry's writes are announced (postsChangeSignal).
void storePreference(id value, const tessarin::PreferenceKey *entry);
// prefsValueForKey under the entry's key: autoreleased, nil when absent.
id storedPreference(const tessarin::PreferenceKey *entry);
}
#endif
