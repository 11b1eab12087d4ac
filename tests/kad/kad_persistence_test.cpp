#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kad/kadC_ACWrapper.h"
#include "kad/kadC_AdptMeshCtrl.h"
#include "kad/kadC_AdptMeshCtrl_302.h"
#include "kad/kadC_AdptMeshCtrl_829.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "platform/base/omi_Singleton.h"
#include "tests/support/qmx_test.h"

namespace {

using Ctrl = kadC_AdptMeshCtrl;

class KadPersistence : public ::testing::Test {
 protected:
  void SetUp() override { qmx_StartLibrary(); }
};

TEST_F(KadPersistence, ControlWritesItsFourteenFieldsInOrderWithLiterals) {
  Ctrl c;
  c.SetSmoothingPriority(Ctrl::SmoothingPriorityEnm::GRADED);
  c.SetRemeshPredictor(Ctrl::RemeshPredictorEnm::PREVIOUS);
  c.SetMeshConstraintAngle(45);
  cls_Record rec = cls_ToRecord(c);
  EXPECT_EQ(rec.typeId, 0x02680001u);
  EXPECT_EQ(rec.uid, c.GetUid());
  const std::vector<std::string> order = {
      "advection",          "smoothingAlgorithm",        "smoothingPriority",
      "initialFeatureAngle", "transitionFeatureAngle",   "momentumAdvection",
      "remeshPredictor",    "curvatureRefinement",       "volumetricSmoothingWeight",
      "standardVolumetricSmoothingWeight", "laplacianSmoothingWeight", "equipotentialSmoothingWeight",
      "meshConstraintAngle", "originalConfigurationProjectionWeight"};
  ASSERT_EQ(rec.fields.size(), order.size());
  for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(rec.fields[i].first.str(), order[i]);
  EXPECT_EQ(std::get<cow_String>(*rec.Find("advection")), "SECOND_ORDER_ADVECTION");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("smoothingAlgorithm")), "ANALYSIS_PRODUCT_DEFAULT");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("smoothingPriority")), "GRADED");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("momentumAdvection")), "ELEMENT_CENTER_PROJECTION");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("remeshPredictor")), "PREVIOUS");
  EXPECT_EQ(std::get<double>(*rec.Find("meshConstraintAngle")), 45.0);
  Ctrl back{cls_RecordReader(rec)};
  EXPECT_EQ(back, c);
}

TEST_F(KadPersistence, DefaultsAreAsDocumented) {
  Ctrl c;
  EXPECT_EQ(c.GetAdvection(), Ctrl::AdvectionEnm::SECOND_ORDER_ADVECTION);
  EXPECT_EQ(c.GetSmoothingAlgorithm(), Ctrl::SmoothingAlgorithmEnm::ANALYSIS_PRODUCT_DEFAULT);
  EXPECT_EQ(c.GetSmoothingPriority(), Ctrl::SmoothingPriorityEnm::UNIFORM);
  EXPECT_EQ(c.GetInitialFeatureAngle(), 30.0);
  EXPECT_EQ(c.GetTransitionFeatureAngle(), 30.0);
  EXPECT_EQ(c.GetMomentumAdvection(), Ctrl::MomentumAdvectionEnm::ELEMENT_CENTER_PROJECTION);
  EXPECT_EQ(c.GetRemeshPredictor(), Ctrl::RemeshPredictorEnm::CURRENT);
  EXPECT_EQ(c.GetCurvatureRefinement(), 1.0);
  EXPECT_EQ(c.GetVolumetricSmoothingWeight(), 1.0);
  EXPECT_EQ(c.GetStandardVolumetricSmoothingWeight(), 0.0);
  EXPECT_EQ(c.GetLaplacianSmoothingWeight(), 0.0);
  EXPECT_EQ(c.GetEquipotentialSmoothingWeight(), 0.0);
  EXPECT_EQ(c.GetOriginalConfigurationProjectionWeight(), 1.0);
  EXPECT_EQ(c.GetMeshConstraintAngle(), 60.0);
  kadC_AdptMeshDomain d;
  EXPECT_EQ(d.GetFrequency(), 10);
  EXPECT_EQ(d.GetInitialRemeshingSweeps(), 2147483647);
  EXPECT_EQ(d.GetSweepsPerIncrement(), 1);
  EXPECT_TRUE(d.GetControls().empty());
}

