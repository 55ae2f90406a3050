#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/RawNode.hpp"
#include "core/plist/Value.hpp"
#include "core_test_print.hpp"

using tessarin::plist::RawNode;
using tessarin::plist::Value;
namespace plist = tessarin::plist;

namespace {

std::vector<uint8_t> bytesOf(std::string_view s) { return std::vector<uint8_t>(s.begin(), s.end()); }

Value dict(std::initializer_list<std::pair<const char *, Value>> entries) {
  Value d = Value::dictionary();
  for (const auto &e : entries) d.set(e.first, e.second);
  return d;
}

Value str(const char *s) { return Value::string(s); }

// A binary plist assembled by hand: objects as raw bytes, the offset table
// and trailer computed, with knobs to break them.
struct HandMade {
  std::vector<std::vector<uint8_t>> objects;
  uint8_t offsetSize = 1;
  uint8_t refSize = 1;
  uint64_t top = 0;
  int64_t countDelta = 0;
  int64_t tableDelta = 0;
  std::vector<std::pair<size_t, uint64_t>> offsetOverrides;

  std::vector<uint8_t> build() const {
    std::vector<uint8_t> out = bytesOf("bplist00");
    std::vector<uint64_t> offsets;
    for (const auto &o : objects) {
      offsets.push_back(out.size());
      out.insert(out.end(), o.begin(), o.end());
    }
    for (const auto &o : offsetOverrides) offsets[o.first] = o.second;
    const uint64_t table = out.size();
    for (uint64_t off : offsets)
      for (int i = offsetSize - 1; i >= 0; --i) out.push_back(i < 8 ? static_cast<uint8_t>(off >> (8 * i)) : 0);
    for (int i = 0; i < 6; ++i) out.push_back(0);
    out.push_back(offsetSize);
    out.push_back(refSize);
    auto put64 = [&](uint64_t v) {
      for (int i = 7; i >= 0; --i) out.push_back(static_cast<uint8_t>(v >> (8 * i)));
    };
    put64(static_cast<uint64_t>(static_cast<int64_t>(objects.size()) + countDelta));
    put64(top);
    put64(static_cast<uint64_t>(static_cast<int64_t>(table) + tableDelta));
    return out;
  }
};

std::optional<Value> readBinary(const std::vector<uint8_t> &b) { return plist::readBinaryPlist(b.data(), b.size()); }

std::optional<Value> readXml(std::string_view s) {
  return plist::readXmlPlist(reinterpret_cast<const uint8_t *>(s.data()), s.size());
}

}  // namespace

TEST(PlistValue, AccessorsAndKinds) {
  EXPECT_EQ(Value().asBool(), false);
  EXPECT_EQ(Value::integer(-3).asInteger(), -3);
  EXPECT_EQ(Value::integer(-3).asUnsigned(), std::nullopt);
  EXPECT_EQ(Value::unsignedInteger(5), Value::integer(5));
  EXPECT_FALSE(Value::unsignedInteger(5).isUnsignedInteger());
  const Value big = Value::unsignedInteger(std::numeric_limits<uint64_t>::max());
  EXPECT_TRUE(big.isUnsignedInteger());
  EXPECT_EQ(big.asInteger(), std::nullopt);
  EXPECT_EQ(big.asUnsigned(), std::numeric_limits<uint64_t>::max());
  EXPECT_NE(big, Value::integer(-1));
  EXPECT_EQ(Value::real(1.5).numberValue(), 1.5);
  EXPECT_EQ(Value::boolean(true).numberValue(), 1.0);
  EXPECT_EQ(str("x").numberValue(), std::nullopt);
  EXPECT_EQ(Value::date(3.0).asDate(), 3.0);
  EXPECT_EQ(Value::date(3.0).asReal(), std::nullopt);
  EXPECT_EQ(Value::integer(1).asBool(), std::nullopt);
}

