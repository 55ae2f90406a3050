// The protection-list pages' rules: the list edit every list page shares, the
// application scan, the folder rows and picture, the Control Center tables and
// the CCSettings titles and order.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/ProtectedList.hpp"
#include "core/plist/BinaryPlist.hpp"
#include "lists/ApplicationScan.hpp"
#include "lists/ControlCenterItems.hpp"
#include "lists/FolderRows.hpp"
#include "core_test_values.hpp"

using namespace tessarin;
using namespace tessarin::lists;
using plist::Value;

namespace {
std::optional<std::string> some(const char *s) { return s ? std::optional<std::string>(s) : std::nullopt; }
const std::nullopt_t none = std::nullopt;
}  // namespace

TEST(ApplicationScan, SourcesAndCandidates) {
  EXPECT_EQ(sourceDirectory(AppSource::Applications, true), "/Applications");
  EXPECT_EQ(sourceDirectory(AppSource::LegacyContainers, true), "/private/var/mobile/Applications/");
  EXPECT_EQ(sourceDirectory(AppSource::Binpack, false), "/private/var/binpack/Applications/");
  EXPECT_EQ(sourceDirectory(AppSource::ContainerRoot, true), "/var/containers/Bundle/Application");
  EXPECT_EQ(sourceDirectory(AppSource::ContainerRoot, false), "/var/mobile/Containers/Bundle/Application");
  struct Case {
    AppSource source;
    const char *entry;
    bool insideContainer;
    bool candidate;
  };
  const Case cases[] = {
      {AppSource::Applications, "Notes.app", false, true},
      {AppSource::Applications, "README", false, true},  // no suffix test
      {AppSource::Binpack, ".DS_Store", false, true},
      {AppSource::LegacyContainers, "0A1B-2C3D", false, true},  // every container
      {AppSource::LegacyContainers, "Game.app", true, true},
      {AppSource::LegacyContainers, "iTunesMetadata.plist", true, false},
      {AppSource::ContainerRoot, "Happ", true, true},  // "app", not ".app"
      {AppSource::ContainerRoot, "Documents", true, false},
      {AppSource::ContainerRoot, "app", true, true},
      {AppSource::ContainerRoot, "ap", true, false},
  };
  for (const Case &c : cases) EXPECT_EQ(isCandidateEntry(c.source, c.entry, c.insideContainer), c.candidate) << c.entry;
}

TEST(ApplicationScan, NameRule) {
  using K = InfoValue::Kind;
  const InfoValue absent = InfoValue::absent(), other = InfoValue::other();
  auto s = [](const char *t) { return InfoValue::string(t); };
  struct Case {
    const char *name;
    InfoValue display, bundleName, executable;
    K kind;
    const char *text;
  };
  const Case cases[] = {
      {"display name first", s("Notes"), s("MobileNotes"), s("notes"), K::String, "Notes"},
      {"then name", absent, s("MobileNotes"), s("notes"), K::String, "MobileNotes"},
      {"then executable", absent, absent, s("notes"), K::String, "notes"},
      {"none", absent, absent, absent, K::Absent, ""},
      {"~iphone removed", s("Maps~iphone"), absent, absent, K::String, "Maps"},
      {"every ~iphone removed", s("A~iphoneB~iphone~iphone"), absent, absent, K::String, "AB"},
      {"~ipad kept", s("Maps~ipad"), absent, absent, K::String, "Maps~ipad"},
      {"removal leaves nothing", s("~iphone"), absent, absent, K::String, ""},
      {"a present wrong type wins", other, s("Name"), absent, K::Other, ""},
      {"empty display name is present", s(""), s("Name"), absent, K::String, ""},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    const InfoValue v = infoName(c.display, c.bundleName, c.executable);
    EXPECT_EQ(v.kind, c.kind);
    EXPECT_EQ(v.text, c.text);
    EXPECT_EQ(localisesName(AppSource::ContainerRoot, v), c.kind == K::String);
    EXPECT_EQ(localisesName(AppSource::Applications, v), c.kind != K::Absent);
  }
}

