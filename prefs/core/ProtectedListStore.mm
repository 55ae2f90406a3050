#import "core/ProtectedListStore.h"

#import "core/PlistBridge.h"
#import "core/PreferenceStore.h"
#include "core/ProtectedList.hpp"

namespace {

std::optional<tessarin::plist::Value> storedList(const tessarin::PreferenceKey *entry) {
  return plistValueFromObject(storedPreference(entry));
}

}  // namespace

BOOL protectedListHolds(const tessarin::PreferenceKey *entry, NSString *item) {
  const char *utf8 = [item UTF8String];
  if (utf8 == NULL) return NO;
  const std::optional<tessarin::plist::Value> stored = storedList(entry);
  return tessarin::protectedListContains(stored ? &*stored : nullptr, utf8) ? YES : NO;
}

void switchProtectedListItem(const tessarin::PreferenceKey *entry, NSString *item, BOOL on) {
  const char *utf8 = [item UTF8String];
  bool stored = false;
  if (utf8 != NULL) {
    const std::optional<tessarin::plist::Value> current = storedList(entry);
    const tessarin::ListEdit edit = tessarin::protectedListEdit(current ? &*current : nullptr, utf8, on);
    if (edit.store) {
      NSMutableArray *list = [NSMutableArray arrayWithCapacity:edit.list.size()];
      for (const std::string &s : edit.list) {
        NSString *text = [[NSString alloc] initWithBytes:s.data() length:s.size() encoding:NSUTF8StringEncoding];
        if (text != nil) [list addObject:text];
        [text release];
      }
      storePreference(list, entry);  // announces the write as the table says
      stored = true;
    }
  }
  if (!stored && tessarin::kListSwitchPostsChangeSignal && tessarin::postsChangeSignal(*entry)) postPrefsChanged();
}