TEST(PlistValue, EqualityDistinguishesKinds) {
  struct Case {
    Value a, b;
    bool equal;
  };
  const Case cases[] = {
      {Value::integer(1), Value::boolean(true), false},
      {Value::integer(1), Value::real(1.0), false},
      {Value::real(2.0), Value::date(2.0), false},
      {str("a"), Value::data({'a'}), false},
      {Value::array({str("a"), str("b")}), Value::array({str("b"), str("a")}), false},
      {dict({{"a", Value::integer(1)}, {"b", Value::integer(2)}}),
       dict({{"b", Value::integer(2)}, {"a", Value::integer(1)}}), true},
      {dict({{"a", Value::integer(1)}}), dict({{"a", Value::integer(2)}}), false},
      {dict({{"a", Value::integer(1)}}), dict({{"a", Value::integer(1)}, {"b", Value::integer(1)}}), false},
      {Value::array(), Value::dictionary(), false},
      {str(""), str(""), true},
  };
  for (const Case &c : cases) EXPECT_EQ(c.a == c.b, c.equal);
}

TEST(PlistValue, DictionaryKeepsInsertionOrderAndReplaces) {
  Value d = Value::dictionary({{"z", Value::integer(1)}, {"a", Value::integer(2)}, {"z", Value::integer(3)}});
  ASSERT_EQ(d.size(), 2u);
  EXPECT_EQ(d.asDictionary()->at(0).first, "z");
  EXPECT_EQ(d.find("z")->asInteger(), 3);
  EXPECT_TRUE(d.set("m", str("x")));
  EXPECT_EQ(d.asDictionary()->back().first, "m");
  EXPECT_TRUE(d.erase("a"));
  EXPECT_FALSE(d.erase("a"));
  EXPECT_EQ(d.find("a"), nullptr);
  EXPECT_EQ(str("x").find("a"), nullptr);
  EXPECT_FALSE(Value::array().set("a", str("x")));
  Value a = Value::array();
  EXPECT_TRUE(a.append(str("x")));
  EXPECT_EQ(a.at(0)->asString()->c_str(), std::string("x"));
  EXPECT_EQ(a.at(1), nullptr);
}

TEST(PlistValue, RepeatedKeysKeepTheirFirstPlaceAndLastValue) {
  // Every reader builds its dictionaries through Value::dictionary: the same rule in each.
  const Value expected =
      Value::dictionary({{"b", Value::integer(6)}, {"a", Value::integer(5)}, {"c", Value::integer(4)}});
  const std::vector<std::pair<std::string, RawNode>> repeated = {
      {"b", RawNode::makeScalar(Value::integer(1))}, {"a", RawNode::makeScalar(Value::integer(2))},
      {"b", RawNode::makeScalar(Value::integer(3))}, {"c", RawNode::makeScalar(Value::integer(4))},
      {"a", RawNode::makeScalar(Value::integer(5))}, {"b", RawNode::makeScalar(Value::integer(6))}};
  const RawNode tree = RawNode::makeDictionary(repeated);
  Value::Dictionary entries;
  for (const auto &e : repeated) entries.emplace_back(e.first, e.second.scalar);
  const std::optional<Value> read[] = {Value::dictionary(entries), readBinary(plist::writeBinaryPlistRaw(tree)),
                                       readXml(plist::writeXmlPlistRaw(tree))};
  for (const std::optional<Value> &v : read) {
    ASSERT_TRUE(v.has_value());
    ASSERT_EQ(v->size(), 3u);
    EXPECT_EQ(v->asDictionary()->at(0).first, "b");
    EXPECT_EQ(v->asDictionary()->at(1).first, "a");
    EXPECT_EQ(v->asDictionary()->at(2).first, "c");
    EXPECT_EQ(*v, expected);
  }
}

