// The task repository and every container of a task through the command layer, by scripting
// names.
#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "kop/kopC_TaskContainer.h"
#include "kop/kopC_TopologyTask.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/kop/kop_test.h"

namespace {

class KopCommand : public ::testing::Test {
 protected:
  void SetUp() override {
    kop_Start();
    Ok(R"({"op":"create","path":["Model-1"]})");
    Ok(R"({"op":"create","path":["Model-1","optimizationTasks","Task-1"],"type":"TopologyTask","values":{"region":"Design"}})");
  }
  cmd_Json Ok(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r["result"];
  }
  cmd_Json Fails(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_FALSE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r.contains("error") ? r["error"] : cmd_Json();
  }
  const kopC_TopologyTask& Task() {
    return dynamic_cast<const kopC_TopologyTask&>(
        *dynamic_cast<const kopC_TaskContainer&>(*s.Database().FindModel("Model-1")->FindRepository("optimizationTasks"))
             .ConstGet("Task-1"));
  }
  cmd_Session s;
};

TEST_F(KopCommand, EveryContainerOfATaskIsReachedByItsScriptingName) {
  const std::string task = R"("Model-1","optimizationTasks","Task-1")";
  Ok(R"({"op":"create","path":[)" + task + R"(,"designResponses","Resp-1"],"type":"SingleTermDesignResponse",
         "values":{"request":{"identifier":"STRAIN_ENERGY","stepOptions":[{"multipleStep":"Step-1"}]}}})");
  Ok(R"({"op":"create","path":[)" + task + R"(,"objectiveFunctions","Obj-1"],"type":"ObjectiveFunction",
         "values":{"objectives":[{"designResponse":"Resp-1"}]}})");
  Ok(R"({"op":"create","path":[)" + task + R"(,"optimizationConstraints","Con-1"],"type":"OptimizationConstraint",
         "values":{"designResponse":"Resp-1","restrictionValue":12.5}})");
  Ok(R"({"op":"create","path":[)" + task + R"(,"geometricRestrictions","Frozen"],"type":"FrozenArea","values":{"region":"Bolts"}})");
  Ok(R"({"op":"create","path":[)" + task + R"(,"stopConditions","Stop-1"],"type":"StopCondition","values":{"designResponse":"Resp-1"}})");
  Ok(R"({"op":"create","path":[)" + task + R"(,"variables","V-1"],"type":"SingleVariable","values":{"identifier":"DISP_ABS"}})");
  for (const char* c : {"designResponses", "objectiveFunctions", "optimizationConstraints", "geometricRestrictions",
                        "stopConditions", "variables"})
    EXPECT_EQ(Ok(R"({"op":"list","path":[)" + task + ",\"" + c + "\"]}").size(), 1u) << c;
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","optimizationTasks","Task-1","designResponses","Resp-1","request","identifier"]})"),
            "STRAIN_ENERGY");
  Ok(R"({"op":"set","path":[)" + task + R"(,"optimizationConstraints","Con-1","restrictionMethod"],"value":"RELATIVE_LESS_THAN_EQUAL"})");
  Ok(R"({"op":"set","path":[)" + task + R"(,"optimizationConstraints","Con-1","restrictionValue"],"value":0.3})");
  EXPECT_EQ(Ok(R"({"op":"validate","path":["Model-1","optimizationTasks"]})")["validated"], 7);
  EXPECT_EQ(Task().GetRegion().Name(), "Design");
  // A missing response behind a constraint is reported with the task's path.
  Ok(R"({"op":"delete","path":[)" + task + R"(,"designResponses","Resp-1"]})");
  const cmd_Json e = Fails(R"({"op":"validate","path":["Model-1","optimizationTasks"]})");
  EXPECT_EQ(e["message"], "The specified design response cannot be used with the constraint");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["Model-1","optimizationTasks","Task-1"])"));
}

