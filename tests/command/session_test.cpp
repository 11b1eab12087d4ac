#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

class SessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    cmdT_Ok(s, R"({"op":"create","path":["M"]})");
    cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})");
    omu_ChangeHistory::Instance().Clear();
  }
  const kadC_AdptMeshCtrl& Control(const char* name) {
    const auto* cont = dynamic_cast<const kadC_AdptMeshCtrlCont*>(s.Database().FindModel("M")->FindRepository("adaptiveMeshControls"));
    return *cont->ConstGet(name);
  }
  cmd_Session s;
};

TEST_F(SessionTest, BuildsAndReadsBackAControl) {
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl",
                 "values":{"remapping":"FIRST_ORDER_ADVECTION","initialFeatureAngle":45,"meshingPredictor":1}})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-2","meshConstraintAngle"],"value":75.5})");
  const cmd_Json c = cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-2"]})");
  const cmd_Json expected = cmd_Json::parse(R"({"type":"AdaptiveMeshControl",
      "remapping":"FIRST_ORDER_ADVECTION","smoothingAlgorithm":"ANALYSIS_PRODUCT_DEFAULT","smoothingPriority":"UNIFORM",
      "initialFeatureAngle":45.0,"transitionFeatureAngle":30.0,"momentumAdvection":"ELEMENT_CENTER_PROJECTION",
      "meshingPredictor":"PREVIOUS","curvatureRefinement":1.0,"volumetricSmoothingWeight":1.0,
      "standardVolumetricSmoothingWeight":0.0,"laplacianSmoothingWeight":0.0,"equipotentialSmoothingWeight":0.0,
      "meshConstraintAngle":75.5,"originalConfigurationProjectionWeight":1.0})");
  EXPECT_EQ(c, expected);  // members in field-table order, enumerations as literals
  EXPECT_EQ(Control("C-2").GetRemeshPredictor(), kadC_AdptMeshCtrl::RemeshPredictorEnm::PREVIOUS);
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-2","remapping"]})"), "FIRST_ORDER_ADVECTION");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":["M","adaptiveMeshControls"]})"), cmd_Json::parse(R"(["C-1","C-2"])"));
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":[]})"), cmd_Json::parse(R"(["M"])"));

  // What get returns goes back in as values: a third control equal in every member.
  cmd_Json create = cmd_Json::parse(R"({"op":"create","path":["M","adaptiveMeshControls","C-3"],"type":"AdaptiveMeshControl"})");
  create["values"] = c;
  cmdT_Ok(s, create.dump());
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-3"]})"), expected);
}

TEST_F(SessionTest, TheJournalRecordsInsertModifyRemoveOfCommandsThatSucceed) {
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"curvatureRefinement":2}})");
  cmdT_Fails(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-2"],"values":{"curvatureRefinement":"2"}})");
  cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-2"]})");
  cmdT_Ok(s, R"({"op":"delete","path":["M","adaptiveMeshControls","C-1"]})");
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"kadC_AdptMeshCtrlCont", "Insert", "C-2"},
                                        {"kadC_AdptMeshCtrlCont", "Modify", "C-1"},
                                        {"kadC_AdptMeshCtrlCont", "Remove", "C-1"}}));
  EXPECT_EQ(s.Succeeded(), 6u);  // the two of SetUp included
  EXPECT_EQ(s.Failed(), 1u);
}

// Commands copy only what they change, failed or not (the history keeps the database as it was,
// so a copy of every element per command would make a script quadratic): an element no command
// touched stays the very object it was.
TEST_F(SessionTest, CommandsCopyOnlyWhatTheyChange) {
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-3"],"type":"AdaptiveMeshControl"})");
  const void* untouched = s.Database().FindModel("M")->FindRepository("adaptiveMeshControls")->Find("C-3");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1","curvatureRefinement"],"value":3})");
  cmdT_Fails(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"curvatureRefinement":4,"remapping":"x"}})");
  cmdT_Ok(s, R"({"op":"delete","path":["M","adaptiveMeshControls","C-2"]})");
  EXPECT_EQ(s.Database().FindModel("M")->FindRepository("adaptiveMeshControls")->Find("C-3"), untouched);
  EXPECT_EQ(Control("C-1").GetCurvatureRefinement(), 3);
}