TEST(BinaryPlist, RoundTrips) {
  std::string longAscii(300, 'q');
  std::vector<Value> many;
  for (int i = 0; i < 400; ++i) many.push_back(Value::integer(i * 1000));
  Value::Bytes bigData(70000);
  for (size_t i = 0; i < bigData.size(); ++i) bigData[i] = static_cast<uint8_t>(i * 7);
  const Value cases[] = {
      Value::boolean(true),
      Value::boolean(false),
      Value::integer(0),
      Value::integer(255),
      Value::integer(256),
      Value::integer(65535),
      Value::integer(65536),
      Value::integer(4294967295LL),
      Value::integer(4294967296LL),
      Value::integer(-1),
      Value::integer(std::numeric_limits<int64_t>::min()),
      Value::integer(std::numeric_limits<int64_t>::max()),
      Value::unsignedInteger(std::numeric_limits<uint64_t>::max()),
      Value::unsignedInteger(uint64_t{1} << 63),
      Value::real(0.1),
      Value::real(-1e300),
      Value::real(std::numeric_limits<double>::infinity()),
      Value::date(817034400.0),
      Value::date(-31622401.5),
      str(""),
      str("fourteen chars"),
      str("fifteen chars!!"),
      Value::string(longAscii),
      str("caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x94\x92"),
      Value::string(std::string("nul\0inside", 10)),
      Value::data({}),
      Value::data(bigData),
      Value::array(),
      Value::dictionary(),
      Value::array(many),
      dict({{"protected", Value::array({str("com.example.a"), str("com.example.b")})},
            {"IconColor", Value::integer(4)},
            {"Enabled", Value::boolean(true)},
            {"n\xC3\xA4me", dict({{"deep", Value::array({Value::array({Value::dictionary()})})}})}}),
  };
  for (const Value &v : cases) {
    const std::vector<uint8_t> bytes = plist::writeBinaryPlist(v);
    ASSERT_FALSE(bytes.empty());
    const std::optional<Value> back = readBinary(bytes);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(*back, v);
    const std::string xml = plist::writeXmlPlist(v);
    // XML keeps whole seconds of dates and cannot carry NUL characters.
    const bool xmlCanHold = !(v.isString() && v.asString()->find('\0') != std::string::npos) &&
                            !(v.isDate() && *v.asDate() != std::floor(*v.asDate()));
    if (xmlCanHold) {
      ASSERT_FALSE(xml.empty());
      const std::optional<Value> fromXml = readXml(xml);
      ASSERT_TRUE(fromXml.has_value()) << xml.substr(0, 200);
      EXPECT_EQ(*fromXml, v) << xml.substr(0, 200);
    }
  }
}

TEST(BinaryPlist, WriterRejectsInvalidUtf8) {
  EXPECT_TRUE(plist::writeBinaryPlist(str("bad \xC3(")).empty());
  EXPECT_TRUE(plist::writeBinaryPlist(dict({{"\xFF", str("x")}})).empty());
  EXPECT_TRUE(plist::writeXmlPlist(str("bad \xED\xA0\x80")).empty());
}

