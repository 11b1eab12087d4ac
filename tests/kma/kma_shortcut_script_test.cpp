// The material shortcuts with their refusals, the architecture table, and the materials as the
// command layer reaches them by scripting names.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kma/QMXOdbKmaC.h"
#include "kma/kmaC_BiaxialTestData.h"
#include "kma/kmaC_CrushStress.h"
#include "kma/kmaC_CrushStressVelocityFactor.h"
#include "kma/kmaC_DamageEvolution.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_Electrode.h"
#include "kma/kmaC_ElectrodeParticle.h"
#include "kma/kmaC_ElectrodeParticleLayer.h"
#include "kma/kmaC_FCWrapper.h"
#include "kma/kmaC_FieldConstituent.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_PlanarTestData.h"
#include "kma/kmaC_UniaxialTestData.h"
#include "kma/kmaC_VolumetricTestData.h"
#include "kma/kmaC_MCWrapper.h"
#include "kma/kmaC_MaterialContainerInModelShortcut.h"
#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialOptionShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_MaterialOptionListShortcut.h"
#include "kma/kmaC_OptionListShortcuts.h"
#include "kma/kmaC_Plastic.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/kma/kmaT_Support.h"

namespace {

TEST(KmaArchitecture, StatedTypeIdsSitAtTheirRowsAndEveryClassAtItsOwn) {
  const typ_ArchCompEntry entry = kmaC_ArchEntry();
  EXPECT_EQ(entry.RowOf("kmaC_Material"), 1);
  EXPECT_EQ(entry.RowOf("kmaC_Elastic"), 0x1e);
  EXPECT_EQ(entry.RowOf("kmaC_FailStrain"), 0x22);
  EXPECT_EQ(entry.RowOf("kmaC_FailStress"), 0x23);
  EXPECT_EQ(entry.RowOf("kmaC_Plastic"), 0x3c);
  EXPECT_EQ(entry.RowOf("kmaC_CrushStressVelocityFactor"), 114);
  EXPECT_EQ(entry.RowOf("kmaC_FieldConstituent"), 140);
  EXPECT_EQ(entry.RowOf("kmaC_ElectrodeParticle"), 149);
  EXPECT_EQ(entry.RowOf("kmaC_ElectrodeParticleLayer"), 150);
  EXPECT_LE(entry.Count(), 183);
  struct Named {
    const char* name;
    unsigned typeId;
  };
  const Named classes[] = {
      {kmaC_Material::kClassName, kmaC_Material::TypeId()},
      {kmaC_MaterialOption::kClassName, kmaC_MaterialOption::TypeId()},
      {kmaC_MaterialTable::kClassName, kmaC_MaterialTable::TypeId()},
      {kmaC_Elastic::kClassName, kmaC_Elastic::TypeId()},
      {kmaC_Plastic::kClassName, kmaC_Plastic::TypeId()},
      {kmaC_FailStress::kClassName, kmaC_FailStress::TypeId()},
      {kmaC_FailStrain::kClassName, kmaC_FailStrain::TypeId()},
      {kmaC_MaterialContainer::kClassName, kmaC_MaterialContainer::TypeId()},
      {kmaC_MCWrapper::kClassName, kmaC_MCWrapper::TypeId()},
      {kmaC_MaterialIMPLSC::kClassName, kmaC_MaterialIMPLSC::TypeId()},
      {kmaC_MaterialShortcut::kClassName, kmaC_MaterialShortcut::TypeId()},
      {kmaC_MaterialInMaterialContainerShortcut::kClassName, kmaC_MaterialInMaterialContainerShortcut::TypeId()},
      {kmaC_MaterialContainerIMPLSC::kClassName, kmaC_MaterialContainerIMPLSC::TypeId()},
      {kmaC_MaterialContainerShortcut::kClassName, kmaC_MaterialContainerShortcut::TypeId()},
      {kmaC_MaterialContainerInModelShortcut::kClassName, kmaC_MaterialContainerInModelShortcut::TypeId()},
      {kmaC_MaterialOptionIMPLSC::kClassName, kmaC_MaterialOptionIMPLSC::TypeId()},
      {kmaC_MaterialOptionShortcut::kClassName, kmaC_MaterialOptionShortcut::TypeId()},
      {kmaC_MaterialOptionInMaterialShortcut::kClassName, kmaC_MaterialOptionInMaterialShortcut::TypeId()},
      {kmaC_MaterialOptionInMaterialOptionShortcut::kClassName, kmaC_MaterialOptionInMaterialOptionShortcut::TypeId()},
      {kmaC_MaterialOptionListIMPLSC::kClassName, kmaC_MaterialOptionListIMPLSC::TypeId()},
      {kmaC_MaterialOptionListShortcut::kClassName, kmaC_MaterialOptionListShortcut::TypeId()},
      {kmaC_MaterialOptionListInMullinsEffectShortcut::kClassName, kmaC_MaterialOptionListInMullinsEffectShortcut::TypeId()},
      {kmaC_UniaxialTestsListInMaterialOptionShortcut::kClassName, kmaC_UniaxialTestsListInMaterialOptionShortcut::TypeId()},
      {kmaC_BiaxialTestsListInMaterialOptionShortcut::kClassName, kmaC_BiaxialTestsListInMaterialOptionShortcut::TypeId()},
      {kmaC_PlanarTestsListInMaterialOptionShortcut::kClassName, kmaC_PlanarTestsListInMaterialOptionShortcut::TypeId()},
      {kmaC_DamageEvolutionListInMaterialOptionShortcut::kClassName, kmaC_DamageEvolutionListInMaterialOptionShortcut::TypeId()},
      {kmaC_ElectrodeParticleListInMaterialOptionShortcut::kClassName, kmaC_ElectrodeParticleListInMaterialOptionShortcut::TypeId()},
      {kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut::kClassName, kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut::TypeId()},
      {kmaC_MullinsEffect::kClassName, kmaC_MullinsEffect::TypeId()},
      {kmaC_UniaxialTestData::kClassName, kmaC_UniaxialTestData::TypeId()},
      {kmaC_BiaxialTestData::kClassName, kmaC_BiaxialTestData::TypeId()},
      {kmaC_PlanarTestData::kClassName, kmaC_PlanarTestData::TypeId()},
      {kmaC_VolumetricTestData::kClassName, kmaC_VolumetricTestData::TypeId()},
      {kmaC_DamageEvolution::kClassName, kmaC_DamageEvolution::TypeId()},
      {kmaC_CrushStress::kClassName, kmaC_CrushStress::TypeId()},
      {kmaC_CrushStressVelocityFactor::kClassName, kmaC_CrushStressVelocityFactor::TypeId()},
      {kmaC_Electrode::kClassName, kmaC_Electrode::TypeId()},
      {kmaC_ElectrodeParticle::kClassName, kmaC_ElectrodeParticle::TypeId()},
      {kmaC_ElectrodeParticleLayer::kClassName, kmaC_ElectrodeParticleLayer::TypeId()},
      {kmaC_FieldConstituent::kClassName, kmaC_FieldConstituent::TypeId()},
      {kmaC_FCWrapper::kClassName, kmaC_FCWrapper::TypeId()},
      {"kmaC_DamageInitiation", kmaC_OptionTypeId(kmaC_OptionClass::DamageInitiation)},
      {"kmaC_TensileFailure", kmaC_OptionTypeId(kmaC_OptionClass::TensileFailure)},
  };
  for (const auto& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (568u << 16) | static_cast<unsigned>(row));
  }
}

class KmaShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    kmaT_Start();
    kmaC_Material steel;
    kmaC_Elastic e;
    e.SetFailStress(kmaC_FailStress());
    steel.SetElastic(e);
    steel.SetPlastic(kmaC_Plastic());
    Materials().Insert("Steel", steel);
    omu_ChangeHistory::Instance().Clear();
  }
  kmaC_MaterialContainer& Materials() {
    return dynamic_cast<kmaC_MaterialContainer&>(*model.ModifyRepository("materials"));
  }
  kmaC_MaterialOptionShortcut Slot(const char* slot) {
    return kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("Steel"), slot);
  }
  ddr_Model model;
};

TEST_F(KmaShortcut, ASlotShortcutReachesTheOptionAndSeparatesItOnModification) {
  const kmaC_MaterialOptionShortcut sc = Slot("elastic");
  EXPECT_EQ(sc.Name(), "elastic");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"materials", "Steel", "elastic"}));
  const ddr_Model before = model;
  ASSERT_EQ(sc.ConstGet(model), sc.ConstGet(before));
  auto& e = dynamic_cast<kmaC_Elastic&>(sc.Get(model));
  e.SetNoTension(true);
  EXPECT_FALSE(dynamic_cast<const kmaC_Elastic*>(sc.ConstGet(before))->GetNoTension());
  EXPECT_TRUE(dynamic_cast<const kmaC_Elastic*>(sc.ConstGet(model))->GetNoTension());
  const std::vector<omu_PrimTuple> expected = {{"kmaC_MaterialContainer", "Modify", "Steel"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
  // An empty slot and a missing material name nothing.
  EXPECT_EQ(Slot("density").ConstGet(model), nullptr);
  EXPECT_THROW(Slot("density").Get(model), nex_CmdError);
  const kmaC_MaterialOptionShortcut missing =
      kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("Copper"), "elastic");
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
}

