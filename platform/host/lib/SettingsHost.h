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

// Builds the Settings app around the loaded bundle: the app's root navigation controller
// shows the Settings list ("PrefsListController") whose one row is the product's
// PreferenceLoader entry (its label, and as detail page the entry's class or the bundle's
// principal class). Returns NO when the app or the entry is missing.
BOOL SettingsHostBuildSettingsApp(NSBundle *bundle);
