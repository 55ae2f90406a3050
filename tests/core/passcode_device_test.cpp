#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "passcode/DevicePasscodeFlow.hpp"

namespace tessarin::passcode {
namespace {

struct DeviceCase {
  const char *name;
  std::vector<std::string> entries;  // the device passcode is "135790"
  int checks;                        // how often the system check ran
  int errors;
  bool success;
  bool refused;
};

class DeviceFlowTable : public ::testing::TestWithParam<DeviceCase> {};

TEST_P(DeviceFlowTable, TwoErrorsAllowedPerOpening) {
  const DeviceCase &c = GetParam();
  DevicePasscodeFlow flow;
  int checks = 0;
  auto checker = [&checks](std::string_view p) {
    ++checks;
    return p == "135790";
  };
  bool success = false;
  bool refused = false;
  std::string lastWarning;
  for (const std::string &e : c.entries) {
    Step s = flow.enter(e, checker);
    EXPECT_EQ(s.commit, Commit::None);  // nothing is ever written
    success = success || s.success;
    refused = refused || s.refuse;
    if (s.changesLabels()) lastWarning = std::string(s.warning.defaultText);
  }
  EXPECT_EQ(checks, c.checks);
  EXPECT_EQ(flow.errorCount(), c.errors);
  EXPECT_EQ(success, c.success);
  EXPECT_EQ(refused, c.refused);
  if (c.refused) EXPECT_EQ(lastWarning, "Too many attempts. Sorry.");
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DeviceFlowTable,
    ::testing::Values(DeviceCase{"right_at_once", {"135790"}, 1, 0, true, false},
                      DeviceCase{"one_wrong_then_right", {"000000", "135790"}, 2, 1, true, false},
                      DeviceCase{"two_wrong_then_right", {"000000", "111111", "135790"}, 2, 2, false, true},
                      DeviceCase{"three_wrong", {"1", "2", "3"}, 2, 2, false, true},
                      DeviceCase{"nothing_after_refusal", {"1", "2", "3", "135790"}, 2, 2, false, true},
                      DeviceCase{"nothing_after_success", {"135790", "1", "135790"}, 1, 0, true, false}),
    [](const auto &info) { return std::string(info.param.name); });

TEST(DevicePasscodeFlow, EmptyCheckerCountsAsWrong) {
  DevicePasscodeFlow flow;
  Step s = flow.enter("1234", DevicePasscodeFlow::Checker());
  EXPECT_FALSE(s.success);
  EXPECT_EQ(flow.errorCount(), 1);
}

TEST(DevicePasscodeFlow, CancelClosesWithoutChecking) {
  DevicePasscodeFlow flow;
  EXPECT_TRUE(flow.cancel().isNothing());
  int checks = 0;
  Step s = flow.enter("1234", [&checks](std::string_view) { return ++checks > 0; });
  EXPECT_TRUE(s.isNothing());
  EXPECT_EQ(checks, 0);
}

TEST(DevicePasscode, EntryFieldCount) {
  const struct {
    long long length;
    int fields;
  } cases[] = {{6, 6}, {4, 4}, {0, 4}, {5, 4}, {8, 4}, {-6, 4}};
  for (const auto &c : cases) {
    EXPECT_EQ(entryFieldCount(c.length), c.fields) << c.length;
  }
}

TEST(DevicePasscode, SystemControllerChoice) {
  const std::set<std::string> all = {"PSUIPearlPasscodeController", "PSMesaSettingsController",
                                     "PSTouchIDPasscodeController", "PSUITouchIDPasscodeController"};
  const struct {
    const char *name;
    bool faceID;
    std::set<std::string> present;
    const char *chosen;
  } cases[] = {
      {"faceid_wins_over_fingerprint", true, all, "PSUIPearlPasscodeController"},
      {"faceid_without_its_class", true, {"PSMesaSettingsController", "PSTouchIDPasscodeController"}, ""},
      {"mesa_first", false, all, "PSMesaSettingsController"},
      {"touchid_second",
       false,
       {"PSTouchIDPasscodeController", "PSUITouchIDPasscodeController"},
       "PSTouchIDPasscodeController"},
      {"ui_touchid_last", false, {"PSUITouchIDPasscodeController"}, "PSUITouchIDPasscodeController"},
      {"pearl_ignored_without_faceid", false, {"PSUIPearlPasscodeController"}, ""},
      {"none", false, {}, ""},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<std::string> asked;
    auto exists = [&](std::string_view n) {
      asked.emplace_back(n);
      return c.present.count(std::string(n)) > 0;
    };
    EXPECT_EQ(systemControllerClass(c.faceID, exists), c.chosen);
    if (*c.chosen) EXPECT_EQ(asked.back(), c.chosen);  // stops at the first hit
  }
  EXPECT_TRUE(systemControllerClass(false, nullptr).empty());
}

TEST(DevicePasscode, AuthorisationToken) {
  using T = TokenAnswer;
  const struct {
    T priv;
    T pub;
    bool unlocked;
  } cases[] = {
      {T::NotAnswered, T::NotAnswered, true}, {T::Present, T::NotAnswered, true}, {T::NotAnswered, T::Present, true},
      {T::Present, T::Present, true},         {T::Null, T::NotAnswered, false},   {T::NotAnswered, T::Null, false},
      {T::Present, T::Null, false},           {T::Null, T::Present, false},
  };
  for (const auto &c : cases) {
    EXPECT_EQ(holdsAuthorisation(c.priv, c.pub), c.unlocked)
        << static_cast<int>(c.priv) << " " << static_cast<int>(c.pub);
  }
}

}  // namespace
}  // namespace tessarin::passcode
