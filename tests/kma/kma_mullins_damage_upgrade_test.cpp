// The test data, the Mullins effect, the damage initiation and evolution and the crush stress,
// stored in the layouts of their older class versions, read back with what their version steps
// fill in and with what the old layout held kept.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kma/kmaC_CrushStress_Versions.h"
#include "kma/kmaC_CrushStressVelocityFactor.h"
#include "kma/kmaC_DamageEvolution_Versions.h"
#include "kma/kmaC_DamageInitiation_Versions.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MullinsEffect.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_TestData_Versions.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Record.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

kmaC_MaterialContainer& Materials(ddr_Database& db) {
  return dynamic_cast<kmaC_MaterialContainer&>(*db.ModifyModel("Model-1")->ModifyRepository("materials"));
}

kmaC_MaterialTable Table(std::initializer_list<std::initializer_list<double>> rows) {
  return kmaC_MaterialTable(cow_2DArray<double>(rows));
}

template <class O>
kmaC_MaterialOptionList One(const O& o) {
  kmaC_MaterialOptionList l;
  l.Append(kmaC_OptionHandle(o));
  return l;
}

template <class O>
const O& Option(const kmaC_Material& m, const char* slot) {
  return dynamic_cast<const O&>(*m.GetOption(slot));
}

// A Mullins effect whose three lists hold one changed test each.
kmaC_MullinsEffect MullinsWithTests() {
  kmaC_MullinsEffect m;
  m.SetDefinition(kmaC_MullinsEffect::DefinitionEnm::TEST_DATA);
  kmaC_UniaxialTestData u;
  u.SetSmoothing(3);
  u.SetLateralNominalStrain(true);
  u.SetTable(Table({{1.0, 0.1, -0.05}}));
  kmaC_BiaxialTestData b;
  b.SetSmoothing(4);
  b.SetLateralNominalStrain(true);
  b.SetTable(Table({{2.0, 0.1, -0.1}}));
  kmaC_PlanarTestData p;
  p.SetSmoothing(5);
  p.SetLateralNominalStrain(true);
  p.SetTable(Table({{3.0, 0.1, -0.08}}));
  m.SetUniaxialTests(One(u));
  m.SetBiaxialTests(One(b));
  m.SetPlanarTests(One(p));
  return m;
}

template <class T>
const T& First(const kmaC_MaterialOptionList& l) {
  return dynamic_cast<const T&>(l[0].Get());
}

kmaC_DamageEvolution ChangedEvolution() {
  kmaC_DamageEvolution e;
  e.SetType(kmaC_DamageEvolution::TypeEnm::ENERGY);
  e.SetSoftening(kmaC_DamageEvolution::SofteningEnm::EXPONENTIAL);
  e.SetMixedModeBehavior(kmaC_DamageEvolution::MixedModeBehaviorEnm::POWER_LAW);
  e.SetModeMixRatio(kmaC_DamageEvolution::ModeMixRatioEnm::TRACTION);
  e.SetPower(2.0);
  e.SetDegradation(kmaC_DamageEvolution::DegradationEnm::MULTIPLICATIVE);
  e.SetFailureIndex(3);
  e.SetTable(Table({{12.0}}));
  return e;
}

kmaC_DamageInitiation ChangedInitiation(bool withEvolution) {
  kmaC_DamageInitiation d;
  d.SetDefinition(kmaC_DamageInitiation::DefinitionEnm::FLD);
  d.SetOmega(0.5);
  d.SetTolerance(0.2);
  d.SetNumberImperfections(8);
  d.SetDirection(kmaC_DamageInitiation::DirectionEnm::TMORI);
  d.SetPosition(kmaC_DamageInitiation::PositionEnm::NODES);
  d.SetFeq(2.0);
  d.SetFnn(3.0);
  d.SetFnt(4.0);
  d.SetFrequency(5);
  d.SetTable(Table({{0.3, 0.33}}));
  if (withEvolution) d.SetDamageEvolutionList(One(ChangedEvolution()));
  return d;
}

// The damage initiation fields of each version, and what its steps fill in.
struct InitiationExpect {
  kmaC_DamageInitiation::DefinitionEnm definition = kmaC_DamageInitiation::DefinitionEnm::FLD;
  double omega = 0.5, tolerance = 0.2;
  int numberImperfections = 8;
  kmaC_DamageInitiation::DirectionEnm direction = kmaC_DamageInitiation::DirectionEnm::TMORI;
  kmaC_DamageInitiation::PositionEnm position = kmaC_DamageInitiation::PositionEnm::NODES;
  double feq = 2.0, fnn = 3.0, fnt = 4.0;
  int frequency = 5;
};

