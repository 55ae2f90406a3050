// Darwin notifications between processes of one device, and the CF Darwin centre.
#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <notify.h>

#include <stdlib.h>

#include "ChildProcess.h"
#include "DeviceFixture.h"

namespace {

// Child: waits for argv[1] to be posted (after announcing itself with "<name>.ready"); exit 0 when seen.
CHILD_HELPER(awaitPost) {
  __block bool seen = false;
  int token;
  notify_register_dispatch(argv[1], &token, dispatch_get_main_queue(), ^(int t) { seen = true; });
  notify_post((std::string(argv[1]) + ".ready").c_str());
  return SimRunLoopRunUntil(
             ^BOOL { return seen; }, 15)
             ? 0
             : 1;
}

// Child: posts argv[1] argv[2] times.
CHILD_HELPER(post) {
  int times = argc > 2 ? atoi(argv[2]) : 1;
  for (int i = 0; i < times; i++) notify_post(argv[1]);
  return 0;
}

// Child: exits with the state of argv[1], after setting it to argv[2] when given.
CHILD_HELPER(state) {
  int token;
  notify_register_check(argv[1], &token);
  uint64_t state = 0;
  notify_get_state(token, &state);
  if (argc > 2) notify_set_state(token, strtoull(argv[2], nullptr, 10));
  return (int)state;
}

class NotifyTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice();
  }
};

TEST_F(NotifyTest, StateIsSharedBetweenProcesses) {
  int token;
  ASSERT_EQ(notify_register_check("net.corvane.tessarin.graceperiod", &token), (uint32_t)NOTIFY_STATUS_OK);
  uint64_t state = 99;
  EXPECT_EQ(notify_get_state(token, &state), (uint32_t)NOTIFY_STATUS_OK);
  EXPECT_EQ(state, 0u);
  ASSERT_EQ(notify_set_state(token, 42), (uint32_t)NOTIFY_STATUS_OK);
  EXPECT_EQ(RunChild("state", {"net.corvane.tessarin.graceperiod", "7"}), 42);
  EXPECT_EQ(notify_get_state(token, &state), (uint32_t)NOTIFY_STATUS_OK);
  EXPECT_EQ(state, 7u);
  notify_cancel(token);
  EXPECT_EQ(notify_get_state(token, &state), (uint32_t)NOTIFY_STATUS_INVALID_TOKEN);
}

TEST_F(NotifyTest, PostReachesAnotherProcessObserver) {
  pid_t child = SpawnChild("awaitPost", {"test.ping"});
  ASSERT_GT(child, 0);
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return SimNotifyPostCount("test.ping.ready") > 0; }, 15));
  notify_post("test.ping");
  EXPECT_EQ(WaitChild(child), 0);
}

void countCallback(CFNotificationCenterRef, void *observer, CFStringRef name, const void *, CFDictionaryRef) {
  ++*(int *)observer;
}

TEST_F(NotifyTest, DarwinCentreObservesOtherProcessesAndItself) {
  static int received;  // read by the wait blocks, which capture by value
  received = 0;
  CFNotificationCenterRef center = CFNotificationCenterGetDarwinNotifyCenter();
  CFNotificationCenterAddObserver(center, &received, countCallback, CFSTR("test.changed"), NULL,
                                  CFNotificationSuspensionBehaviorDeliverImmediately);
  ASSERT_EQ(RunChild("post", {"test.changed", "2"}), 0);
  EXPECT_EQ(SimNotifyPostCount("test.changed"), 2u);
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return received == 2; }, 10));

  CFNotificationCenterPostNotification(center, CFSTR("test.changed"), NULL, NULL, true);
  EXPECT_EQ(received, 2) << "own posts arrive asynchronously";
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return received == 3; }, 10));

  CFNotificationCenterRemoveObserver(center, &received, CFSTR("test.changed"), NULL);
  notify_post("test.changed");
  SimRunLoopRunFor(0.3);
  EXPECT_EQ(received, 3);
}

TEST_F(NotifyTest, CheckReportsPostsSinceLastCheck) {
  int token, check = -1;
  notify_register_check("test.check", &token);
  struct Step {
    int posts;
    int expected;
  } steps[] = {{0, 1}, {0, 0}, {1, 1}, {0, 0}, {3, 1}};
  for (const Step &s : steps) {
    if (s.posts) ASSERT_EQ(RunChild("post", {"test.check", std::to_string(s.posts)}), 0);
    EXPECT_EQ(notify_check(token, &check), (uint32_t)NOTIFY_STATUS_OK);
    EXPECT_EQ(check, s.expected);
  }
  EXPECT_EQ(notify_check(12345, &check), (uint32_t)NOTIFY_STATUS_INVALID_TOKEN);
}

TEST_F(NotifyTest, StalePeersAreDropped) {
  int token;
  __block int received = 0;
  notify_register_dispatch("test.stale", &token, dispatch_get_main_queue(), ^(int t) { received++; });
  std::string stale = HostPath("/.simulator/notify/peers/999999999");
  FILE *f = fopen(stale.c_str(), "w");
  ASSERT_NE(f, nullptr);
  fclose(f);
  EXPECT_EQ(notify_post("test.stale"), (uint32_t)NOTIFY_STATUS_OK);
  EXPECT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return received == 1; }, 10));
  EXPECT_NE(access(stale.c_str(), F_OK), 0);
}

TEST_F(NotifyTest, SwitchingDevicesKeepsStateTokensAndDropsHandlers) {
  int token, handled;
  notify_register_check("test.a", &token);
  notify_set_state(token, 7);
  notify_register_dispatch("test.a", &handled, dispatch_get_main_queue(), ^(int){});
  UseDevice();
  EXPECT_TRUE(notify_is_valid_token(token));
  EXPECT_FALSE(notify_is_valid_token(handled));
  uint64_t state = 1;
  EXPECT_EQ(notify_get_state(token, &state), (uint32_t)NOTIFY_STATUS_OK);
  EXPECT_EQ(state, 0u);  // the new device's state, not the old one's
  EXPECT_EQ(SimNotifyPostCount("test.changed"), 0u);
}

}  // namespace
