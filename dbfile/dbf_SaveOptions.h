#pragma once
// How a database file is written: its journal, page size and a progress hook.
#include <cstdint>
#include <functional>

class dbf_Baseline;
class dbf_Seen;

// What a save did, for callers that watch its cost.
struct dbf_SaveStats {
  bool inPlace = false;       // the file was patched rather than written anew
  std::int64_t written = 0;   // rows inserted or written over
  std::int64_t deleted = 0;   // rows deleted
  std::int64_t changes = 0;   // every row SQLite changed, the file's own tables included
};

// How the new file is journaled while it is written. The file is new and put in place by a
// rename, so the journal guards nothing the rename does not; it only costs time.
enum class dbf_Journal { Rollback, Wal, Off };

struct dbf_SaveOptions {
  dbf_Journal journal = dbf_Journal::Rollback;
  int pageSize = 16384;  // a power of two from 512 to 65536
  // Called after each stored row with stage "row", and before "commit", "sync" and "rename",
  // with the number of rows stored so far. An exception it throws aborts the save like any
  // other failure (tests inject failures here).
  std::function<void(const char* stage, std::int64_t rows)> progress;
  // What the saving database saw of its files: a target that changed on disk since it read or
  // last saved it is refused unless `overwrite`; the target's new state is recorded.
  dbf_Seen* seen = nullptr;
  bool overwrite = false;
  // What the target held when last saved or opened: when it still describes the file, the save
  // writes only what changed, in place (journal and page size stay the file's). A save of a
  // database (dbf_Save) then makes it describe the file as saved.
  dbf_Baseline* baseline = nullptr;
  dbf_SaveStats* stats = nullptr;
};
