#include "root/RootRows.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace tessarin::root;

namespace {

// A device file tree with the jail root at /var/jb.
struct FakeFiles final : FileProbe {
  std::set<std::string> present;
  mutable std::vector<std::string> probed;

  bool exists(std::string_view path) const override {
    probed.emplace_back(path);
    return present.count(std::string(path)) > 0;
  }
  std::string jailRoot(std::string_view path) const override { return "/var/jb" + std::string(path); }
};

DeviceFacts touchIdPhone() { return {true, false, false, true, true, true}; }
DeviceFacts faceIdPhone() { return {true, true, false, true, true, true}; }
DeviceFacts iPadWithoutSensor() { return {false, false, true, true, true, true}; }

const std::vector<std::string> kPlist = {"",
                                         "EXTRAS",
                                         "UNLOCK_WITH_TOUCHID",
                                         "CIRCLE_COLOR",
                                         "VIBRATE_ON_ERROR",
                                         "",
                                         "APPLICATIONS_KEY",
                                         "APPLICATIONS_NOTIFICATIONS_KEY",
                                         "FLIPSWITCHES",
                                         "CONTROLCENTER",
                                         "CCSETTINGS_KEY",
                                         "CALLER_ID_PROTECTION_KEY",
                                         "",
                                         "PASSCODE_OPTIONS",
                                         "TRUSTED_WIFI_NETWORKS",
                                         "KEEP_SESSION",
                                         "CRASH_LOGS",
                                         "",
                                         "RESET_ALL"};

std::vector<std::string> keptIds(const DeviceFacts &device, FakeFiles &files) {
  std::vector<std::string> kept;
  for (const std::string &id : kPlist)
    if (!id.empty() && rowAction(id, device, files) != RowAction::Drop) kept.push_back(id);
  return kept;
}

bool has(const std::vector<std::string> &ids, std::string_view id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

}  // namespace

TEST(RootRows, EarlyExits) {
  EXPECT_EQ(singleGroupFooter(0, true), kLibraryMissingFooter);
  EXPECT_EQ(singleGroupFooter(0, false), kLibraryMissingFooter);  // library check comes first
  EXPECT_EQ(singleGroupFooter(0x010203, false), kUnsupportedSystemFooter);
  EXPECT_FALSE(singleGroupFooter(0x010203, true).has_value());
  EXPECT_FALSE(biometricsSet(std::nullopt));  // no reply counts as below 1
  EXPECT_FALSE(biometricsSet(0));
  EXPECT_TRUE(biometricsSet(2));
}

TEST(RootRows, WarningRow) {
  struct Case {
    bool grace, trusted, inPlist;
    std::optional<double> height;
  };
  const Case cases[] = {
      // The grace and network texts alone are checked in the app.
      {false, false, false, std::nullopt},
      {true, true, false, 70} /* grace wins */,
      {true, true, true, std::nullopt},
  };
  for (const Case &c : cases) {
    const auto row = warningRow(c.grace, c.trusted, c.inPlist);
    ASSERT_EQ(row.has_value(), c.height.has_value()) << c.grace << c.trusted << c.inPlist;
    if (!row) continue;
    EXPECT_EQ(row->height, *c.height);
    EXPECT_EQ(row->title, c.grace ? kGraceWarningText : kTrustedWarningText);
  }
}

TEST(RootRows, DeviceDependentRows) {
  struct Case {
    const char *name;
    DeviceFacts device;
    std::vector<std::string> gone, kept;
  };
  const Case cases[] = {
      // Phones and iPads with a sensor are checked in the app; these devices it cannot run.
      {"ipad without sensor",
       iPadWithoutSensor(),
       {"EXTRAS", "UNLOCK_WITH_TOUCHID", "CIRCLE_COLOR", "VIBRATE_ON_ERROR", "CALLER_ID_PROTECTION_KEY"},
       {"PASSCODE_OPTIONS", "RESET_ALL"}},
      {"before ios 11",
       {true, false, false, true, true, false},
       {},
       {"UNLOCK_WITH_TOUCHID", "APPLICATIONS_NOTIFICATIONS_KEY"}},
      {"before ios 8", {true, false, false, false, false, false}, {"CALLER_ID_PROTECTION_KEY"}, {}},
  };
  for (const Case &c : cases) {
    FakeFiles files;
    const auto kept = keptIds(c.device, files);
    for (const auto &id : c.gone) EXPECT_FALSE(has(kept, id)) << c.name << ": " << id;
    for (const auto &id : c.kept) EXPECT_TRUE(has(kept, id)) << c.name << ": " << id;
  }
}

// From iOS 11 (always, in Settings: checked in the app) the extras lose their footer; before, they keep it.
TEST(RootRows, ExtrasKeepTheirFooterBeforeIos11) {
  FakeFiles files;
  EXPECT_EQ(rowAction("EXTRAS", {true, false, false, true, true, false}, files), RowAction::Keep);
}

TEST(RootRows, ProbeOrderStopsAtFirstFound) {
  FakeFiles files;
  rowAction("CONTROLCENTER", touchIdPhone(), files);
  EXPECT_EQ(files.probed,
            (std::vector<std::string>{"/bootstrap/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib",
                                      "/var/jb/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib",
                                      "/Library/MobileSubstrate/DynamicLibraries/FlipControlCenter.dylib",
                                      "/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib",
                                      "/var/jb/Library/MobileSubstrate/DynamicLibraries/CCSettings.dylib"}));

  files.probed.clear();
  files.present = {"/bootstrap/usr/lib/libflipswitch.dylib"};
  rowAction("FLIPSWITCHES", touchIdPhone(), files);
  EXPECT_EQ(files.probed,
            (std::vector<std::string>{"/usr/lib/libflipswitch.dylib", "/bootstrap/usr/lib/libflipswitch.dylib"}));
}

TEST(RootRows, DeviceAuthRow) {
  const auto classes = [](std::string_view name) { return name == kTouchIdPasscodeControllerClass; };
  const auto noClasses = [](std::string_view) { return false; };
  struct Case {
    const char *name;
    DeviceFacts device;
    std::optional<PasscodeCharacteristics> passcode;
    bool warning;
    bool touchIdClass;
    std::string_view rowName, detail, action;
    std::size_t group;
  };
  const Case cases[] = {
      {"4 digits", touchIdPhone(), PasscodeCharacteristics{true, false, 4}, false, true, "Touch ID", "",
       "loadUserPasswordController", 7},
      {"6 digits, warning", faceIdPhone(), PasscodeCharacteristics{true, false, 6}, true, true, "Face ID & Passcode",
       "", "loadUserPasswordController", 9},
      {"5 digits", touchIdPhone(), PasscodeCharacteristics{true, false, 5}, false, true, "Touch ID", "",
       "loadUserComplexPasswordController", 7},
      {"alphanumeric", touchIdPhone(), PasscodeCharacteristics{false, true, 6}, false, true, "Touch ID", "",
       "loadUserComplexPasswordController", 7},
      {"no passcode, face id", faceIdPhone(), std::nullopt, false, false, "Face ID & Passcode",
       "PSUIPearlPasscodeController", "", 7},
      {"no passcode, touch id", touchIdPhone(), std::nullopt, true, true, "Touch ID", "PSTouchIDPasscodeController", "",
       9},
      {"no passcode, old touch id", touchIdPhone(), std::nullopt, false, false, "Touch ID", "PSMesaSettingsController",
       "", 7},
  };
  for (const Case &c : cases) {
    const auto row = c.touchIdClass ? deviceAuthRow(c.device, c.passcode, c.warning, classes)
                                    : deviceAuthRow(c.device, c.passcode, c.warning, noClasses);
    ASSERT_TRUE(row.has_value()) << c.name;
    EXPECT_EQ(row->name, c.rowName) << c.name;
    EXPECT_EQ(row->detailClass, c.detail) << c.name;
    EXPECT_EQ(row->loadAction, c.action) << c.name;
    EXPECT_EQ(row->groupIndex, c.group) << c.name;
    EXPECT_EQ(row->rowIndex, c.group + 1) << c.name;
  }
  EXPECT_FALSE(deviceAuthRow(iPadWithoutSensor(), std::nullopt, false, classes).has_value());
}

TEST(RootRows, PlanWithShortPlistAppendsDeviceAuthRows) {
  RootPageFacts facts;
  facts.device = faceIdPhone();
  facts.biometricsSet = true;
  FakeFiles files;
  const RootRowsPlan plan = planRootRows({"", "RESET_ALL"}, facts, files, nullptr);
  ASSERT_TRUE(plan.deviceAuth.has_value());
  EXPECT_EQ(plan.deviceAuth->groupIndex, 2u);
  ASSERT_EQ(plan.rows.size(), 7u);
  EXPECT_EQ(plan.rows[1].action, RowAction::KeepAsResetTarget);
  EXPECT_EQ(plan.rows[2].kind, PlannedRowKind::DeviceAuthGroup);
  EXPECT_EQ(plan.rows[3].kind, PlannedRowKind::DeviceAuth);
  EXPECT_FALSE(plan.rows[0].disabled);
}
