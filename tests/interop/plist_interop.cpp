// The C++ side of the writers' differential test (plist_interop.py): writes seeded
// random values with each writer, checks that our readers take every file back, and
// prints what our readers see in files the other tools wrote, all as canonical JSON
// that the Python side compares with what plistlib and libplist's plistutil read.
//   plist_interop write <dir> <seed> <count>   files + <dir>/manifest.jsonl
//   plist_interop read <kind> <file>...        one JSON line per file ("null": refused)
// <kind> is "plist" (plain property lists) or "archive" (the raw tree, UIDs kept).
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"
#include "core/plist/RawNode.hpp"
#include "core/plist/Value.hpp"

namespace plist = tessarin::plist;
using plist::RawNode;
using plist::Value;

namespace {

void appendJsonString(std::string &out, const std::string &s) {
  out += '"';
  for (char c : s) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char buf[8];
      std::snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned>(c));
      out += buf;
    } else {
      out += c;
    }
  }
  out += '"';
}

std::string bitsOf(double d) {
  if (std::isnan(d)) return "nan";
  uint64_t bits;
  std::memcpy(&bits, &d, sizeof bits);
  char buf[20];
  std::snprintf(buf, sizeof buf, "%016llx", static_cast<unsigned long long>(bits));
  return buf;
}

// {"b":true} {"i":"-3"} {"r":"<IEEE bits>"|"nan"} {"d":...} {"s":"..."} {"x":"<hex>"}
// {"u":"7"} {"a":[...]} {"k":[["key",...],...]} (dictionary entries in their order).
void appendJson(std::string &out, const Value &v) {
  switch (v.kind()) {
    case Value::Kind::Boolean:
      out += *v.asBool() ? "{\"b\":true}" : "{\"b\":false}";
      return;
    case Value::Kind::Integer:
      out += "{\"i\":\"";
      out += v.isUnsignedInteger() ? std::to_string(*v.asUnsigned()) : std::to_string(*v.asInteger());
      out += "\"}";
      return;
    case Value::Kind::Real:
      out += "{\"r\":\"" + bitsOf(*v.asReal()) + "\"}";
      return;
    case Value::Kind::Date:
      out += "{\"d\":\"" + bitsOf(*v.asDate()) + "\"}";
      return;
    case Value::Kind::String:
      out += "{\"s\":";
      appendJsonString(out, *v.asString());
      out += "}";
      return;
    case Value::Kind::Data: {
      out += "{\"x\":\"";
      for (uint8_t b : *v.asData()) {
        char buf[3];
        std::snprintf(buf, sizeof buf, "%02x", b);
        out += buf;
      }
      out += "\"}";
      return;
    }
    case Value::Kind::Array: {
      out += "{\"a\":[";
      bool first = true;
      for (const Value &item : *v.asArray()) {
        if (!first) out += ',';
        first = false;
        appendJson(out, item);
      }
      out += "]}";
      return;
    }
    case Value::Kind::Dictionary: {
      out += "{\"k\":[";
      bool first = true;
      for (const auto &e : *v.asDictionary()) {
        if (!first) out += ',';
        first = false;
        out += '[';
        appendJsonString(out, e.first);
        out += ',';
        appendJson(out, e.second);
        out += ']';
      }
      out += "]}";
      return;
    }
  }
}

// The raw tree of an archive; a dictionary whose only key is "CF$UID" holding a
// non-negative integer is a UID, as in an XML archive, whoever wrote the file.
void appendJson(std::string &out, const RawNode &n) {
  switch (n.kind) {
    case RawNode::Kind::Scalar:
      appendJson(out, n.scalar);
      return;
    case RawNode::Kind::Uid:
      out += "{\"u\":\"" + std::to_string(n.uid) + "\"}";
      return;
    case RawNode::Kind::Array: {
      out += "{\"a\":[";
      for (size_t i = 0; i < n.items.size(); ++i) {
        if (i) out += ',';
        appendJson(out, n.items[i]);
      }
      out += "]}";
      return;
    }
    case RawNode::Kind::Dictionary: {
      if (n.entries.size() == 1 && n.entries[0].first == "CF$UID" && n.entries[0].second.isScalar()) {
        if (auto uid = n.entries[0].second.scalar.asUnsigned()) {
          out += "{\"u\":\"" + std::to_string(*uid) + "\"}";
          return;
        }
      }
      out += "{\"k\":[";
      for (size_t i = 0; i < n.entries.size(); ++i) {
        if (i) out += ',';
        out += '[';
        appendJsonString(out, n.entries[i].first);
        out += ',';
        appendJson(out, n.entries[i].second);
        out += ']';
      }
      out += "]}";
      return;
    }
  }
}

