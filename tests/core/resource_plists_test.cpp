// The bundle's own page designs: the specifier plists of the caller-ID, power-down,
// haptic and delay pages, against the rows the pages' code relies on, the key table
// and the English strings table.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "core/PreferenceKeys.hpp"
#include "core/plist/BinaryPlist.hpp"

using tessarin::plist::Value;

namespace {

std::optional<Value> resourcePlist(const std::string &name) {
  std::ifstream in(std::string(TESSARIN_RESOURCES_DIR) + "/" + name + ".plist", std::ios::binary);
  const std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  return tessarin::plist::readPlist(bytes.data(), bytes.size());
}

// "KEY" = "text"; lines of the English table.
std::map<std::string, std::string> englishStrings() {
  std::ifstream in(std::string(TESSARIN_RESOURCES_DIR) + "/en.lproj/Localizable.strings");
  std::map<std::string, std::string> table;
  const std::regex line(R"re(^"([^"]+)"\s*=\s*"((?:[^"\\]|\\.)*)";\s*$)re");
  std::string text;
  while (std::getline(in, text)) {
    std::smatch m;
    if (std::regex_match(text, m, line)) table[m[1]] = m[2];
  }
  return table;
}

std::string text(const Value *v) {
  const std::string *s = v != nullptr ? v->asString() : nullptr;
  return s != nullptr ? *s : std::string();
}

const Value *row(const Value &plist, const std::string &id) {
  const Value *items = plist.find("items");
  for (size_t i = 0; items != nullptr && i < items->size(); i++)
    if (text(items->at(i)->find("id")) == id) return items->at(i);
  return nullptr;
}

struct Design {
  const char *plist;
  std::vector<const char *> requiredRows;
};

const Design kDesigns[] = {
    {"TessarinCallerIDProtection",
     {"CALLERID_TOP", "CALLERID_FINGER_UP", "CALLERID_HIDE_CALLER", "SHOW_CALLS_AT_LOCKSCREEN_SYSTEM_SETTING"}},
    {"TessarinPowerDownProtection", {"PROTECT_POWER_DOWN", "PROTECT_RESTART"}},
    {"Haptic", {"HAPTIC_ON_ERROR"}},
    {"Delay", {"DELAY_TIME", "WAIT_DELAY", "WAIT_TILL_FINISH"}},
};

}  // namespace

// Every row has an id, the rows the pages' code finds are there, every row's English
// text (its label, or its footer for a group) is in the strings table under its id.
TEST(ResourcePlists, RowsHaveIdsAndEnglishTexts) {
  const auto strings = englishStrings();
  ASSERT_FALSE(strings.empty());
  for (const Design &d : kDesigns) {
    SCOPED_TRACE(d.plist);
    const std::optional<Value> plist = resourcePlist(d.plist);
    ASSERT_TRUE(plist.has_value());
    EXPECT_FALSE(text(plist->find("title")).empty());
    for (const char *id : d.requiredRows) EXPECT_NE(row(*plist, id), nullptr) << id;
    const Value *items = plist->find("items");
    ASSERT_NE(items, nullptr);
    ASSERT_GT(items->size(), 0u);
    for (size_t i = 0; i < items->size(); i++) {
      const Value *r = items->at(i);
      const std::string id = text(r->find("id"));
      ASSERT_FALSE(id.empty()) << "row " << i << " has no id";
      const bool group = text(r->find("cell")) == "PSGroupCell";
      const std::string shown = group ? text(r->find("footerText")) : text(r->find("label"));
      ASSERT_FALSE(shown.empty()) << id;
      const auto english = strings.find(id);
      ASSERT_NE(english, strings.end()) << id << " is not in the strings table";
      EXPECT_EQ(english->second, shown) << id;
    }
  }
}

// What the Face ID replacements of the caller-ID page search for is in the texts
// they replace: "lifting you finger" exactly so, without the "r".
TEST(ResourcePlists, CallerTextsHoldWhatFaceIDReplaces) {
  const std::optional<Value> plist = resourcePlist("TessarinCallerIDProtection");
  ASSERT_TRUE(plist.has_value());
  struct Case {
    const char *row;
    const char *property;
    const char *found;
  };
  const Case cases[] = {
      {"CALLERID_TOP", "footerText", "Touch ID"},
      {"CALLERID_FINGER_UP", "footerText", "lifting you finger"},
      {"CALLERID_HIDE_CALLER", "label", "Hide Caller on "},
  };
  for (const Case &c : cases) {
    const Value *r = row(*plist, c.row);
    ASSERT_NE(r, nullptr) << c.row;
    EXPECT_NE(text(r->find(c.property)).find(c.found), std::string::npos) << c.row;
  }
  // The lock-screen row goes through the page, never through the domain.
  const Value *lockScreen = row(*plist, "SHOW_CALLS_AT_LOCKSCREEN_SYSTEM_SETTING");
  ASSERT_NE(lockScreen, nullptr);
  EXPECT_EQ(lockScreen->find("key"), nullptr);
  EXPECT_EQ(lockScreen->find("defaults"), nullptr);
  EXPECT_EQ(text(lockScreen->find("get")), "getShowsInLockScreen:");
  EXPECT_EQ(text(lockScreen->find("set")), "setShowsInLockScreen:specifier:");
}

// Every key the table gives a plist row is carried by exactly one row of the bundle's
// plists, so SpringBoard's reader and the pages agree on one list of keys.
TEST(ResourcePlists, EveryPlistRowKeyOfTheTableHasItsRow) {
  const char *plists[] = {"TessarinPrefs",
                          "TessarinPasscodeProtection",
                          "TessarinCallerIDProtection",
                          "TessarinPowerDownProtection",
                          "Haptic",
                          "Delay"};
  std::map<std::string, int> carried;
  for (const char *name : plists) {
    const std::optional<Value> plist = resourcePlist(name);
    ASSERT_TRUE(plist.has_value()) << name;
    const Value *items = plist->find("items");
    for (size_t i = 0; items != nullptr && i < items->size(); i++) {
      const std::string k = text(items->at(i)->find("key"));
      if (!k.empty()) carried[k]++;
    }
  }
  for (const tessarin::PreferenceKey &k : tessarin::kPreferenceKeys) {
    if (k.writer != tessarin::Writer::PlistRow) continue;
    EXPECT_EQ(carried[std::string(k.key)], 1) << k.key;
  }
  // The choices of the value rows hold their defaults.
  const std::optional<Value> haptic = resourcePlist("Haptic");
  const Value *choice = row(*haptic, "HAPTIC_ON_ERROR");
  ASSERT_NE(choice, nullptr);
  const Value *values = choice->find("validValues");
  ASSERT_NE(values, nullptr);
  EXPECT_EQ(values->size(), choice->find("validTitles")->size());
  bool found = false;
  for (size_t i = 0; i < values->size(); i++)
    found = found || tessarin::readInteger(values->at(i), -1) == tessarin::key::kErrorHaptic.absentInteger;
  EXPECT_TRUE(found);
  const std::optional<Value> delay = resourcePlist("Delay");
  const Value *slider = row(*delay, "DELAY_TIME");
  ASSERT_NE(slider, nullptr);
  EXPECT_LE(tessarin::readInteger(slider->find("min"), 99), tessarin::key::kDelayTime.absentInteger);
  EXPECT_GE(tessarin::readInteger(slider->find("max"), -1), tessarin::key::kDelayTime.absentInteger);
}
