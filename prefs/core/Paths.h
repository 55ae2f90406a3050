// Device paths. Every absolute path the bundle touches goes through devicePath(),
// which is the identity on the device and maps into the simulated device tree
// elsewhere; jbroot() first moves a path under the jail root.
#pragma once
#import <Foundation/Foundation.h>
#include <string>

// The file-system path of an absolute device path.
NSString *devicePath(NSString *path);
std::string devicePath(const char *path);

// The path under the current jail root ("/var/jb/..." on rootless, unchanged on rootful).
NSString *jbroot(NSString *path);

// Whether a file exists at a device path.
BOOL deviceFileExists(NSString *path);
