// Preference domains: per-process caches, synchronise across processes, malformed files,
// and the NSUserDefaults views of the same store.
#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>

#include "ChildProcess.h"
#include "DeviceFixture.h"

namespace {

#define kDomain CFSTR("net.corvane.tessarin.test")

// Child: writes key=value (string) and synchronises. argv: name key value
CHILD_HELPER(writePreference) {
  if (argc < 3) return 2;
  CFStringRef key = CFStringCreateWithCString(NULL, argv[1], kCFStringEncodingUTF8);
  CFStringRef value = CFStringCreateWithCString(NULL, argv[2], kCFStringEncodingUTF8);
  CFPreferencesAppSynchronize(kDomain);
  CFPreferencesSetAppValue(key, value, kDomain);
  Boolean ok = CFPreferencesAppSynchronize(kDomain);
  CFRelease(key);
  CFRelease(value);
  return ok ? 0 : 1;
}

NSString *copyString(NSString *key) {
  return [(NSString *)CFPreferencesCopyAppValue((CFStringRef)key, kDomain) autorelease];
}

class PreferencesTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice();
  }
  NSString *DomainFile() { return HostPathString(@"/var/mobile/Library/Preferences/net.corvane.tessarin.test.plist"); }
};

TEST_F(PreferencesTest, OtherProcessWritesAreSeenOnlyAfterSynchronise) {
  CFPreferencesSetAppValue(CFSTR("mine"), CFSTR("1"), kDomain);
  ASSERT_TRUE(CFPreferencesAppSynchronize(kDomain));
  EXPECT_EQ(copyString(@"theirs"), nil);

  ASSERT_EQ(RunChild("writePreference", {"theirs", "2"}), 0);
  EXPECT_EQ(copyString(@"theirs"), nil) << "cache must hold until synchronised";
  // A local unsynchronised change is not lost by the other process's write, nor theirs by ours.
  CFPreferencesSetAppValue(CFSTR("local"), CFSTR("3"), kDomain);
  ASSERT_TRUE(CFPreferencesAppSynchronize(kDomain));
  EXPECT_NSEQ(copyString(@"theirs"), @"2");
  EXPECT_NSEQ(copyString(@"local"), @"3");
  EXPECT_NSEQ(copyString(@"mine"), @"1");
  NSDictionary *onDisk = [NSDictionary dictionaryWithContentsOfFile:DomainFile()];
  EXPECT_EQ([onDisk count], 3u);
}

TEST_F(PreferencesTest, NullRemovesTheKey) {
  CFPreferencesSetAppValue(CFSTR("passcode"), CFSTR("1234"), kDomain);
  CFPreferencesAppSynchronize(kDomain);
  CFPreferencesSetAppValue(CFSTR("passcode"), NULL, kDomain);
  CFPreferencesAppSynchronize(kDomain);
  EXPECT_EQ(copyString(@"passcode"), nil);
  EXPECT_EQ([[NSDictionary dictionaryWithContentsOfFile:DomainFile()] objectForKey:@"passcode"], nil);
}

TEST_F(PreferencesTest, MalformedFilesReadAsEmptyAndStayUntilWritten) {
  const char *const contents[] = {"not a plist <<<", "<plist><array><string>x</string></array></plist>", ""};
  for (const char *bad : contents) {
    SCOPED_TRACE(bad);
    UseDevice();
    NSData *data = [NSData dataWithBytes:bad length:strlen(bad)];
    ASSERT_TRUE([data writeToFile:DomainFile() atomically:YES]);
    EXPECT_EQ(copyString(@"anything"), nil);
    EXPECT_TRUE(CFPreferencesAppSynchronize(kDomain));
    EXPECT_NSEQ([NSData dataWithContentsOfFile:DomainFile()], data);
    CFPreferencesSetAppValue(CFSTR("k"), CFSTR("v"), kDomain);
    CFPreferencesAppSynchronize(kDomain);
    EXPECT_NSEQ([[NSDictionary dictionaryWithContentsOfFile:DomainFile()] objectForKey:@"k"], @"v");
  }
}

TEST_F(PreferencesTest, NonPropertyListValuesAreDropped) {
  CFPreferencesSetAppValue(CFSTR("obj"), (CFPropertyListRef)[[[NSObject alloc] init] autorelease], kDomain);
  EXPECT_EQ(copyString(@"obj"), nil);
}

TEST_F(PreferencesTest, UserDefaultsShareTheStore) {
  NSUserDefaults *suite = [[[NSUserDefaults alloc] initWithSuiteName:@"net.corvane.tessarin.test"] autorelease];
  ASSERT_NE(suite, nil);
  CFPreferencesSetAppValue(CFSTR("waitUntilFinished"), kCFBooleanTrue, kDomain);
  CFPreferencesAppSynchronize(kDomain);
  EXPECT_TRUE([suite boolForKey:@"waitUntilFinished"]);
  EXPECT_FALSE([suite boolForKey:@"missing"]);

  ASSERT_EQ(RunChild("writePreference", {"fromChild", "yes"}), 0);
  EXPECT_EQ([suite objectForKey:@"fromChild"], nil);
  [suite synchronize];
  EXPECT_NSEQ([suite objectForKey:@"fromChild"], @"yes");

  [[NSUserDefaults standardUserDefaults] removePersistentDomainForName:@"net.corvane.tessarin.test"];
  EXPECT_EQ(copyString(@"waitUntilFinished"), nil);
  CFPreferencesAppSynchronize(kDomain);
  EXPECT_EQ(copyString(@"fromChild"), nil);
  EXPECT_EQ([[NSDictionary dictionaryWithContentsOfFile:DomainFile()] count], 0u);
}

}  // namespace