TEST(BinaryPlist, ReadsHandMadeEncodings) {
  struct Case {
    const char *name;
    std::vector<uint8_t> object;
    Value expected;
  };
  const Case cases[] = {
      {"one-byte int is unsigned", {0x10, 0xFF}, Value::integer(255)},
      {"four-byte int is unsigned", {0x12, 0xFF, 0xFF, 0xFF, 0xFF}, Value::integer(4294967295LL)},
      {"eight-byte int is signed", {0x13, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFE}, Value::integer(-2)},
      {"sixteen-byte unsigned",
       {0x14, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
       Value::unsignedInteger(std::numeric_limits<uint64_t>::max())},
      {"sixteen-byte negative",
       {0x14, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFD},
       Value::integer(-3)},
      {"float", {0x22, 0x3F, 0xC0, 0x00, 0x00}, Value::real(1.5)},
      {"utf-16 surrogate pair", {0x62, 0xD8, 0x3D, 0xDD, 0x12}, str("\xF0\x9F\x94\x92")},
      {"extended length", {0x5F, 0x10, 0x02, 'h', 'i'}, str("hi")},
      {"true", {0x09}, Value::boolean(true)},
  };
  for (const Case &c : cases) {
    HandMade h;
    h.objects = {c.object};
    const auto v = readBinary(h.build());
    ASSERT_TRUE(v.has_value()) << c.name;
    EXPECT_EQ(*v, c.expected) << c.name;
  }
}

TEST(BinaryPlist, SetIsReadAsArray) {
  HandMade h;
  h.objects = {{0xC2, 1, 2}, {0x51, 'a'}, {0x51, 'b'}};
  EXPECT_EQ(readBinary(h.build()), Value::array({str("a"), str("b")}));
}

TEST(BinaryPlist, RejectsHostileFiles) {
  struct Case {
    const char *name;
    HandMade h;
  };
  auto make = [](std::vector<std::vector<uint8_t>> objects) {
    HandMade h;
    h.objects = std::move(objects);
    return h;
  };
  std::vector<Case> cases;
  cases.push_back({"null object", make({{0x00}})});
  cases.push_back({"fill object", make({{0x0F}})});
  cases.push_back({"unknown marker", make({{0x70}})});
  cases.push_back({"uid in a plain plist", make({{0x80, 0x01}})});
  cases.push_back({"array holding itself", make({{0xA1, 0x00}})});
  cases.push_back({"indirect cycle", make({{0xA1, 0x01}, {0xA1, 0x02}, {0xA1, 0x00}})});
  cases.push_back({"dictionary value is itself", make({{0xD1, 0x01, 0x00}, {0x51, 'k'}})});
  cases.push_back({"ref out of range", make({{0xA1, 0x05}})});
  cases.push_back({"non-string key", make({{0xD1, 0x01, 0x01}, {0x10, 0x01}})});
  cases.push_back({"truncated int", make({{0x13, 0x01}})});
  cases.push_back({"sixteen-byte beyond 64 bits", make({{0x14, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0}})});
  cases.push_back({"odd real size", make({{0x21, 0, 0}})});
  cases.push_back({"string longer than file", make({{0x55, 'a', 'b'}})});
  cases.push_back({"huge extended count", make({{0xAF, 0x13, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}})});
  cases.push_back({"count marker not an int", make({{0x5F, 0x51, 'a'}})});
  cases.push_back({"non-ascii in ascii string", make({{0x51, 0xE9}})});
  cases.push_back({"lone low surrogate", make({{0x61, 0xDC, 0x00}})});
  cases.push_back({"lone high surrogate at end", make({{0x61, 0xD8, 0x00}})});
  cases.push_back({"high surrogate then letter", make({{0x62, 0xD8, 0x00, 0x00, 0x41}})});
  {
    HandMade h = make({{0x09}});
    h.top = 1;
    cases.push_back({"top beyond count", h});
  }
  {
    HandMade h = make({{0x09}});
    h.countDelta = 1000000;
    cases.push_back({"count beyond offset table", h});
  }
  {
    HandMade h = make({{0x09}});
    h.countDelta = -1;
    cases.push_back({"zero objects", h});
  }
  {
    HandMade h = make({{0x09}});
    h.tableDelta = 40;
    cases.push_back({"offset table overlaps trailer", h});
  }
  {
    HandMade h = make({{0x09}});
    h.tableDelta = -9;
    cases.push_back({"offset table inside header", h});
  }
  {
    HandMade h = make({{0x09}});
    h.offsetOverrides = {{0, 3}};
    cases.push_back({"object offset in header", h});
  }
  {
    HandMade h = make({{0x09}});
    h.offsetOverrides = {{0, 9}};
    cases.push_back({"object offset at offset table", h});
  }
  {
    HandMade h = make({{0x09}});
    h.offsetSize = 0;
    cases.push_back({"offset size zero", h});
  }
  {
    HandMade h = make({{0x09}});
    h.offsetSize = 9;
    cases.push_back({"offset size nine", h});
  }
  {
    HandMade h = make({{0xA0}});
    h.refSize = 0;
    cases.push_back({"ref size zero", h});
  }
  for (const Case &c : cases) EXPECT_EQ(readBinary(c.h.build()), std::nullopt) << c.name;
}

TEST(BinaryPlist, RejectsBadFramingAndEveryTruncation) {
  const std::vector<uint8_t> good = plist::writeBinaryPlist(
      dict({{"a", Value::array({str("x"), Value::integer(3), Value::real(2.5)})}, {"b", Value::data({1, 2})}}));
  ASSERT_TRUE(readBinary(good).has_value());
  for (size_t n = 0; n < good.size(); ++n) {
    std::vector<uint8_t> cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(n));
    EXPECT_EQ(readBinary(cut), std::nullopt) << n;
  }
  std::vector<uint8_t> badMagic = good;
  badMagic[7] = '1';
  EXPECT_EQ(readBinary(badMagic), std::nullopt);
  EXPECT_EQ(plist::readBinaryPlist(nullptr, 0), std::nullopt);
  EXPECT_EQ(plist::readPlist(nullptr, 0), std::nullopt);
}

