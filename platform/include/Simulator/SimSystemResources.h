/*
 * System resources that differ between system versions (the profile's "systemVersion"):
 * - SpringBoard's "NewsstandIconInternational" (iOS 14 and earlier) and the classic Control
 *   Center glyphs in SpringBoard and ControlCenterUI;
 * - the settings icons of the Preferences and Sharing frameworks (iOS 15 and later), the
 *   connectivity module's glyphs and LegacyGameKit's "bt_logo";
 * - the Control Center module bundles of the system's generation, each with its Info.plist
 *   (some without display name) and its "SettingsIcon" (or its own image name);
 * - add-ons the profile installs: "controlCenterAddOns" (array of {bundle, info, image}) in
 *   "/Library/ControlCenter/Bundles"; "ccsettings" ({icons: names, order: dictionary or data,
 *   orderFile: device path}) for the CCSettings library, its settings bundle and order file.
 */
#ifndef SIMULATOR_SIMSYSTEMRESOURCES_H
#define SIMULATOR_SIMSYSTEMRESOURCES_H

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Lays the resources of `profile`'s system into the tree at `root`; 0, or -1 on a write error. */
int SimInstallSystemResources(const char *root, NSDictionary *profile);

#ifdef __cplusplus
}
#endif

#endif
