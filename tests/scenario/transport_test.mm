// The bundle's message transport against the simulated SpringBoard process.
#import <AppSupport/CPDistributedMessagingCenter.h>
#include <notify.h>
#include <chrono>
#include <thread>
#import "BundleFixture.h"

namespace {

CPDistributedMessagingCenter *productCenter() {
  return [CPDistributedMessagingCenter centerNamed:@"net.corvane.tessarin.center"];
}

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

NSData *archive(NSDictionary *reply) { return [NSKeyedArchiver archivedDataWithRootObject:reply]; }

void setReplyDelay(NSMutableDictionary *profile, double seconds) {
  NSMutableDictionary *springBoard = [[[profile objectForKey:@"springboard"] mutableCopy] autorelease];
  if (springBoard == nil) springBoard = [NSMutableDictionary dictionary];
  [springBoard setObject:@(seconds) forKey:@"replyDelay"];
  [profile setObject:springBoard forKey:@"springboard"];
}

}  // namespace

class TransportTest : public BundleTest {};

TEST_F(TransportTest, EveryRequestGetsItsReplyAndTheReplyFileIsRemoved) {
  StartDevice();
  NSDictionary *profile = SimDeviceProfile();
  struct Case {
    NSString *message;
    NSString *field;
  };
  const Case cases[] = {{@"dlbv", @"dlbv"},     {@"idsn", @"idsn"},
                        {@"appL", @"apps"},     {@"fldr", @"foldersRepresentation"},
                        {@"wfls", @"networks"}, {@"gpsi", @"showsInLockScreen"}};
  for (const Case &c : cases) {
    NSDictionary *reply = [productCenter() sendMessageAndReceiveReplyName:c.message userInfo:nil];
    ASSERT_NE(reply, nil) << [c.message UTF8String];
    EXPECT_NE([reply objectForKey:c.field], nil) << [c.message UTF8String];
    std::string replyFile = std::string("/tmp/.") + [c.message UTF8String] + "-reply";
    EXPECT_FALSE(DeviceFileExists(replyFile.c_str())) << replyFile;
  }
  NSDictionary *version = [productCenter() sendMessageAndReceiveReplyName:@"dlbv" userInfo:nil];
  EXPECT_EQ([[version objectForKey:@"dlbv"] unsignedIntValue],
            [[[profile objectForKey:@"springboard"] objectForKey:@"libraryVersion"] unsignedIntValue]);
}

TEST_F(TransportTest, ApplicationsReplyIsTheListOfBundleIdentifiers) {
  StartDevice();
  NSMutableArray *expected = [NSMutableArray array];
  for (NSDictionary *app in [SimDeviceProfile() objectForKey:@"apps"])
    [expected addObject:[app objectForKey:@"bundleIdentifier"]];
  ASSERT_GT([expected count], 0u);
  NSDictionary *reply = [productCenter() sendMessageAndReceiveReplyName:@"appL" userInfo:nil];
  NSArray *apps = [reply objectForKey:@"apps"];
  EXPECT_NSEQ(apps, expected);
  // The applications list tests membership of a bundle identifier with indexOfObject:.
  EXPECT_NE([apps indexOfObject:@"com.apple.mobilesafari"], (NSUInteger)NSNotFound);
}

TEST_F(TransportTest, NetworksReplyListsTheMostRecentlyJoinedFirst) {
  StartDevice();
  NSDictionary *reply = [productCenter() sendMessageAndReceiveReplyName:@"wfls" userInfo:nil];
  NSArray *networks = [reply objectForKey:@"networks"];
  struct Row {
    NSString *ssid;
    NSString *bssid;
    NSString *password;
  };
  const Row rows[] = {
      {@"Office-5G", @"f0:9f:c2:44:55:66", @"work1234"},
      {@"Home Network", @"a4:2b:b0:11:22:33", @"correct horse"},
      {@"Cafe Guest", @"00:1a:2b:3c:4d:5e", nil},
      {@"Hidden Lab", @"ff:ff:ff:ff:ff:ff", nil},  // never joined: last
  };
  ASSERT_EQ([networks count], sizeof rows / sizeof rows[0]);
  for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
    NSDictionary *network = [networks objectAtIndex:i];
    EXPECT_NSEQ([network objectForKey:@"ssid"], rows[i].ssid) << i;
    EXPECT_NSEQ([network objectForKey:@"bssid"], rows[i].bssid) << i;
    EXPECT_NSEQ([network objectForKey:@"password"], rows[i].password) << i;
  }
}

TEST_F(TransportTest, WithoutSpringBoardARequestGivesNilAfterItsBudget) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  auto start = std::chrono::steady_clock::now();
  EXPECT_EQ([productCenter() sendMessageAndReceiveReplyName:@"dlbv" userInfo:nil], nil);
  double waited = secondsSince(start);
  EXPECT_GE(waited, 0.7);
  EXPECT_LT(waited, 3.0);  // the budget plus generous room for a loaded machine
}

