/*
 * Installed applications of the simulated device: real bundle folders with an Info.plist
 * and optional "InfoPlist" string tables, laid where iOS keeps them. A device gets the
 * profile's "installedApplications" when it is created; tests install more at run time.
 *
 * An entry is a dictionary:
 *   source     "Applications" (/Applications), "LegacyContainers" (/private/var/mobile/Applications),
 *              "Binpack" (/private/var/binpack/Applications) or "Containers" (the bundle container
 *              root: /var/containers/Bundle/Application, or /var/mobile/Containers/Bundle/Application
 *              on a profile with "legacyContainerRoot" true);
 *   bundle     the bundle folder's name ("Notes.app");
 *   container  for the two container sources, the container folder's name (default: one per entry);
 *   info       the Info.plist dictionary (absent: the bundle has none; its values may be of any type);
 *   strings    language code to the "InfoPlist" table of that language ("en" -> {CFBundleDisplayName: ...}).
 */
#ifndef SIMULATOR_SIMAPPLICATIONS_H
#define SIMULATOR_SIMAPPLICATIONS_H

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Lays one application into the device tree at `root` (the device in use when NULL);
   returns the bundle's device path, or nil when it could not be written. */
NSString *SimInstallApplication(const char *root, NSDictionary *entry);

/* Lays every entry of the profile's "installedApplications" into the tree at `root`. */
int SimInstallProfileApplications(const char *root, NSDictionary *profile);

#ifdef __cplusplus
}
#endif

#endif
