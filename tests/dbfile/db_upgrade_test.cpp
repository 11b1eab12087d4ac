// Files written at older versions: rows in the layouts of retired class versions are upgraded
// through the converter chain as they are opened, nested rows included; a version without a
// chain of steps, a newer version and a field table changed without a version step are refused.
#include <gtest/gtest.h>

#include "kad/kadC_ACWrapper.h"
#include "kad/kadC_AdptMeshCtrl_302.h"
#include "kad/kadC_AdptMeshCtrl_829.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

using Algorithm = kadC_AdptMeshCtrl::SmoothingAlgorithmEnm;

class DbUpgrade : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-upgrade");
  }
  std::string Path(const std::string& name) const { return dir_ + "/" + name; }
  std::string Prefix(const std::string& file) const { return "Cannot open the model database \"" + file + "\": "; }
  std::string dir_;
};

kadC_AdptMeshCtrlCont& Controls(ddr_Database& db) {
  return dynamic_cast<kadC_AdptMeshCtrlCont&>(*db.ModifyModel("Model-1")->ModifyRepository("adaptiveMeshControls"));
}

// Controls with each algorithm and weights away from the values the 860 step gives.
ddr_Database ControlsDatabase() {
  ddr_Database db;
  db.CreateModel("Model-1");
  const Algorithm algorithms[] = {Algorithm::STANDARD, Algorithm::GEOMETRY_ENHANCED, Algorithm::ANALYSIS_PRODUCT_DEFAULT,
                                  Algorithm::GEOMETRY_ENHANCED};
  for (int i = 0; i < 4; ++i) {
    kadC_AdptMeshCtrl c;
    c.SetSmoothingAlgorithm(algorithms[i]);
    c.SetInitialFeatureAngle(10.0 * i);
    c.SetStandardVolumetricSmoothingWeight(0.4);
    c.SetOriginalConfigurationProjectionWeight(0.6);
    Controls(db).Insert("C-" + std::to_string(i), c);
  }
  return db;
}

// The attributes of a class without the named ones, for the hash of an older layout.
std::string HashWithout(const char* className, const std::vector<std::string>& dropped,
                        const std::vector<std::pair<std::string, std::string>>& renamed = {}) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName(className)->Attributes()) {
    std::string name = a.handle.Name().str();
    if (std::find(dropped.begin(), dropped.end(), name) != dropped.end()) continue;
    for (const auto& [from, to] : renamed)
      if (name == from) name = to;
    attrs.push_back(cls_Attribute{cls_FieldHandle(a.handle.Number(), name.c_str()), a.type, a.count, a.collection});
  }
  return dbf_FieldTableHash(attrs);
}

// Rewrites a current file's control rows into the layout the control had at `version` (before
// 860 added its two weights), as a library of that version would have written them.
void MakeOldControls(const std::string& file, int version) {
  const std::string hash =
      HashWithout("kadC_AdptMeshCtrl", {"standardVolumetricSmoothingWeight", "originalConfigurationProjectionWeight"});
  dbtT_Edit(file,
            "ALTER TABLE kadC_AdptMeshCtrl DROP COLUMN standardVolumetricSmoothingWeight;"
            "ALTER TABLE kadC_AdptMeshCtrl DROP COLUMN originalConfigurationProjectionWeight;"
            "DELETE FROM dbf_Fields WHERE class = 'kadC_AdptMeshCtrl' AND name IN"
            " ('standardVolumetricSmoothingWeight', 'originalConfigurationProjectionWeight');"
            "UPDATE dbf_Catalog SET version = " + std::to_string(version) + ", fieldHash = '" + hash +
                "' WHERE name = 'kadC_AdptMeshCtrl';");
}

TEST_F(DbUpgrade, ControlsStoredAtOlderVersionsFollowTheirChain) {
  struct Case {
    int version;
    Algorithm enhancedBecomes;  // the 302 step maps GEOMETRY_ENHANCED; the 829 step does not
  };
  for (const Case c : {Case{302, Algorithm::ANALYSIS_PRODUCT_DEFAULT}, Case{829, Algorithm::GEOMETRY_ENHANCED}}) {
    SCOPED_TRACE(c.version);
    ddr_Database db = ControlsDatabase();
    const std::string old = Path("old-" + std::to_string(c.version) + ".odb");
    dbf_Save(db, old);
    MakeOldControls(old, c.version);
    const auto bytes = dbtT_ReadBytes(old);

    ddr_Database expected = db;
    for (const cow_String& key : Controls(expected).Keys()) {
      kadC_AdptMeshCtrl& ctrl = Controls(expected).Get(key);
      if (ctrl.GetSmoothingAlgorithm() == Algorithm::GEOMETRY_ENHANCED) ctrl.SetSmoothingAlgorithm(c.enhancedBecomes);
      ctrl.SetOriginalConfigurationProjectionWeight(1.0);
      ctrl.SetStandardVolumetricSmoothingWeight(0.0);
    }
    ddr_Database upgraded = dbf_Open(old);
    EXPECT_TRUE(upgraded == expected);
    EXPECT_FALSE(upgraded == db);
    EXPECT_EQ(dbtT_ReadBytes(old), bytes);  // opening changed nothing

    // The same objects as a file written at today's version gives.
    dbf_Save(expected, Path("current.odb"));
    EXPECT_TRUE(dbf_Open(Path("current.odb")) == upgraded);
    // Upgrading the file writes today's layout.
    dbf_Upgrade(old, Path("upgraded.odb"));
    EXPECT_EQ(dbtT_Query(Path("upgraded.odb"), "SELECT version FROM dbf_Catalog WHERE name = 'kadC_AdptMeshCtrl'"), "860");
    EXPECT_TRUE(dbf_Open(Path("upgraded.odb")) == expected);
  }
}

