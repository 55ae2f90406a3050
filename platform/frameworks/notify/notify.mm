// Darwin notifications across the processes of one simulated device.
//
// Everything shared lives under <root>/.simulator/notify/:
//   state/<name>   the name's 64-bit state (8 bytes)
//   count/<name>   how many times the name was posted (decimal text)
//   posts.log      one line per post: "<pid> <name>"
//   peers/<pid>    one marker per process that observes names
// A process that observes names binds a datagram socket in the abstract namespace, named
// from the device root and its pid; notify_post sends the name to every peer (itself
// included). A background thread receives and hands the name to the main run loop, where
// the handlers run. Peers whose socket is gone (dead processes) are dropped on the way.

#import <Foundation/Foundation.h>
#include <notify.h>
#include "Simulator/SimInternal.h"

#include <Block.h>
#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <map>
#include <string>

namespace {

struct Registration {
  std::string name;
  uint64_t lastSeenCount = UINT64_MAX;  // never checked
  notify_handler_t handler = nullptr;   // copied; null for check/plain tokens
  dispatch_queue_t queue = nullptr;
};

pthread_mutex_t gNotifyLock = PTHREAD_RECURSIVE_MUTEX_INITIALIZER_NP;
std::map<int, Registration> *gTokens;
int gNextToken = 1;
// Without a device, state and counts live in this process only.
std::map<std::string, uint64_t> *gLocalState;
std::map<std::string, uint64_t> *gLocalCounts;
// The receiving socket of this process, and the device generation it belongs to.
int gSocket = -1;
unsigned gSocketGeneration;

std::map<int, Registration> &tokens() {
  if (!gTokens) gTokens = new std::map<int, Registration>();
  return *gTokens;
}

std::map<std::string, uint64_t> &localState() {
  if (!gLocalState) gLocalState = new std::map<std::string, uint64_t>();
  return *gLocalState;
}

std::map<std::string, uint64_t> &localCounts() {
  if (!gLocalCounts) gLocalCounts = new std::map<std::string, uint64_t>();
  return *gLocalCounts;
}

std::string rootString() {
  const char *root = SimDeviceRoot();
  return root ? std::string(root) : std::string();
}

std::string notifyDir(const std::string &root) { return root + "/.simulator/notify"; }

void makeDir(const std::string &path) { SimMakeDirectories([NSString stringWithUTF8String:path.c_str()]); }

// File name for a notification name: safe characters kept, the rest escaped as %XX.
std::string fileNameFor(const char *name) {
  std::string out;
  for (const unsigned char *p = (const unsigned char *)name; *p; p++) {
    unsigned char c = *p;
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
        c == '_') {
      out += (char)c;
    } else {
      char buf[4];
      snprintf(buf, sizeof buf, "%%%02X", c);
      out += buf;
    }
  }
  if (out.empty() || out == "." || out == "..") out = "%" + out;
  if (out.size() > 200) {
    uint64_t h = 1469598103934665603ull;
    for (const unsigned char *p = (const unsigned char *)name; *p; p++) h = (h ^ *p) * 1099511628211ull;
    char buf[24];
    snprintf(buf, sizeof buf, "#%016llx", (unsigned long long)h);
    out = out.substr(0, 180) + buf;
  }
  return out;
}

uint64_t hashString(const std::string &s) {
  uint64_t h = 1469598103934665603ull;
  for (unsigned char c : s) h = (h ^ c) * 1099511628211ull;
  return h;
}

socklen_t peerAddress(const std::string &root, long pid, struct sockaddr_un *addr) {
  memset(addr, 0, sizeof *addr);
  addr->sun_family = AF_UNIX;
  int n = snprintf(addr->sun_path + 1, sizeof addr->sun_path - 1, "tessarin-notify-%016llx-%ld",
                   (unsigned long long)hashString(root), pid);
  return (socklen_t)(offsetof(struct sockaddr_un, sun_path) + 1 + n);
}

// Reads a locked file's whole contents.
std::string readLocked(int fd) {
  std::string out;
  char buf[64];
  lseek(fd, 0, SEEK_SET);
  ssize_t n;
  while ((n = read(fd, buf, sizeof buf)) > 0) out.append(buf, (size_t)n);
  return out;
}

void writeLocked(int fd, const void *bytes, size_t length) {
  if (ftruncate(fd, 0) != 0) return;
  if (pwrite(fd, bytes, length, 0) < 0) return;
}

int openLocked(const std::string &path, int lockType) {
  int fd = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return -1;
  while (flock(fd, lockType) != 0 && errno == EINTR) {}
  return fd;
}

void closeLocked(int fd) {
  if (fd < 0) return;
  flock(fd, LOCK_UN);
  close(fd);
}

