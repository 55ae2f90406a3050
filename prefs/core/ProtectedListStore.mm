#import "core/ProtectedListStore.h"
#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#import "core/Strings.h"
#include "core/ProtectedList.hpp"

void switchProtectedItem(id item, BOOL on, const tessarin::PreferenceKey *entry) {
  if (entry == NULL) return;
  const std::optional<tessarin::plist::Value> stored = plistValueFromObject(storedPreference(entry));
  const std::optional<std::string> text = utf8String(item);
  const tessarin::ProtectedListEdit edit = tessarin::protectedListEdit(
      stored ? &*stored : nullptr, text ? std::optional<std::string_view>(*text) : std::nullopt, on);
  if (edit.store) {
    storePreference(objectFromPlistValue(edit.list), entry);
  } else if (tessarin::postsChangeSignal(*entry)) {
    postPrefsChanged();
  }
}

BOOL isProtectedItem(id item, const tessarin::PreferenceKey *entry) {
  const std::optional<std::string> text = utf8String(item);
  if (!text || entry == NULL) return NO;
  const std::optional<tessarin::plist::Value> stored = plistValueFromObject(storedPreference(entry));
  return tessarin::protectedListContains(stored ? &*stored : nullptr, *text) ? YES : NO;
}
