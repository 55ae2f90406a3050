// The root class answers +initialize, as on the device: a replacement installed on it with
// MSHookMessageEx then runs for the first initialisation of every class without its own.
// GNUstep's NSObject normally has one; where a runtime's root lacks it, an empty one is added.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>
#include <stdlib.h>

static void rootInitialize(id self, SEL _cmd) {}

__attribute__((constructor)) static void rootClassAnswersInitialize(void) {
  Class root = objc_getClass("NSObject");
  if (root == Nil) return;
  Class meta = object_getClass(root);
  unsigned int count = 0;
  Method *methods = class_copyMethodList(meta, &count);
  bool own = false;
  for (unsigned int i = 0; i < count && !own; i++) own = sel_isEqual(method_getName(methods[i]), @selector(initialize));
  free(methods);
  if (!own) class_addMethod(meta, @selector(initialize), (IMP)rootInitialize, "v@:");
}
