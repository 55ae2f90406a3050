// Device creation from profiles and the system identity it gives the process.
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>

#include <sys/stat.h>

#include "DeviceFixture.h"

namespace {

class SimulatorTest : public DeviceTest {};

struct ProfileCase {
  const char *profile;
  const char *versionString;
  const char *model;
  const char *addOn;  // a device file the profile lists, or nullptr
};

const ProfileCase kProfiles[] = {
    {"iphone-faceid-ios16", "Version 16.4 (Build 20E247)", "iPhone15,2", "/var/jb/usr/lib/libflipswitch.dylib"},
    {"iphone-touchid-ios14", "Version 14.8 (Build 18H17)", "iPhone10,1", "/usr/lib/libflipswitch.dylib"},
    {"ipad-ios15", "Version 15.7 (Build 19H12)", "iPad13,1", nullptr},
    {"iphone-ios17", "Version 17.0 (Build 21A329)", "iPhone15,4", "/var/jb/usr/lib/libflipswitch.dylib"},
    {"iphone-ios12", "Version 12.4 (Build 16G77)", "iPhone10,3", "/usr/lib/libflipswitch.dylib"},
    {"iphone-ios13", "Version 13.7 (Build 17H35)", "iPhone12,1", nullptr},
    {"iphone-ios11", "Version 11.4 (Build 15F79)", "iPhone8,1", nullptr},
    {"iphone-nopasscode-ios16", "Version 16.2 (Build 20C65)", "iPhone14,5", nullptr},
};

TEST_F(SimulatorTest, EveryProfileMakesADevice) {
  for (const ProfileCase &c : kProfiles) {
    SCOPED_TRACE(c.profile);
    UseDevice(c.profile);
    EXPECT_STREQ(SimDeviceRoot(), Root().c_str());
    EXPECT_STREQ(getenv(SIM_DEVICE_ROOT_ENV), Root().c_str());
    EXPECT_STREQ([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String], c.versionString);
    EXPECT_EQ([[SimDeviceProfile() objectForKey:@"model"] UTF8String], std::string(c.model));
    struct stat st;
    EXPECT_EQ(stat(HostPath("/.simulator/profile.plist").c_str(), &st), 0);
    EXPECT_EQ(stat(HostPath("/var/mobile/Library/Preferences").c_str(), &st), 0);
    if (c.addOn) EXPECT_EQ(stat(HostPath(c.addOn).c_str(), &st), 0) << c.addOn;
  }
}

TEST_F(SimulatorTest, ProfileFilesAndLinks) {
  UseDevice("iphone-faceid-ios16");
  NSString *dir = @"/var/mobile/Library/Logs/Tessarin";
  NSFileManager *fm = [NSFileManager defaultManager];
  NSArray *names = [[fm contentsOfDirectoryAtPath:HostPathString(dir)
                                            error:NULL] sortedArrayUsingSelector:@selector(compare:)];
  EXPECT_EQ([names count], 5u);
  // The link holds the device path it was given, as the device would.
  NSString *link =
      [fm destinationOfSymbolicLinkAtPath:HostPathString([dir stringByAppendingPathComponent:@"Latest-Tessarin.log"])
                                    error:NULL];
  EXPECT_NSEQ(link, @"/var/mobile/Library/Logs/Tessarin/Tessarin-12-Nov-2026-08-15-42.log");
  // Data contents are written as they are: this one is not UTF-8.
  NSData *raw = [NSData
      dataWithContentsOfFile:HostPathString([dir stringByAppendingPathComponent:@"Tessarin-28-Oct-2026-09-30-00.log"])];
  ASSERT_NE(raw, nil);
  EXPECT_GT([raw length], 0u);
  EXPECT_EQ([[[NSString alloc] initWithData:raw encoding:NSUTF8StringEncoding] autorelease], nil);
}

TEST_F(SimulatorTest, PasscodeCharacteristicsAreDerived) {
  UseDevice("iphone-touchid-ios14");
  NSDictionary *chars = [SimDeviceProfile() objectForKey:@"passcodeCharacteristics"];
  EXPECT_TRUE([[chars objectForKey:@"allDigits"] boolValue]);
  EXPECT_FALSE([[chars objectForKey:@"hasAlpha"] boolValue]);
  EXPECT_EQ([[chars objectForKey:@"length"] intValue], 4);
  UseDevice("iphone-nopasscode-ios16");
  EXPECT_EQ([SimDeviceProfile() objectForKey:@"passcodeCharacteristics"], nil);
}

TEST_F(SimulatorTest, DevicePathsAndRemoval) {
  UseDevice();
  char buf[16];
  EXPECT_EQ(SimDevicePath("/var/mobile/Library/Preferences/x.plist", buf, sizeof buf), nullptr);
  EXPECT_EQ(HostPath("/tmp/x"), Root() + "/tmp/x");
  std::string root = Root();
  EXPECT_EQ(SimDeviceRemove(root.c_str()), 0);
  EXPECT_EQ(SimDeviceRoot(), nullptr);
  EXPECT_EQ([SimDeviceProfile() count], 0u);
  struct stat st;
  EXPECT_NE(stat(root.c_str(), &st), 0);
}

TEST_F(SimulatorTest, UnknownProfileFails) { EXPECT_EQ(SimDeviceCreateTemporary("no-such-profile"), nullptr); }

}  // namespace