template <class T>
std::string json(const T &v) {
  std::string out;
  appendJson(out, v);
  return out;
}

// What the XML form of a value reads back as: dates to the whole second below.
Value wholeSecondDates(const Value &v) {
  if (auto d = v.asDate()) return Value::date(std::floor(*d));
  if (const Value::Array *a = v.asArray()) {
    Value::Array items;
    for (const Value &item : *a) items.push_back(wholeSecondDates(item));
    return Value::array(std::move(items));
  }
  if (const Value::Dictionary *d = v.asDictionary()) {
    Value::Dictionary entries;
    for (const auto &e : *d) entries.emplace_back(e.first, wholeSecondDates(e.second));
    return Value::dictionary(std::move(entries));
  }
  return v;
}

// Equality where NaN equals NaN: reals may be NaN anywhere.
bool same(const Value &a, const Value &b) { return json(a) == json(b); }

class Generator {
 public:
  explicit Generator(uint64_t seed) : rng_(seed) {}

  uint64_t below(uint64_t n) { return std::uniform_int_distribution<uint64_t>(0, n - 1)(rng_); }

  // Text every writer can carry: markup characters, whitespace of every kind XML
  // normalises, DEL and C1 controls, non-BMP characters.
  std::string text() {
    static constexpr const char *kPieces[] = {"a",
                                              "Z",
                                              "0",
                                              " ",
                                              "com.example",
                                              "<",
                                              "&",
                                              ">",
                                              "]]>",
                                              "\t",
                                              "\n",
                                              "\r",
                                              "\r\n",
                                              "\xC3\xA9",
                                              "\xE2\x82\xAC",
                                              "\xF0\x9F\x94\x92",
                                              "\xF0\x9F\x98\x80",
                                              "\xF4\x8F\xBF\xBD",
                                              "\x7F",
                                              "\xC2\x85",
                                              "\xEF\xBF\xBD",
                                              "CF$UID",
                                              "$null",
                                              "&amp;",
                                              "&#13;"};
    std::string s;
    for (uint64_t n = below(7); n-- > 0;) s += kPieces[below(std::size(kPieces))];
    return s;
  }

  double date() {
    // Whole seconds in years 1 to 9999 (the years every reader has), some with a
    // fraction the binary format keeps; the rest the edges of the calendar.
    static constexpr double kEdges[] = {0,
                                        -0.5,
                                        1.75,
                                        252423993599,
                                        252423993600,
                                        315537897599,
                                        -63113904000,
                                        -63113904001,
                                        -63145526400,
                                        -63177062400,
                                        -378715046400,
                                        67767975255225592.0,
                                        -67768101514656000.0,
                                        1e15,
                                        -1e15};
    const uint64_t pick = below(10);
    if (pick < 3) return kEdges[below(std::size(kEdges))];
    const double whole = static_cast<double>(static_cast<int64_t>(below(252423993600 + 63113904000)) - 63113904000);
    return pick < 4 ? whole + static_cast<double>(below(4)) / 4 : whole;
  }

  double real() {
    static constexpr double kEdges[] = {0.0,
                                        -0.0,
                                        0.1,
                                        1e300,
                                        -1e-300,
                                        5e-324,
                                        1.5,
                                        std::numeric_limits<double>::infinity(),
                                        -std::numeric_limits<double>::infinity(),
                                        std::numeric_limits<double>::quiet_NaN()};
    if (below(2)) return kEdges[below(std::size(kEdges))];
    const uint64_t bits = rng_();
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
  }

