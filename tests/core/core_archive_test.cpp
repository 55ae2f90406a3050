#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/KeyedArchive.hpp"
#include "core/plist/RawNode.hpp"
#include "core/plist/Value.hpp"
#include "core_test_print.hpp"

using tessarin::plist::RawNode;
using tessarin::plist::Value;
namespace plist = tessarin::plist;

namespace {

// Written once by GNUstep Base's NSKeyedArchiver (archivedDataWithRootObject:)
// from an NSMutableDictionary: dlbv = unsigned 123456, neg = -7, flag = YES,
// real = 2.5, string = "plain", mstring = NSMutableString "mutable é",
// data = <010203>, date = 1000.5 s after the reference date,
// array = ("a", "b", 3), dict = {inner = "x"}, empty = ().
constexpr uint8_t kGnustepDictionaryArchive[] = {
    0x62, 0x70, 0x6c, 0x69, 0x73, 0x74, 0x30, 0x30, 0xd4, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x58, 0x24,
    0x6f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x73, 0x59, 0x24, 0x61, 0x72, 0x63, 0x68, 0x69, 0x76, 0x65, 0x72, 0x58, 0x24,
    0x76, 0x65, 0x72, 0x73, 0x69, 0x6f, 0x6e, 0x54, 0x24, 0x74, 0x6f, 0x70, 0xaf, 0x10, 0x21, 0x09, 0x0a, 0x0b, 0x0c,
    0x0d, 0x0e, 0x0f, 0x10, 0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18, 0x19, 0x1a, 0x1b, 0x1c, 0x1d, 0x1e, 0x1f,
    0x20, 0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27, 0x28, 0x29, 0x5f, 0x10, 0x0f, 0x4e, 0x53, 0x4b, 0x65, 0x79, 0x65,
    0x64, 0x41, 0x72, 0x63, 0x68, 0x69, 0x76, 0x65, 0x72, 0x12, 0x00, 0x01, 0x86, 0xa0, 0xd1, 0x2a, 0x2b, 0x55, 0x24,
    0x6e, 0x75, 0x6c, 0x6c, 0xd3, 0x2c, 0x2d, 0x2e, 0x2f, 0x30, 0x31, 0x55, 0x61, 0x72, 0x72, 0x61, 0x79, 0x55, 0x65,
    0x6d, 0x70, 0x74, 0x79, 0x54, 0x64, 0x6c, 0x62, 0x76, 0x53, 0x6e, 0x65, 0x67, 0x54, 0x72, 0x65, 0x61, 0x6c, 0x54,
    0x64, 0x61, 0x74, 0x65, 0x56, 0x73, 0x74, 0x72, 0x69, 0x6e, 0x67, 0x54, 0x64, 0x69, 0x63, 0x74, 0x54, 0x66, 0x6c,
    0x61, 0x67, 0x57, 0x6d, 0x73, 0x74, 0x72, 0x69, 0x6e, 0x67, 0x54, 0x64, 0x61, 0x74, 0x61, 0xd2, 0x2e, 0x2c, 0x32,
    0x33, 0x51, 0x61, 0x51, 0x62, 0x10, 0x03, 0xd2, 0x34, 0x35, 0x36, 0x37, 0xd2, 0x2e, 0x2c, 0x32, 0x38, 0x12, 0x00,
    0x01, 0xe2, 0x40, 0x13, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xf9, 0x23, 0x40, 0x04, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x33, 0x40, 0x8f, 0x44, 0x00, 0x00, 0x00, 0x00, 0x00, 0x55, 0x70, 0x6c, 0x61, 0x69, 0x6e, 0xd3, 0x2c,
    0x2d, 0x2e, 0x39, 0x3a, 0x3b, 0x55, 0x69, 0x6e, 0x6e, 0x65, 0x72, 0x51, 0x78, 0xd2, 0x34, 0x35, 0x3c, 0x3d, 0x09,
    0xd2, 0x2e, 0x3e, 0x3f, 0x40, 0xd2, 0x34, 0x35, 0x41, 0x42, 0x43, 0x01, 0x02, 0x03, 0xd2, 0x34, 0x35, 0x43, 0x44,
    0x54, 0x72, 0x6f, 0x6f, 0x74, 0x80, 0x01, 0x5a, 0x4e, 0x53, 0x2e, 0x6f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x73, 0x57,
    0x4e, 0x53, 0x2e, 0x6b, 0x65, 0x79, 0x73, 0x56, 0x24, 0x63, 0x6c, 0x61, 0x73, 0x73, 0xab, 0x45, 0x46, 0x47, 0x48,
    0x49, 0x4a, 0x4b, 0x4c, 0x4d, 0x4e, 0x4f, 0xab, 0x50, 0x51, 0x52, 0x53, 0x54, 0x55, 0x56, 0x57, 0x58, 0x59, 0x5a,
    0x80, 0x20, 0x80, 0x11, 0xa3, 0x5b, 0x5c, 0x5d, 0x58, 0x24, 0x63, 0x6c, 0x61, 0x73, 0x73, 0x65, 0x73, 0x5a, 0x24,
    0x63, 0x6c, 0x61, 0x73, 0x73, 0x6e, 0x61, 0x6d, 0x65, 0xa2, 0x37, 0x5e, 0x57, 0x4e, 0x53, 0x41, 0x72, 0x72, 0x61,
    0x79, 0xa0, 0xa1, 0x5f, 0xa1, 0x60, 0x80, 0x1b, 0xa2, 0x3d, 0x5e, 0x5c, 0x4e, 0x53, 0x44, 0x69, 0x63, 0x74, 0x69,
    0x6f, 0x6e, 0x61, 0x72, 0x79, 0x59, 0x4e, 0x53, 0x2e, 0x73, 0x74, 0x72, 0x69, 0x6e, 0x67, 0x80, 0x1e, 0x69, 0x00,
    0x6d, 0x00, 0x75, 0x00, 0x74, 0x00, 0x61, 0x00, 0x62, 0x00, 0x6c, 0x00, 0x65, 0x00, 0x20, 0x00, 0xe9, 0xa3, 0x42,
    0x61, 0x5e, 0x5f, 0x10, 0x0f, 0x4e, 0x53, 0x4d, 0x75, 0x74, 0x61, 0x62, 0x6c, 0x65, 0x53, 0x74, 0x72, 0x69, 0x6e,
    0x67, 0xa3, 0x44, 0x3d, 0x5e, 0x5f, 0x10, 0x13, 0x4e, 0x53, 0x4d, 0x75, 0x74, 0x61, 0x62, 0x6c, 0x65, 0x44, 0x69,
    0x63, 0x74, 0x69, 0x6f, 0x6e, 0x61, 0x72, 0x79, 0x80, 0x0d, 0x80, 0x12, 0x80, 0x13, 0x80, 0x14, 0x80, 0x15, 0x80,
    0x16, 0x80, 0x17, 0x80, 0x18, 0x80, 0x1c, 0x80, 0x1d, 0x80, 0x1f, 0x80, 0x02, 0x80, 0x03, 0x80, 0x04, 0x80, 0x05,
    0x80, 0x06, 0x80, 0x07, 0x80, 0x08, 0x80, 0x09, 0x80, 0x0a, 0x80, 0x0b, 0x80, 0x0c, 0x80, 0x0e, 0x80, 0x0f, 0x80,
    0x10, 0x58, 0x4e, 0x53, 0x4f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x80, 0x1a, 0x80, 0x19, 0x58, 0x4e, 0x53, 0x53, 0x74,
    0x72, 0x69, 0x6e, 0x67, 0x00, 0x08, 0x00, 0x11, 0x00, 0x1a, 0x00, 0x24, 0x00, 0x2d, 0x00, 0x32, 0x00, 0x56, 0x00,
    0x68, 0x00, 0x6d, 0x00, 0x70, 0x00, 0x76, 0x00, 0x7d, 0x00, 0x83, 0x00, 0x89, 0x00, 0x8e, 0x00, 0x92, 0x00, 0x97,
    0x00, 0x9c, 0x00, 0xa3, 0x00, 0xa8, 0x00, 0xad, 0x00, 0xb5, 0x00, 0xba, 0x00, 0xbf, 0x00, 0xc1, 0x00, 0xc3, 0x00,
    0xc5, 0x00, 0xca, 0x00, 0xcf, 0x00, 0xd4, 0x00, 0xdd, 0x00, 0xe6, 0x00, 0xef, 0x00, 0xf5, 0x00, 0xfc, 0x01, 0x02,
    0x01, 0x04, 0x01, 0x09, 0x01, 0x0a, 0x01, 0x0f, 0x01, 0x14, 0x01, 0x18, 0x01, 0x1d, 0x01, 0x22, 0x01, 0x24, 0x01,
    0x2f, 0x01, 0x37, 0x01, 0x3e, 0x01, 0x4a, 0x01, 0x56, 0x01, 0x58, 0x01, 0x5a, 0x01, 0x5e, 0x01, 0x67, 0x01, 0x72,
    0x01, 0x75, 0x01, 0x7d, 0x01, 0x7e, 0x01, 0x80, 0x01, 0x82, 0x01, 0x84, 0x01, 0x87, 0x01, 0x94, 0x01, 0x9e, 0x01,
    0xa0, 0x01, 0xb3, 0x01, 0xb7, 0x01, 0xc9, 0x01, 0xcd, 0x01, 0xe3, 0x01, 0xe5, 0x01, 0xe7, 0x01, 0xe9, 0x01, 0xeb,
    0x01, 0xed, 0x01, 0xef, 0x01, 0xf1, 0x01, 0xf3, 0x01, 0xf5, 0x01, 0xf7, 0x01, 0xf9, 0x01, 0xfb, 0x01, 0xfd, 0x01,
    0xff, 0x02, 0x01, 0x02, 0x03, 0x02, 0x05, 0x02, 0x07, 0x02, 0x09, 0x02, 0x0b, 0x02, 0x0d, 0x02, 0x0f, 0x02, 0x11,
    0x02, 0x13, 0x02, 0x15, 0x02, 0x1e, 0x02, 0x20, 0x02, 0x22, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x02, 0x01, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x62, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x02, 0x2b};

// The same archiver given an NSSet holding "x".
constexpr uint8_t kGnustepSetArchive[] = {
    0x62, 0x70, 0x6c, 0x69, 0x73, 0x74, 0x30, 0x30, 0xd4, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0x58, 0x24,
    0x6f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x73, 0x59, 0x24, 0x61, 0x72, 0x63, 0x68, 0x69, 0x76, 0x65, 0x72, 0x58, 0x24,
    0x76, 0x65, 0x72, 0x73, 0x69, 0x6f, 0x6e, 0x54, 0x24, 0x74, 0x6f, 0x70, 0xa4, 0x09, 0x0a, 0x0b, 0x0c, 0x5f, 0x10,
    0x0f, 0x4e, 0x53, 0x4b, 0x65, 0x79, 0x65, 0x64, 0x41, 0x72, 0x63, 0x68, 0x69, 0x76, 0x65, 0x72, 0x12, 0x00, 0x01,
    0x86, 0xa0, 0xd1, 0x0d, 0x0e, 0x55, 0x24, 0x6e, 0x75, 0x6c, 0x6c, 0xd2, 0x0f, 0x10, 0x11, 0x12, 0x51, 0x78, 0xd2,
    0x13, 0x14, 0x15, 0x16, 0x54, 0x72, 0x6f, 0x6f, 0x74, 0x80, 0x01, 0x56, 0x24, 0x63, 0x6c, 0x61, 0x73, 0x73, 0x5a,
    0x4e, 0x53, 0x2e, 0x6f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x73, 0x80, 0x03, 0xa1, 0x17, 0x58, 0x24, 0x63, 0x6c, 0x61,
    0x73, 0x73, 0x65, 0x73, 0x5a, 0x24, 0x63, 0x6c, 0x61, 0x73, 0x73, 0x6e, 0x61, 0x6d, 0x65, 0xa2, 0x16, 0x18, 0x55,
    0x4e, 0x53, 0x53, 0x65, 0x74, 0x80, 0x02, 0x58, 0x4e, 0x53, 0x4f, 0x62, 0x6a, 0x65, 0x63, 0x74, 0x08, 0x11, 0x1a,
    0x24, 0x2d, 0x32, 0x37, 0x49, 0x4e, 0x51, 0x57, 0x5c, 0x5e, 0x63, 0x68, 0x6a, 0x71, 0x7c, 0x7e, 0x80, 0x89, 0x94,
    0x97, 0x9d, 0x9f, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x19,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xa8};

// The XML form of the same archiver (outputFormat XML), holding a reply
// shaped like the network list: {networks = ({ssid, bssid, password})}.
constexpr const char *kGnustepXmlArchive = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
    <key>$archiver</key>
    <string>NSKeyedArchiver</string>
    <key>$objects</key>
    <array>
	<string>$null</string>
	<dict>
	    <key>$class</key>
	    <dict>
		<key>CF$UID</key>
		<integer>11</integer>
	    </dict>
	    <key>NS.keys</key>
	    <array>
		<dict>
		    <key>CF$UID</key>
		    <integer>2</integer>
		</dict>
	    </array>
	    <key>NS.objects</key>
	    <array>
		<dict>
		    <key>CF$UID</key>
		    <integer>3</integer>
		</dict>
	    </array>
	</dict>
	<string>networks</string>
	<dict>
	    <key>$class</key>
	    <dict>
		<key>CF$UID</key>
		<integer>12</integer>
	    </dict>
	    <key>NS.objects</key>
	    <array>
		<dict>
		    <key>CF$UID</key>
		    <integer>4</integer>
		</dict>
	    </array>
	</dict>
	<dict>
	    <key>$class</key>
	    <dict>
		<key>CF$UID</key>
		<integer>11</integer>
	    </dict>
	    <key>NS.keys</key>
	    <array>
		<dict>
		    <key>CF$UID</key>
		    <integer>5</integer>
		</dict>
		<dict>
		    <key>CF$UID</key>
		    <integer>6</integer>
		</dict>
		<dict>
		    <key>CF$UID</key>
		    <integer>7</integer>
		</dict>
	    </array>
	    <key>NS.objects</key>
	    <array>
		<dict>
		    <key>CF$UID</key>
		    <integer>8</integer>
		</dict>
		<dict>
		    <key>CF$UID</key>
		    <integer>9</integer>
		</dict>
		<dict>
		    <key>CF$UID</key>
		    <integer>10</integer>
		</dict>
	    </array>
	</dict>
	<string>password</string>
	<string>bssid</string>
	<string>ssid</string>
	<string>pw</string>
	<string>aa:bb:cc:dd:ee:ff</string>
	<string>Home</string>
	<dict>
	    <key>$classes</key>
	    <array>
		<string>NSDictionary</string>
		<string>NSObject</string>
	    </array>
	    <key>$classname</key>
	    <string>NSDictionary</string>
	</dict>
	<dict>
	    <key>$classes</key>
	    <array>
		<string>NSArray</string>
		<string>NSObject</string>
	    </array>
	    <key>$classname</key>
	    <string>NSArray</string>
	</dict>
    </array>
    <key>$top</key>
    <dict>
	<key>root</key>
	<dict>
	    <key>CF$UID</key>
	    <integer>1</integer>
	</dict>
    </dict>
    <key>$version</key>
    <integer>100000</integer>
</dict>
</plist>)";

