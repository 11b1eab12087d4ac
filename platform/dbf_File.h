#pragma once
// The model database file on SQLite: save a database atomically, open one (upgrading rows
// written at older versions before any class reads them), copy a file forward to the current
// versions. Every refusal is a nex_CmdException naming the file and the reason; nothing is half
// loaded and a failed save leaves the previous file as it was. The layout is described in
// README.md ("Database file") and platform/dbf_Format.h.
#include <cstdint>
#include <functional>
#include <string>

#include "platform/ddr_Database.h"

class dbc_UpgradeDriver;

// The database version this library writes (the highest class version it knows).
int dbf_DatabaseVersion();
// The library version written into every file.
const char* dbf_LibraryVersion();

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
};

void dbf_Save(const ddr_Database& db, const std::string& path);
void dbf_Save(const ddr_Database& db, const std::string& path, const dbf_SaveOptions& options);
ddr_Database dbf_Open(const std::string& path);
// Opens with the upgrade steps of the given driver instead of the registered ones.
ddr_Database dbf_Open(const std::string& path, const dbc_UpgradeDriver& driver);
// Opens `in` (upgrading it) and saves the result as `out`; `in` is not changed.
void dbf_Upgrade(const std::string& in, const std::string& out);
