// Shortcuts to tasks, to the containers of a task and to their items.
#include "kop/QMXOdbKopC.h"
#include "kop/kopC_BaseOptimizationShortcut.h"
#include "kop/kopC_BaseVariableShortcut.h"
#include "kop/kopC_ConstraintContainerShortcut.h"
#include "kop/kopC_ConstraintInConstraintContainerShortcut.h"
#include "kop/kopC_ConstraintShortcut.h"
#include "kop/kopC_DesignResponseInDesignResponseContainerShortcut.h"
#include "kop/kopC_DesignResponseShortcut.h"
#include "kop/kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut.h"
#include "kop/kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut.h"
#include "kop/kopC_SingleTermDesignResponse.h"
#include "kop/kopC_StopConditionInStopConditionContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "kop/kopC_TopologyTask.h"
#include "kop/kopC_VariableInVariableContainerShortcut.h"
#include "kop/kopC_VariableShortcut.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/kop/kop_test.h"

namespace {

// Shortcut classes are not registered, so the architecture test below does not reach them.
TEST(KopShortcuts, EachClassSitsAtTheRowOfItsTypeId) {
  struct Named {
    const char* name;
    unsigned typeId;
  };
#define KOP_NAMED(C) Named{C::kClassName, C::TypeId()}
  const Named classes[] = {
      KOP_NAMED(kopC_BaseOptimizationIMPLSC), KOP_NAMED(kopC_BaseOptimizationShortcut), KOP_NAMED(kopC_TaskIMPLSC),
      KOP_NAMED(kopC_TaskShortcut), KOP_NAMED(kopC_TaskInTaskContainerShortcut), KOP_NAMED(kopC_TaskContainerIMPLSC),
      KOP_NAMED(kopC_TaskContainerShortcut), KOP_NAMED(kopC_TaskContainerInModelShortcut),
      KOP_NAMED(kopC_DesignResponseIMPLSC), KOP_NAMED(kopC_DesignResponseShortcut),
      KOP_NAMED(kopC_DesignResponseInDesignResponseContainerShortcut), KOP_NAMED(kopC_DesignResponseContainerIMPLSC),
      KOP_NAMED(kopC_DesignResponseContainerShortcut), KOP_NAMED(kopC_DesignResponseContainerInModelShortcut),
      KOP_NAMED(kopC_ConstraintInConstraintContainerShortcut), KOP_NAMED(kopC_ConstraintContainerInModelShortcut),
      KOP_NAMED(kopC_ObjectiveFunctionInObjectiveFunctionContainerShortcut),
      KOP_NAMED(kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut),
      KOP_NAMED(kopC_StopConditionInStopConditionContainerShortcut),
      KOP_NAMED(kopC_VariableInVariableContainerShortcut), KOP_NAMED(kopC_BaseVariableShortcut),
  };
#undef KOP_NAMED
  const typ_ArchCompEntry entry = kopC_ArchEntry();
  for (const auto& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (932u << 16) | static_cast<unsigned>(row));
  }
}

class KopShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    kop_Start();
    kopC_TopologyTask task;
    kopC_SingleTermDesignResponse r;
    kopC_SingleTermRequest req;
    req.SetIdentifier("VOLUME");
    r.SetRequest(req);
    task.GetDesignResponseContainer().Insert("Resp-1", r);
    Tasks().Insert("Task-1", task);
    omu_ChangeHistory::Instance().Clear();
  }
  kopC_TaskContainer& Tasks() { return dynamic_cast<kopC_TaskContainer&>(*model.ModifyRepository("optimizationTasks")); }
  ddr_Model model;
};

TEST_F(KopShortcut, ReachesAResponseThroughItsTaskAndSeparatesOnModification) {
  const kopC_DesignResponseShortcut sc(kopC_DesignResponseInDesignResponseContainerShortcut("Task-1", "Resp-1"));
  EXPECT_EQ(sc.Name(), "Resp-1");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"optimizationTasks", "Task-1", "designResponses", "Resp-1"}));
  const ddr_Model before = model;
  ASSERT_NE(sc.ConstGet(model), nullptr);
  EXPECT_EQ(sc.ConstGet(model), sc.ConstGet(before));
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());

  auto& r = dynamic_cast<kopC_SingleTermDesignResponse&>(sc.Get(model));
  r.GetRequest().SetIdentifier("WEIGHT");
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"kopC_TaskContainer", "Modify", "Task-1"},
                                        {"kopC_DesignResponseContainer", "Modify", "Resp-1"}}));
  EXPECT_EQ(dynamic_cast<const kopC_SingleTermDesignResponse*>(sc.ConstGet(before))->GetRequest().GetIdentifier(), "VOLUME");
  EXPECT_EQ(dynamic_cast<const kopC_SingleTermDesignResponse*>(sc.ConstGet(model))->GetRequest().GetIdentifier(), "WEIGHT");

  const kopC_TaskShortcut task(kopC_TaskInTaskContainerShortcut("Task-1"));
  EXPECT_NE(dynamic_cast<const kopC_TopologyTask*>(task.ConstGet(model)), nullptr);
  const kopC_DesignResponseContainerShortcut cont{kopC_DesignResponseContainerInModelShortcut(task)};
  EXPECT_EQ(cont.Path(), (std::vector<cow_String>{"optimizationTasks", "Task-1", "designResponses"}));
  EXPECT_EQ(cont.ConstGet(model), &task.ConstGet(model)->GetDesignResponseContainer());
  const kopC_ConstraintContainerShortcut constraints{kopC_ConstraintContainerInModelShortcut(task)};
  EXPECT_EQ(constraints.Path().back(), "optimizationConstraints");
}

