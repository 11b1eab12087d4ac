#include "dbfile/dbf_AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "platform/base/nex_Exception.h"

namespace {

std::string Errno(const std::string& what) { return what + " (" + std::strerror(errno) + ")"; }

void SyncPath(const std::string& path, int flags, const std::string& what) {
  int fd = ::open(path.c_str(), flags | O_CLOEXEC);
  if (fd < 0) nex_ThrowCmd(Errno("cannot open " + what + " to sync it"));
  int rc = ::fsync(fd);
  int err = errno;
  ::close(fd);
  // Some file systems cannot sync a directory; the rename itself is still atomic there.
  if (rc != 0 && !(flags & O_DIRECTORY && (err == EINVAL || err == ENOTSUP))) {
    errno = err;
    nex_ThrowCmd(Errno("cannot sync " + what));
  }
}

}  // namespace

dbf_AtomicFile::dbf_AtomicFile(const std::string& path) : path_(path) {
  namespace fs = std::filesystem;
  if (path.empty()) nex_ThrowCmd("no file name was given");
  fs::path p(path);
  if (!p.has_filename()) nex_ThrowCmd("the path names a directory, not a file");
  fs::path dir = p.parent_path().empty() ? fs::path(".") : p.parent_path();
  std::error_code ec;
  if (!fs::is_directory(dir, ec)) nex_ThrowCmd("the directory \"" + dir.string() + "\" does not exist");
  if (fs::is_directory(p, ec)) nex_ThrowCmd("it is a directory");
  static std::atomic<unsigned> counter{0};
  dir_ = dir.string();
  std::string name = ".";
  name += p.filename().string();
  name += ".saving-";
  name += std::to_string(::getpid());
  name += '-';
  name += std::to_string(counter.fetch_add(1));
  temp_ = (dir / name).string();
  std::remove(temp_.c_str());
}

dbf_AtomicFile::~dbf_AtomicFile() {
  if (committed_) return;
  for (const char* suffix : {"", "-journal", "-wal", "-shm"}) std::remove((temp_ + suffix).c_str());
}

void dbf_AtomicFile::SyncTemp() { SyncPath(temp_, O_RDONLY, "the new file"); }

void dbf_AtomicFile::Commit() {
  struct stat old;
  if (::stat(path_.c_str(), &old) == 0) ::chmod(temp_.c_str(), old.st_mode & 07777);
  if (::rename(temp_.c_str(), path_.c_str()) != 0) nex_ThrowCmd(Errno("cannot put the new file in place"));
  committed_ = true;
  SyncPath(dir_, O_RDONLY | O_DIRECTORY, "the directory");
}
