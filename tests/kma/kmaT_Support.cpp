#include "tests/kma/kmaT_Support.h"

#include <sqlite3.h>

#include <algorithm>

#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_ClassRegistrar.h"

void kmaT_ExpectFailure(const std::function<void()>& fn, const std::string& message) {
  auto e = qmx_Catch<nex_PrimError>(fn);
  EXPECT_EQ(e.Message(), message);
  EXPECT_STREQ(e.File(), "QMXOdbKmaC.m/src/kmaC_assert");
  EXPECT_EQ(e.Line(), 263);
}

void kmaT_Edit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  const int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err);
  EXPECT_EQ(rc, SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

std::vector<std::string> kmaT_Query(const std::string& path, const std::string& sql) {
  std::vector<std::string> out;
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  sqlite3_stmt* s = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr), SQLITE_OK) << sqlite3_errmsg(db) << " in " << sql;
  while (s && sqlite3_step(s) == SQLITE_ROW) {
    const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
    out.emplace_back(t ? std::string(t, static_cast<std::size_t>(sqlite3_column_bytes(s, 0))) : "NULL");
  }
  sqlite3_finalize(s);
  sqlite3_close(db);
  return out;
}

void kmaT_MakeOldLayout(const std::string& path, const char* className, int version,
                        const std::vector<std::string>& absentFields) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(className);
  ASSERT_NE(md, nullptr);
  std::vector<cls_Attribute> kept;
  std::string sql, names;
  for (const cls_Attribute& a : md->Attributes()) {
    const std::string name = a.handle.Name().str();
    if (std::find(absentFields.begin(), absentFields.end(), name) == absentFields.end()) {
      kept.push_back(a);
      continue;
    }
    if (a.type == cls_AttrObject) {
      sql += "ALTER TABLE " + std::string(className) + " DROP COLUMN \"" + name + "#OID\";";
      sql += "ALTER TABLE " + std::string(className) + " DROP COLUMN \"" + name + "#ClassID\";";
    } else {
      sql += "ALTER TABLE " + std::string(className) + " DROP COLUMN \"" + name + "\";";
    }
    names += (names.empty() ? "'" : ", '") + name + "'";
  }
  ASSERT_EQ(kept.size() + absentFields.size(), md->Attributes().size()) << "a field to drop is not a field";
  if (!names.empty()) sql += "DELETE FROM dbf_Fields WHERE class = '" + std::string(className) + "' AND name IN (" + names + ");";
  sql += "UPDATE dbf_Catalog SET version = " + std::to_string(version) + ", fieldHash = '" + dbf_FieldTableHash(kept) +
         "' WHERE name = '" + className + "';";
  kmaT_Edit(path, sql);
}
