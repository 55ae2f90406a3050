#import "core/ProtectedListStore.h"
#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#include <string>
#include "core/ProtectedList.hpp"

namespace {

std::string itemText(NSString *item) {
  const char *utf8 = [item UTF8String];
  return utf8 != NULL ? std::string(utf8) : std::string();
}

}  // namespace

void switchProtectedItem(NSString *item, BOOL on, const tessarin::PreferenceKey *entry) {
  if (item == nil || entry == NULL) return;
  const std::optional<tessarin::plist::Value> stored = plistValueFromObject(storedPreference(entry));
  const tessarin::ProtectedListEdit edit =
      tessarin::protectedListEdit(stored ? &*stored : nullptr, itemText(item), on);
  if (edit.store) {
    NSMutableArray *list = [NSMutableArray arrayWithCapacity:edit.list.size()];
    for (const std::string &entryText : edit.list) {
      NSString *text = [NSString stringWithUTF8String:entryText.c_str()];
      if (text != nil) [list addObject:text];
    }
    storePreference(list, entry);
  } else if (tessarin::postsChangeSignal(*entry)) {
    postPrefsChanged();
  }
}

BOOL isProtectedItem(NSString *item, const tessarin::PreferenceKey *entry) {
  if (item == nil || entry == NULL) return NO;
  const std::optional<tessarin::plist::Value> stored = plistValueFromObject(storedPreference(entry));
  return tessarin::protectedListContains(stored ? &*stored : nullptr, itemText(item)) ? YES : NO;
}
