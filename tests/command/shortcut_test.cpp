#include <gtest/gtest.h>

#include "kad/QMXOdbKadC.h"
#include "kad/kadC_AdptMeshCtrlContInModelShortcut.h"
#include "kad/kadC_AdptMeshCtrlContShortcut.h"
#include "kad/kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut.h"
#include "kad/kadC_AdptMeshCtrlShortcut.h"
#include "kad/kadC_AdptMeshDomContShortcut.h"
#include "kad/kadC_AdptMeshDomainInAdptMeshDomContShortcut.h"
#include "kad/kadC_AdptMeshDomainShortcut.h"
#include "platform/persist/cls_Record.h"
#include "command/cmd_Path.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/command/cmdT_Holder.h"
#include "tests/support/qmx_test.h"

namespace {

using Ctrl = kadC_AdptMeshCtrl;

struct Named {
  const char* name;
  unsigned typeId;
};

TEST(KadShortcuts, TypeIdsAreTheRowsOfTheArchitectureTable) {
  const Named classes[] = {
      {kadC_AdptMeshCtrlIMPLSC::kClassName, kadC_AdptMeshCtrlIMPLSC::TypeId()},
      {kadC_AdptMeshCtrlShortcut::kClassName, kadC_AdptMeshCtrlShortcut::TypeId()},
      {kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut::kClassName, kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut::TypeId()},
      {kadC_AdptMeshCtrlContIMPLSC::kClassName, kadC_AdptMeshCtrlContIMPLSC::TypeId()},
      {kadC_AdptMeshCtrlContShortcut::kClassName, kadC_AdptMeshCtrlContShortcut::TypeId()},
      {kadC_AdptMeshCtrlContInModelShortcut::kClassName, kadC_AdptMeshCtrlContInModelShortcut::TypeId()},
      {kadC_AdptMeshDomainIMPLSC::kClassName, kadC_AdptMeshDomainIMPLSC::TypeId()},
      {kadC_AdptMeshDomainShortcut::kClassName, kadC_AdptMeshDomainShortcut::TypeId()},
      {kadC_AdptMeshDomainInAdptMeshDomContShortcut::kClassName,
       kadC_AdptMeshDomainInAdptMeshDomContShortcut::TypeId()},
      {kadC_AdptMeshDomContIMPLSC::kClassName, kadC_AdptMeshDomContIMPLSC::TypeId()},
      {kadC_AdptMeshDomContShortcut::kClassName, kadC_AdptMeshDomContShortcut::TypeId()},
  };
  const typ_ArchCompEntry entry = kadC_ArchEntry();
  for (const auto& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (616u << 16) | static_cast<unsigned>(row));
  }
}

class ShortcutTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Controls().Insert("C-1", Ctrl());
    Controls().Insert("C-2", Ctrl());
    omu_ChangeHistory::Instance().Clear();
  }
  kadC_AdptMeshCtrlCont& Controls() {
    return dynamic_cast<kadC_AdptMeshCtrlCont&>(*model.ModifyRepository("adaptiveMeshControls"));
  }
  cmdT_Registered registered;
  ddr_Model model;
};

TEST_F(ShortcutTest, APathThatNamesNothing) {
  const kadC_AdptMeshCtrlShortcut missing(kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut("C-9"));
  EXPECT_EQ(missing.Name(), "C-9");
  EXPECT_EQ(missing.Path(), (std::vector<cow_String>{"adaptiveMeshControls", "C-9"}));
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  auto e = qmx_Catch<nex_CmdError>([&] { missing.Get(model); });
  EXPECT_STREQ(e.what(), "There is no \"C-9\" in adaptiveMeshControls");
  EXPECT_EQ(omu_ChangeHistory::Instance().Size(), 0u);

  const kadC_AdptMeshCtrlShortcut empty;
  EXPECT_TRUE(empty.IsNull());
  auto e2 = qmx_Catch<nex_CmdError>([&] { empty.ConstGet(model); });
  EXPECT_STREQ(e2.what(), "An empty shortcut to a kadC_AdptMeshCtrl addresses nothing");
}

