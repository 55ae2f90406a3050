// A fresh simulated device per test with the package installed, the bundle loaded into
// this process as Settings loads it, and optionally the simulated SpringBoard running.
#pragma once

#import <Foundation/Foundation.h>
@class PSListController, UIViewController;
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/types.h>

#include <string>

#include "DeviceFixture.h"

class BundleTest : public DeviceTest {
 protected:
  void TearDown() override;

  // Creates the device from `profile` (a name, or a profile dictionary changed by
  // `edit`), installs the package, loads the bundle and, unless asked not to, starts SpringBoard.
  void StartDevice(const char *profile = SIM_DEFAULT_PROFILE, bool withSpringBoard = true,
                   void (^edit)(NSMutableDictionary *profile) = nil);
  void StopSpringBoard();

  // A C function or variable of the loaded bundle.
  template <typename T>
  T BundleSymbol(const char *name) {
    void *symbol = dlsym(RTLD_DEFAULT, name);
    EXPECT_NE(symbol, nullptr) << name;
    return reinterpret_cast<T>(symbol);
  }

  // Shows `page` as the Settings list opens a pane: the first page of the pane's own
  // navigation controller (the application's rootController), on screen.
  void ShowAsSettingsPane(UIViewController *page);
  // A new page of the bundle's class `className`, shown as a Settings pane, loaded, with its rows built.
  PSListController *OpenSettingsPane(NSString *className);
  // Taps the product's row of the Settings list (the one that opens the bundle's
  // principal class) and returns the page shown once the push is over.
  UIViewController *OpenProductFromSettingsList();

  // File helpers on device paths.
  bool DeviceFileExists(const char *devicePath) const;
  void WriteDeviceFile(const char *devicePath, NSData *data) const;
  NSData *ReadDeviceFile(const char *devicePath) const;

  // Preference file of the product's domain, as on disk.
  NSDictionary *StoredPreferences() const;

  pid_t springBoard_ = -1;
};
