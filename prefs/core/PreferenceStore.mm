#import "core/PreferenceStore.h"
#import "core/PlatformAPI.h"
#include <stdint.h>
#include "core/Names.hpp"

namespace {

// Registered on first use and kept for the life of the process.
uint32_t gracePeriodToken = UINT32_MAX;

CFStringRef copyASCIIString(const char *bytes) {
  return CFStringCreateWithCString(kCFAllocatorDefault, bytes, kCFStringEncodingASCII);
}

}  // namespace

void setPrefsValueForKey(id value, const char *key) {
  if (key == NULL) return;
  CFStringRef domain = copyASCIIString(tessarin::kDomain);
  CFStringRef name = copyASCIIString(key);
  if (domain != NULL && name != NULL) {
    CFPreferencesAppSynchronize(domain);
    CFPreferencesSetAppValue(name, (CFPropertyListRef)value, domain);
    CFPreferencesAppSynchronize(domain);
  }
  if (name != NULL) CFRelease(name);
  if (domain != NULL) CFRelease(domain);
}

id getPrefsValueForKey(const char *key) {
  if (key == NULL) return nil;
  CFStringRef domain = copyASCIIString(tessarin::kDomain);
  CFStringRef name = copyASCIIString(key);
  CFPropertyListRef value = NULL;
  if (domain != NULL && name != NULL) {
    CFPreferencesAppSynchronize(domain);
    value = CFPreferencesCopyAppValue(name, domain);
  }
  if (name != NULL) CFRelease(name);
  if (domain != NULL) CFRelease(domain);
  return (id)value;
}

id prefsValueForKey(const char *key) { return [getPrefsValueForKey(key) autorelease]; }

void storePreference(id value, const tessarin::PreferenceKey *entry) {
  if (entry == NULL) return;
  setPrefsValueForKey(value, entry->name());
  if (tessarin::postsChangeSignal(*entry)) postPrefsChanged();
}

id storedPreference(const tessarin::PreferenceKey *entry) {
  return entry != NULL ? prefsValueForKey(entry->name()) : nil;
}

void postPrefsChanged(void) { notify_post(tessarin::kPrefsChangedNotification); }

BOOL gracePeriodIsActive(void) {
  if (gracePeriodToken == UINT32_MAX) {
    int token = 0;
    if (notify_register_check(tessarin::kGracePeriodNotification, &token) != NOTIFY_STATUS_OK) return NO;
    gracePeriodToken = (uint32_t)token;
  }
  uint64_t state = 0;
  notify_get_state((int)gracePeriodToken, &state);
  return state > 0;
}

void resetAllPreferences(void) {
  [[NSUserDefaults standardUserDefaults] removePersistentDomainForName:@(tessarin::kDomain)];
  if (tessarin::kResetAllPostsChangeSignal) postPrefsChanged();
}
