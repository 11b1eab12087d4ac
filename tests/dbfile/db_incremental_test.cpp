// A save into the file a database came from writes what changed, in place: few rows for few
// changes, the file equal to the database after any sequence of such saves, new files and other
// targets written whole, a file changed behind the database's back refused as before.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <random>

#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Seen.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/base/nex_Exception.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

kadC_AdptMeshCtrlCont& IncControls(ddr_Database& db, const char* model = "Model-1") {
  return *dynamic_cast<kadC_AdptMeshCtrlCont*>(db.ModifyModel(model)->ModifyRepository("adaptiveMeshControls"));
}
dbtT_SampleCont& IncSamples(ddr_Database& db, const char* model = "Model-1") {
  return *dynamic_cast<dbtT_SampleCont*>(db.ModifyModel(model)->ModifyRepository("samples"));
}

// Every class table holds as many rows as the catalog says.
void ExpectCatalogTrue(const std::string& path) {
  for (const std::string& name : dbtT_QueryColumn(path, "SELECT name FROM dbf_Catalog")) {
    SCOPED_TRACE(name);
    EXPECT_EQ(dbtT_Query(path, "SELECT rows FROM dbf_Catalog WHERE name = '" + name + "'"),
              dbtT_Query(path, "SELECT count(*) FROM \"" + name + "\""));
  }
}

class DbIncremental : public ::testing::Test {
 protected:
  void SetUp() override {
    dbtT_Start();
    dir_ = qmx_TempDir("db-incremental");
    path_ = dir_ + "/model.odb";
    db_ = dbtT_MakeDatabase(2000);
    Save();
    EXPECT_FALSE(stats_.inPlace);  // a new file is written whole
  }
  void Save(const std::string& path = {}) {
    dbf_SaveOptions options;
    options.baseline = &baseline_;
    options.seen = &seen_;
    options.stats = &stats_;
    dbf_Save(db_, path.empty() ? path_ : path, options);
  }
  std::string dir_, path_;
  ddr_Database db_;
  dbf_Baseline baseline_;
  dbf_Seen seen_;
  dbf_SaveStats stats_;
};

TEST_F(DbIncremental, AFewChangesWriteAFewRows) {
  struct Case {
    const char* what;
    std::function<void(ddr_Database&)> change;
    std::int64_t written, deleted, changes;  // changes: rows of every table, catalog and meta included
  };
  const Case cases[] = {
      {"nothing", [](ddr_Database&) {}, 0, 0, 0},
      // The element is written over its own row: the repository's row stays as stored.
      {"one field of one element", [](ddr_Database& d) { IncControls(d).Get("C-7").SetInitialFeatureAngle(33); }, 1,
       0, 1 + 1 + 3},
      {"one element put back as it was",
       [](ddr_Database& d) { IncControls(d).Get("C-7").SetInitialFeatureAngle(7); }, 1, 0, 5},
      {"fetched for change but left equal", [](ddr_Database& d) { IncControls(d).Get("C-8"); }, 0, 0, 0},
      {"two elements", [](ddr_Database& d) {
         IncControls(d).Get("C-1").SetCurvatureRefinement(0.25);
         IncControls(d).Get("C-1999").SetCurvatureRefinement(0.75);
       }, 2, 0, 2 + 1 + 3},
      // A new key adds the element's row and its row of dbf_Elements; the repository's row stays.
      {"a new element", [](ddr_Database& d) { IncControls(d).Insert("C-new", kadC_AdptMeshCtrl()); }, 1, 0,
       1 + 1 + 1 + 3},
      {"an element removed", [](ddr_Database& d) { IncControls(d).Remove("C-500"); }, 0, 1, 1 + 1 + 1 + 3},
      // A member object held deep inside an element: only its row changes.
      {"a nested member", [](ddr_Database& d) { IncSamples(d).Get("Filled").detail.Get().value = 9.5; }, 1, 0, 5},
      {"a member replaced by one of another shape",
       [](ddr_Database& d) { IncSamples(d).Get("Filled").detail = dbtT_Detail::Handle(dbtT_Detail(2, "plain")); }, 1,
       1, 1 + 1 + 1 + 3},
      {"a model removed", [](ddr_Database& d) { d.RemoveModel("Model-10"); }, 0, -1, -1},
  };
  ASSERT_EQ(dbtT_QueryColumn(path_, "SELECT name FROM dbf_Roots ORDER BY name"),
            (std::vector<std::string>{"Model-1", "Model-10"}));
  const auto total = [&] { return std::stoll(dbtT_Query(path_, "SELECT sum(rows) FROM dbf_Catalog")); };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const long long before = total();
    c.change(db_);
    Save();
    EXPECT_TRUE(stats_.inPlace);
    EXPECT_EQ(stats_.written, c.written);
    if (c.deleted >= 0) {
      EXPECT_EQ(stats_.deleted, c.deleted);
    }
    if (c.changes >= 0) {
      EXPECT_EQ(stats_.changes, c.changes);
    }
    if (c.deleted >= 0) {
      EXPECT_LE(stats_.written + stats_.deleted, 20);  // never the model's 2,000 rows
    }
    EXPECT_TRUE(dbf_Open(path_) == db_);
    ExpectCatalogTrue(path_);
    if (c.deleted < 0) {
      EXPECT_EQ(before - total(), stats_.deleted);
    }
  }
  EXPECT_GT(stats_.deleted, 10);  // a model with every container
  EXPECT_EQ(dbtT_QueryColumn(path_, "SELECT name FROM dbf_Roots"), std::vector<std::string>{"Model-1"});
  // The same changes written whole: every row.
  dbf_SaveStats full;
  dbf_SaveOptions options;
  options.stats = &full;
  dbf_Save(db_, dir_ + "/whole.odb", options);
  EXPECT_FALSE(full.inPlace);
  EXPECT_GT(full.written, 2000);
}

