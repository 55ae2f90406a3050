/*
 * Method hooking as the jailbreak substrate offers it.
 */
#ifndef SUBSTRATE_H_
#define SUBSTRATE_H_

#ifdef __OBJC__
#include <objc/objc.h>
#include <objc/runtime.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __OBJC__
/* Replaces the implementation of `message` in `_class` (a metaclass for class methods) by
   `hook` and stores the implementation it had into *old (when old is not NULL). When the
   class only inherits the method, an override is added to it; the superclass is untouched.
   Unknown selectors leave everything as it is and store NULL. */
void MSHookMessageEx(Class _class, SEL message, IMP hook, IMP *old);
#endif

#ifdef __cplusplus
}
#endif

#endif
