// I/O Kit services from the device profile's "ioServices".

#import <Foundation/Foundation.h>
#include <IOKit/IOKitLib.h>
#include "Simulator/SimInternal.h"

#include <atomic>

const mach_port_t kIOMasterPortDefault = 0;
const mach_port_t kIOMainPortDefault = 0;

static std::atomic<unsigned> gMatchCount;

unsigned SimIOKitMatchCount(void) { return gMatchCount.load(); }

CFMutableDictionaryRef IOServiceMatching(const char *name) {
  if (name == NULL) return NULL;
  NSString *className = [NSString stringWithUTF8String:name];
  if (className == nil) return NULL;
  NSMutableDictionary *matching = [[NSMutableDictionary alloc] init];
  [matching setObject:className forKey:@"IOProviderClass"];
  return (CFMutableDictionaryRef)matching;
}

io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching) {
  gMatchCount++;
  if (matching == NULL) return 0;
  NSDictionary *dict = (NSDictionary *)matching;
  NSString *className = [dict objectForKey:@"IOProviderClass"];
  io_service_t service = 0;
  NSArray *services = SimProfileValue(@"ioServices", [NSArray class]);
  if ([className isKindOfClass:[NSString class]]) {
    NSUInteger index = [services indexOfObject:className];
    if (index != NSNotFound) service = (io_service_t)(0x1000 + index);  // stable, non-zero
  }
  [dict release];
  return service;
}

kern_return_t IOObjectRetain(io_object_t object) { return object ? KERN_SUCCESS : kIOReturnBadArgument; }

kern_return_t IOObjectRelease(io_object_t object) { return object ? KERN_SUCCESS : kIOReturnBadArgument; }