TEST_F(DbIncremental, ANewModelIsWrittenWholeAndReadsBack) {
  ddr_Model& m = db_.CreateModel("Model-2");
  auto* samples = dynamic_cast<dbtT_SampleCont*>(m.ModifyRepository("samples"));
  samples->Insert("Filled", dbtT_Sample::Filled());
  Save();
  EXPECT_TRUE(stats_.inPlace);
  EXPECT_EQ(stats_.deleted, 0);
  EXPECT_GT(stats_.written, 5);
  EXPECT_TRUE(dbf_Open(path_) == db_);
  ExpectCatalogTrue(path_);
}

TEST_F(DbIncremental, SaveAsWritesAllAndMovesTheBaseline) {
  const std::string other = dir_ + "/other.odb";
  IncControls(db_).Get("C-3").SetInitialFeatureAngle(99);
  Save(other);
  EXPECT_FALSE(stats_.inPlace);
  IncControls(db_).Get("C-4").SetInitialFeatureAngle(98);
  Save(other);
  EXPECT_TRUE(stats_.inPlace);
  EXPECT_EQ(stats_.written, 1);
  // The first file is no longer the one this database saw last: written whole.
  Save();
  EXPECT_FALSE(stats_.inPlace);
  EXPECT_TRUE(dbf_Open(path_) == db_);
  EXPECT_TRUE(dbf_Open(other) == db_);
}

TEST_F(DbIncremental, AnOpenedFileIsPatchedToo) {
  dbf_Baseline opened;
  ddr_Database db = dbf_Open(path_, opened);
  IncControls(db).Get("C-11").SetInitialFeatureAngle(12.5);
  IncSamples(db).Remove("Default");
  dbf_SaveOptions options;
  options.baseline = &opened;
  options.stats = &stats_;
  dbf_Save(db, path_, options);
  EXPECT_TRUE(stats_.inPlace);
  EXPECT_EQ(stats_.written, 1);  // the element; the samples' row stays as stored
  EXPECT_EQ(stats_.deleted, 2);  // the sample and the member it holds by value
  EXPECT_TRUE(dbf_Open(path_) == db);
}