  Value scalar() {
    switch (below(7)) {
      case 0:
        return Value::boolean(below(2) != 0);
      case 1: {
        static constexpr int64_t kEdges[] = {0,     1,         -1,        255,          256,         65535,
                                             65536, INT64_MAX, INT64_MIN, 4294967295LL, 4294967296LL};
        if (below(3) == 0) return Value::integer(kEdges[below(std::size(kEdges))]);
        if (below(10) == 0) return Value::unsignedInteger(UINT64_MAX - below(1000));
        return Value::integer(static_cast<int64_t>(rng_()) >> below(64));
      }
      case 2:
        return Value::real(real());
      case 3:
        return Value::date(date());
      case 4: {
        Value::Bytes b(below(40));
        for (auto &x : b) x = static_cast<uint8_t>(rng_());
        return Value::data(std::move(b));
      }
      default:
        return Value::string(text());
    }
  }

  Value value(int depth) {
    if (depth >= 4 || below(10) < 4) return scalar();
    const uint64_t n = below(depth == 0 ? 10 : 5);
    if (below(2)) {
      Value a = Value::array();
      for (uint64_t i = 0; i < n; ++i) a.append(value(depth + 1));
      return a;
    }
    Value d = Value::dictionary();
    for (uint64_t i = 0; i < n; ++i) d.set(text(), value(depth + 1));
    return d;
  }

  // A value holding one thing no XML document can carry, in a string, a key or a
  // date: the XML writers must refuse it whole, the binary ones write it. Archives
  // carry dates as reals, so only the characters make an archive unwritable.
  Value unwritableInXml(bool &inCharacters) {
    static constexpr const char *kCharacters[] = {"\x01", "\x08",         "\x0B",        "\x0C",
                                                  "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"};
    const std::string bad = below(8) == 0 ? std::string("\0", 1) : kCharacters[below(std::size(kCharacters))];
    Value d = Value::dictionary();
    d.set("ok", value(2));
    const uint64_t where = below(3);
    inCharacters = where < 2;
    switch (where) {
      case 0:
        d.set("text", Value::string("before " + bad + " after"));
        break;
      case 1:
        d.set("key " + bad, Value::boolean(true));
        break;
      default: {
        static constexpr double kDates[] = {std::numeric_limits<double>::quiet_NaN(),
                                            std::numeric_limits<double>::infinity(), 67767975255225600.0, 1e300};
        d.set("date", Value::date(kDates[below(std::size(kDates))]));
      }
    }
    return Value::array({d});
  }

 private:
  std::mt19937_64 rng_;
};

bool save(const std::string &path, const void *bytes, size_t size) {
  std::FILE *f = std::fopen(path.c_str(), "wb");
  if (!f) return false;
  const bool ok = std::fwrite(bytes, 1, size, f) == size;
  return std::fclose(f) == 0 && ok;
}

