#import "core/Logging.h"
#import "core/Paths.h"
#import "core/PlatformAPI.h"
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <unistd.h>
#include "core/LogLine.hpp"

namespace {

MGCopyAnswerFunction copyAnswer = NULL;
bool lookedUpCopyAnswer = false;

std::string userAssignedDeviceName() {
  std::string name;
  if (copyAnswer == NULL) return name;
  CFPropertyListRef answer = copyAnswer((CFStringRef) @"UserAssignedDeviceName");
  if (answer == NULL) return name;
  id object = (id)answer;
  if ([object isKindOfClass:[NSString class]]) {
    const char *utf8 = [(NSString *)object UTF8String];
    if (utf8 != NULL) name = utf8;
  }
  CFRelease(answer);
  return name;
}

id (*originalExceptionInit)(id, SEL, NSString *, NSString *, NSDictionary *) = NULL;

id loggingExceptionInit(id self, SEL _cmd, NSString *name, NSString *reason, NSDictionary *userInfo) {
  NSLog(@"EXCEPTION WITH NAME %@ REASON %@ userinfo %@", name, reason, userInfo);
  FILE *file = fopen(devicePath("/tmp/TessarinCrashLog.txt").c_str(), "a");
  if (file != NULL) {
    NSString *line =
        [NSString stringWithFormat:@"EXCEPTION WITH NAME %@ REASON %@ userinfo %@\n", name, reason, userInfo];
    const char *bytes = [line UTF8String];
    if (bytes != NULL) fputs(bytes, file);
    fclose(file);
  }
  return originalExceptionInit(self, _cmd, name, reason, userInfo);
}

}  // namespace

void mylog(const char *message) {
  time_t now = time(NULL);
  struct tm local;
  localtime_r(&now, &local);
  FILE *file = fopen(devicePath([jbroot(@"/tmp/syslog") fileSystemRepresentation]).c_str(), "a");
  if (!lookedUpCopyAnswer) {
    copyAnswer = (MGCopyAnswerFunction)dlsym(RTLD_DEFAULT, "MGCopyAnswer");
    lookedUpCopyAnswer = true;
  }
  if (file == NULL) return;
  const char *program = [[[NSProcessInfo processInfo] processName] UTF8String];
  std::string line =
      tessarin::logLine(userAssignedDeviceName(), local, program ? program : "", getpid(), message ? message : "");
  fputs(line.c_str(), file);
  fclose(file);
}

void installExceptionLogger(void) {
  MSHookMessageEx([NSException class], @selector(initWithName:reason:userInfo:), (IMP)loggingExceptionInit,
                  (IMP *)&originalExceptionInit);
}
