// File manager methods of iOS that GNUstep Base does not have.
#import <Foundation/Foundation.h>

#include <errno.h>
#include <limits.h>
#include <unistd.h>

@implementation NSFileManager (SimSymbolicLinks)
- (NSString *)destinationOfSymbolicLinkAtPath:(NSString *)path error:(NSError **)error {
  char target[PATH_MAX];
  const char *link = [path isKindOfClass:[NSString class]] ? [path fileSystemRepresentation] : NULL;
  ssize_t length = link != NULL ? readlink(link, target, sizeof target - 1) : -1;
  if (length < 0) {
    if (error != NULL)
      *error = [NSError errorWithDomain:NSPOSIXErrorDomain code:link != NULL ? errno : EINVAL userInfo:nil];
    return nil;
  }
  return [self stringWithFileSystemRepresentation:target length:(NSUInteger)length];
}
@end
