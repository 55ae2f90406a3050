// Runs a helper function of the test binary in a child process on the same device: the
// binary re-executes itself with "--tessarin-child <name> <args...>" and its main hands
// over to the helper registered under that name. Lets tests check cross-process behaviour
// without fork() (GNUstep does not survive fork without exec).
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

using ChildHelper = int (*)(int argc, char **argv);  // argv[0] is the helper name

struct ChildHelperRegistration {
  ChildHelperRegistration(const char *name, ChildHelper fn);
};

// Defines a helper: CHILD_HELPER(writePrefs) { ... return 0; }  (argc/argv available)
#define CHILD_HELPER(name)                                        \
  static int name(int argc, char **argv);                         \
  static ChildHelperRegistration name##Registration(#name, name); \
  static int name(int argc, char **argv)

// Call first thing in main: when the process was started as a child, runs the helper and
// returns true with its exit status in *status. A child may also be named by the
// environment variable below (for launchers that pass no arguments); it is cleared at once.
#define CHILD_HELPER_ENV "TESSARIN_CHILD_HELPER"
bool RunChildHelperIfRequested(int argc, char **argv, int *status);
// Path of the running test binary.
std::string SelfExecutablePath();

// Starts a helper in a child process (inherits the environment, hence the device). -1 on failure.
pid_t SpawnChild(const char *name, const std::vector<std::string> &args = {});
// Waits for a child; returns its exit status, or -1 when it did not exit normally within
// `timeout` seconds (it is then killed).
int WaitChild(pid_t pid, double timeout = 20.0);
// SpawnChild + WaitChild.
int RunChild(const char *name, const std::vector<std::string> &args = {}, double timeout = 20.0);
