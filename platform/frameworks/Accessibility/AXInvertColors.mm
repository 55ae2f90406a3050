// The Accessibility library's system-wide dark-mode query. The device's
// interface style is the profile's "darkMode".
#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#import "Simulator/SimInternal.h"

extern "C" __attribute__((visibility("default"))) Boolean AXInvertColorsIsSystemWideDarkModeEnabled(void) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  id value = SimProfileValue(@"darkMode", [NSNumber class]);
  Boolean dark = value != nil && [value boolValue];
  [pool release];
  return dark;
}