TEST_F(ShortcutTest, WritesItsPathAndIsRebuiltFromTheRecord) {
  const kadC_AdptMeshCtrlShortcut sc(kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut("C-2"));
  const cls_Record rec = cls_ToRecord(sc);
  EXPECT_EQ(rec.typeId, (616u << 16) | 7u);
  ASSERT_NE(rec.Find("key"), nullptr);
  EXPECT_EQ(std::get<cow_String>(*rec.Find("key")), "C-2");
  const auto& owner = std::get<cls_RecordPtr>(*rec.Find("owner"));
  ASSERT_TRUE(owner);
  EXPECT_EQ(owner->typeId, (616u << 16) | 15u);
  EXPECT_EQ(std::get<cow_String>(*owner->Find("repository")), "adaptiveMeshControls");

  const kadC_AdptMeshCtrlShortcut back = kadC_AdptMeshCtrlShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back, sc);
  EXPECT_NE(back, kadC_AdptMeshCtrlShortcut(kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut("C-1")));
  EXPECT_EQ(back.GetImpl().GetUid(), sc.GetImpl().GetUid());
  EXPECT_EQ(cls_ToRecord(back), rec);
  EXPECT_EQ(back.ConstGet(model), Controls().ConstGet("C-2"));

  const kadC_AdptMeshCtrlContShortcut cont(kadC_AdptMeshCtrlContInModelShortcut{});
  EXPECT_EQ(cont.ConstGet(model), &Controls());
  EXPECT_EQ(kadC_AdptMeshCtrlContShortcut::Ctor(cls_RecordReader(cls_ToRecord(cont))), cont);
}

