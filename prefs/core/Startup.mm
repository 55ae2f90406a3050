#import "core/Startup.h"
#import "core/PlatformAPI.h"
#import "core/Logging.h"
#import "core/MessageTransport.h"
#import "core/VersionFlags.h"
#include <string.h>

namespace {

void (*platformInitialize)(id, SEL) = NULL;
bool glyphHooksInstalled = false;

// Runs for each class as it initialises; PassKit's glyph view gets its colour hooks then.
void initializeWatchingForGlyphView(id self, SEL _cmd) {
  if (!glyphHooksInstalled && strcmp(class_getName((Class)self), "PKGlyphView") == 0) {
    glyphHooksInstalled = true;
    installGlyphColorHooks((Class)self);
  }
  if (platformInitialize != NULL) platformInitialize(self, _cmd);
}

}  // namespace

void tessarinStartUp(void) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  installExceptionLogger();
  installMessageTransport();
  dlopen("/usr/lib/libsubstrate.dylib", RTLD_NOW);
  setModernVersionFlags();
  NSLog(@"Starting up in settings...");
  MSHookMessageEx(object_getClass([NSObject class]), @selector(initialize), (IMP)initializeWatchingForGlyphView,
                  (IMP *)&platformInitialize);
  setLegacyVersionFlags();
  registerTransportSignal();
  [pool drain];
}
