// Registration, items inside tasks through the database file, copy-on-write separation
// and the task container's copying of task kinds.
#include "dbfile/dbf_File.h"
#include "kop/kopC_CombinedTermDesignResponse.h"
#include "kop/kopC_LocalStopCondition.h"
#include "kop/kopC_MemberSize.h"
#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"
#include "kop/kopC_OrimStopCondition.h"
#include "kop/kopC_ShapeTask.h"
#include "kop/kopC_SingleTermDesignResponse.h"
#include "kop/kopC_TaskContainer.h"
#include "kop/kopC_TopologyTask.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "tests/kop/kop_test.h"

namespace {

std::vector<std::string> AttributeNames(const char* className) {
  std::vector<std::string> names;
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(className);
  EXPECT_NE(md, nullptr) << className;
  if (md)
    for (const cls_Attribute& a : md->Attributes()) names.push_back(a.handle.Name().str());
  return names;
}

TEST(KopRegistration, ParentsAndStoredFieldOrder) {
  kop_Start();
  const auto& reg = cls_ClassRegistrar::Instance();
  struct Case {
    const char* name;
    const char* parent;
  };
  for (const Case& c : {Case{"kopC_OrimTask", "kopC_Task"}, Case{"kopC_TopologyTask", "kopC_OrimTask"},
                        Case{"kopC_ShapeTask", "kopC_OrimTask"}, Case{"kopC_SizingTask", "kopC_OrimTask"},
                        Case{"kopC_BeadTask", "kopC_OrimTask"}}) {
    SCOPED_TRACE(c.name);
    const cls_ClassMetadata* md = reg.ByName(c.name);
    ASSERT_NE(md, nullptr);
    EXPECT_TRUE(md->IsA(*reg.ByName(c.parent)));
    EXPECT_TRUE(md->IsA(*reg.ByName("kopC_BaseOptimization")));
  }
  EXPECT_EQ(reg.ByName("kopC_OrimTask")->Version(), 2204);
  EXPECT_FALSE(reg.ByName("kopC_OrimTask")->CanConstruct());
  EXPECT_EQ(AttributeNames("kopC_OrimTask"), (std::vector<std::string>{"algorithm", "tessarSensitivities", "groupOperator"}));

  // A topology row starts with the task's part, then the optimization module's part.
  const std::vector<std::string> topology = AttributeNames("kopC_TopologyTask");
  ASSERT_GT(topology.size(), 11u);
  EXPECT_EQ(std::vector<std::string>(topology.begin(), topology.begin() + 11),
            (std::vector<std::string>{"suppressed", "region", "constraintContainer", "designResponseContainer",
                                      "geometricRestrictionContainer", "objectiveFunctionContainer",
                                      "stopConditionContainer", "variableContainer", "algorithm", "tessarSensitivities",
                                      "groupOperator"}));
  // The one scripting name the command tests do not reach with a value of its own.
  EXPECT_STREQ(reg.ByName("kopC_BeadTask")->FindScriptField("minStress")->persistentName, "beadMinStress");
}

// A topology task with items of every kind in its containers (the generic round trips store
// tasks with empty containers only).
kopC_TopologyTask FilledTopology() {
  kopC_TopologyTask t;
  t.SetRegion(rgnC_Region("Design"));
  kopC_SingleTermDesignResponse energy;
  kopC_SingleTermRequest r;
  r.SetIdentifier("STRAIN_ENERGY");
  kopC_StepOption step;
  step.SetMultipleStep("Step-1");
  step.SetModes(cow_List<std::int32_t>(std::vector<std::int32_t>{1, 3}));
  r.SetStepOptions(cow_List<kopC_SingleTermRequest::StepOptionHandle>(
      std::vector<kopC_SingleTermRequest::StepOptionHandle>{kopC_SingleTermRequest::StepOptionHandle(step)}));
  energy.SetRequest(r);
  t.GetDesignResponseContainer().Insert("Energy", energy);
  kopC_CombinedTermDesignResponse combined;
  kopC_CombinedTermRequest c;
  c.SetTerms(cow_List<cow_String>(std::vector<cow_String>{"Energy", "Volume"}));
  c.SetWeights(cow_List<double>(std::vector<double>{1.0, 0.25}));
  c.SetMethod(kopC_CombinedTermRequestMethodEnm::WEIGHTED_ADD);
  combined.SetRequest(c);
  t.GetDesignResponseContainer().Insert("Combined", combined);
  kopC_Objective o;
  o.SetDesignResponse("Energy");
  o.SetWeight(2.0);
  kopC_OrimObjectiveFunction f;
  f.SetTarget(kopC_TargetEnm::MINIMIZE_MAXIMUM);
  f.SetObjectives(cow_List<kopC_OrimObjectiveFunction::ObjectiveHandle>(
      std::vector<kopC_OrimObjectiveFunction::ObjectiveHandle>{kopC_OrimObjectiveFunction::ObjectiveHandle(o)}));
  t.GetObjectiveFunctionContainer().Insert("Objective", f);
  kopC_OrimConstraint con;
  con.SetDesignResponse("Volume");
  con.SetRestrictionMethod(kopC_RestrictionMethodEnm::RELATIVE_LESS_THAN_EQUAL);
  con.SetRestrictionValue(0.3);
  t.GetConstraintContainer().Insert("Volume-30", con);
  kopC_MemberSize size;
  size.SetMinThickness(2.5);
  t.GetGeometricRestrictionContainer().Insert("Size", size);
  kopC_OrimStopCondition stop;
  stop.SetDesignResponse("Energy");
  t.GetStopConditionContainer().Insert("Stop", stop);
  return t;
}

TEST(KopPersistence, ItemsInsideTasksRoundTripThroughTheFile) {
  kop_Start();
  ddr_Database db;
  auto& tasks = dynamic_cast<kopC_TaskContainer&>(*db.CreateModel("Model-1").ModifyRepository("optimizationTasks"));
  tasks.Insert("Topology", FilledTopology());
  kopC_ShapeTask shape;
  kopC_LocalStopCondition local;
  local.SetIdentifier("SIG_MISES");
  local.SetReferenceFactor(0.8);
  shape.GetStopConditionContainer().Insert("Local", local);
  tasks.Insert("Shape", shape);
  const std::string file = qmx_TempDir("kop-persistence") + "/tasks.odb";
  dbf_Save(db, file);
  EXPECT_TRUE(dbf_Open(file) == db);
  // A change deep inside a task makes the databases differ, so the equality above compares items.
  ddr_Database changed = db;
  auto& t = dynamic_cast<kopC_TopologyTask&>(
      dynamic_cast<kopC_TaskContainer&>(*changed.ModifyModel("Model-1")->ModifyRepository("optimizationTasks")).Get("Topology"));
  dynamic_cast<kopC_OrimConstraint&>(t.GetConstraintContainer().Get("Volume-30")).SetRestrictionValue(0.31);
  EXPECT_FALSE(changed == db);
}

TEST(KopPersistence, CopiesShareItemsUntilOneIsModified) {
  kop_Start();
  kopC_TaskContainer a;
  a.Insert("T", FilledTopology());
  kopC_TaskContainer b = a;
  omu_ChangeHistory::Instance().Clear();
  auto& t = dynamic_cast<kopC_TopologyTask&>(b.Get("T"));
  dynamic_cast<kopC_OrimObjectiveFunction&>(t.GetObjectiveFunctionContainer().Get("Objective"))
      .SetTarget(kopC_TargetEnm::MAXIMIZE);
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"kopC_TaskContainer", "Modify", "T"},
                                        {"kopC_ObjectiveFunctionContainer", "Modify", "Objective"}}));
  auto& original = dynamic_cast<const kopC_TopologyTask&>(*a.ConstGet("T"));
  EXPECT_EQ(dynamic_cast<const kopC_OrimObjectiveFunction&>(*original.GetObjectiveFunctionContainer().ConstGet("Objective"))
                .GetTarget(),
            kopC_TargetEnm::MINIMIZE_MAXIMUM);
  EXPECT_FALSE(a == b);
  EXPECT_EQ(original.GetUid(), b.ConstGet("T")->GetUid());
}

