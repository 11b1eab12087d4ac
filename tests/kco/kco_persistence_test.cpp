// The registration of every constraint kind, reads through the family's root, and values of
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

struct Kind {
  const char* name;
  const char* script;
  unsigned row;
};

const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      {"kcoC_Tie", "Tie", 2},
      {"kcoC_Coupling", "Coupling", 3},
      {"kcoC_MPC", "MultipointConstraint", 4},
      {"kcoC_RigidBody", "RigidBody", 5},
      {"kcoC_Equation", "Equation", 6},
      {"kcoC_EmbeddedRegion", "EmbeddedRegion", 8},
      {"kcoC_ShellSolidCoupling", "ShellSolidCoupling", 9},
      {"kcoC_DisplayBody", "DisplayBody", 10},
      {"kcoC_DdbDisplayBody", "DdbDisplayBody", 11},
      {"kcoC_AdjustPoints", "AdjustPoints", 12},
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

TEST_F(KcoPersistence, EveryKindHasItsRowAndName) {
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
  }
  const cls_ClassMetadata* term = reg.ByName("kcoC_EquationTerm");
  ASSERT_NE(term, nullptr);
  EXPECT_EQ(term->TypeId(), (720u << 16) | 7u);
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