std::optional<Value> decode(const std::vector<uint8_t> &b) { return plist::decodeKeyedArchive(b.data(), b.size()); }

std::optional<Value> decodeText(const std::string &s) {
  return plist::decodeKeyedArchive(reinterpret_cast<const uint8_t *>(s.data()), s.size());
}

Value str(const char *s) { return Value::string(s); }

Value dict(std::initializer_list<std::pair<const char *, Value>> entries) {
  Value d = Value::dictionary();
  for (const auto &e : entries) d.set(e.first, e.second);
  return d;
}

RawNode uid(uint64_t u) { return RawNode::makeUid(u); }
RawNode s(const char *text) { return RawNode::makeScalar(Value::string(text)); }
RawNode uids(std::initializer_list<uint64_t> list) {
  std::vector<RawNode> items;
  for (uint64_t u : list) items.push_back(uid(u));
  return RawNode::makeArray(std::move(items));
}
RawNode rdict(std::vector<std::pair<std::string, RawNode>> entries) {
  return RawNode::makeDictionary(std::move(entries));
}
RawNode classDict(const char *name) {
  return rdict({{"$classname", s(name)}, {"$classes", RawNode::makeArray({s(name), s("NSObject")})}});
}

// An archive assembled from raw objects ("$null" is prepended), with the
// header fields open to change.
struct HandArchive {
  std::vector<RawNode> objects;
  RawNode root = uid(1);
  RawNode archiver = s("NSKeyedArchiver");
  RawNode version = RawNode::makeScalar(Value::integer(100000));
  const char *rootKey = "root";
  RawNode nullObject = s("$null");