// A task kind the module does not know: the container cannot copy it.
class UnknownTask : public kopC_OrimTask {
 public:
  void DBWrite(const cls_WriteVisitor&) const override {}
  void AssertValid() const override {}
  unsigned ClassTypeId() const override { return 0x03A4007F; }

 protected:
  bool SameAs(const kopC_BaseOptimization&) const override { return true; }
};

TEST(KopPersistence, CopyingAnUnknownKindIsRefusedWithCode1) {
  kop_Start();
  using Handle = cow_COW<kopC_BaseOptimization, cow_Virtual<kopC_BaseOptimization>>;
  Handle a(new UnknownTask);
  Handle b = a;
  auto e = qmx_Catch<nex_PrimError>([&] { b.Get(); });
  EXPECT_EQ(e.Message(), "Unable to copy unknown optimization task");
  EXPECT_STREQ(e.File(), "QMXOdbKopC.m/src/kopC_assert");
  EXPECT_EQ(e.Line(), 317);
  EXPECT_TRUE(b.SharesBodyWith(a));  // nothing changed
  // Known kinds are copied as themselves.
  Handle c(new kopC_ShapeTask);
  Handle d = c;
  d.Get();
  EXPECT_FALSE(d.SharesBodyWith(c));
  EXPECT_NE(dynamic_cast<const kopC_ShapeTask*>(&d.ConstGet()), nullptr);
  EXPECT_EQ(d.ConstGet(), c.ConstGet());
}

}  // namespace
