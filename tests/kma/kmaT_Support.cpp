#include "tests/kma/kmaT_Support.h"

#include <nlohmann/json.hpp>
#include <sqlite3.h>

#include <algorithm>

#include "dbfile/dbf_File.h"
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

namespace {
cmd_Json Run(cmd_Session& s, const cmd_Json& command) {
  cmd_Json r = s.Execute(command);
  EXPECT_TRUE(r.value("ok", false)) << command.dump() << " -> " << r.dump();
  return r.contains("result") ? r["result"] : cmd_Json();
}
}  // namespace

namespace {

ddr_Database ReopenOldLayout(const std::string& file, const kmaT_OldLayoutCase& c) {
  cmd_Session s;
  Run(s, {{"op", "create"}, {"path", {"M"}}});
  Run(s, {{"op", "create"}, {"path", {"M", "materials", "A"}}, {"type", "Material"}});
  Run(s, {{"op", "set"}, {"path", {"M", "materials", "A", c.slot}}, {"type", c.type}, {"values", cmd_Json::parse(c.values)}});
  dbf_Save(s.Database(), file);
  kmaT_MakeOldLayout(file, c.className, c.version, c.absent);
  return dbf_Open(file);
}

void ExpectMembers(const ddr_Database& db, const char* slot, const std::string& expected) {
  cmd_Session s(db);
  const cmd_Json members = cmd_Json::parse(expected);  // items() refers into it, so it must outlive the loop
  for (const auto& [member, value] : members.items()) {
    SCOPED_TRACE(member);
    cmd_Json path = {"M", "materials", "A", slot};
    for (std::size_t at = 0; at <= member.size();) {
      const std::size_t end = std::min(member.find('/', at), member.size());
      const std::string part = member.substr(at, end - at);
      if (std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; })) path.push_back(std::stoi(part));
      else path.push_back(part);
      at = end + 1;
    }
    EXPECT_EQ(Run(s, {{"op", "get"}, {"path", path}}), value);
  }
}

}  // namespace

void kmaT_ExpectOldLayoutsRead(const std::string& dir, const std::vector<kmaT_OldLayoutCase>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.className) + " " + std::to_string(c.version));
    const std::string file = dir + "/" + c.className + "-" + std::to_string(c.version) + ".odb";
    ExpectMembers(ReopenOldLayout(file, c), c.slot, c.expected);
  }
}

kmaC_MaterialTable Table(std::initializer_list<std::initializer_list<double>> rows) {
  return kmaC_MaterialTable(cow_2DArray<double>(rows));
}

kmaC_MaterialContainer& Materials(ddr_Database& db, const char* model) {
  return dynamic_cast<kmaC_MaterialContainer&>(*db.ModifyModel(model)->ModifyRepository("materials"));
}

cmd_Json Ok(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_TRUE(r.value("ok", false)) << line << " -> " << r.dump();
  return r.contains("result") ? r["result"] : cmd_Json();
}

std::string Refusal(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_FALSE(r.value("ok", true)) << line;
  return r.contains("error") ? r["error"].value("message", "") : "";
}