uint64_t postCount(const char *name) {
  std::string root = rootString();
  if (root.empty()) {
    pthread_mutex_lock(&gNotifyLock);
    uint64_t n = localCounts()[name];
    pthread_mutex_unlock(&gNotifyLock);
    return n;
  }
  std::string path = notifyDir(root) + "/count/" + fileNameFor(name);
  int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return 0;
  while (flock(fd, LOCK_SH) != 0 && errno == EINTR) {}
  std::string text = readLocked(fd);
  closeLocked(fd);
  return strtoull(text.c_str(), nullptr, 10);
}

void recordPost(const std::string &root, const char *name) {
  std::string dir = notifyDir(root);
  makeDir(dir + "/count");
  int fd = openLocked(dir + "/count/" + fileNameFor(name), LOCK_EX);
  if (fd >= 0) {
    unsigned long long n = strtoull(readLocked(fd).c_str(), nullptr, 10) + 1;
    char buf[32];
    int len = snprintf(buf, sizeof buf, "%llu\n", n);
    writeLocked(fd, buf, (size_t)len);
    closeLocked(fd);
  }
  int log = open((dir + "/posts.log").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  if (log >= 0) {
    std::string line = std::to_string((long)getpid()) + " " + name + "\n";
    if (write(log, line.data(), line.size()) < 0) {}
    close(log);
  }
}

}  // namespace

// MARK: - Delivery on the main run loop

@interface SimNotifyDelivery : NSObject
+ (void)deliver:(NSArray *)nameAndGeneration;
- (void)receivedEvent:(void *)data type:(RunLoopEventType)type extra:(void *)extra forMode:(NSString *)mode;
@end

@implementation SimNotifyDelivery

+ (void)deliver:(NSArray *)nameAndGeneration {
  NSString *name = [nameAndGeneration objectAtIndex:0];
  unsigned generation = [[nameAndGeneration objectAtIndex:1] unsignedIntValue];
  if (generation != SimDeviceGeneration()) return;  // posted on a device no longer in use
  std::string key = [name UTF8String];
  pthread_mutex_lock(&gNotifyLock);
  std::map<int, Registration> snapshot;
  for (auto &entry : tokens())
    if (entry.second.handler && entry.second.name == key) snapshot[entry.first] = entry.second;
  pthread_mutex_unlock(&gNotifyLock);
  for (auto &entry : snapshot) {
    pthread_mutex_lock(&gNotifyLock);
    auto it = tokens().find(entry.first);
    notify_handler_t handler = nullptr;
    if (it != tokens().end() && it->second.handler) handler = Block_copy(it->second.handler);
    dispatch_queue_t queue = it != tokens().end() ? it->second.queue : nullptr;
    pthread_mutex_unlock(&gNotifyLock);
    if (!handler) continue;  // cancelled by an earlier handler
    int token = entry.first;
    if (queue == nullptr || queue == dispatch_get_main_queue()) {
      NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
      handler(token);
      [pool release];
    } else {
      dispatch_async(queue, ^{ handler(token); });
    }
    Block_release(handler);
  }
}

// The socket is watched by the main run loop itself: posts arrive on the main thread
// with no thread of ours in between (a receiving thread that hands names over with
// performSelectorOnMainThread: can deadlock against class initialisation on the main
// thread under GCC's runtime).
- (void)receivedEvent:(void *)data type:(RunLoopEventType)type extra:(void *)extra forMode:(NSString *)mode {
  int fd = (int)(intptr_t)data;
  char buf[1024];
  ssize_t n;
  while ((n = recv(fd, buf, sizeof buf - 1, MSG_DONTWAIT)) > 0) {
    buf[n] = '\0';
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    NSString *name = [NSString stringWithUTF8String:buf];
    if (name) {
      pthread_mutex_lock(&gNotifyLock);
      bool current = gSocket == fd;
      unsigned generation = gSocketGeneration;
      pthread_mutex_unlock(&gNotifyLock);
      if (current) {
        [SimNotifyDelivery deliver:[NSArray arrayWithObjects:name, [NSNumber numberWithUnsignedInt:generation], nil]];
      }
    }
    [pool release];
  }
}
@end

