// The Mullins effect with its test-data lists, the damage evolutions of a damage initiation and the
// crush stress: rules in their order with their exact messages, typed lists and copy-on-write
// separation (the script test carries them through the file).
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kma/kmaC_BiaxialTestData.h"
#include "kma/kmaC_CrushStress.h"
#include "kma/kmaC_CrushStressVelocityFactor.h"
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_DamageInitiationFit.h"
#include "kma/kmaC_Density.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_Foam.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_Material.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_PlanarTestData.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_UniaxialTestData.h"
#include "kma/kmaC_VolumetricTestData.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

const std::string kBeta = "The value of beta should be greater than or equal to zero.";
const std::string kM = "The value of m should be greater than or equal to zero.";
const std::string kR = "The value of r should be greater than 1.";
const std::string kBothZero = "The values of both beta and m cannot be zero at the same time.";
const std::string kNoTestData = "There should be atleast one test data for TEST DATA INPUT definition";
const std::string kConstants = "Mullins data specified using constants requires all three values.";
const std::string kPropertiesMismatch = "The number of Properties specified does not match the data size.";
const std::string kPropertiesNegative = "Number of properties must be greater than or equal to zero.";
const std::string kNoSuchSubOption = "Material option has no such sub-option.";
const std::string kCombination = "Please specify a different set of values for Type, Softening and Mixed Mode Behavior.";
const std::string kEvolutionRequired = "Damage evolution sub-option needs to be specified for use of this damage initiation.";
const std::string kNeedsPlasticity =
    "The material definition for this damage intiation needs use of 'Plastic', 'Drucker Prager' or 'Crushable foam'.";
const std::string kIndexTooLarge = "The failure index for a damage evolution in the list exceeds permissible value.";
const std::string kDuplicateIndex = "More than one damage evolutions with same failure index are not allowed.";
const std::string kTooMany = "Number of damage evolutions in the list exceed permissible count.";
const std::string kPoissonLow = "The poisson's ratio given is less than the minimum.";
const std::string kPoissonHigh = "The poisson's ratio given is greater than the maximum.";

template <class O>
kmaC_MaterialOptionList ListOf(std::initializer_list<O> items) {
  kmaC_MaterialOptionList l;
  for (const O& o : items) l.Append(kmaC_OptionHandle(o));
  return l;
}

kmaC_UniaxialTestData Uniaxial(double stress) {
  kmaC_UniaxialTestData t;
  t.SetTable(Table({{stress, 0.1}, {2 * stress, 0.2}}));
  return t;
}

kmaC_DamageEvolution Evolution(int failureIndex) {
  kmaC_DamageEvolution e;
  e.SetFailureIndex(failureIndex);
  e.SetTable(Table({{0.05}}));
  return e;
}

kmaC_DamageInitiation InitiationWith(std::initializer_list<kmaC_DamageEvolution> evolutions) {
  kmaC_DamageInitiation d;
  d.SetTable(Table({{0.3, 0.33, 0.001}}));
  d.SetDamageEvolutionList(ListOf(evolutions));
  return d;
}

// Runs the check and expects its message ("" = passes); a failure leaves the object as it was.
template <class O>
void Expect(const O& o, const std::string& message, const std::function<void(const O&)>& check) {
  const O before = o;
  if (message.empty()) {
    EXPECT_NO_THROW(check(o));
  } else {
    kmaT_ExpectFailure([&] { check(o); }, message);
    EXPECT_TRUE(o == before);
  }
}