TEST(BinaryPlist, DepthIsCapped) {
  auto nested = [](int depth) {
    Value v = str("leaf");
    for (int i = 0; i < depth; ++i) v = Value::array({v});
    return v;
  };
  const Value shallow = nested(60);
  EXPECT_EQ(readBinary(plist::writeBinaryPlist(shallow)), shallow);
  EXPECT_EQ(readBinary(plist::writeBinaryPlist(nested(100))), std::nullopt);
  EXPECT_EQ(readXml(plist::writeXmlPlist(shallow)), shallow);
  EXPECT_EQ(readXml(plist::writeXmlPlist(nested(100))), std::nullopt);
}

TEST(BinaryPlist, SharedObjectsCannotExplode) {
  // Object i is an array referencing object i+1 twice: 2^40 leaves if expanded.
  HandMade h;
  const int levels = 40;
  for (int i = 0; i < levels; ++i)
    h.objects.push_back({0xA2, static_cast<uint8_t>(i + 1), static_cast<uint8_t>(i + 1)});
  h.objects.push_back({0x51, 'x'});
  EXPECT_EQ(readBinary(h.build()), std::nullopt);

  // A modest amount of sharing is fine.
  HandMade small;
  small.objects = {{0xA3, 1, 1, 1}, {0x51, 'x'}};
  EXPECT_EQ(readBinary(small.build()), Value::array({str("x"), str("x"), str("x")}));
}

TEST(XmlPlist, ReadsEveryElement) {
  const char *xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Example//DTD PLIST 1.0//EN" "plist.dtd">
<!-- a comment -->
<plist version="1.0">
<dict>
	<key>s</key><string>a &lt;b&gt; &amp; &quot;c&quot; &apos;d&apos; &#233; &#x20AC;</string>
	<key>empty</key><string/>
	<key>cdata</key><string><![CDATA[<raw & text>]]></string>
	<key>i</key><integer> -42 </integer>
	<key>big</key><integer>18446744073709551615</integer>
	<key>hex</key><integer>0x1F</integer>
	<key>r</key><real>2.5e1</real>
	<key>t</key><true/>
	<key>f</key><false></false>
	<key>d</key><data>
		AQID
		BA==
	</data>
	<key>date</key><date>2026-11-22T10:00:00Z</date>
	<key>old</key><date>1999-12-31T23:59:59Z</date>
	<key>a</key><array><string>x</string><array/><dict/></array>
	<key>uid</key><dict><key>CF$UID</key><integer>3</integer></dict>
</dict>
</plist>
)";
  const auto v = readXml(xml);
  ASSERT_TRUE(v.has_value());
  EXPECT_EQ(*v->find("s")->asString(), "a <b> & \"c\" 'd' \xC3\xA9 \xE2\x82\xAC");
  EXPECT_EQ(*v->find("empty"), str(""));
  EXPECT_EQ(*v->find("cdata"), str("<raw & text>"));
  EXPECT_EQ(*v->find("i"), Value::integer(-42));
  EXPECT_EQ(*v->find("big"), Value::unsignedInteger(std::numeric_limits<uint64_t>::max()));
  EXPECT_EQ(*v->find("hex"), Value::integer(31));
  EXPECT_EQ(*v->find("r"), Value::real(25.0));
  EXPECT_EQ(*v->find("t"), Value::boolean(true));
  EXPECT_EQ(*v->find("f"), Value::boolean(false));
  EXPECT_EQ(*v->find("d"), Value::data({1, 2, 3, 4}));
  EXPECT_EQ(*v->find("date"), Value::date(817034400.0));
  EXPECT_EQ(*v->find("old"), Value::date(-31622401.0));
  EXPECT_EQ(*v->find("a"), Value::array({str("x"), Value::array(), Value::dictionary()}));
  // Outside archives a CF$UID dictionary is an ordinary dictionary.
  EXPECT_EQ(*v->find("uid"), dict({{"CF$UID", Value::integer(3)}}));
}

