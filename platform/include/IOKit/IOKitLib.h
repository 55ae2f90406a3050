/*
 * The I/O Kit registry, the part that finds a service by class: the device profile says
 * which service classes the device has.
 */
#ifndef IOKIT_IOKITLIB_H
#define IOKIT_IOKITLIB_H

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

#ifndef MACH_PORT_NULL
typedef unsigned int mach_port_t;
typedef int kern_return_t;
#define MACH_PORT_NULL ((mach_port_t)0)
#endif
#ifndef KERN_SUCCESS
#define KERN_SUCCESS 0
#endif
#define kIOReturnSuccess KERN_SUCCESS
#define kIOReturnBadArgument ((kern_return_t)0xe00002c2)

typedef mach_port_t io_object_t;
typedef io_object_t io_service_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_iterator_t;

extern const mach_port_t kIOMasterPortDefault;
extern const mach_port_t kIOMainPortDefault;

/* A matching dictionary for services of class `name` (+1). */
CFMutableDictionaryRef IOServiceMatching(const char *name);
/* The first service that matches (0 when none); consumes one reference of `matching`. */
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
kern_return_t IOObjectRetain(io_object_t object);
kern_return_t IOObjectRelease(io_object_t object);

#ifdef __cplusplus
}
#endif

#endif
