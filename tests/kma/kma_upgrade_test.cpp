// Files whose material and plastic rows have older layouts open upgraded; the chains of steps are
// the stated ones.
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_Material_Versions.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_Plastic_Versions.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kma/kmaT_Support.h"

namespace {

// Steel whose plastic members all differ from what the converters fill in.
ddr_Database SteelDatabase() {
  ddr_Database db;
  db.CreateModel("Model-1");
  kmaC_Material m;
  m.SetDescription("Structural steel");
  m.SetMaterialIdentifier("S355");
  kmaC_Elastic e;
  e.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{210000.0, 0.3}}));
  m.SetElastic(e);
  kmaC_Plastic p;
  p.SetHardening(kmaC_Plastic::HardeningEnm::COMBINED);
  p.SetProperties(3);
  p.SetDataType(kmaC_Plastic::DataTypeEnm::PARAMETERS);
  p.SetStrainRangeDependency(true);
  p.SetNumBackstresses(3);
  p.SetScaleStress(2.0);
  p.SetStaticRecovery(true);
  p.SetExtrapolation(kmaC_Plastic::ExtrapolationEnm::LINEAR);
  p.SetTable(kmaC_MaterialTable(cow_2DArray<double>{{355.0, 0.0}}));
  m.SetPlastic(p);
  Materials(db).Insert("Steel", m);
  return db;
}

class KmaUpgrade : public ::testing::Test {
 protected:
  void SetUp() override {
    kmaT_Start();
    dir_ = qmx_TempDir("kma-upgrade");
  }
  std::string dir_;
};

