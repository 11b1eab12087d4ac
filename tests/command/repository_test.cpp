#include <gtest/gtest.h>

#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/persist/cls_Record.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/support/qmx_test.h"

namespace {

using Ctrl = kadC_AdptMeshCtrl;
using Entries = std::vector<omu_PrimTuple>;

Ctrl WithAngle(double a) {
  Ctrl c;
  c.SetInitialFeatureAngle(a);
  return c;
}

class RepositoryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    cmdT_Register();
    omu_ChangeHistory::Instance().Clear();
  }
  const Entries& Journal() { return omu_ChangeHistory::Instance().Entries(); }
};

TEST_F(RepositoryTest, EachRepositoryJournalsInsertModifyAndRemove) {
  kadC_AdptMeshCtrlCont byName;
  byName.Insert("B", Ctrl());
  byName.Get("B").SetCurvatureRefinement(2);
  EXPECT_FALSE(byName.Remove("A"));  // nothing removed, nothing recorded
  EXPECT_TRUE(byName.Remove("B"));

  cmdT_NumberedControls byNumber;
  byNumber.Insert(-4, Ctrl());
  byNumber.Get(-4).SetCurvatureRefinement(2);
  EXPECT_FALSE(byNumber.Remove(5));
  EXPECT_TRUE(byNumber.Remove(-4));

  cmdT_DomainList list;
  list.Append(kadC_AdptMeshDomain());
  list.Insert(0, kadC_AdptMeshDomain());
  list.Get(1).SetFrequency(3);
  EXPECT_FALSE(list.Remove(2));
  EXPECT_TRUE(list.Remove(0));

  EXPECT_EQ(Journal(), (Entries{{"kadC_AdptMeshCtrlCont", "Insert", "B"},
                                {"kadC_AdptMeshCtrlCont", "Modify", "B"},
                                {"kadC_AdptMeshCtrlCont", "Remove", "B"},
                                {"cmdT_NumberedControls", "Insert", "-4"},
                                {"cmdT_NumberedControls", "Modify", "-4"},
                                {"cmdT_NumberedControls", "Remove", "-4"},
                                {"cmdT_DomainList", "Insert", "0"},
                                {"cmdT_DomainList", "Insert", "0"},
                                {"cmdT_DomainList", "Modify", "1"},
                                {"cmdT_DomainList", "Remove", "0"}}));
  EXPECT_EQ(list.ConstGet(0)->GetFrequency(), 3);
}

TEST_F(RepositoryTest, ModifyingAMissingElementIsRefusedAndNotJournaled) {
  kadC_AdptMeshCtrlCont byName;
  cmdT_NumberedControls byNumber;
  cmdT_DomainList list;
  list.Append(kadC_AdptMeshDomain());
  omu_ChangeHistory::Instance().Clear();
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { byName.Get("X"); }).what(), "There is no \"X\" in adaptiveMeshControls");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { byNumber.Get(3); }).what(), "There is no \"3\" in numberedControls");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { list.Get(1); }).what(), "There is no element 1 in domainList, which holds 1");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { list.Get(-1); }).what(), "There is no element -1 in domainList, which holds 1");
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { list.Insert(2, kadC_AdptMeshDomain()); }).what(),
               "An element of domainList can go at positions 0 to 1, not 2");
  EXPECT_TRUE(Journal().empty());
}

