// Starting and stopping the simulated SpringBoard process on the device in use.

#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <stdio.h>
#include "SimInternal.h"

#include <errno.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

extern char **environ;

static double monotonicSeconds(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return ts.tv_sec + ts.tv_nsec / 1e9;
}

// Waits up to `timeout` seconds for the child to end; true when it did (and was reaped).
static bool waitForExit(pid_t pid, double timeout) {
  double limit = monotonicSeconds() + timeout;
  for (;;) {
    int status;
    pid_t r = waitpid(pid, &status, WNOHANG);
    if (r == pid || (r < 0 && errno == ECHILD)) return true;
    if (monotonicSeconds() > limit) return false;
    usleep(5000);
  }
}

pid_t SimSpringBoardStartWithin(const char *path, double timeout) {
  const char *root = SimDeviceRoot();
  if (path == NULL || root == NULL) return -1;
  setenv(SIM_DEVICE_ROOT_ENV, root, 1);  // the child runs on this device
  unsigned readyBefore = SimNotifyPostCount(SIM_SPRINGBOARD_READY_NOTIFICATION);
  char *const argv[] = {(char *)path, NULL};
  pid_t pid = -1;
  if (posix_spawn(&pid, path, NULL, NULL, argv, environ) != 0) return -1;
  double limit = monotonicSeconds() + timeout;
  while (SimNotifyPostCount(SIM_SPRINGBOARD_READY_NOTIFICATION) <= readyBefore) {
    int status;
    if (waitpid(pid, &status, WNOHANG) == pid) return -1;  // died before it was ready
    if (monotonicSeconds() > limit) {
      fprintf(stderr, "simulated SpringBoard %d was not ready after %.0f s; stopping it\n", (int)pid, timeout);
      SimSpringBoardStop(pid);
      return -1;
    }
    usleep(5000);
  }
  return pid;
}

pid_t SimSpringBoardStart(const char *path) {
  // Generous: a sanitized build on a busy machine takes seconds to start.
  return SimSpringBoardStartWithin(path, 30.0);
}

void SimSpringBoardStop(pid_t pid) {
  if (pid <= 0) return;
  if (kill(pid, SIGTERM) != 0 && errno == ESRCH) {
    waitpid(pid, NULL, WNOHANG);
    return;
  }
  if (!waitForExit(pid, 2.0)) {
    kill(pid, SIGKILL);
    waitpid(pid, NULL, 0);
  }
}