// A literal that is none of today's, in a row that is upgraded first, is named as one read as
// stored is: by field, row and class.
TEST_F(DbUpgrade, AnUnknownLiteralInAnUpgradedRowIsNamed) {
  for (int version : {302, 829}) {
    SCOPED_TRACE(version);
    const std::string old = Path("literal-" + std::to_string(version) + ".odb");
    dbf_Save(ControlsDatabase(), old);
    MakeOldControls(old, version);
    dbtT_Edit(old, "UPDATE kadC_AdptMeshCtrl SET advection = 'SIDEWAYS' WHERE OID = 2");
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { dbf_Open(old); }).Message(),
              Prefix(old) +
                  "the file is damaged (the field \"advection\" of row 2 of class kadC_AdptMeshCtrl holds the literal "
                  "\"SIDEWAYS\": omu_PrimEnum(const cow_String&) - str not allowed: SIDEWAYS  Permissible: FIRST_ORDER_ADVECTION, SECOND_ORDER_ADVECTION)");
  }
}

TEST_F(DbUpgrade, AVersionWithoutAChainOfStepsIsRefusedNotSkipped) {
  dbf_Save(ControlsDatabase(), Path("old.odb"));
  MakeOldControls(Path("old.odb"), 302);
  auto noChain = [](int version) {
    return "class kadC_AdptMeshCtrl is stored at version " + std::to_string(version) +
           ", from which no chain of upgrade steps reaches its current version 860";
  };

  // A converter that lacks one step of the chain.
  for (bool keep302 : {true, false}) {
    dbc_DatabaseConverter steps;
    if (keep302) kadC_AdptMeshCtrl_302().SchemaChanges(steps);
    else kadC_AdptMeshCtrl_829().SchemaChanges(steps);
    dbc_UpgradeDriver driver(steps);
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(Path("old.odb"), driver); });
    EXPECT_EQ(e.Message(), Prefix(Path("old.odb")) + noChain(302));
  }
  // A version from which no step starts.
  dbtT_Edit(Path("old.odb"), "UPDATE dbf_Catalog SET version = 500 WHERE name = 'kadC_AdptMeshCtrl'");
  auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(Path("old.odb")); });
  EXPECT_EQ(e.Message(), Prefix(Path("old.odb")) + noChain(500));
}

// --- nested rows of test classes, upgraded by steps given to the opening -----------------------

void* DetailFrom0(const dbc_Row&, dbc_Row& newRow, int) {
  newRow.SetString(rfm_FieldHandle("note"), "upgraded");
  return nullptr;
}

void* SampleFrom0(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  newRow.SetInt(rfm_FieldHandle("count"), oldRow.GetInt(rfm_FieldHandle("legacyCount")) + 1000);
  newRow.Remove(rfm_FieldHandle("legacyCount"));
  return nullptr;
}

void* Refuse(const dbc_Row&, dbc_Row&, int) { nex_ThrowCmd("this row cannot be converted"); }

void NoteUpgraded(dbtT_Detail::Handle& h) {
  if (h.IsNull()) return;
  dbtT_Detail& d = h.Get();
  d.note = "upgraded";
  NoteUpgraded(d.inner);
}