  RawNode tree() const {
    std::vector<RawNode> all;
    all.push_back(nullObject);
    all.insert(all.end(), objects.begin(), objects.end());
    return rdict({{"$version", version},
                  {"$archiver", archiver},
                  {"$top", rdict({{rootKey, root}})},
                  {"$objects", RawNode::makeArray(std::move(all))}});
  }
  std::vector<uint8_t> binary() const { return plist::writeBinaryPlistRaw(tree()); }
  std::string xml() const { return plist::writeXmlPlistRaw(tree()); }
};

// A binary property list as the writer lays it out (objects back to back in
// index order) with the one object whose bytes are `from` replaced by `to`.
std::vector<uint8_t> replaceObject(const std::vector<uint8_t> &bin, const std::vector<uint8_t> &from,
                                   const std::vector<uint8_t> &to) {
  auto readBE = [](const uint8_t *p, size_t n) {
    uint64_t v = 0;
    for (size_t i = 0; i < n; ++i) v = (v << 8) | p[i];
    return v;
  };
  const uint8_t *trailer = bin.data() + bin.size() - 32;
  const size_t offsetSize = trailer[6];
  const auto count = static_cast<size_t>(readBE(trailer + 8, 8));
  const auto table = static_cast<size_t>(readBE(trailer + 24, 8));
  std::vector<size_t> offsets;
  for (size_t i = 0; i < count; ++i)
    offsets.push_back(static_cast<size_t>(readBE(bin.data() + table + i * offsetSize, offsetSize)));
  offsets.push_back(table);
  std::vector<uint8_t> out(bin.begin(), bin.begin() + 8);
  std::vector<size_t> newOffsets;
  int replaced = 0;
  for (size_t i = 0; i < count; ++i) {
    newOffsets.push_back(out.size());
    const std::vector<uint8_t> object(bin.begin() + static_cast<std::ptrdiff_t>(offsets[i]),
                                      bin.begin() + static_cast<std::ptrdiff_t>(offsets[i + 1]));
    const bool match = object == from;
    replaced += match;
    out.insert(out.end(), match ? to.begin() : object.begin(), match ? to.end() : object.end());
  }
  EXPECT_EQ(replaced, 1);
  const size_t newTable = out.size();
  for (size_t off : newOffsets)
    for (size_t k = offsetSize; k-- > 0;) out.push_back(static_cast<uint8_t>(off >> (8 * k)));
  out.insert(out.end(), trailer, trailer + 24);
  for (int k = 7; k >= 0; --k) out.push_back(static_cast<uint8_t>(newTable >> (8 * k)));
  return out;
}

}  // namespace

