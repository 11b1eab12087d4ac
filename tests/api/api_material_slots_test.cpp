// The material's typed slot accessors: each reaches the slot of its scripting name and no other,
// refuses an empty slot with its own message, and changes a copy without touching the original.
#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <string>
#include <vector>

#include "QMXOdbAttr.h"
#include "tests/support/qmx_test.h"

namespace {

struct SlotAccess {
  std::string stem;
  std::string slot;
  std::function<void(kmaC_Material&)> set;
  std::function<bool(const kmaC_Material&)> has;
  std::function<const kmaC_MaterialOption&(const kmaC_Material&)> get;
  std::function<kmaC_MaterialOption&(kmaC_Material&)> modify;
  std::function<void(kmaC_Material&)> clear;
};

#define API_SLOT_ACCESS(Stem, member, Class)                                       \
  SlotAccess{#Stem,                                                                \
             #member,                                                              \
             [](kmaC_Material& m) { m.Set##Stem(Class()); },                       \
             [](const kmaC_Material& m) { return m.Has##Stem(); },                 \
             [](const kmaC_Material& m) -> const kmaC_MaterialOption& { return m.Get##Stem(); }, \
             [](kmaC_Material& m) -> kmaC_MaterialOption& { return m.Modify##Stem(); },          \
             [](kmaC_Material& m) { m.Clear##Stem(); }},

const std::vector<SlotAccess>& ApiSlots() {
  static const std::vector<SlotAccess> slots = {KMAC_MATERIAL_SLOTS(API_SLOT_ACCESS)};
  return slots;
}
#undef API_SLOT_ACCESS

// The slots of a material that hold an option, by scripting name.
std::vector<std::string> ApiFilledSlots(const kmaC_Material& m) {
  std::vector<std::string> filled;
  for (const auto& s : ApiSlots())
    if (m.GetOption(s.slot)) filled.push_back(s.slot);
  return filled;
}

class ApiMaterialSlots : public ::testing::Test {
 protected:
  void SetUp() override { qmx_StartLibrary(); }
};

TEST_F(ApiMaterialSlots, EverySlotHasAccessorsNamedAfterIt) {
  ASSERT_EQ(ApiSlots().size(), 84u);
  for (const auto& s : ApiSlots()) {
    std::string expected = s.slot;
    expected[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(expected[0])));
    EXPECT_EQ(s.stem, expected);
    EXPECT_TRUE(kmaC_Material::IsSlotName(s.slot)) << s.slot;
  }
}

TEST_F(ApiMaterialSlots, SetFillsTheNamedSlotOnlyAndClearEmptiesIt) {
  for (const auto& s : ApiSlots()) {
    SCOPED_TRACE(s.slot);
    kmaC_Material m;
    EXPECT_FALSE(s.has(m));
    s.set(m);
    EXPECT_TRUE(s.has(m));
    EXPECT_EQ(ApiFilledSlots(m), std::vector<std::string>{s.slot});
    // The typed getter and the getter by name hand out the same option.
    EXPECT_EQ(&s.get(m), m.GetOption(s.slot));
    EXPECT_EQ(&s.modify(m), m.GetOption(s.slot));
    s.clear(m);
    EXPECT_FALSE(s.has(m));
    EXPECT_EQ(ApiFilledSlots(m), std::vector<std::string>{});
  }
}

TEST_F(ApiMaterialSlots, AnEmptySlotIsRefusedWithItsName) {
  for (const auto& s : ApiSlots()) {
    kmaC_Material m;
    const std::string expected = "The material has no " + s.slot + " option";
    EXPECT_EQ(std::string(qmx_Catch<nex_CmdError>([&] { s.get(m); }).what()), expected);
    EXPECT_EQ(std::string(qmx_Catch<nex_CmdError>([&] { s.modify(m); }).what()), expected);
    EXPECT_EQ(ApiFilledSlots(m), std::vector<std::string>{});
  }
}

TEST_F(ApiMaterialSlots, ModifyingACopySeparatesIt) {
  kmaC_Material original;
  kmaC_Density d;
  d.SetDependencies(1);
  original.SetDensity(d);
  original.SetJohnsonCookDamageInitiation(kmaC_DamageInitiation());

  kmaC_Material copy = original;
  ASSERT_EQ(&copy.GetDensity(), &original.GetDensity());  // shared until changed
  copy.ModifyDensity().SetDependencies(3);
  copy.ClearJohnsonCookDamageInitiation();

  EXPECT_EQ(original.GetDensity().GetDependencies(), 1);
  EXPECT_TRUE(original.HasJohnsonCookDamageInitiation());
  EXPECT_EQ(copy.GetDensity().GetDependencies(), 3);
  EXPECT_FALSE(copy.HasJohnsonCookDamageInitiation());
  EXPECT_FALSE(copy == original);
}

TEST_F(ApiMaterialSlots, TypedSlotsSurviveSaveAndOpen) {
  const std::string path = qmx_TempDir("api_material_slots") + "/slots.odb";
  ddr_Database db;
  ddr_Model& model = db.CreateModel("Model-1");
  kmaC_Material steel;
  kmaC_Density d;
  d.SetDependencies(2);
  steel.SetDensity(d);
  steel.SetShearDamageInitiation(kmaC_DamageInitiation());
  qmx::Materials(model).Insert("Steel", steel);
  dbf_Save(db, path);

  const ddr_Database back = dbf_Open(path);
  const kmaC_Material* read = qmx::Materials(*back.FindModel("Model-1")).ConstGet("Steel");
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->GetDensity().GetDependencies(), 2);
  EXPECT_TRUE(read->HasShearDamageInitiation());
  EXPECT_EQ(ApiFilledSlots(*read), (std::vector<std::string>{"shearDamageInitiation", "density"}));
}

}  // namespace