TEST_F(KopCommand, ScriptingNamesOfTheTopologyTask) {
  const std::string path = R"(["Model-1","optimizationTasks","Task-1")";
  EXPECT_EQ(Ok(R"({"op":"get","path":)" + path + R"(,"numDesignCycles"]})"), 15);
  EXPECT_EQ(Ok(R"({"op":"get","path":)" + path + R"(,"algorithm"]})"), "GENERAL_OPTIMIZATION");
  Ok(R"({"op":"set","path":)" + path + R"(],"values":{"numDesignCycles":30,"softDeletionRadius":0.5,"stopCriteriaDesignCycle":5,
        "softDeletionMethod":"MAX_SHEAR_STRAIN","stepSize":"LARGE","firstCycleDeletedVolumeTechnique":"ABSOLUTE"}})");
  EXPECT_EQ(Task().GetNumIterations(), 30);
  EXPECT_EQ(Task().GetSoftDeletionAverageEdgeLength(), 0.5);
  EXPECT_EQ(Task().GetStopCriteriaIteration(), 5);
  EXPECT_EQ(Task().GetSoftDeletionMethod(), kopC_TopologyTask::SoftDeletionMethodEnm::MAX_SHEAR_STRAIN);
  EXPECT_EQ(Fails(R"({"op":"get","path":)" + path + R"(,"numIterations"]})")["kind"], "CmdException");
  // An unknown literal is refused with the enumeration's message and changes nothing.
  const cmd_Json e = Fails(R"({"op":"set","path":)" + path + R"(,"stepSize"],"value":"HUGE"})");
  EXPECT_EQ(e["message"], "omu_PrimEnum(const cow_String&) - str not allowed: HUGE  Permissible: "
                          "DYNAMIC, VERY_SMALL, SMALL, MODERATE, MEDIUM, LARGE");
  EXPECT_EQ(Task().GetStepSize(), kopC_TopologyTask::StepSizeEnm::LARGE);
  EXPECT_EQ(Fails(R"({"op":"set","path":)" + path + R"(,"algorithm"],"value":"STIFFNESS_OPTIMIZATION"})")["kind"],
            "CmdException");
  // The other task kinds are built by name in the restriction table below; a response is not a task.
  Ok(R"({"op":"create","path":["Model-1","optimizationTasks","T-BeadTask"],"type":"BeadTask"})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","optimizationTasks","T-BeadTask","minStress"]})"), 0.0);
  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","optimizationTasks","X"],"type":"SingleTermDesignResponse"})")["kind"],
            "CmdException");
}

}  // namespace