TEST(KeyedArchive, DecodesGnustepBinaryArchive) {
  const auto v = plist::decodeKeyedArchive(kGnustepDictionaryArchive, sizeof kGnustepDictionaryArchive);
  ASSERT_TRUE(v.has_value());
  const Value expected = dict({
      {"dlbv", Value::integer(123456)},
      {"neg", Value::integer(-7)},
      {"flag", Value::boolean(true)},
      {"real", Value::real(2.5)},
      {"string", str("plain")},
      {"mstring", str("mutable \xC3\xA9")},
      {"data", Value::data({1, 2, 3})},
      {"date", Value::date(1000.5)},
      {"array", Value::array({str("a"), str("b"), Value::integer(3)})},
      {"dict", dict({{"inner", str("x")}})},
      {"empty", Value::array()},
  });
  EXPECT_EQ(*v, expected);
  EXPECT_EQ(v->find("dlbv")->asUnsigned(), 123456u);
}

TEST(KeyedArchive, RejectsGnustepSetArchive) {
  EXPECT_EQ(plist::decodeKeyedArchive(kGnustepSetArchive, sizeof kGnustepSetArchive), std::nullopt);
}

TEST(KeyedArchive, DecodesGnustepXmlArchive) {
  const auto v = decodeText(kGnustepXmlArchive);
  ASSERT_TRUE(v.has_value());
  EXPECT_EQ(*v, dict({{"networks",
                       Value::array({dict(
                           {{"ssid", str("Home")}, {"bssid", str("aa:bb:cc:dd:ee:ff")}, {"password", str("pw")}})})}}));
}

