// Messaging centre, method hooking, jail root, I/O Kit, MobileGestalt, MobileWiFi and the
// SpringBoard process launcher, each against device profiles.
#import <Foundation/Foundation.h>
#include <AppSupport/CPDistributedMessagingCenter.h>
#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <libroot.h>
#include <notify.h>
#include <substrate.h>

#include <dlfcn.h>
#include <signal.h>
#include <stdlib.h>

#include "ChildProcess.h"
#include "DeviceFixture.h"

@interface SimTestEchoServer : NSObject
- (NSDictionary *)handle:(NSString *)name userInfo:(NSDictionary *)info;
@end
@implementation SimTestEchoServer
- (NSDictionary *)handle:(NSString *)name userInfo:(NSDictionary *)info {
  return [NSDictionary dictionaryWithObjectsAndKeys:name, @"name", info ? info : @{}, @"info", nil];
}
@end

@interface SimTestBase : NSObject
- (int)value;
+ (int)classValue;
@end
@implementation SimTestBase
- (int)value {
  return 1;
}
+ (int)classValue {
  return 10;
}
@end
@interface SimTestDerived : SimTestBase
@end
@implementation SimTestDerived
@end

namespace {

class ServicesTest : public DeviceTest {};

TEST_F(ServicesTest, MessagingCentreReachesOnlyServersInThisProcess) {
  CPDistributedMessagingCenter *client = [CPDistributedMessagingCenter centerNamed:@"test.center"];
  EXPECT_NSEQ([client name], @"test.center");
  EXPECT_FALSE([client sendMessageName:@"ping" userInfo:nil]);
  EXPECT_EQ([client sendMessageAndReceiveReplyName:@"ping" userInfo:nil], nil);

  SimTestEchoServer *target = [[[SimTestEchoServer alloc] init] autorelease];
  CPDistributedMessagingCenter *server = [CPDistributedMessagingCenter centerNamed:@"test.center"];
  [server registerForMessageName:@"ping" target:target selector:@selector(handle:userInfo:)];
  [server runServerOnCurrentThread];
  NSDictionary *reply = [client sendMessageAndReceiveReplyName:@"ping" userInfo:@{@"a" : @1}];
  EXPECT_NSEQ([reply objectForKey:@"name"], @"ping");
  EXPECT_NSEQ(
      [reply objectForKey:@"info"],
      @{@"a" : @1});
  EXPECT_TRUE([client sendMessageName:@"ping" userInfo:nil]);
  EXPECT_EQ([client sendMessageAndReceiveReplyName:@"unknown" userInfo:nil], nil);
  EXPECT_EQ([[CPDistributedMessagingCenter centerNamed:@"other"] sendMessageAndReceiveReplyName:@"ping" userInfo:nil],
            nil);
  [server stopServer];
  EXPECT_FALSE([client sendMessageName:@"ping" userInfo:nil]);
}

int hookedValue(id self, SEL _cmd) { return 2; }
int hookedClassValue(id self, SEL _cmd) { return 20; }

TEST_F(ServicesTest, HookingHandsBackThePreviousImplementation) {
  SimTestBase *base = [[[SimTestBase alloc] init] autorelease];
  SimTestDerived *derived = [[[SimTestDerived alloc] init] autorelease];
  IMP old = NULL;
  // Inherited only: the subclass gets an override, the superclass keeps its method.
  MSHookMessageEx([SimTestDerived class], @selector(value), (IMP)hookedValue, &old);
  ASSERT_NE(old, nullptr);
  EXPECT_EQ(((int (*)(id, SEL))old)(derived, @selector(value)), 1);
  EXPECT_EQ([derived value], 2);
  EXPECT_EQ([base value], 1);
  // Class methods through the metaclass.
  MSHookMessageEx(object_getClass([SimTestBase class]), @selector(classValue), (IMP)hookedClassValue, &old);
  EXPECT_EQ([SimTestBase classValue], 20);
  EXPECT_EQ(((int (*)(id, SEL))old)([SimTestBase class], @selector(classValue)), 10);
  // Unknown selectors change nothing.
  old = (IMP)hookedValue;
  MSHookMessageEx([SimTestBase class], @selector(noSuchMethod), (IMP)hookedValue, &old);
  EXPECT_EQ(old, nullptr);
  EXPECT_EQ(dlopen("/usr/lib/libsubstrate.dylib", RTLD_NOW), nullptr);
}

TEST_F(ServicesTest, JailRootFollowsTheProfile) {
  struct {
    const char *profile, *prefix, *syslog;
  } cases[] = {
      {"iphone-faceid-ios16", "/var/jb", "/var/jb/tmp/syslog"},
      {"iphone-touchid-ios14", "", "/tmp/syslog"},
  };
  for (auto &c : cases) {
    SCOPED_TRACE(c.profile);
    UseDevice(c.profile);
    EXPECT_STREQ(libroot_dyn_get_jbroot_prefix(), c.prefix);
    EXPECT_STREQ(libroot_dyn_get_root_prefix(), "");
    char buf[PATH_MAX];
    EXPECT_STREQ(libroot_dyn_jbrootpath("/tmp/syslog", buf), c.syslog);
    EXPECT_STREQ(JBROOT_PATH_CSTRING("/tmp/syslog"), c.syslog);
    EXPECT_NSEQ(JBROOT_PATH_NSSTRING(@"/tmp/syslog"), [NSString stringWithUTF8String:c.syslog]);
    EXPECT_STREQ(libroot_dyn_rootfspath("/tmp/syslog", buf), "/tmp/syslog");
  }
}

TEST_F(ServicesTest, IOKitServicesComeFromTheProfile) {
  struct {
    const char *profile;
    bool mesa, pearl, ane;
  } cases[] = {
      {"iphone-faceid-ios16", false, true, true},
      {"iphone-touchid-ios14", true, false, false},
      {"iphone-ios17", false, false, true},
  };
  for (auto &c : cases) {
    SCOPED_TRACE(c.profile);
    UseDevice(c.profile);
    unsigned before = SimIOKitMatchCount();
    const char *names[] = {"AppleMesa", "AppleH10PearlCam", "H11ANEIn"};
    bool expected[] = {c.mesa, c.pearl, c.ane};
    for (int i = 0; i < 3; i++) {
      io_service_t s = IOServiceGetMatchingService(kIOMasterPortDefault, IOServiceMatching(names[i]));
      EXPECT_EQ(s != 0, expected[i]) << names[i];
      if (s) EXPECT_EQ(IOObjectRelease(s), KERN_SUCCESS);
    }
    EXPECT_EQ(SimIOKitMatchCount() - before, 3u);
  }
}

TEST_F(ServicesTest, GestaltAnswersFromTheProfile) {
  UseDevice("ipad-ios15");
  auto copyAnswer = (CFTypeRef(*)(CFStringRef))dlsym(RTLD_DEFAULT, "MGCopyAnswer");
  ASSERT_NE(copyAnswer, nullptr);
  struct {
    NSString *question;
    id answer;
  } cases[] = {
      {@"UserAssignedDeviceName", @"Carol's iPad"},
      {@"DeviceCornerRadius", @18},
      {@"ProductType", @"iPad13,1"},
      {@"ProductVersion", @"15.7"},
      {@"DeviceClass", @"iPad"},
      {@"NoSuchQuestion", nil},
  };
  for (auto &c : cases) {
    id answer = [(id)copyAnswer((CFStringRef)c.question) autorelease];
    EXPECT_NSEQ(answer, c.answer) << [c.question UTF8String];
  }
}

struct WiFi {
  CFTypeRef (*create)(CFAllocatorRef, int);
  CFArrayRef (*copyDevices)(CFTypeRef);
  CFArrayRef (*copyNetworks)(CFTypeRef);
  CFTypeRef (*copyCurrent)(CFTypeRef);
  CFPropertyListRef (*property)(CFTypeRef, CFStringRef);
  CFStringRef (*copyPassword)(CFTypeRef);
  CFDictionaryRef (*copyRecord)(CFTypeRef);

