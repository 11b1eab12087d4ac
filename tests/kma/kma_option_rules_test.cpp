// The rules of the elastic and plastic options, in their order, with their exact messages.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_Potential.h"
#include "kma/kmaC_Plastic.h"
#include "platform/base/omu_PrimEnum.h"
#include "tests/kma/kmaT_Support.h"

namespace {

using Type = kmaC_Elastic::TypeEnm;
using Moduli = kmaC_Elastic::ModuliEnm;
using Hardening = kmaC_Plastic::HardeningEnm;
using DataType = kmaC_Plastic::DataTypeEnm;
using TypeEnum = omu_PrimEnum<Type, 1>;
using ModuliEnum = omu_PrimEnum<Moduli, 1>;
using HardeningEnum = omu_PrimEnum<Hardening, 1>;
using DataTypeEnum = omu_PrimEnum<DataType, 1>;
using ExtrapolationEnum = omu_PrimEnum<kmaC_Plastic::ExtrapolationEnm, 1>;

const std::string kExclusive = "No compression and No tension are mutually exclusive. Please unselect one of them.";
const std::string kFirstYield = "The plastic strain at first yield must be zero.";
const std::string kIncomplete = "Constituent table is incomplete.";

// One case: a change to a default option and the message it must fail with ("" = passes).
template <class O>
struct Case {
  const char* what;
  std::function<void(O&)> change;
  std::string message;
};

template <class O>
void Check(const std::vector<Case<O>>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    O o;
    c.change(o);
    const O before = o;
    if (c.message.empty()) {
      EXPECT_NO_THROW(o.AssertValid());
    } else {
      kmaT_ExpectFailure([&] { o.AssertValid(); }, c.message);
    }
    EXPECT_TRUE(o == before);  // validation changes nothing
  }
}

TEST(KmaElastic, LiteralsAreExactAndInOrder) {
  const char* types[] = {"ISOTROPIC", "ORTHOTROPIC", "ANISOTROPIC", "ENGINEERING_CONSTANTS", "LAMINA", "TRACTION",
                         "COUPLED_TRACTION", "SHORT_FIBER", "SHEAR", "BILAMINA", "TRANSVERSELY_ISOTROPIC"};
  for (int i = 0; i < 11; ++i) {
    EXPECT_STREQ(TypeEnum::Name(i), types[i]);
    EXPECT_EQ(static_cast<int>(TypeEnum(cow_String(types[i])).GetValue()), i);
  }
  EXPECT_EQ(TypeEnum::Name(11), nullptr);
  EXPECT_STREQ(ModuliEnum::Name(0), "INSTANTANEOUS");
  EXPECT_STREQ(ModuliEnum::Name(1), "LONG_TERM");
  EXPECT_THROW(TypeEnum(cow_String("isotropic")), nex_CmdError);
  EXPECT_THROW(ModuliEnum(static_cast<Moduli>(2)), nex_CmdError);
}

TEST(KmaElastic, RulesInOrder) {
  kmaC_FailStrain badStrain;
  badStrain.SetDependencies(-1);
  kmaC_FailStress zeroStress;
  zeroStress.SetTable(Table({{0.0, 0.0}}));
  Check<kmaC_Elastic>({
      {"no compression alone", [](auto& e) { e.SetNoCompression(true); }, ""},
      {"no tension alone", [](auto& e) { e.SetNoTension(true); }, ""},
      {"both, empty table", [](auto& e) { e.SetNoCompression(true), e.SetNoTension(true); }, kExclusive},
      {"both before dependencies",
       [](auto& e) { e.SetNoCompression(true), e.SetNoTension(true), e.SetDependencies(-1); }, kExclusive},
      {"dependencies -1", [](auto& e) { e.SetDependencies(-1); }, kDependencies},
      {"dependencies 0", [](auto& e) { e.SetDependencies(0); }, ""},
      {"dependencies before the table",
       [](auto& e) { e.SetDependencies(-1), e.SetTable(Table({{0.0, 0.0}})); }, kDependencies},
      {"zero first row", [](auto& e) { e.SetTable(Table({{0.0, 0.0}, {1.0, 0.3}})); }, kBlankRow},
      {"zero middle row", [](auto& e) { e.SetTable(Table({{2.0, 0.3}, {0.0, 0.0}, {1.0, 0.3}})); }, kBlankRow},
      {"any width passes for any type",
       [](auto& e) { e.SetType(Type::ANISOTROPIC), e.SetTable(Table({{1.0}})); }, ""},
      {"fail-strain is validated before the table",
       [&](auto& e) { e.SetFailStrain(badStrain), e.SetTable(Table({{0.0}})); }, kDependencies},
      {"fail-strain before fail-stress",
       [&](auto& e) { e.SetFailStress(zeroStress), e.SetFailStrain(badStrain); }, kDependencies},
      {"fail-stress alone", [&](auto& e) { e.SetFailStress(zeroStress); }, kBlankRow},
  });
}

