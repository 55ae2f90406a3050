// System frameworks the device loads by path (PassKit): the stand-in's built framework
// bundles are linked into every device tree under /System/Library/Frameworks, except those
// the profile lists under "absentFrameworks".
#import <Foundation/Foundation.h>
#include <Simulator/SimSystemFiles.h>
#import "Simulator/SimInternal.h"

#include <unistd.h>

#ifndef TESSARIN_SYSTEM_FRAMEWORKS_DIR
#define TESSARIN_SYSTEM_FRAMEWORKS_DIR ""
#endif

extern "C" int SimInstallSystemFrameworks(const char *root, NSDictionary *profile) {
  if (root == NULL || root[0] != '/') return -1;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *built = [NSString stringWithUTF8String:TESSARIN_SYSTEM_FRAMEWORKS_DIR];
  NSArray *absent = [profile objectForKey:@"absentFrameworks"];
  if (![absent isKindOfClass:[NSArray class]]) absent = [NSArray array];
  NSString *target = [[NSString stringWithUTF8String:root] stringByAppendingString:@"/System/Library/Frameworks"];
  int result = 0;
  NSArray *names = [built length] ? [[NSFileManager defaultManager] contentsOfDirectoryAtPath:built error:NULL] : nil;
  for (NSString *name in names) {
    if (![[name pathExtension] isEqualToString:@"framework"]) continue;
    if ([absent containsObject:[name stringByDeletingPathExtension]]) continue;
    NSString *link = [target stringByAppendingPathComponent:name];
    unlink([link fileSystemRepresentation]);
    if (!SimMakeDirectories(target) || symlink([[built stringByAppendingPathComponent:name] fileSystemRepresentation],
                                               [link fileSystemRepresentation]) != 0)
      result = -1;
  }
  [pool release];
  return result;
}
