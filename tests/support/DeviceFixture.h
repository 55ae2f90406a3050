// GoogleTest fixture for tests that need a simulated device: a fresh temporary device per
// test (removed afterwards) and an autorelease pool around each test.
#pragma once

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <gtest/gtest.h>

#include <string>

// Equality of Foundation objects (nil equals nil), with both descriptions on failure.
inline ::testing::AssertionResult ObjectsEqual(id a, id b) {
  if (a == b || (a != nil && [a isEqual:b])) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << [[a description] UTF8String] << " != " << [[b description] UTF8String];
}
#define EXPECT_NSEQ(a, b) EXPECT_TRUE(ObjectsEqual((a), (b)))
#define ASSERT_NSEQ(a, b) ASSERT_TRUE(ObjectsEqual((a), (b)))

class DeviceTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Creates a fresh device from `profile` and makes it this process's device.
  void UseDevice(const char *profile = SIM_DEFAULT_PROFILE);

  // The device root ("" before UseDevice).
  const std::string &Root() const { return root_; }
  // Host path of a device path on the device in use.
  std::string HostPath(const char *devicePath) const;
  NSString *HostPathString(NSString *devicePath) const;

 private:
  NSAutoreleasePool *pool_ = nil;
  std::string root_;
};
