/*
 * System files of the simulated device that come with iOS itself rather than from the
 * profile: the Accessibility settings bundle's "GuidedAccessSettings" strings.
 */
#ifndef SIMULATOR_SIMSYSTEMFILES_H
#define SIMULATOR_SIMSYSTEMFILES_H

#ifdef __cplusplus
extern "C" {
#endif

/* Lays the system files into the device tree at `root`. Returns 0, or -1 when a file
   could not be written. Safe to call again on the same tree. */
int SimInstallSystemFiles(const char *root);

#ifdef __OBJC__
@class NSDictionary;
/* Links the stand-in's framework bundles (PassKit) into /System/Library/Frameworks of the
   tree at `root`, leaving out those named in the profile's "absentFrameworks". Returns 0,
   or -1 when a link could not be made. */
int SimInstallSystemFrameworks(const char *root, NSDictionary *profile);
#endif

#ifdef __cplusplus
}
#endif

#endif
