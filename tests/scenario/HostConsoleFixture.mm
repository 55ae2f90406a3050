#import "HostConsoleFixture.h"

#include <stdio.h>

#import "SettingsConsole.h"
#import "SettingsHost.h"

void HostConsoleFixture::TearDown() {
  [console_ release];
  console_ = nil;
  BundleTest::TearDown();
}

void HostConsoleFixture::OpenSettings(const char *profile) {
  StartDevice(profile);
  ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  console_ = [[SettingsConsole alloc] init];
  ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
  screen_ = [[console_ render] UTF8String];
}

std::string HostConsoleFixture::Run(const std::string &command) {
  NSString *output = [console_ perform:[NSString stringWithUTF8String:command.c_str()]];
  std::string text = [output UTF8String];
  if (Contains(text, "====")) screen_ = text;
  return text;
}

std::string HostConsoleFixture::Tap(const std::string &label) {
  unsigned number = NumberOf(screen_, label);
  EXPECT_GT(number, 0u) << label << " is not on the screen:\n" << screen_;
  return Run("tap " + std::to_string(number));
}

bool HostConsoleFixture::Contains(const std::string &text, const std::string &part) {
  return text.find(part) != std::string::npos;
}

unsigned HostConsoleFixture::NumberOf(const std::string &screen, const std::string &label) {
  const std::string line = LineWith(screen, label);
  unsigned number = 0;
  return sscanf(line.c_str(), " [%u]", &number) == 1 ? number : 0;
}

std::string HostConsoleFixture::LineWith(const std::string &text, const std::string &part) {
  size_t at = text.find(part);
  if (at == std::string::npos) return "";
  size_t start = text.rfind('\n', at);
  start = start == std::string::npos ? 0 : start + 1;
  return text.substr(start, text.find('\n', at) - start);
}