// A copied model shares its containers and their elements; modifying one element through the
// copy separates that element only.
TEST_F(RepositoryTest, ACopiedModelSharesElementsUntilOneIsModified) {
  ddr_Model model;
  auto& controls = dynamic_cast<kadC_AdptMeshCtrlCont&>(*model.ModifyRepository("adaptiveMeshControls"));
  controls.Insert("A", WithAngle(1));
  controls.Insert("B", WithAngle(2));
  auto& numbered = dynamic_cast<cmdT_NumberedControls&>(*model.ModifyRepository("numberedControls"));
  numbered.Insert(1, WithAngle(1));
  numbered.Insert(2, WithAngle(2));
  auto& list = dynamic_cast<cmdT_DomainList&>(*model.ModifyRepository("domainList"));
  list.Append(kadC_AdptMeshDomain());
  list.Append(kadC_AdptMeshDomain());

  ddr_Model copy = model;
  auto repo = [](const ddr_Model& m, const char* name) { return m.FindRepository(name); };
  EXPECT_EQ(repo(copy, "adaptiveMeshControls"), repo(model, "adaptiveMeshControls"));  // one container body

  auto& c2 = dynamic_cast<kadC_AdptMeshCtrlCont&>(*copy.ModifyRepository("adaptiveMeshControls"));
  auto& n2 = dynamic_cast<cmdT_NumberedControls&>(*copy.ModifyRepository("numberedControls"));
  auto& l2 = dynamic_cast<cmdT_DomainList&>(*copy.ModifyRepository("domainList"));
  EXPECT_NE(&c2, &controls);  // the containers separated, their elements did not
  EXPECT_TRUE(c2.FindHandle("A")->SharesBodyWith(*controls.FindHandle("A")));
  EXPECT_EQ(n2.ConstGet(1), numbered.ConstGet(1));
  EXPECT_EQ(l2.ConstGet(0), list.ConstGet(0));

  c2.Get("A").SetInitialFeatureAngle(10);
  n2.Get(1).SetInitialFeatureAngle(10);
  l2.Get(0).SetFrequency(7);
  EXPECT_EQ(controls.ConstGet("A")->GetInitialFeatureAngle(), 1);
  EXPECT_EQ(c2.ConstGet("A")->GetInitialFeatureAngle(), 10);
  EXPECT_TRUE(c2.FindHandle("B")->SharesBodyWith(*controls.FindHandle("B")));
  EXPECT_EQ(numbered.ConstGet(1)->GetInitialFeatureAngle(), 1);
  EXPECT_EQ(n2.ConstGet(2), numbered.ConstGet(2));
  EXPECT_EQ(list.ConstGet(0)->GetFrequency(), 10);
  EXPECT_EQ(l2.ConstGet(0)->GetFrequency(), 7);
  EXPECT_NE(l2.ConstGet(0), list.ConstGet(0));
  EXPECT_EQ(l2.ConstGet(1), list.ConstGet(1));
}

TEST_F(RepositoryTest, RoundTripThroughARecordKeepsKeysOrderAndUids) {
  cmdT_NumberedControls numbered;
  numbered.Insert(10, WithAngle(10));
  numbered.Insert(-3, WithAngle(3));
  const cmdT_NumberedControls n2(cls_RecordReader(cls_ToRecord(numbered)));
  EXPECT_TRUE(n2 == numbered);
  EXPECT_EQ(n2.Keys(), (std::vector<cow_String>{"-3", "10"}));

  cmdT_DomainList list;
  for (int f : {3, 1, 2}) {
    kadC_AdptMeshDomain d;
    d.SetFrequency(f);
    list.Append(d);
  }
  const cmdT_DomainList l2(cls_RecordReader(cls_ToRecord(list)));
  EXPECT_TRUE(l2 == list);
  EXPECT_EQ(l2.ConstGet(0)->GetFrequency(), 3);
  EXPECT_EQ(l2.ConstGet(2)->GetFrequency(), 2);
  EXPECT_FALSE(l2 == cmdT_DomainList());
}

TEST_F(RepositoryTest, DamagedRecordsAreRefused) {
  cmdT_NumberedControls numbered;
  numbered.Insert(1, Ctrl());
  numbered.Insert(2, Ctrl());
  cls_Record rec = cls_ToRecord(numbered);

  cls_Record fewerKeys = rec;
  fewerKeys.Set("keys", std::vector<std::int32_t>{1});
  cls_Record twice = rec;
  twice.Set("keys", std::vector<std::int32_t>{1, 1});
  cls_Record nullElement = rec;
  nullElement.Set("values", std::vector<cls_RecordPtr>{nullptr, nullptr});
  cls_Record foreign = rec;
  foreign.Set("values", std::vector<cls_RecordPtr>{std::make_shared<cls_Record>(cls_ToRecord(kadC_AdptMeshDomain())),
                                                   std::make_shared<cls_Record>(cls_ToRecord(Ctrl()))});
  struct Case {
    const cls_Record* rec;
    const char* message;
  };
  const Case cases[] = {
      {&fewerKeys, "The stored container cmdT_NumberedControls has 1 keys for 2 elements"},
      {&twice, "The stored container cmdT_NumberedControls holds the key 1 twice"},
      {&nullElement, "The stored container cmdT_NumberedControls holds a null element"},
      {&foreign, "A record of type id 40370178 cannot be read as kadC_AdptMeshCtrl"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.message);
    EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { cmdT_NumberedControls bad{cls_RecordReader(*c.rec)}; }).what(), c.message);
  }
  cls_Record listRec = cls_ToRecord(cmdT_DomainList());
  listRec.Set("values", std::vector<cls_RecordPtr>{nullptr});
  EXPECT_STREQ(qmx_Catch<nex_CmdError>([&] { cmdT_DomainList bad{cls_RecordReader(listRec)}; }).what(),
               "The stored list cmdT_DomainList holds a null element");
}

}  // namespace
