// The registration of every engineering feature kind with its scripting name, and every kind
// through the database file inside its container of the model's engineering features.
#include <map>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kef/kefC_EngineeringFeatures.h"
#include "kef/kefC_PointMassInertia.h"
#include "kef/kefC_TypeLabelMap.h"
#include "kef/kefC_XFEMCrack.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Family.h"
#include "tests/kco/kco_fill.h"
#include "tests/kef/kef_test.h"

namespace {

struct Kind {
  const char* name;
  const char* script;
  const char* root;
  const char* container;  // its container's scripting name
  unsigned row;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kefC_PointFastener", "PointFastener", "kefC_Fastener", "fasteners", 8},
      {"kefC_DiscreteFastener", "DiscreteFastener", "kefC_Fastener", "fasteners", 9},
      {"kefC_AssembledFastener", "AssembledFastener", "kefC_Fastener", "fasteners", 10},
      {"kefC_ContourIntegral", "ContourIntegral", "kefC_Crack", "cracks", 12},
      {"kefC_XFEMCrack", "XFEMCrack", "kefC_Crack", "cracks", 13},
      {"kefC_DebondVCCT", "DebondVCCT", "kefC_Crack", "cracks", 14},
      {"kefC_PointMassInertia", "PointMassInertia", "kefC_Inertia", "inertias", 16},
      {"kefC_NonstructuralMass", "NonstructuralMass", "kefC_Inertia", "inertias", 17},
      {"kefC_HeatCapacitance", "HeatCapacitance", "kefC_Inertia", "inertias", 18},
      {"kefC_SpringToGround", "SpringDashpotToGround", "kefC_Spring", "springDashpots", 20},
      {"kefC_TwoPointSpring", "TwoPointSpringDashpot", "kefC_Spring", "springDashpots", 21},
      {"kefC_FileImperfection", "FileImperfection", "kefC_Imperfection", "imperfections", 23},
      {"kefC_InputImperfection", "InputImperfection", "kefC_Imperfection", "imperfections", 24},
      {"kefC_DataImperfection", "DataImperfection", "kefC_Imperfection", "imperfections", 25},
  };
  return kinds;
}

class KefPersistence : public ::testing::Test {
 protected:
  void SetUp() override { kef_Start(); }
};

TEST_F(KefPersistence, EveryKindHasItsRowScriptingNameAndRoot) {
  auto& reg = cls_ClassRegistrar::Instance();
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata* md = reg.ByScriptName(k.script);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->Name(), k.name);
    EXPECT_EQ(md->TypeId(), (844u << 16) | k.row);
    EXPECT_EQ(kefC_ArchEntry().RowOf(k.name), static_cast<int>(k.row));
    EXPECT_STREQ(md->RootName(), k.root);
    EXPECT_TRUE(md->IsA(*reg.ByName(k.root)));
  }
  struct Root {
    const char* name;
    unsigned row;
    const char* script;
  };
  for (const Root& r : {Root{"kefC_Fastener", 7, "Fastener"}, Root{"kefC_Crack", 11, ""}, Root{"kefC_Inertia", 15, ""},
                        Root{"kefC_Spring", 19, "SpringDashpot"}, Root{"kefC_Imperfection", 22, ""}}) {
    SCOPED_TRACE(r.name);
    const cls_ClassMetadata* md = reg.ByName(r.name);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->TypeId(), (844u << 16) | r.row);
    EXPECT_STREQ(md->ScriptName(), r.script);
    EXPECT_FALSE(md->CanConstruct());
  }
  const cls_ClassMetadata* features = reg.ByName("kefC_EngineeringFeatures");
  ASSERT_NE(features, nullptr);
  EXPECT_EQ(features->TypeId(), (844u << 16) | 1u);
  const char* const containers[] = {"kefC_InertiaContainer", "kefC_FastenerContainer", "kefC_CrackContainer",
                                    "kefC_SpringContainer", "kefC_ImperfectionContainer"};
  for (unsigned i = 0; i < 5; ++i) {
    ASSERT_NE(reg.ByName(containers[i]), nullptr) << containers[i];
    EXPECT_EQ(reg.ByName(containers[i])->TypeId(), (844u << 16) | (i + 2)) << containers[i];
  }
}

TEST_F(KefPersistence, FeaturesOfEveryKindComeBackFromTheFileInTheirContainers) {
  const std::string dir = qmx_TempDir("kef-file");
  ddr_Database db;
  ddr_Model& model = db.CreateModel("Model-1");
  const cls_ClassMetadata* cls = nullptr;
  auto* features = static_cast<kefC_EngineeringFeatures*>(static_cast<mdl_Extension*>(model.ModifyObject("engineeringFeatures", &cls)));
  ASSERT_NE(features, nullptr);
  EXPECT_EQ(cls->Name(), "kefC_EngineeringFeatures");
  const std::map<std::string, mdl_Repository*> repos = {
      {"inertias", &features->GetInertiaContainer()},   {"fasteners", &features->GetFastenerContainer()},
      {"cracks", &features->GetCrackContainer()},       {"springDashpots", &features->GetSpringContainer()},
      {"imperfections", &features->GetImperfectionContainer()}};
  for (const Kind& k : Kinds()) {
    const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByName(k.name);
    mdl_Repository* repo = repos.at(k.container);
    EXPECT_STREQ(repo->RepositoryName(), k.container);
    void* filled = md.NewDefault();
    kco_FillAway(filled, md);
    repo->InsertNew(cow_String(std::string(k.script) + "-filled"), filled);
    repo->InsertNew(cow_String(std::string(k.script) + "-default"), md.NewDefault());
  }
  EXPECT_EQ(features->GetFastenerContainer().Size(), 6u);
  EXPECT_EQ(features->GetImperfectionContainer().Size(), 6u);
  dbf_Save(db, dir + "/features.odb");
  ddr_Database back = dbf_Open(dir + "/features.odb");
  EXPECT_TRUE(back == db);
  const auto* read = static_cast<const kefC_EngineeringFeatures*>(
      static_cast<const mdl_Extension*>(back.FindModel("Model-1")->FindObject("engineeringFeatures")));
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->GetUid(), features->GetUid());
  EXPECT_EQ(read->GetInertiaContainer().Size(), 6u);
  const auto& pm = dynamic_cast<const kefC_PointMassInertia&>(*read->GetInertiaContainer().ConstGet("PointMassInertia-filled"));
  EXPECT_EQ(pm.GetMass3(), 0.75);
  EXPECT_EQ(pm.GetCsys(), "X-localCsys");
}

TEST_F(KefPersistence, LabelsFollowTheListedOrder) {
  const std::vector<std::string> expected = {
      "Point mass/inertia", "Nonstructural mass", "Heat capacitance", "Contour integral", "Debond using VCCT",
      "Connect points to ground (Standard)", "Connect two points", "Point-based", "Discrete", "Assembled",
      "File Imperfection", "Input Imperfection", "Data Imperfection"};
  std::vector<std::string> labels;
  for (const auto& [id, label] : kefC_TypeLabelMap::Instance().Entries()) labels.emplace_back(label);
  EXPECT_EQ(labels, expected);
  EXPECT_STREQ(kefC_PointMassInertia().DisplayLabel(), "Point mass/inertia");
  EXPECT_STREQ(kefC_XFEMCrack().DisplayLabel(), "");
}

}  // namespace
