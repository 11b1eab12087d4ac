// The codes a class lists for the class reference are the order its validation stops in: an
// object that breaks two rules fails with the one listed first, and both are listed. The table
// check (code 23) is one of them wherever a class checks a table.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "kma/kmaC_ConcreteDamagedPlasticity.h"
#include "kma/kmaC_CycledPlastic.h"
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_FieldConstituent.h"
#include "kma/kmaC_Gel.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_LatentHeat.h"
#include "kma/kmaC_LowDensityFoam.h"
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_MoistureSwelling.h"
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_Piezoelectric.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_PorousBulkModuli.h"
#include "kma/kmaC_Sorption.h"
#include "kma/kmaC_ThicknessBehavior.h"
#include "kma/kmaC_UserMaterial.h"
#include "kma/kmaC_Viscoelastic.h"
#include "kma/kmaC_VolumetricTestData.h"
#include "platform/persist/cls_Description.h"
#include "tests/kma/kmaT_Support.h"

namespace {

struct kmaOrder_Case {
  const char* className;
  std::function<void()> validate;  // builds an object that breaks both rules and validates it
  int first;                       // the code it must fail with
  int later;                       // the broken rule checked after it
};

template <class O>
kmaOrder_Case kmaOrder_Make(std::function<void(O&)> breakTwo, int first, int later) {
  return {O::kClassName,
          [breakTwo] {
            O o;
            breakTwo(o);
            o.AssertValid();
          },
          first, later};
}

// A table whose second row is blank (all zeros), with a first row of the given cells.
kmaC_MaterialTable kmaOrder_BlankSecondRow(std::initializer_list<double> first) {
  std::vector<double> cells(first);
  cells.resize(2 * first.size(), 0.0);
  return kmaC_MaterialTable(cow_2DArray<double>(2, first.size(), std::move(cells)));
}

TEST(KmaValidationOrder, ListedCodesAreTheOrderValidationStopsIn) {
  kmaT_Start();
  using Evolution = kmaC_DamageEvolution;
  const std::vector<kmaOrder_Case> cases = {
      kmaOrder_Make<kmaC_Elastic>(
          [](auto& o) { o.SetNoCompression(true), o.SetNoTension(true), o.SetDependencies(-1); }, 36, 0),
      kmaOrder_Make<kmaC_Elastic>(
          [](auto& o) { o.SetDependencies(-1), o.SetTable(kmaOrder_BlankSecondRow({200e3, 0.3})); }, 0, 23),
      // the blank row is found before the plastic strain at first yield (0.1, not 0)
      kmaOrder_Make<kmaC_Plastic>([](auto& o) { o.SetTable(kmaOrder_BlankSecondRow({250.0, 0.1})); }, 23, 39),
      kmaOrder_Make<kmaC_DamageInitiation>(
          [](auto& o) {
            kmaC_MaterialOptionList twice;
            twice.Append(kmaC_OptionHandle(Evolution()));
            twice.Append(kmaC_OptionHandle(Evolution()));
            o.SetDamageEvolutionList(twice);
            o.SetTable(kmaOrder_BlankSecondRow({0.2, 0.3, 0.0}));
          },
          23, 74),
      kmaOrder_Make<Evolution>(
          [](auto& o) {
            o.SetType(Evolution::TypeEnm::ENERGY), o.SetSoftening(Evolution::SofteningEnm::TABULAR);
            o.SetTable(kmaOrder_BlankSecondRow({1.0}));
          },
          38, 23),
      kmaOrder_Make<kmaC_Hyperelastic>(
          [](auto& o) { o.SetPoissonRatio(0.6), o.SetTable(kmaOrder_BlankSecondRow({1.0, 0.1})); }, 5, 23),
      // r of 0.5 is not above 1, but the blank row is found first
      kmaOrder_Make<kmaC_MullinsEffect>(
          [](auto& o) { o.SetTable(kmaOrder_BlankSecondRow({0.5, 1.0, 1.0})); }, 23, 43),
      kmaOrder_Make<kmaC_ConcreteDamagedPlasticity>(
          [](auto& o) { o.SetTable(kmaOrder_BlankSecondRow({30.0, -0.1, 1.16, 0.667, 0.0})); }, 23, 8),
      kmaOrder_Make<kmaC_MohrCoulomb>(
          [](auto& o) { o.SetDeviatoricEccentricity(0.4), o.SetTable(kmaOrder_BlankSecondRow({30.0, 0.0})); },
          35, 23),
      kmaOrder_Make<kmaC_ThicknessBehavior>(
          [](auto& o) { o.SetTensileStiffnessFactor(0.0), o.SetTable(kmaOrder_BlankSecondRow({1.0, 0.1})); },
          29, 23),
      kmaOrder_Make<kmaC_Viscoelastic>(
          [](auto& o) {
            o.SetType(kmaC_Viscoelastic::TypeEnm::TRACTION), o.SetPreload(kmaC_Viscoelastic::PreloadEnm::VOLUMETRIC);
            o.SetTable(kmaOrder_BlankSecondRow({0.5, 0.0, 0.1}));
          },
          37, 23),
      // a B-H curve that does not start at the origin, with a blank second point
      kmaOrder_Make<kmaC_MagneticPermeability>(
          [](auto& o) { o.SetNonlinearBH(true), o.SetTable(kmaOrder_BlankSecondRow({1.0, 1.0})); }, 57, 23),
      // a fixed orientation needs three columns; the blank row comes after that
      kmaOrder_Make<kmaC_FieldConstituent>(
          [](auto& o) {
            o.SetOrientation(kmaC_FieldConstituent::OrientationEnm::FIXED);
            o.SetTable(kmaOrder_BlankSecondRow({1.0, 0.0}));
          },
          64, 23),
      kmaOrder_Make<kmaC_VolumetricTestData>(
          [](auto& o) { o.SetPoissonRatio(0.6), o.SetTable(kmaOrder_BlankSecondRow({1.0, 0.9})); }, 5, 23),
      kmaOrder_Make<kmaC_LowDensityFoam>(
          [](auto& o) { o.SetElementRemoval(true), o.SetTable(kmaOrder_BlankSecondRow({1.0, 0.1})); }, 50, 23),
      kmaOrder_Make<kmaC_Eos>(
          [](auto& o) { o.SetDetonationEnergy(-1.0), o.SetGasTable(kmaOrder_BlankSecondRow({1.0})); }, 1, 23),
      kmaOrder_Make<kmaC_DruckerPrager>(
          [](auto& o) { o.SetEccentricity(-1.0), o.SetTable(kmaOrder_BlankSecondRow({30.0, 1.0, 30.0})); }, 8,
          23),
  };
  for (const kmaOrder_Case& c : cases) {
    SCOPED_TRACE(std::string(c.className) + " " + std::to_string(c.first) + " before " + std::to_string(c.later));
    kmaT_ExpectFailure(c.validate, kmaC_ErrorMessage(static_cast<kmaC_ErrorEnm>(c.first)));
    const cls_ClassDescription* d = cls_FindDescription(c.className);
    ASSERT_NE(d, nullptr);
    const std::vector<int> listed(d->codes.begin(), d->codes.end());
    const auto first = std::find(listed.begin(), listed.end(), c.first);
    const auto later = std::find(listed.begin(), listed.end(), c.later);
    ASSERT_NE(first, listed.end()) << "not listed";
    ASSERT_NE(later, listed.end()) << "later code not listed";
    EXPECT_LT(first, later) << "listed out of order";
  }
}

// A class whose only check is of its tables fails with the table's code, and lists it alone.
template <class O>
void kmaOrder_ExpectOnlyTheTableCode(std::function<void(O&, const kmaC_MaterialTable&)> set) {
  SCOPED_TRACE(O::kClassName);
  O o;
  set(o, kmaOrder_BlankSecondRow({1.0, 2.0}));
  kmaT_ExpectFailure([&] { o.AssertValid(); }, kBlankRow);
  const cls_ClassDescription* d = cls_FindDescription(O::kClassName);
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(std::vector<int>(d->codes.begin(), d->codes.end()), std::vector<int>{23});
}

TEST(KmaValidationOrder, ClassesThatOnlyCheckTables) {
  kmaT_Start();
  auto table = [](auto& o, const kmaC_MaterialTable& t) { o.SetTable(t); };
  kmaOrder_ExpectOnlyTheTableCode<kmaC_CycledPlastic>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_Gel>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_LatentHeat>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_MoistureSwelling>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_Piezoelectric>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_PorousBulkModuli>(table);
  kmaOrder_ExpectOnlyTheTableCode<kmaC_Sorption>(table);
  // either of its two constant tables
  kmaOrder_ExpectOnlyTheTableCode<kmaC_UserMaterial>(
      [](auto& o, const kmaC_MaterialTable& t) { o.SetMechanicalConstants(t); });
  kmaOrder_ExpectOnlyTheTableCode<kmaC_UserMaterial>(
      [](auto& o, const kmaC_MaterialTable& t) { o.SetThermalConstants(t); });
}

}  // namespace
