// Jail-root prefixes from the device profile.

#import <Foundation/Foundation.h>
#include <libroot.h>
#include "Simulator/SimInternal.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

const char *libroot_dyn_get_jbroot_prefix(void) { return SimJailRootPrefix(); }

const char *libroot_dyn_get_root_prefix(void) { return ""; }

static char *prefixed(const char *prefix, const char *path, char *resolvedPath) {
  if (path == NULL) return NULL;
  char *out = resolvedPath ? resolvedPath : (char *)malloc(PATH_MAX);
  if (out == NULL) return NULL;
  // A relative path is left as it is: only absolute paths move under the prefix.
  if (path[0] != '/') prefix = "";
  // "/" under a rootless prefix is the prefix itself.
  if (prefix[0] != '\0' && strcmp(path, "/") == 0) path = "";
  int n = snprintf(out, PATH_MAX, "%s%s", prefix, path);
  if (n < 0 || n >= PATH_MAX) {
    if (resolvedPath == NULL) free(out);
    return NULL;
  }
  return out;
}

char *libroot_dyn_jbrootpath(const char *path, char *resolvedPath) {
  return prefixed(libroot_dyn_get_jbroot_prefix(), path, resolvedPath);
}

char *libroot_dyn_rootfspath(const char *path, char *resolvedPath) {
  return prefixed(libroot_dyn_get_root_prefix(), path, resolvedPath);
}

const char *libroot_jbroot_cstring(const char *path) {
  static __thread char ring[8][PATH_MAX];
  static __thread unsigned next;
  char *slot = ring[next++ % 8];
  return libroot_dyn_jbrootpath(path, slot);
}

NSString *libroot_jbroot_nsstring(NSString *path) {
  if (path == nil) return nil;
  char buf[PATH_MAX];
  const char *out = libroot_dyn_jbrootpath([path fileSystemRepresentation], buf);
  return out ? [NSString stringWithUTF8String:out] : nil;
}
