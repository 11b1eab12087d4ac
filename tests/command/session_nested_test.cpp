#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "platform/model/omu_ChangeHistory.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

class NestedTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    cmdT_Ok(s, R"({"op":"create","path":["M"]})");
    cmdT_Ok(s, R"({"op":"create","path":["M","holders","H"],"type":"Holder","values":{"label":"first"}})");
    omu_ChangeHistory::Instance().Clear();
  }
  const cmdT_Holder& Holder() {
    return *dynamic_cast<const cmdT_HolderCont&>(*s.Database().FindModel("M")->FindRepository("holders")).ConstGet("H");
  }
  cmd_Json Get(const std::string& path) { return cmdT_Ok(s, R"({"op":"get","path":)" + path + "}"); }
  cmd_Session s;
};

TEST_F(NestedTest, AContainerInsideAnObject) {
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","domains","D-1"],"type":"AdaptiveMeshDomain",
                 "values":{"region":"Set-1","meshSweeps":3}})");
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H","domains","D-1","initialMeshSweeps"],"value":0})");
  EXPECT_EQ(Get(R"(["M","holders","H","domains"])"), cmd_Json::parse(R"({"D-1":{"type":"AdaptiveMeshDomain",
      "region":"Set-1","controls":"","frequency":10,"initialMeshSweeps":0,"meshSweeps":3}})"));
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"cmdT_HolderCont", "Modify", "H"},
                                        {"kadC_AdptMeshDomCont", "Insert", "D-1"},
                                        {"cmdT_HolderCont", "Modify", "H"},
                                        {"kadC_AdptMeshDomCont", "Modify", "D-1"}}));
  // Validation walks into the nested container and names the failing domain.
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H","domains","D-1","frequency"],"value":0})");
  const cmd_Json e = cmdT_Fails(s, R"({"op":"validate","path":["M","holders"]})");
  EXPECT_EQ(e["message"], "Frequency value must be greater than zero.");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["M","holders","H","domains","D-1"])"));
  EXPECT_EQ(e["file"], "QMXOdbKadC.m/src/kadC_assert");
  // The nested container always exists: it can be emptied element by element, not deleted.
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"delete","path":["M","holders","H","domains"]})")["message"],
            R"(the member "domains" of Holder always holds an object; it cannot be deleted)");
  cmdT_Ok(s, R"({"op":"delete","path":["M","holders","H","domains","D-1"]})");
  EXPECT_EQ(Holder().Domains().Size(), 0u);
}

// A repository whose elements are containers: the path goes from the element on into it.
TEST_F(NestedTest, AContainerAsAnElement) {
  auto& groups = dynamic_cast<cmdT_DomainGroups&>(*s.Database().ModifyModel("M")->ModifyRepository("domainGroups"));
  groups.Insert("G-1", kadC_AdptMeshDomCont());
  cmdT_Ok(s, R"({"op":"create","path":["M","domainGroups","G-1","D-1"],"type":"AdaptiveMeshDomain"})");
  cmdT_Ok(s, R"({"op":"set","path":["M","domainGroups","G-1","D-1","meshSweeps"],"value":0})");
  EXPECT_EQ(Get(R"(["M","domainGroups","G-1","D-1","meshSweeps"])"), 0);
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":["M","domainGroups","G-1"]})"), cmd_Json::parse(R"(["D-1"])"));
  EXPECT_EQ(Get(R"(["M","domainGroups"])")["G-1"]["D-1"]["meshSweeps"], 0);
  const cmd_Json e = cmdT_Fails(s, R"({"op":"validate","path":["M","domainGroups"]})");
  EXPECT_EQ(e["message"], "Sweeps per increment must be greater than zero.");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["M","domainGroups","G-1","D-1"])"));
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"get","path":["M","domainGroups","G-1","D-2"]})")["message"],
            R"(There is no "D-2" in adaptiveMeshDomains)");
}