  bool load() {
    create = (decltype(create))dlsym(RTLD_DEFAULT, "WiFiManagerClientCreate");
    copyDevices = (decltype(copyDevices))dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyDevices");
    copyNetworks = (decltype(copyNetworks))dlsym(RTLD_DEFAULT, "WiFiManagerClientCopyNetworks");
    copyCurrent = (decltype(copyCurrent))dlsym(RTLD_DEFAULT, "WiFiDeviceClientCopyCurrentNetwork");
    property = (decltype(property))dlsym(RTLD_DEFAULT, "WiFiNetworkGetProperty");
    copyPassword = (decltype(copyPassword))dlsym(RTLD_DEFAULT, "WiFiNetworkCopyPassword");
    copyRecord = (decltype(copyRecord))dlsym(RTLD_DEFAULT, "WiFiNetworkCopyRecord");
    return create && copyDevices && copyNetworks && copyCurrent && property && copyPassword && copyRecord &&
           dlsym(RTLD_DEFAULT, "WiFiManagerClientScheduleWithRunLoop");
  }
};

TEST_F(ServicesTest, WiFiComesFromTheProfile) {
  WiFi w;
  ASSERT_TRUE(w.load());
  UseDevice("iphone-faceid-ios16");
  CFTypeRef client = w.create(kCFAllocatorDefault, 1);
  NSArray *networks = [(NSArray *)w.copyNetworks(client) autorelease];
  ASSERT_EQ([networks count], 4u);
  CFTypeRef hidden = [networks objectAtIndex:3];
  EXPECT_NSEQ((id)w.property(hidden, CFSTR("SSID_STR")), @"Hidden Lab");
  EXPECT_EQ(w.property(hidden, CFSTR("BSSID")), nullptr);
  EXPECT_EQ(w.copyPassword(hidden), nullptr);
  CFTypeRef home = [networks objectAtIndex:0];
  EXPECT_NSEQ([(id)w.copyPassword(home) autorelease], @"correct horse");
  NSDictionary *record = [(NSDictionary *)w.copyRecord(home) autorelease];
  EXPECT_TRUE([[record objectForKey:@"lastJoined"] isKindOfClass:[NSDate class]]);
  NSArray *devices = [(NSArray *)w.copyDevices(client) autorelease];
  ASSERT_EQ([devices count], 1u);
  CFTypeRef current = w.copyCurrent([devices objectAtIndex:0]);
  ASSERT_NE(current, nullptr);
  EXPECT_NSEQ((id)w.property(current, CFSTR("BSSID")), @"a4:2b:b0:11:22:33");
  CFRelease(current);
  CFRelease(client);

  UseDevice("ipad-ios15");  // known networks, not on any
  client = w.create(kCFAllocatorDefault, 1);
  devices = [(NSArray *)w.copyDevices(client) autorelease];
  ASSERT_EQ([devices count], 1u);
  EXPECT_EQ(w.copyCurrent([devices objectAtIndex:0]), nullptr);
  CFRelease(client);

  UseDevice("iphone-nopasscode-ios16");  // no known networks
  client = w.create(kCFAllocatorDefault, 1);
  EXPECT_EQ([[(NSArray *)w.copyNetworks(client) autorelease] count], 0u);
  CFRelease(client);
}

// A stand-in SpringBoard: announces itself, then waits to be stopped.
CHILD_HELPER(fakeSpringBoard) {
  notify_post(SIM_SPRINGBOARD_READY_NOTIFICATION);
  for (;;) pause();
}

CHILD_HELPER(silentSpringBoard) {
  sleep(60);
  return 0;
}

TEST_F(ServicesTest, SpringBoardStartsWhenReadyAndStops) {
  UseDevice();
  std::string self = SelfExecutablePath();
  setenv(CHILD_HELPER_ENV, "fakeSpringBoard", 1);
  pid_t pid = SimSpringBoardStart(self.c_str());
  unsetenv(CHILD_HELPER_ENV);
  ASSERT_GT(pid, 0);
  EXPECT_EQ(kill(pid, 0), 0);
  SimSpringBoardStop(pid);
  EXPECT_NE(kill(pid, 0), 0);

  setenv(CHILD_HELPER_ENV, "silentSpringBoard", 1);
  NSDate *start = [NSDate date];
  EXPECT_EQ(SimSpringBoardStartWithin(self.c_str(), 5.0), -1) << "never ready";
  unsetenv(CHILD_HELPER_ENV);
  EXPECT_GE([[NSDate date] timeIntervalSinceDate:start], 4.5);
}

}  // namespace
