#include "core/ProtectedList.hpp"

#include <algorithm>
#include <string>

namespace tessarin {

namespace {

bool isItem(const plist::Value &entry, std::optional<std::string_view> item) {
  const std::string *text = entry.asString();
  return item && text != nullptr && *text == *item;
}

plist::Value::Array storedEntries(const plist::Value *stored) {
  if (stored != nullptr)
    if (const plist::Value::Array *entries = stored->asArray()) return *entries;
  return {};
}

}  // namespace

ProtectedListEdit protectedListEdit(const plist::Value *stored, std::optional<std::string_view> item, bool on) {
  plist::Value::Array entries = storedEntries(stored);
  const bool present =
      std::any_of(entries.begin(), entries.end(), [&](const plist::Value &entry) { return isItem(entry, item); });
  if (on) {
    if (!present && item) entries.push_back(plist::Value::string(std::string(*item)));
  } else {
    entries.erase(
        std::remove_if(entries.begin(), entries.end(), [&](const plist::Value &entry) { return isItem(entry, item); }),
        entries.end());
  }
  return ProtectedListEdit{!on || !present, plist::Value::array(std::move(entries))};
}

bool protectedListContains(const plist::Value *stored, std::string_view item) {
  const plist::Value::Array *entries = stored != nullptr ? stored->asArray() : nullptr;
  return entries != nullptr &&
         std::any_of(entries->begin(), entries->end(), [&](const plist::Value &entry) { return isItem(entry, item); });
}

}  // namespace tessarin
