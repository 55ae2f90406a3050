/*
 * Jail-root paths: where the jailbreak's files live ("/var/jb" on rootless jailbreaks,
 * "/" on rootful ones). All paths are device paths.
 */
#ifndef LIBROOT_H_
#define LIBROOT_H_

#include <limits.h>

#ifdef __cplusplus
extern "C" {
#endif

/* "/var/jb" on rootless devices, "" on rootful ones. */
const char *libroot_dyn_get_jbroot_prefix(void);
/* Prefix of the system's root file system: "". */
const char *libroot_dyn_get_root_prefix(void);
/* `path` under the jail root, written to resolvedPath (PATH_MAX bytes; NULL: a new buffer
   the caller frees). NULL for a NULL path. */
char *libroot_dyn_jbrootpath(const char *path, char *resolvedPath);
/* `path` under the root file system prefix. */
char *libroot_dyn_rootfspath(const char *path, char *resolvedPath);

/* Buffer-free forms: the C string stays valid until the thread has made eight more. */
const char *libroot_jbroot_cstring(const char *path);

#ifdef __cplusplus
}
#endif

#define JBROOT_PATH_CSTRING(path) libroot_jbroot_cstring(path)

#ifdef __OBJC__
#import <Foundation/Foundation.h>
#ifdef __cplusplus
extern "C" {
#endif
NSString *libroot_jbroot_nsstring(NSString *path);
#ifdef __cplusplus
}
#endif
#define JBROOT_PATH_NSSTRING(path) libroot_jbroot_nsstring(path)
#endif

#endif
