// Rigid bodies stored by older versions: their regions under the numbered names of version 720
// and, before that, the reference point as "refPtRegion" beside four numbered regions. A file is
// written today, its rigid body rows are rewritten into the old layout as that version wrote
// them, and opening it must give today's rigid bodies.
#include <sqlite3.h>

#include <string>
#include <utility>
#include <vector>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_RigidBody_702.h"
#include "kco/kcoC_RigidBody_720.h"
#include "kco/kcoC_Tie.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kco/kco_test.h"

namespace {

using Renames = std::vector<std::pair<std::string, std::string>>;  // today's name, stored name

void Edit(const std::string& file, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err), SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

// Rewrites the rigid body table of a file written today into the layout of `version`.
void MakeOldRigidBodies(const std::string& file, int version, const Renames& renames) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName("kcoC_RigidBody")->Attributes()) {
    std::string name = a.handle.Name().str();
    for (const auto& [today, stored] : renames)
      if (name == today) name = stored;
    attrs.push_back(cls_Attribute{cls_FieldHandle(a.handle.Number(), name.c_str()), a.type, a.count, a.collection});
  }
  std::string sql;
  // Two steps per column, so that stored names that are also today's names never collide.
  for (const auto& [today, stored] : renames)
    sql += "ALTER TABLE kcoC_RigidBody RENAME COLUMN " + today + " TO old_" + stored + ";";
  for (const auto& [today, stored] : renames) {
    sql += "ALTER TABLE kcoC_RigidBody RENAME COLUMN old_" + stored + " TO " + stored + ";";
    sql += "UPDATE dbf_Fields SET name = 'old_" + stored + "' WHERE class = 'kcoC_RigidBody' AND name = '" + today + "';";
  }
  for (const auto& [today, stored] : renames)
    sql += "UPDATE dbf_Fields SET name = '" + stored + "' WHERE class = 'kcoC_RigidBody' AND name = 'old_" + stored + "';";
  sql += "UPDATE dbf_Catalog SET version = " + std::to_string(version) + ", fieldHash = '" + dbf_FieldTableHash(attrs) +
         "' WHERE name = 'kcoC_RigidBody';";
  Edit(file, sql);
}

kcoC_RigidBody Body(int i) {
  kcoC_RigidBody b;
  b.SetRefPointRegion(rgnC_Region("RP-" + std::to_string(i)));
  b.SetBodyRegion(rgnC_Region("Body-" + std::to_string(i)));
  b.SetTieRegion(rgnC_Region("Tie-" + std::to_string(i)));
  b.SetPinRegion(rgnC_Region(i == 2 ? "" : "Pin-" + std::to_string(i)));
  b.SetSurfaceRegion(rgnC_Region("Surf-" + std::to_string(i)));
  b.SetRefPointAtCOM(i == 1);
  return b;
}

class KcoUpgrade : public ::testing::Test {
 protected:
  void SetUp() override {
    kco_Start();
    dir_ = qmx_TempDir("kco-upgrade");
    auto& c = dynamic_cast<kcoC_ConstraintContainer&>(*db_.CreateModel("Model-1").ModifyRepository("constraints"));
    for (int i = 1; i <= 3; ++i) c.Insert("RB-" + std::to_string(i), Body(i));
    c.Insert("Tie-1", kcoC_Tie());
  }
  std::string dir_;
  ddr_Database db_;
};

TEST_F(KcoUpgrade, RigidBodiesOfBothOlderLayoutsReadBackWithTodaysRegions) {
  struct Case {
    int version;
    Renames renames;
  };
  const std::vector<Case> cases = {
      {720,
       {{"refPointRegion", "region1"}, {"bodyRegion", "region2"}, {"tieRegion", "region3"}, {"pinRegion", "region4"},
        {"surfaceRegion", "region5"}}},
      {702,
       {{"refPointRegion", "refPtRegion"}, {"bodyRegion", "region1"}, {"tieRegion", "region2"}, {"pinRegion", "region3"},
        {"surfaceRegion", "region4"}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.version);
    const std::string file = dir_ + "/old-" + std::to_string(c.version) + ".odb";
    dbf_Save(db_, file);
    MakeOldRigidBodies(file, c.version, c.renames);
    ddr_Database back = dbf_Open(file);
    EXPECT_TRUE(back == db_);  // every region back under today's name, the empty one included

    // Upgrading the file writes today's layout.
    const std::string upgraded = dir_ + "/upgraded-" + std::to_string(c.version) + ".odb";
    dbf_Upgrade(file, upgraded);
    EXPECT_TRUE(dbf_Open(upgraded) == db_);
  }
}

TEST_F(KcoUpgrade, EachStepRenamesOnlyWhatItsVersionStored) {
  // The rows as the steps see them, frozen at their versions.
  cls_Record row702;
  row702.typeId = kcoC_RigidBody::TypeId();
  row702.Set("suppress", false);
  row702.Set("refPtRegion", cow_String("RP"));
  for (int i = 1; i <= 4; ++i) row702.Set("region" + std::to_string(i), cow_String("R" + std::to_string(i)));
  row702.Set("refPointAtCOM", true);
  row702.Set("isothermal", false);

  dbc_DatabaseConverter steps;
  kcoC_RigidBody_702().SchemaChanges(steps);
  kcoC_RigidBody_720().SchemaChanges(steps);
  ASSERT_EQ(steps.Converters().size(), 2u);
  EXPECT_EQ(steps.Converters().begin()->first, 720);
  EXPECT_EQ(steps.Converters().rbegin()->first, 840);

  cls_Record row720 = row702;
  const cls_Record& frozen = row702;
  dbc_Row oldRow(frozen);
  dbc_Row newRow(row720);
  Upgrade_kcoC_RigidBody_702(oldRow, newRow, 0);
  EXPECT_EQ(row720.Find("refPtRegion"), nullptr);
  const char* const after702[] = {"RP", "R1", "R2", "R3", "R4"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(std::get<cow_String>(*row720.Find("region" + std::to_string(i + 1))), after702[i]);

  dbc_UpgradeDriver driver(steps);
  cls_Record row = row702;
  driver.Upgrade("kcoC_RigidBody", 702, 840, row);
  const kcoC_RigidBody body{cls_RecordReader(row)};
  EXPECT_EQ(body.GetRefPointRegion().Name(), "RP");
  EXPECT_EQ(body.GetBodyRegion().Name(), "R1");
  EXPECT_EQ(body.GetTieRegion().Name(), "R2");
  EXPECT_EQ(body.GetPinRegion().Name(), "R3");
  EXPECT_EQ(body.GetSurfaceRegion().Name(), "R4");
  EXPECT_TRUE(body.GetRefPointAtCOM());
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(row.Find("region" + std::to_string(i)), nullptr);

  // A row of version 720 that lacks one of its regions is refused, not filled in.
  cls_Record broken = row720;
  broken.Remove("region3");
  cls_Record target = broken;
  EXPECT_THROW(driver.Upgrade("kcoC_RigidBody", 720, 840, target), nex_CmdError);
}

}  // namespace