TEST(KeyedArchive, RoundTripsPropertyListValues) {
  const Value cases[] = {
      dict({{"dlbv", Value::unsignedInteger(3)}}),
      dict({{"idsn", Value::integer(0)}}),
      dict({{"showsInLockScreen", Value::boolean(false)}}),
      dict({{"apps", Value::array({dict({{"bundleIdentifier", str("com.example.mail")},
                                         {"displayName", str("Mail \xE2\x9C\x89")}})})}}),
      Value::array(
          {Value::real(-0.25), Value::date(817034400.0), Value::data({0, 255}), Value::dictionary(), Value::array()}),
      str("just a string"),
      Value::integer(std::numeric_limits<int64_t>::min()),
      Value::unsignedInteger(std::numeric_limits<uint64_t>::max()),
      Value::dictionary(),
  };
  for (const Value &v : cases) {
    const std::vector<uint8_t> bin = plist::encodeKeyedArchive(v);
    ASSERT_FALSE(bin.empty());
    EXPECT_EQ(decode(bin), v);
    EXPECT_EQ(decodeText(plist::encodeKeyedArchiveXml(v)), v);
  }
}

TEST(KeyedArchive, EncodesTheArchiverLayout) {
  const std::vector<uint8_t> bin = plist::encodeKeyedArchive(dict({{"k", Value::array({Value::date(1.0)})}}));
  const auto raw = plist::readBinaryPlistRaw(bin.data(), bin.size());
  ASSERT_TRUE(raw.has_value());
  EXPECT_EQ(raw->find("$archiver")->scalar, str("NSKeyedArchiver"));
  EXPECT_EQ(raw->find("$version")->scalar, Value::integer(100000));
  const RawNode *root = raw->find("$top")->find("root");
  ASSERT_TRUE(root && root->isUid());
  EXPECT_EQ(root->uid, 1u);
  const RawNode &objects = *raw->find("$objects");
  EXPECT_EQ(objects.items.at(0).scalar, str("$null"));
  std::vector<std::string> classNames;
  for (const RawNode &o : objects.items)
    if (const RawNode *n = o.find("$classname")) classNames.push_back(*n->scalar.asString());
  std::sort(classNames.begin(), classNames.end());
  EXPECT_EQ(classNames, (std::vector<std::string>{"NSArray", "NSDate", "NSDictionary"}));
  const RawNode &top = objects.items.at(1);
  ASSERT_TRUE(top.find("NS.keys") && top.find("NS.objects"));
  EXPECT_TRUE(plist::encodeKeyedArchive(str("\xFF")).empty());
}

