// The creep sub-options of cap and Drucker-Prager plasticity, the shear of an equation of state
// and the shear retention of brittle cracking: validated as part of their owner and read from
// files of older layouts.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kma/kmaC_BrittleCracking.h"
#include "kma/kmaC_CapCreep_Versions.h"
#include "kma/kmaC_CapCreepCohesion_Versions.h"
#include "kma/kmaC_CapCreepConsolidation_Versions.h"
#include "kma/kmaC_CapPlasticity.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_DruckerPragerCreep_Versions.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_EosShear_Versions.h"
#include "kma/kmaC_ShearRetention_Versions.h"
#include "tests/kma/kmaT_Support.h"

namespace {

TEST(KmaSubOptions, AreValidatedAsPartOfTheirOwnerAfterTheOwnersScalarRules) {
  kmaT_Start();
  const kmaC_MaterialTable zeroRow(cow_2DArray<double>{{1, 2}, {0, 0}});
  struct Case {
    const char* what;
    std::function<void()> validate;
    const char* message;
  };
  const Case cases[] = {
      {"cohesion creep dependencies",
       [] { kmaC_CapCreepCohesion c; c.SetDependencies(-1); kmaC_CapPlasticity p; p.SetCapCreepCohesion(c); p.AssertValid(); }, kDependencies},
      {"consolidation creep zero row",
       [&] { kmaC_CapCreepConsolidation c; c.SetTable(zeroRow); kmaC_CapPlasticity p; p.SetCapCreepConsolidation(c); p.AssertValid(); }, kZeroRow},
      {"a user creep law reads no table",
       [&] {
         kmaC_CapCreepConsolidation c;
         c.SetLaw(kmaC_CapCreepConsolidation::LawEnm::USER);
         c.SetTable(zeroRow);
         kmaC_CapPlasticity p;
         p.SetCapCreepConsolidation(c);
         p.AssertValid();
       },
       nullptr},
      {"sub-option before the owner's table",
       [&] { kmaC_CapCreep c; c.SetDependencies(-2); kmaC_CapPlasticity p; p.SetCapCreep(c); p.SetTable(zeroRow); p.AssertValid(); }, kDependencies},
      {"owner's dependencies before the sub-option",
       [&] { kmaC_CapCreep c; c.SetTable(zeroRow); kmaC_CapPlasticity p; p.SetCapCreep(c); p.SetDependencies(-1); p.AssertValid(); }, kDependencies},
      {"eccentricity before the Drucker-Prager creep",
       [] {
         kmaC_DruckerPragerCreep c;
         c.SetDependencies(-1);
         kmaC_DruckerPrager p;
         p.SetDruckerPragerCreep(c);
         p.SetEccentricity(-0.1);
         p.AssertValid();
       },
       "Eccentricity given is less than the minimum."},
      {"detonation energy before the eos shear",
       [&] { kmaC_EosShear c; c.SetTable(zeroRow); kmaC_Eos e; e.SetEosShear(c); e.SetDetonationEnergy(-1.0); e.AssertValid(); },
       "Detonation energy should be non-negative."},
      {"eos shear zero row",
       [&] { kmaC_EosShear c; c.SetTable(zeroRow); kmaC_Eos e; e.SetEosShear(c); e.AssertValid(); }, kZeroRow},
      {"shear retention dependencies",
       [] { kmaC_ShearRetention c; c.SetDependencies(-1); kmaC_BrittleCracking b; b.SetShearRetention(c); b.AssertValid(); }, kDependencies},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    if (c.message) kmaT_ExpectFailure(c.validate, c.message);
    else EXPECT_NO_THROW(c.validate());
  }
}

// --- older layouts ------------------------------------------------------------------------------

// Each row: an owner holding the sub-option, saved, rewritten to the sub-option's layout of
// `version` and reopened; `expected` holds what its steps fill in and what the old layout held.
TEST(KmaSubOptionUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-suboption-upgrade");
  const std::vector<kmaT_OldLayoutCase> cases = {
      {"kmaC_CapCreepCohesion", 452, {"time"}, "capPlasticity", "CapPlasticity",
       R"({"capCreepCohesion":{"time":"CREEP","law":"SINGHM","dependencies":1,"table":[[1e-6,2,0.5]]}})",
       R"({"capCreepCohesion/time":"TOTAL","capCreepCohesion/law":"SINGHM","capCreepCohesion/dependencies":1,
           "capCreepCohesion/table":[[1e-6,2,0.5]]})"},
      {"kmaC_CapCreepConsolidation", 452, {"time"}, "capPlasticity", "CapPlasticity",
       R"({"capCreepConsolidation":{"time":"CREEP","dependencies":1,"table":[[1e-6,2,0.5]]}})",
       R"({"capCreepConsolidation/time":"TOTAL","capCreepConsolidation/dependencies":1,
           "capCreepConsolidation/table":[[1e-6,2,0.5]]})"},
      {"kmaC_CapCreep", 203, {}, "capPlasticity", "CapPlasticity", R"({"capCreep":{"law":"TIME","dependencies":1}})",
       R"({"capCreep/law":"TIME","capCreep/dependencies":1})"},
      {"kmaC_DruckerPragerCreep", 203, {"time"}, "druckerPrager", "DruckerPrager",
       R"({"druckerPragerCreep":{"time":"CREEP","law":"TIME"}})",
       R"({"druckerPragerCreep/time":"TOTAL","druckerPragerCreep/law":"TIME"})"},
      {"kmaC_EosShear", 203, {"type"}, "eos", "Eos", R"({"eosShear":{"type":"ELASTIC","dependencies":2}})",
       R"({"eosShear/type":"VISCOUS","eosShear/dependencies":2})"},
      {"kmaC_EosShear", 1338, {}, "eos", "Eos", R"({"eosShear":{"type":"ELASTIC"}})", R"({"eosShear/type":"ELASTIC"})"},
      {"kmaC_ShearRetention", 203, {"type"}, "brittleCracking", "BrittleCracking",
       R"({"shearRetention":{"type":"POWER_LAW"}})", R"({"shearRetention/type":"RETENTION_FACTOR"})"},
  };
  kmaT_ExpectOldLayoutsRead(dir, cases);
}

}  // namespace
