// Scenario tests: the real bundle in the simulated Settings process, with a simulated
// SpringBoard process. Also the entry point of child helper processes.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include "ChildProcess.h"

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  // Nothing here sets the locale: the stand-in compares as the device's language says, and
  // the tests must pass whatever the calling shell's LANG is (tools/test.sh runs them under C.UTF-8, as a fresh container has it).
  int status = 0;
  if (!RunChildHelperIfRequested(argc, argv, &status)) {
    ::testing::InitGoogleTest(&argc, argv);
    status = RUN_ALL_TESTS();
  }
  [pool release];
  return status;
}
