// The Wi-Fi manager on a system whose Wi-Fi library lacks one of the private functions
// it looks up: each answer falls back quietly (no list, no network, no trust), nothing crashes.
#import <Foundation/Foundation.h>
#import "BundleFixture.h"

namespace {

using SetValue = void (*)(id, const char *);

struct MissingFunction {
  const char *name;
  bool listed;      // the joined networks are listed
  bool bssids;      // with their addresses
  bool passwords;   // and their passwords
  bool hasDevice;   // a Wi-Fi device is found
  bool hasCurrent;  // and the network it is on
  bool trusted;     // the current network's address is read and matched
};

// The default device knows four networks and is on "Home Network" (a4:2b:b0:11:22:33).
const MissingFunction kMissing[] = {
    {"WiFiManagerClientCreate", false, false, false, false, false, false},
    {"WiFiManagerClientCopyDevices", true, true, true, false, false, false},
    {"WiFiManagerClientCopyNetworks", false, false, false, true, true, true},
    {"WiFiDeviceClientCopyCurrentNetwork", true, true, true, true, false, false},
    {"WiFiNetworkGetProperty", true, false, true, true, true, false},
    {"WiFiNetworkCopyPassword", true, true, false, true, true, true},
    {"WiFiNetworkCopyRecord", false, false, false, true, true, true},
    {"WiFiManagerClientScheduleWithRunLoop", true, true, true, true, true, true},
};

// Test names and failures show the function's name.
void PrintTo(const MissingFunction &m, std::ostream *out) { *out << m.name; }

NSArray *column(NSArray *records, NSString *key) {
  NSMutableArray *values = [NSMutableArray array];
  for (NSDictionary *record in records) {
    id value = [record objectForKey:key];
    [values addObject:value ? value : (id)[NSNull null]];
  }
  return values;
}

id perform(id target, const char *selector) { return [target performSelector:sel_registerName(selector)]; }

}  // namespace

class WiFiManagerMissingFunctionTest : public BundleTest, public ::testing::WithParamInterface<MissingFunction> {};

TEST_P(WiFiManagerMissingFunctionTest, FallsBackQuietly) {
  const MissingFunction &m = GetParam();
  StartDevice(SIM_DEFAULT_PROFILE, false,
              ^(NSMutableDictionary *profile) { [profile setObject:@[ @(m.name) ] forKey:@"missingSymbols"]; });
  id manager = [NSClassFromString(@"TessarinWiFiManager") performSelector:@selector(sharedInstance)];
  ASSERT_NE(manager, nil);

  NSArray *networks = perform(manager, "networksArrayAsDictionaries");
  NSArray *ssids = @[ @"Office-5G", @"Home Network", @"Cafe Guest", @"Hidden Lab" ];
  NSString *unknown = @"ff:ff:ff:ff:ff:ff";
  NSArray *bssids = m.bssids ? @[ @"f0:9f:c2:44:55:66", @"a4:2b:b0:11:22:33", @"00:1a:2b:3c:4d:5e", unknown ]
                             : @[ unknown, unknown, unknown, unknown ];
  NSNull *none = [NSNull null];
  NSArray *passwords = m.passwords ? @[ @"work1234", @"correct horse", none, none ] : @[ none, none, none, none ];
  EXPECT_NSEQ(column(networks, @"ssid"), m.listed ? ssids : @[]);
  EXPECT_NSEQ(column(networks, @"bssid"), m.listed ? bssids : @[]);
  EXPECT_NSEQ(column(networks, @"password"), m.listed ? passwords : @[]);

  EXPECT_EQ([perform(manager, "devices") count], m.hasDevice ? 1u : 0u);
  EXPECT_EQ(perform(manager, "currentNetwork") != nil, m.hasCurrent);

  // Trusting the current network's address: only a manager that can read it answers YES.
  BundleSymbol<SetValue>("setPrefsValueForKey")(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Home Network"} ],
                                                "allowedWiFis");
  SEL isOnTrusted = @selector(isOnTrustedNetwork);
  BOOL trusted = ((BOOL(*)(id, SEL))[manager methodForSelector:isOnTrusted])(manager, isOnTrusted);
  EXPECT_EQ((bool)trusted, m.trusted);
}

INSTANTIATE_TEST_SUITE_P(EachFunction, WiFiManagerMissingFunctionTest, ::testing::ValuesIn(kMissing),
                         [](const ::testing::TestParamInfo<MissingFunction> &info) {
                           return std::string(info.param.name);
                         });
