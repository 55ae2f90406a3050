#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

#include "core/PreferenceKeys.hpp"
#include "core/ProtectedList.hpp"
#include "core_test_print.hpp"

using namespace tessarin;
using plist::Value;

namespace {
Value strings(std::initializer_list<const char *> items) {
    Value a = Value::array();
    for (const char *s : items) a.append(Value::string(s));
    return a;
}
std::vector<std::string> list(std::initializer_list<const char *> items) { return {items.begin(), items.end()}; }
}  // namespace

TEST(PreferenceKeys, TableIsCompleteAndUnique) {
    std::set<std::string_view> keys;
    for (const PreferenceKey &k : kPreferenceKeys) keys.insert(k.key);
    EXPECT_EQ(keys.size(), std::size(kPreferenceKeys));
    for (const char *k : {key::kEnabled, key::kPasscode, key::kProtected, key::kProtectedNotifications,
                          key::kProtectedFolders, key::kProtectedCCItems, key::kProtectedCCSettingsItems,
                          key::kProtectedSettings, key::kProtectedSwitches, key::kAllowedWiFis, key::kIconColor,
                          key::kAlertTitle, key::kWaitUntilFinished})
        EXPECT_NE(findPreferenceKey(k), nullptr) << k;
    EXPECT_EQ(keys.size(), 13u);
    EXPECT_EQ(findPreferenceKey("enabled"), nullptr);
}

