#pragma once
// A file replaced in one step: the new contents are written to a temporary file in the same
// directory, synced, and renamed over the destination, after which the directory is synced.
// Until the rename the destination is untouched; a failure or a kill before it leaves at most
// the temporary file behind ("." + name + ".saving-" + pid + "-" + n), never a half-written
// destination.
#include <string>

// The file that replacing `path` writes: `path` itself, or for a symbolic link the file it leads
// to (through any chain of links), so that the link stays and its target is replaced. Refuses a
// name with a NUL, a directory, and anything else that is not a regular file (a FIFO, a device,
// a socket): replacing those by a regular file would break whoever uses them.
std::string dbf_SaveTarget(const std::string& path);

// Removes the temporary files that saves of `target` by processes no longer running left behind
// (a save killed before its rename), saying so on standard error. Files it cannot remove stay.
void dbf_RemoveLeftovers(const std::string& target);

// Refuses a target whose directory does not take the new file a save writes beside it (a
// read-only directory or file system), by making and removing such a file.
void dbf_CheckWritable(const std::string& target);

class dbf_AtomicFile {
 public:
  // Refuses what dbf_SaveTarget refuses and a destination whose directory does not exist.
  explicit dbf_AtomicFile(const std::string& path);
  // Removes the temporary file and SQLite's side files of it unless committed.
  ~dbf_AtomicFile();
  dbf_AtomicFile(const dbf_AtomicFile&) = delete;
  dbf_AtomicFile& operator=(const dbf_AtomicFile&) = delete;

  const std::string& TempPath() const noexcept { return temp_; }
  const std::string& Target() const noexcept { return path_; }
  const std::string& Directory() const noexcept { return dir_; }
  // Flushes the temporary file to the disk.
  void SyncTemp();
  // Gives the temporary file the destination's owner, group and permissions (saying on standard
  // error when the process may not), renames it over the destination and syncs the directory.
  void Commit();

 private:
  std::string path_;
  std::string dir_;
  std::string temp_;
  bool committed_ = false;
};
