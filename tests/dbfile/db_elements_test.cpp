// Repositories keep their elements as rows of dbf_Elements, one per key: a save in place after a
// change of one element touches a few rows whatever the repository's size, and files of the
// earlier layout (the keys and elements as two lists in the repository's row) open as they are
// and are written in today's layout by their first save.
#include <gtest/gtest.h>

#include <string>

#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Version.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

kadC_AdptMeshCtrlCont& ElemControls(ddr_Database& db) {
  return *dynamic_cast<kadC_AdptMeshCtrlCont*>(db.ModifyModel("Model-1")->ModifyRepository("adaptiveMeshControls"));
}

// Rewrites a file of today's layout into the one before it, as a library of database version
// 2503 wrote it: each repository's keys and elements as two JSON lists in its own row.
void ToEarlierLayout(const std::string& path) {
  std::string sql;
  for (const std::string& name : dbtT_QueryColumn(path, "SELECT name FROM dbf_Catalog")) {
    const cls_ClassMetadata* cls = cls_ClassRegistrar::Instance().ByName(name.c_str());
    if (!cls || !cls->KeepsElementsApart()) continue;
    const std::string t = "\"" + name + "\"", id = std::to_string(cls->TypeId());
    const std::string of = " FROM dbf_Elements e WHERE e.OwnerID = " + id + " AND e.Owner = " + t + ".OID ORDER BY e.rowid";
    sql += "ALTER TABLE " + t + " ADD COLUMN keys TEXT; ALTER TABLE " + t + " ADD COLUMN \"values\" TEXT;" +
           "UPDATE " + t + " SET keys = (SELECT json_group_array(Key) FROM (SELECT e.Key AS Key" + of + ")), " +
           "\"values\" = (SELECT json_group_array(json_array(o, c)) FROM (SELECT e.OID AS o, e.ClassID AS c" + of +
           "));";
  }
  sql += "DROP TABLE dbf_Elements; PRAGMA user_version = 2503; UPDATE dbf_Meta SET value = '2503' WHERE key = "
         "'databaseVersion';";
  dbtT_Edit(path, sql);
}

class DbElements : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-elements");
  }
  dbf_SaveStats SaveInPlace(ddr_Database& db, const std::string& path, dbf_Baseline& base) {
    dbf_SaveOptions options;
    options.baseline = &base;
    dbf_SaveStats stats;
    options.stats = &stats;
    dbf_Save(db, path, options);
    return stats;
  }
  std::string dir_;
};

// The same changes to repositories of 200 and of 20,000 elements change the same rows: the
// element's own, its row of dbf_Elements, the catalog's count and the file's identity.
TEST_F(DbElements, OneChangeTouchesTheSameRowsWhateverTheRepositorysSize) {
  struct Case {
    const char* what;
    void (*change)(ddr_Database&);
    std::int64_t written, deleted, changes;
  };
  const Case cases[] = {
      {"an element changed", [](ddr_Database& d) { ElemControls(d).Get("C-7").SetInitialFeatureAngle(33); }, 1, 0,
       1 + 1 + 3},
      {"an element added", [](ddr_Database& d) { ElemControls(d).Insert("C-0", kadC_AdptMeshCtrl()); }, 1, 0,
       1 + 1 + 1 + 3},
      {"an element removed", [](ddr_Database& d) { ElemControls(d).Remove("C-9"); }, 0, 1, 1 + 1 + 1 + 3},
      // The element goes to a new key: its row is written anew, the old one deleted.
      {"an element moved to another key",
       [](ddr_Database& d) {
         auto& c = ElemControls(d);
         c.InsertHandle("D-1", *c.FindHandle("C-11"));
         c.Remove("C-11");
       },
       1, 1, 1 + 1 + 1 + 1 + 1 + 3},
  };
  for (int n : {200, 20000}) {
    const std::string path = dir_ + "/n" + std::to_string(n) + ".odb";
    ddr_Database db = dbtT_MakeDatabase(n);
    dbf_Baseline base;
    SaveInPlace(db, path, base);
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(c.what) + " of " + std::to_string(n));
      c.change(db);
      const dbf_SaveStats stats = SaveInPlace(db, path, base);
      EXPECT_TRUE(stats.inPlace);
      EXPECT_EQ(stats.written, c.written);
      EXPECT_EQ(stats.deleted, c.deleted);
      EXPECT_EQ(stats.changes, c.changes);
      EXPECT_TRUE(dbf_Open(path) == db);
    }
    EXPECT_EQ(dbtT_Query(path, "SELECT count(*) FROM dbf_Elements WHERE Key LIKE 'C-%' OR Key LIKE 'D-%'"),
              std::to_string(n));
  }
}

TEST_F(DbElements, AFileOfTheEarlierLayoutOpensAndItsFirstSaveWritesTodaysLayout) {
  const std::string path = dir_ + "/earlier.odb";
  ddr_Database db = dbtT_MakeDatabase(300);
  dbf_Save(db, path);
  ToEarlierLayout(path);
  ASSERT_EQ(dbtT_Query(path, "SELECT count(*) FROM sqlite_master WHERE name = 'dbf_Elements'"), "0");
  ASSERT_EQ(dbtT_Query(path, "SELECT substr(keys, 1, 13) FROM kadC_AdptMeshCtrlCont WHERE OID = 1"), "[\"C-1\",\"C-2\",");
  EXPECT_EQ(dbf_ReadFileVersion(path).databaseVersion, 2503);
  EXPECT_FALSE(dbf_ReadFileVersion(path).current);

  dbf_Baseline base;
  ddr_Database opened = dbf_Open(path, base);
  EXPECT_TRUE(opened == db);
  // The file is not of today's layout: the save writes it whole, never a patch.
  ElemControls(opened).Get("C-7").SetInitialFeatureAngle(33);
  EXPECT_FALSE(SaveInPlace(opened, path, base).inPlace);
  EXPECT_EQ(dbf_ReadFileVersion(path).databaseVersion, dbf_DatabaseVersion());
  EXPECT_TRUE(dbf_ReadFileVersion(path).current);
  EXPECT_EQ(dbtT_Query(path, "SELECT count(*) FROM dbf_Elements WHERE Key LIKE 'C-%'"), "300");
  EXPECT_EQ(dbtT_QueryColumn(path, "SELECT name FROM pragma_table_info('kadC_AdptMeshCtrlCont')"),
            (std::vector<std::string>{"OID", "UID"}));
  EXPECT_TRUE(dbf_Open(path) == opened);
  // From then on it is patched.
  ElemControls(opened).Get("C-8").SetInitialFeatureAngle(34);
  const dbf_SaveStats stats = SaveInPlace(opened, path, base);
  EXPECT_TRUE(stats.inPlace);
  EXPECT_EQ(stats.written, 1);
  EXPECT_TRUE(dbf_Open(path) == opened);

  // The earlier layout's lists are checked as they always were.
  dbf_Save(db, path);
  ToEarlierLayout(path);
  dbtT_Edit(path, "UPDATE kadC_AdptMeshCtrlCont SET \"values\" = '[[1,' WHERE OID = 1");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { dbf_Open(path); }).Message(),
            "Cannot open the model database \"" + path +
                "\": the file is damaged (the field \"values\" of row 1 of class kadC_AdptMeshCtrlCont holds malformed "
                "list text)");
}

}  // namespace
