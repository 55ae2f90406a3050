// Biometric hardware, asked of the IOKit registry.
#pragma once
#import <Foundation/Foundation.h>

// Plain C entry points, so tools and tests can find them by name.
#ifdef __cplusplus
extern "C" {
#endif

// Set when a Face ID camera was found; written by both tests below.
extern BOOL hasPearlCam;
// Set once hasPearl() has asked IOKit.
extern BOOL hasSetPearl;

// True when the device has a biometric sensor (Touch ID or Face ID).
// The name is historical: the test is about sensors, not about the CPU.
BOOL iPhone64Bit(void);
// True when the device has Face ID hardware; asks IOKit on the first call only.
BOOL hasPearl(void);

#ifdef __cplusplus
}
#endif