TEST(ApplicationScan, ListingBySource) {
  const InfoValue absent = InfoValue::absent(), other = InfoValue::other();
  auto s = [](const char *t) { return InfoValue::string(t); };
  struct Step {
    AppSource source;
    InfoValue name;
    std::optional<std::string> identifier;
    std::optional<std::string> listed;
  };
  struct Case {
    const char *name;
    std::optional<std::vector<std::string>> allowed;
    std::vector<Step> steps;
  };
  const Case cases[] = {
      {"same name twice in /Applications: both listed",
       std::nullopt,
       {{AppSource::Applications, s("Mail"), some("a.mail"), some("Mail")},
        {AppSource::Applications, s("Mail"), some("b.mail"), some("Mail")}}},
      {"same name in the container root after another source: skipped",
       std::nullopt,
       {{AppSource::Binpack, s("Mail"), some("a.mail"), some("Mail")},
        {AppSource::ContainerRoot, s("Mail"), some("b.mail"), none}}},
      {"same name twice in the container root: the first only",
       std::nullopt,
       {{AppSource::ContainerRoot, s("Chat"), some("a.chat"), some("Chat")},
        {AppSource::ContainerRoot, s("Chat"), some("b.chat"), none}}},
      {"no name: skipped in the first three, the identifier in the container root",
       std::nullopt,
       {{AppSource::Applications, absent, some("x.one"), none},
        {AppSource::LegacyContainers, other, some("x.two"), none},
        {AppSource::ContainerRoot, absent, some("x.three"), some("x.three")},
        {AppSource::ContainerRoot, other, some("x.four"), some("x.four")},
        {AppSource::ContainerRoot, absent, none, none}}},
      {"a name that shows nothing is no name: skipped, or the identifier in the container root",
       std::nullopt,
       {{AppSource::Applications, s(""), some("e.one"), none},
        {AppSource::Binpack, s(" \u200E"), some("e.two"), none},
        {AppSource::ContainerRoot, s(""), some("e.three"), some("e.three")},
        {AppSource::ContainerRoot, s("\u202A\u202C"), some("e.four"), some("e.four")},
        {AppSource::ContainerRoot, s(""), some(""), none},
        {AppSource::ContainerRoot, absent, some("\u200F"), none}}},
      {"an identifier used as a name counts for duplicates",
       std::nullopt,
       {{AppSource::ContainerRoot, absent, some("x.id"), some("x.id")},
        {AppSource::ContainerRoot, s("x.id"), some("y.id"), none}}},
      {"only allowed identifiers",
       std::vector<std::string>{"a.mail"},
       {{AppSource::Applications, s("Mail"), some("a.mail"), some("Mail")},
        {AppSource::Applications, s("Game"), some("c.game"), none},
        {AppSource::Applications, s("NoId"), none, none}}},
      {"a name not allowed is not remembered",
       std::vector<std::string>{"b.chat"},
       {{AppSource::ContainerRoot, s("Chat"), some("a.chat"), none},
        {AppSource::ContainerRoot, s("Chat"), some("b.chat"), some("Chat")}}},
      {"an empty answer allows nothing",
       std::vector<std::string>{},
       {{AppSource::Applications, s("Mail"), some("a.mail"), none}}},
      {"no answer shows everything named, even without identifier",
       std::nullopt,
       {{AppSource::Binpack, s("Tool"), none, some("Tool")}}},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    ApplicationListing listing(c.allowed ? AllowedApplications(*c.allowed) : AllowedApplications());
    for (const Step &step : c.steps) EXPECT_EQ(listing.consider(step.source, step.name, step.identifier), step.listed);
  }
}

