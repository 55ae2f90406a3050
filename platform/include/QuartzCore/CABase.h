#ifndef QUARTZCORE_CABASE_H
#define QUARTZCORE_CABASE_H

#import <Foundation/Foundation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CoreGraphics.h>
#include <math.h>

#ifdef __cplusplus
#define CA_EXTERN extern "C"
#else
#define CA_EXTERN extern
#endif

/* Current media time in seconds (a monotonic clock). */
CA_EXTERN CFTimeInterval CACurrentMediaTime(void);

#endif
