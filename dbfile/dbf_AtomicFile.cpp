#include "dbfile/dbf_AtomicFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "dbfile/dbf_Faults.h"
#include "platform/base/nex_Exception.h"

namespace {

std::string Errno(const std::string& what) { return what + " (" + std::strerror(errno) + ")"; }

void SyncPath(const std::string& path, int flags, const std::string& what) {
  int fd = ::open(path.c_str(), flags | O_CLOEXEC);
  if (fd < 0) nex_ThrowCmd(Errno("cannot open " + what + " to sync it"));
  int rc = dbf_FaultHere("fsync") ? (errno = EIO, -1) : ::fsync(fd);
  int err = errno;
  ::close(fd);
  // Some file systems cannot sync a directory; the rename itself is still atomic there.
  if (rc != 0 && !(flags & O_DIRECTORY && (err == EINVAL || err == ENOTSUP))) {
    errno = err;
    nex_ThrowCmd(Errno("cannot sync " + what));
  }
}

}  // namespace

std::string dbf_SaveTarget(const std::string& path) {
  namespace fs = std::filesystem;
  if (path.empty()) nex_ThrowCmd("no file name was given");
  if (path.find('\0') != std::string::npos) nex_ThrowCmd("the file name holds a NUL character");
  fs::path p(path);
  if (!p.has_filename()) nex_ThrowCmd("the path names a directory, not a file");
  std::error_code ec;
  for (int hops = 0; fs::is_symlink(fs::symlink_status(p, ec)); ++hops) {
    if (hops == 40) nex_ThrowCmd("it is a chain of symbolic links that does not end");
    fs::path to = fs::read_symlink(p, ec);
    if (ec) nex_ThrowCmd("its symbolic link cannot be read (" + ec.message() + ")");
    p = to.is_absolute() ? to : p.parent_path() / to;
  }
  const fs::file_status st = fs::symlink_status(p, ec);
  switch (st.type()) {
    case fs::file_type::not_found:
    case fs::file_type::regular: break;
    case fs::file_type::directory: nex_ThrowCmd(p.string() == path ? "it is a directory" : "it leads to a directory");
    case fs::file_type::fifo: nex_ThrowCmd("it is a FIFO, not a regular file");
    case fs::file_type::socket: nex_ThrowCmd("it is a socket, not a regular file");
    case fs::file_type::block:
    case fs::file_type::character: nex_ThrowCmd("it is a device, not a regular file");
    default: nex_ThrowCmd("it is not a regular file");
  }
  return p.string();
}

void dbf_RemoveLeftovers(const std::string& target) {
  namespace fs = std::filesystem;
  const fs::path p(target);
  const fs::path dir = p.parent_path().empty() ? fs::path(".") : p.parent_path();
  const std::string prefix = "." + p.filename().string() + ".saving-";
  std::error_code ec;
  std::vector<fs::path> stale;
  for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (!name.starts_with(prefix)) continue;
    // ".NAME.saving-PID-N" and SQLite's side files of it: the saving process's id comes first.
    const char* digits = name.c_str() + prefix.size();
    char* endp = nullptr;
    const long pid = std::strtol(digits, &endp, 10);
    if (endp == digits || *endp != '-' || pid <= 0) continue;
    if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;  // still running (or not ours to judge)
    stale.push_back(it->path());
  }
  for (const auto& f : stale)
    if (fs::remove(f, ec))
      std::fprintf(stderr, "Note: removed \"%s\", left by a save that did not finish\n", f.c_str());
}

void dbf_CheckWritable(const std::string& target) {
  namespace fs = std::filesystem;
  const fs::path p(target);
  const fs::path dir = p.parent_path().empty() ? fs::path(".") : p.parent_path();
  // Named like a save's temporary file, so that a probe a kill leaves behind is removed like one.
  const std::string probe = (dir / ("." + p.filename().string() + ".saving-" + std::to_string(::getpid()) + "-probe")).string();
  const int fd = ::open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (fd < 0) nex_ThrowCmd(Errno("the directory \"" + dir.string() + "\" cannot be written"));
  ::close(fd);
  ::unlink(probe.c_str());
}

dbf_AtomicFile::dbf_AtomicFile(const std::string& path) : path_(dbf_SaveTarget(path)) {
  namespace fs = std::filesystem;
  fs::path p(path_);
  if (!p.has_filename()) nex_ThrowCmd("the path names a directory, not a file");
  fs::path dir = p.parent_path().empty() ? fs::path(".") : p.parent_path();
  std::error_code ec;
  if (!fs::is_directory(dir, ec)) nex_ThrowCmd("the directory \"" + dir.string() + "\" does not exist");
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
  if (::stat(path_.c_str(), &old) == 0) {
    // Owner first: changing it may clear the set-id bits that the mode then restores.
    if ((old.st_uid != ::geteuid() || old.st_gid != ::getegid()) &&
        ::chown(temp_.c_str(), old.st_uid, old.st_gid) != 0)
      std::fprintf(stderr, "Note: the saved file \"%s\" now belongs to user %u, group %u, not to user %u, group %u as "
                   "before (%s)\n", path_.c_str(), static_cast<unsigned>(::geteuid()), static_cast<unsigned>(::getegid()),
                   static_cast<unsigned>(old.st_uid), static_cast<unsigned>(old.st_gid), std::strerror(errno));
    ::chmod(temp_.c_str(), old.st_mode & 07777);
  }
  const int renamed = dbf_FaultHere("rename") ? (errno = EIO, -1) : ::rename(temp_.c_str(), path_.c_str());
  if (renamed != 0) nex_ThrowCmd(Errno("cannot put the new file in place"));
  committed_ = true;
  SyncPath(dir_, O_RDONLY | O_DIRECTORY, "the directory");
}
