/*
 * The few IOKit calls the bundle makes, for an iOS SDK that ships the IOKit framework
 * without its headers. Used only when <IOKit/IOKitLib.h> is not available.
 */
#ifndef TESSARIN_IOS_IOKIT_DECLARATIONS_H
#define TESSARIN_IOS_IOKIT_DECLARATIONS_H

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef mach_port_t io_object_t;
typedef io_object_t io_service_t;

// MACH_PORT_NULL; exported by every system the bundle runs on (the newer
// kIOMainPortDefault exists only from iOS 15).
extern const mach_port_t kIOMasterPortDefault;

CFMutableDictionaryRef IOServiceMatching(const char *name) CF_RETURNS_RETAINED;
// Consumes one reference to `matching`.
io_service_t IOServiceGetMatchingService(mach_port_t masterPort, CFDictionaryRef matching CF_RELEASES_ARGUMENT);
kern_return_t IOObjectRelease(io_object_t object);

#ifdef __cplusplus
}
#endif

#endif
