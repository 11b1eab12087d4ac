// Files written at older versions: task rows in the layouts of 1554, 1562, 1629 and 1859 are
// carried to today's layout through the converters of the optimization task part and of the
// topology task.
#include <sqlite3.h>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_TaskContainer.h"
#include "kop/kopC_TopologyTask.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kop/kop_test.h"

namespace {

using Algorithm = kopC_AlgorithmEnm;

// Runs statements on a model database through its checksumming file layer, as an editor would.
void Edit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err), SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

std::string HashWithout(const char* className, const std::vector<std::string>& dropped) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName(className)->Attributes())
    if (std::find(dropped.begin(), dropped.end(), a.handle.Name().str()) == dropped.end()) attrs.push_back(a);
  return dbf_FieldTableHash(attrs);
}

// Rewrites the rows of a class into an older layout: the columns it did not have yet are dropped
// and the catalog names the old version.
void Retire(const std::string& file, const char* className, int version, const std::vector<std::string>& dropped) {
  std::string sql;
  for (const std::string& column : dropped) {
    sql += "ALTER TABLE " + std::string(className) + " DROP COLUMN " + column + ";";
    sql += "DELETE FROM dbf_Fields WHERE class = '" + std::string(className) + "' AND name = '" + column + "';";
  }
  sql += "UPDATE dbf_Catalog SET version = " + std::to_string(version) + ", fieldHash = '" +
         HashWithout(className, dropped) + "' WHERE name = '" + className + "';";
  Edit(file, sql);
}

kopC_TaskContainer& Tasks(ddr_Database& db) {
  return dynamic_cast<kopC_TaskContainer&>(*db.ModifyModel("Model-1")->ModifyRepository("optimizationTasks"));
}

// Topology tasks "T-0".."T-3" and shape tasks "S-0".."S-3" with every setting the converters
// touch away from what they write.
ddr_Database Saved() {
  ddr_Database db;
  db.CreateModel("Model-1");
  for (int i = 0; i < 4; ++i) {
    kopC_TopologyTask t;
    t.SetAlgorithm(i % 2 ? Algorithm::GENERAL_OPTIMIZATION : Algorithm::CONDITION_BASED_OPTIMIZATION);
    t.SetTessarSensitivities(true);
    t.SetGroupOperator(true);
    t.SetSoftDeletionMethod(kopC_TopologyTask::SoftDeletionMethodEnm::MAX_SHEAR_STRAIN);
    t.SetSoftDeletionThreshold(0.2);
    t.SetNumIterations(20 + i);
    Tasks(db).Insert("T-" + std::to_string(i), t);
    kopC_ShapeTask s;
    s.SetAlgorithm(t.GetAlgorithm());
    s.SetTessarSensitivities(true);
    s.SetGroupOperator(true);
    s.SetTolerance(0.5 + i);
    Tasks(db).Insert("S-" + std::to_string(i), s);
  }
  return db;
}

struct Layout {
  int version;
  // The stored algorithm literal of tasks T-0..T-3 (and S-0..S-3) as that version wrote them.
  const char* algorithms[4];
  // What they read back as.
  Algorithm expected[4];
};

TEST(KopUpgrade, TaskRowsOfEveryOlderLayoutReachTodaysLayout) {
  kop_Start();
  const std::string dir = qmx_TempDir("kop-upgrade");
  const Algorithm C = Algorithm::CONDITION_BASED_OPTIMIZATION, G = Algorithm::GENERAL_OPTIMIZATION;
  const Layout layouts[] = {
      {1554, {"CONTROLLER_BASED", "SENSITIVITY_BASED", "STIFFNESS_OPTIMIZATION", "GENERAL_OPTIMIZATION"}, {C, G, C, G}},
      {1562, {"STIFFNESS_OPTIMIZATION", "GENERAL_OPTIMIZATION", "STIFFNESS_OPTIMIZATION", "GENERAL_OPTIMIZATION"}, {C, G, C, G}},
      {1629, {"CONDITION_BASED_OPTIMIZATION", "GENERAL_OPTIMIZATION", "CONDITION_BASED_OPTIMIZATION", "GENERAL_OPTIMIZATION"}, {C, G, C, G}},
      {1859, {"CONDITION_BASED_OPTIMIZATION", "GENERAL_OPTIMIZATION", "CONDITION_BASED_OPTIMIZATION", "GENERAL_OPTIMIZATION"}, {C, G, C, G}},
  };
  for (const Layout& l : layouts) {
    SCOPED_TRACE(l.version);
    const ddr_Database db = Saved();
    const std::string file = dir + "/old-" + std::to_string(l.version) + ".odb";
    dbf_Save(db, file);
    std::vector<std::string> orim;  // columns the optimization task part did not have yet
    if (l.version < 2204) orim.push_back("groupOperator");
    if (l.version < 1859) orim.push_back("tessarSensitivities");
    std::vector<std::string> topology = orim;
    if (l.version < 1629) topology.insert(topology.end(), {"softDeletionMethod", "softDeletionThreshold"});
    Retire(file, "kopC_TopologyTask", l.version, topology);
    Retire(file, "kopC_ShapeTask", l.version, orim);
    std::string sql;
    for (int i = 0; i < 4; ++i)
      for (const char* table : {"kopC_TopologyTask", "kopC_ShapeTask"})
        sql += "UPDATE " + std::string(table) + " SET algorithm = '" + l.algorithms[i] + "' WHERE OID = " +
               std::to_string(i + 1) + ";";
    Edit(file, sql);

    ddr_Database expected = db;
    for (int i = 0; i < 4; ++i) {
      auto& t = dynamic_cast<kopC_TopologyTask&>(Tasks(expected).Get("T-" + std::to_string(i)));
      auto& s = dynamic_cast<kopC_ShapeTask&>(Tasks(expected).Get("S-" + std::to_string(i)));
      for (kopC_OrimTask* task : {static_cast<kopC_OrimTask*>(&t), static_cast<kopC_OrimTask*>(&s)}) {
        task->SetAlgorithm(l.expected[i]);
        if (l.version < 2204) task->SetGroupOperator(false);
        if (l.version < 1859) task->SetTessarSensitivities(false);
      }
      if (l.version < 1629) {
        t.SetSoftDeletionMethod(kopC_TopologyTask::SoftDeletionMethodEnm::STANDARD);
        t.SetSoftDeletionThreshold(0.05);
      }
    }
    // The stored row OIDs follow the key order: S-0..S-3 and T-0..T-3 are rows 1..4 of their tables.
    const ddr_Database upgraded = dbf_Open(file);
    EXPECT_TRUE(upgraded == expected);
    EXPECT_FALSE(upgraded == db);
    // Upgrading writes today's layout, which reads back the same.
    dbf_Upgrade(file, dir + "/upgraded.odb");
    EXPECT_TRUE(dbf_Open(dir + "/upgraded.odb") == expected);
  }
}

