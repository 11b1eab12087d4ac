#pragma once
// What a database last saw of the files it opened or saved, so that a save notices a file that
// another process saved in between (whose changes the save would silently throw away), and the
// lock that makes the check and the rename one step for every process saving into a directory.
#include <sys/types.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

// A file as stat sees it: another save replaces the file (a new inode) or changes its size or
// times.
struct dbf_FileStamp {
  dev_t dev = 0;
  ino_t ino = 0;
  std::int64_t size = 0;
  std::int64_t mtimeNs = 0;
  std::int64_t ctimeNs = 0;
  bool operator==(const dbf_FileStamp&) const = default;
};

// The stamp of the file at `path` (links followed); none when there is no file.
std::optional<dbf_FileStamp> dbf_StampOf(const std::string& path);

class dbf_Seen {
 public:
  // The file as it is now, before it is read; a name that cannot be saved to is not recorded.
  void Opened(const std::string& path);
  // Refuses (as a reason for the save's message) when the target, which this database read or
  // saved, has changed since. A target it never saw, or one that no longer exists, is no loss.
  void Check(const std::string& target) const;
  void Saved(const std::string& target);

 private:
  std::map<std::string, dbf_FileStamp> stamps_;  // by save target
};

// An exclusive lock on a directory, held while a save checks its target and renames over it.
class dbf_DirectoryLock {
 public:
  explicit dbf_DirectoryLock(const std::string& dir);
  ~dbf_DirectoryLock();
  dbf_DirectoryLock(const dbf_DirectoryLock&) = delete;
  dbf_DirectoryLock& operator=(const dbf_DirectoryLock&) = delete;

 private:
  int fd_ = -1;
};