TEST(KmaMullins, RulesInTheirOrderWithTheirMessages) {
  kmaT_Start();
  using Def = kmaC_MullinsEffect::DefinitionEnm;
  struct Case {
    const char* what;
    std::function<void(kmaC_MullinsEffect&)> change;
    std::string message;
  };
  const Case cases[] = {
      {"constants", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1, 0.2}})); }, ""},
      {"no table", [](kmaC_MullinsEffect&) {}, kConstants},
      {"two values", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1}})); }, kConstants},
      {"temperature needs a fourth column",
       [](kmaC_MullinsEffect& m) { m.SetTemperatureDependency(true); m.SetTable(Table({{2.0, 0.1, 0.2}})); }, kConstants},
      {"temperature with four columns",
       [](kmaC_MullinsEffect& m) { m.SetTemperatureDependency(true); m.SetTable(Table({{2.0, 0.1, 0.2, 20.0}, {1.5, 0.1, 0.2, 80.0}})); }, ""},
      {"negative dependencies before the table",
       [](kmaC_MullinsEffect& m) { m.SetDependencies(-1); }, kDependencies},
      {"r of one", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{1.0, 0.1, 0.2}})); }, kR},
      {"r just above one", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{1.0001, 0.1, 0.2}})); }, ""},
      {"negative m", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, -0.1, 0.2}})); }, kM},
      {"negative beta", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1, -0.2}})); }, kBeta},
      {"m zero alone", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.0, 0.2}})); }, ""},
      {"beta zero alone", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1, 0.0}})); }, ""},
      {"m and beta zero", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.0, 0.0}})); }, kBothZero},
      {"r before m", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{0.5, -1.0, -1.0}})); }, kR},
      {"m before beta", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, -1.0, -1.0}})); }, kM},
      {"a later row", [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1, 0.2}, {0.9, 0.1, 0.2}})); }, kR},
      {"a zero row before the constants",
       [](kmaC_MullinsEffect& m) { m.SetTable(Table({{2.0, 0.1, 0.2}, {0.0, 0.0, 0.0}})); }, kBlankRow},
      {"user without table",
       [](kmaC_MullinsEffect& m) { m.SetDefinition(Def::USER); m.SetProperties(2); }, ""},
      {"user with negative properties",
       [](kmaC_MullinsEffect& m) { m.SetDefinition(Def::USER); m.SetProperties(-1); }, kPropertiesNegative},
      {"user with more data than properties",
       [](kmaC_MullinsEffect& m) { m.SetDefinition(Def::USER); m.SetProperties(2); m.SetTable(Table({{1.0, 2.0, 3.0}})); }, kPropertiesMismatch},
      {"user with properties and temperature",
       [](kmaC_MullinsEffect& m) {
         m.SetDefinition(Def::USER);
         m.SetProperties(2);
         m.SetTemperatureDependency(true);
         m.SetTable(Table({{1.0, 2.0, 20.0}}));
       },
       ""},
      {"test data without tests", [](kmaC_MullinsEffect& m) { m.SetDefinition(Def::TEST_DATA); }, kNoTestData},
      {"test data with a planar test only",
       [](kmaC_MullinsEffect& m) {
         m.SetDefinition(Def::TEST_DATA);
         kmaC_PlanarTestData p;
         p.SetTable(Table({{0.5, 0.1}}));
         m.SetPlanarTests(ListOf({p}));
       },
       ""},
      {"test data with an invalid test",
       [](kmaC_MullinsEffect& m) {
         m.SetDefinition(Def::TEST_DATA);
         kmaC_BiaxialTestData b;
         b.SetTable(Table({{0.5, 0.1}, {0.0, 0.0}}));
         m.SetBiaxialTests(ListOf({b}));
       },
       kBlankRow},
      {"tests are not checked for the constants",
       [](kmaC_MullinsEffect& m) {
         kmaC_UniaxialTestData u;
         u.SetDependencies(-3);
         m.SetUniaxialTests(ListOf({u}));
         m.SetTable(Table({{2.0, 0.1, 0.2}}));
       },
       ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    kmaC_MullinsEffect m;
    c.change(m);
    Expect<kmaC_MullinsEffect>(m, c.message, [](const kmaC_MullinsEffect& o) { o.AssertValid(); });
  }
}

TEST(KmaMullins, ListsTakeOnlyTheirOwnTestData) {
  kmaT_Start();
  kmaC_MullinsEffect m;
  m.SetUniaxialTests(ListOf({Uniaxial(1.0)}));
  const kmaC_MullinsEffect before = m;
  kmaC_MaterialOptionList mixed;
  mixed.Append(kmaC_OptionHandle(Uniaxial(2.0)));
  mixed.Append(kmaC_OptionHandle(kmaC_BiaxialTestData()));
  auto e = qmx_Catch<nex_CmdError>([&] { m.SetUniaxialTests(mixed); });
  EXPECT_EQ(e.Message(),
            "The option list \"uniaxialTests\" holds only kmaC_UniaxialTestData objects; element 1 is a "
            "kmaC_BiaxialTestData");
  EXPECT_TRUE(m == before);
  kmaC_MaterialOptionList withEmpty;
  withEmpty.Append(kmaC_OptionHandle());
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { m.SetPlanarTests(withEmpty); }).Message(),
            "The option list \"planarTests\" holds only kmaC_PlanarTestData objects; element 0 is an empty element");
  EXPECT_TRUE(m == before);

  // A list filled through its member (as the list shortcuts do) is caught by validation.
  m.SetTable(Table({{2.0, 0.1, 0.2}}));
  m.ModifyOptionList("biaxialTests")->Append(kmaC_OptionHandle(kmaC_VolumetricTestData()));
  kmaT_ExpectFailure([&] { m.AssertValid(); }, kNoSuchSubOption);
  EXPECT_EQ(m.OptionList("volumetricTests"), nullptr);
  EXPECT_EQ(m.OptionList("uniaxialTests")->size(), 1u);
}