TEST_F(NestedTest, AnOptionalMemberObjectIsCreatedSetAndCleared) {
  EXPECT_EQ(Get(R"(["M","holders","H","control"])"), nullptr);
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"set","path":["M","holders","H","control","remapping"],"value":0})")["message"],
            R"(The member "control" of Holder is empty; the path cannot go on to "remapping")");
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H","control"],"type":"AdaptiveMeshControl",
                 "values":{"initialFeatureAngle":5}})");
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H","control","transitionFeatureAngle"],"value":6})");
  ASSERT_FALSE(Holder().Control().IsNull());
  EXPECT_EQ(Holder().Control()->GetInitialFeatureAngle(), 5);
  EXPECT_EQ(Holder().Control()->GetTransitionFeatureAngle(), 6);
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"create","path":["M","holders","H","control"],"type":"AdaptiveMeshControl"})")["message"],
            R"(the member "control" of Holder is already set; set it with a "type" to replace it)");
  // Inline, in the values of the owner: a new object replaces the old one.
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"control":{"type":"AdaptiveMeshControl","remapping":0}}})");
  EXPECT_EQ(Holder().Control()->GetInitialFeatureAngle(), 30);
  EXPECT_EQ(Holder().Control()->GetAdvection(), kadC_AdptMeshCtrl::AdvectionEnm::FIRST_ORDER_ADVECTION);
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"set","path":["M","holders","H"],"values":{"control":{"type":"AdaptiveMeshDomain"}}})")["message"],
            "AdaptiveMeshDomain cannot stand where AdaptiveMeshControl is expected");
  cmdT_Ok(s, R"({"op":"delete","path":["M","holders","H","control"]})");
  EXPECT_TRUE(Holder().Control().IsNull());
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"delete","path":["M","holders","H","control"]})")["message"],
            R"(the member "control" of Holder is already empty)");
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"control":{"initialFeatureAngle":9}}})");
  EXPECT_EQ(Holder().Control()->GetInitialFeatureAngle(), 9);  // the declared class, without a type
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"control":null}})");
  EXPECT_TRUE(Holder().Control().IsNull());
}

TEST_F(NestedTest, AListOfObjectsByPosition) {
  const char* list = R"(["M","holders","H","controlList"])";
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","controlList",0],"type":"AdaptiveMeshControl",
                 "values":{"initialFeatureAngle":1}})");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","controlList",0],"type":"AdaptiveMeshControl",
                 "values":{"initialFeatureAngle":0}})");
  cmdT_Ok(s, R"({"op":"create","path":["M","holders","H","controlList",2],"type":"AdaptiveMeshControl",
                 "values":{"initialFeatureAngle":2}})");
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"create","path":["M","holders","H","controlList",4],"type":"AdaptiveMeshControl"})")["message"],
            R"(The list "controlList" of Holder holds 3 elements; a new one can go at 0 to 3, not 4)");
  // A member of an element, written back into the list.
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H","controlList",1,"transitionFeatureAngle"],"value":11})");
  ASSERT_EQ(Holder().Controls().size(), 3u);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(Holder().Controls()[i]->GetInitialFeatureAngle(), i);
  EXPECT_EQ(Holder().Controls()[1]->GetTransitionFeatureAngle(), 11);
  EXPECT_EQ(Get(R"(["M","holders","H","controlList",1,"transitionFeatureAngle"])"), 11.0);
  EXPECT_EQ(cmdT_Ok(s, std::string(R"({"op":"list","path":)") + list + "}"), cmd_Json::parse(R"(["0","1","2"])"));
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"get","path":["M","holders","H","controlList",3,"remapping"]})")["message"],
            R"(The list "controlList" of Holder has no element "3"; it holds 3)");
  cmdT_Ok(s, R"({"op":"delete","path":["M","holders","H","controlList",0]})");
  ASSERT_EQ(Holder().Controls().size(), 2u);
  EXPECT_EQ(Holder().Controls()[0]->GetInitialFeatureAngle(), 1);
  // A failing change inside an element is not written back.
  cmdT_Fails(s, R"({"op":"set","path":["M","holders","H","controlList",0],"values":{"initialFeatureAngle":7,"remapping":"X"}})");
  EXPECT_EQ(Holder().Controls()[0]->GetInitialFeatureAngle(), 1);
  cmdT_Ok(s, R"({"op":"delete","path":["M","holders","H","controlList"]})");
  EXPECT_TRUE(Holder().Controls().empty());
}

