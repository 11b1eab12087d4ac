#pragma once
// The rows of dbf_Elements as a save writes them: one per element of a repository, found by the
// repository's row and the element's key (dbf_Format.h). Statements are prepared on first use.
#include <sqlite3.h>

#include <cstdint>
#include <vector>

#include "dbfile/dbf_ListText.h"
#include "dbfile/dbf_Sqlite.h"
#include "platform/persist/cls_Visitor.h"

// The repository row that owns elements: its class's type id and its OID.
struct dbf_Owner {
  std::uint32_t classId = 0;
  std::int64_t oid = 0;
};

class dbf_ElementRows {
 public:
  explicit dbf_ElementRows(sqlite3* db) : db_(db) {}
  // The table, without its index: a new file builds the index once, at the end (BuildIndex).
  static void CreateTable(sqlite3* db);
  static void BuildIndex(sqlite3* db);

  void Insert(const dbf_Owner& owner, const cls_ElementKey& key, const dbf_Ref& ref);
  // The stored element of the key; false when there is none.
  bool Find(const dbf_Owner& owner, const cls_ElementKey& key, dbf_Ref& out);
  void Update(const dbf_Owner& owner, const cls_ElementKey& key, const dbf_Ref& ref);
  void Erase(const dbf_Owner& owner, const cls_ElementKey& key);
  // Every element of the repository, which then holds none.
  std::vector<dbf_Ref> TakeAll(const dbf_Owner& owner);
  // Element rows inserted, updated or deleted.
  std::int64_t Changed() const noexcept { return changed_; }

 private:
  static void BindKey(sqlite3_stmt* s, int i, const cls_ElementKey& key);
  void BindOwnerKey(sqlite3_stmt* s, const dbf_Owner& owner, const cls_ElementKey& key);
  sqlite3_stmt* Prepared(dbf_Statement& st, const char* sql);

  sqlite3* db_;
  dbf_Statement insert_, find_, update_, erase_, list_, eraseAll_;
  std::int64_t changed_ = 0;
};
