// The bundle's settings core as loaded into Settings: the preference store and its
// change signal, the log files, the hardware tests and the Wi-Fi manager.
#include <CoreFoundation/CoreFoundation.h>
#import <UIKit/UIKit.h>
#include <notify.h>
#include <unistd.h>
#import "BundleFixture.h"
#include "ChildProcess.h"
#import "core/NSArray+crv.h"

namespace {

using SetValue = void (*)(id, const char *);
using GetValue = id (*)(const char *);
using Reset = void (*)(void);
using Query = BOOL (*)(void);
using Log = void (*)(const char *);

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";

NSArray *lines(NSData *data) {
  NSString *text = [[[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding] autorelease];
  NSMutableArray *result = [NSMutableArray array];
  for (NSString *line in [text componentsSeparatedByString:@"\n"]) {
    if ([line length]) [result addObject:line];
  }
  return result;
}

}  // namespace

// Another process on the device (SpringBoard, say) writes a key of the domain.
CHILD_HELPER(writePasscodeElsewhere) {
  CFStringRef domain = CFSTR("net.corvane.tessarin");
  CFPreferencesAppSynchronize(domain);
  CFPreferencesSetAppValue(CFSTR("passcode"), (CFPropertyListRef) @(argv[1]), domain);
  CFPreferencesAppSynchronize(domain);
  return 0;
}

CHILD_HELPER(startGracePeriodElsewhere) {
  int token = 0;
  notify_register_check("net.corvane.tessarin.graceperiod", &token);
  notify_set_state(token, 1);
  return 0;
}

class SettingsCoreTest : public BundleTest {};

// The start-up routine leaves no trace of its order but the platform calls it makes, which
// the simulated process records: each is named here by the step it belongs to.
TEST_F(SettingsCoreTest, StartUpRunsItsStepsInOrderAsTheBundleLoads) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  NSDictionary *steps = @{
    @"MSHookMessageEx -[NSException initWithName:reason:userInfo:]" : @"exception logger",
    @"MSHookMessageEx -[CPDistributedMessagingCenter sendMessageName:userInfo:]" : @"transport",
    @"MSHookMessageEx -[CPDistributedMessagingCenter sendMessageAndReceiveReplyName:userInfo:]" : @"transport",
    @"operatingSystemVersionString" : @"version flags",
    @"NSLog Starting up in settings..." : @"log line",
    @"MSHookMessageEx +[NSObject initialize]" : @"glyph watcher",
    @"notify_register_check net.corvane.tessarin.ipcoverride" : @"transport token",
  };
  NSArray *events = SimEventLog();
  NSUInteger load = [events indexOfObject:@"load TessarinPrefs.bundle"];
  ASSERT_NE(load, (NSUInteger)NSNotFound) << [[events description] UTF8String];
  NSMutableArray *seen = [NSMutableArray array];
  for (NSUInteger i = load + 1; i < [events count]; ++i) {
    NSString *event = [events objectAtIndex:i];
    NSString *step = [steps objectForKey:event];
    if (step == nil) step = event;  // anything else the routine did shows as itself
    if (![[seen lastObject] isEqual:step]) [seen addObject:step];
    if ([step isEqual:@"transport token"]) break;
  }
  // The modern flags before the log line, the older ones after the glyph watcher.
  EXPECT_NSEQ(seen, (@[
                @"exception logger", @"transport", @"version flags", @"log line", @"glyph watcher", @"version flags",
                @"transport token"
              ]));
}

TEST_F(SettingsCoreTest, WritesReachDiskAndPostNothingByThemselves) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto set = BundleSymbol<SetValue>("setPrefsValueForKey");
  auto get = BundleSymbol<GetValue>("getPrefsValueForKey");
  unsigned posts = SimNotifyPostCount(kPrefsChanged);

  set(@"0042", "passcode");
  set(@[ @"com.apple.mobilesafari" ], "protected");
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"0042");
  id passcode = get("passcode");
  EXPECT_NSEQ(passcode, @"0042");  // text, leading zeros kept
  [passcode release];

  set(nil, "passcode");
  EXPECT_EQ([StoredPreferences() objectForKey:@"passcode"], nil);
  EXPECT_EQ(get("passcode"), nil);
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"protected"], @[ @"com.apple.mobilesafari" ]);
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(SettingsCoreTest, ReadsWhatAnotherProcessWroteAfterSynchronising) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto set = BundleSymbol<SetValue>("setPrefsValueForKey");
  auto get = BundleSymbol<GetValue>("getPrefsValueForKey");
  set(@"1111", "passcode");
  ASSERT_EQ(RunChild("writePasscodeElsewhere", {"2222"}), 0);
  id passcode = get("passcode");
  EXPECT_NSEQ(passcode, @"2222");
  [passcode release];
  // A write of ours keeps the other process's keys.
  set(@(NO), "Enabled");
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"passcode"], @"2222");
  EXPECT_NSEQ([StoredPreferences() objectForKey:@"Enabled"], @(NO));
}

