#include "core/PreferenceKeys.hpp"

#include <cmath>

namespace tessarin {

const PreferenceKey *findPreferenceKey(std::string_view key) {
  for (const PreferenceKey &k : kPreferenceKeys)
    if (k.key == key) return &k;
  return nullptr;
}

bool readBool(const plist::Value *v, bool absent) {
  if (!v) return absent;
  if (auto b = v->asBool()) return *b;
  if (v->isInteger()) return v->asInteger().value_or(1) != 0;
  if (auto d = v->asReal()) return *d != 0.0;
  return absent;
}

int64_t readInteger(const plist::Value *v, int64_t absent) {
  if (!v) return absent;
  if (auto i = v->asInteger()) return *i;
  if (v->isInteger()) return absent;  // above INT64_MAX
  if (auto b = v->asBool()) return *b ? 1 : 0;
  if (auto d = v->asReal()) {
    // Truncate toward zero when representable; NaN and out-of-range reals are wrong values.
    if (std::isfinite(*d) && *d > -9223372036854775808.0 && *d < 9223372036854775808.0) return static_cast<int64_t>(*d);
  }
  return absent;
}

std::optional<std::string> readString(const plist::Value *v) {
  if (v)
    if (const std::string *s = v->asString()) return *s;
  return std::nullopt;
}

bool readBoolForKey(std::string_view key, const plist::Value *v) {
  const PreferenceKey *k = findPreferenceKey(key);
  const bool absent = k && k->absent == Absent::Value ? k->absentBool : false;
  return readBool(v, absent);
}

int64_t readIntegerForKey(std::string_view key, const plist::Value *v) {
  const PreferenceKey *k = findPreferenceKey(key);
  const int64_t absent = k && k->absent == Absent::Value ? k->absentInteger : 0;
  return readInteger(v, absent);
}

}  // namespace tessarin
