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

#ifdef __cplusplus
}
#endif

#endif