std::function<void(const kmaC_Material&)> InitiationIs(InitiationExpect x) {
  return [=](const kmaC_Material& m) {
    const auto& d = Option<kmaC_DamageInitiation>(m, "hashinDamageInitiation");
    EXPECT_EQ(d.GetDefinition(), x.definition);
    EXPECT_EQ(d.GetOmega(), x.omega);
    EXPECT_EQ(d.GetTolerance(), x.tolerance);
    EXPECT_EQ(d.GetNumberImperfections(), x.numberImperfections);
    EXPECT_EQ(d.GetDirection(), x.direction);
    EXPECT_EQ(d.GetPosition(), x.position);
    EXPECT_EQ(d.GetFeq(), x.feq);
    EXPECT_EQ(d.GetFnn(), x.fnn);
    EXPECT_EQ(d.GetFnt(), x.fnt);
    EXPECT_EQ(d.GetFrequency(), x.frequency);
    EXPECT_EQ(d.GetTable()(0, 1), 0.33);
    EXPECT_TRUE(d.GetDamageEvolutionList().empty());
  };
}

struct Case {
  const char* className;
  int version;
  std::vector<std::string> absent;  // the fields the old layout lacks
  std::function<void(kmaC_Material&)> stored;
  std::function<void(const kmaC_Material&)> check;  // on the upgraded material
};

