// The electrode with its particle and layer lists: lists reached by the list shortcuts and by
// script, refusals of a foreign element, validation through the lists and copy-on-write
// separation.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kma/kmaC_Diffusivity.h"
#include "kma/kmaC_Electrode.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialOptionShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_OptionListShortcuts.h"
#include "kma/kmaC_Plastic.h"
#include "platform/model/ddr_Model.h"
#include "tests/kma/kmaT_Support.h"

namespace {


kmaC_ElectrodeParticle Particle(double radius) {
  kmaC_ElectrodeParticle p;
  p.SetRadius(radius);
  p.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{4.2, 0.0}, {3.6, 1.0}}));
  return p;
}

kmaC_Electrode TwoParticleElectrode() {
  kmaC_Electrode e;
  e.SetType(kmaC_Electrode::TypeEnm::POSITIVE);
  e.SetElectrodeParticleList(kmaC_MaterialOptionList(
      {kmaC_OptionHandle(Particle(5e-3)), kmaC_OptionHandle(Particle(2e-3))}));
  kmaC_ElectrodeParticleLayer layer;
  layer.SetThickness(0.07);
  layer.SetNumElements(4);
  e.SetElectrodeParticleLayerList(kmaC_MaterialOptionList({kmaC_OptionHandle(layer)}));
  return e;
}

class KmaElectrode : public ::testing::Test {
 protected:
  void SetUp() override {
    kmaT_Start();
    kmaC_Material cell;
    cell.SetOption("electrode", TwoParticleElectrode());
    cell.SetOption("plastic", kmaC_Plastic());
    Materials().Insert("Cathode", cell);
  }
  kmaC_MaterialContainer& Materials() { return dynamic_cast<kmaC_MaterialContainer&>(*model.ModifyRepository("materials")); }
  kmaC_MaterialOptionShortcut Slot(const char* slot) {
    return kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("Cathode"), slot);
  }
  ddr_Model model;
};

TEST_F(KmaElectrode, ListShortcutsReachTheListsAndSeparateThemOnModification) {
  const kmaC_ElectrodeParticleListInMaterialOptionShortcut particles(Slot("electrode"));
  const kmaC_ElectrodeParticleLayerListInMaterialOptionShortcut layers(Slot("electrode"));
  ASSERT_NE(particles.ConstGet(model), nullptr);
  ASSERT_NE(layers.ConstGet(model), nullptr);
  EXPECT_EQ(particles.ConstGet(model)->size(), 2u);
  EXPECT_EQ(layers.ConstGet(model)->size(), 1u);
  EXPECT_EQ(particles.Path(), (std::vector<cow_String>{"materials", "Cathode", "electrode", "ElectrodeParticleList"}));

  // Modifying through the shortcut separates the list from a copy of the model.
  const ddr_Model before = model;
  particles.Get(model).RemoveLast();
  EXPECT_EQ(particles.ConstGet(model)->size(), 1u);
  EXPECT_EQ(particles.ConstGet(before)->size(), 2u);
}

TEST_F(KmaElectrode, SubOptionNamesAreRefusedWithTheElectrodesAndTheParticlesMessages) {
  const kmaC_MaterialOptionShortcut bad = kmaC_MaterialOptionInMaterialOptionShortcut(Slot("electrode"), "diffusivity");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { bad.ConstGet(model); }).Message(), "Unknown material option name for electrode");
  EXPECT_EQ(kmaC_MaterialOptionInMaterialOptionShortcut(Slot("electrode"), "electricalConductivity").ConstGet(model), nullptr);
  const kmaC_ElectrodeParticle particle;
  EXPECT_STREQ(particle.UnknownSubOptionMessage(), "Unknown material option name for electrodeParticle");
  EXPECT_STREQ(kmaC_ElectrodeParticleLayer().UnknownSubOptionMessage(), "Material option has no suboptions");
}

