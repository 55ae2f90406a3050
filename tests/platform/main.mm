// Test runner of the stand-in frameworks; also the entry point of child helper processes.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include "ChildProcess.h"

int main(int argc, char **argv) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  int status = 0;
  if (!RunChildHelperIfRequested(argc, argv, &status)) {
    ::testing::InitGoogleTest(&argc, argv);
    status = RUN_ALL_TESTS();
  }
  [pool release];
  return status;
}