TEST(KeyedArchive, AcceptsMutableClassesAndFieldForms) {
  struct Case {
    const char *name;
    std::vector<RawNode> objects;
    Value expected;
  };
  const Case cases[] = {
      {"mutable array",
       {rdict({{"NS.objects", uids({3})}, {"$class", uid(2)}}), classDict("NSMutableArray"), s("x")},
       Value::array({str("x")})},
      {"string by reference",
       {rdict({{"NS.string", uid(3)}, {"$class", uid(2)}}), classDict("NSString"), s("y")},
       str("y")},
      {"mutable data",
       {rdict({{"NS.data", RawNode::makeScalar(Value::data({7}))}, {"$class", uid(2)}}), classDict("NSMutableData")},
       Value::data({7})},
      {"date with integer time",
       {rdict({{"NS.time", RawNode::makeScalar(Value::integer(5))}, {"$class", uid(2)}}), classDict("NSDate")},
       Value::date(5.0)},
      {"shared class and shared string",
       {rdict({{"NS.objects", uids({2, 3, 3})}, {"$class", uid(4)}}), s("a"),
        rdict({{"NS.objects", uids({2})}, {"$class", uid(4)}}), classDict("NSArray")},
       Value::array({str("a"), Value::array({str("a")}), Value::array({str("a")})})},
      {"duplicate key keeps the last",
       {rdict({{"NS.keys", uids({2, 2})}, {"NS.objects", uids({3, 4})}, {"$class", uid(5)}}), s("k"),
        RawNode::makeScalar(Value::integer(1)), RawNode::makeScalar(Value::integer(2)),
        classDict("NSMutableDictionary")},
       dict({{"k", Value::integer(2)}})},
  };
  for (const Case &c : cases) {
    HandArchive a;
    a.objects = c.objects;
    EXPECT_EQ(decode(a.binary()), c.expected) << c.name;
    EXPECT_EQ(decodeText(a.xml()), c.expected) << c.name;
  }
}

TEST(KeyedArchive, RefusesReferencesWiderThan64Bits) {
  // The root reference (UID 1, written {0x80, 0x01}) spelled in other widths. The
  // marker allows up to 16 bytes; keeping the low 64 bits of a wider one would make
  // 2^64 + 1 read as 1, a reference to another object.
  struct Case {
    const char *name;
    std::vector<uint8_t> root;
    bool decodes;
  };
  const Case cases[] = {
      {"two bytes", {0x81, 0x00, 0x01}, true},
      {"eight bytes", {0x87, 0, 0, 0, 0, 0, 0, 0, 1}, true},
      {"nine bytes, 2^64 + 1", {0x88, 1, 0, 0, 0, 0, 0, 0, 0, 1}, false},
      {"nine bytes, 1", {0x88, 0, 0, 0, 0, 0, 0, 0, 0, 1}, false},
      {"sixteen bytes, 2^64 + 1", {0x8F, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1}, false},
  };
  HandArchive a;
  a.objects = {s("x")};
  const std::vector<uint8_t> good = a.binary();
  ASSERT_EQ(decode(good), str("x"));
  for (const Case &c : cases) {
    const std::vector<uint8_t> bin = replaceObject(good, {0x80, 0x01}, c.root);
    EXPECT_EQ(decode(bin), c.decodes ? std::optional<Value>(str("x")) : std::nullopt) << c.name;
    EXPECT_EQ(plist::readBinaryPlistRaw(bin.data(), bin.size()).has_value(), c.decodes) << c.name;
  }
}

