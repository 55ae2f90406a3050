// The simulated Settings app's console driven in-process, for tests of the host's
// commands and screens: a device, the Settings app built around the real bundle, the
// product's page open, commands in and screens out.
#pragma once

#include <string>

#import "BundleFixture.h"

@class SettingsConsole;

class HostConsoleFixture : public BundleTest {
 protected:
  void TearDown() override;

  // A device from `profile`, the Settings app built around the bundle, the product's page open.
  void OpenSettings(const char *profile = SIM_DEFAULT_PROFILE);
  // The console's answer to `command`; an answer that is a whole screen also becomes screen_.
  std::string Run(const std::string &command);
  // Taps the row or link whose line holds `label` on the current screen.
  std::string Tap(const std::string &label);

  static bool Contains(const std::string &text, const std::string &part);
  // The number the screen gives the row or link whose line holds `label`
  // ("[7] Reset all settings"), or 0.
  static unsigned NumberOf(const std::string &screen, const std::string &label);
  // The line of `text` that holds `part`, or "".
  static std::string LineWith(const std::string &text, const std::string &part);

  SettingsConsole *console_ = nil;
  std::string screen_;
};