TEST_F(KadPersistence, EnumerationLiteralTables) {
  auto literals = [](const omu_EnumLiteral* t) {
    std::vector<std::string> out;
    for (int i = 0; t[i].text; ++i) {
      EXPECT_EQ(t[i].value, i);
      out.push_back(t[i].text);
    }
    return out;
  };
  using V = std::vector<std::string>;
  EXPECT_EQ(literals(Ctrl::kAdvectionLiterals), (V{"FIRST_ORDER_ADVECTION", "SECOND_ORDER_ADVECTION"}));
  EXPECT_EQ(literals(Ctrl::kSmoothingAlgorithmLiterals), (V{"STANDARD", "GEOMETRY_ENHANCED", "ANALYSIS_PRODUCT_DEFAULT"}));
  EXPECT_EQ(literals(Ctrl::kSmoothingPriorityLiterals), (V{"UNIFORM", "GRADED"}));
  EXPECT_EQ(literals(Ctrl::kMomentumAdvectionLiterals), (V{"ELEMENT_CENTER_PROJECTION", "HALF_INDEX_SHIFT"}));
  EXPECT_EQ(literals(Ctrl::kRemeshPredictorLiterals), (V{"CURRENT", "PREVIOUS"}));
  EXPECT_EQ(literals(Ctrl::kAutomaticLiterals), (V{"AUTOMATIC", "FACTOR"}));
  using Automatic = omu_PrimEnum<Ctrl::AutomaticEnm, 1>;
  EXPECT_EQ(Automatic(cow_String("FACTOR")).GetValue(), Ctrl::AutomaticEnm::FACTOR);
}

// A row laid out as version 302 stored it: no projection or standard volumetric weight.
cls_Record Row302(const char* algorithm) {
  cls_Record rec = cls_ToRecord(Ctrl());
  rec.Remove("originalConfigurationProjectionWeight");
  rec.Remove("standardVolumetricSmoothingWeight");
  rec.Set("smoothingAlgorithm", cow_String(algorithm));
  rec.Set("laplacianSmoothingWeight", 0.25);
  return rec;
}

TEST_F(KadPersistence, UpgradeFrom302ThroughTheRegisteredSteps) {
  dbc_UpgradeDriver driver;  // every registered old class version
  struct Case {
    const char* stored;
    Ctrl::SmoothingAlgorithmEnm read;
  };
  const Case cases[] = {
      {"GEOMETRY_ENHANCED", Ctrl::SmoothingAlgorithmEnm::ANALYSIS_PRODUCT_DEFAULT},
      {"STANDARD", Ctrl::SmoothingAlgorithmEnm::STANDARD},
      {"ANALYSIS_PRODUCT_DEFAULT", Ctrl::SmoothingAlgorithmEnm::ANALYSIS_PRODUCT_DEFAULT},
  };
  for (const auto& c : cases) {
    cls_Record row = Row302(c.stored);
    driver.Upgrade("kadC_AdptMeshCtrl", 302, 860, row);
    Ctrl read{cls_RecordReader(row)};
    EXPECT_EQ(read.GetSmoothingAlgorithm(), c.read) << c.stored;
    EXPECT_EQ(read.GetOriginalConfigurationProjectionWeight(), 1.0);
    EXPECT_EQ(read.GetStandardVolumetricSmoothingWeight(), 0.0);
    EXPECT_EQ(read.GetLaplacianSmoothingWeight(), 0.25);  // untouched fields come through
  }
  // Without the upgrade the old row does not read: the new fields are missing.
  cls_Record raw = Row302("STANDARD");
  EXPECT_THROW(Ctrl{cls_RecordReader(raw)}, nex_CmdError);
  // From 829 only the second step runs: "GEOMETRY_ENHANCED" stored at 829 is kept.
  cls_Record row829 = Row302("GEOMETRY_ENHANCED");
  driver.Upgrade("kadC_AdptMeshCtrl", 829, 860, row829);
  EXPECT_EQ(Ctrl{cls_RecordReader(row829)}.GetSmoothingAlgorithm(), Ctrl::SmoothingAlgorithmEnm::GEOMETRY_ENHANCED);
}

