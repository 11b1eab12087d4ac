// Errors say where: the path of the object concerned and the member that failed, beside the
// message exactly as the system raised it; validate reports every failure; every repository the
// model holds is reachable; a dump is linear in the size of a repository.
#include <gtest/gtest.h>

#include <string>

#include <nlohmann/json.hpp>

#include "kad/kadC_AdptMeshDomain.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

const char* kRemappingRefusal =
    "omu_PrimEnum(const cow_String&) - str not allowed: THIRD_ORDER  Permissible: FIRST_ORDER_ADVECTION, "
    "SECOND_ORDER_ADVECTION";

class ErrorPathTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    cmdT_Ok(s, R"({"op":"create","path":["M"]})");
    cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-1"],"type":"AdaptiveMeshControl"})");
    cmdT_Ok(s, R"({"op":"create","path":["M","holders","H"],"type":"Holder"})");
  }
  cmd_Session s;
};

TEST_F(ErrorPathTest, AnEnumerationRefusalKeepsItsMessageAndSaysWhichMemberOfWhichObject) {
  struct Case {
    std::string line;
    std::string path;    // JSON
    std::string member;
  };
  const Case cases[] = {
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"initialFeatureAngle":3,"remapping":"THIRD_ORDER"}})",
       R"(["M","adaptiveMeshControls","C-1"])", "remapping"},
      {R"({"op":"set","path":["M","adaptiveMeshControls","C-1","remapping"],"value":"THIRD_ORDER"})",
       R"(["M","adaptiveMeshControls","C-1"])", "remapping"},
      {R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl","values":{"remapping":"THIRD_ORDER"}})",
       R"(["M","adaptiveMeshControls","C-2"])", "remapping"},
      // inline objects: the path goes on through the members that hold them
      {R"({"op":"set","path":["M","holders","H"],"values":{"control":{"remapping":"THIRD_ORDER"}}})",
       R"(["M","holders","H","control"])", "remapping"},
      {R"({"op":"set","path":["M","holders","H"],"values":{"controlList":[{},{"remapping":"THIRD_ORDER"}]}})",
       R"(["M","holders","H","controlList","1"])", "remapping"},
      {R"({"op":"set","path":["M","holders","H","control"],"value":{"remapping":"THIRD_ORDER"}})",
       R"(["M","holders","H","control"])", "remapping"},
      {R"({"op":"set","path":["M","holders","H","control"],"type":"AdaptiveMeshControl","values":{"remapping":"THIRD_ORDER"}})",
       R"(["M","holders","H","control"])", "remapping"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    const cmd_Json e = cmdT_Fails(s, c.line);
    cmd_Json expected = cmd_Json::parse(R"({"kind":"CmdException","file":"QMXAbuTessarUtilities/ProtectedInterfaces/omu_PrimEnum","line":103})");
    expected["message"] = kRemappingRefusal;
    expected["path"] = cmd_Json::parse(c.path);
    expected["member"] = c.member;
    for (const auto& [k, v] : expected.items()) EXPECT_EQ(e[k], v) << k;
    EXPECT_EQ(e.size(), expected.size()) << e.dump();
  }
}

TEST_F(ErrorPathTest, ARefusalOfThePathCarriesWhereItStoppedTheStepAndTheCandidates) {
  const cmd_Json e = cmdT_Fails(s, R"({"op":"get","path":["M","adaptiveMeshControls","C-9","remapping"]})");
  EXPECT_EQ(e["message"], R"(There is no "C-9" in adaptiveMeshControls)");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["M","adaptiveMeshControls"])"));
  EXPECT_EQ(e["member"], "C-9");
  EXPECT_EQ(e["candidates"], cmd_Json::parse(R"(["C-1"])"));
  // A wrong kind of value is the member's refusal too.
  const cmd_Json k = cmdT_Fails(s, R"({"op":"set","path":["M","adaptiveMeshControls","C-1"],"values":{"curvatureRefinement":"2"}})");
  EXPECT_EQ(k["message"], R"(The member "curvatureRefinement" of AdaptiveMeshControl takes a number, not the string "2")");
  EXPECT_EQ(k["member"], "curvatureRefinement");
  // Commands without a path have none.
  EXPECT_FALSE(cmdT_Fails(s, R"({"op":"open","file":""})").contains("path"));
}