namespace {

// Every geometric restriction is built by its scripting name in a task of its own kind, where it
// validates once its required values are given, and is refused in a task of another kind.
TEST(KopCommandRestrictions, EachKindByItsScriptingNameInItsOwnTask) {
  kop_Start();
  struct Case {
    const char* type;
    const char* task;
    const char* values;
  };
  const Case cases[] = {
      {"FrozenArea", "TopologyTask", "{}"},
      {"TopologyMemberSize", "TopologyTask", "{}"},
      {"TopologyMemberSizeRange", "TopologyTask", R"({"minWidth":1})"},
      {"TopologyDemoldControl", "TopologyTask", "{}"},
      {"TopologyOverhangControl", "TopologyTask", "{}"},
      {"PlanarSymmetry", "TopologyTask", R"({"axis":"AXIS_2"})"},
      {"PointSymmetry", "TopologyTask", "{}"},
      {"RotationalSymmetry", "TopologyTask", "{}"},
      {"CyclicSymmetry", "TopologyTask", "{}"},
      {"TranslationalSymmetry", "TopologyTask", "{}"},
      {"StampControl", "TopologyTask", "{}"},
      {"TurnControl", "TopologyTask", "{}"},
      {"DrillControl", "TopologyTask", "{}"},
      {"ShapeFixedRegion", "ShapeTask", R"({"u3":true})"},
      {"SlideRegion", "ShapeTask", "{}"},
      {"ShapeDemoldControl", "ShapeTask", "{}"},
      {"ShapeMemberSize", "ShapeTask", "{}"},
      {"ShapePlanarSymmetry", "ShapeTask", "{}"},
      {"ShapePointSymmetry", "ShapeTask", "{}"},
      {"ShapeRotationalSymmetry", "ShapeTask", "{}"},
      {"ShapeCyclicSymmetry", "ShapeTask", "{}"},
      {"ShapeTranslationalSymmetry", "ShapeTask", "{}"},
      {"GrowthRestriction", "ShapeTask", R"({"growth":1})"},
      {"PenetrationCheck", "ShapeTask", "{}"},
      {"DistanceControl", "ShapeTask", "{}"},
      {"ThicknessControl", "SizingTask", R"({"maxThickness":3})"},
      {"SizingFrozenArea", "SizingTask", "{}"},
      {"SizingPlanarSymmetry", "SizingTask", "{}"},
      {"SizingPointSymmetry", "SizingTask", "{}"},
      {"SizingRotationalSymmetry", "SizingTask", "{}"},
      {"SizingCyclicSymmetry", "SizingTask", "{}"},
      {"SizingClusterAreas", "SizingTask", "{}"},
      {"BeadFixedRegion", "BeadTask", R"({"u1":true})"},
      {"BeadFrozenArea", "BeadTask", "{}"},
      {"BeadGrowth", "BeadTask", R"({"shrink":0.5})"},
      {"BeadPlanarSymmetry", "BeadTask", "{}"},
      {"BeadPointSymmetry", "BeadTask", "{}"},
      {"BeadRotationalSymmetry", "BeadTask", "{}"},
      {"BeadCyclicSymmetry", "BeadTask", "{}"},
      {"BeadTranslationalSymmetry", "BeadTask", "{}"},
      {"BeadPenetrationCheck", "BeadTask", "{}"},
      {"BeadRibControl", "BeadTask", "{}"},
  };
  cmd_Session s;
  auto run = [&](const std::string& line) { return s.ExecuteLine(line); };
  ASSERT_TRUE(run(R"({"op":"create","path":["M"]})")["ok"].get<bool>());
  for (const char* kind : {"TopologyTask", "ShapeTask", "SizingTask", "BeadTask"})
    ASSERT_TRUE(run(std::string(R"({"op":"create","path":["M","optimizationTasks",")") + kind + R"("],"type":")" + kind +
                    "\"}")["ok"]
                    .get<bool>());
  for (const Case& c : cases) {
    SCOPED_TRACE(c.type);
    const std::string own = std::string(R"(["M","optimizationTasks",")") + c.task + R"(","geometricRestrictions","R"])";
    cmd_Json r = run(R"({"op":"create","path":)" + own + R"(,"type":")" + c.type + R"(","values":)" + c.values + "}");
    ASSERT_TRUE(r["ok"].get<bool>()) << r.dump();
    r = run(std::string(R"({"op":"validate","path":["M","optimizationTasks",")") + c.task + "\"]}");
    EXPECT_TRUE(r["ok"].get<bool>()) << r.dump();
    ASSERT_TRUE(run(R"({"op":"delete","path":)" + own + "}")["ok"].get<bool>());
    // In a task of another kind (every kind but a frozen area's fits one kind only).
    const char* other = std::string(c.task) == "BeadTask" ? "SizingTask" : "BeadTask";
    const std::string foreign = std::string(R"(["M","optimizationTasks",")") + other + R"(","geometricRestrictions","R"])";
    ASSERT_TRUE(run(R"({"op":"create","path":)" + foreign + R"(,"type":")" + c.type + R"(","values":)" + c.values + "}")["ok"].get<bool>());
    r = run(std::string(R"({"op":"validate","path":["M","optimizationTasks",")") + other + "\"]}");
    if (std::string(c.type) == "FrozenArea") EXPECT_TRUE(r["ok"].get<bool>()) << r.dump();
    else EXPECT_EQ(r["error"]["message"], "The specified geometric restriction cannot be used with this type of Task");
    ASSERT_TRUE(run(R"({"op":"delete","path":)" + foreign + "}")["ok"].get<bool>());
  }
}

// The item of the task container answers to its scripting name but is made as one of its kinds; the
// sizing task's criteria design cycle is reached by its stored name as well.
TEST_F(KopCommand, TheTaskItemAndTheSizingCriteriaCycleByTheirScriptingNames) {
  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","optimizationTasks","Task-2"],"type":"OptimizationTask"})")["message"],
            "OptimizationTask cannot be constructed; name one of its kinds: TopologyTask, ShapeTask, SizingTask, BeadTask");
  Ok(R"({"op":"create","path":["Model-1","optimizationTasks","Sizing-1"],"type":"SizingTask","values":{"stopCriteriaIteration":7}})");
  const std::string cycle = R"({"op":"get","path":["Model-1","optimizationTasks","Sizing-1","stopCriteriaDesignCycle"]})";
  EXPECT_EQ(Ok(cycle), 7);
  Ok(R"({"op":"set","path":["Model-1","optimizationTasks","Sizing-1","stopCriteriaDesignCycle"],"value":2})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","optimizationTasks","Sizing-1","stopCriteriaIteration"]})"), 2);
  EXPECT_EQ(Fails(R"({"op":"validate","path":["Model-1","optimizationTasks","Sizing-1"]})")["message"],
            "Criteria design cycle number must be greater than two.");
}

}  // namespace
