// Option classes stored in the layouts of older class versions read back with the values their
// version steps fill in; the exported converters of creep and viscous fill the new row.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kma/kmaC_AnnealTemperature.h"
#include "kma/kmaC_Creep_Versions.h"
#include "kma/kmaC_DamageInitiation_Versions.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_Viscous_Versions.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Record.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

kmaC_MaterialContainer& Materials(ddr_Database& db) {
  return dynamic_cast<kmaC_MaterialContainer&>(*db.ModifyModel("Model-1")->ModifyRepository("materials"));
}

kmaC_Plastic WithAnneal(bool temperatureDependency, int dependencies) {
  kmaC_AnnealTemperature a;
  a.SetTemperatureDependency(temperatureDependency);
  a.SetDependencies(dependencies);
  a.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{900.0, 1.0}}));
  kmaC_Plastic p;
  p.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{250.0, 0.0}}));
  p.SetAnnealTemperature(a);
  return p;
}

kmaC_Creep CreepWith(kmaC_Creep::TimeEnm time) {
  kmaC_Creep c;
  c.SetLaw(kmaC_Creep::LawEnm::TIME);
  c.SetTime(time);
  return c;
}

kmaC_Viscous ViscousWith(kmaC_Viscous::LawEnm law) {
  kmaC_Viscous v;
  v.SetLaw(law);
  v.SetDependencies(1);
  return v;
}

kmaC_MohrCoulomb MohrCoulombWith(double deviatoric, double meridional, bool cutoff) {
  kmaC_MohrCoulomb m;
  m.SetDeviatoricEccentricity(deviatoric);
  m.SetMeridionalEccentricity(meridional);
  m.SetUseTensionCutoff(cutoff);
  return m;
}

kmaC_Hyperelastic HyperelasticWith(bool changed) {
  kmaC_Hyperelastic h;
  h.SetType(kmaC_Hyperelastic::TypeEnm::OGDEN);
  if (changed) {
    h.SetTestData(true);
    h.SetN(3);
    h.SetModuliTimeScale(kmaC_Hyperelastic::ModuliTimeScaleEnm::INSTANTANEOUS);
    h.SetMaterialType(kmaC_Hyperelastic::MaterialTypeEnm::ANISOTROPIC);
    h.SetPoissonRatio(0.45);
    h.SetBehaviorType(kmaC_Hyperelastic::BehaviorTypeEnm::COMPRESSIBLE);
  } else {
    h.SetTestData(false);
  }
  return h;
}

std::function<void(const kmaC_Material&)> AnnealIs(bool temperatureDependency, int dependencies) {
  return [=](const kmaC_Material& m) {
    const auto* a = dynamic_cast<const kmaC_AnnealTemperature*>(m.GetPlastic().GetAnnealTemperature());
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->GetTemperatureDependency(), temperatureDependency);
    EXPECT_EQ(a->GetDependencies(), dependencies);
    EXPECT_EQ(a->GetTable()(0, 0), 900.0);
  };
}

std::function<void(const kmaC_Material&)> MohrCoulombIs(double deviatoric, double meridional, bool cutoff) {
  return [=](const kmaC_Material& m) {
    const auto& o = dynamic_cast<const kmaC_MohrCoulomb&>(*m.GetOption("mohrCoulomb"));
    EXPECT_EQ(o.GetDeviatoricEccentricity(), deviatoric);
    EXPECT_EQ(o.GetMeridionalEccentricity(), meridional);
    EXPECT_EQ(o.GetUseTensionCutoff(), cutoff);
  };
}

struct Case {
  const char* className;
  int version;
  std::vector<std::string> absent;  // the fields the old layout lacks
  const char* slot;
  std::function<void(kmaC_Material&)> stored;
  std::function<void(const kmaC_Material&)> check;  // on the upgraded material
};

