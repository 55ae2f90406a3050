// What the simulated Settings app does around a preference bundle: install the
// package into the device tree as the package manager would, run SpringBoard,
// and load bundles through their PreferenceLoader entries.
#pragma once
#import <Foundation/Foundation.h>
#include <sys/types.h>

// Installs the built bundle and its PreferenceLoader entry under the device's jail root.
BOOL SettingsHostInstallPackage(void);

// Starts the simulated SpringBoard on the current device unless the profile says it
// is not running. Returns its pid, or -1 when none was started.
pid_t SettingsHostStartSpringBoard(void);

// The PreferenceLoader entry of the product (its "entry" dictionary), or nil.
NSDictionary *SettingsHostPreferenceEntry(void);

// Loads the entry's bundle as Settings does (its start-up code runs then); returns it.
NSBundle *SettingsHostLoadPreferenceBundle(void);

// The Settings list as a person sees it on the device: the Settings app's own panes for
// its system version (groups, panes with icons, with and without "id", apps' panes with
// lazily loaded icons), a group of the PreferenceLoader entries installed on the device
// (the product's opens `bundle`: the entry's class or the bundle's principal class) and
// the panes of other makers' applications. Rows target `target`.
NSArray *SettingsHostSettingsList(id target, NSBundle *bundle);

// Builds the Settings app around the loaded bundle: the app's root navigation controller
// shows the Settings list ("PrefsListController") above. Returns NO when the app or the
// product's entry is missing.
BOOL SettingsHostBuildSettingsApp(NSBundle *bundle);