TEST(FolderRows, RowName) {
  const InfoValue absent = InfoValue::absent(), other = InfoValue::other();
  auto s = [](const char *t) { return InfoValue::string(t); };
  struct Case {
    const char *name;
    std::optional<std::string> type;
    InfoValue defaultName, displayName;
    std::optional<std::string> expected;
  };
  const Case cases[] = {
      {"newsstand by type", some("newsstand"), s("Zeitungen"), s("News"), some("newsstand")},
      {"newsstand without names", some("newsstand"), absent, absent, some("newsstand")},
      {"default name first", some("regular"), s("Games"), s("My games"), some("Games")},
      {"then display name", none, absent, s("Work"), some("Work")},
      {"an empty default name is present", none, s(""), s("Work"), some("")},
      {"exact type only", some("Newsstand"), absent, s("Papers"), some("Papers")},
      {"no names", none, absent, absent, none},
      {"a default name of another type is still the one taken", none, other, s("Work"), none},
      {"a display name of another type", none, absent, other, none},
  };
  for (const Case &c : cases) EXPECT_EQ(folderRowName(c.type, c.defaultName, c.displayName), c.expected) << c.name;
}

TEST(FolderRows, IconFrames) {
  struct Case {
    size_t index;
    double x, y;
  };
  const Case cases[] = {
      {0, 8, 8},  {1, 23, 8},  {2, 38, 8},  {3, 8, 23},  {4, 23, 23},  {5, 38, 23},
      {6, 8, 38}, {7, 23, 38}, {8, 38, 38}, {9, 53, 38}, {10, 68, 38}, {11, 83, 38},
  };
  for (const Case &c : cases) {
    const PictureRect r = folderIconFrame(c.index);
    EXPECT_EQ(r.x, c.x) << c.index;
    EXPECT_EQ(r.y, c.y) << c.index;
    EXPECT_EQ(r.width, 13);
    EXPECT_EQ(r.height, 13);
  }
  // Nine inside the canvas, the tenth cut by its right edge, the rest outside.
  for (size_t i = 0; i < 12; i++) {
    const PictureRect r = folderIconFrame(i);
    const bool inside = r.x + r.width <= kFolderPictureCanvas;
    const bool visible = r.x < kFolderPictureCanvas;
    EXPECT_EQ(inside, i < 9) << i;
    EXPECT_EQ(visible, i < 10) << i;
  }
}

TEST(FolderRows, ElementKinds) {
  EXPECT_EQ(folderElementKind(true, none), FolderElement::Application);
  EXPECT_EQ(folderElementKind(false, some("newsstand")), FolderElement::NewsstandList);
  EXPECT_EQ(folderElementKind(false, some("folder")), FolderElement::OtherList);
  EXPECT_EQ(folderElementKind(false, none), FolderElement::OtherList);
}

TEST(ControlCenterTables, ModularAndClassicRows) {
  struct Expect {
    const char *title, *identifier, *image;
  };
  const Expect icons[] = {{"Airplane Mode", "airplane", "AirplaneMode"},
                          {"Cellular Data", "cellular", "CellularData"},
                          {"WiFi", "wifi", "WiFi"},
                          {"Bluetooth", "bluetooth", "Bluetooth"},
                          {"AirDrop", "airdrop", "AirDrop-Settings"},
                          {"Personal Hotspot", "hotspot", "PersonalHotspot"}};
  const Expect glyphs[] = {
      {"Airplane Mode", "airplane", "AirplaneGlyph"}, {"Cellular Data", "cellular", "CellularDataGlyph"},
      {"WiFi", "wifi", "WiFiSignalHighGlyph"},        {"Bluetooth", "bluetooth", "bt_logo"},
      {"AirDrop", "airdrop", "AirDropGlyph"},         {"Personal Hotspot", "hotspot", "HotspotGlyph"}};
  const Expect classic[] = {{"Airplane Mode", "airplaneMode", "ControlCenterGlyphAirplane"},
                            {"Wifi", "wifi", "ControlCenterGlyphWifi"},
                            {"Bluetooth", "bluetooth", "ControlCenterGlyphBluetooth"},
                            {"Do not disturb", "doNotDisturb", "ControlCenterGlyphMoon"},
                            {"Orientation lock", "orientationLock", "ControlCenterGlyphOrientationLocked"}};
  for (size_t i = 0; i < 6; i++) {
    EXPECT_EQ(kConnectivitySettingsIconRows[i].title, icons[i].title);
    EXPECT_EQ(kConnectivitySettingsIconRows[i].identifier, icons[i].identifier);
    EXPECT_EQ(kConnectivitySettingsIconRows[i].image, icons[i].image);
    EXPECT_EQ(kConnectivityGlyphRows[i].title, glyphs[i].title);
    EXPECT_EQ(kConnectivityGlyphRows[i].identifier, glyphs[i].identifier);
    EXPECT_EQ(kConnectivityGlyphRows[i].image, glyphs[i].image);
  }
  for (size_t i = 0; i < 5; i++) {
    EXPECT_EQ(kClassicRows[i].title, classic[i].title);
    EXPECT_EQ(kClassicRows[i].identifier, classic[i].identifier);
    EXPECT_EQ(kClassicRows[i].image, classic[i].image);
  }
  // Images of other bundles than the layout's own.
  EXPECT_EQ(std::string(kConnectivitySettingsIconRows[4].bundle),
            "/System/Library/PrivateFrameworks/Sharing.framework");
  EXPECT_EQ(std::string(kConnectivityGlyphRows[3].bundle), "/System/Library/PrivateFrameworks/LegacyGameKit.framework");
  EXPECT_EQ(std::string(kConnectivityGlyphRows[0].bundle),
            "/System/Library/ControlCenter/Bundles/ConnectivityModule.bundle");
}

