#include "dbfile/dbf_Sqlite.h"

#include <utility>

#include "dbfile/dbf_Vfs.h"
#include "platform/base/nex_Exception.h"

void dbf_ThrowSqlite(sqlite3* db, int rc, const std::string& doing) {
  const char* detail = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
  switch (rc & 0xff) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      nex_ThrowCmd(std::string("the file is damaged (") + detail + ")");
    case SQLITE_IOERR:
      if (rc == SQLITE_IOERR_DATA) {
        std::int64_t page = db ? dbf_ChecksumFailedPage(db) : 0;
        nex_ThrowCmd(std::string("the file is damaged (page ") + std::to_string(page) + " fails its checksum)");
      }
      if (rc == SQLITE_IOERR_SHORT_READ) nex_ThrowCmd("the file is damaged (it ends before its last page)");
      nex_ThrowCmd("input/output error while " + doing + " (" + detail + ")");
    case SQLITE_FULL:
      nex_ThrowCmd("the disk is full (while " + doing + ")");
    case SQLITE_CANTOPEN:
      nex_ThrowCmd(std::string("the file cannot be opened (") + std::string(detail) + ")");
    default:
      nex_ThrowCmd("SQLite failed while " + doing + " (" + detail + ")");
  }
}

std::string dbf_Quote(std::string_view name) {
  std::string q = "\"";
  for (char c : name) {
    if (c == '"') q += '"';
    q += c;
  }
  q += '"';
  return q;
}

// --- connection -------------------------------------------------------------------------------

dbf_Connection::dbf_Connection(const std::string& path, int flags, const char* vfs) {
  int rc = sqlite3_open_v2(path.c_str(), &db_, flags, vfs);
  if (rc != SQLITE_OK) {
    sqlite3* db = db_;
    db_ = nullptr;
    try {
      dbf_ThrowSqlite(db, rc, "opening the file");
    } catch (...) {
      sqlite3_close(db);
      throw;
    }
  }
  sqlite3_extended_result_codes(db_, 1);
  // A double-quoted name that matches no column must be an error, not a string literal: a file
  // that lacks a column would otherwise read the column's name as its every value.
  sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
}

dbf_Connection::~dbf_Connection() {
  if (db_) sqlite3_close_v2(db_);
}

void dbf_Connection::Exec(const std::string& sql) {
  char* err = nullptr;
  int rc = sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &err);
  sqlite3_free(err);
  if (rc != SQLITE_OK) dbf_ThrowSqlite(db_, rc, "running \"" + sql + "\"");
}

std::int64_t dbf_Connection::QueryInt(const std::string& sql) {
  dbf_Statement s(db_, sql);
  if (!s.Step()) nex_ThrowCmd("\"" + sql + "\" returned nothing");
  return sqlite3_column_int64(s.Get(), 0);
}

void dbf_Connection::Close() {
  if (!db_) return;
  int rc = sqlite3_close(db_);
  if (rc != SQLITE_OK) dbf_ThrowSqlite(db_, rc, "closing the file");
  db_ = nullptr;
}

// --- statement --------------------------------------------------------------------------------

dbf_Statement::dbf_Statement(sqlite3* db, const std::string& sql) : db_(db) {
  int rc = sqlite3_prepare_v3(db, sql.c_str(), static_cast<int>(sql.size() + 1), SQLITE_PREPARE_PERSISTENT, &stmt_,
                              nullptr);
  if (rc != SQLITE_OK) dbf_ThrowSqlite(db, rc, "preparing \"" + sql + "\"");
}

dbf_Statement::~dbf_Statement() { sqlite3_finalize(stmt_); }

dbf_Statement::dbf_Statement(dbf_Statement&& o) noexcept
    : stmt_(std::exchange(o.stmt_, nullptr)), db_(std::exchange(o.db_, nullptr)) {}

dbf_Statement& dbf_Statement::operator=(dbf_Statement&& o) noexcept {
  std::swap(stmt_, o.stmt_);
  std::swap(db_, o.db_);
  return *this;
}

bool dbf_Statement::Step() {
  int rc = sqlite3_step(stmt_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  // The statement stays as it failed (its owner resets or finalizes it), so that the reason
  // reported is the step's own.
  std::string sql = sqlite3_sql(stmt_) ? sqlite3_sql(stmt_) : "";
  dbf_ThrowSqlite(db_, rc, "running \"" + sql + "\"");
}

void dbf_Statement::Run() {
  Step();
  sqlite3_reset(stmt_);
}

void dbf_Statement::Reset() noexcept { sqlite3_reset(stmt_); }
