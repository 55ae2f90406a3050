// libFuzzer target for the property-list readers and writers and the
// keyed-archive coder: no input may crash them, and whatever they accept
// must come back the same through every writer (decode, write, decode again).
//   archive_fuzz -dict=tests/fuzz/plist.dict corpus
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"

namespace plist = tessarin::plist;
using plist::Value;

namespace {

// XML writes dates in whole seconds; the binary format keeps the double.
enum class Dates { Exact, WholeSeconds };

bool sameReal(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

// Deep equality as Value's ==, except that NaN equals NaN (reals may be NaN in
// either format) and, for XML, a date equals its whole seconds.
bool same(const Value &a, const Value &b, Dates dates) {
  if (a.kind() != b.kind()) return false;
  switch (a.kind()) {
    case Value::Kind::Real:
      return sameReal(*a.asReal(), *b.asReal());
    case Value::Kind::Date:
      return dates == Dates::Exact ? sameReal(*a.asDate(), *b.asDate()) : std::floor(*a.asDate()) == *b.asDate();
    case Value::Kind::Array: {
      const Value::Array &x = *a.asArray(), &y = *b.asArray();
      if (x.size() != y.size()) return false;
      for (size_t i = 0; i < x.size(); ++i)
        if (!same(x[i], y[i], dates)) return false;
      return true;
    }
    case Value::Kind::Dictionary: {
      if (a.size() != b.size()) return false;
      for (const Value::Entry &e : *a.asDictionary()) {
        const Value *other = b.find(e.first);
        if (!other || !same(e.second, *other, dates)) return false;
      }
      return true;
    }
    default:
      return a == b;
  }
}

void check(bool ok) {
  if (!ok) std::abort();
}

const uint8_t *bytesOf(const std::string &s) { return reinterpret_cast<const uint8_t *>(s.data()); }

// A decoded property list through both writers and back.
void roundTripPlist(const Value &v) {
  const std::vector<uint8_t> bin = plist::writeBinaryPlist(v);
  if (!bin.empty()) {
    std::optional<Value> back = plist::readBinaryPlist(bin.data(), bin.size());
    check(back && same(v, *back, Dates::Exact));
    check(plist::writeBinaryPlist(*back) == bin);
  }
  // Empty: what writeXmlPlist refuses (a string that is not UTF-8 or holds a
  // character XML cannot carry, a date that is not finite or beyond a 32-bit year).
  const std::string xml = plist::writeXmlPlist(v);
  if (!xml.empty()) {
    std::optional<Value> back = plist::readXmlPlist(bytesOf(xml), xml.size());
    check(back && same(v, *back, Dates::WholeSeconds));
    check(plist::readPlist(bytesOf(xml), xml.size()).has_value());
  }
}

// A decoded archive through both archive writers and back.
void roundTripArchive(const Value &v) {
  const std::vector<uint8_t> bin = plist::encodeKeyedArchive(v);
  if (!bin.empty()) {
    std::optional<Value> back = plist::decodeKeyedArchive(bin.data(), bin.size());
    check(back && same(v, *back, Dates::Exact));
    check(plist::encodeKeyedArchive(*back) == bin);
  }
  const std::string xml = plist::encodeKeyedArchiveXml(v);
  if (!xml.empty()) {
    std::optional<Value> back = plist::decodeKeyedArchive(bytesOf(xml), xml.size());
    check(back && same(v, *back, Dates::Exact));  // archives carry dates as reals
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  if (std::optional<Value> v = plist::decodeKeyedArchive(data, size)) roundTripArchive(*v);
  if (std::optional<Value> p = plist::readPlist(data, size)) roundTripPlist(*p);
  return 0;
}
