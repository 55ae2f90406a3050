// Text layout of the Settings host's screens: footers and messages wrapped for a terminal.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "SettingsScreen.h"

namespace {

std::vector<std::string> Wrapped(NSString *text, NSUInteger width, NSString *indent) {
  std::vector<std::string> lines;
  for (NSString *line in SettingsScreenWrap(text, width, indent)) lines.push_back([line UTF8String]);
  return lines;
}

}  // namespace

TEST(HostScreenWrap, LinesStayWithinTheWidthAndKeepEveryWord) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *footer =
      @"In this page you can add a recovery passcode in cases where your BiometricID is repeatedly not "
      @"recognized. This passcode is different from your device passcode. If you forgot your passcode, you can "
      @"clear it using  FaceID. I forgot my passcode...";
  struct Case {
    NSUInteger width;
    NSString *indent;
  };
  const Case cases[] = {{78, @"    "}, {78, @""}, {40, @"  "}, {20, @""}};
  for (const Case &c : cases) {
    std::vector<std::string> lines = Wrapped(footer, c.width, c.indent);
    ASSERT_GT(lines.size(), 1u);
    std::string joined;
    for (const std::string &line : lines) {
      EXPECT_LE(line.size(), c.width) << line;
      EXPECT_EQ(line.compare(0, [c.indent length], [c.indent UTF8String]), 0) << line;
      joined += line.substr([c.indent length]) + " ";
    }
    // Nothing is lost: the words come back in order (the double blank may fall at a break).
    NSString *back = [[NSString stringWithUTF8String:joined.c_str()]
        stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
    NSArray *words = [[footer componentsSeparatedByString:@" "]
        filteredArrayUsingPredicate:[NSPredicate predicateWithFormat:@"length > 0"]];
    NSArray *again = [[back componentsSeparatedByString:@" "]
        filteredArrayUsingPredicate:[NSPredicate predicateWithFormat:@"length > 0"]];
    EXPECT_TRUE([words isEqualToArray:again]) << joined;
  }
  [pool release];
}

TEST(HostScreenWrap, LineBreaksAreKeptAndOverlongWordsAreCut) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  std::vector<std::string> lines = Wrapped(@"Tessarin is disabled.\n(You are connected)", 78, @"");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "Tessarin is disabled.");
  EXPECT_EQ(lines[1], "(You are connected)");

  lines = Wrapped(@"abcdefghijklmnopqrstuvwxyz", 10, @"");
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0], "abcdefghij");
  EXPECT_EQ(lines[2], "uvwxyz");

  lines = Wrapped(@"", 78, @"  ");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], "  ");
  [pool release];
}