namespace {

// Adds the socket to, or removes it from, the main run loop's watched descriptors.
void watchSocket(int fd, bool watch) {
  NSRunLoop *loop = [NSRunLoop mainRunLoop];
  static id watcher = [[SimNotifyDelivery alloc] init];
  if (watch) {
    [loop addEvent:(void *)(intptr_t)fd type:ET_RDESC watcher:watcher forMode:NSDefaultRunLoopMode];
  } else {
    [loop removeEvent:(void *)(intptr_t)fd type:ET_RDESC forMode:NSDefaultRunLoopMode all:YES];
  }
}

// Binds this process's socket on the device in use and starts receiving. Caller holds gNotifyLock.
void ensureListening() {
  std::string root = rootString();
  if (gSocket >= 0 || root.empty()) return;
  int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  if (fd < 0) return;
  struct sockaddr_un addr;
  socklen_t len = peerAddress(root, (long)getpid(), &addr);
  // A socket of this process on the same root may still be closing after a device switch.
  int attempts = 0;
  while (bind(fd, (struct sockaddr *)&addr, len) != 0) {
    if (errno != EADDRINUSE || ++attempts > 100) {
      close(fd);
      return;
    }
    usleep(5000);
  }
  int size = 1 << 20;
  setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &size, sizeof size);
  std::string peers = notifyDir(root) + "/peers";
  makeDir(peers);
  int marker = open((peers + "/" + std::to_string((long)getpid())).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
  if (marker >= 0) close(marker);
  gSocket = fd;
  gSocketGeneration = SimDeviceGeneration();
  watchSocket(fd, true);
}

void sendToPeers(const std::string &root, const char *name) {
  std::string peers = notifyDir(root) + "/peers";
  DIR *dir = opendir(peers.c_str());
  if (!dir) return;
  int fd = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  struct dirent *entry;
  while (fd >= 0 && (entry = readdir(dir)) != nullptr) {
    char *end = nullptr;
    long pid = strtol(entry->d_name, &end, 10);
    if (end == entry->d_name || *end != '\0' || pid <= 0) continue;
    struct sockaddr_un addr;
    socklen_t len = peerAddress(root, pid, &addr);
    if (sendto(fd, name, strlen(name), MSG_DONTWAIT | MSG_NOSIGNAL, (struct sockaddr *)&addr, len) < 0 &&
        (errno == ECONNREFUSED || errno == ENOENT)) {
      unlink((peers + "/" + entry->d_name).c_str());  // that process is gone
    }
  }
  if (fd >= 0) close(fd);
  closedir(dir);
}

// How often this process registered each name, for tests (never reset).
std::map<std::string, unsigned> &registrationCounts() {
  static std::map<std::string, unsigned> *counts = new std::map<std::string, unsigned>();
  return *counts;
}

uint32_t registerToken(const char *name, int *outToken, notify_handler_t handler, dispatch_queue_t queue) {
  if (name == nullptr || outToken == nullptr) return NOTIFY_STATUS_NULL_INPUT;
  pthread_mutex_lock(&gNotifyLock);
  SimDeviceRoot();
  int token = gNextToken++;
  Registration &r = tokens()[token];
  r.name = name;
  registrationCounts()[name]++;
  if (handler) {
    r.handler = Block_copy(handler);
    r.queue = queue;
    ensureListening();
  }
  pthread_mutex_unlock(&gNotifyLock);
  *outToken = token;
  return NOTIFY_STATUS_OK;
}

bool tokenName(int token, std::string *name) {
  pthread_mutex_lock(&gNotifyLock);
  auto it = tokens().find(token);
  bool found = it != tokens().end();
  if (found) *name = it->second.name;
  pthread_mutex_unlock(&gNotifyLock);
  return found;
}

}  // namespace

void SimNotifyDeviceChanged(void) {
  pthread_mutex_lock(&gNotifyLock);
  // Plain tokens only name a state, which every device has: they stay valid, as a
  // process's tokens do on a device. Tokens that deliver posts belong to the old device.
  for (auto it = tokens().begin(); it != tokens().end();) {
    if (it->second.handler) {
      Block_release(it->second.handler);
      it = tokens().erase(it);
    } else {
      it->second.lastSeenCount = UINT64_MAX;
      ++it;
    }
  }
  localState().clear();
  localCounts().clear();
  if (gSocket >= 0) {
    watchSocket(gSocket, false);
    close(gSocket);
  }
  gSocket = -1;
  pthread_mutex_unlock(&gNotifyLock);
}

unsigned SimNotifyRegistrationCount(const char *name) {
  if (name == nullptr) return 0;
  pthread_mutex_lock(&gNotifyLock);
  unsigned count = registrationCounts()[name];
  pthread_mutex_unlock(&gNotifyLock);
  return count;
}

unsigned SimNotifyPostCount(const char *name) { return name ? (unsigned)postCount(name) : 0; }