TEST(KmaMullins, CopiesShareTheirListsUntilOneSideChanges) {
  kmaT_Start();
  kmaC_MullinsEffect a;
  a.SetUniaxialTests(ListOf({Uniaxial(1.0), Uniaxial(3.0)}));
  kmaC_MullinsEffect b = a;
  EXPECT_TRUE(a == b);
  b.ModifyOptionList("uniaxialTests")->RemoveIndex(0);
  static_cast<kmaC_UniaxialTestData&>(b.ModifyOptionList("uniaxialTests")->Get(0).Get()).SetSmoothing(3);
  ASSERT_EQ(a.GetUniaxialTests().size(), 2u);
  EXPECT_EQ(static_cast<const kmaC_UniaxialTestData&>(a.GetUniaxialTests()[1].Get()).GetSmoothing(), 0);
  EXPECT_EQ(static_cast<const kmaC_UniaxialTestData&>(b.GetUniaxialTests()[0].Get()).GetSmoothing(), 3);
  EXPECT_FALSE(a == b);
}

TEST(KmaVolumetricTestData, PoissonBoundsAndTheTableOnlyForVolumetricData) {
  kmaT_Start();
  using Response = kmaC_VolumetricTestData::VolumetricResponseEnm;
  struct Case {
    Response response;
    double poisson;
    bool zeroRow;
    std::string message;
  };
  const Case cases[] = {
      {Response::VOLUMETRIC_DATA, -1.0, false, ""},   {Response::VOLUMETRIC_DATA, -1.0001, false, kPoissonLow},
      {Response::VOLUMETRIC_DATA, 0.5, false, ""},    {Response::VOLUMETRIC_DATA, 0.5001, false, kPoissonHigh},
      {Response::VOLUMETRIC_DATA, 0.3, true, kBlankRow}, {Response::POISSON_RATIO, 0.3, true, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.poisson) + (c.zeroRow ? " zero row" : ""));
    kmaC_VolumetricTestData v;
    v.SetVolumetricResponse(c.response);
    v.SetPoissonRatio(c.poisson);
    v.SetTable(c.zeroRow ? Table({{1.0, 0.9}, {0.0, 0.0}}) : Table({{1.0, 0.9}}));
    Expect<kmaC_VolumetricTestData>(v, c.message, [](const kmaC_VolumetricTestData& o) { o.AssertValid(); });
  }
}

TEST(KmaHyperelasticTestData, TheListsAreCheckedOnlyWhenTheFitUsesThem) {
  kmaT_Start();
  kmaC_VolumetricTestData tooHigh;
  tooHigh.SetVolumetricResponse(kmaC_VolumetricTestData::VolumetricResponseEnm::POISSON_RATIO);
  tooHigh.SetPoissonRatio(0.6);
  kmaC_Hyperelastic h;
  h.SetType(kmaC_Hyperelastic::TypeEnm::OGDEN);
  h.SetUniaxialTests(ListOf({Uniaxial(1.0)}));
  h.SetVolumetricTests(ListOf({tooHigh}));
  Expect<kmaC_Hyperelastic>(h, kPoissonHigh, [](const kmaC_Hyperelastic& o) { o.AssertValid(); });
  h.SetTestData(false);
  Expect<kmaC_Hyperelastic>(h, "", [](const kmaC_Hyperelastic& o) { o.AssertValid(); });
}

