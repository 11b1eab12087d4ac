// Option classes stored in the layouts of older class versions read back with the values their
// version steps fill in.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

// Each row: an option set by script, saved, rewritten to the layout of `version` of `className` and
// reopened; `expected` holds what the steps fill in and what the old layout held.
TEST(KmaOptionUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-option-upgrade");
  const char* const anneal =
      R"({"table":[[250,0]],"annealTemperature":{"temperatureDependency":true,"dependencies":2,"table":[[900,1]]}})";
  const char* const mohrCoulomb = R"({"deviatoricEccentricity":0.8,"meridionalEccentricity":0.3,"useTensionCutoff":true})";
  const std::vector<kmaT_OldLayoutCase> cases = {
      {"kmaC_AnnealTemperature", 203, {"dependencies", "temperatureDependency"}, "plastic", "Plastic", anneal,
       R"({"annealTemperature/temperatureDependency":false,"annealTemperature/dependencies":0,
           "annealTemperature/table":[[900,1]]})"},
      {"kmaC_AnnealTemperature", 307, {"temperatureDependency"}, "plastic", "Plastic", anneal,
       R"({"annealTemperature/temperatureDependency":false,"annealTemperature/dependencies":2})"},
      {"kmaC_AnnealTemperature", 452, {"temperatureDependency"}, "plastic", "Plastic", anneal,
       R"({"annealTemperature/temperatureDependency":false,"annealTemperature/dependencies":2})"},
      {"kmaC_Creep", 203, {"time"}, "creep", "Creep", R"({"law":"TIME","time":"CREEP"})", R"({"time":"TOTAL","law":"TIME"})"},
      {"kmaC_Viscous", 203, {"law"}, "viscous", "Viscous", R"({"law":"TIME","dependencies":1})",
       R"({"law":"STRAIN","dependencies":1})"},
      {"kmaC_Viscous", 438, {"law"}, "viscous", "Viscous", R"({"law":"USER","dependencies":1})",
       R"({"law":"STRAIN","dependencies":1})"},
      {"kmaC_MohrCoulomb", 205, {"meridionalEccentricity", "deviatoricEccentricity", "useTensionCutoff"}, "mohrCoulomb",
       "MohrCoulomb", mohrCoulomb,
       R"({"deviatoricEccentricity":1.0,"meridionalEccentricity":0.1,"useTensionCutoff":false})"},
      {"kmaC_MohrCoulomb", 1422, {"useTensionCutoff"}, "mohrCoulomb", "MohrCoulomb", mohrCoulomb,
       R"({"deviatoricEccentricity":0.8,"meridionalEccentricity":0.3,"useTensionCutoff":false})"},
      {"kmaC_DamageInitiation", 1390, {"direction", "position", "feq", "fnn", "fnt", "frequency", "DamageEvolutionList"},
       "ductileDamageInitiation", "DamageInitiation",
       R"({"direction":"TMORI","position":"NODES","feq":2,"frequency":3,"omega":0.5})",
       R"({"direction":"NMORI","position":"CENTROID","feq":10,"frequency":1,"omega":0.5})"},
      {"kmaC_Hyperelastic", 203,
       {"testData", "n", "moduliTimeScale", "materialType", "poissonRatio", "behaviorType", "uniaxialTests",
        "biaxialTests", "planarTests", "volumetricTests"},
       "hyperelastic", "Hyperelastic",
       R"({"type":"OGDEN","testData":true,"n":3,"moduliTimeScale":"INSTANTANEOUS","materialType":"ANISOTROPIC",
           "poissonRatio":0.45,"behaviorType":"COMPRESSIBLE"})",
       R"({"type":"OGDEN","testData":false,"n":1,"moduliTimeScale":"LONG_TERM","materialType":"ISOTROPIC",
           "poissonRatio":0.0,"behaviorType":"INCOMPRESSIBLE"})"},
  };
  kmaT_ExpectOldLayoutsRead(dir, cases);
}

}  // namespace