std::vector<uint8_t> load(const std::string &path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

const uint8_t *bytesOf(const std::string &s) { return reinterpret_cast<const uint8_t *>(s.data()); }

int failures = 0;

void fail(const std::string &what) {
  std::fprintf(stderr, "plist_interop: %s\n", what.c_str());
  ++failures;
}

int write(const std::string &dir, uint64_t seed, int count) {
  Generator g(seed);
  std::string manifest;
  auto entry = [&manifest](const std::string &file, const char *kind, const std::string &expect,
                           const std::string &value) {
    manifest += "{\"file\":";
    if (file.empty())
      manifest += "null";
    else
      appendJsonString(manifest, file);
    manifest += ",\"kind\":\"" + std::string(kind) + "\",\"expect\":" + (expect.empty() ? "null" : expect) +
                ",\"value\":" + value + "}\n";
  };
  for (int i = 0; i < count; ++i) {
    const bool probe = i % 10 == 9;
    bool inCharacters = false;
    const Value v = probe ? g.unwritableInXml(inCharacters) : g.value(0);
    const std::string name = dir + "/" + std::to_string(i);
    const std::string valueJson = json(v);

    const std::vector<uint8_t> bin = plist::writeBinaryPlist(v);
    if (bin.empty() || !save(name + ".bplist", bin.data(), bin.size())) fail("binary writer refused " + name);
    const std::optional<Value> binBack = plist::readBinaryPlist(bin.data(), bin.size());
    if (!binBack || !same(*binBack, v)) fail("binary file does not read back: " + name);
    entry(name + ".bplist", "plist", valueJson, valueJson);

    const std::string xml = plist::writeXmlPlist(v);
    if (probe != xml.empty()) fail(std::string(probe ? "XML writer wrote " : "XML writer refused ") + name);
    if (!xml.empty()) {
      const Value expect = wholeSecondDates(v);
      const std::optional<Value> back = plist::readXmlPlist(bytesOf(xml), xml.size());
      if (!back || !same(*back, expect)) fail("XML file does not read back: " + name);
      if (!save(name + ".xml", xml.data(), xml.size())) fail("cannot save " + name);
      entry(name + ".xml", "plist", json(expect), valueJson);
    } else {
      entry("", "plist", "", valueJson);
    }

    // Archives: the value through decodeKeyedArchive, and the property list
    // underneath (UIDs and all) for the other readers.
    const std::vector<uint8_t> archive = plist::encodeKeyedArchive(v);
    const std::optional<RawNode> raw = plist::readBinaryPlistRaw(archive.data(), archive.size());
    const std::optional<Value> decoded = plist::decodeKeyedArchive(archive.data(), archive.size());
    if (!raw || !decoded || !same(*decoded, v)) fail("binary archive does not decode: " + name);
    if (!save(name + ".archive.bplist", archive.data(), archive.size())) fail("cannot save " + name);
    const std::string rawJson = raw ? json(*raw) : "";
    entry(name + ".archive.bplist", "archive", rawJson, valueJson);

    const std::string xmlArchive = plist::encodeKeyedArchiveXml(v);
    if (inCharacters != xmlArchive.empty())
      fail(std::string(inCharacters ? "XML archive writer wrote " : "XML archive writer refused ") + name);
    if (xmlArchive.empty()) {
      entry("", "archive", "", valueJson);
      continue;
    }
    const std::optional<Value> xmlDecoded = plist::decodeKeyedArchive(bytesOf(xmlArchive), xmlArchive.size());
    if (!xmlDecoded || !same(*xmlDecoded, v)) fail("XML archive does not decode: " + name);
    const std::optional<RawNode> xmlRaw = plist::readXmlPlistRaw(bytesOf(xmlArchive), xmlArchive.size(), true);
    if (!xmlRaw || json(*xmlRaw) != rawJson) fail("XML archive is not the binary one: " + name);
    if (!save(name + ".archive.xml", xmlArchive.data(), xmlArchive.size())) fail("cannot save " + name);
    entry(name + ".archive.xml", "archive", rawJson, valueJson);
  }
  if (!save(dir + "/manifest.jsonl", manifest.data(), manifest.size())) fail("cannot write the manifest");
  return failures == 0 ? 0 : 1;
}

int read(const std::string &kind, int argc, char **argv) {
  for (int i = 0; i < argc; ++i) {
    const std::vector<uint8_t> bytes = load(argv[i]);
    std::string line = "null";
    if (kind == "archive") {
      const bool binary = bytes.size() >= 8 && std::memcmp(bytes.data(), "bplist00", 8) == 0;
      const std::optional<RawNode> raw = binary ? plist::readBinaryPlistRaw(bytes.data(), bytes.size())
                                                : plist::readXmlPlistRaw(bytes.data(), bytes.size(), true);
      if (raw) line = json(*raw);
    } else if (const std::optional<Value> v = plist::readPlist(bytes.data(), bytes.size())) {
      line = json(*v);
    }
    std::printf("%s\n", line.c_str());
  }
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  const std::string mode = argc > 1 ? argv[1] : "";
  if (mode == "write" && argc == 5) return write(argv[2], std::stoull(argv[3]), std::stoi(argv[4]));
  if (mode == "read" && argc >= 3) return read(argv[2], argc - 3, argv + 3);
  std::fprintf(stderr, "usage: plist_interop write <dir> <seed> <count> | read plist|archive <file>...\n");
  return 2;
}
