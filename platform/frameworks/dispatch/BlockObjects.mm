// Copied blocks keep the objects they capture, as on iOS. Debian's blocks runtime
// leaves retaining to a hook only Apple's Objective-C runtime installs, so a block
// handed to the main queue would otherwise outlive what it uses. These two functions
// take the plain object case and hand every other case (__block variables, nested
// blocks) to the blocks runtime's own implementation.
#import <Foundation/Foundation.h>
#include <dlfcn.h>

namespace {

enum {
  kFieldIsObject = 3,
  kFieldIsBlock = 7,
  kFieldIsByref = 8,
  kByrefCaller = 128,
};

bool isPlainObject(int flags) {
  return (flags & kByrefCaller) == 0 && (flags & kFieldIsByref) != kFieldIsByref &&
         (flags & kFieldIsBlock) != kFieldIsBlock && (flags & kFieldIsObject) == kFieldIsObject;
}

template <typename Function>
Function runtimeFunction(const char *name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" void _Block_object_assign(void *destination, const void *object, const int flags) {
  if (isPlainObject(flags)) {
    *(const void **)destination = object ? [(id)object retain] : nil;
    return;
  }
  typedef void (*Assign)(void *, const void *, const int);
  static Assign next = runtimeFunction<Assign>("_Block_object_assign");
  if (next) next(destination, object, flags);
}

extern "C" void _Block_object_dispose(const void *object, const int flags) {
  if (isPlainObject(flags)) {
    [(id)object release];
    return;
  }
  typedef void (*Dispose)(const void *, const int);
  static Dispose next = runtimeFunction<Dispose>("_Block_object_dispose");
  if (next) next(object, flags);
}
