// A property-list value: boolean, integer, real, string, data, date, array
// or dictionary. Plain C++, no exceptions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tessarin::plist {

class Value {
 public:
  enum class Kind { Boolean, Integer, Real, String, Data, Date, Array, Dictionary };

  using Bytes = std::vector<uint8_t>;
  using Array = std::vector<Value>;
  /// Dictionaries keep their keys in insertion order; keys are unique
  /// (setting an existing key replaces its value in place).
  using Entry = std::pair<std::string, Value>;
  using Dictionary = std::vector<Entry>;

  /// A default-constructed value is the boolean false.
  Value() noexcept;

  static Value boolean(bool b);
  static Value integer(int64_t i);
  /// Values up to INT64_MAX become ordinary (signed) integers; larger ones
  /// are kept as unsigned integers.
  static Value unsignedInteger(uint64_t u);
  static Value real(double d);
  static Value string(std::string s);
  static Value data(Bytes bytes);
  /// Seconds since 2001-01-01 00:00:00 UTC.
  static Value date(double secondsSinceReferenceDate);
  static Value array(Array items = {});
  /// A dictionary of the entries in their order, where a repeated key keeps the place
  /// of its first entry and the value of its last (as set() would leave them one by
  /// one). O(n log n) in the number of entries: the readers build every dictionary
  /// through here, so a file of many keys costs no more than sorting them.
  static Value dictionary(Dictionary entries = {});

  Kind kind() const noexcept;
  bool isBoolean() const noexcept { return kind() == Kind::Boolean; }
  bool isInteger() const noexcept { return kind() == Kind::Integer; }
  bool isReal() const noexcept { return kind() == Kind::Real; }
  bool isString() const noexcept { return kind() == Kind::String; }
  bool isData() const noexcept { return kind() == Kind::Data; }
  bool isDate() const noexcept { return kind() == Kind::Date; }
  bool isArray() const noexcept { return kind() == Kind::Array; }
  bool isDictionary() const noexcept { return kind() == Kind::Dictionary; }
  /// Boolean, integer or real.
  bool isNumber() const noexcept;
  /// An integer above INT64_MAX.
  bool isUnsignedInteger() const noexcept;

  /// Exact-kind accessors: nullopt / nullptr when the kind differs.
  std::optional<bool> asBool() const noexcept;
  /// nullopt for integers above INT64_MAX.
  std::optional<int64_t> asInteger() const noexcept;
  /// nullopt for negative integers.
  std::optional<uint64_t> asUnsigned() const noexcept;
  std::optional<double> asReal() const noexcept;
  std::optional<double> asDate() const noexcept;
  const std::string *asString() const noexcept;
  const Bytes *asData() const noexcept;
  const Array *asArray() const noexcept;
  const Dictionary *asDictionary() const noexcept;
  Array *asArray() noexcept;
  Dictionary *asDictionary() noexcept;

  /// Any number (boolean, integer, real) as a double; nullopt otherwise.
  std::optional<double> numberValue() const noexcept;

  /// Dictionary lookup; nullptr when not a dictionary or the key is absent.
  const Value *find(std::string_view key) const noexcept;
  Value *find(std::string_view key) noexcept;
  /// Array element; nullptr when not an array or out of range.
  const Value *at(size_t index) const noexcept;
  /// Element count of an array or dictionary, byte count of data or string; 0 otherwise.
  size_t size() const noexcept;

  /// Dictionary: sets (or replaces) a key. Returns false when not a dictionary.
  /// Linear in the size of the dictionary: build large ones with dictionary(entries).
  bool set(std::string key, Value value);
  /// Dictionary: removes a key. Returns false when absent or not a dictionary.
  bool erase(std::string_view key);
  /// Array: appends. Returns false when not an array.
  bool append(Value value);

  /// Deep equality. Dictionaries compare as maps (key order does not
  /// matter); reals compare with ==, so NaN is not equal to itself; an
  /// integer never equals a real or a boolean.
  friend bool operator==(const Value &a, const Value &b) noexcept;
  friend bool operator!=(const Value &a, const Value &b) noexcept { return !(a == b); }

 private:
  struct Int {
    int64_t bits;     ///< the value, or the two's complement image of an unsigned value
    bool isUnsigned;  ///< set only for values above INT64_MAX
  };
  struct DateRep {
    double seconds;
  };
  using Storage = std::variant<bool, Int, double, std::string, Bytes, DateRep, Array, Dictionary>;

  explicit Value(Storage s) noexcept;
  Storage storage_;
};

}  // namespace tessarin::plist