TEST_F(KmaShortcut, UnknownSlotsAndSubOptionsAreRefusedWithTheOwnersMessage) {
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { Slot("elasticity"); }).Message(), "Unknown material option");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { Slot("description"); }).Message(), "Unknown material option");
  const kmaC_MaterialOptionShortcut failStress = kmaC_MaterialOptionInMaterialOptionShortcut(Slot("elastic"), "failStress");
  const kmaC_MaterialOptionShortcut deeper = kmaC_MaterialOptionInMaterialOptionShortcut(failStress, "anything");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { deeper.ConstGet(model); }).Message(), "Material option has no suboptions");
}

TEST_F(KmaShortcut, SubOptionShortcutsResolveAndSeparateOnModification) {
  const kmaC_MaterialOptionShortcut sc = kmaC_MaterialOptionInMaterialOptionShortcut(Slot("elastic"), "failStress");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"materials", "Steel", "elastic", "failStress"}));
  ASSERT_NE(sc.ConstGet(model), nullptr);
  EXPECT_EQ(sc.ConstGet(model)->DynTypeId(), kmaC_FailStress::TypeId());
  const ddr_Model before = model;
  dynamic_cast<kmaC_FailStress&>(sc.Get(model)).SetDependencies(2);
  EXPECT_EQ(dynamic_cast<const kmaC_FailStress*>(sc.ConstGet(before))->GetDependencies(), 0);
  EXPECT_EQ(dynamic_cast<const kmaC_FailStress*>(sc.ConstGet(model))->GetDependencies(), 2);
  // An absent sub-option of a known name names nothing.
  const kmaC_MaterialOptionShortcut strain = kmaC_MaterialOptionInMaterialOptionShortcut(Slot("elastic"), "failStrain");
  EXPECT_EQ(strain.ConstGet(model), nullptr);
  EXPECT_EQ(kmaC_MaterialOptionInMaterialOptionShortcut(Slot("plastic"), "tensileFailure").ConstGet(model), nullptr);
}

// --- the command layer --------------------------------------------------------------------------