TEST_F(SessionTest, AFailedCommandChangesNothing) {
  for (int f : {1, 2, 3})
    cmdT_Ok(s, R"({"op":"create","path":["M","domainList",)" + std::to_string(f - 1) +
                   R"(],"type":"AdaptiveMeshDomain","values":{"frequency":)" + std::to_string(f) + "}}");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H"],"type":"Holder"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","domains","D-1"],"type":"AdaptiveMeshDomain"})");
  const ddr_Database before = s.Database();
  const std::size_t history = omu_ChangeHistory::Instance().Size();
  // A refused command is undone whole, also when part of it was done before the refusal.
  const char* failing[] = {
      R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"initialFeatureAngle":10,"remapping":"first_order_advection"}})",
      R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl","values":{"smoothingPriority":"graded"}})",
      R"({"op":"set","path":["M","domainList",1],"values":{"frequency":7,"meshSweeps":"x"}})",
      R"({"op":"create","path":["M","domainList",1],"type":"AdaptiveMeshDomain","values":{"meshSweeps":"x"}})",
      R"({"op":"set","path":["M","domainList",1],"type":"AdaptiveMeshDomain","values":{"nothing":1}})",
      R"({"op":"delete","path":["M","domainList",3]})",
      R"({"op":"create","path":["M","holders","H","domains","D-2"],"type":"AdaptiveMeshDomain","values":{"frequency":1.5}})",
      R"({"op":"set","path":["M","holders","H"],"values":{"label":"changed","control":{"type":"Holder"}}})",
      R"({"op":"set","path":["M","holders","H","domains","D-1"],"values":{"controls":"C-1","frequency":"often"}})",
  };
  for (const char* line : failing) {
    SCOPED_TRACE(line);
    cmdT_Fails(s, line);
    EXPECT_TRUE(s.Database() == before);
    EXPECT_EQ(omu_ChangeHistory::Instance().Size(), history);
  }
}

TEST_F(SessionTest, EnumerationsTakeTheirLiteralOrTheirValue) {
  // A string goes to the enumeration's literal, a number to its value; the enumeration's own
  // refusals are checked with it, here only that each kind reaches its own.
  struct Case {
    const char* value;
    const char* message;  // empty: accepted
    int line;
  };
  const Case cases[] = {
      {R"("GRADED")", "", 0},
      {R"(0)", "", 0},
      {R"("Graded")",
       "omu_PrimEnum(const cow_String&) - str not allowed: Graded  Permissible: UNIFORM, GRADED", 103},
      {R"(2)", "omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 2  Permissible: UNIFORM, GRADED", 76},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value);
    const std::string line =
        std::string(R"({"op":"set","path":["M","adaptiveMeshControls","C-1","smoothingPriority"],"value":)") + c.value + "}";
    cmd_Json r = s.ExecuteLine(line);
    if (!*c.message) {
      EXPECT_TRUE(r["ok"].get<bool>()) << r.dump();
      continue;
    }
    ASSERT_FALSE(r["ok"].get<bool>());
    EXPECT_EQ(r["error"]["kind"], "CmdException");
    EXPECT_EQ(r["error"]["message"], c.message);
    EXPECT_EQ(r["error"]["line"], c.line);
  }
  EXPECT_EQ(Control("C-1").GetSmoothingPriority(), kadC_AdptMeshCtrl::SmoothingPriorityEnm::UNIFORM);
}

TEST_F(SessionTest, AValueOfTheWrongJsonKindIsRefused) {
  struct Case {
    const char* member;
    const char* value;
    const char* message;
  };
  const Case cases[] = {
      {"initialFeatureAngle", R"("30")",
       R"(The member "initialFeatureAngle" of AdaptiveMeshControl takes a number, not the string "30")"},
      {"initialFeatureAngle", "true",
       R"(The member "initialFeatureAngle" of AdaptiveMeshControl takes a number, not the boolean true)"},
      {"initialFeatureAngle", "null", R"(The member "initialFeatureAngle" of AdaptiveMeshControl takes a number, not null)"},
      {"initialFeatureAngle", "[30]", R"(The member "initialFeatureAngle" of AdaptiveMeshControl takes a number, not an array)"},
      {"remapping", "1.5",
       R"(The member "remapping" of AdaptiveMeshControl takes an enumeration literal (a string) or its integer value, not the number 1.5)"},
      {"remapping", R"({"x":1})",
       R"(The member "remapping" of AdaptiveMeshControl takes an enumeration literal (a string) or its integer value, not an object)"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.member + std::string(" = ") + c.value);
    const cmd_Json e = cmdT_Fails(s, std::string(R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{")") +
                                         c.member + "\":" + c.value + "}}");
    EXPECT_EQ(e["kind"], "CmdException");
    EXPECT_EQ(e["message"], c.message);
  }
  // Integers of a domain: 32 bits, no fraction.
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H"],"type":"Holder"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","domains","D"],"type":"AdaptiveMeshDomain"})");
  const char* path = R"({"op":"set","path":["M","holders","H","domains","D","frequency"],"value":)";
  EXPECT_EQ(cmdT_Fails(s, std::string(path) + "2.5}")["message"],
            R"(The member "frequency" of AdaptiveMeshDomain takes an integer (32 bits), not the number 2.5)");
  EXPECT_EQ(cmdT_Fails(s, std::string(path) + "2147483648}")["message"],
            R"(The member "frequency" of AdaptiveMeshDomain takes an integer (32 bits), not the number 2147483648)");
  cmdT_Ok(s, std::string(path) + "-2147483648}");
  cmdT_Ok(s, std::string(path) + "2147483647}");
}

