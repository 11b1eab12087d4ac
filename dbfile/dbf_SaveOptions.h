#pragma once
// How a database file is written: its journal, page size and a progress hook.
#include <cstdint>
#include <functional>

class dbf_Seen;

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
};