TEST(KmaOptionUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-option-upgrade");
  const Case cases[] = {
      {"kmaC_AnnealTemperature", 203, {"dependencies", "temperatureDependency"}, "plastic",
       [](kmaC_Material& m) { m.SetOption("plastic", WithAnneal(true, 2)); },
       AnnealIs(false, 0)},
      {"kmaC_AnnealTemperature", 307, {"temperatureDependency"}, "plastic",
       [](kmaC_Material& m) { m.SetOption("plastic", WithAnneal(true, 2)); },
       AnnealIs(false, 2)},
      {"kmaC_AnnealTemperature", 452, {"temperatureDependency"}, "plastic",
       [](kmaC_Material& m) { m.SetOption("plastic", WithAnneal(true, 2)); },
       AnnealIs(false, 2)},
      {"kmaC_Creep", 203, {"time"}, "creep",
       [](kmaC_Material& m) { m.SetOption("creep", CreepWith(kmaC_Creep::TimeEnm::CREEP)); },
       [](const kmaC_Material& m) {
         const auto& c = dynamic_cast<const kmaC_Creep&>(*m.GetOption("creep"));
         EXPECT_EQ(c.GetTime(), kmaC_Creep::TimeEnm::TOTAL);
         EXPECT_EQ(c.GetLaw(), kmaC_Creep::LawEnm::TIME);
       }},
      {"kmaC_Viscous", 203, {"law"}, "viscous",
       [](kmaC_Material& m) { m.SetOption("viscous", ViscousWith(kmaC_Viscous::LawEnm::TIME)); },
       [](const kmaC_Material& m) {
         const auto& v = dynamic_cast<const kmaC_Viscous&>(*m.GetOption("viscous"));
         EXPECT_EQ(v.GetLaw(), kmaC_Viscous::LawEnm::STRAIN);
         EXPECT_EQ(v.GetDependencies(), 1);
       }},
      {"kmaC_Viscous", 438, {"law"}, "viscous",
       [](kmaC_Material& m) { m.SetOption("viscous", ViscousWith(kmaC_Viscous::LawEnm::USER)); },
       [](const kmaC_Material& m) {
         const auto& v = dynamic_cast<const kmaC_Viscous&>(*m.GetOption("viscous"));
         EXPECT_EQ(v.GetLaw(), kmaC_Viscous::LawEnm::STRAIN);
         EXPECT_EQ(v.GetDependencies(), 1);
       }},
      {"kmaC_MohrCoulomb", 205, {"meridionalEccentricity", "deviatoricEccentricity", "useTensionCutoff"}, "mohrCoulomb",
       [](kmaC_Material& m) { m.SetOption("mohrCoulomb", MohrCoulombWith(0.8, 0.3, true)); },
       MohrCoulombIs(1.0, 0.1, false)},
      {"kmaC_MohrCoulomb", 1422, {"useTensionCutoff"}, "mohrCoulomb",
       [](kmaC_Material& m) { m.SetOption("mohrCoulomb", MohrCoulombWith(0.8, 0.3, true)); },
       MohrCoulombIs(0.8, 0.3, false)},
      {"kmaC_DamageInitiation", 1390, {"direction", "position", "feq", "fnn", "fnt", "frequency", "DamageEvolutionList"}, "ductileDamageInitiation",
       [](kmaC_Material& m) {
         kmaC_DamageInitiation d;
         d.SetDirection(kmaC_DamageInitiation::DirectionEnm::TMORI);
         d.SetPosition(kmaC_DamageInitiation::PositionEnm::NODES);
         d.SetFeq(2.0);
         d.SetFrequency(3);
         d.SetOmega(0.5);
         m.SetOption("ductileDamageInitiation", d);
       },
       [](const kmaC_Material& m) {
         const auto& d = dynamic_cast<const kmaC_DamageInitiation&>(*m.GetOption("ductileDamageInitiation"));
         EXPECT_EQ(d.GetDirection(), kmaC_DamageInitiation::DirectionEnm::NMORI);
         EXPECT_EQ(d.GetPosition(), kmaC_DamageInitiation::PositionEnm::CENTROID);
         EXPECT_EQ(d.GetFeq(), 10.0);
         EXPECT_EQ(d.GetFrequency(), 1);
         EXPECT_EQ(d.GetOmega(), 0.5);  // present at 1390, kept
       }},
      {"kmaC_Hyperelastic", 203,
       {"testData", "n", "moduliTimeScale", "materialType", "poissonRatio", "behaviorType", "uniaxialTests",
        "biaxialTests", "planarTests", "volumetricTests"},
       "hyperelastic",
       [](kmaC_Material& m) { m.SetOption("hyperelastic", HyperelasticWith(true)); },
       [](const kmaC_Material& m) {
         const auto& h = dynamic_cast<const kmaC_Hyperelastic&>(*m.GetOption("hyperelastic"));
         EXPECT_EQ(h.GetType(), kmaC_Hyperelastic::TypeEnm::OGDEN);
         EXPECT_FALSE(h.GetTestData());
         EXPECT_EQ(h.GetN(), 1);
         EXPECT_EQ(h.GetModuliTimeScale(), kmaC_Hyperelastic::ModuliTimeScaleEnm::LONG_TERM);
         EXPECT_EQ(h.GetMaterialType(), kmaC_Hyperelastic::MaterialTypeEnm::ISOTROPIC);
         EXPECT_EQ(h.GetPoissonRatio(), 0.0);
         EXPECT_EQ(h.GetBehaviorType(), kmaC_Hyperelastic::BehaviorTypeEnm::INCOMPRESSIBLE);
       }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.className) + " " + std::to_string(c.version));
    ddr_Database db;
    db.CreateModel("Model-1");
    kmaC_Material m;
    c.stored(m);
    Materials(db).Insert("M", m);
    const std::string file = dir + "/" + c.className + "-" + std::to_string(c.version) + ".odb";
    dbf_Save(db, file);
    kmaT_MakeOldLayout(file, c.className, c.version, c.absent);

    ddr_Database upgraded = dbf_Open(file);
    const kmaC_Material* back = Materials(upgraded).ConstGet("M");
    ASSERT_NE(back, nullptr);
    ASSERT_NE(back->GetOption(c.slot), nullptr);
    c.check(*back);
    EXPECT_FALSE(upgraded == db);
  }
}

TEST(KmaOptionUpgrade, TheExportedCreepAndViscousConvertersFillTheNewRow) {
  struct FnCase {
    void* (*fn)(const dbc_Row&, dbc_Row&, int);
    const char* field;
    const char* value;
  };
  const FnCase cases[] = {{&Upgrade_kmaC_Creep_203_2008, "time", "TOTAL"},
                          {&Upgrade_kmaC_Viscous_438_2008, "law", "STRAIN"},
                          {&Upgrade_kmaC_DamageInitiation_1390_1432, "direction", "NMORI"},
                          {&Upgrade_kmaC_DamageInitiation_1432_1801, "position", "CENTROID"}};
  for (const FnCase& c : cases) {
    SCOPED_TRACE(c.field);
    cls_Record old;
    old.fields.emplace_back("dependencies", std::int32_t{2});
    cls_Record next = old;
    dbc_Row oldRow(static_cast<const cls_Record&>(old));
    dbc_Row newRow(next);
    EXPECT_EQ(c.fn(oldRow, newRow, 0), nullptr);
    const cls_Value* got = next.Find(c.field);
    ASSERT_NE(got, nullptr);
    EXPECT_EQ(std::get<cow_String>(*got), c.value);
    EXPECT_EQ(std::get<std::int32_t>(*next.Find("dependencies")), 2);
  }
}

}  // namespace
