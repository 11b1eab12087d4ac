#include "dbfile/dbf_Roots.h"

#include <optional>
#include <set>

#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_Seen.h"
#include "dbfile/dbf_Reader.h"
#include "dbfile/dbf_SaveInPlace.h"
#include "dbfile/dbf_Vfs.h"
#include "dbfile/dbf_Writer.h"
#include "platform/base/nex_Exception.h"

namespace {

const char* JournalMode(dbf_Journal j) {
  switch (j) {
    case dbf_Journal::Wal: return "WAL";
    case dbf_Journal::Off: return "OFF";
    default: return "DELETE";
  }
}

void Save(const std::vector<dbf_Root>& roots, const std::string& path, const dbf_SaveOptions& options) {
  const int page = options.pageSize;
  if (page < 512 || page > 65536 || (page & (page - 1)) != 0)
    nex_ThrowCmd(std::string("the page size ") + std::to_string(page) + " is not a power of two from 512 to 65536");
  std::set<std::string_view> names;
  for (const auto& r : roots) {
    if (r.name.empty()) nex_ThrowCmd("an object to store has no name");
    if (!names.insert(r.name.view()).second) nex_ThrowCmd("two objects to store share the name \"" + r.name.str() + "\"");
    if (!r.cls || !r.object) nex_ThrowCmd("the object \"" + r.name.str() + "\" to store is missing");
  }
  const auto* progress = options.progress ? &options.progress : nullptr;
  if (options.baseline && dbf_SaveInPlace(roots, dbf_SaveTarget(path), options)) return;

  dbf_AtomicFile file(path);
  std::int64_t rows = 0;
  {
    // NOMUTEX: the connection never leaves this thread, so SQLite need not lock each call.
    std::optional<dbf_Connection> opened;
    try {
      opened.emplace(file.TempPath(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                     dbf_ChecksumVfs());
      opened->Exec(std::string("PRAGMA page_size = ") + std::to_string(page));
    } catch (const std::exception&) {
      // SQLite says no more than "unable to open database file": a directory that takes no new
      // file is named as such, with the system's reason.
      dbf_CheckWritable(file.Target());
      throw;
    }
    dbf_Connection& conn = *opened;
    int reserve = dbf_kChecksumBytes, reserved = -1;
    sqlite3_file_control(conn.Get(), "main", SQLITE_FCNTL_RESERVE_BYTES, &reserve);
    sqlite3_file_control(conn.Get(), "main", SQLITE_FCNTL_RESERVE_BYTES, &reserved);
    if (reserved != dbf_kChecksumBytes) nex_ThrowCmd("SQLite does not reserve the bytes of the page checksums");
    conn.Exec(std::string("PRAGMA journal_mode = ") + JournalMode(options.journal));
    // The file is synced once, whole, before it is renamed into place.
    conn.Exec("PRAGMA synchronous = OFF");
    conn.Exec("PRAGMA locking_mode = EXCLUSIVE");
    conn.Exec("PRAGMA cache_size = -65536");
    conn.Exec("BEGIN");
    {
      dbf_Writer writer(conn.Get(), progress);
      for (const auto& r : roots) writer.WriteRoot(r.name, *r.cls, r.object);
      writer.Finish(dbf_DatabaseVersion(), dbf_LibraryVersion());
      rows = writer.Rows();
    }
    if (progress) (*progress)("commit", rows);
    conn.Exec("COMMIT");
    // A file left in WAL mode would need write access to be read; hand it over as a plain file.
    if (options.journal == dbf_Journal::Wal) conn.Exec("PRAGMA journal_mode = DELETE");
    conn.Close();
  }
  if (progress) (*progress)("sync", rows);
  file.SyncTemp();
  if (progress) (*progress)("rename", rows);
  // Another process's save into this directory waits here, so it sees this one's result.
  dbf_DirectoryLock lock(file.Directory());
  if (options.seen && !options.overwrite) options.seen->Check(file.Target());
  dbf_RemoveLeftovers(file.Target());
  file.Commit();
  if (options.seen) options.seen->Saved(file.Target());
  if (options.stats) *options.stats = dbf_SaveStats{false, rows, 0, rows};
}

// The path as a message shows it: a NUL (refused as a file name) would end the message there.
std::string Shown(const std::string& path) {
  std::string out;
  for (char c : path) out += c == '\0' ? std::string("\\0") : std::string(1, c);
  return out;
}

}  // namespace

void dbf_SaveRoots(const std::vector<dbf_Root>& roots, const std::string& path, const dbf_SaveOptions& options) {
  try {
    Save(roots, path, options);
  } catch (const std::exception& e) {
    nex_ThrowCmd("Cannot save the model database \"" + Shown(path) + "\": " + e.what());
  }
}

std::vector<dbf_LoadedRoot> dbf_OpenRoots(const std::string& path, const dbc_UpgradeDriver* driver,
                                          const cls_ClassMetadata* required) {
  try {
    std::shared_ptr<const dbc_UpgradeDriver> registered;
    if (!driver) driver = (registered = dbc_UpgradeDriver::Registered()).get();
    try {
      const std::string target = dbf_SaveTarget(path);
      dbf_RemoveLeftovers(target);
      dbf_RecoverJournal(target);
    } catch (const std::exception&) {
      // not a name a save could have written; the reader says what is wrong with it
    }
    dbf_Reader reader(path, *driver);
    return reader.LoadRoots(required);
  } catch (const std::exception& e) {
    nex_ThrowCmd("Cannot open the model database \"" + Shown(path) + "\": " + e.what());
  }
}
