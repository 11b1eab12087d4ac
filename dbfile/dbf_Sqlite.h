#pragma once
// Owners of SQLite connections and statements for the database file, and the translation of
// SQLite failures into refusals that say what went wrong in words a user can act on.
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

// Throws a nex_CmdException describing the failure `rc` of `doing` on connection `db` (which may
// be null). Corruption, foreign files and failed page checksums read as a damaged file.
[[noreturn]] void dbf_ThrowSqlite(sqlite3* db, int rc, const std::string& doing);

// Double-quoted SQL identifier.
std::string dbf_Quote(std::string_view name);

class dbf_Connection {
 public:
  // Refuses with the SQLite reason when the file cannot be opened.
  dbf_Connection(const std::string& path, int flags, const char* vfs);
  ~dbf_Connection();
  dbf_Connection(const dbf_Connection&) = delete;
  dbf_Connection& operator=(const dbf_Connection&) = delete;

  sqlite3* Get() const noexcept { return db_; }
  void Exec(const std::string& sql);
  // The single integer a statement such as a PRAGMA returns.
  std::int64_t QueryInt(const std::string& sql);
  // Closes now; throws when SQLite refuses (the destructor closes quietly).
  void Close();

 private:
  sqlite3* db_ = nullptr;
};

class dbf_Statement {
 public:
  dbf_Statement() = default;
  dbf_Statement(sqlite3* db, const std::string& sql);
  ~dbf_Statement();
  dbf_Statement(dbf_Statement&& o) noexcept;
  dbf_Statement& operator=(dbf_Statement&& o) noexcept;
  dbf_Statement(const dbf_Statement&) = delete;
  dbf_Statement& operator=(const dbf_Statement&) = delete;

  sqlite3_stmt* Get() const noexcept { return stmt_; }
  // True for a row, false when done; throws on failure.
  bool Step();
  // Steps a statement that returns no rows and resets it for the next use.
  void Run();
  void Reset() noexcept;

 private:
  sqlite3_stmt* stmt_ = nullptr;
  sqlite3* db_ = nullptr;
};
