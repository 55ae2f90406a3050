#include "core/plist/Value.hpp"

#include <algorithm>
#include <limits>
#include <numeric>

namespace tessarin::plist {
namespace {

// Folds repeated keys the way set() does one key at a time: the first entry of a key
// keeps its place and takes the value of the last one. Positions are sorted by key, so
// the time is O(n log n) whatever the keys are (a hash table could be made quadratic by
// keys chosen to collide).
void mergeRepeatedKeys(Value::Dictionary &entries) {
  const size_t n = entries.size();
  if (n < 2) return;
  std::vector<size_t> order(n);
  std::iota(order.begin(), order.end(), size_t{0});
  std::sort(order.begin(), order.end(), [&entries](size_t a, size_t b) {
    const int c = entries[a].first.compare(entries[b].first);
    return c < 0 || (c == 0 && a < b);
  });
  std::vector<uint8_t> folded(n, 0);
  bool anyFolded = false;
  for (size_t i = 0; i < n;) {
    size_t end = i + 1;
    while (end < n && entries[order[end]].first == entries[order[i]].first) ++end;
    if (end - i > 1) {
      entries[order[i]].second = std::move(entries[order[end - 1]].second);
      for (size_t k = i + 1; k < end; ++k) folded[order[k]] = 1;
      anyFolded = true;
    }
    i = end;
  }
  if (!anyFolded) return;
  size_t kept = 0;
  for (size_t i = 0; i < n; ++i) {
    if (folded[i]) continue;
    if (kept != i) entries[kept] = std::move(entries[i]);
    ++kept;
  }
  entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(kept), entries.end());
}

}  // namespace

Value::Value() noexcept : storage_(false) {}

Value::Value(Storage s) noexcept : storage_(std::move(s)) {}

Value Value::boolean(bool b) { return Value(Storage(std::in_place_type<bool>, b)); }

Value Value::integer(int64_t i) { return Value(Storage(std::in_place_type<Int>, Int{i, false})); }

Value Value::unsignedInteger(uint64_t u) {
  if (u <= static_cast<uint64_t>(std::numeric_limits<int64_t>::max())) return integer(static_cast<int64_t>(u));
  return Value(Storage(std::in_place_type<Int>, Int{static_cast<int64_t>(u), true}));
}

Value Value::real(double d) { return Value(Storage(std::in_place_type<double>, d)); }

Value Value::string(std::string s) { return Value(Storage(std::in_place_type<std::string>, std::move(s))); }

Value Value::data(Bytes bytes) { return Value(Storage(std::in_place_type<Bytes>, std::move(bytes))); }

Value Value::date(double secondsSinceReferenceDate) {
  return Value(Storage(std::in_place_type<DateRep>, DateRep{secondsSinceReferenceDate}));
}

Value Value::array(Array items) { return Value(Storage(std::in_place_type<Array>, std::move(items))); }

Value Value::dictionary(Dictionary entries) {
  mergeRepeatedKeys(entries);
  return Value(Storage(std::in_place_type<Dictionary>, std::move(entries)));
}

Value::Kind Value::kind() const noexcept {
  switch (storage_.index()) {
    case 0:
      return Kind::Boolean;
    case 1:
      return Kind::Integer;
    case 2:
      return Kind::Real;
    case 3:
      return Kind::String;
    case 4:
      return Kind::Data;
    case 5:
      return Kind::Date;
    case 6:
      return Kind::Array;
    default:
      return Kind::Dictionary;
  }
}

bool Value::isNumber() const noexcept { return isBoolean() || isInteger() || isReal(); }

bool Value::isUnsignedInteger() const noexcept {
  const Int *i = std::get_if<Int>(&storage_);
  return i && i->isUnsigned;
}

std::optional<bool> Value::asBool() const noexcept {
  if (const bool *b = std::get_if<bool>(&storage_)) return *b;
  return std::nullopt;
}

std::optional<int64_t> Value::asInteger() const noexcept {
  const Int *i = std::get_if<Int>(&storage_);
  if (!i || i->isUnsigned) return std::nullopt;
  return i->bits;
}

std::optional<uint64_t> Value::asUnsigned() const noexcept {
  const Int *i = std::get_if<Int>(&storage_);
  if (!i || (!i->isUnsigned && i->bits < 0)) return std::nullopt;
  return static_cast<uint64_t>(i->bits);
}