uint32_t notify_post(const char *name) {
  if (name == nullptr) return NOTIFY_STATUS_NULL_INPUT;
  std::string root = rootString();
  if (root.empty()) {
    pthread_mutex_lock(&gNotifyLock);
    localCounts()[name]++;
    pthread_mutex_unlock(&gNotifyLock);
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    NSString *nsName = [NSString stringWithUTF8String:name];
    if (nsName) {
      NSArray *message = [NSArray arrayWithObjects:nsName, [NSNumber numberWithUnsignedInt:SimDeviceGeneration()], nil];
      SimPerformOnMainLoop([SimNotifyDelivery class], @selector(deliver:), message);
    }
    [pool release];
    return NOTIFY_STATUS_OK;
  }
  recordPost(root, name);
  sendToPeers(root, name);
  return NOTIFY_STATUS_OK;
}

// "notify_register_check NAME" and the like, into the event log.
static void recordRegistration(const char *call, const char *name) {
  std::string event(call);
  event += ' ';
  event += name ? name : "(null)";
  SimEventLogAppend(event.c_str());
}

uint32_t notify_register_check(const char *name, int *out_token) {
  recordRegistration("notify_register_check", name);
  return registerToken(name, out_token, nullptr, nullptr);
}

uint32_t notify_register_plain(const char *name, int *out_token) {
  recordRegistration("notify_register_plain", name);
  return registerToken(name, out_token, nullptr, nullptr);
}

uint32_t notify_register_dispatch(const char *name, int *out_token, dispatch_queue_t queue, notify_handler_t handler) {
  recordRegistration("notify_register_dispatch", name);
  if (handler == nullptr) return NOTIFY_STATUS_NULL_INPUT;
  return registerToken(name, out_token, handler, queue);
}

uint32_t notify_check(int token, int *check) {
  if (check == nullptr) return NOTIFY_STATUS_NULL_INPUT;
  std::string name;
  if (!tokenName(token, &name)) return NOTIFY_STATUS_INVALID_TOKEN;
  uint64_t count = postCount(name.c_str());
  pthread_mutex_lock(&gNotifyLock);
  auto it = tokens().find(token);
  if (it != tokens().end()) {
    *check = (it->second.lastSeenCount == UINT64_MAX || it->second.lastSeenCount != count) ? 1 : 0;
    it->second.lastSeenCount = count;
  }
  pthread_mutex_unlock(&gNotifyLock);
  return NOTIFY_STATUS_OK;
}

uint32_t notify_cancel(int token) {
  pthread_mutex_lock(&gNotifyLock);
  auto it = tokens().find(token);
  uint32_t status = NOTIFY_STATUS_INVALID_TOKEN;
  if (it != tokens().end()) {
    if (it->second.handler) Block_release(it->second.handler);
    tokens().erase(it);
    status = NOTIFY_STATUS_OK;
  }
  pthread_mutex_unlock(&gNotifyLock);
  return status;
}

bool notify_is_valid_token(int val_token) {
  std::string name;
  return tokenName(val_token, &name);
}

uint32_t notify_set_state(int token, uint64_t state64) {
  std::string name;
  if (!tokenName(token, &name)) return NOTIFY_STATUS_INVALID_TOKEN;
  std::string root = rootString();
  if (root.empty()) {
    pthread_mutex_lock(&gNotifyLock);
    localState()[name] = state64;
    pthread_mutex_unlock(&gNotifyLock);
    return NOTIFY_STATUS_OK;
  }
  std::string dir = notifyDir(root) + "/state";
  makeDir(dir);
  int fd = openLocked(dir + "/" + fileNameFor(name.c_str()), LOCK_EX);
  if (fd < 0) return NOTIFY_STATUS_FAILED;
  writeLocked(fd, &state64, sizeof state64);
  closeLocked(fd);
  return NOTIFY_STATUS_OK;
}

uint32_t notify_get_state(int token, uint64_t *state64) {
  if (state64 == nullptr) return NOTIFY_STATUS_NULL_INPUT;
  std::string name;
  if (!tokenName(token, &name)) return NOTIFY_STATUS_INVALID_TOKEN;
  *state64 = 0;
  std::string root = rootString();
  if (root.empty()) {
    pthread_mutex_lock(&gNotifyLock);
    *state64 = localState()[name];
    pthread_mutex_unlock(&gNotifyLock);
    return NOTIFY_STATUS_OK;
  }
  std::string path = notifyDir(root) + "/state/" + fileNameFor(name.c_str());
  int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return NOTIFY_STATUS_OK;  // never set: 0
  while (flock(fd, LOCK_SH) != 0 && errno == EINTR) {}
  std::string bytes = readLocked(fd);
  closeLocked(fd);
  if (bytes.size() == sizeof(uint64_t)) memcpy(state64, bytes.data(), sizeof(uint64_t));
  return NOTIFY_STATUS_OK;
}