TEST(KmaMullinsDamageUpgrade, OlderLayoutsReadBackWithTheFilledValues) {
  kmaT_Start();
  const std::string dir = qmx_TempDir("kma-mullins-damage-upgrade");
  const auto storeMullins = [](kmaC_Material& m) { m.SetOption("mullinsEffect", MullinsWithTests()); };
  const auto initiation = [](bool withEvolution) {
    return [=](kmaC_Material& m) { m.SetOption("hashinDamageInitiation", ChangedInitiation(withEvolution)); };
  };
  using Dir = kmaC_DamageInitiation::DirectionEnm;
  using Pos = kmaC_DamageInitiation::PositionEnm;
  const std::vector<std::string> since1801 = {"feq", "fnn", "fnt", "frequency", "DamageEvolutionList"};
  auto plus = [](std::vector<std::string> a, std::initializer_list<std::string> b) {
    a.insert(a.end(), b);
    return a;
  };
  const Case cases[] = {
      {"kmaC_UniaxialTestData", 203, {"lateralNominalStrain"}, storeMullins,
       [](const kmaC_Material& m) {
         const auto& u = First<kmaC_UniaxialTestData>(Option<kmaC_MullinsEffect>(m, "mullinsEffect").GetUniaxialTests());
         EXPECT_FALSE(u.GetLateralNominalStrain());
         EXPECT_EQ(u.GetSmoothing(), 3);
         // The others keep theirs.
         EXPECT_TRUE(First<kmaC_BiaxialTestData>(Option<kmaC_MullinsEffect>(m, "mullinsEffect").GetBiaxialTests())
                         .GetLateralNominalStrain());
       }},
      {"kmaC_BiaxialTestData", 203, {"lateralNominalStrain"}, storeMullins,
       [](const kmaC_Material& m) {
         const auto& b = First<kmaC_BiaxialTestData>(Option<kmaC_MullinsEffect>(m, "mullinsEffect").GetBiaxialTests());
         EXPECT_FALSE(b.GetLateralNominalStrain());
         EXPECT_EQ(b.GetSmoothing(), 4);
       }},
      {"kmaC_PlanarTestData", 203, {"lateralNominalStrain"}, storeMullins,
       [](const kmaC_Material& m) {
         const auto& p = First<kmaC_PlanarTestData>(Option<kmaC_MullinsEffect>(m, "mullinsEffect").GetPlanarTests());
         EXPECT_FALSE(p.GetLateralNominalStrain());
         EXPECT_EQ(p.GetSmoothing(), 5);
         EXPECT_EQ(p.GetTable()(0, 0), 3.0);
       }},
      {"kmaC_MullinsEffect", 850, {"uniaxialTests", "biaxialTests", "planarTests"},
       [](kmaC_Material& m) {
         kmaC_MullinsEffect o;
         o.SetTemperatureDependency(true);
         o.SetProperties(2);
         o.SetTable(Table({{2.0, 0.1, 0.2, 20.0}}));
         m.SetOption("mullinsEffect", o);
       },
       [](const kmaC_Material& m) {
         const auto& o = Option<kmaC_MullinsEffect>(m, "mullinsEffect");
         EXPECT_EQ(o.GetDefinition(), kmaC_MullinsEffect::DefinitionEnm::CONSTANTS);
         EXPECT_TRUE(o.GetTemperatureDependency());
         EXPECT_EQ(o.GetProperties(), 2);
         EXPECT_EQ(o.GetTable()(0, 3), 20.0);
         EXPECT_TRUE(o.GetUniaxialTests().empty());
         EXPECT_TRUE(o.GetBiaxialTests().empty());
         EXPECT_TRUE(o.GetPlanarTests().empty());
       }},
      {"kmaC_DamageEvolution", 869, {"modeMixRatio", "degradation", "failureIndex"}, initiation(true),
       [](const kmaC_Material& m) {
         const auto& d = Option<kmaC_DamageInitiation>(m, "hashinDamageInitiation");
         ASSERT_EQ(d.GetDamageEvolutionList().size(), 1u);
         const auto& e = First<kmaC_DamageEvolution>(d.GetDamageEvolutionList());
         EXPECT_EQ(e.GetModeMixRatio(), kmaC_DamageEvolution::ModeMixRatioEnm::ENERGY);
         EXPECT_EQ(e.GetDegradation(), kmaC_DamageEvolution::DegradationEnm::MAXIMUM);
         EXPECT_EQ(e.GetFailureIndex(), 1);
         EXPECT_EQ(e.GetType(), kmaC_DamageEvolution::TypeEnm::ENERGY);
         EXPECT_EQ(e.GetMixedModeBehavior(), kmaC_DamageEvolution::MixedModeBehaviorEnm::POWER_LAW);
         EXPECT_EQ(e.GetPower(), 2.0);
       }},
      {"kmaC_DamageEvolution", 883, {"failureIndex"}, initiation(true),
       [](const kmaC_Material& m) {
         const auto& e =
             First<kmaC_DamageEvolution>(Option<kmaC_DamageInitiation>(m, "hashinDamageInitiation").GetDamageEvolutionList());
         EXPECT_EQ(e.GetModeMixRatio(), kmaC_DamageEvolution::ModeMixRatioEnm::TRACTION);
         EXPECT_EQ(e.GetDegradation(), kmaC_DamageEvolution::DegradationEnm::MULTIPLICATIVE);
         EXPECT_EQ(e.GetFailureIndex(), 1);
         EXPECT_EQ(e.GetTable()(0, 0), 12.0);
       }},
      {"kmaC_DamageInitiation", 869,
       plus(since1801, {"omega", "tolerance", "numberImperfections", "direction", "position"}), initiation(false),
       InitiationIs({.omega = 1.0, .tolerance = 0.05, .numberImperfections = 4, .direction = Dir::NMORI,
                     .position = Pos::CENTROID, .feq = 10.0, .fnn = 10.0, .fnt = 10.0, .frequency = 1})},
      {"kmaC_DamageInitiation", 883, plus(since1801, {"tolerance", "numberImperfections", "direction", "position"}),
       initiation(false),
       InitiationIs({.tolerance = 0.05, .numberImperfections = 4, .direction = Dir::NMORI, .position = Pos::CENTROID,
                     .feq = 10.0, .fnn = 10.0, .fnt = 10.0, .frequency = 1})},
      {"kmaC_DamageInitiation", 1352, plus(since1801, {"direction", "position"}), initiation(false),
       InitiationIs({.direction = Dir::NMORI, .position = Pos::CENTROID, .feq = 10.0, .fnn = 10.0, .fnt = 10.0,
                     .frequency = 1})},
      {"kmaC_DamageInitiation", 1432, plus(since1801, {"position"}), initiation(false),
       InitiationIs({.position = Pos::CENTROID, .feq = 10.0, .fnn = 10.0, .fnt = 10.0, .frequency = 1})},
      {"kmaC_DamageInitiation", 1801, since1801, initiation(false),
       InitiationIs({.feq = 10.0, .fnn = 10.0, .fnt = 10.0, .frequency = 1})},
      {"kmaC_CrushStress", 2210, {"crushStressVelocityFactor"},
       [](kmaC_Material& m) {
         kmaC_CrushStress c;
         c.SetDependencies(1);
         c.SetTable(Table({{12.0, 0.5}}));
         m.SetOption("crushStress", c);
       },
       [](const kmaC_Material& m) {
         const auto& c = Option<kmaC_CrushStress>(m, "crushStress");
         EXPECT_FALSE(c.HasCrushStressVelocityFactor());
         EXPECT_EQ(c.GetDependencies(), 1);
         EXPECT_EQ(c.GetTable()(0, 1), 0.5);
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
    c.check(*back);
  }
}

TEST(KmaMullinsDamageUpgrade, TheExportedConvertersFillTheNewRow) {
  cls_Record old;
  old.fields.emplace_back("dependencies", std::int32_t{2});
  {
    cls_Record next = old;
    dbc_Row newRow(next);
    EXPECT_EQ(Upgrade_kmaC_CrushStress_2210_2218(dbc_Row(old), newRow, 0), nullptr);
    ASSERT_TRUE(newRow.Has(rfm_FieldHandle("crushStressVelocityFactor", -1)));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(newRow.Get(rfm_FieldHandle("crushStressVelocityFactor", -1))));
    EXPECT_EQ(newRow.GetInt(rfm_FieldHandle("dependencies", -1)), 2);
  }
  {
    cls_Record next = old;
    dbc_Row newRow(next);
    EXPECT_EQ(Upgrade_kmaC_DamageEvolution_883_2305(dbc_Row(old), newRow, 0), nullptr);
    EXPECT_EQ(newRow.GetInt(rfm_FieldHandle("failureIndex", -1)), 1);
  }
  {
    cls_Record next = old;
    dbc_Row newRow(next);
    EXPECT_EQ(Upgrade_kmaC_DamageInitiation_1801_2305(dbc_Row(old), newRow, 0), nullptr);
    const auto* list = std::get_if<std::vector<cls_RecordPtr>>(&newRow.Get(rfm_FieldHandle("DamageEvolutionList", -1)));
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->empty());
    EXPECT_EQ(newRow.GetInt(rfm_FieldHandle("frequency", -1)), 1);
  }
}

}  // namespace