TEST(KmaElectrodeRules, TheListsAreValidatedInOrderAfterTheElectrodesOwnRules) {
  kmaT_Start();
  {
    kmaC_Electrode e = TwoParticleElectrode();
    EXPECT_NO_THROW(e.AssertValid());
    kmaC_ElectrodeParticle bad = Particle(1e-3);
    bad.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{0, 0}}));
    e.SetElectrodeParticleList(kmaC_MaterialOptionList({kmaC_OptionHandle(bad)}));
    kmaT_ExpectFailure([&] { e.AssertValid(); }, kZeroRow);
    e.SetDependencies(-1);  // the electrode's own rule comes first
    kmaT_ExpectFailure([&] { e.AssertValid(); }, kDependencies);
  }
  {
    kmaC_Electrode e = TwoParticleElectrode();
    kmaC_ElectrodeParticleLayer layer;
    layer.SetDependencies(-3);
    e.SetElectrodeParticleLayerList(kmaC_MaterialOptionList({kmaC_OptionHandle(layer)}));
    kmaT_ExpectFailure([&] { e.AssertValid(); }, kDependencies);
  }
  {
    // A particle's own sub-option is validated with it.
    kmaC_ElectrodeParticle p = Particle(1e-3);
    kmaC_Diffusivity d;
    d.SetDependencies(-1);
    p.SetDiffusivity(d);
    kmaT_ExpectFailure([&] { p.AssertValid(); }, kDependencies);
  }
}

TEST(KmaElectrodeScript, ParticlesAndLayersAreAddedByScript) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, R"({"op":"create","path":["M"]})");
  Ok(s, R"({"op":"create","path":["M","materials","NMC"],"type":"Material"})");
  Ok(s, R"({"op":"set","path":["M","materials","NMC","electrode"],"type":"Electrode","values":{"type":"POSITIVE","table":[[10]]}})");
  Ok(s, R"({"op":"create","path":["M","materials","NMC","electrode","electrodeParticleList","0"],"type":"ElectrodeParticle",)"
        R"("values":{"radius":0.005,"table":[[4.2,0],[3.6,1]]}})");
  Ok(s, R"({"op":"set","path":["M","materials","NMC","electrode","electrodeParticleList","0","diffusivity"],"type":"Diffusivity","values":{"table":[[1e-8]]}})");
  Ok(s, R"({"op":"create","path":["M","materials","NMC","electrode","electrodeParticleLayerList","0"],"type":"ElectrodeParticleLayer",)"
        R"("values":{"thickness":0.07,"numElements":5}})");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","NMC","electrode","electrodeParticleList","0","radius"]})"), 0.005);
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","NMC","electrode","electrodeParticleLayerList","0","numElements"]})"), 5);
  Ok(s, R"({"op":"validate","path":["M","materials","NMC"]})");

  // An element of another class is refused and the list stays as it was.
  const cmd_Json foreign = s.ExecuteLine(
      R"({"op":"create","path":["M","materials","NMC","electrode","electrodeParticleList","1"],"type":"ElectrodeParticleLayer","values":{}})");
  EXPECT_FALSE(foreign.value("ok", true));
  EXPECT_EQ(foreign["error"]["message"], "ElectrodeParticleLayer cannot stand where ElectrodeParticle is expected");
  const cmd_Json empty = s.ExecuteLine(
      R"({"op":"set","path":["M","materials","NMC","electrode","electrodeParticleList"],"value":[null]})");
  EXPECT_EQ(empty["error"]["message"],
            "The option list \"electrodeParticleList\" holds only kmaC_ElectrodeParticle objects; element 0 is an "
            "empty element");
  EXPECT_EQ(empty["error"]["file"], "kmaC_OptionListMember.cpp");
  EXPECT_EQ(Ok(s, R"({"op":"get","path":["M","materials","NMC","electrode","electrodeParticleList"]})").size(), 1u);
}

}  // namespace