TEST(XmlPlist, WritesDatesOfAnyYearAsAppleDoes) {
  // Whole seconds since 2001, astronomical years (year 0 is 1 BC) as "%04d" writes them.
  constexpr double kDay = 86400, kYear400 = 146097 * kDay;
  struct Case {
    double seconds;
    const char *text;
    double readBack;
  };
  const Case cases[] = {
      {817034400.0, "2026-11-22T10:00:00Z", 817034400.0},
      {-0.5, "2000-12-31T23:59:59Z", -1.0},
      {1.75, "2001-01-01T00:00:01Z", 1.0},
      {-63113904000.0 - 1, "0000-12-31T23:59:59Z", -63113904001.0},
      {-978307200.0, "1970-01-01T00:00:00Z", -978307200.0},
      {252423993599.0, "9999-12-31T23:59:59Z", 252423993599.0},
      {252423993600.0, "10000-01-01T00:00:00Z", 252423993600.0},
      {-63145526400.0, "0000-01-01T00:00:00Z", -63145526400.0},
      {-63145526400.0 - 365 * kDay, "-001-01-01T00:00:00Z", -63145526400.0 - 365 * kDay},
      {-63145526400.0 - 25 * kYear400, "-10000-01-01T00:00:00Z", -63145526400.0 - 25 * kYear400},
      // Doubles this large are whole multiples of 8 s.
      {67767975255225592.0, "2147483647-12-31T23:59:52Z", 67767975255225592.0},
      {-67768101514656000.0, "-2147483647-01-01T00:00:00Z", -67768101514656000.0},
  };
  for (const Case &c : cases) {
    const std::string xml = plist::writeXmlPlist(Value::array({Value::date(c.seconds)}));
    EXPECT_NE(xml.find(std::string("<date>") + c.text + "</date>"), std::string::npos) << c.text << "\n" << xml;
    EXPECT_EQ(readXml(xml), Value::array({Value::date(c.readBack)})) << c.text;
  }
  // Beyond what a reader holding the year in 32 bits could take back; no calendar form.
  for (double seconds : {67767975255225600.0, -67768101514656008.0, 1e17, -1e300,
                         std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL})
    EXPECT_EQ(plist::writeXmlPlist(Value::array({Value::date(seconds)})), "") << seconds;
}

TEST(XmlPlist, WritesInfinitiesAsAppleDoes) {
  const std::string xml =
      plist::writeXmlPlist(Value::array({Value::real(HUGE_VAL), Value::real(-HUGE_VAL), Value::real(std::nan(""))}));
  EXPECT_NE(xml.find("<real>+infinity</real>\n\t<real>-infinity</real>\n\t<real>nan</real>"), std::string::npos) << xml;
  const std::optional<Value> back = readXml(xml);
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(*back->at(0), Value::real(HUGE_VAL));
  EXPECT_EQ(*back->at(1), Value::real(-HUGE_VAL));
  EXPECT_TRUE(std::isnan(*back->at(2)->asReal()));
}

