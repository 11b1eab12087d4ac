// The test data, the Mullins effect, the damage initiation and evolution and the crush stress,
// stored in the layouts of their older class versions, read back with what their version steps
// fill in and with what the old layout held kept.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

// Each row: an option set by script, saved, rewritten to the layout of `version` of `className` and
// reopened; `expected` holds what the steps fill in and what the old layout held.
TEST(KmaMullinsDamageUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-mullins-damage-upgrade");
  // A Mullins effect whose three lists hold one changed test each.
  const char* const mullins = R"({"definition":"TEST_DATA",
      "uniaxialTests":[{"smoothing":3,"lateralNominalStrain":true,"table":[[1,0.1,-0.05]]}],
      "biaxialTests":[{"smoothing":4,"lateralNominalStrain":true,"table":[[2,0.1,-0.1]]}],
      "planarTests":[{"smoothing":5,"lateralNominalStrain":true,"table":[[3,0.1,-0.08]]}]})";
  // A damage initiation whose fields all differ from what the steps fill in, with or without an evolution.
  const std::string initiation = R"({"definition":"FLD","omega":0.5,"tolerance":0.2,"numberImperfections":8,
      "direction":"TMORI","position":"NODES","feq":2,"fnn":3,"fnt":4,"frequency":5,"table":[[0.3,0.33]])";
  const std::string withEvolution = initiation + R"(,"DamageEvolutionList":[{"type":"ENERGY","softening":"EXPONENTIAL",
      "mixedModeBehavior":"POWER_LAW","modeMixRatio":"TRACTION","power":2,"degradation":"MULTIPLICATIVE",
      "failureIndex":3,"table":[[12]]}]})";
  // What every older damage initiation layout reads back with: the fields since 1801 filled in.
  const std::string since1801Filled =
      R"({"definition":"FLD","table":[[0.3,0.33]],"DamageEvolutionList":[],"feq":10,"fnn":10,"fnt":10,"frequency":1,)";
  const std::vector<std::string> since1801 = {"feq", "fnn", "fnt", "frequency", "DamageEvolutionList"};
  auto plus = [](std::vector<std::string> a, std::initializer_list<std::string> b) {
    a.insert(a.end(), b);
    return a;
  };
  const std::vector<kmaT_OldLayoutCase> cases = {
      {"kmaC_UniaxialTestData", 203, {"lateralNominalStrain"}, "mullinsEffect", "MullinsEffect", mullins,
       R"({"uniaxialTests/0/lateralNominalStrain":false,"uniaxialTests/0/smoothing":3,
           "biaxialTests/0/lateralNominalStrain":true})"},
      {"kmaC_BiaxialTestData", 203, {"lateralNominalStrain"}, "mullinsEffect", "MullinsEffect", mullins,
       R"({"biaxialTests/0/lateralNominalStrain":false,"biaxialTests/0/smoothing":4})"},
      {"kmaC_PlanarTestData", 203, {"lateralNominalStrain"}, "mullinsEffect", "MullinsEffect", mullins,
       R"({"planarTests/0/lateralNominalStrain":false,"planarTests/0/smoothing":5,"planarTests/0/table":[[3,0.1,-0.08]]})"},
      {"kmaC_MullinsEffect", 850, {"uniaxialTests", "biaxialTests", "planarTests"}, "mullinsEffect", "MullinsEffect",
       R"({"temperatureDependency":true,"properties":2,"table":[[2,0.1,0.2,20]]})",
       R"({"definition":"CONSTANTS","temperatureDependency":true,"properties":2,"table":[[2,0.1,0.2,20]],
           "uniaxialTests":[],"biaxialTests":[],"planarTests":[]})"},
      {"kmaC_DamageEvolution", 869, {"modeMixRatio", "degradation", "failureIndex"}, "hashinDamageInitiation",
       "DamageInitiation", withEvolution,
       R"({"DamageEvolutionList/0/modeMixRatio":"ENERGY","DamageEvolutionList/0/degradation":"MAXIMUM",
           "DamageEvolutionList/0/failureIndex":1,"DamageEvolutionList/0/type":"ENERGY",
           "DamageEvolutionList/0/mixedModeBehavior":"POWER_LAW","DamageEvolutionList/0/power":2})"},
      {"kmaC_DamageEvolution", 883, {"failureIndex"}, "hashinDamageInitiation", "DamageInitiation", withEvolution,
       R"({"DamageEvolutionList/0/modeMixRatio":"TRACTION","DamageEvolutionList/0/degradation":"MULTIPLICATIVE",
           "DamageEvolutionList/0/failureIndex":1,"DamageEvolutionList/0/table":[[12]]})"},
      {"kmaC_DamageInitiation", 869,
       plus(since1801, {"omega", "tolerance", "numberImperfections", "direction", "position"}), "hashinDamageInitiation",
       "DamageInitiation", initiation + "}",
       since1801Filled +
           R"("omega":1,"tolerance":0.05,"numberImperfections":4,"direction":"NMORI","position":"CENTROID"})"},
      {"kmaC_DamageInitiation", 883, plus(since1801, {"tolerance", "numberImperfections", "direction", "position"}),
       "hashinDamageInitiation", "DamageInitiation", initiation + "}",
       since1801Filled +
           R"("omega":0.5,"tolerance":0.05,"numberImperfections":4,"direction":"NMORI","position":"CENTROID"})"},
      {"kmaC_DamageInitiation", 1352, plus(since1801, {"direction", "position"}), "hashinDamageInitiation",
       "DamageInitiation", initiation + "}",
       since1801Filled +
           R"("omega":0.5,"tolerance":0.2,"numberImperfections":8,"direction":"NMORI","position":"CENTROID"})"},
      {"kmaC_DamageInitiation", 1432, plus(since1801, {"position"}), "hashinDamageInitiation", "DamageInitiation",
       initiation + "}",
       since1801Filled +
           R"("omega":0.5,"tolerance":0.2,"numberImperfections":8,"direction":"TMORI","position":"CENTROID"})"},
      {"kmaC_DamageInitiation", 1801, since1801, "hashinDamageInitiation", "DamageInitiation", initiation + "}",
       since1801Filled +
           R"("omega":0.5,"tolerance":0.2,"numberImperfections":8,"direction":"TMORI","position":"NODES"})"},
      {"kmaC_CrushStress", 2210, {"crushStressVelocityFactor"}, "crushStress", "CrushStress",
       R"({"dependencies":1,"table":[[12,0.5]]})",
       R"({"crushStressVelocityFactor":null,"dependencies":1,"table":[[12,0.5]]})"},
  };
  kmaT_ExpectOldLayoutsRead(dir, cases);
}

}  // namespace
