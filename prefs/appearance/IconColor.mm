#import "appearance/IconColor.h"
#import "core/PlatformAPI.h"
#import "core/BundleLookup.h"
#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#include "core/PreferenceKeys.hpp"

int64_t storedIconColor(void) {
  std::optional<tessarin::plist::Value> value = plistValueFromObject(prefsValueForKey(tessarin::key::kIconColor));
  return tessarin::readIntegerForKey(tessarin::key::kIconColor, value ? &*value : nullptr);
}

void storeIconColor(int64_t value) {
  setPrefsValueForKey([NSNumber numberWithLongLong:value], tessarin::key::kIconColor);
}

UIImage *buttonPageImage(NSString *name) {
  return [UIImage imageNamed:name inBundle:tessarinBundle() compatibleWithTraitCollection:nil];
}