TEST_F(TransportTest, AReplyHalfASecondLateIsReturned) {
  StartDevice(SIM_DEFAULT_PROFILE, true, ^(NSMutableDictionary *profile) { setReplyDelay(profile, 0.5); });
  NSDictionary *reply = [productCenter() sendMessageAndReceiveReplyName:@"idsn" userInfo:nil];
  ASSERT_NE(reply, nil);
  EXPECT_NE([reply objectForKey:@"idsn"], nil);
}

TEST_F(TransportTest, AReplyEightTenthsOfASecondLateIsNotReturnedAndStays) {
  StartDevice(SIM_DEFAULT_PROFILE, true, ^(NSMutableDictionary *profile) { setReplyDelay(profile, 0.8); });
  EXPECT_EQ([productCenter() sendMessageAndReceiveReplyName:@"idsn" userInfo:nil], nil);
  // It lands afterwards and is left for the next exchange, which reads it as its reply.
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return DeviceFileExists("/tmp/.idsn-reply"); }, 5.0));
  StopSpringBoard();
  NSDictionary *stale = [productCenter() sendMessageAndReceiveReplyName:@"idsn" userInfo:nil];
  EXPECT_NE([stale objectForKey:@"idsn"], nil);
  EXPECT_FALSE(DeviceFileExists("/tmp/.idsn-reply"));
}

TEST_F(TransportTest, AStaleReplyFileIsReadAsTheReply) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  WriteDeviceFile("/tmp/.dlbv-reply", archive(@{@"dlbv" : @(0x010203)}));
  auto start = std::chrono::steady_clock::now();
  NSDictionary *reply = [productCenter() sendMessageAndReceiveReplyName:@"dlbv" userInfo:nil];
  EXPECT_LT(secondsSince(start), 0.7);
  EXPECT_EQ([[reply objectForKey:@"dlbv"] intValue], 0x010203);
  EXPECT_FALSE(DeviceFileExists("/tmp/.dlbv-reply"));
}

TEST_F(TransportTest, AnUnreadableReplyGivesNilAndStaysOnDisk) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  NSData *archived = archive(@{@"dlbv" : @(7)});
  const struct {
    const char *what;
    NSData *bytes;
  } cases[] = {
      {"text", [@"not an archive" dataUsingEncoding:NSUTF8StringEncoding]},
      {"empty", [NSData data]},
      {"truncated archive", [archived subdataWithRange:NSMakeRange(0, [archived length] / 2)]},
      {"plain property list", [NSPropertyListSerialization dataWithPropertyList:@{
         @"dlbv" : @(7)
       }
                                                                         format:NSPropertyListBinaryFormat_v1_0
                                                                        options:0
                                                                          error:NULL]},
  };
  for (const auto &c : cases) {
    WriteDeviceFile("/tmp/.dlbv-reply", c.bytes);
    EXPECT_EQ([productCenter() sendMessageAndReceiveReplyName:@"dlbv" userInfo:nil], nil) << c.what;
    NSData *left = ReadDeviceFile("/tmp/.dlbv-reply");
    EXPECT_TRUE([left isEqualToData:c.bytes]) << c.what;
  }
}

TEST_F(TransportTest, OneWayMessagesWriteTheRequestFileOnlyWithUserInfo) {
  StartDevice();
  unsigned resetsBefore = SimNotifyPostCount("net.corvane.tessarin.passcodeReset");

  unsigned handled = SimNotifyPostCount("net.corvane.tessarin.simulator.handled");
  EXPECT_TRUE([productCenter() sendMessageName:@"spsi" userInfo:@{@"showsInLockScreen" : @(NO)}]);
  // One shared code: the next message must wait until SpringBoard has read this one.
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return SimNotifyPostCount("net.corvane.tessarin.simulator.handled") > handled; }, 5.0));
  NSDictionary *request = [NSDictionary dictionaryWithContentsOfFile:@(HostPath("/tmp/.spsi").c_str())];
  EXPECT_NSEQ([request objectForKey:@"showsInLockScreen"], @(NO));
  // SpringBoard read the request when the signal came, so the file was there first.
  NSDictionary *shows = [productCenter() sendMessageAndReceiveReplyName:@"gpsi" userInfo:nil];
  EXPECT_EQ([[shows objectForKey:@"showsInLockScreen"] boolValue], NO);

  EXPECT_TRUE([productCenter() sendMessageName:@"prrc" userInfo:nil]);
  EXPECT_FALSE(DeviceFileExists("/tmp/.prrc"));
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return SimNotifyPostCount("net.corvane.tessarin.passcodeReset") > resetsBefore; }, 5.0));
}

TEST_F(TransportTest, TheSignalStateCarriesTheMessageCode) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  [productCenter() sendMessageName:@"dlbv" userInfo:nil];
  int token = NOTIFY_TOKEN_INVALID;
  ASSERT_EQ(notify_register_check("net.corvane.tessarin.ipcoverride", &token), (uint32_t)NOTIFY_STATUS_OK);
  uint64_t state = 0;
  notify_get_state(token, &state);
  EXPECT_EQ(state, 0x646C6276u);
  EXPECT_GE(SimNotifyPostCount("net.corvane.tessarin.ipcoverride"), 1u);
}