TEST(KopUpgrade, AVersionOlderThanEveryLayoutIsRefused) {
  kop_Start();
  const std::string file = qmx_TempDir("kop-upgrade-refused") + "/old.odb";
  dbf_Save(Saved(), file);
  Retire(file, "kopC_TopologyTask", 1500,
         {"groupOperator", "tessarSensitivities", "softDeletionMethod", "softDeletionThreshold"});
  auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); });
  EXPECT_EQ(e.Message(), "Cannot open the model database \"" + file +
                             "\": class kopC_TopologyTask is stored at version 1500, from which no chain of upgrade "
                             "steps reaches its current version 2204");
}

std::vector<std::string> order;
void* Mark(const dbc_Row&, dbc_Row&, int arg) {
  order.push_back(std::to_string(arg));
  return nullptr;
}

// The driver runs the steps of a base class over the rows of its derived classes: each part from
// the last of its layouts not above the stored version, in database-version order, the base's
// step first where both reach the same version.
TEST(KopUpgrade, BaseStepsRunOverDerivedRowsInVersionOrder) {
  kop_Start();
  dbc_DatabaseConverter steps;
  steps.GetConverter(1562).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1554).BindConversionFunction(&Mark, 1562);
  steps.GetConverter(1629).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1562).BindConversionFunction(&Mark, 1629);
  steps.GetConverter(1629).Upgrade("kopC_TopologyTask", kopC_TopologyTask::TypeId(), 1554).BindConversionFunction(&Mark, -1629);
  steps.GetConverter(1859).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1629).BindConversionFunction(&Mark, 1859);
  steps.GetConverter(2204).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1859).BindConversionFunction(&Mark, 2204);
  const dbc_UpgradeDriver driver(steps);
  struct Case {
    const char* cls;
    int stored;
    std::vector<std::string> ran;
  };
  for (const Case& c : {Case{"kopC_TopologyTask", 1554, {"1562", "1629", "-1629", "1859", "2204"}},
                        Case{"kopC_TopologyTask", 1562, {"1629", "-1629", "1859", "2204"}},
                        Case{"kopC_TopologyTask", 1600, {"1629", "-1629", "1859", "2204"}},
                        Case{"kopC_TopologyTask", 1629, {"1859", "2204"}},
                        Case{"kopC_TopologyTask", 2204, {}},
                        Case{"kopC_ShapeTask", 1555, {"1562", "1629", "1859", "2204"}},
                        Case{"kopC_ShapeTask", 1859, {"2204"}}}) {
    SCOPED_TRACE(std::string(c.cls) + " " + std::to_string(c.stored));
    order.clear();
    EXPECT_TRUE(driver.HasPath(c.cls, c.stored, 2204));
    cls_Record row;
    driver.Upgrade(c.cls, c.stored, 2204, row);
    EXPECT_EQ(order, c.ran);
  }
  EXPECT_FALSE(driver.HasPath("kopC_TopologyTask", 1553, 2204));
  // A chain with a missing step of the base leaves the derived rows without a path.
  dbc_DatabaseConverter gap;
  gap.GetConverter(1562).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1554).BindConversionFunction(&Mark, 1562);
  gap.GetConverter(2204).Upgrade("kopC_OrimTask", kopC_OrimTask::TypeId(), 1859).BindConversionFunction(&Mark, 2204);
  const dbc_UpgradeDriver broken(gap);
  EXPECT_FALSE(broken.HasPath("kopC_TopologyTask", 1554, 2204));
  EXPECT_FALSE(broken.HasPath("kopC_TopologyTask", 1700, 2204));
  EXPECT_TRUE(broken.HasPath("kopC_TopologyTask", 1859, 2204));
}

}  // namespace
