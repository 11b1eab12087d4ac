// Amplitudes in the model database file: every kind saved and read back equal, and files that
// hold rows in the layouts of versions 203 and 208 upgraded as they are opened.
#include <sqlite3.h>

#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "kam/kamC_Amplitude_208.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_EquallySpaced_203.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_Periodic_203.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_SmoothStep_203.h"
#include "kam/kamC_SolutionDependent.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"
#include "kam/kamC_Tabular_203.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kam/kam_test.h"

namespace {

using T2 = cow_2DArray<double>;
using Span = kamC_Amplitude::TimeSpanEnm;

// Runs SQL on a model database file through its checksumming VFS, as an editor of old files would.
void Edit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err), SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

std::vector<std::string> Query(const std::string& path, const std::string& sql) {
  std::vector<std::string> out;
  sqlite3* db = nullptr;
  EXPECT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  sqlite3_stmt* s = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(db, sql.c_str(), -1, &s, nullptr), SQLITE_OK) << sqlite3_errmsg(db) << " in " << sql;
  while (s && sqlite3_step(s) == SQLITE_ROW) {
    const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
    out.emplace_back(t ? t : "NULL");
  }
  sqlite3_finalize(s);
  sqlite3_close(db);
  return out;
}

std::string Bytes(const std::string& path) {
  std::string out;
  if (FILE* f = std::fopen(path.c_str(), "rb")) {
    char buf[4096];
    for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, f)) > 0;) out.append(buf, n);
    std::fclose(f);
  }
  return out;
}

kamC_AmplitudeContainer& Amplitudes(ddr_Database& db) {
  return dynamic_cast<kamC_AmplitudeContainer&>(*db.ModifyModel("Model-1")->ModifyRepository("amplitudes"));
}

class KamFile : public ::testing::Test {
 protected:
  void SetUp() override {
    kam_Start();
    dir_ = qmx_TempDir("kam-file");
  }
  std::string Path(const std::string& name) const { return dir_ + "/" + name; }
  std::string dir_;
};

// The kinds whose storage the file tests look into, members away from their defaults (the generic
// file test round-trips every class filled).
ddr_Database EveryKind() {
  ddr_Database db;
  db.CreateModel("Model-1");
  auto& c = Amplitudes(db);
  kamC_Tabular tab;
  tab.SetTimeSpan(Span::TOTAL);
  tab.SetSmooth(0.05);
  tab.SetData(T2{{0, 0}, {0.5, 1}, {0.5, 2}, {3, -1e300}});
  tab.SetBaselineCorrection(kamC_BaselineCorrection(cow_List<double>{0, 0.25, 2}));
  c.Insert("Tabular", tab);
  c.Insert("Tabular-default", kamC_Tabular());
  kamC_EquallySpaced eq;
  eq.SetFixedInterval(0.01);
  eq.SetBegin(-1);
  eq.SetData({0, 0.5, 1, 0.5, 0});
  eq.SetBaselineCorrection(kamC_BaselineCorrection(cow_List<double>{}));
  c.Insert("EquallySpaced", eq);
  kamC_Spectrum spectrum;
  spectrum.SetSpectrumType(kamC_Spectrum::SpectrumTypeEnm::VELOCITY);
  spectrum.SetGravity(9.81);
  spectrum.SetData(T2{{0.1, 1, 0.02}, {0.2, 2, 0.02}});
  c.Insert("Spectrum", spectrum);
  kamC_PsdDefinition psd;
  psd.SetUnitType(kamC_PsdDefinition::PsdTypeEnm::DB);
  psd.SetReferencePower(1e-3);
  psd.SetDbReference(2e-5);
  psd.SetData(T2{{1, 3, 0}, {15, 2, 0}});
  c.Insert("Psd", psd);
  c.Insert("Psd-default", kamC_PsdDefinition());  // an empty table of three columns
  kamC_PsdDefinition sub;
  sub.SetUserSubroutine(true);
  sub.SetData(T2());
  c.Insert("Psd-user", sub);
  return db;
}

