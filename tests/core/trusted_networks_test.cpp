#include "wifi/TrustedNetworks.hpp"

#include <gtest/gtest.h>

using tessarin::plist::Value;
using namespace tessarin::wifi;

namespace {

Value entry(const char *bssid, const char *ssid) {
  return Value::dictionary({{"bssid", Value::string(bssid)}, {"ssid", Value::string(ssid)}});
}

Value list(std::vector<Value> entries) { return Value::array(std::move(entries)); }

Value record(const char *ssid, const char *bssid, const char *password = nullptr) {
  Value r = Value::dictionary();
  if (ssid) r.set("ssid", Value::string(ssid));
  if (bssid) r.set("bssid", Value::string(bssid));
  if (password) r.set("password", Value::string(password));
  return r;
}

const char *const kRow = "aa:aa:aa:aa:aa:aa";
const char *const kOther = "bb:bb:bb:bb:bb:bb";
const char *const kUnknown = "ff:ff:ff:ff:ff:ff";

}  // namespace

TEST(TrustedNetworks, RowsFromRecords) {
  Value records = list({
      record("Home", kRow, "secret"), record("Hidden", kUnknown), record(nullptr, kOther),  // no ssid
      record("Nameless BSSID", nullptr),                                                    // no bssid
      Value::string("not a record"), Value::dictionary({{"ssid", Value::integer(7)}, {"bssid", Value::string(kOther)}}),
      Value::dictionary({{"ssid", Value::string("Odd password")},
                         {"bssid", Value::string(kOther)},
                         {"password", Value::integer(1234)}}),
      record("", ""),  // present, so a row, however little it says
  });
  const auto rows = networkRows(&records);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[0].ssid, "Home");
  EXPECT_EQ(rows[0].bssid, kRow);
  EXPECT_EQ(rows[0].password, std::optional<std::string>("secret"));
  EXPECT_EQ(rows[1].ssid, "Hidden");
  EXPECT_EQ(rows[1].bssid, kUnknown);
  EXPECT_FALSE(rows[1].password);
  EXPECT_EQ(rows[2].ssid, "Odd password");
  EXPECT_FALSE(rows[2].password);
  EXPECT_EQ(rows[3].ssid, "");

  Value notAList = record("Home", kRow);
  EXPECT_TRUE(networkRows(&notAList).empty());
  EXPECT_TRUE(networkRows(nullptr).empty());
}

TEST(TrustedNetworks, SwitchStateComparesBothFields) {
  struct Case {
    const char *name;
    Value stored;
    bool on;
  };
  const Case cases[] = {
      {"same bssid and ssid", list({entry(kRow, "Home")}), true},
      {"same bssid, renamed network", list({entry(kRow, "Old name")}), false},
      {"same ssid, other access point", list({entry(kOther, "Home")}), false},
      {"match after others", list({entry(kOther, "Work"), Value::string("junk"), entry(kRow, "Home")}), true},
      {"entry without ssid", list({Value::dictionary({{"bssid", Value::string(kRow)}})}), false},
      {"empty list", list({}), false},
      {"not a list", entry(kRow, "Home"), false},
  };
  for (const Case &c : cases) EXPECT_EQ(isNetworkTrusted(&c.stored, kRow, "Home"), c.on) << c.name;
  EXPECT_FALSE(isNetworkTrusted(nullptr, kRow, "Home"));
}

TEST(TrustedNetworks, SwitchingOnAppends) {
  struct Case {
    const char *name;
    const Value *stored;
    Value expected;
  };
  const Value renamed = list({entry(kRow, "Old name")});
  const Value same = list({entry(kRow, "Home")});
  const Value wrongType = Value::string("garbage");
  const Value mixed = list({Value::integer(3), entry(kOther, "Work")});
  const Case cases[] = {
      {"nothing stored", nullptr, list({entry(kRow, "Home")})},
      {"renamed network gets a second entry", &renamed, list({entry(kRow, "Old name"), entry(kRow, "Home")})},
      {"an equal entry is appended again", &same, list({entry(kRow, "Home"), entry(kRow, "Home")})},
      {"not a list starts anew", &wrongType, list({entry(kRow, "Home")})},
      {"other entries kept in place", &mixed, list({Value::integer(3), entry(kOther, "Work"), entry(kRow, "Home")})},
  };
  for (const Case &c : cases) EXPECT_EQ(trustNetwork(c.stored, kRow, "Home"), c.expected) << c.name;
}

TEST(TrustedNetworks, SwitchingOffWalk) {
  const Value A = entry(kOther, "A");
  const Value B = entry(kRow, "B");
  const Value C = entry(kRow, "C");
  const Value D = entry(kOther, "D");
  const Value E = entry(kRow, "E");
  struct Case {
    const char *name;
    Value stored;
    Value expected;
  };
  const Case cases[] = {
      {"only entry", list({B}), list({})},
      // B goes, the walk moves on by two: C (now at B's place) and D are not looked at.
      {"neighbours survive one pass", list({A, B, C, D}), list({A, C, D})},
      // B and its exact duplicate go together, wherever the duplicate stands.
      {"equal entries go at once", list({B, A, B, D}), list({A, D})},
      {"duplicate before the match goes too", list({A, B, D, B}), list({A, D})},
      // Index 0 matches: B goes, C slides to 0 and is skipped, then index 2 is E.
      {"third entry after a removal is looked at", list({B, C, A, E}), list({C, A})},
      {"first entry then end of list", list({B, C}), list({C})},
      {"no match", list({A, D}), list({A, D})},
      {"non-dictionaries kept", list({Value::string("x"), B, Value::integer(1)}),
       list({Value::string("x"), Value::integer(1)})},
      {"nothing stored", Value::string("garbage"), list({})},
  };
  for (const Case &c : cases) EXPECT_EQ(untrustNetwork(&c.stored, kRow), c.expected) << c.name;
  EXPECT_EQ(untrustNetwork(nullptr, kRow), list({}));

  // Networks without a known access point share one BSSID: turning one off removes the
  // neighbours' entries as far as the walk reaches (H1 at 0, then H3 at 2; H2 slid past).
  const Value hidden = list({entry(kUnknown, "H1"), entry(kOther, "A"), entry(kUnknown, "H2"), entry(kUnknown, "H3")});
  EXPECT_EQ(untrustNetwork(&hidden, kUnknown), list({entry(kOther, "A"), entry(kUnknown, "H2")}));
}
