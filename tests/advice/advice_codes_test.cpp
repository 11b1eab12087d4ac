// One case per warning code: a model that raises it and a near-identical model that does not. Each
// model is built by script lines and advised through the validate op, whose verdict advice never
// changes.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "tests/support/qmx_test.h"

namespace {

struct AdviceCase {
  const char* code;
  std::vector<const char*> setup;  // after the model "M" is made
  const char* raises;              // the line that makes the mistake
  const char* clean;               // the near-identical line that does not
  std::vector<const char*> path;   // of the warning
  const char* member;
};

const char* const kSteel = R"({"op":"create","path":["M","materials","Steel"],"type":"Material"})";
const char* const kTask =
    R"({"op":"create","path":["M","optimizationTasks","T"],"type":"TopologyTask","values":{"region":"DS"}})";
const char* const kVolume =
    R"({"op":"create","path":["M","optimizationTasks","T","designResponses","Volume"],"type":"SingleTermDesignResponse","values":{"request":{"identifier":"VOLUME","operation":"SUM","drivingRegion":"DS"}}})";
const char* const kPlastic =
    R"({"op":"set","path":["M","materials","Steel","plastic"],"type":"Plastic","values":{"table":[[250,0]]}})";
const char* const kDuctileTable = R"("table":[[0.2,0.33,0.001]])";

std::string Ductile(const char* evolutions) {
  return std::string(R"({"op":"set","path":["M","materials","Steel","ductileDamageInitiation"],"type":"DamageInitiation",)") +
         R"("values":{)" + kDuctileTable + evolutions + "}}";
}

const std::vector<AdviceCase>& Cases() {
  static const std::string ductileTwo = Ductile(
      R"(,"DamageEvolutionList":[{"type":"ENERGY","failureIndex":1,"table":[[12]]},{"type":"ENERGY","failureIndex":2,"table":[[10]]}])");
  static const std::string ductileOne = Ductile(R"(,"DamageEvolutionList":[{"type":"ENERGY","failureIndex":1,"table":[[12]]}])");
  static const std::string ductileIndexTwo =
      Ductile(R"(,"DamageEvolutionList":[{"type":"ENERGY","failureIndex":2,"table":[[12]]}])");
  static const std::string ductileNone = Ductile("");
  static const std::vector<AdviceCase> kCases = {
      {"elastic-poisson-range", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"table":[[210000,0.7]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"table":[[210000,0.3]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"elastic-modulus-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"table":[[-1,0.3]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"table":[[1,0.3]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"table-width", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"table":[[210000,0.3,20]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[[210000,0.3,20]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"table-width", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"COUPLED_TRACTION","table":[[1e5,1e5,1e5]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"COUPLED_TRACTION","table":[[1e5,1e5,1e5,10,10,10]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"table-width", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"TRANSVERSELY_ISOTROPIC","table":[[150000,9000,0.3,0.25,5000,1]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"TRANSVERSELY_ISOTROPIC","table":[[150000,9000,0.3,0.25,5000]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"elastic-modulus-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"COUPLED_TRACTION","table":[[1e5,0,1e5,-10,10,10]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"type":"COUPLED_TRACTION","table":[[1e5,1e5,1e5,-10,10,10]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"table-key-order", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[[200000,0.3,100],[210000,0.3,20]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[[210000,0.3,20],[200000,0.3,100]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"table-duplicate-key", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[[210000,0.3,20],[200000,0.3,20]]}})",
       R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic","values":{"temperatureDependency":true,"table":[[210000,0.3,20],[200000,0.3,21]]}})",
       {"M", "materials", "Steel", "elastic"}, "table"},
      {"density-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","density"],"type":"Density","values":{"table":[[-7.8e-9]]}})",
       R"({"op":"set","path":["M","materials","Steel","density"],"type":"Density","values":{"table":[[7.8e-9]]}})",
       {"M", "materials", "Steel", "density"}, "table"},
      {"expansion-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","expansion"],"type":"Expansion","values":{"table":[[-1.2e-5]]}})",
       R"({"op":"set","path":["M","materials","Steel","expansion"],"type":"Expansion","values":{"table":[[1.2e-5]]}})",
       {"M", "materials", "Steel", "expansion"}, "table"},
      {"conductivity-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","conductivity"],"type":"Conductivity","values":{"table":[[-45]]}})",
       R"({"op":"set","path":["M","materials","Steel","conductivity"],"type":"Conductivity","values":{"table":[[45]]}})",
       {"M", "materials", "Steel", "conductivity"}, "table"},
      {"plastic-yield-sign", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","plastic"],"type":"Plastic","values":{"table":[[-250,0]]}})",
       R"({"op":"set","path":["M","materials","Steel","plastic"],"type":"Plastic","values":{"table":[[250,0]]}})",
       {"M", "materials", "Steel", "plastic"}, "table"},
      {"damage-needs-plasticity", {kSteel, ductileNone.c_str()},
       R"({"op":"set","path":["M","materials","Steel","description"],"value":"no plasticity"})", kPlastic, {"M", "materials", "Steel", "ductileDamageInitiation"}, ""},
      {"damage-evolution-required", {kSteel},
       R"({"op":"set","path":["M","materials","Steel","hashinDamageInitiation"],"type":"DamageInitiation","values":{"table":[[2000,1200,50,100,70,80]]}})",
       R"({"op":"set","path":["M","materials","Steel","hashinDamageInitiation"],"type":"DamageInitiation","values":{"table":[[2000,1200,50,100,70,80]],"DamageEvolutionList":[{"type":"ENERGY","failureIndex":1,"table":[[12]]}]}})",
       {"M", "materials", "Steel", "hashinDamageInitiation"}, "DamageEvolutionList"},
      {"damage-failure-index", {kSteel, kPlastic}, ductileIndexTwo.c_str(), ductileOne.c_str(),
       {"M", "materials", "Steel", "ductileDamageInitiation"}, "DamageEvolutionList"},
      {"damage-evolution-count", {kSteel, kPlastic}, ductileTwo.c_str(), ductileOne.c_str(),
       {"M", "materials", "Steel", "ductileDamageInitiation"}, "DamageEvolutionList"},
      {"amplitude-start-time", {},
       R"({"op":"create","path":["M","amplitudes","A"],"type":"TabularAmplitude","values":{"data":[[1,0],[2,1]]}})",
       R"({"op":"create","path":["M","amplitudes","A"],"type":"TabularAmplitude","values":{"data":[[1,0],[2,1]],"timeSpan":"TOTAL"}})",
       {"M", "amplitudes", "A"}, "data"},
      {"table-duplicate-key", {},
       R"({"op":"create","path":["M","amplitudes","A"],"type":"TabularAmplitude","values":{"data":[[0,0],[1,1],[1,2]]}})",
       R"({"op":"create","path":["M","amplitudes","A"],"type":"TabularAmplitude","values":{"data":[[0,0],[1,1],[1.5,2]]}})",
       {"M", "amplitudes", "A"}, "data"},
      {"dangling-reference", {kTask, kVolume},
       R"({"op":"create","path":["M","optimizationTasks","T","objectiveFunctions","O"],"type":"ObjectiveFunction","values":{"objectives":[{"designResponse":"Volume"},{"designResponse":"Volum"}]}})",
       R"({"op":"create","path":["M","optimizationTasks","T","objectiveFunctions","O"],"type":"ObjectiveFunction","values":{"objectives":[{"designResponse":"Volume"},{"designResponse":"Volume"}]}})",
       {"M", "optimizationTasks", "T", "objectiveFunctions", "O", "objectives", "1"}, "designResponse"},
      {"dangling-reference", {kTask, kVolume},
       R"({"op":"create","path":["M","optimizationTasks","T","optimizationConstraints","C"],"type":"OptimizationConstraint","values":{"designResponse":"Weight","restrictionValue":0.3}})",
       R"({"op":"create","path":["M","optimizationTasks","T","optimizationConstraints","C"],"type":"OptimizationConstraint","values":{"designResponse":"Volume","restrictionValue":0.3}})",
       {"M", "optimizationTasks", "T", "optimizationConstraints", "C"}, "designResponse"},
      {"dangling-reference",
       {R"({"op":"create","path":["M","eventSeriesTypes","Laser"],"type":"EventSeriesType","values":{"fieldNums":1}})"},
       R"({"op":"create","path":["M","eventSeriesDatas","P"],"type":"EventSeriesData","values":{"eventSeriesType":"Lazer"}})",
       R"({"op":"create","path":["M","eventSeriesDatas","P"],"type":"EventSeriesData","values":{"eventSeriesType":"Laser"}})",
       {"M", "eventSeriesDatas", "P"}, "eventSeriesType"},
      {"dangling-reference", {R"({"op":"create","path":["M","connectorSections","Weld"],"type":"ConnectorSection"})"},
       R"({"op":"create","path":["M","engineeringFeatures","fasteners","F"],"type":"PointFastener","values":{"region":"R","influenceRadius":"WHOLE_SURFACE","physicalRadius":2,"searchRadius":6,"sectionName":"Wild"}})",
       R"({"op":"create","path":["M","engineeringFeatures","fasteners","F"],"type":"PointFastener","values":{"region":"R","influenceRadius":"WHOLE_SURFACE","physicalRadius":2,"searchRadius":6,"sectionName":"Weld"}})",
       {"M", "engineeringFeatures", "fasteners", "F"}, "sectionName"},
      {"dangling-reference",
       {kSteel, R"({"op":"create","path":["M","analyticalFields","AF"],"type":"ExpressionField","values":{"expression":"1.0 + 0.1*X"}})"},
       R"({"op":"set","path":["M","materials","Steel","density"],"type":"Density","values":{"distributionType":"DISCRETE_FIELD","fieldName":"AF","table":[[7.8e-9]]}})",
       R"({"op":"set","path":["M","materials","Steel","density"],"type":"Density","values":{"distributionType":"ANALYTICAL_FIELD","fieldName":"AF","table":[[7.8e-9]]}})",
       {"M", "materials", "Steel", "density"}, "fieldName"},
  };
  return kCases;
}