TEST_F(KadPersistence, OldVersionDescriptorsDeclareTheirSteps) {
  dbc_DatabaseConverter conv;
  kadC_AdptMeshCtrl_302().SchemaChanges(conv);
  kadC_AdptMeshCtrl_829().SchemaChanges(conv);
  ASSERT_EQ(conv.Converters().size(), 2u);
  const auto& to829 = *conv.Converters().at(829)->Steps().at(0);
  EXPECT_EQ(to829.ClassName(), "kadC_AdptMeshCtrl");
  EXPECT_EQ(to829.TypeId(), Ctrl::TypeId());
  EXPECT_EQ(to829.From(), 302);
  EXPECT_EQ(to829.Function(), &Upgrade_kadC_AdptMeshCtrl_302);
  const auto& to860 = *conv.Converters().at(860)->Steps().at(0);
  EXPECT_EQ(to860.From(), 829);
  EXPECT_EQ(to860.Function(), &Upgrade_kadC_AdptMeshCtrl_829);
}

TEST_F(KadPersistence, MetadataOfTheControl) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("kadC_AdptMeshCtrl");
  ASSERT_NE(md, nullptr);
  EXPECT_EQ(md->Version(), 860);
  EXPECT_EQ(md->TypeId(), Ctrl::TypeId());
  EXPECT_STREQ(md->ScriptName(), "AdaptiveMeshControl");
  for (const auto& a : md->Attributes()) {
    bool isEnum = a.handle.Name() == "advection" || a.handle.Name() == "smoothingAlgorithm" ||
                  a.handle.Name() == "smoothingPriority" || a.handle.Name() == "momentumAdvection" ||
                  a.handle.Name() == "remeshPredictor";
    EXPECT_EQ(a.type, isEnum ? 14 : 10) << a.handle.Name();
    EXPECT_EQ(a.count, 1);
    EXPECT_EQ(a.collection, 0);
  }
}

TEST_F(KadPersistence, ContainerSeparatesOnModificationAndRoundTrips) {
  kadC_AdptMeshCtrlCont cont;
  Ctrl c;
  cont.Insert("Ctrl-10", c);
  cont.Insert("Ctrl-2", c);
  EXPECT_EQ(cont.Keys(), (std::vector<cow_String>{"Ctrl-2", "Ctrl-10"}));  // natural order
  kadC_AdptMeshCtrlCont copy = cont;
  EXPECT_TRUE(copy.FindHandle("Ctrl-2")->SharesBodyWith(*cont.FindHandle("Ctrl-2")));
  auto& history = omu_ChangeHistory::Instance();
  std::size_t mark = history.Size();
  copy.Get("Ctrl-2").SetMeshConstraintAngle(10);
  ASSERT_EQ(history.Size(), mark + 1);
  EXPECT_EQ(history.Entries().back(), (omu_PrimTuple{"kadC_AdptMeshCtrlCont", "Modify", "Ctrl-2"}));
  EXPECT_EQ(cont.ConstGet("Ctrl-2")->GetMeshConstraintAngle(), 60.0);
  EXPECT_EQ(copy.ConstGet("Ctrl-2")->GetMeshConstraintAngle(), 10.0);
  EXPECT_TRUE(copy.FindHandle("Ctrl-10")->SharesBodyWith(*cont.FindHandle("Ctrl-10")));

  kadC_ACWrapper wrapper(copy);
  cls_Record rec = cls_ToRecord(wrapper);
  kadC_ACWrapper back{cls_RecordReader(rec)};
  EXPECT_TRUE(back == wrapper);
  EXPECT_EQ(back.Extension().ConstGet("Ctrl-2")->GetMeshConstraintAngle(), 10.0);
  EXPECT_THROW(cont.Get("missing"), nex_CmdError);
}

}  // namespace
