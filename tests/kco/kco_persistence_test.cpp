// The registered layout of every constraint kind, reads through the family's root, and values of
// their own kind through the database file.
#include <filesystem>
#include <string>
#include <vector>

#include "dbfile/dbf_File.h"
#include "kco/kcoC_CCWrapper.h"
#include "kco/kcoC_Constraint.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "kco/kcoC_ConstraintTypeLabelMap.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_Equation.h"
#include "kco/kcoC_RigidBody.h"
#include "kco/kcoC_Tie.h"
#include "platform/model/ddr_Database.h"
#include "platform/persist/cls_Family.h"
#include "tests/kco/kco_fill.h"
#include "tests/kco/kco_test.h"

namespace {

enum : int { I = 5, D = 10, S = 11, B = 13, E = 14, R = 16, OL = 21 };

struct Kind {
  const char* name;
  const char* script;
  unsigned row;
  std::vector<kco_Field> fields;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kcoC_Tie", "Tie", 2,
       {{"suppress", 0, B, "suppress"}, {"master", 1, R, "master"}, {"slave", 2, R, "slave"}, {"adjust", 3, B, "adjust"},
        {"positionTolerance", 4, D, "positionTolerance"}, {"tieRotations", 5, B, "tieRotations"},
        {"positionToleranceMethod", 6, E, "positionToleranceMethod"}, {"constraintRatioMethod", 7, E, "constraintRatioMethod"},
        {"constraintRatio", 8, D, "constraintRatio"}, {"constraintEnforcement", 9, E, "constraintEnforcement"},
        {"thickness", 10, B, "thickness"}, {"tiedNset", 11, R, "tiedNset"}, {"cyclicSymmetry", 12, B, "cyclicSymmetry"},
        {"tieTemperature", 13, B, "tieTemperature"}, {"tiePore", 14, B, "tiePore"},
        {"electricPotential", 15, B, "electricPotential"}, {"fluidElectricPotential", 16, B, "fluidElectricPotential"},
        {"ionConcentration", 17, B, "ionConcentration"}}},
      {"kcoC_Coupling", "Coupling", 3,
       {{"suppress", 0, B, "suppress"}, {"surface", 1, R, "surface"}, {"refPoint", 2, R, "refPoint"},
        {"influenceRadius", 3, D, "influenceRadius"}, {"couplingType", 4, E, "couplingType"}, {"csys", 5, S, "localCsys"},
        {"u1", 6, B, "u1"}, {"u2", 7, B, "u2"}, {"u3", 8, B, "u3"}, {"ur1", 9, B, "ur1"}, {"ur2", 10, B, "ur2"},
        {"ur3", 11, B, "ur3"}, {"weightingMethod", 12, E, "weightingMethod"}, {"couplingNodes", 13, R, "couplingNodes"},
        {"adjust", 14, B, "adjust"}, {"alpha", 15, D, "alpha"}, {"rotationalCouplingType", 16, E, "rotationalCouplingType"},
        {"uniformConstraint", 17, E, "uniformConstraint"}, {"temperatureDOFType", 18, I, "temperatureDOFType"}}},
      {"kcoC_MPC", "MultipointConstraint", 4,
       {{"suppress", 0, B, "suppress"}, {"surface", 1, R, "surface"}, {"refPoint", 2, R, "refPoint"}, {"csys", 3, S, "csys"},
        {"mpcType", 4, E, "mpcType"}, {"userMode", 5, E, "userMode"}, {"userType", 6, I, "userType"}}},
      {"kcoC_RigidBody", "RigidBody", 5,
       {{"suppress", 0, B, "suppress"}, {"refPointRegion", 1, R, "refPointRegion"}, {"bodyRegion", 2, R, "bodyRegion"},
        {"tieRegion", 3, R, "tieRegion"}, {"pinRegion", 4, R, "pinRegion"}, {"surfaceRegion", 5, R, "surfaceRegion"},
        {"refPointAtCOM", 6, B, "refPointAtCOM"}, {"isothermal", 7, B, "isothermal"}}},
      {"kcoC_Equation", "Equation", 6, {{"suppress", 0, B, "suppress"}, {"terms", 1, OL, "terms"}}},
      {"kcoC_EmbeddedRegion", "EmbeddedRegion", 8,
       {{"suppress", 0, B, "suppress"}, {"embeddedRegion", 1, R, "embeddedRegion"}, {"hostRegion", 2, R, "hostRegion"},
        {"toleranceMethod", 3, E, "toleranceMethod"}, {"absoluteTolerance", 4, D, "absoluteTolerance"},
        {"fractionalTolerance", 5, D, "fractionalTolerance"}, {"weightFactorTolerance", 6, D, "weightFactorTolerance"}}},
      {"kcoC_ShellSolidCoupling", "ShellSolidCoupling", 9,
       {{"suppress", 0, B, "suppress"}, {"shellEdge", 1, R, "shellEdge"}, {"solidFace", 2, R, "solidFace"},
        {"positionToleranceMethod", 3, E, "positionToleranceMethod"}, {"positionTolerance", 4, D, "positionTolerance"},
        {"influenceDistanceMethod", 5, E, "influenceDistanceMethod"}, {"influenceDistance", 6, D, "influenceDistance"}}},
      {"kcoC_DisplayBody", "DisplayBody", 10,
       {{"suppress", 0, B, "suppress"}, {"instanceId", 1, I, "instanceId"}, {"_dot1", 2, R, "_dot1"},
        {"_dot2", 3, R, "_dot2"}, {"_dot3", 4, R, "_dot3"}}},
      {"kcoC_DdbDisplayBody", "DdbDisplayBody", 11,
       {{"suppress", 0, B, "suppress"}, {"instanceName", 1, S, "instanceName"}, {"node1Label", 2, I, "node1Label"},
        {"node1InstanceName", 3, S, "node1InstanceName"}, {"node2Label", 4, I, "node2Label"},
        {"node2InstanceName", 5, S, "node2InstanceName"}, {"node3Label", 6, I, "node3Label"},
        {"node3InstanceName", 7, S, "node3InstanceName"}}},
      {"kcoC_AdjustPoints", "AdjustPoints", 12,
       {{"suppress", 0, B, "suppress"}, {"surface", 1, R, "surface"}, {"controlPoints", 2, R, "controlPoints"}}},
  };
  return kinds;
}

