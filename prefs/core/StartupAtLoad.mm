// Runs the start-up routine as Settings loads the bundle. Deliberately free of
// Objective-C itself: it only calls into code whose classes are registered by then.
#import "core/Startup.h"

__attribute__((constructor)) static void startUpAtLoad(void) { tessarinStartUp(); }
