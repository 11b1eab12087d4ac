#include <string>
#include <vector>

#include "kbp/kbpC_BeamProfileContainer.h"
#include "kbp/kbpC_BoxProfile.h"
#include "kbp/kbpC_CbeamProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_HatProfile.h"
#include "kbp/kbpC_PipeProfile.h"
#include "kbp/kbpC_ProfileLabels.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "platform/base/bas_StartJournal.h"
#include "platform/persist/cls_Record.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/base/typ_ArchCompTable.h"
#include "tests/kbp/kbp_test.h"

namespace {

class KbpContainer : public ::testing::Test {
 protected:
  void SetUp() override {
    kbp_Start();
    omu_ChangeHistory::Instance().Clear();
  }
  static kbpC_BeamProfileContainer Sample() {
    kbpC_BeamProfileContainer c;
    kbpC_PipeProfile pipe;
    pipe.SetR(0.2);
    c.Insert("Pipe-1", pipe);
    c.Insert("Box-1", kbpC_BoxProfile());
    c.Insert("Gen-1", kbpC_GeneralizedProfile());
    return c;
  }
};

TEST_F(KbpContainer, ProfilesReadBackThroughTheContainerAsTheirOwnClasses) {
  kbpC_BeamProfileContainer c = Sample();
  cls_Record rec = cls_ToRecord(c);
  EXPECT_EQ(rec.typeId, (612u << 16) | 15u);
  kbpC_BeamProfileContainer back{cls_RecordReader(rec)};
  EXPECT_EQ(back, c);
  EXPECT_EQ(back.GetUid(), c.GetUid());
  ASSERT_EQ(back.Size(), 3u);
  auto* pipe = dynamic_cast<const kbpC_PipeProfile*>(back.ConstGet("Pipe-1"));
  ASSERT_NE(pipe, nullptr);
  EXPECT_EQ(pipe->GetR(), 0.2);
  EXPECT_EQ(*pipe, *dynamic_cast<const kbpC_PipeProfile*>(c.ConstGet("Pipe-1")));
  EXPECT_NE(dynamic_cast<const kbpC_BoxProfile*>(back.ConstGet("Box-1")), nullptr);
  EXPECT_NE(dynamic_cast<const kbpC_GeneralizedProfile*>(back.ConstGet("Gen-1")), nullptr);
  // the type-erased face names each element's own class
  const mdl_Repository& repo = back;
  EXPECT_STREQ(repo.RepositoryName(), "profiles");
  EXPECT_EQ(repo.ElementClass().Name(), "kbpC_BeamProfile");
  const cls_ClassMetadata* cls = nullptr;
  ASSERT_NE(repo.Find("Box-1", &cls), nullptr);
  EXPECT_EQ(cls->Name(), "kbpC_BoxProfile");
}

TEST_F(KbpContainer, CopiesShareProfilesUntilOneIsModified) {
  kbpC_BeamProfileContainer a = Sample();
  kbpC_BeamProfileContainer b = a;
  ASSERT_TRUE(a.FindHandle("Pipe-1")->SharesBodyWith(*b.FindHandle("Pipe-1")));
  omu_ChangeHistory::Instance().Clear();

  auto& pipe = dynamic_cast<kbpC_PipeProfile&>(b.Get("Pipe-1"));
  pipe.SetT(0.03);
  EXPECT_FALSE(a.FindHandle("Pipe-1")->SharesBodyWith(*b.FindHandle("Pipe-1")));
  EXPECT_TRUE(a.FindHandle("Box-1")->SharesBodyWith(*b.FindHandle("Box-1")));
  EXPECT_EQ(dynamic_cast<const kbpC_PipeProfile*>(a.ConstGet("Pipe-1"))->GetT(), 0.005);
  EXPECT_EQ(dynamic_cast<const kbpC_PipeProfile*>(b.ConstGet("Pipe-1"))->GetT(), 0.03);
  // the separated copy is still a pipe with the same identity
  EXPECT_EQ(b.ConstGet("Pipe-1")->GetUid(), a.ConstGet("Pipe-1")->GetUid());
  EXPECT_NE(a, b);
  const std::vector<omu_PrimTuple> expected = {{"kbpC_BeamProfileContainer", "Modify", "Pipe-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
}

TEST_F(KbpContainer, InsertRemoveAndRefusals) {
  kbpC_BeamProfileContainer c;
  c.Insert("R-1", kbpC_RectangularProfile());
  EXPECT_TRUE(c.Remove("R-1"));
  EXPECT_FALSE(c.Remove("R-1"));
  const std::vector<omu_PrimTuple> expected = {{"kbpC_BeamProfileContainer", "Insert", "R-1"},
                                               {"kbpC_BeamProfileContainer", "Remove", "R-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
  EXPECT_THROW(c.Insert("", kbpC_RectangularProfile()), nex_CmdError);
  auto e = qmx_Catch<nex_CmdError>([&] { c.Get("Nope"); });
  EXPECT_EQ(e.Message(), "There is no \"Nope\" in profiles");
  EXPECT_EQ(c.Size(), 0u);
}

TEST_F(KbpContainer, EveryModelHasAProfileRepository) {
  ddr_Model model;
  mdl_Repository* repo = model.ModifyRepository("profiles");
  ASSERT_NE(repo, nullptr);
  EXPECT_EQ(repo->ElementClass().Name(), "kbpC_BeamProfile");
  const cls_ClassMetadata* hat = cls_ClassRegistrar::Instance().ByScriptName("HatProfile");
  repo->InsertNew("Hat-1", hat->NewDefault());
  const cls_ClassMetadata* cls = nullptr;
  const void* found = model.FindRepository("profiles")->Find("Hat-1", &cls);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(cls, hat);
  // another model does not see it
  ddr_Model other;
  EXPECT_FALSE(other.FindRepository("profiles")->Contains("Hat-1"));
}

TEST_F(KbpContainer, DisplayLabels) {
  struct Row {
    unsigned typeId;
    const char* label;
  };
  const Row rows[] = {
      {kbpC_GeneralizedProfile::TypeId(), "Generalized"}, {(612u << 16) | 13u, "Arbitrary"},
      {kbpC_CircularProfile::TypeId(), "Circular"},       {(612u << 16) | 6u, "Hexagonal"},
      {kbpC_RectangularProfile::TypeId(), "Rectangular"}, {(612u << 16) | 7u, "Trapezoidal"},
      {kbpC_CbeamProfile::TypeId(), "Channel"},           {kbpC_PipeProfile::TypeId(), ""},
      {kbpC_HatProfile::TypeId(), ""},                    {0u, ""},
  };
  for (const auto& r : rows) EXPECT_STREQ(kbpC_DisplayLabel(r.typeId), r.label) << r.typeId;
  EXPECT_STREQ(kbpC_CbeamProfile().DisplayLabel(), "Channel");
  const kbpC_BeamProfile& box = kbpC_BoxProfile();
  EXPECT_STREQ(box.DisplayLabel(), "");
}

TEST(KbpModule, ArchitectureTableNamesEveryClassAtItsTypeId) {
  kbp_Start();
  const typ_ArchCompEntry* entry = typ_ArchCompTable::Find(612);
  ASSERT_NE(entry, nullptr);
  // the row count, the empty first row and the names are checked for every module elsewhere
  int registered = 0;
  for (int row = 1; row < entry->Count(); ++row) {
    if (const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(entry->Row(row).name)) {
      EXPECT_EQ(md->TypeId(), (612u << 16) | static_cast<unsigned>(row));
      ++registered;
    }
  }
  EXPECT_EQ(registered, 16);  // the root, thirteen kinds, the container and the wrapper
  EXPECT_EQ(entry->RowOf("kbpC_BeamProfileIMPSC"), 16);
  EXPECT_EQ(entry->RowOf("kbpC_BeamProfileContainerInModelShortcut"), 21);
}

TEST(KbpModule, StartsAndStopsCounted) {
  kbp_Start();
  const int base = QMXOdbKbpC_count();
  ASSERT_GE(base, 1);
  int tally = 0;
  QMXOdbKbpC_initialize(tally);
  EXPECT_EQ(tally, 0);  // already started: only the count moves
  EXPECT_EQ(QMXOdbKbpC_count(), base + 1);
  QMXOdbKbpC_finalize(tally);
  EXPECT_EQ(tally, 0);
  EXPECT_EQ(QMXOdbKbpC_count(), base);

  // bring it down to zero and back up: the repository goes and comes back
  const std::size_t mark = bas_StartJournal::Mark();
  for (int i = 0; i < base; ++i) QMXOdbKbpC_finalize(tally);
  EXPECT_EQ(tally, -1);
  EXPECT_EQ(QMXOdbKbpC_count(), 0);
  EXPECT_EQ(ddr_Model().FindRepository("profiles"), nullptr);
  std::size_t metadataCount = cls_ClassRegistrar::Instance().All().size();
  for (int i = 0; i < base; ++i) QMXOdbKbpC_initialize(tally);
  EXPECT_EQ(tally, 0);
  EXPECT_EQ(QMXOdbKbpC_count(), base);
  EXPECT_NE(ddr_Model().FindRepository("profiles"), nullptr);
  // a restart does not register the classes again
  EXPECT_EQ(cls_ClassRegistrar::Instance().All().size(), metadataCount);
  EXPECT_STREQ(kbpC_DisplayLabel(kbpC_CircularProfile::TypeId()), "Circular");
  const std::vector<std::string> journal = {"stop QMXOdbKbpC", "start QMXOdbKbpC", "register kbpC_BPCWrapper"};
  EXPECT_EQ(bas_StartJournal::Since(mark), journal);
}

}  // namespace
