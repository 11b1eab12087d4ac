#pragma once
// The benchmarks' model and files: N objects (adaptive mesh controls and, one in ten, tables of
// doubles) in one model, built once per size, and a directory removed when the program ends.
#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/base/cow_String.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Uid.h"

namespace bnhT {

// Files go to $QMX_BENCH_DIR, or the system's temporary directory.
const std::string& Dir();
std::int64_t Tables(std::int64_t n);
std::int64_t Controls(std::int64_t n);
// One model: controls "C-i" with varied values and tables "T-i" of 16 rows by 2 columns, built
// once per size and kept.
const ddr_Database& Database(std::int64_t n);
// The same model built anew, for measures that need its making or their own copy.
std::unique_ptr<ddr_Database> BuildDatabase(std::int64_t n);

// SQLite calls that must succeed (a failure ends the program: a benchmark has no one to tell).
void Check(int rc, sqlite3* db);
void Exec(sqlite3* db, const std::string& sql);
// A uid as the file writes it: 32 hexadecimal digits, into out[0..31].
void HexUid(const cls_Uid& uid, char* out);
void FsyncFile(const std::string& path);

}  // namespace bnhT
