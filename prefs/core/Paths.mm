#import "core/Paths.h"
#import <Foundation/Foundation.h>
#include <libroot.h>
#include <limits.h>
#if TESSARIN_SIMULATED
#include <Simulator/Simulator.h>
#endif

// On the device this is the identity; in the simulator the device's
// file system is a tree under one root directory.
std::string devicePath(const char *path) {
  if (path == NULL) return std::string();
#if TESSARIN_SIMULATED
  char buffer[PATH_MAX];
  if (SimDevicePath(path, buffer, sizeof buffer) != NULL) return buffer;
#endif
  return path;
}

NSString *devicePath(NSString *path) {
#if TESSARIN_SIMULATED
  if (path == nil) return nil;
  return [NSString stringWithUTF8String:devicePath([path fileSystemRepresentation]).c_str()];
#else
  return path;
#endif
}

NSString *jbroot(NSString *path) {
  if (path == nil) return nil;
  char resolved[PATH_MAX];
  if (libroot_dyn_jbrootpath([path fileSystemRepresentation], resolved) == NULL) return path;
  return [NSString stringWithUTF8String:resolved];
}

BOOL deviceFileExists(NSString *path) { return [[NSFileManager defaultManager] fileExistsAtPath:devicePath(path)]; }
