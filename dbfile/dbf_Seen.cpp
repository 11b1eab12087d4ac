#include "dbfile/dbf_Seen.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "dbfile/dbf_AtomicFile.h"
#include "platform/base/nex_Exception.h"

std::optional<dbf_FileStamp> dbf_StampOf(const std::string& path) {
  struct stat st;
  if (::stat(path.c_str(), &st) != 0) return std::nullopt;
  dbf_FileStamp s;
  s.dev = st.st_dev;
  s.ino = st.st_ino;
  s.size = static_cast<std::int64_t>(st.st_size);
  s.mtimeNs = static_cast<std::int64_t>(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
  s.ctimeNs = static_cast<std::int64_t>(st.st_ctim.tv_sec) * 1000000000 + st.st_ctim.tv_nsec;
  return s;
}

void dbf_Seen::Opened(const std::string& path) {
  std::string target;
  try {
    target = dbf_SaveTarget(path);
  } catch (const std::exception&) {
    return;  // not a file a save could replace
  }
  if (auto s = dbf_StampOf(target)) stamps_[target] = *s;
}

void dbf_Seen::Check(const std::string& target) const {
  auto it = stamps_.find(target);
  if (it == stamps_.end()) return;
  const auto now = dbf_StampOf(target);
  if (now && *now != it->second)
    nex_ThrowCmd("it was changed by another process since it was opened; save to another file or reopen");
}

void dbf_Seen::Saved(const std::string& target) {
  if (auto s = dbf_StampOf(target)) stamps_[target] = *s;
}

dbf_DirectoryLock::dbf_DirectoryLock(const std::string& dir) {
  fd_ = ::open(dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd_ < 0) nex_ThrowCmd("cannot open the directory \"" + dir + "\" to lock it (" + std::strerror(errno) + ")");
  while (::flock(fd_, LOCK_EX) != 0) {
    if (errno == EINTR) continue;
    const int err = errno;
    ::close(fd_);
    nex_ThrowCmd("cannot lock the directory \"" + dir + "\" (" + std::strerror(err) + ")");
  }
}

dbf_DirectoryLock::~dbf_DirectoryLock() {
  if (fd_ >= 0) ::close(fd_);  // closing releases the lock
}
