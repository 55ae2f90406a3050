#include <gtest/gtest.h>

#include <dirent.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"
#include "core/ProtectedList.hpp"
#include "core/plist/BinaryPlist.hpp"
#include "core_test_print.hpp"
#include "core_test_values.hpp"

using namespace tessarin;
using plist::Value;

namespace {

struct ResourcePlist {
  std::string name;
  Value root;
};

// The bundle's specifier plists (every resource plist with "items"), read with the
// bundle's own reader.
std::vector<ResourcePlist> specifierPlists() {
  std::vector<ResourcePlist> plists;
  const std::string dir = TESSARIN_RESOURCES_DIR;
  DIR *d = opendir(dir.c_str());
  if (d == nullptr) return plists;
  std::vector<std::string> names;
  while (const dirent *e = readdir(d)) {
    const std::string name = e->d_name;
    if (name.size() > 6 && name.compare(name.size() - 6, 6, ".plist") == 0) names.push_back(name);
  }
  closedir(d);
  std::sort(names.begin(), names.end());
  for (const std::string &name : names) {
    std::ifstream in(dir + "/" + name, std::ios::binary);
    const std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::optional<Value> root = plist::readPlist(bytes.data(), bytes.size());
    EXPECT_TRUE(root.has_value()) << name << " does not read";
    if (root && root->find("items") != nullptr) plists.push_back({name, std::move(*root)});
  }
  return plists;
}

std::string text(const Value *v) {
  const std::string *s = v != nullptr ? v->asString() : nullptr;
  return s != nullptr ? *s : std::string("<none>");
}
}  // namespace

// The named entries the pages use are the entries of the table the lookups and
// the plist check search.
TEST(PreferenceKeys, EveryNamedEntryIsInTheTable) {
  const PreferenceKey *named[] = {
      &key::kEnabled,
      &key::kPasscode,
      &key::kProtected,
      &key::kProtectedNotifications,
      &key::kProtectedFolders,
      &key::kProtectedCCItems,
      &key::kProtectedCCSettingsItems,
      &key::kProtectedSettings,
      &key::kProtectedSwitches,
      &key::kAllowedWiFis,
      &key::kIconColor,
      &key::kAlertTitle,
      &key::kWaitUntilFinished,
      &key::kKeepSession,
      &key::kUnlockWithTouchID,
      &key::kUseOnlyPasscode,
      &key::kErrorHaptic,
      &key::kWaitDelay,
      &key::kDelayTime,
      &key::kProtectCallerID,
      &key::kHideCallerOnFingerUp,
      &key::kProtectPowerDown,
      &key::kProtectRestart,
  };
  EXPECT_EQ(std::size(named), std::size(kPreferenceKeys));
  for (const PreferenceKey *k : named) {
    const PreferenceKey *found = findPreferenceKey(k->key);
    ASSERT_NE(found, nullptr) << k->key;
    EXPECT_EQ(found->type, k->type) << k->key;
    EXPECT_EQ(found->absent, k->absent) << k->key;
    EXPECT_EQ(found->absentBool, k->absentBool) << k->key;
    EXPECT_EQ(found->absentInteger, k->absentInteger) << k->key;
    EXPECT_EQ(found->writer, k->writer) << k->key;
    EXPECT_EQ(found->row, k->row) << k->key;
    EXPECT_EQ(std::string_view(k->name()), k->key);
  }
  EXPECT_EQ(findPreferenceKey("enabled"), nullptr);
}