TEST_F(ErrorPathTest, ValidateReportsEveryFailureUnderThePathFirstFirst) {
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-2"],"type":"AdaptiveMeshControl",
                 "values":{"laplacianSmoothingWeight":-1}})");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshControls","C-3"],"type":"AdaptiveMeshControl",
                 "values":{"meshConstraintAngle":200}})");
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshDomains","D-1"],"type":"AdaptiveMeshDomain",
                 "values":{"frequency":0}})");
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"count":-1}})");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","domains","D-2"],"type":"AdaptiveMeshDomain",
                 "values":{"meshSweeps":0}})");
  const cmd_Json e = cmdT_Fails(s, R"({"op":"validate","path":["M"]})");
  const cmd_Json failures = cmd_Json::parse(R"([
    {"kind":"PrimException","message":"Laplacian smoothing weight must be greater than or equal to zero.",
     "file":"QMXOdbKadC.m/src/kadC_assert","line":71,"path":["M","adaptiveMeshControls","C-2"]},
    {"kind":"PrimException","message":"Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.",
     "file":"QMXOdbKadC.m/src/kadC_assert","line":71,"path":["M","adaptiveMeshControls","C-3"]},
    {"kind":"PrimException","message":"Frequency value must be greater than zero.",
     "file":"QMXOdbKadC.m/src/kadC_assert","line":71,"path":["M","adaptiveMeshDomains","D-1"]},
    {"kind":"PrimException","message":"Count must not be negative.","file":"cmdT_Holder","line":7,
     "path":["M","holders","H"]},
    {"kind":"PrimException","message":"Sweeps per increment must be greater than zero.",
     "file":"QMXOdbKadC.m/src/kadC_assert","line":71,"path":["M","holders","H","domains","D-2"]}])");
  cmd_Json expected = failures[0];
  expected["failures"] = failures;
  EXPECT_EQ(e, expected);
  // Under a narrower path, only what lies there.
  const cmd_Json h = cmdT_Fails(s, R"({"op":"validate","path":["M","holders"]})");
  EXPECT_EQ(h["failures"].size(), 2u);
  EXPECT_EQ(h["message"], "Count must not be negative.");
  // An object alone, failing and passing.
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"validate","path":["M","adaptiveMeshControls","C-3"]})")["message"],
            "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"validate","path":["M","adaptiveMeshControls","C-1"]})"), cmd_Json::parse(R"({"validated":1})"));
}

TEST_F(ErrorPathTest, AdaptiveMeshDomainsAreReachableFromAModelAndSurviveTheFile) {
  cmdT_Ok(s, R"({"op":"create","path":["M","adaptiveMeshDomains","D-1"],"type":"AdaptiveMeshDomain",
                 "values":{"region":"Part-1.Set-1","controls":"C-1","frequency":5,"meshSweeps":3}})");
  cmdT_Ok(s, R"({"op":"set","path":["M","adaptiveMeshDomains","D-1","initialMeshSweeps"],"value":7})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshDomains","D-1"]})"),
            cmd_Json::parse(R"({"type":"AdaptiveMeshDomain","region":"Part-1.Set-1","controls":"C-1","frequency":5,
                                "initialMeshSweeps":7,"meshSweeps":3})"));
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"validate","path":["M","adaptiveMeshDomains"]})"), cmd_Json::parse(R"({"validated":1})"));
  const std::string file = qmx_TempDir("domains") + "/m.db";
  cmdT_Ok(s, cmd_Json{{"op", "save"}, {"file", file}}.dump());
  cmd_Session back;
  cmdT_Ok(back, cmd_Json{{"op", "open"}, {"file", file}}.dump());
  EXPECT_TRUE(back.Database() == s.Database());
  EXPECT_EQ(cmdT_Ok(back, R"({"op":"list","path":["M","adaptiveMeshDomains"]})"), cmd_Json::parse(R"(["D-1"])"));
}

// A large repository dumps and lists whole and in order. (A dump that searched the keys already
// placed for each new one was quadratic: at this size a benchmark shows it, a test need not.)
TEST_F(ErrorPathTest, DumpAndListOfALargeRepositoryKeepEveryElementInKeyOrder) {
  constexpr int kCount = 20000;
  mdl_Repository* repo = s.Database().ModifyModel("M")->ModifyRepository("adaptiveMeshDomains");
  ASSERT_NE(repo, nullptr);
  const cls_ClassMetadata& cls = repo->ElementClass();
  for (int i = 0; i < kCount; ++i) {
    void* d = cls.NewDefault();
    static_cast<kadC_AdptMeshDomain*>(d)->SetFrequency(i + 1);
    repo->InsertNew(cow_String("D-" + std::to_string(i)), d);
  }
  const cmd_Json dump = cmdT_Ok(s, R"({"op":"get","path":["M","adaptiveMeshDomains"]})");
  const cmd_Json list = cmdT_Ok(s, R"({"op":"list","path":["M","adaptiveMeshDomains"]})");
  ASSERT_EQ(dump.size(), static_cast<std::size_t>(kCount));
  ASSERT_EQ(list.size(), static_cast<std::size_t>(kCount));
  // Natural key order: D-0, D-1, D-2, ..., D-10, ...
  std::size_t i = 0;
  for (const auto& [key, value] : dump.items()) {
    ASSERT_EQ(key, "D-" + std::to_string(i));
    ASSERT_EQ(list[i], key);
    ASSERT_EQ(value["frequency"], static_cast<int>(i) + 1);
    ++i;
  }
}

}  // namespace