TEST_F(SessionTest, APathThatNamesNothingIsRefusedByItsStep) {
  struct Case {
    const char* command;
    const char* message;
  };
  const Case cases[] = {
      {R"({"op":"get","path":["N"]})", R"(There is no model "N")"},
      {R"({"op":"get","path":["M","adaptiveMeshControls","C-9"]})", R"(There is no "C-9" in adaptiveMeshControls)"},
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-9","remapping"],"value":0})",
       R"(There is no "C-9" in adaptiveMeshControls)"},
      {R"({"op":"get","path":["M","adaptiveMeshControls","C-1","advection"]})",
       "AdaptiveMeshControl has no member \"advection\"; its members are remapping, smoothingAlgorithm, "
       "smoothingPriority, initialFeatureAngle, transitionFeatureAngle, momentumAdvection, meshingPredictor, "
       "curvatureRefinement, volumetricSmoothingWeight, standardVolumetricSmoothingWeight, laplacianSmoothingWeight, "
       "equipotentialSmoothingWeight, meshConstraintAngle, originalConfigurationProjectionWeight"},
      {R"({"op":"get","path":["M","adaptiveMeshControls","C-1","remapping","x"]})",
       R"(The member "remapping" of AdaptiveMeshControl holds a value (enumeration); the path cannot go on to "x")"},
      {R"({"op":"delete","path":["M","adaptiveMeshControls","C-9"]})", R"(There is no "C-9" in adaptiveMeshControls)"},
      {R"({"op":"delete","path":["N"]})", R"(There is no model "N")"},
      {R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})",
       R"(adaptiveMeshControls already holds "C-1")"},
      {R"({"op":"create","path":["M","adaptiveMeshControls","C-2"]})",
       R"(A new element of adaptiveMeshControls needs a "type": AdaptiveMeshControl)"},
      {R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshDomain"})",
       "AdaptiveMeshDomain cannot stand where AdaptiveMeshControl is expected"},
      {R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"Mesh"})", R"(There is no constructor "Mesh")"},
      {R"({"op":"create","path":["M","adaptiveMeshControls",""],"type":"AdaptiveMeshControl"})",
       "An element of adaptiveMeshControls needs a name"},
      {R"({"op":"create","path":["M"]})", R"(A model named "M" already exists)"},
      {R"({"op":"delete","path":["M","adaptiveMeshControls"]})",
       R"(The repositories of a model come with it; "adaptiveMeshControls" cannot be deleted)"},
      {R"({"op":"validate","path":["M","adaptiveMeshControls","C-1","remapping"]})",
       R"(Only a model, a repository or an object can be validated; ["M","adaptiveMeshControls","C-1","remapping"] is the member "remapping" of AdaptiveMeshControl)"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.command);
    const ddr_Database before = s.Database();
    const cmd_Json e = cmdT_Fails(s, c.command);
    EXPECT_EQ(e["kind"], "CmdException");
    EXPECT_EQ(e["message"], c.message);
    EXPECT_TRUE(s.Database() == before);
  }
}

TEST_F(SessionTest, AnUnknownRepositoryIsRefusedWithTheModelsRepositories) {
  const std::string m = cmdT_Fails(s, R"({"op":"get","path":["M","noSuchRepository"]})")["message"].get<std::string>();
  // Which modules register containers varies; this test's own come last, in registration order.
  EXPECT_EQ(m.rfind(R"(The model "M" has no repository "noSuchRepository"; it has )", 0), 0u) << m;
  EXPECT_NE(m.find("adaptiveMeshControls, "), std::string::npos) << m;
  EXPECT_NE(m.find(", holders, numberedControls, domainList"), std::string::npos) << m;
}

TEST_F(SessionTest, MalformedCommandsAreRefused) {
  struct Case {
    const char* line;
    const char* message;
  };
  const Case cases[] = {
      {R"({"op":"frobnicate","path":[]})",
       R"(Unknown op "frobnicate"; the ops are create, set, get, list, delete, validate, save, open, undo, redo, begin, commit, rollback, transaction)"},
      {R"({"op":"set","path":["M"],"vlaues":{}})", R"(The command "set" takes no "vlaues"; it takes op, path, type, values, value)"},
      {R"({"path":["M"]})", R"(The command has no "op")"},
      {R"(["get"])", R"(A command is a JSON object, not ["get"])"},
      {R"({"op":"get"})", R"(The command has no "path")"},
      {R"({"op":"get","path":"M"})", R"(The "path" must be an array of steps, not "M")"},
      {R"({"op":"get","path":["M",1.5]})", "A step of a path is a name or a position, not 1.5"},
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"value":1,"values":{}})",
       R"(set takes either "value" or "values" (with or without "type"), not both)"},
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":[1]})",
       "The values of AdaptiveMeshControl must be a JSON object keyed by scripting names, not an array"},
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"value":1})",
       R"("value" sets one member; ["M","adaptiveMeshControls","C-1"] names no member of an object: use "values")"},
      {R"({"op":"save"})", R"(The command needs a "file": the path of a database file)"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    const cmd_Json e = cmdT_Fails(s, c.line);
    EXPECT_EQ(e["kind"], "CmdException");
    EXPECT_EQ(e["message"], c.message);
  }
  const cmd_Json bad = cmdT_Fails(s, R"({"op":"get",)");
  EXPECT_EQ(bad["message"].get<std::string>().rfind("The command is not valid JSON: ", 0), 0u) << bad.dump();
}

}  // namespace