TEST_F(KopShortcut, MissingTasksAndItemsAreRefused) {
  const kopC_ConstraintShortcut missing(kopC_ConstraintInConstraintContainerShortcut("Task-2", "C-1"));
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  auto e = qmx_Catch<nex_CmdError>([&] { missing.Get(model); });
  EXPECT_STREQ(e.what(), "There is no \"Task-2\" in optimizationTasks");
  const kopC_ConstraintShortcut absent(kopC_ConstraintInConstraintContainerShortcut("Task-1", "C-1"));
  EXPECT_EQ(absent.ConstGet(model), nullptr);
  EXPECT_THROW(absent.Get(model), nex_CmdError);
  // A missing task records nothing; a missing item of a present task leaves the task's "Modify",
  // as any modification through the task would.
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"kopC_TaskContainer", "Modify", "Task-1"}}));
  const kopC_TaskShortcut empty;
  auto e2 = qmx_Catch<nex_CmdError>([&] { empty.ConstGet(model); });
  EXPECT_STREQ(e2.what(), "An empty shortcut to a kopC_Task addresses nothing");
}

TEST_F(KopShortcut, WritesItsPathAndIsRebuiltFromTheRecord) {
  const kopC_DesignResponseShortcut sc(kopC_DesignResponseInDesignResponseContainerShortcut("Task-1", "Resp-1"));
  const cls_Record rec = cls_ToRecord(sc);
  EXPECT_EQ(rec.typeId, kopC_DesignResponseInDesignResponseContainerShortcut::TypeId());
  const kopC_DesignResponseShortcut back = kopC_DesignResponseShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back, sc);
  EXPECT_EQ(back.Path(), sc.Path());
  EXPECT_EQ(back.ConstGet(model), sc.ConstGet(model));
  EXPECT_NE(back, kopC_DesignResponseShortcut(kopC_DesignResponseInDesignResponseContainerShortcut("Task-1", "Resp-2")));
  const kopC_VariableShortcut variable(kopC_VariableInVariableContainerShortcut("Task-1", "V"));
  EXPECT_EQ(kopC_BaseVariableShortcut::Ctor(cls_RecordReader(cls_ToRecord(variable))).Path(), variable.Path());
  // A response shortcut record is not a constraint shortcut.
  EXPECT_THROW(kopC_ConstraintShortcut::Ctor(cls_RecordReader(rec)), nex_CmdError);
}

}  // namespace

namespace {

// Every registered class of the module has the type id of its row, and the task kinds keep the
// ids their stored records have always had.
TEST(KopArchitecture, RegisteredClassesSitAtTheirRows) {
  kop_Start();
  const typ_ArchCompEntry entry = kopC_ArchEntry();
  int registered = 0;
  for (int row = 1; row < entry.Count(); ++row) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(entry.Row(row).name);
    if (!md) continue;
    ++registered;
    EXPECT_EQ(md->TypeId(), (932u << 16) | static_cast<unsigned>(row)) << entry.Row(row).name;
  }
  EXPECT_EQ(registered, 77);  // 69 attribute classes, 7 containers and the wrapper
  EXPECT_EQ(entry.RowOf("kopC_Task"), 4);
  EXPECT_EQ(entry.RowOf("kopC_OrimTask"), 7);
  EXPECT_EQ(entry.RowOf("kopC_TopologyTask"), 8);
  EXPECT_EQ(entry.RowOf("kopC_ShapeTask"), 9);
  EXPECT_EQ(entry.RowOf("kopC_SizingTask"), 0x69);
  EXPECT_EQ(entry.RowOf("kopC_BeadTask"), 0x78);
}

}  // namespace
