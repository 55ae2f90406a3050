// The bundle's small log file and the crash log of exceptions.
#pragma once
#import <Foundation/Foundation.h>

// Plain C entry points, so tools and tests can find them by name.
#ifdef __cplusplus
extern "C" {
#endif

// Appends one line to the log file under the jail root; fails silently.
void mylog(const char *message);

// Logs every exception object created in this process, raised or not.
void installExceptionLogger(void);

#ifdef __cplusplus
}
#endif