// Runs the lines of a model (a line may hold several, one per text line) and returns the
// warnings that validating the whole model gives, from its result or its error alike.
cmd_Json AdviseModel(const std::vector<std::string>& lines) {
  cmd_Session s;
  std::vector<std::string> all = {R"({"op":"create","path":["M"]})"};
  for (const auto& block : lines) {
    std::size_t start = 0;
    while (start <= block.size()) {
      std::size_t end = block.find('\n', start);
      if (end == std::string::npos) end = block.size();
      all.push_back(block.substr(start, end - start));
      start = end + 1;
    }
  }
  for (const auto& line : all) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_TRUE(r.value("ok", false)) << line << "\n" << r.dump();
  }
  cmd_Json v = s.ExecuteLine(R"({"op":"validate","path":["M"]})");
  const cmd_Json& where = v.value("ok", false) ? v["result"] : v["error"];
  return where.contains("warnings") ? where["warnings"] : cmd_Json::array();
}

TEST(AdviceCodes, EachCodeIsRaisedByItsMistakeAndNotByTheNearIdenticalModel) {
  qmx_StartLibrary();
  for (const AdviceCase& c : Cases()) {
    SCOPED_TRACE(std::string(c.code) + " at " + cmd_Json(c.path).dump());
    std::vector<std::string> bad(c.setup.begin(), c.setup.end());
    bad.emplace_back(c.raises);
    std::vector<std::string> good(c.setup.begin(), c.setup.end());
    good.emplace_back(c.clean);
    const cmd_Json raised = AdviseModel(bad);
    ASSERT_EQ(raised.size(), 1u) << raised.dump();
    EXPECT_EQ(raised[0]["code"], c.code);
    EXPECT_EQ(raised[0]["path"], cmd_Json(c.path));
    EXPECT_EQ(raised[0]["member"], c.member);
    EXPECT_FALSE(raised[0]["message"].get<std::string>().empty());
    EXPECT_EQ(AdviseModel(good), cmd_Json::array());
  }
}

}  // namespace
