// The registered layout of every engineering feature kind with its scripting names, and every kind
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

enum : int { I = 5, D = 10, S = 11, B = 13, E = 14, O = 15, R = 16, T = 17, IL = 18, DL = 19, SL = 20, RL = 22 };

struct Kind {
  const char* name;
  const char* script;
  const char* root;
  const char* container;  // its container's scripting name
  unsigned row;
  std::vector<kco_Field> fields;
};

const std::vector<kco_Field> kFastener = {
    {"suppress", 0, B, "suppress"},         {"region", 1, R, "region"},
    {"csys", 2, S, "csys"},                 {"ur1", 3, B, "ur1"},
    {"ur2", 4, B, "ur2"},                   {"ur3", 5, B, "ur3"},
    {"influenceRadius", 6, D, "influenceRadius"}, {"weightingMethod", 7, E, "weightingMethod"},
    {"coupling", 8, E, "coupling"},         {"rotCoupling", 9, E, "rotationalCoupling"}};
const std::vector<kco_Field> kSpring = {
    {"springStiffness", 0, D, "springStiffness"}, {"applySpring", 1, B, "applySpring"},
    {"dashpotCoeff", 2, D, "dashpotCoefficient"}, {"applyDashpot", 3, B, "applyDashpot"},
    {"dof1", 4, I, "dof1"},                       {"dof2", 5, I, "dof2"},
    {"csys", 6, S, "localCsys"},                  {"suppress", 7, B, "suppress"}};

