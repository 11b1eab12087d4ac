// The shortcuts to list members of options: the wrong kind of owner is refused with each list's
// message; the right kind reaches its list.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kma/kmaC_BiaxialTestData.h"
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_MaterialOptionList.h"
#include "kma/kmaC_MaterialOptionListShortcut.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_OptionListShortcuts.h"
#include "kma/kmaC_UniaxialTestData.h"
#include "platform/model/ddr_Model.h"
#include "tests/kma/kmaT_Support.h"

namespace {

class KmaListShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    kmaT_Start();
    kmaC_Material m;
    m.SetElastic(kmaC_Elastic());
    kmaC_MullinsEffect mullins;
    mullins.SetUniaxialTests(kmaC_MaterialOptionList{kmaC_OptionHandle(kmaC_UniaxialTestData())});
    m.SetOption("mullinsEffect", mullins);
    kmaC_DamageInitiation shear;
    shear.SetDamageEvolutionList(kmaC_MaterialOptionList{kmaC_OptionHandle(kmaC_DamageEvolution())});
    m.SetOption("shearDamageInitiation", shear);
    dynamic_cast<kmaC_MaterialContainer&>(*model.ModifyRepository("materials")).Insert("Rubber", m);
  }
  kmaC_MaterialOptionShortcut Slot(const char* slot) {
    return kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("Rubber"), slot);
  }
  ddr_Model model;
};

TEST_F(KmaListShortcut, EachListRefusesAnOwnerOfAnotherKindWithItsMessage) {
  const kmaC_MaterialOptionShortcut elastic = Slot("elastic");
  const std::vector<std::pair<kmaC_MaterialOptionListShortcut, std::string>> cases = {
      {kmaC_UniaxialTestsListInMaterialOptionShortcut(elastic), "uniaxial tests exists only for Mullins Effect object."},
      {kmaC_BiaxialTestsListInMaterialOptionShortcut(elastic), "biaxial tests exists only for Mullins Effect object."},
      {kmaC_PlanarTestsListInMaterialOptionShortcut(elastic), "planar tests exists only for Mullins Effect object."},
      {kmaC_MaterialOptionListInMullinsEffectShortcut(elastic, "planarTests"), "planar tests exists only for Mullins Effect object."},
      {kmaC_DamageEvolutionListInMaterialOptionShortcut(elastic), "damage evolution list exists only for damage initiation object."},
      {kmaC_ElectrodeParticleListInMaterialOptionShortcut(elastic), "electrodeparticle list exists only for electrode object."},
      {kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut(elastic), "electrodeparticleLayer list exists only for electrode object."},
      {kmaC_DamageEvolutionListInMaterialOptionShortcut(Slot("mullinsEffect")), "damage evolution list exists only for damage initiation object."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.second);
    const kmaC_MaterialOptionListShortcut& sc = c.first;
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { sc.ConstGet(model); }).Message(), c.second);
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { sc.Get(model); }).Message(), c.second);
  }
  EXPECT_THROW(kmaC_MaterialOptionListInMullinsEffectShortcut(elastic, "shearTests"), nex_CmdError);
  // A missing owner names nothing.
  const kmaC_MaterialOptionListShortcut none = kmaC_UniaxialTestsListInMaterialOptionShortcut(Slot("density"));
  EXPECT_EQ(none.ConstGet(model), nullptr);
}

TEST_F(KmaListShortcut, TheRightOwnerReachesItsListAndSeparatesItOnModification) {
  const kmaC_MaterialOptionListShortcut sc = kmaC_UniaxialTestsListInMaterialOptionShortcut(Slot("mullinsEffect"));
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"materials", "Rubber", "mullinsEffect", "uniaxialTests"}));
  ASSERT_NE(sc.ConstGet(model), nullptr);
  EXPECT_EQ(sc.ConstGet(model)->size(), 1u);
  const ddr_Model before = model;
  sc.Get(model) = kmaC_MaterialOptionList{};
  EXPECT_EQ(sc.ConstGet(model)->size(), 0u);
  EXPECT_EQ(sc.ConstGet(before)->size(), 1u);
  // The other lists of the same option and the evolutions of a damage initiation.
  const kmaC_MaterialOptionListShortcut biaxial = kmaC_MaterialOptionListInMullinsEffectShortcut(Slot("mullinsEffect"), "biaxialTests");
  EXPECT_EQ(biaxial.Path(), (std::vector<cow_String>{"materials", "Rubber", "mullinsEffect", "biaxialTests"}));
  ASSERT_NE(biaxial.ConstGet(model), nullptr);
  EXPECT_TRUE(biaxial.ConstGet(model)->empty());
  biaxial.Get(model).Append(kmaC_OptionHandle(kmaC_BiaxialTestData()));
  EXPECT_EQ(biaxial.ConstGet(model)->size(), 1u);
  EXPECT_TRUE(biaxial.ConstGet(before)->empty());
  EXPECT_EQ(sc.ConstGet(model)->size(), 0u);
  const kmaC_MaterialOptionListShortcut evolutions =
      kmaC_DamageEvolutionListInMaterialOptionShortcut(Slot("shearDamageInitiation"));
  ASSERT_NE(evolutions.ConstGet(model), nullptr);
  EXPECT_EQ(evolutions.ConstGet(model)->size(), 1u);
  EXPECT_TRUE((*evolutions.ConstGet(model))[0]->IsA(kmaC_DamageEvolution::TypeId()));
}

}  // namespace
