// The walk of the advice: exact messages, names resolved in the nearest scope also when only a part
// of the model is advised, advisors of a base class, an advisor that fails, and verdicts of
// validation left as they were.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <stdexcept>
#include <string>

#include "command/cmd_Advice.h"
#include "command/cmd_Session.h"
#include "tests/support/qmx_test.h"

namespace {

cmd_Json AdviceWalkRun(cmd_Session& s, const std::string& line) {
  cmd_Json r = s.ExecuteLine(line);
  EXPECT_TRUE(r.value("ok", false)) << line << "\n" << r.dump();
  return r.value("result", cmd_Json());
}

void AdviceWalkTask(cmd_Session& s) {
  AdviceWalkRun(s, R"({"op":"create","path":["M"]})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","optimizationTasks","T"],"type":"TopologyTask","values":{"region":"DS"}})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","optimizationTasks","T","designResponses","Volume"],"type":"SingleTermDesignResponse","values":{"request":{"identifier":"VOLUME","operation":"SUM","drivingRegion":"DS"}}})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","optimizationTasks","T","objectiveFunctions","O"],"type":"ObjectiveFunction","values":{"objectives":[{"designResponse":"Volum"}]}})");
}

TEST(AdviceWalk, MessagesSayWhatIsWrongAndWhatIsExpected) {
  qmx_StartLibrary();
  cmd_Session s;
  AdviceWalkRun(s, R"({"op":"create","path":["M"]})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","materials","S"],"type":"Material"})");
  AdviceWalkRun(s, R"({"op":"set","path":["M","materials","S","plastic"],"type":"Plastic","values":{"rate":true,"temperatureDependency":true,"table":[[250,0,0,20],[300,0.1,0,20],[260,0.05,0,20]]}})");
  AdviceWalkRun(s, R"({"op":"set","path":["M","materials","S","elastic"],"type":"Elastic","values":{"dependencies":1,"table":[[210000,0.3]]}})");
  const cmd_Json r = AdviceWalkRun(s, R"({"op":"validate","path":["M","materials","S"]})");
  ASSERT_EQ(r["warnings"].size(), 2u) << r.dump();
  EXPECT_EQ(r["warnings"][0]["message"],
            "The elastic table has 2 columns; expected 3 (2 of data, then 1 of temperature and field dependencies)");
  EXPECT_EQ(r["warnings"][1]["message"],
            "In the plastic table, row 3 has plastic strain 0.05 after 0.1 in row 2; expected the rows in increasing "
            "order of plastic strain, strain rate and temperature, the last the slowest to change");
}

TEST(AdviceWalk, NamesAreLookedUpAroundThePartAdvised) {
  qmx_StartLibrary();
  cmd_Session s;
  AdviceWalkTask(s);
  const cmd_Json expected = cmd_Json::parse(R"([{"path":["M","optimizationTasks","T","objectiveFunctions","O","objectives","0"],
      "member":"designResponse","code":"dangling-reference",
      "message":"The name \"Volum\" leads nowhere: [\"M\",\"optimizationTasks\",\"T\",\"designResponses\"] holds no element of that name; expected the name of one of its elements"}])");
  for (const char* path : {R"([])", R"(["M"])", R"(["M","optimizationTasks","T"])",
                           R"(["M","optimizationTasks","T","objectiveFunctions"])",
                           R"(["M","optimizationTasks","T","objectiveFunctions","O"])"}) {
    SCOPED_TRACE(path);
    const cmd_Json r = AdviceWalkRun(s, std::string(R"({"op":"validate","path":)") + path + "}");
    EXPECT_EQ(r["warnings"], expected);
  }
  // A part without the mistake has nothing to say.
  EXPECT_FALSE(AdviceWalkRun(s, R"({"op":"validate","path":["M","optimizationTasks","T","designResponses"]})").contains("warnings"));
}

TEST(AdviceWalk, VerdictsOfValidationStayAsTheyWere) {
  qmx_StartLibrary();
  cmd_Session s;
  AdviceWalkRun(s, R"({"op":"create","path":["M"]})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","materials","S"],"type":"Material"})");
  // E = -1 and a Poisson's ratio of 0.7 validate: two warnings, no failure.
  AdviceWalkRun(s, R"({"op":"set","path":["M","materials","S","elastic"],"type":"Elastic","values":{"table":[[-1,0.7]]}})");
  const cmd_Json ok = AdviceWalkRun(s, R"({"op":"validate","path":["M"]})");
  EXPECT_EQ(ok["validated"], 1);
  ASSERT_EQ(ok["warnings"].size(), 2u);
  EXPECT_EQ(ok["warnings"][0]["code"], "elastic-modulus-sign");
  EXPECT_EQ(ok["warnings"][1]["code"], "elastic-poisson-range");
  // An invalid object fails as before, with its failures, and its warnings beside them.
  AdviceWalkRun(s, R"({"op":"set","path":["M","materials","S","elastic","noTension"],"value":true})");
  AdviceWalkRun(s, R"({"op":"set","path":["M","materials","S","elastic","noCompression"],"value":true})");
  const cmd_Json bad = s.ExecuteLine(R"({"op":"validate","path":["M"]})");
  EXPECT_FALSE(bad.value("ok", true));
  EXPECT_EQ(bad["error"]["message"], "No compression and No tension are mutually exclusive. Please unselect one of them.");
  EXPECT_EQ(bad["error"]["failures"].size(), 1u);
  EXPECT_EQ(bad["error"]["warnings"].size(), 2u);
}

int gAdviceWalkCalls = 0;

TEST(AdviceWalk, AdvisorsOfABaseClassAdviseItsKindsAndAFailingAdvisorIsAWarning) {
  qmx_StartLibrary();
  cmd_Session s;
  AdviceWalkRun(s, R"({"op":"create","path":["M"]})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","amplitudes","A"],"type":"TabularAmplitude","values":{"data":[[0,0],[1,1]]}})");
  AdviceWalkRun(s, R"({"op":"create","path":["M","amplitudes","D"],"type":"DecayAmplitude"})");
  gAdviceWalkCalls = 0;
  cmd_RegisterAdvisor("advice-test", "kamC_Amplitude", [](const void*, cmd_AdviceContext& ctx) {
    ++gAdviceWalkCalls;
    if (ctx.Path().back() == "D") throw std::runtime_error("no decay here");
  });
  const cmd_Json r = AdviceWalkRun(s, R"({"op":"validate","path":["M","amplitudes"]})");
  cmd_UnregisterAdvisors("advice-test");
  EXPECT_EQ(gAdviceWalkCalls, 2);
  EXPECT_EQ(r["warnings"], cmd_Json::parse(R"([{"path":["M","amplitudes","D"],"member":"","code":"advice-failed",
      "message":"The advice on this object stopped: no decay here"}])"));
  // Unregistered, it is asked no more.
  EXPECT_FALSE(AdviceWalkRun(s, R"({"op":"validate","path":["M","amplitudes"]})").contains("warnings"));
  EXPECT_EQ(gAdviceWalkCalls, 2);
}

}  // namespace