TEST_F(KamFile, EveryKindRoundTripsThroughTheFile) {
  const ddr_Database db = EveryKind();
  const std::string file = Path("every.odb");
  dbf_Save(db, file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == db);
  // each kind in its own table, with its own class version
  for (const char* cls : {"kamC_Tabular", "kamC_EquallySpaced", "kamC_Spectrum", "kamC_PsdDefinition",
                          "kamC_BaselineCorrection"})
    EXPECT_EQ(Query(file, std::string("SELECT version FROM dbf_Catalog WHERE name = '") + cls + "'"),
              std::vector<std::string>{"424"})
        << cls;
  EXPECT_EQ(Query(file, "SELECT timeSpan FROM kamC_Tabular ORDER BY OID"), (std::vector<std::string>{"TOTAL", "STEP"}));
  EXPECT_EQ(Query(file, "SELECT unitType FROM kamC_PsdDefinition ORDER BY OID"),
            (std::vector<std::string>{"DB", "BASE", "BASE"}));
  EXPECT_EQ(Query(file, "SELECT data FROM kamC_EquallySpaced"), (std::vector<std::string>{"[0,0.5,1,0.5,0]"}));
  EXPECT_EQ(Query(file, "SELECT count(*) FROM kamC_BaselineCorrection"), (std::vector<std::string>{"2"}));
  // the unset correction of the default tabular is stored as no object
  EXPECT_EQ(Query(file, "SELECT count(*) FROM kamC_Tabular WHERE \"baselineCorrection#OID\" IS NULL"),
            (std::vector<std::string>{"1"}));
  // the empty three-column table keeps its width
  const auto& psd = dynamic_cast<const kamC_PsdDefinition&>(
      *dynamic_cast<const kamC_AmplitudeContainer&>(*back.FindModel("Model-1")->FindRepository("amplitudes"))
           .ConstGet("Psd-default"));
  EXPECT_EQ(psd.GetData().Rows(), 0u);
  EXPECT_EQ(psd.GetData().Columns(), 3u);
  EXPECT_NO_THROW(psd.AssertValid());
}

TEST_F(KamFile, AStoredLiteralThatIsNotOneIsRefused) {
  const std::string file = Path("bad.odb");
  dbf_Save(EveryKind(), file);
  Edit(file, "UPDATE kamC_Spectrum SET spectrumType = 'SPEED'");
  auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); });
  // The file's refusal names the field, the row, the class and the literal; reading a record
  // without a file refuses with the enumeration's own message (the persistence tests).
  EXPECT_EQ(e.Message(), "Cannot open the model database \"" + file +
                             "\": the file is damaged (the field \"spectrumType\" of row 1 of class kamC_Spectrum "
                             "holds the literal \"SPEED\": omu_PrimEnum(const cow_String&) - str not allowed: SPEED  Permissible: DISPLACEMENT, VELOCITY, ACCELERATION)");
}

// --- files of older versions ---------------------------------------------------------------------

// A retired layout: the class, the version it is stored at and the fields that version lacked.
struct OldLayout {
  const char* cls;
  int version;
  std::vector<std::string> missing;
};

const std::vector<OldLayout>& OldLayouts() {
  static const std::vector<OldLayout> layouts = {
      {"kamC_Tabular", 203, {"timeSpan", "smooth", "baselineCorrection"}},
      {"kamC_EquallySpaced", 203, {"timeSpan", "smooth", "baselineCorrection"}},
      {"kamC_Periodic", 203, {"timeSpan"}},
      {"kamC_SmoothStep", 203, {"timeSpan"}},
      {"kamC_Modulated", 208, {"timeSpan"}},
      {"kamC_Decay", 208, {"timeSpan"}},
      {"kamC_SolutionDependent", 208, {"timeSpan"}},
  };
  return layouts;
}

std::string HashWithout(const char* cls, const std::vector<std::string>& missing) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName(cls)->Attributes())
    if (std::find(missing.begin(), missing.end(), a.handle.Name().str()) == missing.end()) attrs.push_back(a);
  return dbf_FieldTableHash(attrs);
}

