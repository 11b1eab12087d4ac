// The constraint container in the model, its shortcuts and their refusals, copy-on-write and the
// change history.
#include <string>
#include <vector>

#include "kco/kcoC_CCWrapper.h"
#include "kco/kcoC_ConstraintContainerInModelShortcut.h"
#include "kco/kcoC_ConstraintContainerShortcut.h"
#include "kco/kcoC_ConstraintInConstraintContainerShortcut.h"
#include "kco/kcoC_ConstraintShortcut.h"
#include "kco/kcoC_Coupling.h"
#include "kco/kcoC_Tie.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_Record.h"
#include "tests/kco/kco_test.h"

namespace {

TEST(KcoShortcuts, EachShortcutAndContainerClassSitsAtTheRowOfItsTypeId) {
  struct Named {
    const char* name;
    unsigned typeId;
  };
  const Named classes[] = {
      {kcoC_ConstraintContainer::kClassName, kcoC_ConstraintContainer::TypeId()},
      {kcoC_ConstraintIMPLSC::kClassName, kcoC_ConstraintIMPLSC::TypeId()},
      {kcoC_ConstraintShortcut::kClassName, kcoC_ConstraintShortcut::TypeId()},
      {kcoC_ConstraintInConstraintContainerShortcut::kClassName, kcoC_ConstraintInConstraintContainerShortcut::TypeId()},
      {kcoC_ConstraintContainerIMPLSC::kClassName, kcoC_ConstraintContainerIMPLSC::TypeId()},
      {kcoC_ConstraintContainerShortcut::kClassName, kcoC_ConstraintContainerShortcut::TypeId()},
      {kcoC_ConstraintContainerInModelShortcut::kClassName, kcoC_ConstraintContainerInModelShortcut::TypeId()},
      {kcoC_CCWrapper::kClassName, kcoC_CCWrapper::TypeId()},
  };
  const typ_ArchCompEntry entry = kcoC_ArchEntry();
  for (const auto& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (720u << 16) | static_cast<unsigned>(row));
  }
}

class KcoContainer : public ::testing::Test {
 protected:
  void SetUp() override {
    kco_Start();
    kcoC_Tie tie;
    tie.SetMaster(rgnC_Region("Surf-A"));
    Constraints().Insert("Tie-1", tie);
    Constraints().Insert("Coupling-1", kcoC_Coupling());
    omu_ChangeHistory::Instance().Clear();
  }
  kcoC_ConstraintContainer& Constraints() {
    return dynamic_cast<kcoC_ConstraintContainer&>(*model.ModifyRepository("constraints"));
  }
  ddr_Model model;
};

TEST_F(KcoContainer, TheModelHoldsTheConstraintsUnderTheirScriptingName) {
  EXPECT_STREQ(Constraints().RepositoryName(), "constraints");
  EXPECT_EQ(Constraints().ElementClass().Name(), "kcoC_Constraint");
  EXPECT_EQ(Constraints().Keys(), (std::vector<cow_String>{"Coupling-1", "Tie-1"}));
  EXPECT_EQ(ddr_Model().FindRepository("constraints")->Count(), 0u);  // each model has its own
}

TEST_F(KcoContainer, AShortcutReachesItsConstraintAndSeparatesItOnModification) {
  const kcoC_ConstraintShortcut sc(kcoC_ConstraintInConstraintContainerShortcut("Tie-1"));
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"constraints", "Tie-1"}));
  const ddr_Model before = model;
  ASSERT_EQ(sc.ConstGet(model), sc.ConstGet(before));
  auto* tie = dynamic_cast<kcoC_Tie*>(&sc.Get(model));
  ASSERT_NE(tie, nullptr);
  tie->SetPositionTolerance(0.25);
  EXPECT_NE(sc.ConstGet(model), sc.ConstGet(before));
  EXPECT_EQ(dynamic_cast<const kcoC_Tie*>(sc.ConstGet(before))->GetPositionTolerance(), 0.0);
  EXPECT_EQ(dynamic_cast<const kcoC_Tie*>(sc.ConstGet(model))->GetPositionTolerance(), 0.25);
  const std::vector<omu_PrimTuple> expected = {{"kcoC_ConstraintContainer", "Modify", "Tie-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
}

TEST_F(KcoContainer, AMissingNameAndAnEmptyContainerAreRefusedWithTheModulesMessages) {
  const kcoC_ConstraintShortcut missing(kcoC_ConstraintInConstraintContainerShortcut("Nope"));
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  auto e = qmx_Catch<nex_PrimError>([&] { missing.Get(model); });
  EXPECT_EQ(e.Message(), "Constraint does not exist.");
  EXPECT_STREQ(e.File(), "QMXOdbKcoC.m/src/kcoC_assert");

  ddr_Model empty;
  auto e2 = qmx_Catch<nex_PrimError>([&] { missing.Get(empty); });
  EXPECT_EQ(e2.Message(), "The Cosntraint container is empty.");
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());
}

TEST_F(KcoContainer, ShortcutsAreRebuiltFromTheirRecords) {
  const kcoC_ConstraintShortcut sc(kcoC_ConstraintInConstraintContainerShortcut("Coupling-1"));
  const cls_Record rec = cls_ToRecord(sc);
  EXPECT_EQ(rec.typeId, (720u << 16) | 16u);
  const kcoC_ConstraintShortcut back = kcoC_ConstraintShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back, sc);
  EXPECT_NE(dynamic_cast<const kcoC_Coupling*>(back.ConstGet(model)), nullptr);

  const kcoC_ConstraintContainerShortcut cont(kcoC_ConstraintContainerInModelShortcut{});
  EXPECT_EQ(cont.ConstGet(model), &Constraints());
  EXPECT_EQ(kcoC_ConstraintContainerShortcut::Ctor(cls_RecordReader(cls_ToRecord(cont))), cont);
  cls_Record other = cls_ToRecord(cont);
  other.Set("repository", cow_String("profiles"));
  EXPECT_THROW(kcoC_ConstraintContainerShortcut::Ctor(cls_RecordReader(other)), nex_CmdError);
}

}  // namespace