TEST(XmlPlist, WritesOnlyWellFormedCharacterData) {
  struct Case {
    const char *name;
    std::string text;
    const char *written;  // nullptr: refused, the document is empty
  };
  const Case cases[] = {
      {"tab and line feed raw", "a\tb\nc", "a\tb\nc"},
      {"carriage return as a reference", "a\rb\r\nc", "a&#13;b&#13;\nc"},
      {"markup characters", "<a>&", "&lt;a&gt;&amp;"},
      {"delete and C1 controls are XML characters", "\x7F\xC2\x85", "\x7F\xC2\x85"},
      {"replacement character", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
      {"non-BMP", "\xF0\x9F\x94\x92", "\xF0\x9F\x94\x92"},
      {"NUL", std::string("a\0b", 3), nullptr},
      {"start of heading", "\x01", nullptr},
      {"unit separator", "x\x1F", nullptr},
      {"vertical tab", "\x0B", nullptr},
      {"form feed", "\x0C", nullptr},
      {"U+FFFE", "\xEF\xBF\xBE", nullptr},
      {"U+FFFF", "\xEF\xBF\xBF", nullptr},
  };
  for (const Case &c : cases) {
    const Value asString = Value::string(c.text);
    const Value asKey = Value::dictionary({{c.text, Value::boolean(true)}});
    for (const Value &v : {asString, asKey}) {
      const std::string xml = plist::writeXmlPlist(v);
      if (!c.written) {
        EXPECT_EQ(xml, "") << c.name;
        continue;
      }
      EXPECT_NE(xml.find(std::string(">") + c.written + "</"), std::string::npos) << c.name << "\n" << xml;
      EXPECT_EQ(readXml(xml), v) << c.name;
    }
  }
}

TEST(XmlPlist, RejectsMalformedDocuments) {
  const char *cases[] = {
      "",
      "   ",
      "<plist version=\"1.0\"><string>x</string>",
      "<plist><string>x</plist>",
      "<plist><string>x</string></plist> trailing",
      "<plist><string>x</string><string>y</string></plist>",
      "<plist><dict><key>a</key></dict></plist>",
      "<plist><dict><string>a</string><string>b</string></dict></plist>",
      "<plist><key>a</key></plist>",
      "<plist><array><string>a</string></dict></plist>",
      "<plist><integer>12a</integer></plist>",
      "<plist><integer></integer></plist>",
      "<plist><integer>18446744073709551616</integer></plist>",
      "<plist><integer>-9223372036854775809</integer></plist>",
      "<plist><real>one</real></plist>",
      "<plist><date>2026-02-30T10:00:00Z</date></plist>",
      "<plist><date>2026-11-22 10:00:00</date></plist>",
      "<plist><date>2026-13-01T10:00:00Z</date></plist>",
      "<plist><date>999-01-01T00:00:00Z</date></plist>",
      "<plist><date>-01-01-01T00:00:00Z</date></plist>",
      "<plist><date>--001-01-01T00:00:00Z</date></plist>",
      "<plist><date>+2026-01-01T00:00:00Z</date></plist>",
      "<plist><date>2147483648-01-01T00:00:00Z</date></plist>",
      "<plist><date>99999999999-01-01T00:00:00Z</date></plist>",
      "<plist><date>2026-1-01T00:00:00Z</date></plist>",
      "<plist><date>2026-01-01T00:00:00</date></plist>",
      "<plist><data>AQ*D</data></plist>",
      "<plist><data>AQ==AQ==</data></plist>",
      "<plist><string>&bogus;</string></plist>",
      "<plist><string>&#xD800;</string></plist>",
      "<plist><string>&#x110000;</string></plist>",
      "<plist><string>a & b</string></plist>",
      "<plist><string>\xC3(</string></plist>",
      "<plist><true>x</true></plist>",
      "<plist><unknown/></plist>",
      "<plist><!-- unterminated </plist>",
      "<plist><string><![CDATA[x</string></plist>",
      "<plist/>",
      "<plist><string>a</string></plist",
      "<",
      "</plist>",
  };
  for (const char *c : cases) EXPECT_EQ(readXml(c), std::nullopt) << c;
  EXPECT_EQ(plist::readXmlPlist(nullptr, 0), std::nullopt);
}

TEST(XmlPlist, ReadPlistChoosesFormat) {
  const Value v = dict({{"k", Value::array({str("v")})}});
  const std::vector<uint8_t> bin = plist::writeBinaryPlist(v);
  const std::string xml = plist::writeXmlPlist(v);
  EXPECT_EQ(plist::readPlist(bin.data(), bin.size()), v);
  EXPECT_EQ(plist::readPlist(reinterpret_cast<const uint8_t *>(xml.data()), xml.size()), v);
  EXPECT_EQ(readXml("<string>bare</string>"), str("bare"));
}
