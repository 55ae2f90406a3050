/*
 * Foundation API that iOS has and GNUstep Base lacks; implemented by the platform library.
 * Pulled in through <CoreFoundation/CoreFoundation.h>, which <Foundation/Foundation.h> includes.
 */
#ifndef SIM_FOUNDATION_ADDITIONS_H
#define SIM_FOUNDATION_ADDITIONS_H

#ifdef __OBJC__
#import <Foundation/NSUserDefaults.h>
#import <Foundation/NSFileManager.h>

@interface NSUserDefaults (SimSuites)
/* Defaults of the preference domain `suiteName`, sharing the CFPreferences store. */
- (instancetype)initWithSuiteName:(NSString *)suiteName;
@end

@interface NSFileManager (SimSymbolicLinks)
/* The path a symbolic link holds, as written (nil with an error when `path` is no link). */
- (NSString *)destinationOfSymbolicLinkAtPath:(NSString *)path error:(NSError **)error;
@end
#endif

#endif