TEST_F(DbIncremental, AFileChangedBehindTheDatabaseIsNotPatched) {
  // Another process saved the file: refused as before, and the file stays theirs.
  ddr_Database theirs = dbtT_MakeDatabase(5);
  dbf_Save(theirs, path_);
  IncControls(db_).Get("C-3").SetInitialFeatureAngle(1);
  auto e = qmx_Catch<nex_CmdError>([&] { Save(); });
  EXPECT_EQ(e.Message(), "Cannot save the model database \"" + path_ +
                             "\": it was changed by another process since it was opened; save to another file or "
                             "reopen");
  EXPECT_TRUE(dbf_Open(path_) == theirs);
  // Edited by a tool, then saved over on purpose: written whole, never patched on a guess.
  dbtT_Edit(path_, "UPDATE dbf_Meta SET value = value WHERE key = 'format'");
  dbf_SaveOptions options;
  options.baseline = &baseline_;
  options.stats = &stats_;
  dbf_Save(db_, path_, options);
  EXPECT_FALSE(stats_.inPlace);
  EXPECT_TRUE(dbf_Open(path_) == db_);
}

TEST_F(DbIncremental, AFailedPatchLeavesTheFileAndTheNextSavePatches) {
  const auto bytes = dbtT_ReadBytes(path_);
  const ddr_Database before = db_;
  IncControls(db_).Get("C-5").SetInitialFeatureAngle(55);
  IncControls(db_).Insert("C-new", kadC_AdptMeshCtrl());
  for (const char* stage : {"row", "commit"}) {
    SCOPED_TRACE(stage);
    dbf_SaveOptions options;
    options.baseline = &baseline_;
    options.seen = &seen_;
    options.stats = &stats_;
    options.progress = [&](const char* s, std::int64_t) {
      if (std::string(s) == stage) throw std::runtime_error("failure injected by the test");
    };
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Save(db_, path_, options); });
    EXPECT_EQ(e.Message(), "Cannot save the model database \"" + path_ + "\": failure injected by the test");
    EXPECT_EQ(dbtT_ReadBytes(path_), bytes);
    EXPECT_TRUE(dbf_Open(path_) == before);
  }
  Save();  // neither refused as another process's change nor written whole
  EXPECT_TRUE(stats_.inPlace);
  EXPECT_TRUE(dbf_Open(path_) == db_);
}

// Random changes of every kind, saved in place every few, must read back as the database held
// them, and the catalog must count every table's rows.
TEST_F(DbIncremental, RandomChangesSavedEveryFewReadBackEqual) {
  std::mt19937 rng(20261126);
  auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
  auto anyKey = [&](const auto& repo) -> cow_String {
    const auto keys = repo.Keys();
    return keys.empty() ? cow_String() : keys[static_cast<std::size_t>(pick(static_cast<int>(keys.size())))];
  };
  int saves = 0, nextSave = 1;
  for (int step = 0; step < 1000; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    const char* model = db_.FindModel("Model-2") && pick(3) == 0 ? "Model-2" : "Model-1";
    switch (pick(10)) {
      case 0:
      case 1: {
        auto& c = IncControls(db_, model);
        if (cow_String k = anyKey(c); !k.empty()) c.Get(k).SetInitialFeatureAngle(pick(180));
        break;
      }
      case 2: IncControls(db_, model).Insert("N-" + std::to_string(pick(400)), kadC_AdptMeshCtrl()); break;
      case 3: {
        auto& c = IncControls(db_, model);
        if (cow_String k = anyKey(c); !k.empty()) c.Remove(k);
        break;
      }
      case 4: {  // one element under two keys: the file holds it twice
        auto& c = IncControls(db_, model);
        if (cow_String k = anyKey(c); !k.empty()) c.InsertHandle("S-" + std::to_string(pick(50)), *c.FindHandle(k));
        break;
      }
      case 5: {
        auto& s = IncSamples(db_, model);
        s.Insert("F-" + std::to_string(pick(20)), dbtT_Sample::Filled());
        break;
      }
      case 6: {
        auto& s = IncSamples(db_, model);
        if (cow_String k = anyKey(s); !k.empty()) {
          dbtT_Sample& x = s.Get(k);
          if (pick(2)) x.detail = pick(2) ? dbtT_Detail::Handle() : dbtT_Detail::Handle(dbtT_Detail(pick(9), "d"));
          else if (x.details.size()) x.details.Get(0) = dbtT_Detail::Handle(dbtT_Detail(pick(9), "e"));
          else x.details.Append(dbtT_Detail::Handle(dbtT_Detail(1, "f")));
          x.fixed.value = pick(100);
        }
        break;
      }
      case 7: {
        auto& s = IncSamples(db_, model);
        if (cow_String k = anyKey(s); !k.empty()) s.Remove(k);
        break;
      }
      case 8:
        if (!db_.FindModel("Model-2")) db_.CreateModel("Model-2");
        else if (pick(4) == 0) db_.RemoveModel("Model-2");
        break;
      default: {
        auto& c = IncControls(db_, model);
        if (cow_String k = anyKey(c); !k.empty()) c.Get(k).SetMeshConstraintAngle(pick(360) * 0.5);
      }
    }
    if (step + 1 == nextSave || step == 999) {
      Save();
      ASSERT_TRUE(stats_.inPlace);
      ++saves;
      nextSave = step + 2 + pick(6);
      if (saves % 20 == 0) {
        ASSERT_TRUE(dbf_Open(path_) == db_);
      }
    }
  }
  EXPECT_GT(saves, 200);
  EXPECT_TRUE(dbf_Open(path_) == db_);
  ExpectCatalogTrue(path_);
  // Reopened and patched again, the file still reads back equal.
  dbf_Baseline opened;
  ddr_Database again = dbf_Open(path_, opened);
  IncControls(again).Get(IncControls(again).Keys().front()).SetInitialFeatureAngle(1.5);
  dbf_SaveOptions options;
  options.baseline = &opened;
  options.stats = &stats_;
  dbf_Save(again, path_, options);
  EXPECT_TRUE(stats_.inPlace);
  EXPECT_EQ(stats_.written, 1);
  EXPECT_TRUE(dbf_Open(path_) == again);
}

}  // namespace

