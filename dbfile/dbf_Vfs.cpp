#include "dbfile/dbf_Vfs.h"

#include <bit>
#include <cstring>
#include <mutex>

#include "dbfile/dbf_Faults.h"

namespace {

std::uint64_t Rotl(std::uint64_t x, int r) { return (x << r) | (x >> (64 - r)); }

std::uint64_t LoadLE(const unsigned char* p) {
  std::uint64_t w;
  std::memcpy(&w, p, 8);
  if constexpr (std::endian::native == std::endian::big) w = __builtin_bswap64(w);
  return w;
}

void StoreLE(unsigned char* p, std::uint64_t w) {
  if constexpr (std::endian::native == std::endian::big) w = __builtin_bswap64(w);
  std::memcpy(p, &w, 8);
}

std::uint64_t Mix(std::uint64_t h, std::uint64_t w) {
  h ^= w * 0x9E3779B97F4A7C15ull;
  return Rotl(h, 29) * 0xBF58476D1CE4E5B9ull;
}

// --- the file ---------------------------------------------------------------------------------

struct CkFile {
  sqlite3_file base;
  sqlite3_file* real;  // the default VFS's file, placed right after this struct
  std::int64_t badPage;
  int mainDb;
  // Where a reader wants to know which pages a read checked (one byte per page), or null.
  unsigned char* checked;
  std::int64_t checkedPages;
};
static_assert(sizeof(CkFile) % 8 == 0);

CkFile* Ck(sqlite3_file* f) { return reinterpret_cast<CkFile*>(f); }
sqlite3_file* Real(sqlite3_file* f) { return Ck(f)->real; }
const sqlite3_io_methods* M(sqlite3_file* f) { return Real(f)->pMethods; }

// Main-file transfers of a whole page: SQLite reads and writes pages whole and aligned; the
// header probes it makes first are shorter.
bool IsPage(int amount, sqlite3_int64 offset) {
  return amount >= 512 && amount <= 65536 && (amount & (amount - 1)) == 0 && offset % amount == 0;
}

int Close(sqlite3_file* f) {
  return M(f)->xClose(Real(f));
}

int Read(sqlite3_file* f, void* buf, int amount, sqlite3_int64 offset) {
  int rc = M(f)->xRead(Real(f), buf, amount, offset);
  if (rc != SQLITE_OK || !Ck(f)->mainDb || !IsPage(amount, offset)) return rc;
  std::int64_t number = offset / amount + 1;
  if (!dbf_PageIntact(static_cast<const unsigned char*>(buf), static_cast<std::size_t>(amount), number)) {
    Ck(f)->badPage = number;
    return SQLITE_IOERR_DATA;
  }
  if (Ck(f)->checked && number <= Ck(f)->checkedPages) Ck(f)->checked[number - 1] = 1;
  return SQLITE_OK;
}

int Write(sqlite3_file* f, const void* buf, int amount, sqlite3_int64 offset) {
  if (dbf_FaultHere("write")) return SQLITE_IOERR_WRITE;
  if (!Ck(f)->mainDb || !IsPage(amount, offset)) return M(f)->xWrite(Real(f), buf, amount, offset);
  // A first page whose header reserves no room for the checksum means every page would lose its
  // last bytes to it: refuse the write rather than damage the file.
  if (offset == 0 && static_cast<const unsigned char*>(buf)[20] != dbf_kChecksumBytes) return SQLITE_IOERR_WRITE;
  // The checksum goes into the page's reserved bytes in SQLite's own buffer, as SQLite leaves
  // those bytes to the VFS: no copy of the page is needed.
  auto* page = static_cast<unsigned char*>(const_cast<void*>(buf));
  std::size_t body = static_cast<std::size_t>(amount - dbf_kChecksumBytes);
  StoreLE(page + body, dbf_PageChecksum(page, body, offset / amount + 1));
  return M(f)->xWrite(Real(f), page, amount, offset);
}

int Truncate(sqlite3_file* f, sqlite3_int64 size) {
  if (dbf_FaultHere("truncate")) return SQLITE_IOERR_TRUNCATE;
  return M(f)->xTruncate(Real(f), size);
}
int Sync(sqlite3_file* f, int flags) {
  if (dbf_FaultHere("sync")) return SQLITE_IOERR_FSYNC;
  return M(f)->xSync(Real(f), flags);
}
int FileSize(sqlite3_file* f, sqlite3_int64* size) { return M(f)->xFileSize(Real(f), size); }
int Lock(sqlite3_file* f, int level) { return M(f)->xLock(Real(f), level); }
int Unlock(sqlite3_file* f, int level) { return M(f)->xUnlock(Real(f), level); }
int CheckReservedLock(sqlite3_file* f, int* out) { return M(f)->xCheckReservedLock(Real(f), out); }
int FileControl(sqlite3_file* f, int op, void* arg) { return M(f)->xFileControl(Real(f), op, arg); }
int SectorSize(sqlite3_file* f) { return M(f)->xSectorSize(Real(f)); }
int DeviceCharacteristics(sqlite3_file* f) { return M(f)->xDeviceCharacteristics(Real(f)); }
int ShmMap(sqlite3_file* f, int page, int size, int extend, void volatile** out) {
  return M(f)->xShmMap(Real(f), page, size, extend, out);
}
int ShmLock(sqlite3_file* f, int offset, int n, int flags) { return M(f)->xShmLock(Real(f), offset, n, flags); }
void ShmBarrier(sqlite3_file* f) { M(f)->xShmBarrier(Real(f)); }
int ShmUnmap(sqlite3_file* f, int deleteFlag) { return M(f)->xShmUnmap(Real(f), deleteFlag); }

// Version 2: no memory-mapped reads, so that every page passes through Read and its check.
const sqlite3_io_methods kMethods = {2,          Close,    Read,        Write,       Truncate,
                                     Sync,       FileSize, Lock,        Unlock,      CheckReservedLock,
                                     FileControl, SectorSize, DeviceCharacteristics, ShmMap, ShmLock,
                                     ShmBarrier, ShmUnmap, nullptr,     nullptr};

// --- the VFS ----------------------------------------------------------------------------------

sqlite3_vfs* base = nullptr;
sqlite3_vfs vfs{};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* f, int flags, int* outFlags) {
  CkFile* ck = Ck(f);
  std::memset(ck, 0, sizeof(CkFile) + static_cast<std::size_t>(base->szOsFile));
  ck->real = reinterpret_cast<sqlite3_file*>(ck + 1);
  ck->mainDb = (flags & SQLITE_OPEN_MAIN_DB) != 0;
  int rc = base->xOpen(base, name, ck->real, flags, outFlags);
  // When the real file holds methods SQLite must call xClose, even after a failed open.
  if (ck->real->pMethods) f->pMethods = &kMethods;
  return rc;
}