std::vector<kco_Field> Plus(std::vector<kco_Field> base, const std::vector<kco_Field>& own) {
  base.insert(base.end(), own.begin(), own.end());
  return base;
}

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kefC_PointFastener", "PointFastener", "kefC_Fastener", "fasteners", 8,
       Plus(kFastener, {{"targetSurface", 10, R, "targetSurface"}, {"targetSurfaces", 11, RL, "targetSurfaces"},
                        {"directionVector", 12, DL, "directionVector"}, {"searchRadius", 13, D, "searchRadius"},
                        {"maximumLayers", 14, I, "maximumLayers"}, {"adjustOrientation", 15, B, "adjustOrientation"},
                        {"unsorted", 16, B, "unsorted"}, {"physicalRadius", 17, D, "physicalRadius"},
                        {"additionalMass", 18, D, "additionalMass"}, {"connectionType", 19, E, "connectionType"},
                        {"attachmentMethod", 20, E, "attachmentMethod"}, {"sectionName", 21, S, "sectionName"},
                        {"connectorOrientationLocalCsys1", 22, S, "connectorOrientationLocalCsys1"},
                        {"connectorOrientationLocalCsys2", 23, S, "connectorOrientationLocalCsys2"},
                        {"connectorOrientation2sameAs1", 24, B, "connectorOrientationOrient2sameAs1"},
                        {"connectorOrientationAngle1", 25, D, "connectorOrientationAngle1"},
                        {"connectorOrientationAngle2", 26, D, "connectorOrientationAngle2"},
                        {"connectorOrientationAxis1", 27, E, "connectorOrientationAxis1"},
                        {"connectorOrientationAxis2", 28, E, "connectorOrientationAxis2"}})},
      {"kefC_DiscreteFastener", "DiscreteFastener", "kefC_Fastener", "fasteners", 9,
       Plus(kFastener, {{"connectionType", 10, E, "adherend"}})},
      {"kefC_AssembledFastener", "AssembledFastener", "kefC_Fastener", "fasteners", 10,
       Plus(kFastener, {{"templateModel", 10, S, "templateModel"}, {"controlSet", 11, S, "controlSet"},
                        {"propertyPrefix", 12, S, "propertyPrefix"}, {"templateSurfaces", 13, SL, "templateSurfaces"},
                        {"assignedSurfaces", 14, SL, "assignedSurfaces"}, {"orientMethod", 15, E, "orientMethod"},
                        {"scriptName", 16, S, "scriptName"}, {"flipNormal", 17, B, "flipNormal"}})},
      {"kefC_ContourIntegral", "ContourIntegral", "kefC_Crack", "cracks", 12,
       {{"symmetric", 1, B, "symmetric"}, {"crackFront", 2, R, "crackFront"}, {"crackTip", 3, R, "crackTip"},
        {"extensionVectorMethod", 4, E, "extensionDirectionMethod"}, {"crackNormal", 5, DL, "crackNormal"},
        {"qVectors", 6, T, "qVectors"}, {"midNodePosition", 7, D, "midNodePosition"},
        {"collapsedElementAtTip", 8, E, "collapsedElementAtTip"}, {"suppress", 0, B, "suppress"}}},
      {"kefC_XFEMCrack", "XFEMCrack", "kefC_Crack", "cracks", 13,
       {{"crackDomain", 1, R, "crackDomain"}, {"crackLocation", 2, R, "crackLocation"},
        {"allowCrackGrowth", 3, B, "allowCrackGrowth"}, {"singularityCalcRadius", 4, D, "singularityCalcRadius"},
        {"interactionProperty", 5, S, "interactionProperty"}, {"elemId", 6, IL, "elemId"}, {"nodeId", 7, IL, "nodeId"},
        {"hasCrackFront", 8, IL, "hasCrackFront"}, {"crackPlaneDist", 9, DL, "crackPlaneDist"},
        {"crackFrontDist", 10, DL, "crackFrontDist"}, {"suppress", 0, B, "suppress"},
        {"autoDetectValue", 11, B, "autoDetectValue"}}},
      {"kefC_DebondVCCT", "DebondVCCT", "kefC_Crack", "cracks", 14,
       {{"stepName", 1, S, "initiationStep"}, {"surfToSurfInteraction", 2, S, "surfToSurfInteraction"},
        {"debondingForceAmp", 3, E, "debondingForceAmplitude"}, {"printFreqVal", 4, I, "printToDATFrequency"},
        {"suppress", 0, B, "suppress"}}},
      {"kefC_PointMassInertia", "PointMassInertia", "kefC_Inertia", "inertias", 16,
       {{"region", 1, R, "region"}, {"mass", 2, D, "mass"}, {"i11", 3, D, "i11"}, {"i22", 4, D, "i22"},
        {"i33", 5, D, "i33"}, {"i12", 6, D, "i12"}, {"i13", 7, D, "i13"}, {"i23", 8, D, "i23"},
        {"csys", 9, S, "localCsys"}, {"alpha", 10, D, "alpha"}, {"composite", 11, D, "composite"},
        {"suppress", 0, B, "suppress"}, {"mass1", 12, D, "mass1"}, {"mass2", 13, D, "mass2"}, {"mass3", 14, D, "mass3"}}},
      {"kefC_NonstructuralMass", "NonstructuralMass", "kefC_Inertia", "inertias", 17,
       {{"region", 1, R, "region"}, {"units", 2, E, "units"}, {"magnitude", 3, D, "magnitude"},
        {"distribution", 4, E, "distribution"}, {"suppress", 0, B, "suppress"}}},
      {"kefC_HeatCapacitance", "HeatCapacitance", "kefC_Inertia", "inertias", 18,
       {{"region", 1, R, "region"}, {"temperatureDependency", 2, B, "temperatureDependency"},
        {"dependencies", 3, I, "dependencies"}, {"table", 4, T, "table"}, {"suppress", 0, B, "suppress"}}},
      {"kefC_SpringToGround", "SpringDashpotToGround", "kefC_Spring", "springDashpots", 20,
       Plus(kSpring, {{"region", 8, R, "region"}})},
      {"kefC_TwoPointSpring", "TwoPointSpringDashpot", "kefC_Spring", "springDashpots", 21,
       Plus(kSpring, {{"regionPairs", 8, RL, "regionPairs"}, {"axis", 9, E, "axis"}})},
      {"kefC_FileImperfection", "FileImperfection", "kefC_Imperfection", "imperfections", 23,
       {{"suppress", 0, B, "suppress"}, {"resultsFile", 1, S, "resultsFile"}, {"step", 2, I, "step"},
        {"increment", 3, I, "increment"}, {"imperfectionRegion", 4, R, "imperfectionRegion"},
        {"modeNumbers", 5, IL, "modeNumbers"}, {"scalingFactors", 6, DL, "scalingFactors"}}},
      {"kefC_InputImperfection", "InputImperfection", "kefC_Imperfection", "imperfections", 24,
       {{"inputFile", 1, S, "inputFile"}, {"system", 2, E, "system"}, {"suppress", 0, B, "suppress"}}},
      {"kefC_DataImperfection", "DataImperfection", "kefC_Imperfection", "imperfections", 25,
       {{"imperfectionTable", 1, T, "imperfectionTable"}, {"nodeNumbers", 2, IL, "nodeNumbers"},
        {"system", 3, E, "system"}, {"suppress", 0, B, "suppress"}}},
  };
  return kinds;
}

class KefPersistence : public ::testing::Test {
 protected:
  void SetUp() override { kef_Start(); }
};

TEST_F(KefPersistence, EveryKindHasItsRowScriptingNamesAndLayout) {
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
    kco_ExpectLayout(*md, k.fields);
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
  kco_ExpectLayout(*features, {{"inertiaContainer", 0, O, "inertias"},
                               {"fastenerContainer", 1, O, "fasteners"},
                               {"crackContainer", 2, O, "cracks"},
                               {"springContainer", 3, O, "springDashpots"},
                               {"imperfectionContainer", 4, O, "imperfections"}});
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