std::optional<double> Value::asReal() const noexcept {
  if (const double *d = std::get_if<double>(&storage_)) return *d;
  return std::nullopt;
}

std::optional<double> Value::asDate() const noexcept {
  if (const DateRep *d = std::get_if<DateRep>(&storage_)) return d->seconds;
  return std::nullopt;
}

const std::string *Value::asString() const noexcept { return std::get_if<std::string>(&storage_); }
const Value::Bytes *Value::asData() const noexcept { return std::get_if<Bytes>(&storage_); }
const Value::Array *Value::asArray() const noexcept { return std::get_if<Array>(&storage_); }
const Value::Dictionary *Value::asDictionary() const noexcept { return std::get_if<Dictionary>(&storage_); }
Value::Array *Value::asArray() noexcept { return std::get_if<Array>(&storage_); }
Value::Dictionary *Value::asDictionary() noexcept { return std::get_if<Dictionary>(&storage_); }

std::optional<double> Value::numberValue() const noexcept {
  if (const bool *b = std::get_if<bool>(&storage_)) return *b ? 1.0 : 0.0;
  if (const double *d = std::get_if<double>(&storage_)) return *d;
  if (const Int *i = std::get_if<Int>(&storage_)) {
    if (i->isUnsigned) return static_cast<double>(static_cast<uint64_t>(i->bits));
    return static_cast<double>(i->bits);
  }
  return std::nullopt;
}

const Value *Value::find(std::string_view key) const noexcept {
  const Dictionary *d = asDictionary();
  if (!d) return nullptr;
  for (const Entry &e : *d)
    if (e.first == key) return &e.second;
  return nullptr;
}

Value *Value::find(std::string_view key) noexcept {
  return const_cast<Value *>(static_cast<const Value *>(this)->find(key));
}

const Value *Value::at(size_t index) const noexcept {
  const Array *a = asArray();
  if (!a || index >= a->size()) return nullptr;
  return &(*a)[index];
}

size_t Value::size() const noexcept {
  if (const Array *a = asArray()) return a->size();
  if (const Dictionary *d = asDictionary()) return d->size();
  if (const std::string *s = asString()) return s->size();
  if (const Bytes *b = asData()) return b->size();
  return 0;
}

bool Value::set(std::string key, Value value) {
  Dictionary *d = asDictionary();
  if (!d) return false;
  for (Entry &e : *d) {
    if (e.first == key) {
      e.second = std::move(value);
      return true;
    }
  }
  d->emplace_back(std::move(key), std::move(value));
  return true;
}

bool Value::erase(std::string_view key) {
  Dictionary *d = asDictionary();
  if (!d) return false;
  for (auto it = d->begin(); it != d->end(); ++it) {
    if (it->first == key) {
      d->erase(it);
      return true;
    }
  }
  return false;
}

bool Value::append(Value value) {
  Array *a = asArray();
  if (!a) return false;
  a->push_back(std::move(value));
  return true;
}

bool operator==(const Value &a, const Value &b) noexcept {
  if (a.storage_.index() != b.storage_.index()) return false;
  switch (a.kind()) {
    case Value::Kind::Boolean:
      return *a.asBool() == *b.asBool();
    case Value::Kind::Integer: {
      const auto &x = std::get<Value::Int>(a.storage_);
      const auto &y = std::get<Value::Int>(b.storage_);
      return x.bits == y.bits && x.isUnsigned == y.isUnsigned;
    }
    case Value::Kind::Real:
      return *a.asReal() == *b.asReal();
    case Value::Kind::String:
      return *a.asString() == *b.asString();
    case Value::Kind::Data:
      return *a.asData() == *b.asData();
    case Value::Kind::Date:
      return *a.asDate() == *b.asDate();
    case Value::Kind::Array:
      return *a.asArray() == *b.asArray();
    case Value::Kind::Dictionary: {
      const Value::Dictionary &x = *a.asDictionary();
      const Value::Dictionary &y = *b.asDictionary();
      if (x.size() != y.size()) return false;
      for (const Value::Entry &e : x) {
        const Value *other = b.find(e.first);
        if (!other || !(*other == e.second)) return false;
      }
      return true;
    }
  }
  return false;
}

}  // namespace tessarin::plist