cls_RecordPtr TermRecord() {
  return std::make_shared<const cls_Record>(cls_ToRecord(kcoC_EquationTerm(-2.5, "Nodes-7", 3, 1)));
}

class KcoPersistence : public ::testing::Test {
 protected:
  void SetUp() override { kco_Start(); }
};

TEST_F(KcoPersistence, EveryKindHasItsRowNameAndLayout) {
  auto& reg = cls_ClassRegistrar::Instance();
  const cls_ClassMetadata* root = reg.ByName("kcoC_Constraint");
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->TypeId(), (720u << 16) | 1u);
  EXPECT_FALSE(root->CanConstruct());
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata* md = reg.ByScriptName(k.script);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->Name(), k.name);
    EXPECT_EQ(md->TypeId(), (720u << 16) | k.row);
    EXPECT_EQ(kcoC_ArchEntry().RowOf(k.name), static_cast<int>(k.row));
    EXPECT_STREQ(md->RootName(), "kcoC_Constraint");
    EXPECT_TRUE(md->IsA(*root));
    kco_ExpectLayout(*md, k.fields);
  }
  const cls_ClassMetadata* term = reg.ByName("kcoC_EquationTerm");
  ASSERT_NE(term, nullptr);
  EXPECT_EQ(term->TypeId(), (720u << 16) | 7u);
  kco_ExpectLayout(*term, {{"coefficient", 0, D, "coefficient"}, {"setName", 1, S, "setName"}, {"dof", 2, I, "dof"},
                           {"coordSysId", 3, I, "coordSysId"}});
}

