// The simulated Settings app's command line.
//   tessarin-settings [--profile NAME] [--messages]
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <stdio.h>
#include <string.h>
#import "MessageProbe.h"
#import "SettingsHost.h"

static void usage(void) {
  fprintf(stderr, "usage: tessarin-settings [--profile NAME] [--messages]\n");
}

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  const char *profile = SIM_DEFAULT_PROFILE;
  bool messages = false;
  for (int i = 1; i < argc; i++) {
    if (strcmp(argv[i], "--profile") == 0 && i + 1 < argc) {
      profile = argv[++i];
    } else if (strcmp(argv[i], "--messages") == 0) {
      messages = true;
    } else if (argv[i][0] != '-') {
      profile = argv[i];
    } else {
      usage();
      return 2;
    }
  }

  const char *root = SimDeviceCreateTemporary(profile);
  if (root == NULL) {
    fprintf(stderr, "tessarin-settings: cannot create a device from profile '%s'\n", profile);
    return 1;
  }
  printf("Device: %s (%s)\n", profile, root);
  if (!SettingsHostInstallPackage()) {
    fprintf(stderr, "tessarin-settings: cannot install the package into the device\n");
    return 1;
  }
  pid_t springBoard = SettingsHostStartSpringBoard();
  printf("SpringBoard: %s\n", springBoard > 0 ? "running" : "not running");
  if (SettingsHostLoadPreferenceBundle() == nil) {
    fprintf(stderr, "tessarin-settings: the preference bundle did not load\n");
    SimSpringBoardStop(springBoard);
    return 1;
  }
  int status = 0;
  if (messages || true) status = runMessageProbe();
  if (springBoard > 0) SimSpringBoardStop(springBoard);
  [pool drain];
  return status;
}