TEST_F(KmaUpgrade, PlasticRowsOfEveryOlderVersionReadBackWithTheConvertersValues) {
  struct Case {
    int version;
    std::vector<std::string> absent;
  };
  const std::vector<std::string> all = {"properties", "dataType", "strainRangeDependency", "numBackstresses",
                                        "scaleStress", "staticRecovery", "extrapolation"};
  const Case cases[] = {
      {203, all},
      {419, {"dataType", "strainRangeDependency", "numBackstresses", "scaleStress", "staticRecovery", "extrapolation"}},
      {1107, {"scaleStress", "staticRecovery", "extrapolation"}},
      {2002, {"scaleStress", "staticRecovery", "extrapolation"}},
      {2008, {"extrapolation"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.version);
    ddr_Database db = SteelDatabase();
    const std::string file = dir_ + "/plastic-" + std::to_string(c.version) + ".odb";
    dbf_Save(db, file);
    kmaT_MakeOldLayout(file, "kmaC_Plastic", c.version, c.absent);

    ddr_Database expected = db;
    kmaC_Plastic& p = Materials(expected).Get("Steel").ModifyPlastic();
    auto absent = [&](const char* f) { return std::find(c.absent.begin(), c.absent.end(), f) != c.absent.end(); };
    if (absent("properties")) p.SetProperties(0);
    if (absent("dataType")) p.SetDataType(kmaC_Plastic::DataTypeEnm::HALF_CYCLE);
    if (absent("strainRangeDependency")) p.SetStrainRangeDependency(false);
    if (absent("numBackstresses")) p.SetNumBackstresses(1);
    if (absent("scaleStress")) p.SetScaleStress(1.7976931348623157e308);
    if (absent("staticRecovery")) p.SetStaticRecovery(false);
    if (absent("extrapolation")) p.SetExtrapolation(kmaC_Plastic::ExtrapolationEnm::CONSTANT);

    const ddr_Database upgraded = dbf_Open(file);
    EXPECT_TRUE(upgraded == expected);
    EXPECT_FALSE(upgraded == db);
  }
}

TEST_F(KmaUpgrade, MaterialRowsOfEveryOlderVersionReadBack) {
  // The step (from its version) that added each field that older layouts lack.
  const std::vector<std::pair<int, std::vector<std::string>>> added = {
      {1436, {"description"}},
      {1449, {"materialIdentifier"}},
      {1628, {"softRockPlasticity"}},
      {1853, {"superElasticity"}},
      {1857, {"meanFieldHomogenization"}},
      {2102, {"crushStress"}},
      {2210, {"plasticityCorrection"}},
      {2218, {"laRC05DamageInitiation"}},
      {2300, {"hosfordCoulombDamageInitiation"}},
      {2305, {"electrolyte", "electrode"}},
  };
  const int versions[] = {203,  212,  301,  849,  850,  869,  1053, 1106, 1352, 1400, 1411,
                          1436, 1449, 1628, 1853, 1857, 1901, 2102, 2210, 2218, 2300, 2305};
  for (int v : versions) {
    SCOPED_TRACE(v);
    std::vector<std::string> absent;
    for (const auto& [from, fields] : added)
      if (from >= v) absent.insert(absent.end(), fields.begin(), fields.end());
    ddr_Database db = SteelDatabase();
    const std::string file = dir_ + "/material-" + std::to_string(v) + ".odb";
    dbf_Save(db, file);
    kmaT_MakeOldLayout(file, "kmaC_Material", v, absent);

    ddr_Database expected = db;
    kmaC_Material& m = Materials(expected).Get("Steel");
    if (v <= 1436) m.SetDescription("");
    if (v <= 1449) m.SetMaterialIdentifier("");
    const ddr_Database upgraded = dbf_Open(file);
    EXPECT_TRUE(upgraded == expected);
  }
}

TEST(KmaVersions, EveryStepGoesToTheNextVersionAndOnlyFieldChangesBindAFunction) {
  kmaT_Start();
  dbc_DatabaseConverter steps;
  dbc_DatabaseConverter::CollectRegistered(steps);
  std::map<std::string, std::map<int, std::pair<int, bool>>> byClass;  // from -> (target, has function)
  for (const auto& [target, conv] : steps.Converters())
    for (const auto& s : conv->Steps())
      if (s->ClassName() == "kmaC_Material" || s->ClassName() == "kmaC_Plastic") {
        EXPECT_EQ(s->Target(), target);
        byClass[s->ClassName()][s->From()] = {s->Target(), s->Function() != nullptr};
      }
  const std::vector<int> material = {203,  212,  301,  849,  850,  869,  1053, 1106, 1352, 1400, 1411, 1436,
                                     1449, 1628, 1853, 1857, 1901, 2102, 2210, 2218, 2300, 2305, 2503};
  ASSERT_EQ(byClass["kmaC_Material"].size(), material.size() - 1);
  for (std::size_t i = 0; i + 1 < material.size(); ++i) EXPECT_EQ(byClass["kmaC_Material"][material[i]].first, material[i + 1]);
  const std::map<int, std::pair<int, bool>> plastic = {
      {203, {419, true}}, {419, {1107, true}}, {1107, {2002, false}}, {2002, {2008, true}}, {2008, {2217, true}}};
  EXPECT_EQ(byClass["kmaC_Plastic"], plastic);
  EXPECT_EQ(kmaC_Material_2218::kRetiredBy, 2300);
}

TEST(KmaVersions, TheExportedPlasticConvertersFillTheNewRow) {
  cls_Record old;
  old.fields.emplace_back("hardening", cow_String("KINEMATIC"));
  struct Case {
    void* (*fn)(const dbc_Row&, dbc_Row&, int);
    std::vector<std::pair<const char*, cls_Value>> filled;
  };
  const Case cases[] = {
      {&Upgrade_kmaC_Plastic_203_419, {{"properties", std::int32_t{0}}}},
      {&Upgrade_kmaC_Plastic_419_1107,
       {{"dataType", cow_String("HALF_CYCLE")}, {"strainRangeDependency", false}, {"numBackstresses", std::int32_t{1}}}},
      {&Upgrade_kmaC_Plastic_2002_2008,
       {{"scaleStress", std::numeric_limits<double>::max()}, {"staticRecovery", false}}},
      {&Upgrade_kmaC_Plastic_2008_2217, {{"extrapolation", cow_String("CONSTANT")}}},
  };
  for (const Case& c : cases) {
    cls_Record next = old;
    dbc_Row oldRow(static_cast<const cls_Record&>(old));
    dbc_Row newRow(next);
    EXPECT_EQ(c.fn(oldRow, newRow, 0), nullptr);
    for (const auto& [name, value] : c.filled) {
      SCOPED_TRACE(name);
      const cls_Value* got = next.Find(name);
      ASSERT_NE(got, nullptr);
      EXPECT_TRUE(cls_ValueEqual(*got, value));
    }
    EXPECT_EQ(std::get<cow_String>(*next.Find("hardening")), "KINEMATIC");  // the rest is kept
  }
}

}  // namespace

namespace {

TEST_F(KmaUpgrade, AFileWithAnOptionInTheWrongSlotIsRefusedWhole) {
  struct Case {
    const char* what;
    std::string sql;
    std::string expected;  // a part of the refusal
  };
  const std::string elasticId = std::to_string(kmaC_Elastic::TypeId());
  const std::string plasticId = std::to_string(kmaC_Plastic::TypeId());
  const Case cases[] = {
      {"swapped slots",
       "UPDATE kmaC_Material SET \"elastic#ClassID\" = " + plasticId + ", \"elastic#OID\" = (SELECT OID FROM kmaC_Plastic),"
       " \"plastic#ClassID\" = " + elasticId + ", \"plastic#OID\" = (SELECT OID FROM kmaC_Elastic)",
       "The option slot \"elastic\" holds a kmaC_Elastic, not a kmaC_Plastic"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const std::string file = dir_ + "/damaged.odb";
    dbf_Save(SteelDatabase(), file);
    kmaT_Edit(file, c.sql);
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); });
    EXPECT_NE(e.Message().find(c.expected), std::string::npos) << e.Message();
  }
}

}  // namespace