TEST(KmaDamageEvolution, TypeSofteningAndMixedModeCombinations) {
  kmaT_Start();
  using T = kmaC_DamageEvolution::TypeEnm;
  using S = kmaC_DamageEvolution::SofteningEnm;
  using M = kmaC_DamageEvolution::MixedModeBehaviorEnm;
  struct Case {
    T type;
    S softening;
    M mixed;
    bool ok;
  };
  const Case cases[] = {
      {T::DISPLACEMENT, S::LINEAR, M::MODE_INDEPENDENT, true}, {T::DISPLACEMENT, S::TABULAR, M::TABULAR, true},
      {T::DISPLACEMENT, S::EXPONENTIAL, M::POWER_LAW, false},  {T::DISPLACEMENT, S::LINEAR, M::BK, false},
      {T::ENERGY, S::LINEAR, M::BK, true},                     {T::ENERGY, S::EXPONENTIAL, M::POWER_LAW, true},
      {T::ENERGY, S::TABULAR, M::MODE_INDEPENDENT, false},     {T::ENERGY, S::TABULAR, M::BK, false},
  };
  for (const Case& c : cases) {
    const std::string trace = omu_PrimEnum<T, 1>(c.type).GetString().str() + " " +
                              omu_PrimEnum<S, 1>(c.softening).GetString().str() + " " +
                              omu_PrimEnum<M, 1>(c.mixed).GetString().str();
    SCOPED_TRACE(trace);
    kmaC_DamageEvolution e = Evolution(1);
    e.SetType(c.type);
    e.SetSoftening(c.softening);
    e.SetMixedModeBehavior(c.mixed);
    Expect<kmaC_DamageEvolution>(e, c.ok ? "" : kCombination, [](const kmaC_DamageEvolution& o) { o.AssertValid(); });
  }
  // Dependencies come before the combination, the table after it.
  kmaC_DamageEvolution e = Evolution(1);
  e.SetType(T::ENERGY);
  e.SetSoftening(S::TABULAR);
  e.SetDependencies(-1);
  kmaT_ExpectFailure([&] { e.AssertValid(); }, kDependencies);
  e.SetDependencies(0);
  e.SetTable(Table({{0.0}}));
  kmaT_ExpectFailure([&] { e.AssertValid(); }, kCombination);
}