// The generic tests read each class as itself and round-trip every class through a file; what is
// left is reading through the family's root and the values of a kind of their own in a file.
TEST_F(KcoPersistence, EveryKindReadsThroughTheFamilyRoot) {
  for (const Kind& k : Kinds()) {
    SCOPED_TRACE(k.name);
    const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByName(k.name);
    kco_Owned plain(md, md.NewDefault());
    cls_RecordWriter w;
    md.Write(plain.obj, w);
    const cls_Record rec = w.Take();
    auto* back = cls_NewFromReader<kcoC_Constraint>(cls_RecordReader(rec));
    kco_Owned owned(md, back);
    EXPECT_EQ(back->ClassTypeId(), md.TypeId());
    EXPECT_TRUE(md.Equal(back, plain.obj));
  }
}

TEST_F(KcoPersistence, AWholeSurfaceAndEquationTermsComeBackFromTheFile) {
  const std::string dir = qmx_TempDir("kco-file");
  ddr_Database db;
  auto& constraints = dynamic_cast<kcoC_ConstraintContainer&>(*db.CreateModel("Model-1").ModifyRepository("constraints"));
  const cls_ClassMetadata& md = *cls_ClassRegistrar::Instance().ByName("kcoC_Equation");
  void* filled = md.NewDefault();
  kco_FillAway(filled, md, TermRecord());
  constraints.InsertNew("Equation-filled", filled);
  kcoC_Coupling whole;  // the whole surface is a value of its own
  whole.SetInfluenceRadius(kcoC_InfluenceRadiusEnm::WHOLE_SURFACE);
  constraints.Insert("Whole", whole);
  dbf_Save(db, dir + "/constraints.odb");
  ddr_Database back = dbf_Open(dir + "/constraints.odb");
  EXPECT_TRUE(back == db);
  const auto& read = dynamic_cast<const kcoC_ConstraintContainer&>(*back.FindModel("Model-1")->FindRepository("constraints"));
  EXPECT_TRUE(dynamic_cast<const kcoC_Coupling&>(*read.ConstGet("Whole")).IsWholeSurface());
  const auto& eq = dynamic_cast<const kcoC_Equation&>(*read.ConstGet("Equation-filled"));
  ASSERT_EQ(eq.GetTerms().size(), 2u);
  EXPECT_EQ(eq.GetTerms()[1].Get().GetSetName(), "Nodes-7");
  EXPECT_EQ(eq.GetTerms()[1].Get().GetDof(), 3);
  EXPECT_EQ(eq.GetTerms()[1].Get().GetCoefficient(), -2.5);
}

TEST_F(KcoPersistence, AnUnknownStoredLiteralIsRefusedNotRepaired) {
  kcoC_Tie tie;
  cls_Record rec = cls_ToRecord(tie);
  rec.Set("constraintEnforcement", cow_String("surface_to_surface"));
  auto e = qmx_Catch<nex_CmdError>([&] { cls_NewFromReader<kcoC_Constraint>(cls_RecordReader(rec)); });
  EXPECT_EQ(e.Message(), "omu_PrimEnum(const cow_String&) - str not allowed: surface_to_surface  Permissible: "
                         "SOLVER_DEFAULT, NODE_TO_SURFACE, SURFACE_TO_SURFACE");
}

TEST_F(KcoPersistence, LabelsFollowTheListedOrder) {
  const std::vector<std::string> expected = {"Equation",        "Tie",          "Rigid body",
                                             "Coupling",        "Adjust points", "Embedded region",
                                             "Display body",    "Shell-to-solid coupling", "MPC Constraint"};
  std::vector<std::string> labels;
  for (const auto& [id, label] : kcoC_ConstraintTypeLabelMap::Instance().Entries()) labels.emplace_back(label);
  EXPECT_EQ(labels, expected);
  EXPECT_STREQ(kcoC_Tie().DisplayLabel(), "Tie");
  EXPECT_STREQ(kcoC_RigidBody().DisplayLabel(), "Rigid body");
  EXPECT_STREQ(kcoC_ConstraintTypeLabelMap::Instance().Label(kcoC_EquationTerm::TypeId()), "");
}

}  // namespace
