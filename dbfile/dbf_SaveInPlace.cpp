#include "dbfile/dbf_SaveInPlace.h"

#include <cstdio>
#include <filesystem>

#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Patch.h"
#include "dbfile/dbf_Seen.h"
#include "dbfile/dbf_Vfs.h"
#include "dbfile/dbf_Writer.h"

namespace {
std::string InPlaceDirectory(const std::string& target) {
  const std::filesystem::path dir = std::filesystem::path(target).parent_path();
  return dir.empty() ? std::string(".") : dir.string();
}
// The rollback put back every page, but the file's times moved: it is still the file this
// database saw, and a later save must not take it for another process's.
void InPlaceRolledBack(dbf_Baseline& base, const dbf_SaveOptions& options, const std::string& target) {
  base.Restamp();
  if (options.seen) options.seen->Saved(target);
}
}  // namespace

bool dbf_SaveInPlace(const std::vector<dbf_Root>& roots, const std::string& target, const dbf_SaveOptions& options) {
  dbf_Baseline* base = options.baseline;
  if (!base || options.journal != dbf_Journal::Rollback || !base->Fits(target)) return false;
  // Held to the end: another process's save into this directory waits, and then sees this one.
  dbf_DirectoryLock lock(InPlaceDirectory(target));
  if (options.seen && !options.overwrite) options.seen->Check(target);
  if (!base->Fits(target)) return false;
  const auto* progress = options.progress ? &options.progress : nullptr;
  dbf_Connection conn(target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, dbf_ChecksumVfs());
  // The journal is what makes a patch all or nothing: it is synced before the file is touched.
  conn.Exec("PRAGMA journal_mode = DELETE");
  conn.Exec("PRAGMA synchronous = FULL");
  conn.Exec("PRAGMA cache_size = -65536");
  conn.Exec("BEGIN IMMEDIATE");
  std::int64_t written = 0, deleted = 0;
  try {
    dbf_Patch patch(conn.Get(), base->Roots());
    dbf_Writer writer(conn.Get(), progress, &patch);
    for (const auto& r : roots) writer.WriteRoot(r.name, *r.cls, r.object);
    writer.Finish(dbf_DatabaseVersion(), dbf_LibraryVersion());
    written = writer.Rows();
    deleted = patch.Deleted();
    if (progress) (*progress)("commit", written);
  } catch (const dbf_PatchUnfit&) {
    conn.Exec("ROLLBACK");
    conn.Close();
    InPlaceRolledBack(*base, options, target);
    return false;
  } catch (...) {
    if (sqlite3_exec(conn.Get(), "ROLLBACK", nullptr, nullptr, nullptr) == SQLITE_OK) {
      conn.Close();
      InPlaceRolledBack(*base, options, target);
    }
    throw;
  }
  const std::int64_t changes = sqlite3_total_changes64(conn.Get());
  conn.Exec("COMMIT");
  conn.Close();
  if (options.seen) options.seen->Saved(target);
  if (options.stats) *options.stats = dbf_SaveStats{true, written, deleted, changes};
  return true;
}

void dbf_RecoverJournal(const std::string& target) {
  const std::string journal = target + "-journal";
  std::error_code ec;
  if (!std::filesystem::exists(journal, ec)) return;
  try {
    // Saves in place hold this lock for their whole transaction: a journal seen under it is not
    // one a running save of this library is writing.
    dbf_DirectoryLock lock(InPlaceDirectory(target));
    // A read through a writing connection plays a hot journal back, and removes it.
    dbf_Connection conn(target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, dbf_ChecksumVfs());
    conn.QueryInt("SELECT count(*) FROM sqlite_master");
    conn.Close();
    // What stays is a journal whose magic number is cleared (a transaction ended, its process
    // killed before the journal was removed): it restores nothing, and would only puzzle whoever
    // lists the directory.
    unsigned char head[8] = {};
    std::FILE* f = std::fopen(journal.c_str(), "rb");
    if (!f) return;
    const std::size_t got = std::fread(head, 1, sizeof head, f);
    std::fclose(f);
    for (std::size_t i = 0; i < got; ++i)
      if (head[i] != 0) return;
    if (std::filesystem::remove(journal, ec))
      std::fprintf(stderr, "Note: removed \"%s\", left by a save that did not finish\n", journal.c_str());
  } catch (const std::exception&) {
    // no right to write here: the open says what it finds
  }
}