TEST(KeyedArchive, ReadsTheFirstOfARepeatedFieldInObjectsOfAnySize) {
  // Objects may carry entries the decoder does not read; large ones are indexed rather
  // than searched, and must still give the first of a repeated field, as small ones do.
  for (int padding : {0, 3, 40}) {
    std::vector<std::pair<std::string, RawNode>> string, cls;
    for (int i = 0; i < padding; ++i) {
      string.emplace_back("pad" + std::to_string(i), s("-"));
      cls.emplace_back("pad" + std::to_string(i), s("NSArray"));
    }
    string.emplace_back("NS.string", uid(4));
    string.emplace_back("$class", uid(3));
    string.emplace_back("NS.string", uid(5));
    string.emplace_back("$class", uid(6));
    cls.emplace_back("$classname", s("NSString"));
    cls.emplace_back("$classname", s("NSSet"));
    HandArchive a;
    // 1: an array of the string object three times; 2: the string; 3: its class.
    a.objects = {rdict({{"NS.objects", uids({2, 2, 2})}, {"$class", uid(6)}}),
                 rdict(string),
                 rdict(cls),
                 s("first"),
                 s("second"),
                 classDict("NSArray")};
    const Value expected = Value::array({str("first"), str("first"), str("first")});
    EXPECT_EQ(decode(a.binary()), expected) << padding;
    EXPECT_EQ(decodeText(a.xml()), expected) << padding;
  }
}

TEST(KeyedArchive, RejectsHostileArchives) {
  struct Case {
    const char *name;
    HandArchive archive;
  };
  auto with = [](std::vector<RawNode> objects) {
    HandArchive a;
    a.objects = std::move(objects);
    return a;
  };
  const RawNode arrayClass = classDict("NSArray");
  const RawNode dictClass = classDict("NSDictionary");
  std::vector<Case> cases;
  cases.push_back(
      {"set class", with({rdict({{"NS.objects", uids({3})}, {"$class", uid(2)}}), classDict("NSSet"), s("x")})});
  cases.push_back({"mutable set class",
                   with({rdict({{"NS.objects", uids({3})}, {"$class", uid(2)}}), classDict("NSMutableSet"), s("x")})});
  cases.push_back(
      {"url class", with({rdict({{"NS.relative", uid(3)}, {"$class", uid(2)}}), classDict("NSURL"), s("x")})});
  cases.push_back(
      {"number class", with({rdict({{"NS.intval", RawNode::makeScalar(Value::integer(1))}, {"$class", uid(2)}}),
                             classDict("NSNumber")})});
  cases.push_back({"missing class", with({rdict({{"NS.objects", uids({2})}}), s("x")})});
  cases.push_back({"class is $null", with({rdict({{"NS.objects", uids({2})}, {"$class", uid(0)}}), s("x")})});
  cases.push_back({"class out of range", with({rdict({{"NS.objects", uids({2})}, {"$class", uid(99)}}), s("x")})});
  cases.push_back(
      {"class not a dictionary", with({rdict({{"NS.objects", uids({2})}, {"$class", uid(2)}}), s("NSArray")})});
  cases.push_back({"class without name", with({rdict({{"NS.objects", uids({})}, {"$class", uid(2)}}),
                                               rdict({{"$classes", RawNode::makeArray({s("NSArray")})}})})});
  cases.push_back({"array holds itself", with({rdict({{"NS.objects", uids({1})}, {"$class", uid(2)}}), arrayClass})});
  cases.push_back({"indirect cycle", with({rdict({{"NS.objects", uids({2})}, {"$class", uid(3)}}),
                                           rdict({{"NS.objects", uids({1})}, {"$class", uid(3)}}), arrayClass})});
  cases.push_back(
      {"dictionary value is itself",
       with({rdict({{"NS.keys", uids({2})}, {"NS.objects", uids({1})}, {"$class", uid(3)}}), s("k"), dictClass})});
  cases.push_back({"null in array", with({rdict({{"NS.objects", uids({0})}, {"$class", uid(2)}}), arrayClass})});
  cases.push_back(
      {"null as dictionary value",
       with({rdict({{"NS.keys", uids({2})}, {"NS.objects", uids({0})}, {"$class", uid(3)}}), s("k"), dictClass})});
  cases.push_back({"uid out of range", with({rdict({{"NS.objects", uids({42})}, {"$class", uid(2)}}), arrayClass})});
  cases.push_back({"number key", with({rdict({{"NS.keys", uids({2})}, {"NS.objects", uids({2})}, {"$class", uid(3)}}),
                                       RawNode::makeScalar(Value::integer(1)), dictClass})});
  cases.push_back(
      {"keys and objects differ in length",
       with({rdict({{"NS.keys", uids({2, 2})}, {"NS.objects", uids({2})}, {"$class", uid(3)}}), s("k"), dictClass})});
  cases.push_back(
      {"objects not an array", with({rdict({{"NS.objects", uid(2)}, {"$class", uid(3)}}), s("x"), arrayClass})});
  cases.push_back({"inline value instead of uid",
                   with({rdict({{"NS.objects", RawNode::makeArray({s("x")})}, {"$class", uid(2)}}), arrayClass})});
  cases.push_back({"string field not a string",
                   with({rdict({{"NS.string", RawNode::makeScalar(Value::integer(1))}, {"$class", uid(2)}}),
                         classDict("NSString")})});
  cases.push_back({"date without time", with({rdict({{"$class", uid(2)}}), classDict("NSDate")})});
  cases.push_back({"bare array in objects", with({RawNode::makeArray({s("x")})})});
  cases.push_back({"bare uid in objects", with({uid(1)})});
  {
    HandArchive a = with({s("x")});
    a.root = uid(0);
    cases.push_back({"root is $null", a});
  }
  {
    HandArchive a = with({s("x")});
    a.root = uid(2);
    cases.push_back({"root out of range", a});
  }
  {
    HandArchive a = with({s("x")});
    a.root = s("x");
    cases.push_back({"root not a uid", a});
  }
  {
    HandArchive a = with({s("x")});
    a.rootKey = "object";
    cases.push_back({"no root key", a});
  }
  {
    HandArchive a = with({s("x")});
    a.archiver = s("NSArchiver");
    cases.push_back({"other archiver", a});
  }
  {
    HandArchive a = with({s("x")});
    a.version = RawNode::makeScalar(Value::integer(99999));
    cases.push_back({"other version", a});
  }
  {
    HandArchive a = with({s("x")});
    a.nullObject = s("nil");
    cases.push_back({"first object not $null", a});
  }
  for (const Case &c : cases) {
    EXPECT_EQ(decode(c.archive.binary()), std::nullopt) << c.name;
    EXPECT_EQ(decodeText(c.archive.xml()), std::nullopt) << c.name;
  }
}

