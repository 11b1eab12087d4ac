// The material: its slots in their persistent order, copy-on-write options, validation through
// the options, the rows of the database file, and the repository.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_Plastic.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "tests/kma/kmaT_Support.h"

namespace {

// The persistent order as stated: (name, field index).
const std::vector<std::pair<std::string, int>> kOrder = {
    {"acousticMedium", 0}, {"brittleCracking", 1}, {"capPlasticity", 2}, {"castIronPlasticity", 3},
    {"clayPlasticity", 4}, {"concrete", 5}, {"concreteDamagedPlasticity", 6}, {"conductivity", 7}, {"creep", 8},
    {"foam", 9}, {"ductileDamageInitiation", 10}, {"fldDamageInitiation", 11}, {"flsdDamageInitiation", 12},
    {"johnsonCookDamageInitiation", 13}, {"maxeDamageInitiation", 14}, {"maxsDamageInitiation", 15},
    {"maxpeDamageInitiation", 16}, {"maxpsDamageInitiation", 17}, {"mkDamageInitiation", 18},
    {"msfldDamageInitiation", 19}, {"quadeDamageInitiation", 20}, {"quadsDamageInitiation", 21},
    {"shearDamageInitiation", 22}, {"hashinDamageInitiation", 23}, {"damping", 24}, {"deformationPlasticity", 25},
    {"density", 26}, {"depvar", 27}, {"dielectric", 28}, {"diffusivity", 29}, {"druckerPrager", 30}, {"elastic", 31},
    {"electricalConductivity", 32}, {"eos", 33}, {"expansion", 34}, {"fluidLeakoff", 35}, {"gapFlow", 36},
    {"thicknessBehavior", 40}, {"transShearElastic", 41}, {"membraneElastic", 42}, {"gel", 43},
    {"heatGeneration", 44}, {"hyperelastic", 45}, {"hyperfoam", 46}, {"hypoelastic", 47},
    {"inelasticHeatFraction", 48}, {"jouleHeatFraction", 49}, {"latentHeat", 50}, {"lowDensityFoam", 51},
    {"magneticPermeability", 52}, {"mohrCoulomb", 53}, {"moistureSwelling", 54}, {"mullinsEffect", 55},
    {"permeability", 56}, {"piezoelectric", 57}, {"plastic", 58}, {"poreFluidExpansion", 59},
    {"porousBulkModuli", 60}, {"porousElastic", 61}, {"porousMetalPlasticity", 62}, {"regularization", 63},
    {"shear", 64}, {"solubility", 65}, {"sorption", 66}, {"specificHeat", 67}, {"swelling", 68},
    {"userDefinedField", 69}, {"userMaterial", 70}, {"userOutputVariables", 71}, {"viscoelastic", 72},
    {"viscosity", 73}, {"viscous", 74}, {"description", 75}, {"materialIdentifier", 76},
    {"softRockPlasticity", 77}, {"superElasticity", 78}, {"meanFieldHomogenization", 79}, {"gapConductance", 37},
    {"gapConvection", 38}, {"gapRadiation", 39}, {"crushStress", 80}, {"plasticityCorrection", 81},
    {"laRC05DamageInitiation", 82}, {"hosfordCoulombDamageInitiation", 83}, {"electrolyte", 84}, {"electrode", 85},
};

kmaC_Material Steel() {
  kmaC_Material m;
  m.SetDescription("Structural steel");
  m.SetMaterialIdentifier("S355");
  kmaC_Elastic e;
  e.SetTable(Table({{210000.0, 0.3}}));
  kmaC_FailStress fs;
  fs.SetTable(Table({{500.0, 400.0}}));
  e.SetFailStress(fs);
  m.SetElastic(e);
  kmaC_Plastic p;
  p.SetHardening(kmaC_Plastic::HardeningEnm::COMBINED);
  p.SetDataType(kmaC_Plastic::DataTypeEnm::PARAMETERS);
  p.SetNumBackstresses(2);
  p.SetScaleStress(2.5);
  p.SetExtrapolation(kmaC_Plastic::ExtrapolationEnm::LINEAR);
  p.SetTable(Table({{355.0, 0.0}, {470.0, 0.15}}));
  m.SetPlastic(p);
  return m;
}

TEST(KmaMaterial, TheRegisteredAttributesCarryTheStatedIndicesTypesAndOrder) {
  kmaT_Start();
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kmaC_Material");
  ASSERT_NE(md, nullptr);
  EXPECT_EQ(md->TypeId(), 0x2380001u);
  EXPECT_EQ(md->Version(), 2503);
  ASSERT_EQ(md->Attributes().size(), 86u);
  for (std::size_t i = 0; i < kOrder.size(); ++i) {
    const cls_Attribute& a = md->Attributes()[i];
    SCOPED_TRACE(kOrder[i].first);
    EXPECT_EQ(a.handle.Name(), kOrder[i].first.c_str());
    EXPECT_EQ(a.handle.Number(), kOrder[i].second);
    EXPECT_EQ(a.type, kOrder[i].second == 75 || kOrder[i].second == 76 ? 11 : 15);
  }
}

TEST(KmaMaterial, ChangingTheCopysOptionLeavesTheOriginal) {
  kmaT_Start();
  const kmaC_Material original = Steel();
  kmaC_Material copy = original;
  EXPECT_EQ(&copy.GetElastic(), &original.GetElastic());  // shared until changed
  copy.ModifyElastic().SetNoTension(true);
  copy.ModifyPlastic().SetHardening(kmaC_Plastic::HardeningEnm::KINEMATIC);
  EXPECT_FALSE(original.GetElastic().GetNoTension());
  EXPECT_TRUE(copy.GetElastic().GetNoTension());
  EXPECT_EQ(original.GetPlastic().GetHardening(), kmaC_Plastic::HardeningEnm::COMBINED);
  EXPECT_TRUE(copy != original);
  // The copy's elastic keeps its uid: it is the same option, changed.
  EXPECT_EQ(copy.GetElastic().GetUid(), original.GetElastic().GetUid());
  // Through the generic slot access too.
  kmaC_Material third = original;
  static_cast<kmaC_Elastic*>(third.ModifyOption("elastic"))->SetDependencies(2);
  EXPECT_EQ(original.GetElastic().GetDependencies(), 0);
  third.ClearOption("plastic");
  EXPECT_TRUE(original.HasPlastic());
}

TEST(KmaMaterial, SlotsTakeOnlyTheirClassAndUnknownSlotsAreRefused) {
  kmaT_Start();
  kmaC_Material m;
  auto e = qmx_Catch<nex_CmdError>([&] { m.SetOption("plastic", kmaC_Elastic()); });
  EXPECT_EQ(e.Message(), "The option slot \"plastic\" holds a kmaC_Plastic, not a kmaC_Elastic");
  EXPECT_FALSE(m.HasPlastic());
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { m.GetOption("elastics"); }).Message(), "Unknown material option");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { m.SetOption("description", kmaC_Elastic()); }).Message(),
            "Unknown material option");
  EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { m.GetElastic(); }).Message(), "The material has no elastic option");
  // The ten damage initiation slots share one class.
  m.SetOption("fldDamageInitiation", kmaT_StandIn<kmaC_OptionClass::DamageInitiation>());
  m.SetOption("hashinDamageInitiation", kmaT_StandIn<kmaC_OptionClass::DamageInitiation>());
  EXPECT_NE(m.GetOption("fldDamageInitiation"), nullptr);
  EXPECT_EQ(m.GetOption("ductileDamageInitiation"), nullptr);
}

