#include "dbfile/dbf_ElementRows.h"

#include <string>

#include "dbfile/dbf_Format.h"

void dbf_ElementRows::CreateTable(sqlite3* db) {
  dbf_Statement(db, "CREATE TABLE " + dbf_Quote(dbf_kElementsTable) +
                        " (\"OwnerID\" INTEGER NOT NULL, \"Owner\" INTEGER NOT NULL, \"Key\" NOT NULL,"
                        " \"OID\" INTEGER NOT NULL, \"ClassID\" INTEGER NOT NULL)")
      .Run();
}

void dbf_ElementRows::BuildIndex(sqlite3* db) {
  dbf_Statement(db, "CREATE UNIQUE INDEX " + dbf_Quote(dbf_kElementsIndex) + " ON " + dbf_Quote(dbf_kElementsTable) +
                        " (\"OwnerID\", \"Owner\", \"Key\")")
      .Run();
}

sqlite3_stmt* dbf_ElementRows::Prepared(dbf_Statement& st, const char* sql) {
  if (!st.Get()) {
    std::string text(sql);
    for (std::size_t at; (at = text.find("@T")) != std::string::npos;) text.replace(at, 2, dbf_Quote(dbf_kElementsTable));
    st = dbf_Statement(db_, text);
  }
  return st.Get();
}

void dbf_ElementRows::BindKey(sqlite3_stmt* s, int i, const cls_ElementKey& key) {
  if (key.text) sqlite3_bind_text(s, i, key.text->c_str(), static_cast<int>(key.text->size()), SQLITE_STATIC);
  else sqlite3_bind_int64(s, i, key.integer);
}

void dbf_ElementRows::BindOwnerKey(sqlite3_stmt* s, const dbf_Owner& owner, const cls_ElementKey& key) {
  sqlite3_bind_int64(s, 1, owner.classId);
  sqlite3_bind_int64(s, 2, owner.oid);
  BindKey(s, 3, key);
}

void dbf_ElementRows::Insert(const dbf_Owner& owner, const cls_ElementKey& key, const dbf_Ref& ref) {
  sqlite3_stmt* s = Prepared(insert_, "INSERT INTO @T VALUES (?1, ?2, ?3, ?4, ?5)");
  BindOwnerKey(s, owner, key);
  sqlite3_bind_int64(s, 4, ref.oid);
  sqlite3_bind_int64(s, 5, ref.classId);
  insert_.Run();
  ++changed_;
}

bool dbf_ElementRows::Find(const dbf_Owner& owner, const cls_ElementKey& key, dbf_Ref& out) {
  sqlite3_stmt* s = Prepared(find_,
                             "SELECT \"OID\", \"ClassID\" FROM @T WHERE \"OwnerID\" = ?1 AND \"Owner\" = ?2 AND \"Key\" = ?3");
  BindOwnerKey(s, owner, key);
  const bool found = find_.Step();
  if (found)
    out = dbf_Ref{sqlite3_column_int64(s, 0), static_cast<std::uint32_t>(sqlite3_column_int64(s, 1))};
  find_.Reset();
  return found;
}

void dbf_ElementRows::Update(const dbf_Owner& owner, const cls_ElementKey& key, const dbf_Ref& ref) {
  sqlite3_stmt* s = Prepared(update_, "UPDATE @T SET \"OID\" = ?4, \"ClassID\" = ?5"
                                      " WHERE \"OwnerID\" = ?1 AND \"Owner\" = ?2 AND \"Key\" = ?3");
  BindOwnerKey(s, owner, key);
  sqlite3_bind_int64(s, 4, ref.oid);
  sqlite3_bind_int64(s, 5, ref.classId);
  update_.Run();
  ++changed_;
}

void dbf_ElementRows::Erase(const dbf_Owner& owner, const cls_ElementKey& key) {
  sqlite3_stmt* s = Prepared(erase_, "DELETE FROM @T WHERE \"OwnerID\" = ?1 AND \"Owner\" = ?2 AND \"Key\" = ?3");
  BindOwnerKey(s, owner, key);
  erase_.Run();
  ++changed_;
}

std::vector<dbf_Ref> dbf_ElementRows::TakeAll(const dbf_Owner& owner) {
  std::vector<dbf_Ref> out;
  sqlite3_stmt* s = Prepared(list_, "SELECT \"OID\", \"ClassID\" FROM @T WHERE \"OwnerID\" = ?1 AND \"Owner\" = ?2");
  sqlite3_bind_int64(s, 1, owner.classId);
  sqlite3_bind_int64(s, 2, owner.oid);
  while (list_.Step())
    out.push_back(dbf_Ref{sqlite3_column_int64(s, 0), static_cast<std::uint32_t>(sqlite3_column_int64(s, 1))});
  list_.Reset();
  sqlite3_stmt* e = Prepared(eraseAll_, "DELETE FROM @T WHERE \"OwnerID\" = ?1 AND \"Owner\" = ?2");
  sqlite3_bind_int64(e, 1, owner.classId);
  sqlite3_bind_int64(e, 2, owner.oid);
  eraseAll_.Run();
  changed_ += static_cast<std::int64_t>(out.size());
  return out;
}