TEST(KeyedArchive, DepthIsCapped) {
  auto nested = [](int depth) {
    HandArchive a;
    for (int i = 0; i < depth; ++i)
      a.objects.push_back(rdict({{"NS.objects", uids({static_cast<uint64_t>(i + 2)})}, {"$class", uid(depth + 2)}}));
    a.objects.push_back(s("leaf"));
    a.objects.push_back(classDict("NSArray"));
    return a;
  };
  EXPECT_TRUE(decode(nested(50).binary()).has_value());
  EXPECT_EQ(decode(nested(200).binary()), std::nullopt);
}

TEST(KeyedArchive, SharedReferencesCannotExplode) {
  // Object i lists object i+1 twice: 2^60 leaves if expanded.
  HandArchive a;
  const int levels = 60;
  for (int i = 0; i < levels; ++i)
    a.objects.push_back(rdict({{"NS.objects", uids({static_cast<uint64_t>(i + 2), static_cast<uint64_t>(i + 2)})},
                               {"$class", uid(levels + 2)}}));
  a.objects.push_back(s("x"));
  a.objects.push_back(classDict("NSArray"));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(decode(a.binary()), std::nullopt);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(KeyedArchive, RejectsNonArchivesAndEveryTruncation) {
  const Value plain = dict({{"$archiver", str("NSKeyedArchiver")}});
  const std::vector<uint8_t> notArchive = plist::writeBinaryPlist(plain);
  EXPECT_EQ(decode(notArchive), std::nullopt);
  EXPECT_EQ(decode({}), std::nullopt);
  EXPECT_EQ(plist::decodeKeyedArchive(nullptr, 10), std::nullopt);
  EXPECT_EQ(decodeText("not a plist at all"), std::nullopt);

  const std::vector<uint8_t> good =
      std::vector<uint8_t>(kGnustepDictionaryArchive, kGnustepDictionaryArchive + sizeof kGnustepDictionaryArchive);
  for (size_t n = 0; n < good.size(); ++n)
    EXPECT_EQ(decode(std::vector<uint8_t>(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(n))), std::nullopt)
        << n;
  const std::string xml = kGnustepXmlArchive;
  for (size_t n = 0; n + 1 < xml.size(); n += 7) EXPECT_EQ(decodeText(xml.substr(0, n)), std::nullopt) << n;
}