TEST_F(SettingsCoreTest, ResetAllLeavesNoKeyAndPostsOnce) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto set = BundleSymbol<SetValue>("setPrefsValueForKey");
  auto get = BundleSymbol<GetValue>("getPrefsValueForKey");
  set(@"1234", "passcode");
  set(@[ @"com.apple.MobileSMS" ], "protected");
  set(@"", "alertTitle");
  unsigned posts = SimNotifyPostCount(kPrefsChanged);

  BundleSymbol<Reset>("resetAllPreferences")();
  EXPECT_EQ([StoredPreferences() count], 0u);
  for (const char *key : {"passcode", "protected", "alertTitle", "Enabled"}) EXPECT_EQ(get(key), nil) << key;
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 1);
}

TEST_F(SettingsCoreTest, GracePeriodFollowsSpringBoardsState) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto grace = BundleSymbol<Query>("gracePeriodIsActive");
  EXPECT_FALSE(grace());
  ASSERT_EQ(RunChild("startGracePeriodElsewhere"), 0);
  EXPECT_TRUE(grace());
}

TEST_F(SettingsCoreTest, LogLinesGoUnderTheJailRoot) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);  // rootless: jail root /var/jb
  auto log = BundleSymbol<Log>("mylog");
  log("first");
  log("second line");
  EXPECT_FALSE(DeviceFileExists("/tmp/syslog"));
  NSArray *written = lines(ReadDeviceFile("/var/jb/tmp/syslog"));
  ASSERT_EQ([written count], 2u);
  NSString *pid = [NSString stringWithFormat:@"[%d] ", getpid()];
  NSString *first = [written objectAtIndex:0];
  EXPECT_TRUE([first hasPrefix:@"Ada's iPhone "]) << [first UTF8String];
  EXPECT_NE([first rangeOfString:pid].location, (NSUInteger)NSNotFound) << [first UTF8String];
  EXPECT_TRUE([first hasSuffix:@"] first"]) << [first UTF8String];
  EXPECT_TRUE([[written objectAtIndex:1] hasSuffix:@"] second line"]);
}

TEST_F(SettingsCoreTest, EveryExceptionCreatedIsLogged) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  [NSException exceptionWithName:@"TestException" reason:@"made, never raised" userInfo:nil];
  @try {
    [NSException raise:@"RaisedException" format:@"raised %d", 1];
  } @catch (NSException *) {}
  NSArray *logged = lines(ReadDeviceFile("/tmp/TessarinCrashLog.txt"));
  ASSERT_GE([logged count], 2u);
  EXPECT_NSEQ([logged objectAtIndex:0], @"EXCEPTION WITH NAME TestException REASON made, never raised userinfo (null)");
  EXPECT_TRUE([[logged objectAtIndex:1] hasPrefix:@"EXCEPTION WITH NAME RaisedException REASON raised 1"]);
}

TEST_F(SettingsCoreTest, HardwareTestsFollowTheRegistry) {
  // A Face ID device whose registry shows only the neural engine.
  StartDevice(SIM_DEFAULT_PROFILE, false,
              ^(NSMutableDictionary *profile) { [profile setObject:@[ @"H11ANEIn" ] forKey:@"ioServices"]; });
  auto sensor = BundleSymbol<Query>("iPhone64Bit");
  auto pearl = BundleSymbol<Query>("hasPearl");
  BOOL *pearlCam = BundleSymbol<BOOL *>("hasPearlCam");
  EXPECT_TRUE(sensor());
  EXPECT_TRUE(*pearlCam);
  EXPECT_TRUE(pearl());
  unsigned asked = SimIOKitMatchCount();
  EXPECT_TRUE(pearl());
  EXPECT_EQ(SimIOKitMatchCount(), asked);  // asked IOKit only the first time
}