@interface EchoServer : NSObject
- (NSDictionary *)handle:(NSString *)name userInfo:(NSDictionary *)userInfo;
@end
@implementation EchoServer
- (NSDictionary *)handle:(NSString *)name userInfo:(NSDictionary *)userInfo {
  return @{@"echo" : name};
}
@end

TEST_F(TransportTest, OtherCentresKeepThePlatformChannel) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  EchoServer *echo = [[[EchoServer alloc] init] autorelease];
  CPDistributedMessagingCenter *other = [CPDistributedMessagingCenter centerNamed:@"com.example.other"];
  [other runServerOnCurrentThread];
  [other registerForMessageName:@"dlbv" target:echo selector:@selector(handle:userInfo:)];
  unsigned signals = SimNotifyPostCount("net.corvane.tessarin.ipcoverride");

  NSDictionary *reply = [other sendMessageAndReceiveReplyName:@"dlbv" userInfo:nil];
  EXPECT_NSEQ([reply objectForKey:@"echo"], @"dlbv");
  EXPECT_EQ(SimNotifyPostCount("net.corvane.tessarin.ipcoverride"), signals);
  EXPECT_FALSE(DeviceFileExists("/tmp/.dlbv-reply"));
}

@interface OneWayRecorder : NSObject {
  NSMutableArray *_received;
}
@property (nonatomic, retain) NSMutableArray *received;
- (void)handle:(NSString *)name userInfo:(NSDictionary *)userInfo;
@end
@implementation OneWayRecorder
@synthesize received = _received;
- (instancetype)init {
  if ((self = [super init])) _received = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [_received release];
  [super dealloc];
}
- (void)handle:(NSString *)name userInfo:(NSDictionary *)userInfo {
  [_received addObject:@[ name, userInfo ? (id)userInfo : (id)[NSNull null] ]];
}
@end

TEST_F(TransportTest, OneWayMessagesToOtherCentresKeepThePlatformChannelAndItsAnswer) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  // The platform answers NO when no server runs under the name; the product's transport would say YES.
  const struct {
    const char *what;
    NSString *centre;
    bool serverRuns;
  } cases[] = {
      {"a server runs", @"com.example.listening", true},
      {"no server", @"com.example.silent", false},
  };
  for (const auto &c : cases) {
    OneWayRecorder *recorder = [[[OneWayRecorder alloc] init] autorelease];
    CPDistributedMessagingCenter *other = [CPDistributedMessagingCenter centerNamed:c.centre];
    if (c.serverRuns) {
      [other runServerOnCurrentThread];
      [other registerForMessageName:@"spsi" target:recorder selector:@selector(handle:userInfo:)];
    }
    unsigned signals = SimNotifyPostCount("net.corvane.tessarin.ipcoverride");
    NSDictionary *userInfo = @{@"showsInLockScreen" : @(NO)};

    EXPECT_EQ((bool)[other sendMessageName:@"spsi" userInfo:userInfo], c.serverRuns) << c.what;
    NSArray *expected = c.serverRuns ? @[ @[ @"spsi", userInfo ] ] : @[];
    EXPECT_NSEQ([recorder received], expected) << c.what;
    EXPECT_EQ(SimNotifyPostCount("net.corvane.tessarin.ipcoverride"), signals) << c.what;
    EXPECT_FALSE(DeviceFileExists("/tmp/.spsi")) << c.what;
    if (c.serverRuns) [other stopServer];
  }
}

TEST_F(TransportTest, IdentifiersShorterThanFourBytesAreNotSent) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  int token = NOTIFY_TOKEN_INVALID;
  ASSERT_EQ(notify_register_check("net.corvane.tessarin.ipcoverride", &token), (uint32_t)NOTIFY_STATUS_OK);
  [productCenter() sendMessageName:@"dlbv" userInfo:nil];  // leaves its code as the shared state

  NSDictionary *userInfo = @{@"showsInLockScreen" : @(YES)};
  NSString *const shortNames[] = {@"", @"a", @"dlb", @"\u00e9"};  // the last: one character, two bytes
  for (NSString *name : shortNames) {
    const std::string request = std::string("/tmp/.") + [name UTF8String];
    const std::string reply = request + "-reply";
    // A reply file under the would-be name must not be taken for an answer.
    NSData *lying = archive(@{@"dlbv" : @(1)});
    WriteDeviceFile(reply.c_str(), lying);
    unsigned signals = SimNotifyPostCount("net.corvane.tessarin.ipcoverride");

    [productCenter() sendMessageName:name userInfo:userInfo];
    EXPECT_EQ([productCenter() sendMessageAndReceiveReplyName:name userInfo:userInfo], nil) << request;

    EXPECT_EQ(SimNotifyPostCount("net.corvane.tessarin.ipcoverride"), signals) << request;
    uint64_t state = 0;
    notify_get_state(token, &state);
    EXPECT_EQ(state, 0x646C6276u) << request;
    if (request != "/tmp/.") EXPECT_FALSE(DeviceFileExists(request.c_str())) << request;
    EXPECT_TRUE([ReadDeviceFile(reply.c_str()) isEqualToData:lying]) << reply;
  }
}
