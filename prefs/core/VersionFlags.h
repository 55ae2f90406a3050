// The system-version flags, set once by the start-up routine.
#pragma once
#import <Foundation/Foundation.h>
#include "core/SystemVersion.hpp"

// Process-wide; all clear until start-up sets them.
extern tessarin::SystemVersionFlags systemVersion;

// The system's version string, e.g. "Version 16.4 (Build 20E247)".
NSString *systemVersionString(void);

// The two start-up stages: iOS 17 to 13 and 11 first, then 10.2, 10 and 8.
void setModernVersionFlags(void);
void setLegacyVersionFlags(void);