TEST(PreferenceKeys, TypesAndAbsentValues) {
    struct Case {
        const char *key;
        KeyType type;
        Absent absent;
        Writer writer;
    };
    const Case cases[] = {
        {"Enabled", KeyType::Boolean, Absent::Value, Writer::PlistRow},
        {"passcode", KeyType::String, Absent::None, Writer::CodeAnnounced},
        {"protected", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedNotifications", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedFolders", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedCCItems", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedCCSettingsItems", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedSettings", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"protectedSwitches", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced},
        {"allowedWiFis", KeyType::DictionaryArray, Absent::Empty, Writer::CodeSilent},
        {"IconColor", KeyType::Integer, Absent::Value, Writer::CodeAnnounced},
        {"alertTitle", KeyType::String, Absent::DefaultTitle, Writer::CodeAnnounced},
        {"waitUntilFinished", KeyType::Boolean, Absent::PageDecides, Writer::PlistRow},
    };
    for (const Case &c : cases) {
        const PreferenceKey *k = findPreferenceKey(c.key);
        ASSERT_NE(k, nullptr) << c.key;
        EXPECT_EQ(k->type, c.type) << c.key;
        EXPECT_EQ(k->absent, c.absent) << c.key;
        EXPECT_EQ(k->writer, c.writer) << c.key;
        EXPECT_FALSE(k->owner.empty()) << c.key;
    }
}

TEST(PreferenceKeys, FirstRunDomainReadsAsDefaults) {
    const Value domain = Value::dictionary();
    EXPECT_TRUE(readBoolForKey(key::kEnabled, domain.find(key::kEnabled)));
    EXPECT_EQ(readIntegerForKey(key::kIconColor, domain.find(key::kIconColor)), 4);
    EXPECT_EQ(readString(domain.find(key::kPasscode)), std::nullopt);
    EXPECT_TRUE(readStringArray(domain.find(key::kProtected)).empty());
    EXPECT_TRUE(readDictionaryArray(domain.find(key::kAllowedWiFis)).empty());
}

TEST(PreferenceKeys, BooleanReader) {
    struct Case {
        const char *name;
        std::optional<Value> stored;
        bool absent;
        bool expected;
    };
    const Case cases[] = {
        {"absent, default true", std::nullopt, true, true},
        {"absent, default false", std::nullopt, false, false},
        {"false stored", Value::boolean(false), true, false},
        {"true stored", Value::boolean(true), false, true},
        {"integer 0", Value::integer(0), true, false},
        {"integer 2", Value::integer(2), false, true},
        {"real 0.0", Value::real(0.0), true, false},
        {"huge unsigned", Value::unsignedInteger(std::numeric_limits<uint64_t>::max()), false, true},
        {"string is wrong-typed", Value::string("NO"), true, true},
        {"array is wrong-typed", Value::array(), false, false},
        {"dictionary is wrong-typed", Value::dictionary(), true, true},
    };
    for (const Case &c : cases)
        EXPECT_EQ(readBool(c.stored ? &*c.stored : nullptr, c.absent), c.expected) << c.name;
}

TEST(PreferenceKeys, IntegerReader) {
    struct Case {
        const char *name;
        std::optional<Value> stored;
        int64_t expected;
    };
    const Case cases[] = {
        {"absent", std::nullopt, 4},
        {"stored 0", Value::integer(0), 0},
        {"stored 5", Value::integer(5), 5},
        {"negative", Value::integer(-3), -3},
        {"real truncates", Value::real(2.9), 2},
        {"boolean", Value::boolean(true), 1},
        {"NaN falls back", Value::real(std::numeric_limits<double>::quiet_NaN()), 4},
        {"huge real falls back", Value::real(1e30), 4},
        {"unsigned above int64 falls back", Value::unsignedInteger(std::numeric_limits<uint64_t>::max()), 4},
        {"string falls back", Value::string("3"), 4},
        {"data falls back", Value::data({3}), 4},
    };
    for (const Case &c : cases)
        EXPECT_EQ(readIntegerForKey(key::kIconColor, c.stored ? &*c.stored : nullptr), c.expected) << c.name;
    EXPECT_EQ(readIntegerForKey("unknownKey", nullptr), 0);
}

TEST(PreferenceKeys, StringAndListReaders) {
    const Value empty = Value::string("");
    EXPECT_EQ(readString(&empty), std::string());  // distinct from absent
    const Value number = Value::integer(1234);
    EXPECT_EQ(readString(&number), std::nullopt);
    const Value mixed = Value::array({Value::string("a"), Value::integer(1), Value::dictionary(), Value::string("b")});
    EXPECT_EQ(readStringArray(&mixed), list({"a", "b"}));
    EXPECT_EQ(readDictionaryArray(&mixed).size(), 1u);
    const Value notList = Value::string("a");
    EXPECT_TRUE(readStringArray(&notList).empty());
}

TEST(ProtectedList, ToggleRule) {
    struct Case {
        const char *name;
        std::optional<Value> stored;
        const char *item;
        bool on;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {"on into nothing", std::nullopt, "a", true, list({"a"})},
        {"on appends at end", strings({"b", "c"}), "a", true, list({"b", "c", "a"})},
        {"on when present keeps order", strings({"a", "b"}), "a", true, list({"a", "b"})},
        {"off removes every copy", strings({"a", "b", "a", "a"}), "a", false, list({"b"})},
        {"off when absent still stores", strings({"b"}), "a", false, list({"b"})},
        {"off from nothing", std::nullopt, "a", false, list({})},
        {"wrong type counts as empty", Value::string("a"), "b", true, list({"b"})},
        {"non-strings dropped", Value::array({Value::integer(1), Value::string("x")}), "y", true, list({"x", "y"})},
        {"empty item is an item", strings({"a"}), "", true, list({"a", ""})},
    };
    for (const Case &c : cases)
        EXPECT_EQ(toggled(c.stored ? &*c.stored : nullptr, c.item, c.on), c.expected) << c.name;
}

TEST(ProtectedList, TrustedNetworksAppendWithoutPresenceTest) {
    Value stored = appendTrusted(nullptr, "aa:bb", "Home");
    ASSERT_EQ(stored.size(), 1u);
    stored = appendTrusted(&stored, "aa:bb", "Home");
    ASSERT_EQ(stored.size(), 2u);
    EXPECT_EQ(*stored.at(0), *stored.at(1));
    EXPECT_EQ(*stored.at(0)->find("bssid")->asString(), "aa:bb");
    EXPECT_EQ(*stored.at(0)->find("ssid")->asString(), "Home");
    EXPECT_EQ(stored.at(0)->size(), 2u);
    const Value junk = Value::array({Value::string("x"), Value::dictionary({{"ssid", Value::string("Old")}})});
    const Value next = appendTrusted(&junk, "ff:ff:ff:ff:ff:ff", "Cafe");
    ASSERT_EQ(next.size(), 2u);
    EXPECT_EQ(*next.at(0)->find("ssid")->asString(), "Old");
}