TEST(ControlCenterTables, LayoutAndAddOns) {
  EXPECT_EQ(controlCenterLayout(true), CCLayout::Modular);
  EXPECT_EQ(controlCenterLayout(false), CCLayout::Classic);
  EXPECT_TRUE(listsAddOnModules(true, true));
  EXPECT_FALSE(listsAddOnModules(true, false));
  EXPECT_FALSE(listsAddOnModules(false, true));
}

TEST(ControlCenterTables, Modules) {
  for (const char *skipped : {"AudioModule.bundle", "ConnectivityModule.bundle", "MuteModule.bundle",
                              "DisplayModule.bundle", "OrientationLockModule.bundle", "MediaControlsModule.bundle"})
    EXPECT_TRUE(isSkippedModule(skipped)) << skipped;
  for (const char *listed : {"FlashlightModule.bundle", "AudioModule", "audiomodule.bundle", ""})
    EXPECT_FALSE(isSkippedModule(listed)) << listed;
  EXPECT_EQ(moduleImageName("AirPlayMirroringModule.bundle"), "AirPlayMirroringGlyph");
  EXPECT_EQ(moduleImageName("DoNotDisturbModule.bundle"), "DND");
  EXPECT_EQ(moduleImageName("CalculatorModule.bundle"), "SettingsIcon");
  struct Case {
    const char *bundle;
    std::optional<std::string> displayName, name, title;
  };
  const Case cases[] = {
      {"FlashlightModule.bundle", some("Torch"), some("FlashlightModule"), some("Torch")},
      {"FlashlightModule.bundle", none, some("FlashlightModule"), some("Flashlight")},
      {"X.bundle", none, some("ModuleModuleX Module"), some("X ")},             // every "Module", as it stands
      {"X.bundle", some("Display Module"), some("Y"), some("Display Module")},  // display name as it stands
      {"ReplayKitModule.bundle", some("Record"), some("ReplayKitModule"), some("Screen Recording")},
      {"ReplayKitModule.bundle", none, none, some("Screen Recording")},
      {"Bare.bundle", none, none, none},
  };
  for (const Case &c : cases) EXPECT_EQ(moduleTitle(c.bundle, c.displayName, c.name), c.title) << c.bundle;
}

TEST(CCSettings, Titles) {
  struct Case {
    const char *identifier, *title, *icon;
  };
  const Case cases[] = {
      {"airplaneMode", "Airplane Mode", "airplaneMode"},
      {"screenShot", "Screen Shot", "screenShot"},
      {"clearBadge", "Clear Badge", "clearBadge"},
      {"doNotDisturb", "Do Not Disturb", "doNotDisturb"},
      {"dataRate", "LTE", "LTE"},
      {"killbackground", "Kill Background", "killbackground"},
      {"VPN", "VPN", "VPN"},
      {"wifi", "WiFi", "wifi"},
      {"location", "Location", "location"},
      {"GPS", " G P S", "GPS"},  // a blank before every capital, the first included
      {"", "", ""},
  };
  for (const Case &c : cases) {
    EXPECT_EQ(ccSettingsTitle(c.identifier), c.title) << c.identifier;
    EXPECT_EQ(ccSettingsIconName(c.identifier), c.icon) << c.identifier;
  }
  EXPECT_EQ(capitalisedWords("hELLO wORLD\tagain"), "Hello World\tAgain");
}

