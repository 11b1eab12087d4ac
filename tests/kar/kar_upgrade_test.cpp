// Rules stored in the layout of version 866, before the element count limit existed: upgraded as
// a row and as a file that holds them, both reading as "UNLIMITED".
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kar/karC_RemeshingRule.h"
#include "kar/karC_RemeshingRuleCont.h"
#include "kar/karC_RemeshingRule_866.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

using Rule = karC_RemeshingRule;

Rule Sample(const char* step) {
  Rule r;
  r.SetStepName(step);
  r.SetRegion(rgnC_Region("Part-1-1.Bulk"));
  r.SetVariables({"MISESERI", "ENDENERI"});
  r.SetSizingMethod(Rule::SizingMethodEnm::MINIMUM_MAXIMUM);
  r.SetMinElementSize(0.25);
  r.SetElementCountLimit(50000);  // lost in the old layout, which had no such field
  return r;
}

TEST(KarUpgrade, TheConverterSetsNoCapAndTouchesNothingElse) {
  qmx_StartLibrary();
  const Rule original = Sample("Step-1");
  cls_Record row = cls_ToRecord(original);
  row.Remove("elementCountLimit");
  EXPECT_THROW(Rule{cls_RecordReader(row)}, nex_CmdError);  // the old row does not read as it is
  dbc_UpgradeDriver driver;
  driver.Upgrade("karC_RemeshingRule", 866, Rule::kVersion, row);
  const Rule read{cls_RecordReader(row)};
  EXPECT_EQ(read.GetElementCountLimit(), 2147483647);
  EXPECT_TRUE(read.IsElementCountUnlimited());
  Rule expected = original;
  expected.SetElementCountLimit(Rule::ElementCountLimitEnm::UNLIMITED);
  EXPECT_TRUE(read == expected) << "uid and every other field come through";
  EXPECT_NO_THROW(read.AssertValid());
}

// SQL on a model database file through its checksumming VFS, as an editor of old files would.
void KarEdit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err), SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

std::string KarQuery(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  std::string out = "<none>";
  EXPECT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  sqlite3_stmt* s = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  if (s && sqlite3_step(s) == SQLITE_ROW) {
    const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
    out = t ? t : "NULL";
  }
  sqlite3_finalize(s);
  sqlite3_close(db);
  return out;
}

// Rewrites the rule rows of a current file into the layout of version 866.
void MakeRulesOld(const std::string& file) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName("karC_RemeshingRule")->Attributes())
    if (a.handle.Name().str() != "elementCountLimit") attrs.push_back(a);
  KarEdit(file,
          "ALTER TABLE karC_RemeshingRule DROP COLUMN elementCountLimit;"
          "DELETE FROM dbf_Fields WHERE class = 'karC_RemeshingRule' AND name = 'elementCountLimit';"
          "UPDATE dbf_Catalog SET version = 866, fieldHash = '" +
              dbf_FieldTableHash(attrs) + "' WHERE name = 'karC_RemeshingRule';");
}

const karC_RemeshingRuleCont& Rules(const ddr_Database& db) {
  return dynamic_cast<const karC_RemeshingRuleCont&>(*db.FindModel("Model-1")->FindRepository("remeshingRules"));
}

TEST(KarUpgrade, AFileWithRulesOfVersion866OpensWithNoCap) {
  qmx_StartLibrary();
  const std::string dir = qmx_TempDir("kar-upgrade");
  ddr_Database db;
  db.CreateModel("Model-1");
  auto& rules = dynamic_cast<karC_RemeshingRuleCont&>(*db.ModifyModel("Model-1")->ModifyRepository("remeshingRules"));
  rules.Insert("Rule-1", Sample("Step-1"));
  rules.Insert("Rule-2", Sample("Step-2"));
  const std::string file = dir + "/old.odb";
  dbf_Save(db, file);
  EXPECT_EQ(KarQuery(file, "SELECT elementCountLimit FROM karC_RemeshingRule LIMIT 1"), "50000");
  MakeRulesOld(file);
  ASSERT_EQ(KarQuery(file, "SELECT version FROM dbf_Catalog WHERE name = 'karC_RemeshingRule'"), "866");

  const ddr_Database opened = dbf_Open(file);
  ASSERT_EQ(Rules(opened).Keys(), (std::vector<cow_String>{"Rule-1", "Rule-2"}));
  for (const char* key : {"Rule-1", "Rule-2"}) {
    const Rule* r = Rules(opened).ConstGet(key);
    EXPECT_EQ(r->GetElementCountLimit(), 2147483647) << key;
    Rule expected = *Rules(db).ConstGet(key);
    expected.SetElementCountLimit(Rule::ElementCountLimitEnm::UNLIMITED);
    EXPECT_TRUE(*r == expected) << key;
  }
  // The file on disk is untouched by opening; an upgraded copy is written at today's version.
  EXPECT_EQ(KarQuery(file, "SELECT version FROM dbf_Catalog WHERE name = 'karC_RemeshingRule'"), "866");
  const std::string upgraded = dir + "/new.odb";
  dbf_Upgrade(file, upgraded);
  EXPECT_EQ(KarQuery(upgraded, "SELECT version FROM dbf_Catalog WHERE name = 'karC_RemeshingRule'"),
            std::to_string(Rule::kVersion));
  EXPECT_EQ(KarQuery(upgraded, "SELECT elementCountLimit FROM karC_RemeshingRule LIMIT 1"), "2147483647");
  EXPECT_TRUE(dbf_Open(upgraded) == opened);
}

}  // namespace
