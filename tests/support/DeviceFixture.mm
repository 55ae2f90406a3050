#import "DeviceFixture.h"

#include <limits.h>

void DeviceTest::SetUp() { pool_ = [[NSAutoreleasePool alloc] init]; }

void DeviceTest::TearDown() {
  SimClockUseRealTime();
  if (!root_.empty()) {
    SimDeviceRemove(root_.c_str());
    root_.clear();
  }
  [pool_ release];
  pool_ = nil;
}

void DeviceTest::UseDevice(const char *profile) {
  if (!root_.empty()) SimDeviceRemove(root_.c_str());
  const char *root = SimDeviceCreateTemporary(profile);
  ASSERT_NE(root, nullptr) << "cannot create a device from profile " << profile;
  root_ = root;
}

std::string DeviceTest::HostPath(const char *devicePath) const {
  char buf[PATH_MAX];
  return SimDevicePath(devicePath, buf, sizeof buf) ? std::string(buf) : std::string();
}

NSString *DeviceTest::HostPathString(NSString *devicePath) const {
  std::string path = HostPath([devicePath fileSystemRepresentation]);
  return path.empty() ? nil : [NSString stringWithUTF8String:path.c_str()];
}