// The fixed toggles' titles have keys; their English is the title made from the name.
TEST(CCSettings, KnownTogglesHaveKeyedTitles) {
  std::set<std::string_view> keys;
  for (const CCSettingsTitle &known : kCCSettingsTitles) {
    EXPECT_EQ(known.title.english, madeCCSettingsTitle(known.identifier)) << known.identifier;
    EXPECT_TRUE(keys.insert(known.title.key).second) << known.title.key;
  }
  for (std::string_view identifier : kCCSettingsFixedOrder)
    EXPECT_NE(std::find_if(std::begin(kCCSettingsTitles), std::end(kCCSettingsTitles),
                           [&](const CCSettingsTitle &t) { return t.identifier == identifier; }),
              std::end(kCCSettingsTitles))
        << identifier;
  const TextLookup shout = [](const LocalText &text) { return "<" + std::string(text.key) + ">"; };
  EXPECT_EQ(ccSettingsTitle("autoLock", shout), "<CCS_AUTO_LOCK>");
  EXPECT_EQ(ccSettingsTitle("someNewToggle", shout), "Some New Toggle");  // unknown: the made title
  EXPECT_EQ(moduleTitle("ReplayKitModule.bundle", std::nullopt, std::nullopt, shout), "<CC_SCREEN_RECORDING>");
  EXPECT_EQ(moduleTitle("TorchModule.bundle", std::string("Torch"), std::nullopt, shout), "Torch");
}

TEST(CCSettings, Order) {
  auto dict = [](std::vector<std::pair<const char *, Value>> entries) {
    Value d = Value::dictionary();
    for (auto &e : entries) d.set(e.first, e.second);
    return d;
  };
  struct Case {
    const char *name;
    std::optional<Value> file;
    std::vector<std::string> order;
  };
  const std::vector<std::string> fixed(std::begin(kCCSettingsFixedOrder), std::end(kCCSettingsFixedOrder));
  const Case cases[] = {
      {"unreadable: the fixed list", none, fixed},
      {"not a dictionary: the fixed list", strings({"wifi"}), fixed},
      {"sorted by position",
       dict({{"lock", Value::integer(2)}, {"wifi", Value::integer(0)}, {"mute", Value::integer(1)}}),
       list({"wifi", "mute", "lock"})},
      {"a shared position lists its keys twice, in key order",
       dict({{"b", Value::integer(1)}, {"a", Value::integer(1)}, {"c", Value::integer(0)}}),
       list({"c", "b", "a", "b", "a"})},
      {"integers and reals compare by value",
       dict({{"x", Value::real(1.5)}, {"y", Value::integer(1)}, {"z", Value::integer(2)}}), list({"y", "x", "z"})},
      {"positions that are not numbers come after the numbers, strings first",
       dict({{"d", Value::dictionary()}, {"s", Value::string("1")}, {"y", Value::integer(3)}}), list({"y", "s", "d"})},
      {"a NaN position keeps its key", dict({{"n", Value::real(std::nan(""))}, {"y", Value::integer(3)}}),
       list({"y", "n"})},
      {"an empty file lists nothing", dict({}), list({})},
  };
  for (const Case &c : cases) EXPECT_EQ(ccSettingsOrder(c.file ? &*c.file : nullptr), c.order) << c.name;
  EXPECT_EQ(fixed.front(), "wifi");
  EXPECT_EQ(fixed.back(), "data");
  EXPECT_EQ(fixed.size(), 21u);
  EXPECT_EQ(std::string(kCCSettingsOrderFile),
            std::string("/var/mobile/Library/Preferences/") + kCCSettingsPreferencesName + ".order.plist");
}
