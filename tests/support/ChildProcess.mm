#include "ChildProcess.h"

#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <map>
#include <string>

extern char **environ;

static const char *const kChildFlag = "--tessarin-child";

static std::map<std::string, ChildHelper> &helpers() {
  static std::map<std::string, ChildHelper> table;
  return table;
}

ChildHelperRegistration::ChildHelperRegistration(const char *name, ChildHelper fn) { helpers()[name] = fn; }

bool RunChildHelperIfRequested(int argc, char **argv, int *status) {
  const char *fromEnv = getenv(CHILD_HELPER_ENV);
  if (fromEnv != nullptr && fromEnv[0] != '\0') {
    std::string name = fromEnv;
    unsetenv(CHILD_HELPER_ENV);
    auto it = helpers().find(name);
    char *args[] = {const_cast<char *>(name.c_str()), nullptr};
    *status = it == helpers().end() ? 127 : it->second(1, args);
    return true;
  }
  if (argc < 3 || strcmp(argv[1], kChildFlag) != 0) return false;
  auto it = helpers().find(argv[2]);
  *status = it == helpers().end() ? 127 : it->second(argc - 2, argv + 2);
  return true;
}

std::string SelfExecutablePath() {
  char self[4096];
  ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1);
  if (n <= 0) return std::string();
  self[n] = '\0';
  return self;
}

pid_t SpawnChild(const char *name, const std::vector<std::string> &args) {
  std::string selfPath = SelfExecutablePath();
  if (selfPath.empty()) return -1;
  char *self = const_cast<char *>(selfPath.c_str());
  std::vector<char *> argv;
  argv.push_back(self);
  argv.push_back(const_cast<char *>(kChildFlag));
  argv.push_back(const_cast<char *>(name));
  for (const std::string &a : args) argv.push_back(const_cast<char *>(a.c_str()));
  argv.push_back(nullptr);
  pid_t pid = -1;
  if (posix_spawn(&pid, self, nullptr, nullptr, argv.data(), environ) != 0) return -1;
  return pid;
}

int WaitChild(pid_t pid, double timeout) {
  if (pid <= 0) return -1;
  struct timespec start;
  clock_gettime(CLOCK_MONOTONIC, &start);
  for (;;) {
    int status = 0;
    pid_t r = waitpid(pid, &status, WNOHANG);
    if (r == pid) return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (r < 0) return -1;
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    if ((now.tv_sec - start.tv_sec) + (now.tv_nsec - start.tv_nsec) / 1e9 > timeout) {
      kill(pid, SIGKILL);
      waitpid(pid, &status, 0);
      return -1;
    }
    usleep(2000);
  }
}

int RunChild(const char *name, const std::vector<std::string> &args, double timeout) {
  return WaitChild(SpawnChild(name, args), timeout);
}
