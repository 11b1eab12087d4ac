#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kad/kadC_ACWrapper.h"
#include "kad/kadC_AdptMeshCtrl.h"
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
  // Enumerations are stored as their literals.
  EXPECT_EQ(std::get<cow_String>(*rec.Find("smoothingPriority")), "GRADED");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("remeshPredictor")), "PREVIOUS");
  EXPECT_EQ(std::get<double>(*rec.Find("meshConstraintAngle")), 45.0);
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

TEST_F(KadPersistence, ContainerSeparatesOnModification) {
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
  EXPECT_THROW(cont.Get("missing"), nex_CmdError);
}

}  // namespace
