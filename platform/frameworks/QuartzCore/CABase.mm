#import <QuartzCore/QuartzCore.h>

#include <time.h>

extern "C" CFTimeInterval CACurrentMediaTime(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return ts.tv_sec + ts.tv_nsec / 1e9;
}