TEST(KmaMaterial, ValidationIsTheFirstFailingOptionsAndChangesNothing) {
  kmaT_Start();
  kmaC_Material m = Steel();
  EXPECT_NO_THROW(m.AssertValid());
  m.ModifyElastic().SetNoCompression(true);
  m.ModifyElastic().SetNoTension(true);
  m.ModifyPlastic().SetDependencies(-1);
  const kmaC_Material before = m;
  // Elastic (index 31) is visited before plastic (58).
  kmaT_ExpectFailure([&] { m.AssertValid(); },
                     "No compression and No tension are mutually exclusive. Please unselect one of them.");
  EXPECT_TRUE(m == before);
  m.ModifyElastic().SetNoTension(false);
  kmaT_ExpectFailure([&] { m.AssertValid(); }, "Number of dependencies specified is less than the minimum.");
  EXPECT_NO_THROW(kmaC_Material().AssertValid());
}

class KmaFile : public ::testing::Test {
 protected:
  void SetUp() override {
    kmaT_Start();
    dir_ = qmx_TempDir("kma-file");
  }
  std::string dir_;
};

TEST_F(KmaFile, MaterialsWithElasticAndPlasticRoundTripThroughTheFile) {
  ddr_Database db;
  db.CreateModel("Model-1");
  Materials(db).Insert("Steel", Steel());
  Materials(db).Insert("Empty", kmaC_Material());
  kmaC_Material mixed = Steel();
  mixed.ModifyElastic().SetModuli(kmaC_Elastic::ModuliEnm::INSTANTANEOUS);
  mixed.ModifyElastic().SetType(kmaC_Elastic::TypeEnm::TRANSVERSELY_ISOTROPIC);
  kmaC_FailStrain strain;
  strain.SetTemperatureDependency(true);
  strain.SetDependencies(1);
  mixed.ModifyElastic().SetFailStrain(strain);
  mixed.ClearPlastic();
  Materials(db).Insert("Mixed", mixed);
  const std::string file = dir_ + "/materials.odb";
  dbf_Save(db, file);
  ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == db);
  EXPECT_EQ(Materials(back).Keys(), (std::vector<cow_String>{"Empty", "Mixed", "Steel"}));
  // The rows are where a person looks for them.
  EXPECT_EQ(kmaT_Query(file, "SELECT count(*) FROM kmaC_Material"), std::vector<std::string>{"3"});
  EXPECT_EQ(kmaT_Query(file, "SELECT moduli FROM kmaC_Elastic ORDER BY moduli"),
            (std::vector<std::string>{"INSTANTANEOUS", "LONG_TERM"}));
  EXPECT_EQ(kmaT_Query(file, "SELECT version FROM dbf_Catalog WHERE name = 'kmaC_Plastic'"),
            std::vector<std::string>{"2217"});
}

TEST_F(KmaFile, TheRepositoryRecordsInsertModifyAndRemove) {
  ddr_Database db;
  db.CreateModel("Model-1");
  omu_ChangeHistory::Instance().Clear();
  Materials(db).Insert("Steel", Steel());
  Materials(db).Get("Steel").ModifyElastic().SetDependencies(1);
  Materials(db).Remove("Steel");
  const std::vector<omu_PrimTuple> expected = {{"kmaC_MaterialContainer", "Insert", "Steel"},
                                               {"kmaC_MaterialContainer", "Modify", "Steel"},
                                               {"kmaC_MaterialContainer", "Remove", "Steel"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
}

}  // namespace
