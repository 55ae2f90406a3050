// The process's ordered record of what it asked of the platform where only the order
// tells whether it was right: method hooks installed, notify tokens registered, lines
// logged with NSLog, reads of the system version, bundles loaded by the Settings host.

#import <Foundation/Foundation.h>
#include "Simulator/SimInternal.h"

#include <pthread.h>
#include <unistd.h>

static pthread_mutex_t gEventLock = PTHREAD_MUTEX_INITIALIZER;
static NSMutableArray *gEvents;
// A long interactive session must not grow without end; tests read the beginning.
static const NSUInteger kMaxEvents = 10000;

void SimEventLogAppend(const char *event) {
  if (event == NULL) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  NSString *text = [NSString stringWithUTF8String:event];
  pthread_mutex_lock(&gEventLock);
  if (gEvents == nil) gEvents = [[NSMutableArray alloc] init];
  if (text != nil && [gEvents count] < kMaxEvents) [gEvents addObject:text];
  pthread_mutex_unlock(&gEventLock);
  [pool release];
}

NSArray *SimEventLog(void) {
  pthread_mutex_lock(&gEventLock);
  NSArray *events = gEvents ? [NSArray arrayWithArray:gEvents] : [NSArray array];
  pthread_mutex_unlock(&gEventLock);
  return events;
}

// NSLog: the line goes to standard error as before, and its message into the record.
static void recordingLogHandler(NSString *line) {
  NSData *bytes = [line dataUsingEncoding:NSUTF8StringEncoding];
  if (bytes != nil) {
    const char *p = (const char *)[bytes bytes];
    size_t left = [bytes length];
    while (left > 0) {
      ssize_t n = write(STDERR_FILENO, p, left);
      if (n <= 0) break;
      p += n;
      left -= (size_t)n;
    }
  }
  // GNUstep prefixes "date time process[pid:thread] " and ends the line with a newline.
  NSString *message = line;
  NSRange prefixEnd = [message rangeOfString:@"] "];
  if (prefixEnd.location != NSNotFound) message = [message substringFromIndex:NSMaxRange(prefixEnd)];
  if ([message hasSuffix:@"\n"]) message = [message substringToIndex:[message length] - 1];
  SimEventLogAppend([[@"NSLog " stringByAppendingString:message] UTF8String]);
}

@interface SimEventLogLoader : NSObject
@end

@implementation SimEventLogLoader
+ (void)load {
  _NSLog_printf_handler = recordingLogHandler;
}
@end
