#pragma once
// A file replaced in one step: the new contents are written to a temporary file in the same
// directory, synced, and renamed over the destination, after which the directory is synced.
// Until the rename the destination is untouched; a failure or a kill before it leaves at most
// the temporary file behind ("." + name + ".saving-" + pid + "-" + n), never a half-written
// destination.
#include <string>

class dbf_AtomicFile {
 public:
  // Refuses a destination whose directory does not exist or that is a directory itself.
  explicit dbf_AtomicFile(const std::string& path);
  // Removes the temporary file and SQLite's side files of it unless committed.
  ~dbf_AtomicFile();
  dbf_AtomicFile(const dbf_AtomicFile&) = delete;
  dbf_AtomicFile& operator=(const dbf_AtomicFile&) = delete;

  const std::string& TempPath() const noexcept { return temp_; }
  // Flushes the temporary file to the disk.
  void SyncTemp();
  // Gives the temporary file the destination's permissions, renames it over the destination and
  // syncs the directory.
  void Commit();

 private:
  std::string path_;
  std::string dir_;
  std::string temp_;
  bool committed_ = false;
};