// Rewrites the rows of one class in a current file into its old layout.
void MakeOld(const std::string& file, const OldLayout& old) {
  std::string sql;
  std::string names;
  for (const std::string& f : old.missing) {
    if (f == "baselineCorrection")
      sql += std::string("ALTER TABLE ") + old.cls + " DROP COLUMN \"baselineCorrection#OID\";ALTER TABLE " + old.cls +
             " DROP COLUMN \"baselineCorrection#ClassID\";";
    else
      sql += std::string("ALTER TABLE ") + old.cls + " DROP COLUMN " + f + ";";
    names += (names.empty() ? "'" : ",'") + f + "'";
  }
  sql += std::string("DELETE FROM dbf_Fields WHERE class = '") + old.cls + "' AND name IN (" + names + ");";
  sql += "UPDATE dbf_Catalog SET version = " + std::to_string(old.version) + ", fieldHash = '" +
         HashWithout(old.cls, old.missing) + "' WHERE name = '" + old.cls + "';";
  Edit(file, sql);
}

// The kinds that have older layouts, as a library of 208 could have held them: no correction, no
// smoothing, and time spans and values that the upgrade must set or keep.
ddr_Database OldKinds() {
  ddr_Database db;
  db.CreateModel("Model-1");
  auto& c = Amplitudes(db);
  kamC_Tabular tab;
  tab.SetData(T2{{0, 0}, {1, 2}, {4, 2}});
  tab.SetTimeSpan(Span::TOTAL);
  tab.SetSmooth(0.3);
  c.Insert("Tabular", tab);
  kamC_EquallySpaced eq;
  eq.SetFixedInterval(0.5);
  eq.SetBegin(2);
  eq.SetData({1, 2, 3});
  eq.SetSmooth(0.0);
  eq.SetTimeSpan(Span::TOTAL);
  c.Insert("EquallySpaced", eq);
  kamC_Periodic per;
  per.SetFrequency(3.5);
  per.SetA_0(-1);
  per.SetData(T2{{0.5, 0.25}, {0.125, 0}});
  per.SetTimeSpan(Span::TOTAL);
  c.Insert("Periodic", per);
  kamC_SmoothStep step;
  step.SetData(T2{{0, 1}, {2, 0}});
  step.SetTimeSpan(Span::TOTAL);
  c.Insert("SmoothStep", step);
  kamC_Modulated mod;
  mod.SetMagnitude(7);
  mod.SetTimeSpan(Span::TOTAL);
  c.Insert("Modulated", mod);
  kamC_Decay dec;
  dec.SetDecayTime(9);
  dec.SetTimeSpan(Span::TOTAL);
  c.Insert("Decay", dec);
  kamC_SolutionDependent sol;
  sol.SetMaximum(99);
  sol.SetTimeSpan(Span::TOTAL);
  c.Insert("SolutionDependent", sol);
  kamC_PsdDefinition psd;  // stored at today's version: untouched
  psd.SetTimeSpan(Span::TOTAL);
  c.Insert("Psd", psd);
  return db;
}

// What each upgrade gives: the time span every amplitude had, the solver's default smoothing.
ddr_Database Upgraded(const ddr_Database& db, const std::vector<std::string>& classes) {
  ddr_Database out = db;
  auto& c = Amplitudes(out);
  for (const cow_String& key : c.Keys()) {
    const std::string cls = cls_ClassOf(*c.ConstGet(key)).Name().str();
    if (std::find(classes.begin(), classes.end(), cls) == classes.end()) continue;
    kamC_Amplitude& a = c.Get(key);
    a.SetTimeSpan(Span::STEP);
    if (auto* t = dynamic_cast<kamC_Tabular*>(&a)) t->SetSmooth(kam_kUnspecified);
    if (auto* e = dynamic_cast<kamC_EquallySpaced*>(&a)) e->SetSmooth(kam_kUnspecified);
  }
  return out;
}