namespace {

// Two states a few hundred rows apart, each derived the same way in every process.
ddr_Database IncKillState(const ddr_Database& base, int round) {
  ddr_Database db = base;
  auto& controls = IncControls(db);
  for (int i = 1; i <= 2000; i += 7) controls.Get("C-" + std::to_string(i)).SetInitialFeatureAngle(round % 2 ? 1 + i % 90 : 0.5);
  for (int i = 0; i < 40; ++i) {
    if (round % 2) controls.Insert("K-" + std::to_string(i), kadC_AdptMeshCtrl());
    else controls.Remove("K-" + std::to_string(i));
  }
  return db;
}

TEST_F(DbIncremental, ASaveInPlaceKilledAtAnyMomentLeavesTheOldOrTheNewDatabase) {
  const ddr_Database even = IncKillState(db_, 0), odd = IncKillState(db_, 1);
  std::mt19937 rng(4711);
  int sawOdd = 0, sawEven = 0;
  for (int kill = 0; kill < 50; ++kill) {
    SCOPED_TRACE("kill " + std::to_string(kill));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      // Saves the two states in turn, in place, until killed.
      try {
        dbf_Baseline base;
        ddr_Database current = dbf_Open(path_, base);
        for (int round = 1;; ++round) {
          current = round % 2 ? odd : even;
          dbf_SaveOptions options;
          options.baseline = &base;
          dbf_SaveStats stats;
          options.stats = &stats;
          dbf_Save(current, path_, options);
          if (!stats.inPlace) ::_exit(4);
        }
      } catch (...) {
      }
      ::_exit(3);
    }
    ::usleep(20000 + rng() % 150000);
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    if (std::filesystem::exists(path_ + "-journal") && getenv("I34DBG")) {
      std::filesystem::copy_file(path_, "/tmp/i34_inspect.odb", std::filesystem::copy_options::overwrite_existing);
      std::filesystem::copy_file(path_ + "-journal", "/tmp/i34_inspect.odb-journal", std::filesystem::copy_options::overwrite_existing);
      return;
    }
    ASSERT_TRUE(WIFSIGNALED(status)) << "the saving child stopped by itself: " << WEXITSTATUS(status);
    const ddr_Database back = dbf_Open(path_);
    const bool isOdd = back == odd, isEven = back == even || back == db_;
    EXPECT_TRUE(isOdd || isEven);
    sawOdd += isOdd;
    sawEven += isEven;
    EXPECT_FALSE(std::filesystem::exists(path_ + "-journal"));  // rolled back, or left by a finished commit and removed
  }
  // Killed in both directions, not always at the same place.
  EXPECT_GT(sawOdd, 0);
  EXPECT_GT(sawEven, 0);
  ExpectCatalogTrue(path_);
}

}  // namespace