int Delete(sqlite3_vfs*, const char* name, int syncDir) { return base->xDelete(base, name, syncDir); }
int Access(sqlite3_vfs*, const char* name, int flags, int* out) { return base->xAccess(base, name, flags, out); }
int FullPathname(sqlite3_vfs*, const char* name, int n, char* out) { return base->xFullPathname(base, name, n, out); }
void* DlOpen(sqlite3_vfs*, const char* name) { return base->xDlOpen(base, name); }
void DlError(sqlite3_vfs*, int n, char* out) { base->xDlError(base, n, out); }
void (*DlSym(sqlite3_vfs*, void* h, const char* sym))(void) { return base->xDlSym(base, h, sym); }
void DlClose(sqlite3_vfs*, void* h) { base->xDlClose(base, h); }
int Randomness(sqlite3_vfs*, int n, char* out) { return base->xRandomness(base, n, out); }
int Sleep(sqlite3_vfs*, int us) { return base->xSleep(base, us); }
int CurrentTime(sqlite3_vfs*, double* out) { return base->xCurrentTime(base, out); }
int GetLastError(sqlite3_vfs*, int n, char* out) { return base->xGetLastError ? base->xGetLastError(base, n, out) : 0; }
int CurrentTimeInt64(sqlite3_vfs*, sqlite3_int64* out) { return base->xCurrentTimeInt64(base, out); }

}  // namespace

std::uint64_t dbf_PageChecksum(const unsigned char* p, std::size_t n, std::int64_t pageNumber) {
  auto number = static_cast<std::uint64_t>(pageNumber);
  std::uint64_t a = 0x9E3779B97F4A7C15ull ^ number, b = 0xC2B2AE3D27D4EB4Full + number;
  std::uint64_t c = 0x165667B19E3779F9ull, d = 0x27D4EB2F165667C5ull ^ n;
  std::size_t i = 0;
  for (; i + 32 <= n; i += 32) {
    a = Mix(a, LoadLE(p + i));
    b = Mix(b, LoadLE(p + i + 8));
    c = Mix(c, LoadLE(p + i + 16));
    d = Mix(d, LoadLE(p + i + 24));
  }
  for (; i + 8 <= n; i += 8) a = Mix(a, LoadLE(p + i));
  for (; i < n; ++i) b = Mix(b, p[i]);
  std::uint64_t h = a ^ Rotl(b, 17) ^ Rotl(c, 31) ^ Rotl(d, 47);
  h ^= h >> 33;
  h *= 0xFF51AFD7ED558CCDull;
  h ^= h >> 33;
  return h;
}

bool dbf_PageIntact(const unsigned char* page, std::size_t pageSize, std::int64_t pageNumber) {
  const std::size_t body = pageSize - dbf_kChecksumBytes;
  return dbf_PageChecksum(page, body, pageNumber) == LoadLE(page + body);
}

const char* dbf_ChecksumVfs() {
  static std::once_flag once;
  std::call_once(once, [] {
    base = sqlite3_vfs_find(nullptr);
    vfs.iVersion = 2;
    vfs.szOsFile = static_cast<int>(sizeof(CkFile)) + base->szOsFile;
    vfs.mxPathname = base->mxPathname;
    vfs.zName = "qmx-checksum";
    vfs.xOpen = Open;
    vfs.xDelete = Delete;
    vfs.xAccess = Access;
    vfs.xFullPathname = FullPathname;
    vfs.xDlOpen = DlOpen;
    vfs.xDlError = DlError;
    vfs.xDlSym = DlSym;
    vfs.xDlClose = DlClose;
    vfs.xRandomness = Randomness;
    vfs.xSleep = Sleep;
    vfs.xCurrentTime = CurrentTime;
    vfs.xGetLastError = GetLastError;
    vfs.xCurrentTimeInt64 = CurrentTimeInt64;
    sqlite3_vfs_register(&vfs, 0);
  });
  return vfs.zName;
}

bool dbf_NoteCheckedPages(sqlite3* db, unsigned char* checked, std::int64_t pages) {
  sqlite3_file* f = nullptr;
  if (sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &f) != SQLITE_OK || !f || f->pMethods != &kMethods)
    return false;
  Ck(f)->checked = checked;
  Ck(f)->checkedPages = pages;
  return true;
}

std::int64_t dbf_ChecksumFailedPage(sqlite3* db) {
  sqlite3_file* f = nullptr;
  if (sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &f) != SQLITE_OK || !f) return 0;
  return f->pMethods == &kMethods ? Ck(f)->badPage : 0;
}
