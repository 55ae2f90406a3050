#include "wifi/WiFiNetworks.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace tessarin::wifi;

namespace {

PlatformNetwork net(const char *ssid, std::optional<double> joined, const char *bssid = "aa:bb:cc:dd:ee:01",
                    std::optional<std::string> password = std::nullopt) {
  PlatformNetwork n;
  if (ssid) n.ssid = ssid;
  if (bssid) n.bssid = bssid;
  n.password = std::move(password);
  n.lastJoined = joined;
  return n;
}

std::vector<std::string> names(const std::vector<NetworkRecord> &records) {
  std::vector<std::string> out;
  for (const auto &r : records) out.push_back(r.ssid);
  return out;
}

}  // namespace

TEST(WiFiNetworks, Order) {
  struct Case {
    const char *name;
    std::vector<PlatformNetwork> in;
    std::vector<std::string> out;
  };
  const Case cases[] = {
      {"none", {}, {}},
      {"latest first", {net("old", 100), net("new", 900), net("mid", 500)}, {"new", "mid", "old"}},
      {"never joined last",
       {net("never", std::nullopt), net("joined", 1), net("before", -50)},
       {"joined", "never", "before"}},  // a date before the reference date sorts after "never"
      {"ties keep platform order", {net("b", 7), net("a", 7), net("c", 9), net("d", 7)}, {"c", "b", "a", "d"}},
      {"unreadable date counts as never",
       {net("nan", std::nan("")), net("x", 3), net("never", std::nullopt)},
       {"x", "nan", "never"}},
  };
  for (const Case &c : cases) EXPECT_EQ(names(networkRecords(c.in)), c.out) << c.name;
}

TEST(WiFiNetworks, RecordFields) {
  const auto records = networkRecords({
      net("home", 5, "11:22:33:44:55:66", std::string("secret")),
      net("hidden", 4, nullptr),
      net("blank", 3, "", std::string("")),
      net(nullptr, 9),
      net("", 8),
  });
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[0].bssid, "11:22:33:44:55:66");
  EXPECT_EQ(records[0].password, std::optional<std::string>("secret"));
  EXPECT_EQ(records[1].bssid, "ff:ff:ff:ff:ff:ff");
  EXPECT_FALSE(records[1].password.has_value());
  EXPECT_EQ(records[2].bssid, "ff:ff:ff:ff:ff:ff");
  EXPECT_FALSE(records[2].password.has_value());
}

TEST(WiFiNetworks, Trust) {
  const TrustedEntry office{std::string("aa:aa:aa:aa:aa:aa"), std::string("Office")};
  const TrustedEntry unknown{std::string("ff:ff:ff:ff:ff:ff"), std::string("Hidden")};
  const TrustedEntry broken{std::nullopt, std::string("Office")};
  struct Case {
    const char *name;
    std::vector<TrustedEntry> list;
    std::optional<std::string> current;
    bool trusted;
  };
  const Case cases[] = {
      {"bssid match, other ssid",
       {TrustedEntry{std::string("aa:aa:aa:aa:aa:aa"), std::string("Cafe")}},
       std::string("aa:aa:aa:aa:aa:aa"),
       true},
      {"no match", {office}, std::string("bb:bb:bb:bb:bb:bb"), false},
      {"no current network", {office}, std::nullopt, false},
      {"entry without bssid", {broken}, std::string("aa:aa:aa:aa:aa:aa"), false},
      {"later entry matches", {broken, unknown, office}, std::string("aa:aa:aa:aa:aa:aa"), true},
      {"unknown bssid matches only itself", {unknown}, std::string("ff:ff:ff:ff:ff:ff"), true},
      {"case matters", {office}, std::string("AA:AA:AA:AA:AA:AA"), false},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(isTrusted(c.list, [&] { return c.current; }), c.trusted) << c.name;
  }
}
