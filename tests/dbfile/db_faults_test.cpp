// A save whose write, truncate, sync or rename fails, one point at a time: every point where the
// save touches the disk is failed once, as a full disk or a dying device would fail it.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <map>

#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_Faults.h"
#include "dbfile/dbf_File.h"
#include "platform/base/nex_Exception.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "tests/dbfile/dbtT_Files.h"
#include "tests/dbfile/dbtT_Sample.h"
#include "tests/support/qmx_test.h"

namespace {

// Clears the plan however the test ends.
struct PlanScope {
  explicit PlanScope(dbf_FaultPlan& plan) { dbf_SetFaultPlan(&plan); }
  ~PlanScope() { dbf_SetFaultPlan(nullptr); }
};

TEST(DbFaults, EveryFailingCallOfASaveLeavesThePreviousFile) {
  dbtT_Start();
  const std::string dir = qmx_TempDir("db-faults");
  const std::string path = dir + "/model.odb";
  const ddr_Database before = dbtT_MakeDatabase(3), next = dbtT_MakeDatabase(40);
  dbf_Save(before, path);
  const auto bytes = dbtT_ReadBytes(path);

  // The points of one save, counted without failing any.
  dbf_FaultPlan count;
  {
    PlanScope scope(count);
    dbf_Save(next, dir + "/counted.odb");
  }
  std::filesystem::remove(dir + "/counted.odb");
  ASSERT_GT(count.passed, 10);

  // The reason each kind of point gives, after "Cannot save the model database "...": ".
  const std::map<std::string, std::string> reasons = {
      {"write", "input/output error while "}, {"truncate", "input/output error while "},
      {"sync", "input/output error while "},
      {"fsync", "cannot sync the new file (Input/output error)"},
      {"rename", "cannot put the new file in place (Input/output error)"},
  };
  std::map<std::string, int> failedKinds;
  for (int at = 1; at <= count.passed; ++at) {
    SCOPED_TRACE(at);
    dbf_FaultPlan plan;
    plan.failAt = at;
    std::string message;
    {
      PlanScope scope(plan);
      message = qmx_Catch<nex_CmdError>([&] { dbf_Save(next, path); }).Message();
    }
    ASSERT_NE(plan.failed, nullptr);
    const std::string kind = plan.failed;
    ++failedKinds[kind];
    const std::string prefix = "Cannot save the model database \"" + path + "\": ";
    // The directory is synced after the rename: failing it leaves the new file in place, said.
    if (message == prefix + "cannot sync the directory (Input/output error)") {
      ++failedKinds["directory"];
      EXPECT_TRUE(dbf_Open(path) == next);
      dbf_Save(before, path);
      continue;
    }
    ASSERT_TRUE(reasons.count(kind)) << kind;
    EXPECT_EQ(message.substr(0, prefix.size() + reasons.at(kind).size()), prefix + reasons.at(kind)) << message;
    EXPECT_EQ(dbtT_ReadBytes(path), bytes);
    EXPECT_TRUE(dbf_Open(path) == before);
    EXPECT_EQ(dbtT_ListDir(dir), std::vector<std::string>{"model.odb"});
  }
  // Every kind of point was met and failed (SQLite itself syncs nothing: the new file is synced
  // whole before its rename).
  for (const char* kind : {"write", "fsync", "rename"}) EXPECT_GT(failedKinds[kind], 0) << kind;
  EXPECT_EQ(failedKinds["directory"], 1);
  std::printf("injection points: %d (write %d, truncate %d, sync %d, fsync %d, rename %d, directory sync %d)\n",
              count.passed, failedKinds["write"], failedKinds["truncate"], failedKinds["sync"], failedKinds["fsync"],
              failedKinds["rename"], failedKinds["directory"]);
  // With no fault the save goes through.
  dbf_Save(next, path);
  EXPECT_TRUE(dbf_Open(path) == next);
}

// The state a save in place writes: changed, new and removed elements of one repository.
ddr_Database FaultNext(ddr_Database db) {
  auto& c = *dynamic_cast<kadC_AdptMeshCtrlCont*>(db.ModifyModel("Model-1")->ModifyRepository("adaptiveMeshControls"));
  for (int i = 1; i <= 300; i += 10) c.Get("C-" + std::to_string(i)).SetInitialFeatureAngle(0.25);
  for (int i = 0; i < 5; ++i) c.Insert("New-" + std::to_string(i), kadC_AdptMeshCtrl());
  for (int i = 2; i <= 300; i += 60) c.Remove("C-" + std::to_string(i));
  return db;
}

TEST(DbFaults, EveryFailingCallOfASaveInPlaceLeavesThePreviousDatabase) {
  dbtT_Start();
  const std::string dir = qmx_TempDir("db-faults-in-place");
  const std::string path = dir + "/model.odb";
  const ddr_Database before = dbtT_MakeDatabase(300);
  dbf_Save(before, path);

  // Saves the next state into the file as it was opened; reports whether it went in place.
  ddr_Database next;
  auto saveNext = [&](dbf_FaultPlan* plan) {
    dbf_Baseline base;
    next = FaultNext(dbf_Open(path, base));
    dbf_SaveOptions options;
    options.baseline = &base;
    dbf_SaveStats stats;
    options.stats = &stats;
    if (!plan) {
      dbf_Save(next, path, options);
      return stats.inPlace;
    }
    PlanScope scope(*plan);
    const std::string message = qmx_Catch<nex_CmdError>([&] { dbf_Save(next, path, options); }).Message();
    const std::string prefix = "Cannot save the model database \"" + path + "\": input/output error while ";
    EXPECT_EQ(message.substr(0, prefix.size()), prefix) << message;
    return stats.inPlace;
  };
  dbf_FaultPlan count;
  {
    PlanScope scope(count);
    ASSERT_TRUE(saveNext(nullptr));
  }
  ASSERT_GT(count.passed, 5);
  dbf_Save(before, path);  // back to the first state, written whole

  std::map<std::string, int> failedKinds;
  for (int at = 1; at <= count.passed; ++at) {
    SCOPED_TRACE(at);
    dbf_FaultPlan plan;
    plan.failAt = at;
    saveNext(&plan);
    ASSERT_NE(plan.failed, nullptr);
    ++failedKinds[plan.failed];
    // Whatever the failed call left (a hot journal included), the file opens as it was.
    EXPECT_TRUE(dbf_Open(path) == before);
    EXPECT_EQ(dbtT_ListDir(dir), std::vector<std::string>{"model.odb"});
  }
  // SQLite writes the journal and the pages, and syncs both, through the failing calls.
  for (const char* kind : {"write", "sync"}) EXPECT_GT(failedKinds[kind], 0) << kind;
  // With no fault the save goes through, in place.
  EXPECT_TRUE(saveNext(nullptr));
  EXPECT_TRUE(dbf_Open(path) == next);
  EXPECT_FALSE(next == before);
}

}  // namespace
