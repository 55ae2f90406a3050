#include "logs/LogDirectory.hpp"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::logs {

namespace {

EntryKind kindOfMode(mode_t mode) {
  if (S_ISREG(mode)) return EntryKind::RegularFile;
  if (S_ISLNK(mode)) return EntryKind::SymbolicLink;
  return EntryKind::Other;
}

// Up to `limit` bytes from the start of an open file.
std::string readHead(int file, std::size_t limit) {
  std::string bytes(limit, '\0');
  std::size_t length = 0;
  while (length < limit) {
    const ssize_t got = read(file, &bytes[length], limit - length);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    length += static_cast<std::size_t>(got);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace

LogDirectory::LogDirectory(const std::string &path, std::string (*fileSystemPath)(const char *))
    : path_(path),
      fileSystemPath_(fileSystemPath),
      fd_(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)) {}

LogDirectory::~LogDirectory() {
  if (fd_ >= 0) close(fd_);
}

std::vector<std::string> LogDirectory::entries() const {
  std::vector<std::string> names;
  const int listing = fd_ >= 0 ? dup(fd_) : -1;
  DIR *directory = listing >= 0 ? fdopendir(listing) : nullptr;
  if (directory == nullptr) {
    if (listing >= 0) close(listing);
    return names;
  }
  while (const dirent *entry = readdir(directory)) {
    if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) continue;
    names.emplace_back(entry->d_name);
  }
  closedir(directory);
  return names;
}

EntryKind LogDirectory::kindOf(const std::string &file) const {
  struct stat about;
  if (fd_ < 0 || !isPlainFileName(file) || fstatat(fd_, file.c_str(), &about, AT_SYMLINK_NOFOLLOW) != 0)
    return EntryKind::Missing;
  return kindOfMode(about.st_mode);
}

int LogDirectory::openRegularFile(const std::string &file, EntryKind *kind) const {
  *kind = EntryKind::Missing;
  if (fd_ < 0 || !isPlainFileName(file)) return -1;
  // O_NONBLOCK: opening a FIFO for reading waits for a writer otherwise. It changes
  // nothing for a regular file.
  const int opened = openat(fd_, file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (opened < 0) {
    *kind = kindOf(file);  // a log that cannot be read is still a log
    return -1;
  }
  struct stat about;
  *kind = fstat(opened, &about) == 0 ? kindOfMode(about.st_mode) : EntryKind::Other;
  if (*kind == EntryKind::RegularFile) return opened;
  close(opened);
  return -1;
}

std::optional<std::string> LogDirectory::latestLinkFile() const {
  if (fd_ < 0) return std::nullopt;
  char target[PATH_MAX];
  const ssize_t length = readlinkat(fd_, std::string(kLatestLinkName).c_str(), target, sizeof target - 1);
  if (length <= 0) return std::nullopt;
  target[length] = '\0';
  // Containment is decided on real paths: on the device /var is itself a link, and a
  // target may climb out of the directory and back in through "..".
  char realDirectory[PATH_MAX];
  if (realpath(path_.c_str(), realDirectory) == nullptr || !holds(realDirectory)) return std::nullopt;
  const std::string targetPath = target[0] == '/' ? fileSystemPath_(target) : std::string(realDirectory) + "/" + target;
  char resolved[PATH_MAX];
  if (realpath(targetPath.c_str(), resolved) == nullptr) return std::nullopt;  // gone, or a loop
  return fileInDirectory(resolved, realDirectory);
}

void LogDirectory::remove(const std::string &file) const {
  if (mayDelete(file, kindOf(file))) unlinkat(fd_, file.c_str(), 0);
}

// Whether a path names the directory the descriptor holds.
bool LogDirectory::holds(const char *path) const {
  struct stat named, held;
  return stat(path, &named) == 0 && fstat(fd_, &held) == 0 && named.st_dev == held.st_dev &&
         named.st_ino == held.st_ino;
}

std::vector<ListedLog> listedLogs(const LogDirectory &directory) {
  std::vector<LogEntry> entries;
  for (std::string &file : directory.entries()) {
    // Before anything is opened: the latest link (or whatever is named like it) is no log.
    if (isLatestName(file)) continue;
    const uint64_t timestamp = logTimestamp(file);
    entries.push_back({std::move(file), timestamp});
  }
  std::vector<ListedLog> logs;
  for (std::string &file : newestFirst(std::move(entries))) {
    EntryKind kind;
    const int log = directory.openRegularFile(file, &kind);
    std::optional<std::string> subtitle;
    if (log >= 0) {
      subtitle = logSubtitle(readHead(log, kHeadBytes));
      close(log);
    }
    if (isListedLog(file, kind)) logs.push_back({std::move(file), std::move(subtitle)});
  }
  return logs;
}

std::optional<ViewedLog> viewedLog(const LogDirectory &directory, std::string_view rowFile) {
  const std::optional<std::string> file = fileToView(rowFile, directory.latestLinkFile());
  if (!file) return std::nullopt;
  EntryKind kind;
  const int log = directory.openRegularFile(*file, &kind);
  if (log < 0) return std::nullopt;
  struct stat about;
  const uint64_t size = fstat(log, &about) == 0 && about.st_size > 0 ? static_cast<uint64_t>(about.st_size) : 0;
  std::string head = readHead(log, kViewerBytes);
  close(log);
  const bool cut = size > head.size();
  head.resize(shownLength(head, size));
  return ViewedLog{std::move(head), size, cut};
}

void deleteForRow(const LogDirectory &directory, std::string_view rowFile) {
  for (const std::string &file : filesToDelete(rowFile, directory.latestLinkFile(), directory.entries()))
    directory.remove(file);
}

}  // namespace tessarin::logs
