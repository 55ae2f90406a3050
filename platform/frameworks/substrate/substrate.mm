// Method hooking on the Objective-C runtime.

#import <Foundation/Foundation.h>
#include <substrate.h>
#include <Simulator/Simulator.h>

#include <pthread.h>

static pthread_mutex_t gHookLock = PTHREAD_MUTEX_INITIALIZER;

static bool definesMethod(Class cls, SEL sel) {
  unsigned int count = 0;
  Method *methods = class_copyMethodList(cls, &count);
  bool found = false;
  for (unsigned int i = 0; i < count && !found; i++) found = sel_isEqual(method_getName(methods[i]), sel);
  free(methods);
  return found;
}

// "MSHookMessageEx -[Class selector]", "+[...]" for a class method, into the event log.
static void recordHook(Class cls, SEL message) {
  const char *name = cls != Nil ? class_getName(cls) : "nil";
  const char *selector = message != NULL ? sel_getName(message) : "NULL";
  char event[512];
  snprintf(event, sizeof event, "MSHookMessageEx %c[%s %s]", cls != Nil && class_isMetaClass(cls) ? '+' : '-', name,
           selector);
  SimEventLogAppend(event);
}

void MSHookMessageEx(Class _class, SEL message, IMP hook, IMP *old) {
  recordHook(_class, message);
  if (_class == Nil || message == NULL || hook == NULL) {
    if (old) *old = NULL;
    return;
  }
  pthread_mutex_lock(&gHookLock);
  Method method = class_getInstanceMethod(_class, message);
  if (method == NULL) {
    if (old) *old = NULL;
  } else if (definesMethod(_class, message)) {
    // The previous implementation is handed back before the hook can run.
    if (old) *old = method_getImplementation(method);
    method_setImplementation(method, hook);
  } else {
    if (old) *old = method_getImplementation(method);
    class_addMethod(_class, message, hook, method_getTypeEncoding(method));
  }
  pthread_mutex_unlock(&gHookLock);
}
