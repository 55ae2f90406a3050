// The crash-log directory as the pages touch it: listing its logs, reading one for the
// viewer, deleting for a row. Only regular files that lie right inside it are ever
// read or deleted, whatever links, FIFOs or folders a damaged device holds there.
#pragma once

#include "logs/CrashLogs.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::logs {

/// The directory, held open while a page lists, reads or deletes in it: every file is
/// named relative to the descriptor, so a directory swapped for a link meanwhile changes
/// nothing. A directory that is itself a link is not opened (it would lead the pages to
/// list and delete wherever it points), nor a missing one: then it holds nothing.
class LogDirectory {
 public:
  /// `path`: the directory's file-system path. `fileSystemPath` gives the file-system
  /// path of a device path, for absolute link targets (the identity on the device).
  LogDirectory(const std::string &path, std::string (*fileSystemPath)(const char *devicePath));
  ~LogDirectory();
  LogDirectory(const LogDirectory &) = delete;
  LogDirectory &operator=(const LogDirectory &) = delete;

  /// The names in it. Read straight from the directory: listing thousands of logs should
  /// not cost a look at each name that is left out anyway.
  std::vector<std::string> entries() const;

  /// What an entry is, not following it.
  EntryKind kindOf(const std::string &file) const;

  /// A file of it opened for reading when it is a regular file: never through a link,
  /// and never waiting on a FIFO or device named like a log. What it is counts only once
  /// it is open (fstat of the descriptor), so nothing can be swapped in between. The
  /// descriptor, for the caller to close; -1 otherwise, with `kind` telling what it is.
  int openRegularFile(const std::string &file, EntryKind *kind) const;

  /// The file of this directory the latest link leads to, when it leads right inside it
  /// (it may still be no regular file: open it with openRegularFile).
  std::optional<std::string> latestLinkFile() const;

  /// Removes an entry when a deletion may (mayDelete): the entry itself, never what a
  /// link points at. Failures are ignored.
  void remove(const std::string &file) const;

 private:
  bool holds(const char *path) const;

  const std::string path_;
  std::string (*const fileSystemPath_)(const char *);
  const int fd_;
};

struct ListedLog {
  std::string file;
  std::optional<std::string> subtitle;
};

/// The logs of the list, newest first, each with the subtitle from its head (none when
/// it cannot be read).
std::vector<ListedLog> listedLogs(const LogDirectory &directory);

/// What the viewer shows of a row's file: the head it reads (at most kViewerBytes), cut
/// at a whole character when the file is longer.
struct ViewedLog {
  std::string text;   ///< UTF-8 if the log is
  uint64_t fileSize;  ///< the whole file's
  bool cut;           ///< whether text is less than the file
};

/// Nothing when the row names no regular file of the directory (see fileToView).
std::optional<ViewedLog> viewedLog(const LogDirectory &directory, std::string_view rowFile);

/// Deletes the files of a row (filesToDelete), as far as each may be deleted.
void deleteForRow(const LogDirectory &directory, std::string_view rowFile);

}  // namespace tessarin::logs