TEST_F(KamFile, EachOldLayoutIsUpgradedByItsConverter) {
  const ddr_Database db = OldKinds();
  for (const OldLayout& old : OldLayouts()) {
    SCOPED_TRACE(old.cls);
    const std::string file = Path(std::string("old-") + old.cls + ".odb");
    dbf_Save(db, file);
    MakeOld(file, old);
    EXPECT_EQ(Query(file, std::string("SELECT version FROM dbf_Catalog WHERE name = '") + old.cls + "'"),
              std::vector<std::string>{std::to_string(old.version)});
    const std::string bytes = Bytes(file);

    const ddr_Database expected = Upgraded(db, {old.cls});
    const ddr_Database opened = dbf_Open(file);
    EXPECT_TRUE(opened == expected);
    EXPECT_FALSE(opened == db);
    EXPECT_EQ(Bytes(file), bytes);  // opening changed nothing
    const auto& c = dynamic_cast<const kamC_AmplitudeContainer&>(*opened.FindModel("Model-1")->FindRepository("amplitudes"));
    for (const cow_String& key : c.Keys()) EXPECT_NO_THROW(c.ConstGet(key)->AssertValid()) << key.str();

    const std::string upgraded = Path(std::string("new-") + old.cls + ".odb");
    dbf_Upgrade(file, upgraded);
    EXPECT_EQ(Query(upgraded, std::string("SELECT version FROM dbf_Catalog WHERE name = '") + old.cls + "'"),
              std::vector<std::string>{"424"});
    EXPECT_TRUE(dbf_Open(upgraded) == expected);
  }
}

TEST_F(KamFile, AnOldLayoutWithoutItsStepIsRefused) {
  const std::string file = Path("nostep.odb");
  dbf_Save(OldKinds(), file);
  MakeOld(file, OldLayouts()[0]);
  // steps of the other layouts do not reach the tabular amplitude at 203
  dbc_DatabaseConverter steps;
  kamC_Amplitude_208().SchemaChanges(steps);
  kamC_EquallySpaced_203().SchemaChanges(steps);
  kamC_Periodic_203().SchemaChanges(steps);
  kamC_SmoothStep_203().SchemaChanges(steps);
  auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file, dbc_UpgradeDriver(steps)); });
  EXPECT_EQ(e.Message(), "Cannot open the model database \"" + file +
                             "\": class kamC_Tabular is stored at version 203, from which no chain of upgrade steps "
                             "reaches its current version 424");
  kamC_Tabular_203().SchemaChanges(steps);
  EXPECT_NO_THROW(dbf_Open(file, dbc_UpgradeDriver(steps)));
}

TEST_F(KamFile, ConvertersWorkOnRowsOfTheirOwnLayout) {
  // The exported functions, row by row: what they add and what they keep.
  cls_Record oldTab;
  oldTab.Set("data", T2{{0, 1}, {1, 1}});
  cls_Record newTab = oldTab;
  dbc_Row in(static_cast<const cls_Record&>(oldTab)), out(newTab);
  EXPECT_EQ(Upgrade_kamC_Tabular_203_424(in, out, 0), nullptr);
  EXPECT_EQ(std::get<cow_String>(*newTab.Find("timeSpan")), "STEP");
  EXPECT_EQ(std::get<double>(*newTab.Find("smooth")), kam_kUnspecified);
  EXPECT_TRUE(std::holds_alternative<std::monostate>(*newTab.Find("baselineCorrection")));
  EXPECT_EQ(std::get<T2>(*newTab.Find("data")), (T2{{0, 1}, {1, 1}}));

  for (auto fn : {&Upgrade_kamC_Amplitude_208_424, &Upgrade_kamC_Periodic_203_424, &Upgrade_kamC_SmoothStep_203_424,
                  &Upgrade_kamC_EquallySpaced_203_424}) {
    cls_Record oldRow;
    oldRow.Set("start", 2.5);
    cls_Record newRow = oldRow;
    dbc_Row o(static_cast<const cls_Record&>(oldRow)), n(newRow);
    EXPECT_EQ(fn(o, n, 0), nullptr);
    EXPECT_EQ(std::get<cow_String>(*newRow.Find("timeSpan")), "STEP");
    EXPECT_EQ(std::get<double>(*newRow.Find("start")), 2.5);
  }
}

}  // namespace