TEST_F(NestedTest, PlainListsAndTables) {
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"weights":[1,2.5],"table":[[1,2],[3,4],[5,6]],
                 "counts":[-1,2],"flags":[true,false],"names":["a","b"],"modes":["GRADED","UNIFORM"],"enabled":true}})");
  const cmd_Json h = Get(R"(["M","holders","H"])");
  EXPECT_EQ(h["weights"], cmd_Json::parse("[1.0,2.5]"));
  EXPECT_EQ(h["table"], cmd_Json::parse("[[1.0,2.0],[3.0,4.0],[5.0,6.0]]"));
  EXPECT_EQ(h["counts"], cmd_Json::parse("[-1,2]"));
  EXPECT_EQ(h["flags"], cmd_Json::parse("[true,false]"));
  EXPECT_EQ(h["modes"], cmd_Json::parse(R"(["GRADED","UNIFORM"])"));
  EXPECT_EQ(Holder().Table().Rows(), 3u);
  EXPECT_EQ(Holder().Table()(2, 1), 6.0);
  struct Case {
    const char* values;
    const char* message;
  };
  const Case cases[] = {
      {R"({"table":[[1,2],[3]]})",
       R"(The member "table" of Holder takes a table whose rows have equal lengths; row 1 has 1 values where row 0 has 2)"},
      {R"({"table":[[1,"x"]]})",
       R"(The member "table" of Holder takes a table (an array of rows of numbers), not the string "x" at row 0, column 1)"},
      {R"({"weights":[1,null]})",
       R"(The member "weights" of Holder takes an array of numbers, not null at element 1)"},
      {R"({"counts":[1.5]})",
       R"(The member "counts" of Holder takes an array of integers, not the number 1.5 at element 0)"},
      {R"({"modes":["GRADED","graded"]})",
       "omu_PrimEnum(const cow_String&) - str not allowed: graded  Permissible: UNIFORM, GRADED"},
      {R"({"flags":[1]})", R"(The member "flags" of Holder takes an array of booleans, not the number 1 at element 0)"},
      {R"({"enabled":"yes"})", R"(The member "enabled" of Holder takes true or false, not the string "yes")"},
      {R"({"nothing":1})",
       R"(Holder has no member "nothing"; its members are label, domains, control, controlList, weights, table, counts, flags, names, modes, enabled, count)"},
      {R"({"type":"AdaptiveMeshControl"})",
       R"(The values name the constructor "AdaptiveMeshControl", but the object is of Holder)"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.values);
    EXPECT_EQ(cmdT_Fails(s, std::string(R"({"op":"set","path":["M","holders","H"],"values":)") + c.values + "}")["message"],
              c.message);
  }
  EXPECT_EQ(Get(R"(["M","holders","H"])"), h);  // none of them changed anything
  // The constructor key is accepted when it names the object's own class.
  cmdT_Ok(s, R"({"op":"set","path":["M","holders","H"],"values":{"type":"Holder","label":"again"}})");
}

TEST_F(NestedTest, IntegerKeysAndPositions) {
  cmdT_Ok(s, R"({"op":"create","path":["M","numberedControls",7],"type":"AdaptiveMeshControl"})");
  cmdT_Ok(s, R"({"op":"create","path":["M","numberedControls","-2"],"type":"AdaptiveMeshControl"})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":["M","numberedControls"]})"), cmd_Json::parse(R"(["-2","7"])"));
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"create","path":["M","numberedControls","x"],"type":"AdaptiveMeshControl"})")["message"],
            R"(The keys of numberedControls are 32-bit integers, not "x")");
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"get","path":["M","numberedControls","07"]})")["message"],
            R"(There is no "07" in numberedControls)");
  cmdT_Ok(s, R"({"op":"set","path":["M","numberedControls",7,"remapping"],"value":0})");
  cmdT_Ok(s, R"({"op":"delete","path":["M","numberedControls",-2]})");

  for (int f : {1, 2, 3})
    cmdT_Ok(s, R"({"op":"create","path":["M","domainList",)" + std::to_string(f - 1) +
                   R"(],"type":"AdaptiveMeshDomain","values":{"frequency":)" + std::to_string(f) + "}}");
  cmdT_Ok(s, R"({"op":"create","path":["M","domainList",0],"type":"AdaptiveMeshDomain","values":{"frequency":9}})");
  EXPECT_EQ(cmdT_Fails(s, R"({"op":"create","path":["M","domainList",5],"type":"AdaptiveMeshDomain"})")["message"],
            "An element of domainList can go at positions 0 to 4, not 5");
  cmdT_Ok(s, R"({"op":"delete","path":["M","domainList",2]})");
  cmd_Json freq = cmd_Json::array();
  const cmd_Json domains = Get(R"(["M","domainList"])");
  for (const auto& [k, d] : domains.items()) freq.push_back(d["frequency"]);
  EXPECT_EQ(freq, cmd_Json::parse("[9,1,3]"));
  // set with a type replaces the element in place.
  cmdT_Ok(s, R"({"op":"set","path":["M","domainList",1],"type":"AdaptiveMeshDomain","values":{"frequency":4}})");
  EXPECT_EQ(Get(R"(["M","domainList",1,"frequency"])"), 4);
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"list","path":["M","domainList"]})"), cmd_Json::parse(R"(["0","1","2"])"));
}

}  // namespace