TEST_F(SettingsCoreTest, WiFiManagerListsNetworksAndTrustsByBssid) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  id manager = [NSClassFromString(@"TessarinWiFiManager") performSelector:@selector(sharedInstance)];
  ASSERT_NE(manager, nil);
  NSArray *networks = [manager performSelector:@selector(networksArrayAsDictionaries)];
  NSMutableArray *names = [NSMutableArray array];
  for (NSDictionary *network in networks) [names addObject:[network objectForKey:@"ssid"]];
  EXPECT_NSEQ(names, (@[ @"Office-5G", @"Home Network", @"Cafe Guest", @"Hidden Lab" ]));
  EXPECT_NSEQ([[networks lastObject] objectForKey:@"bssid"], @"ff:ff:ff:ff:ff:ff");
  EXPECT_EQ([[networks lastObject] objectForKey:@"password"], nil);
  EXPECT_NSEQ([[networks objectAtIndex:0] objectForKey:@"password"], @"work1234");

  auto set = BundleSymbol<SetValue>("setPrefsValueForKey");
  SEL isOnTrusted = @selector(isOnTrustedNetwork);
  auto trustedImp = (BOOL(*)(id, SEL))[manager methodForSelector:isOnTrusted];
  auto trusted = [=] { return trustedImp(manager, isOnTrusted); };
  EXPECT_FALSE(trusted());
  set(@[], "allowedWiFis");
  EXPECT_FALSE(trusted());
  // The current network's BSSID with another name still counts: the match is by BSSID alone.
  set(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Renamed"} ], "allowedWiFis");
  EXPECT_TRUE(trusted());
  set(@[ @{@"bssid" : @"f0:9f:c2:44:55:66", @"ssid" : @"Home Network"} ], "allowedWiFis");
  EXPECT_FALSE(trusted());
}

@interface CrvAnimal : NSObject
@end
@implementation CrvAnimal
@end
@interface CrvDog : CrvAnimal
@end
@implementation CrvDog
@end

TEST_F(SettingsCoreTest, ObjectOfClassMatchesTheExactClassOnly) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  CrvDog *dog = [[[CrvDog alloc] init] autorelease];
  CrvAnimal *animal = [[[CrvAnimal alloc] init] autorelease];
  NSArray *pets = @[ dog, animal ];
  EXPECT_EQ([pets objectOfClass:[CrvAnimal class]], animal);  // the dog is only a kind of animal
  EXPECT_EQ([pets objectOfClass:[CrvDog class]], dog);
  EXPECT_EQ([pets objectOfClass:[NSObject class]], nil);
  EXPECT_EQ([@[] objectOfClass:[CrvDog class]], nil);
}

TEST_F(SettingsCoreTest, AlertHelperReturnsAtOnceAndPresentsOnTheMainQueue) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  using ShowAlert = void (*)(NSString *, NSString *, NSArray *, UIViewController *, UIAlertControllerStyle);
  auto show = BundleSymbol<ShowAlert>("showAlertWithTitleAndMessageAndAlertActionsFromViewControllerWithStyle");
  UIViewController *page = [[[UIViewController alloc] init] autorelease];
  NSArray *actions = @[
    [UIAlertAction actionWithTitle:@"Later" style:UIAlertActionStyleCancel handler:nil],
    [UIAlertAction actionWithTitle:@"Now" style:UIAlertActionStyleDefault handler:nil]
  ];
  show(@"Tessarin", @"Message", actions, page, UIAlertControllerStyleAlert);
  EXPECT_EQ([page presentedViewController], nil);
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [page presentedViewController] != nil; }, 5.0));
  UIAlertController *alert = (UIAlertController *)[page presentedViewController];
  ASSERT_TRUE([alert isKindOfClass:[UIAlertController class]]);
  EXPECT_NSEQ([alert title], @"Tessarin");
  EXPECT_NSEQ([alert message], @"Message");
  EXPECT_EQ([alert preferredStyle], UIAlertControllerStyleAlert);
  ASSERT_EQ([[alert actions] count], 2u);
  EXPECT_NSEQ([[[alert actions] objectAtIndex:0] title], @"Later");
  EXPECT_NSEQ([[[alert actions] objectAtIndex:1] title], @"Now");
}