TEST(KmaPlastic, LiteralsAreExactAndInOrder) {
  const char* hardening[] = {"ISOTROPIC", "KINEMATIC", "MULTILINEAR_KINEMATIC", "COMBINED", "JOHNSON_COOK", "USER"};
  for (int i = 0; i < 6; ++i) EXPECT_STREQ(HardeningEnum::Name(i), hardening[i]);
  const char* data[] = {"HALF_CYCLE", "PARAMETERS", "STABILIZED"};
  for (int i = 0; i < 3; ++i) EXPECT_STREQ(DataTypeEnum::Name(i), data[i]);
  EXPECT_STREQ(ExtrapolationEnum::Name(1), "LINEAR");
}

TEST(KmaPlastic, RulesInOrder) {
  auto yield = [](kmaC_Plastic& p) { p.SetTable(Table({{250.0, 0.0}, {300.0, 0.1}})); };
  Check<kmaC_Plastic>({
      {"a valid isotropic table", yield, ""},
      {"dependencies first", [&](auto& p) { yield(p), p.SetDependencies(-1), p.SetTable(Table({{0.0, 1.0}})); }, kDependencies},
      {"zero row", [](auto& p) { p.SetTable(Table({{250.0, 0.0}, {0.0, 0.0}})); }, kBlankRow},
      {"blank row before first yield", [](auto& p) { p.SetTable(Table({{0.0, 0.0}, {300.0, 0.1}})); }, kBlankRow},
      {"first yield strain not zero", [](auto& p) { p.SetTable(Table({{250.0, 0.01}})); }, kFirstYield},
      {"empty table reads as no zero first yield", [](auto&) {}, kFirstYield},
      {"one column", [](auto& p) { p.SetTable(Table({{250.0}})); }, kFirstYield},
      {"kinematic", [](auto& p) { p.SetHardening(Hardening::KINEMATIC), p.SetTable(Table({{250.0, 0.2}})); }, kFirstYield},
      {"multilinear kinematic",
       [](auto& p) { p.SetHardening(Hardening::MULTILINEAR_KINEMATIC), p.SetTable(Table({{250.0, 0.2}})); }, kFirstYield},
      {"combined half cycle", [](auto& p) { p.SetHardening(Hardening::COMBINED), p.SetTable(Table({{250.0, 0.2}})); }, kFirstYield},
      {"combined stabilized",
       [](auto& p) { p.SetHardening(Hardening::COMBINED), p.SetDataType(DataType::STABILIZED), p.SetTable(Table({{250.0, 0.2}})); }, kFirstYield},
      {"combined parameters need no zero strain",
       [](auto& p) { p.SetHardening(Hardening::COMBINED), p.SetDataType(DataType::PARAMETERS), p.SetTable(Table({{250.0, 0.2}})); }, ""},
      {"johnson-cook needs no zero strain",
       [](auto& p) { p.SetHardening(Hardening::JOHNSON_COOK), p.SetTable(Table({{250.0, 0.2}})); }, ""},
      {"user skips the blank-row and first-yield checks",
       [](auto& p) { p.SetHardening(Hardening::USER), p.SetTable(Table({{0.0, 0.0}, {1.0, 0.5}})); }, ""},
      {"user still checks dependencies", [](auto& p) { p.SetHardening(Hardening::USER), p.SetDependencies(-1); }, kDependencies},
      {"rate with two columns", [&](auto& p) { yield(p), p.SetRate(true); }, kIncomplete},
      {"rate with three columns",
       [](auto& p) { p.SetRate(true), p.SetTable(Table({{250.0, 0.0, 0.1}, {300.0, 0.1, 0.1}})); }, ""},
      {"first yield before the rate width",
       [](auto& p) { p.SetRate(true), p.SetTable(Table({{250.0, 0.1}})); }, kFirstYield},
      {"rate on kinematic needs no third column",
       [](auto& p) { p.SetHardening(Hardening::KINEMATIC), p.SetRate(true), p.SetTable(Table({{250.0, 0.0}})); }, ""},
  });
}

}  // namespace