// How a damage initiation fits its criterion (its slot) and the material's other options: advice
// given by kmaC_AssertDamageInitiationsFitMaterial, never a failure of the material's validation,
// which only validates each option it holds.
TEST(KmaDamageInitiation, EvolutionListRulesDependOnTheCriterionAndTheMaterial) {
  kmaT_Start();
  kmaC_Plastic plastic;
  plastic.SetTable(Table({{250.0, 0.0}}));
  struct Case {
    const char* what;
    const char* slot;
    kmaC_DamageInitiation initiation;
    std::function<void(kmaC_Material&)> other;
    std::string validation;  // of the material ("" = valid)
    std::string fit;         // of the advice ("" = fits)
  };
  const auto none = [](kmaC_Material&) {};
  const auto withPlastic = [&](kmaC_Material& m) { m.SetOption("plastic", plastic); };
  const Case cases[] = {
      {"ductile with plastic", "ductileDamageInitiation", InitiationWith({Evolution(1)}), withPlastic, "", ""},
      {"ductile without plasticity", "ductileDamageInitiation", InitiationWith({}), none, "", kNeedsPlasticity},
      {"johnson-cook with drucker prager", "johnsonCookDamageInitiation", InitiationWith({}),
       [](kmaC_Material& m) { m.SetOption("druckerPrager", kmaC_DruckerPrager()); }, "", ""},
      {"hosford-coulomb with crushable foam", "hosfordCoulombDamageInitiation", InitiationWith({}),
       [](kmaC_Material& m) { m.SetOption("foam", kmaC_Foam()); }, "", ""},
      {"msfld without plasticity", "msfldDamageInitiation", InitiationWith({}), none, "", kNeedsPlasticity},
      {"maxps needs no plasticity", "maxpsDamageInitiation", InitiationWith({Evolution(1)}), none, "", ""},
      {"two evolutions for a single mode", "maxpsDamageInitiation", InitiationWith({Evolution(1), Evolution(2)}), none, "",
       kTooMany},
      {"count before the plasticity", "shearDamageInitiation", InitiationWith({Evolution(1), Evolution(2)}), none, "", kTooMany},
      {"index two for a single mode", "quadeDamageInitiation", InitiationWith({Evolution(2)}), none, "", kIndexTooLarge},
      {"index zero", "quadeDamageInitiation", InitiationWith({Evolution(0)}), none, "", kIndexTooLarge},
      {"hashin with four modes", "hashinDamageInitiation",
       InitiationWith({Evolution(4), Evolution(1), Evolution(3), Evolution(2)}), none, "", ""},
      {"hashin with five", "hashinDamageInitiation",
       InitiationWith({Evolution(1), Evolution(2), Evolution(3), Evolution(4), Evolution(5)}), none, "", kTooMany},
      {"hashin index five", "hashinDamageInitiation", InitiationWith({Evolution(5)}), none, "", kIndexTooLarge},
      {"hashin without evolution", "hashinDamageInitiation", InitiationWith({}), none, "", kEvolutionRequired},
      {"laRC05 without evolution", "laRC05DamageInitiation", InitiationWith({}), withPlastic, "", kEvolutionRequired},
      // The option's own rules fail the material; the advice does not repeat them.
      {"hashin duplicate", "hashinDamageInitiation", InitiationWith({Evolution(2), Evolution(2)}), none, kDuplicateIndex, ""},
      {"an invalid evolution", "maxeDamageInitiation",
       InitiationWith({[] {
         kmaC_DamageEvolution e = Evolution(1);
         e.SetMixedModeBehavior(kmaC_DamageEvolution::MixedModeBehaviorEnm::BK);
         return e;
       }()}),
       none, kCombination, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    kmaC_Material m;
    c.other(m);
    m.SetOption(c.slot, c.initiation);
    Expect<kmaC_Material>(m, c.validation, [](const kmaC_Material& o) { o.AssertValid(); });
    Expect<kmaC_Material>(m, c.fit, [](const kmaC_Material& o) { kmaC_AssertDamageInitiationsFitMaterial(o); });
    const bool plasticity = m.GetOption("plastic") || m.GetOption("druckerPrager") || m.GetOption("foam");
    Expect<kmaC_DamageInitiation>(c.initiation, c.fit, [&](const kmaC_DamageInitiation& o) {
      kmaC_AssertDamageInitiationFitsSlot(o, c.slot, plasticity);
    });
  }
  // The first initiation in slot order decides the advice.
  kmaC_Material two;
  two.SetOption("ductileDamageInitiation", InitiationWith({}));
  two.SetOption("hashinDamageInitiation", InitiationWith({}));
  kmaT_ExpectFailure([&] { kmaC_AssertDamageInitiationsFitMaterial(two); }, kNeedsPlasticity);
  two.SetOption("plastic", plastic);
  kmaT_ExpectFailure([&] { kmaC_AssertDamageInitiationsFitMaterial(two); }, kEvolutionRequired);
  EXPECT_NO_THROW(two.AssertValid());
  // The option alone knows nothing of its criterion.
  EXPECT_NO_THROW(InitiationWith({}).AssertValid());
  kmaC_DamageInitiation wrong = InitiationWith({});
  wrong.ModifyOptionList("DamageEvolutionList")->Append(kmaC_OptionHandle(Uniaxial(1.0)));
  kmaT_ExpectFailure([&] { wrong.AssertValid(); }, kNoSuchSubOption);
}

TEST(KmaCrushStress, VelocityFactorIsOptionalAndOfItsOwnClass) {
  kmaT_Start();
  kmaC_CrushStress c;
  c.SetTable(Table({{12.0}}));
  EXPECT_FALSE(c.HasCrushStressVelocityFactor());
  EXPECT_NO_THROW(c.AssertValid());
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { c.SetCrushStressVelocityFactor(kmaC_Density()); }).Message(),
            "The option slot \"crushStressVelocityFactor\" holds a kmaC_CrushStressVelocityFactor, not a kmaC_Density");
  EXPECT_FALSE(c.HasCrushStressVelocityFactor());
  kmaC_CrushStressVelocityFactor f;
  f.SetTable(Table({{1.0, 0.0}, {0.0, 0.0}}));
  c.SetCrushStressVelocityFactor(f);
  kmaT_ExpectFailure([&] { c.AssertValid(); }, kBlankRow);
  const kmaC_CrushStress shared = c;
  c.ClearCrushStressVelocityFactor();
  EXPECT_TRUE(shared.HasCrushStressVelocityFactor());
  EXPECT_NO_THROW(c.AssertValid());
}

}  // namespace
