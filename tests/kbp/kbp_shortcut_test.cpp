#include <string>
#include <vector>

#include "kad/kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut.h"
#include "kad/kadC_AdptMeshCtrlShortcut.h"
#include "kbp/kbpC_BPCWrapper.h"
#include "kbp/kbpC_BeamProfileContainerInModelShortcut.h"
#include "kbp/kbpC_BeamProfileContainerShortcut.h"
#include "kbp/kbpC_BeamProfileInBeamProfileContainerShortcut.h"
#include "kbp/kbpC_BeamProfileShortcut.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_TbeamProfile.h"
#include "platform/persist/cls_Record.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/base/typ_ArchCompTable.h"
#include "tests/kbp/kbp_test.h"

namespace {

TEST(KbpShortcuts, EachShortcutClassSitsAtTheRowOfItsTypeId) {
  struct Named {
    const char* name;
    unsigned typeId;
  };
  const Named classes[] = {
      {kbpC_BeamProfileIMPSC::kClassName, kbpC_BeamProfileIMPSC::TypeId()},
      {kbpC_BeamProfileShortcut::kClassName, kbpC_BeamProfileShortcut::TypeId()},
      {kbpC_BeamProfileInBeamProfileContainerShortcut::kClassName,
       kbpC_BeamProfileInBeamProfileContainerShortcut::TypeId()},
      {kbpC_BeamProfileContainerIMPLSC::kClassName, kbpC_BeamProfileContainerIMPLSC::TypeId()},
      {kbpC_BeamProfileContainerShortcut::kClassName, kbpC_BeamProfileContainerShortcut::TypeId()},
      {kbpC_BeamProfileContainerInModelShortcut::kClassName, kbpC_BeamProfileContainerInModelShortcut::TypeId()},
      {kbpC_BPCWrapper::kClassName, kbpC_BPCWrapper::TypeId()},
  };
  const typ_ArchCompEntry entry = kbpC_ArchEntry();
  for (const auto& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (612u << 16) | static_cast<unsigned>(row));
  }
}

class KbpShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    kbp_Start();
    kbpC_PipeProfile pipe;
    pipe.SetR(0.3);
    Profiles().Insert("Pipe-1", pipe);
    Profiles().Insert("T-1", kbpC_TbeamProfile());
    omu_ChangeHistory::Instance().Clear();
  }
  kbpC_BeamProfileContainer& Profiles() {
    return dynamic_cast<kbpC_BeamProfileContainer&>(*model.ModifyRepository("profiles"));
  }
  ddr_Model model;
};

TEST_F(KbpShortcut, ReachesTheProfileAsItsOwnKindAndSeparatesOnModification) {
  const kbpC_BeamProfileShortcut sc(kbpC_BeamProfileInBeamProfileContainerShortcut("Pipe-1"));
  EXPECT_EQ(sc.Name(), "Pipe-1");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"profiles", "Pipe-1"}));
  const ddr_Model before = model;
  ASSERT_EQ(sc.ConstGet(model), sc.ConstGet(before));  // the copy shares the profile
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());

  auto* pipe = dynamic_cast<kbpC_PipeProfile*>(&sc.Get(model));
  ASSERT_NE(pipe, nullptr);
  pipe->SetT(0.02);
  EXPECT_NE(sc.ConstGet(model), sc.ConstGet(before));
  EXPECT_EQ(dynamic_cast<const kbpC_PipeProfile*>(sc.ConstGet(model))->GetT(), 0.02);
  EXPECT_EQ(dynamic_cast<const kbpC_PipeProfile*>(sc.ConstGet(before))->GetT(), 0.005);
  EXPECT_EQ(sc.ConstGet(model)->GetUid(), sc.ConstGet(before)->GetUid());
  const std::vector<omu_PrimTuple> expected = {{"kbpC_BeamProfileContainer", "Modify", "Pipe-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
}

TEST_F(KbpShortcut, MissingProfilesAndEmptyShortcutsAreRefused) {
  const kbpC_BeamProfileShortcut missing(kbpC_BeamProfileInBeamProfileContainerShortcut("Nope"));
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  auto e = qmx_Catch<nex_CmdError>([&] { missing.Get(model); });
  EXPECT_STREQ(e.what(), "There is no \"Nope\" in profiles");
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());
  const kbpC_BeamProfileShortcut empty;
  auto e2 = qmx_Catch<nex_CmdError>([&] { empty.ConstGet(model); });
  EXPECT_STREQ(e2.what(), "An empty shortcut to a kbpC_BeamProfile addresses nothing");
}

TEST_F(KbpShortcut, WritesItsPathAndIsRebuiltFromTheRecord) {
  const kbpC_BeamProfileShortcut sc(kbpC_BeamProfileInBeamProfileContainerShortcut("T-1"));
  const cls_Record rec = cls_ToRecord(sc);
  EXPECT_EQ(rec.typeId, (612u << 16) | 18u);
  const kbpC_BeamProfileShortcut back = kbpC_BeamProfileShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back, sc);
  EXPECT_NE(back, kbpC_BeamProfileShortcut(kbpC_BeamProfileInBeamProfileContainerShortcut("Pipe-1")));
  EXPECT_EQ(back.GetImpl().GetUid(), sc.GetImpl().GetUid());
  EXPECT_EQ(cls_ToRecord(back), rec);
  EXPECT_NE(dynamic_cast<const kbpC_TbeamProfile*>(back.ConstGet(model)), nullptr);

  const kbpC_BeamProfileContainerShortcut cont(kbpC_BeamProfileContainerInModelShortcut{});
  EXPECT_EQ(cont.Path(), (std::vector<cow_String>{"profiles"}));
  EXPECT_EQ(cont.ConstGet(model), &Profiles());
  EXPECT_EQ(kbpC_BeamProfileContainerShortcut::Ctor(cls_RecordReader(cls_ToRecord(cont))), cont);
}

TEST_F(KbpShortcut, RefusesRecordsOfAnotherKind) {
  const cls_Record kad = cls_ToRecord(kadC_AdptMeshCtrlShortcut(kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut("C-1")));
  EXPECT_THROW(kbpC_BeamProfileShortcut::Ctor(cls_RecordReader(kad)), nex_CmdError);
  cls_Record cont = cls_ToRecord(kbpC_BeamProfileContainerShortcut(kbpC_BeamProfileContainerInModelShortcut{}));
  cont.Set("repository", cow_String("adaptiveMeshControls"));
  EXPECT_THROW(kbpC_BeamProfileContainerShortcut::Ctor(cls_RecordReader(cont)), nex_CmdError);
  // a profile shortcut record is not a container shortcut
  const cls_Record elem = cls_ToRecord(kbpC_BeamProfileShortcut(kbpC_BeamProfileInBeamProfileContainerShortcut("T-1")));
  EXPECT_THROW(kbpC_BeamProfileContainerShortcut::Ctor(cls_RecordReader(elem)), nex_CmdError);
}

}  // namespace