namespace {

const std::string kTensile =
    " Error: Tensile Failure suboption can be used only for the Isotropic or Johnson-Cook Hardening type in Plastic. ";

TEST(KmaPlastic, TensileFailureOnlyWithIsotropicOrJohnsonCookHardening) {
  for (Hardening h : {Hardening::KINEMATIC, Hardening::MULTILINEAR_KINEMATIC, Hardening::COMBINED, Hardening::USER}) {
    SCOPED_TRACE(static_cast<int>(h));
    kmaC_Plastic p;
    p.SetHardening(h);
    p.SetTensileFailure(kmaT_StandIn<kmaC_OptionClass::TensileFailure>());  // itself valid
    p.SetTable(Table({{0.0, 0.0}}));  // the tensile rule comes before the table
    auto e = qmx_Catch<nex_PrimError>([&] { p.AssertValid(); });
    EXPECT_EQ(e.Message(), kTensile);
    EXPECT_STREQ(e.File(), "QMXOdbKmaC.m/src/kmaC_Plastic");
    EXPECT_EQ(e.Line(), 40);
  }
  for (Hardening h : {Hardening::ISOTROPIC, Hardening::JOHNSON_COOK}) {
    SCOPED_TRACE(static_cast<int>(h));
    kmaC_Plastic p;
    p.SetHardening(h);
    p.SetTable(Table({{250.0, 0.0}}));
    p.SetTensileFailure(kmaT_StandIn<kmaC_OptionClass::TensileFailure>());
    EXPECT_NO_THROW(p.AssertValid());
    p.SetTensileFailure(kmaT_StandIn<kmaC_OptionClass::TensileFailure>(kmaC_BetaNegative));
    kmaT_ExpectFailure([&] { p.AssertValid(); }, "The value of beta should be greater than or equal to zero.");
  }
}

TEST(KmaPlastic, SubOptionsAreValidatedInTheirOrderAfterDependencies) {
  kmaC_Plastic p;
  p.SetTable(Table({{0.0, 0.0}}));
  p.SetAnnealTemperature(kmaT_StandIn<kmaC_OptionClass::AnnealTemperature>(kmaC_MNegative));
  p.SetCycledPlastic(kmaT_StandIn<kmaC_OptionClass::CycledPlastic>(kmaC_RNotAboveOne));
  p.SetOrnl(kmaT_StandIn<kmaC_OptionClass::Ornl>(kmaC_BetaAndMBothZero));
  p.SetCyclicHardening(kmaT_StandIn<kmaC_OptionClass::CyclicHardening>(kmaC_ClosureNotPositive));
  p.SetPotential(kmaT_StandIn<kmaC_OptionClass::Potential>(kmaC_SlopeDropNotPositive));
  p.SetRateDependent(kmaT_StandIn<kmaC_OptionClass::RateDependent>(kmaC_BetaOutOfRange));
  p.SetDependencies(-1);
  const std::vector<std::pair<std::function<void()>, std::string>> steps = {
      {[&] { p.SetDependencies(0); }, "Beta must be between zero and one inclusive."},
      {[&] { p.ClearRateDependent(); }, "Relative slope drop must be greater than zero."},
      {[&] { p.ClearPotential(); }, "Closure value must be greater than zero."},
      {[&] { p.ClearCyclicHardening(); }, "The values of both beta and m cannot be zero at the same time."},
      {[&] { p.ClearOrnl(); }, "The value of r should be greater than 1."},
      {[&] { p.ClearCycledPlastic(); }, "The value of m should be greater than or equal to zero."},
      {[&] { p.ClearAnnealTemperature(); }, kBlankRow},
  };
  kmaT_ExpectFailure([&] { p.AssertValid(); }, kDependencies);
  for (const auto& [change, message] : steps) {
    change();
    kmaT_ExpectFailure([&] { p.AssertValid(); }, message);
  }
}

TEST(KmaPlastic, SubOptionSlotsRefuseAnotherClass) {
  kmaC_Plastic p;
  auto e = qmx_Catch<nex_CmdError>([&] { p.SetOrnl(kmaC_Potential()); });
  EXPECT_EQ(e.Message(), "The option slot \"ornl\" holds a kmaC_Ornl, not a kmaC_Potential");
  EXPECT_EQ(p.GetOrnl(), nullptr);
  // A class the library does not offer (a row no class holds) is named by its type id.
  e = qmx_Catch<nex_CmdError>([&] { p.SetOrnl(kmaT_StandIn<static_cast<kmaC_OptionClass>(138)>()); });
  EXPECT_EQ(e.Message(), "The option slot \"ornl\" holds a kmaC_Ornl, not an object of type id " +
                             std::to_string((568u << 16) | 138u));
  EXPECT_EQ(p.GetOrnl(), nullptr);
}

}  // namespace
