/*
 * The system's <dlfcn.h>, with one difference that devices have: a private library of
 * another system version may lack a function. A profile lists those in "missingSymbols";
 * dlsym on the default scope does not find them. Every other lookup is the system's own
 * (the wrapper is inline, so RTLD_NEXT still means the caller's next object).
 */
#include_next <dlfcn.h>

#ifndef SIMULATOR_DLFCN_H
#define SIMULATOR_DLFCN_H

#ifdef __cplusplus
extern "C" {
#endif

/* Non-zero when the device in use lacks the function `name` (its profile's "missingSymbols").
   Weak, so code built without the stand-in library keeps the system's dlsym. */
int SimSymbolIsMissing(const char *name) __attribute__((weak));

static inline void *SimDlsym(void *handle, const char *name) {
#ifdef RTLD_DEFAULT
  if (handle == RTLD_DEFAULT && SimSymbolIsMissing != 0 && SimSymbolIsMissing(name)) return 0;
#endif
  return dlsym(handle, name);
}

#ifdef __cplusplus
}
#endif

#define dlsym(handle, name) SimDlsym((handle), (name))

#endif