// The contract with SpringBoard, spelled out: each key, its type and absent
// value, who writes it and whether that write is announced.
TEST(PreferenceKeys, TypesAbsentValuesAndWriters) {
  struct Case {
    const char *key;
    KeyType type;
    Absent absent;
    Writer writer;
    bool posts;
    const char *row;
  };
  const Case cases[] = {
      {"Enabled", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "ENABLED"},
      {"passcode", KeyType::String, Absent::None, Writer::CodeAnnounced, true, ""},
      {"protected", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedNotifications", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedFolders", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedCCItems", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedCCSettingsItems", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedSettings", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"protectedSwitches", KeyType::StringArray, Absent::Empty, Writer::CodeAnnounced, true, ""},
      {"allowedWiFis", KeyType::DictionaryArray, Absent::Empty, Writer::CodeSilent, false, ""},
      {"IconColor", KeyType::Integer, Absent::Value, Writer::CodeAnnounced, true, ""},
      {"alertTitle", KeyType::String, Absent::DefaultTitle, Writer::CodeAnnounced, true, ""},
      {"waitUntilFinished", KeyType::Boolean, Absent::PageDecides, Writer::PlistRow, true, "WAIT_TILL_FINISH"},
      {"keepSession", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "KEEP_SESSION"},
      {"unlockWithTouchID", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "UNLOCK_WITH_TOUCHID"},
      {"useOnlyPasscode", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "USE_ONLY_TESSARIN_PASSCODE"},
      {"errorHaptic", KeyType::Integer, Absent::Value, Writer::PlistRow, true, "HAPTIC_ON_ERROR"},
      {"waitDelay", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "WAIT_DELAY"},
      {"delayTime", KeyType::Integer, Absent::Value, Writer::PlistRow, true, "DELAY_TIME"},
      {"protectCallerID", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "CALLERID_PROTECT"},
      {"hideCallerOnFingerUp", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "CALLERID_HIDE_CALLER"},
      {"protectPowerDown", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "PROTECT_POWER_DOWN"},
      {"protectRestart", KeyType::Boolean, Absent::Value, Writer::PlistRow, true, "PROTECT_RESTART"},
  };
  EXPECT_EQ(std::size(cases), std::size(kPreferenceKeys));
  for (const Case &c : cases) {
    const PreferenceKey *k = findPreferenceKey(c.key);
    ASSERT_NE(k, nullptr) << c.key;
    EXPECT_EQ(k->type, c.type) << c.key;
    EXPECT_EQ(k->absent, c.absent) << c.key;
    EXPECT_EQ(k->writer, c.writer) << c.key;
    EXPECT_EQ(postsChangeSignal(*k), c.posts) << c.key;
    EXPECT_EQ(k->row, c.row) << c.key;
    EXPECT_FALSE(k->owner.empty()) << c.key;
  }
  EXPECT_TRUE(kResetAllPostsChangeSignal);
}

TEST(PreferenceKeys, FirstRunDomainReadsAsDefaults) {
  const Value domain = Value::dictionary();
  EXPECT_TRUE(readBoolForKey(key::kEnabled.key, domain.find(key::kEnabled.key)));
  EXPECT_FALSE(readBoolForKey(key::kKeepSession.key, domain.find(key::kKeepSession.key)));
  EXPECT_EQ(readIntegerForKey(key::kIconColor.key, domain.find(key::kIconColor.key)), 4);
  EXPECT_EQ(readString(domain.find(key::kPasscode.key)), std::nullopt);
  EXPECT_EQ(domain.find(key::kProtected.key), nullptr);
  EXPECT_EQ(domain.find(key::kAllowedWiFis.key), nullptr);
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
  for (const Case &c : cases) EXPECT_EQ(readBool(c.stored ? &*c.stored : nullptr, c.absent), c.expected) << c.name;
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
    EXPECT_EQ(readIntegerForKey(key::kIconColor.key, c.stored ? &*c.stored : nullptr), c.expected) << c.name;
  EXPECT_EQ(readIntegerForKey("unknownKey", nullptr), 0);
}

TEST(PreferenceKeys, StringReader) {
  const Value empty = Value::string("");
  EXPECT_EQ(readString(&empty), std::string());  // distinct from absent
  const Value number = Value::integer(1234);
  EXPECT_EQ(readString(&number), std::nullopt);
}

// A row of a specifier plist that stores a value carries a key of the table,
// the domain, the default the table gives, and posts the change signal exactly
// when the table says writes of its key are announced.
TEST(PreferenceKeys, EveryPlistRowKeyIsInTheTableWithAnAgreeingDefault) {
  const std::vector<ResourcePlist> plists = specifierPlists();
  ASSERT_FALSE(plists.empty()) << "no specifier plist under " << TESSARIN_RESOURCES_DIR;
  size_t keyedRows = 0;
  for (const ResourcePlist &p : plists) {
    const Value *items = p.root.find("items");
    ASSERT_TRUE(items->isArray()) << p.name;
    for (size_t i = 0; i < items->size(); i++) {
      const Value *row = items->at(i);
      if (!row->isDictionary() || row->find("key") == nullptr) continue;
      keyedRows++;
      const std::string rowKey = text(row->find("key"));
      SCOPED_TRACE(p.name + " row " + text(row->find("id")) + " key " + rowKey);
      const PreferenceKey *k = findPreferenceKey(rowKey);
      ASSERT_NE(k, nullptr) << "key not in the table";
      EXPECT_EQ(k->writer, Writer::PlistRow);
      EXPECT_EQ(text(row->find("id")), k->row);
      EXPECT_EQ(text(row->find("defaults")), kDomain);
      const Value *posted = row->find("PostNotification");
      if (postsChangeSignal(*k))
        EXPECT_EQ(text(posted), kPrefsChangedNotification);
      else
        EXPECT_EQ(posted, nullptr);

      const Value *fallback = row->find("default");
      switch (k->type) {
        case KeyType::Boolean:
          ASSERT_NE(fallback, nullptr);
          ASSERT_TRUE(fallback->asBool().has_value()) << "default is not a boolean";
          if (k->absent == Absent::Value) EXPECT_EQ(*fallback->asBool(), k->absentBool);
          break;
        case KeyType::Integer:
          ASSERT_NE(fallback, nullptr);
          ASSERT_TRUE(fallback->isNumber()) << "default is not a number";
          if (k->absent == Absent::Value) EXPECT_EQ(readInteger(fallback, k->absentInteger + 1), k->absentInteger);
          break;
        case KeyType::String:
          if (fallback != nullptr) EXPECT_TRUE(fallback->isString()) << "default is not a string";
          break;
        default:
          ADD_FAILURE() << "a plist row stores a boolean, a number or a string";
      }
    }
  }
  EXPECT_GE(keyedRows, 4u);  // at least the root page's and the passcode page's switches
  // A table row id found in a plist carries that entry's key.
  for (const PreferenceKey &k : kPreferenceKeys) {
    if (k.row.empty()) continue;
    for (const ResourcePlist &p : plists) {
      const Value *items = p.root.find("items");
      for (size_t i = 0; i < items->size(); i++) {
        const Value *row = items->at(i);
        if (row->isDictionary() && text(row->find("id")) == k.row)
          EXPECT_EQ(text(row->find("key")), k.key) << p.name << " row " << k.row;
      }
    }
  }
}
