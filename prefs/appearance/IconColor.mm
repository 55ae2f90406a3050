#import "appearance/IconColor.h"
#import "core/PlatformAPI.h"
#import "core/BundleLookup.h"
#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#include "core/PreferenceKeys.hpp"

int64_t storedIconColor(void) {
  std::optional<tessarin::plist::Value> value = plistValueFromObject(storedPreference(&tessarin::key::kIconColor));
  return tessarin::readIntegerForKey(tessarin::key::kIconColor.key, value ? &*value : nullptr);
}

void recordIconTap(std::optional<int64_t> choice) {
  if (choice) {
    storePreference([NSNumber numberWithLongLong:*choice], &tessarin::key::kIconColor);
    if (tessarin::postsChangeSignal(tessarin::key::kIconColor)) return;
  }
  postPrefsChanged();
}

UIImage *buttonPageImage(NSString *name) {
  return [UIImage imageNamed:name inBundle:tessarinBundle() compatibleWithTraitCollection:nil];
}