TEST_F(ShortcutTest, RefusesRecordsOfAnotherKind) {
  struct Case {
    const char* what;
    cls_Record rec;
    std::function<void(const cls_Record&)> read;
    const char* message;
  };
  cls_Record wrongRepo = cls_ToRecord(kadC_AdptMeshCtrlContShortcut(kadC_AdptMeshCtrlContInModelShortcut{}));
  wrongRepo.Set("repository", cls_Value(cow_String("materials")));
  const Case cases[] = {
      {"a control read as a shortcut", cls_ToRecord(Ctrl()),
       [](const cls_Record& r) { kadC_AdptMeshCtrlShortcut::Ctor(cls_RecordReader(r)); },
       "A record of type id 40370177 is not a shortcut that kadC_AdptMeshCtrlShortcut can hold"},
      {"a container shortcut read as a control shortcut",
       cls_ToRecord(kadC_AdptMeshCtrlContShortcut(kadC_AdptMeshCtrlContInModelShortcut{})),
       [](const cls_Record& r) { kadC_AdptMeshCtrlShortcut::Ctor(cls_RecordReader(r)); },
       "A record of type id 40370191 is not a shortcut that kadC_AdptMeshCtrlShortcut can hold"},
      {"the domain container has no concrete shortcut in its module",
       cls_ToRecord(kadC_AdptMeshCtrlContShortcut(kadC_AdptMeshCtrlContInModelShortcut{})),
       [](const cls_Record& r) { kadC_AdptMeshDomContShortcut::Ctor(cls_RecordReader(r)); },
       "A record of type id 40370191 is not a shortcut that kadC_AdptMeshDomContShortcut can hold"},
      {"a repository shortcut naming another repository", wrongRepo,
       [](const cls_Record& r) { kadC_AdptMeshCtrlContShortcut::Ctor(cls_RecordReader(r)); },
       "The shortcut \"materials\" addresses nothing: a stored kadC_AdptMeshCtrlContInModelShortcut must name "
       "\"adaptiveMeshControls\""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    auto e = qmx_Catch<nex_CmdError>([&] { c.read(c.rec); });
    EXPECT_STREQ(e.what(), c.message);
  }
}

// A member shortcut places the kad domain container inside an object; the kad domain shortcut
// then addresses a domain in it, two repositories deep.
TEST_F(ShortcutTest, MemberAndSequenceShortcutsThroughANestedContainer) {
  auto& holders = dynamic_cast<cmdT_HolderCont&>(*model.ModifyRepository("holders"));
  cmdT_Holder h;
  kadC_AdptMeshDomain d;
  d.SetFrequency(3);
  h.Domains().Insert("D-1", d);
  holders.Insert("H-1", h);
  omu_ChangeHistory::Instance().Clear();

  const cmdT_HolderShortcut holder(
      cmdT_HolderInHolderContShortcut(cmdT_HolderContShortcut(cmdT_HolderContInModelShortcut{}), "H-1"));
  const kadC_AdptMeshDomContShortcut domains(cmdT_DomContInHolderShortcut{holder});
  const kadC_AdptMeshDomainShortcut domain(kadC_AdptMeshDomainInAdptMeshDomContShortcut(domains, "D-1"));
  EXPECT_EQ(domains.Name(), "domains");
  EXPECT_EQ(domain.Path(), (std::vector<cow_String>{"holders", "H-1", "domains", "D-1"}));
  ASSERT_NE(domain.ConstGet(model), nullptr);
  EXPECT_EQ(domain.ConstGet(model)->GetFrequency(), 3);

  const ddr_Model before = model;
  domain.Get(model).SetFrequency(8);
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"cmdT_HolderCont", "Modify", "H-1"}, {"kadC_AdptMeshDomCont", "Modify", "D-1"}}));
  EXPECT_EQ(domain.ConstGet(model)->GetFrequency(), 8);
  EXPECT_EQ(domain.ConstGet(before)->GetFrequency(), 3);

  // The optional control member is empty: nothing to read, and modification is refused before
  // anything is recorded.
  omu_ChangeHistory::Instance().Clear();
  const cmdT_ControlInHolderShortcut control(holder);
  EXPECT_EQ(control.Name(), "control");
  EXPECT_EQ(control.ConstGet(model), nullptr);
  auto e = qmx_Catch<nex_CmdError>([&] { control.Get(model); });
  EXPECT_STREQ(e.what(), "The shortcut \"holders/H-1/control\" addresses nothing: the member is empty");
  EXPECT_EQ(omu_ChangeHistory::Instance().Size(), 0u);

  // The command layer, given the shortcut's path below the model, reaches the same object.
  ddr_Database db;
  db.PutModel("M", ddr_Database::ModelHandle(model));
  const ddr_Model& inDb = *db.FindModel("M");
  auto reach = [&](const std::vector<cow_String>& steps) {
    cmd_Path path{"M"};
    path.insert(path.end(), steps.begin(), steps.end());
    const void* reached = nullptr;
    cmd_WalkConst(db, path, [&](const cmd_Node& n) {
      reached = n.kind == cmd_Node::kRepository ? static_cast<const void*>(n.repo) : n.obj;
    });
    return reached;
  };
  EXPECT_EQ(reach(domain.Path()), static_cast<const void*>(domain.ConstGet(inDb)));
  EXPECT_EQ(reach(domains.Path()), static_cast<const void*>(static_cast<const mdl_Repository*>(domains.ConstGet(inDb))));
  EXPECT_EQ(reach(holder.Path()), static_cast<const void*>(holder.ConstGet(inDb)));

  // Round trip of the three-level path through a record: the kad handle reads the holder's
  // member shortcut through the reader the test registered for it.
  const cls_Record rec = cls_ToRecord(domain);
  const kadC_AdptMeshDomainShortcut back = kadC_AdptMeshDomainShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back, domain);
  EXPECT_EQ(back.ConstGet(model), domain.ConstGet(model));
  // ...but a registered reader whose shortcut is of another family is still refused.
  auto e3 = qmx_Catch<nex_CmdError>([&] { kadC_AdptMeshCtrlContShortcut::Ctor(cls_RecordReader(cls_ToRecord(domains))); });
  EXPECT_STREQ(e3.what(), "A record of type id 65470477 is not a shortcut that kadC_AdptMeshCtrlContShortcut can hold");
}

}  // namespace