TEST_F(DbUpgrade, NestedRowsOfEveryDepthAreUpgradedWithTheirOwnClasses) {
  ddr_Database db = dbtT_MakeDatabase(1);
  const std::string old = Path("nested.odb");
  dbf_Save(db, old);
  // dbtT_Detail at version 0 had no note; dbtT_Sample at version 0 called its count legacyCount.
  dbtT_Edit(old,
            "ALTER TABLE dbtT_Detail DROP COLUMN note;"
            "DELETE FROM dbf_Fields WHERE class = 'dbtT_Detail' AND name = 'note';"
            "UPDATE dbf_Catalog SET version = 0, fieldHash = '" + HashWithout("dbtT_Detail", {"note"}) +
                "' WHERE name = 'dbtT_Detail';"
                "ALTER TABLE dbtT_Sample RENAME COLUMN count TO legacyCount;"
                "UPDATE dbtT_Sample SET legacyCount = 5 WHERE legacyCount = 0;"
                "UPDATE dbf_Fields SET name = 'legacyCount' WHERE class = 'dbtT_Sample' AND name = 'count';"
                "UPDATE dbf_Catalog SET version = 0, fieldHash = '" +
                HashWithout("dbtT_Sample", {}, {{"count", "legacyCount"}}) + "' WHERE name = 'dbtT_Sample';");

  dbc_DatabaseConverter steps;
  steps.GetConverter(1).Upgrade("dbtT_Detail", dbtT_Detail::TypeId(), 0).BindConversionFunction(&DetailFrom0);
  steps.GetConverter(1).Upgrade("dbtT_Sample", dbtT_Sample::TypeId(), 0).BindConversionFunction(&SampleFrom0);
  ddr_Database upgraded = dbf_Open(old, dbc_UpgradeDriver(steps));

  ddr_Database expected = db;
  auto& samples = dynamic_cast<dbtT_SampleCont&>(*expected.ModifyModel("Model-1")->ModifyRepository("samples"));
  for (const char* key : {"Filled", "Default"}) {
    dbtT_Sample& s = samples.Get(key);
    s.count = key == std::string("Filled") ? INT32_MIN + 1000 : 1005;
    NoteUpgraded(s.detail);
    s.fixed.note = "upgraded";
    std::vector<dbtT_Detail::Handle> details(s.details.begin(), s.details.end());
    for (auto& h : details) NoteUpgraded(h);
    s.details = cow_List<dbtT_Detail::Handle>(details);
  }
  EXPECT_TRUE(upgraded == expected);

  // Without the steps the same file is refused; a step that fails refuses it with its reason.
  auto e1 = qmx_Catch<nex_CmdError>([&] { dbf_Open(old); });
  EXPECT_EQ(e1.Message(), Prefix(old) +
                              "class dbtT_Sample is stored at version 0, from which no chain of upgrade steps reaches "
                              "its current version 1");
  dbc_DatabaseConverter failing;
  failing.GetConverter(1).Upgrade("dbtT_Detail", dbtT_Detail::TypeId(), 0).BindConversionFunction(&Refuse);
  failing.GetConverter(1).Upgrade("dbtT_Sample", dbtT_Sample::TypeId(), 0).BindConversionFunction(&SampleFrom0);
  auto e2 = qmx_Catch<nex_CmdError>([&] { dbf_Open(old, dbc_UpgradeDriver(failing)); });
  EXPECT_EQ(e2.Message(), Prefix(old) + "this row cannot be converted");
}

// --- versions the library cannot read -------------------------------------------------------------

TEST_F(DbUpgrade, NewerFilesAndChangedFieldTablesAreRefused) {
  const int current = dbf_DatabaseVersion();
  struct Case {
    const char* what;
    std::string sql;
    std::string reason;
  };
  const std::string sameVersionHash =
      HashWithout("kadC_AdptMeshCtrl", {}, {{"meshConstraintAngle", "meshConstraintAngleOld"}});
  const Case cases[] = {
      {"newer database",
       "PRAGMA user_version = " + std::to_string(current + 1) + "; UPDATE dbf_Meta SET value = '" +
           std::to_string(current + 1) + "' WHERE key = 'databaseVersion'",
       "the file was written by a newer library (database version " + std::to_string(current + 1) +
           "; this library reads versions up to " + std::to_string(current) + ")"},
      {"newer class", "UPDATE dbf_Catalog SET version = 861 WHERE name = 'kadC_AdptMeshCtrl'",
       "class kadC_AdptMeshCtrl is stored at version 861, newer than this library's version 860"},
      {"field table changed without a version step",
       "ALTER TABLE kadC_AdptMeshCtrl RENAME COLUMN meshConstraintAngle TO meshConstraintAngleOld;"
       "UPDATE dbf_Fields SET name = 'meshConstraintAngleOld' WHERE name = 'meshConstraintAngle';"
       "UPDATE dbf_Catalog SET fieldHash = '" + sameVersionHash + "' WHERE name = 'kadC_AdptMeshCtrl'",
       "the fields of class kadC_AdptMeshCtrl differ from the ones stored at its version 860; a changed field table "
       "needs a new class version and an upgrade step"},
      {"class this library does not know",
       "ALTER TABLE dbtT_Detail RENAME TO zzzT_Gone; UPDATE dbf_Catalog SET name = 'zzzT_Gone' WHERE name = 'dbtT_Detail';"
       "UPDATE dbf_Fields SET class = 'zzzT_Gone' WHERE class = 'dbtT_Detail'",
       "the file holds objects of class zzzT_Gone, which this library does not know"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const std::string f = Path("refused.odb");
    dbf_Save(dbtT_MakeDatabase(2), f);
    dbtT_Edit(f, c.sql);
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(f); });
    EXPECT_EQ(e.Message(), Prefix(f) + c.reason);
  }
}

}  // namespace
