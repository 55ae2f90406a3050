// Scenario tests: the real bundle in the simulated Settings process, with a simulated
// SpringBoard process. Also the entry point of child helper processes.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include "ChildProcess.h"

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  // Sorting and case-insensitive comparisons follow the locale, as on a device set to English
  // (whatever the calling shell's locale: C.UTF-8 compares case-sensitively).
  setenv("LANG", "en_US.UTF-8", 1);
  int status = 0;
  if (!RunChildHelperIfRequested(argc, argv, &status)) {
    ::testing::InitGoogleTest(&argc, argv);
    status = RUN_ALL_TESTS();
  }
  [pool release];
  return status;
}