TEST_F(SettingsCoreTest, WithoutWiFiThereIsNoNetworkAndNoTrust) {
  StartDevice(SIM_DEFAULT_PROFILE, false, ^(NSMutableDictionary *profile) { [profile removeObjectForKey:@"wifi"]; });
  id manager = [NSClassFromString(@"TessarinWiFiManager") performSelector:@selector(sharedInstance)];
  ASSERT_NE(manager, nil);
  EXPECT_EQ([[manager performSelector:@selector(networksArrayAsDictionaries)] count], 0u);
  EXPECT_EQ([[manager performSelector:@selector(devices)] count], 0u);
  EXPECT_EQ((void *)[manager performSelector:@selector(currentNetwork)], nullptr);
  BundleSymbol<SetValue>("setPrefsValueForKey")(@[ @{@"bssid" : @"a4:2b:b0:11:22:33", @"ssid" : @"Home"} ],
                                                "allowedWiFis");
  SEL isOnTrusted = @selector(isOnTrustedNetwork);
  EXPECT_FALSE(((BOOL(*)(id, SEL))[manager methodForSelector:isOnTrusted])(manager, isOnTrusted));
}

TEST_F(SettingsCoreTest, HasPearlAfterItsFirstAnswerReturnsWhatTheSensorTestWrote) {
  StartDevice("iphone-touchid-ios14", /*withSpringBoard=*/false);  // Touch ID only
  auto sensor = BundleSymbol<Query>("iPhone64Bit");
  auto pearl = BundleSymbol<Query>("hasPearl");
  BOOL *pearlCam = BundleSymbol<BOOL *>("hasPearlCam");
  EXPECT_FALSE(pearl());
  // The registry now shows a Face ID camera (another device's registry stands for it):
  // the sensor test finds it and writes the shared flag, which hasPearl then returns
  // without asking the registry itself.
  UseDevice(SIM_DEFAULT_PROFILE);
  EXPECT_TRUE(sensor());
  EXPECT_TRUE(*pearlCam);
  unsigned asked = SimIOKitMatchCount();
  EXPECT_TRUE(pearl());
  EXPECT_EQ(SimIOKitMatchCount(), asked);
}

TEST_F(SettingsCoreTest, BundleLookupTakesTheFirstInstalledCandidate) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);  // rootless: installed under /var/jb
  auto lookup = BundleSymbol<NSBundle *(*)(void)>("_Z14tessarinBundlev");
  NSString *bootstrap = @"/bootstrap/Library/PreferenceBundles/TessarinPrefs.bundle";
  NSString *lib = @"/var/LIB/PreferenceBundles/TessarinPrefs.bundle";
  NSString *jb = @"/var/jb/Library/PreferenceBundles/TessarinPrefs.bundle";
  NSFileManager *files = [NSFileManager defaultManager];
  // Each step adds (or removes) one candidate; the lookup is asked again every time.
  const struct {
    NSString *add;
    NSString *remove;
    NSString *expected;
  } steps[] = {
      {nil, nil, jb}, {lib, nil, lib}, {bootstrap, nil, bootstrap}, {nil, lib, bootstrap}, {nil, bootstrap, jb},
  };
  for (const auto &s : steps) {
    if (s.add)
      ASSERT_TRUE([files createDirectoryAtPath:HostPathString(s.add)
                   withIntermediateDirectories:YES
                                    attributes:nil
                                         error:NULL]);
    if (s.remove) ASSERT_TRUE([files removeItemAtPath:HostPathString(s.remove) error:NULL]);
    NSBundle *found = lookup();
    // The installed bundle is a link to the built one; bundles name their resolved path.
    EXPECT_NSEQ([[found bundlePath] stringByResolvingSymlinksInPath],
                [HostPathString(s.expected) stringByResolvingSymlinksInPath])
        << [s.expected UTF8String];
  }
}

TEST_F(SettingsCoreTest, BundleLookupWithoutACandidateTakesTheLoadedBundle) {
  StartDevice("iphone-touchid-ios14", /*withSpringBoard=*/false);  // rootful: installed under /Library
  auto lookup = BundleSymbol<NSBundle *(*)(void)>("_Z14tessarinBundlev");
  Class rootPage = NSClassFromString(@"TessarinPrefsListController");
  ASSERT_NE(rootPage, Nil);
  EXPECT_EQ(lookup(), [NSBundle bundleForClass:rootPage]);
}