cmd_Json RunLine(cmd_Session& s, const std::string& line) { return s.ExecuteLine(line); }
cmd_Json ScriptOk(cmd_Session& s, const std::string& line) {
  cmd_Json r = RunLine(s, line);
  EXPECT_TRUE(r.value("ok", false)) << line << " -> " << r.dump();
  return r.contains("result") ? r["result"] : cmd_Json();
}
std::string ScriptRefusal(cmd_Session& s, const std::string& line) {
  cmd_Json r = RunLine(s, line);
  EXPECT_FALSE(r.value("ok", true)) << line;
  return r.contains("error") ? r["error"].value("message", "") : "";
}

TEST(KmaScript, MaterialsAreBuiltReadAndRefusedByScriptingNames) {
  kmaT_Start();
  cmd_Session s;
  ScriptOk(s, R"({"op":"create","path":["M"]})");
  ScriptOk(s, R"({"op":"create","path":["M","materials","Steel"],"type":"Material","values":{"description":"S355"}})");
  ScriptOk(s, R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Elastic",
            "values":{"moduli":"INSTANTANEOUS","table":[[210000,0.3]]}})");
  ScriptOk(s, R"({"op":"set","path":["M","materials","Steel"],"values":{"plastic":{"type":"Plastic","hardening":"KINEMATIC",
            "table":[[355,0],[470,0.2]]}}})");
  EXPECT_EQ(ScriptOk(s, R"({"op":"get","path":["M","materials","Steel","elastic","moduli"]})"), "INSTANTANEOUS");
  EXPECT_EQ(ScriptOk(s, R"({"op":"get","path":["M","materials","Steel","plastic","hardening"]})"), "KINEMATIC");
  EXPECT_EQ(ScriptOk(s, R"({"op":"get","path":["M","materials","Steel","plastic","extrapolation"]})"), "CONSTANT");
  EXPECT_EQ(ScriptOk(s, R"({"op":"get","path":["M","materials","Steel","density"]})"), cmd_Json(nullptr));
  ScriptOk(s, R"({"op":"set","path":["M","materials","Steel","elastic","failStrain"],"type":"FailStrain",
            "values":{"dependencies":1}})");
  ScriptOk(s, R"({"op":"validate","path":["M","materials","Steel"]})");

  // Refusals change nothing.
  const std::string wrongLiteral =
      ScriptRefusal(s, R"({"op":"set","path":["M","materials","Steel","elastic","moduli"],"value":"long_term"})");
  EXPECT_EQ(wrongLiteral.rfind("omu_PrimEnum(const cow_String&) - str not allowed: long_term  Permissible: ", 0), 0u);
  ScriptRefusal(s, R"({"op":"set","path":["M","materials","Steel","elastic"],"type":"Plastic"})");
  ScriptRefusal(s, R"({"op":"set","path":["M","materials","Steel","hyperelastic"],"values":{}})");
  ScriptOk(s, R"({"op":"set","path":["M","materials","Steel","elastic","noCompression"],"value":true})");
  ScriptOk(s, R"({"op":"set","path":["M","materials","Steel","elastic","noTension"],"value":true})");
  cmd_Json invalid = RunLine(s, R"({"op":"validate","path":["M","materials","Steel"]})");
  EXPECT_FALSE(invalid.value("ok", true));
  EXPECT_EQ(invalid["error"]["message"], "No compression and No tension are mutually exclusive. Please unselect one of them.");
  EXPECT_EQ(invalid["error"]["line"], 263);

  const auto* steel = dynamic_cast<const kmaC_MaterialContainer*>(s.Database().FindModel("M")->FindRepository("materials"))
                          ->ConstGet("Steel");
  ASSERT_NE(steel, nullptr);
  EXPECT_EQ(steel->GetDescription(), "S355");
  EXPECT_EQ(steel->GetElastic().GetModuli(), kmaC_Elastic::ModuliEnm::INSTANTANEOUS);
  EXPECT_EQ(steel->GetElastic().GetFailStrain().GetDependencies(), 1);
  EXPECT_EQ(steel->GetPlastic().GetTable()(1, 0), 470.0);
}

}  // namespace
