// Functions the device's private libraries lack: the profile's "missingSymbols".

#import <Foundation/Foundation.h>
#include <dlfcn.h>
#include "Simulator/SimInternal.h"

extern "C" __attribute__((visibility("default"))) int SimSymbolIsMissing(const char *name) {
  if (name == NULL) return 0;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSArray *missing = SimProfileValue(@"missingSymbols", [NSArray class]);
  NSString *symbol = [NSString stringWithUTF8String:name];
  int found = symbol != nil && [missing containsObject:symbol];
  [pool release];
  return found;
}
