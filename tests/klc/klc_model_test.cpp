// Load cases in a model: through the command layer by path, through the shortcut, and through
// the database file with their terms; the module's architecture table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "klc/QMXOdbKlcC.h"
#include "klc/klcC_LCCWrapper.h"
#include "klc/klcC_LoadCase.h"
#include "klc/klcC_LoadCaseContainer.h"
#include "klc/klcC_LoadCaseInLoadCaseContainerShortcut.h"
#include "klc/klcC_LoadCaseShortcut.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/mdl_Repository.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(KlcModule, ArchitectureTableNamesEveryClassAtItsTypeId) {
  qmx_StartLibrary();
  const typ_ArchCompEntry entry = klcC_ArchEntry();
  ASSERT_EQ(entry.Count(), 8);
  const std::pair<const char*, unsigned> classes[] = {
      {klcC_LoadCase::kClassName, klcC_LoadCase::TypeId()},
      {klcC_LoadCaseTerm::kClassName, klcC_LoadCaseTerm::TypeId()},
      {klcC_LoadCaseContainer::kClassName, klcC_LoadCaseContainer::TypeId()},
      {klcC_LoadCaseIMPLSC::kClassName, klcC_LoadCaseIMPLSC::TypeId()},
      {klcC_LoadCaseShortcut::kClassName, klcC_LoadCaseShortcut::TypeId()},
      {klcC_LoadCaseInLoadCaseContainerShortcut::kClassName, klcC_LoadCaseInLoadCaseContainerShortcut::TypeId()},
      {klcC_LoadCaseContainerInModelShortcut::kClassName, klcC_LoadCaseContainerInModelShortcut::TypeId()},
  };
  for (int row = 1; row < entry.Count(); ++row) {
    SCOPED_TRACE(row);
    EXPECT_STREQ(entry.Row(row).name, classes[row - 1].first);
    EXPECT_EQ(classes[row - 1].second, (732u << 16) | static_cast<unsigned>(row));
  }
  EXPECT_EQ(entry.RowOf(klcC_LCCWrapper::kClassName), -1);
  EXPECT_EQ(klcC_LCCWrapper::TypeId(), (732u << 16) | 8u);
  EXPECT_NE(cls_ClassRegistrar::Instance().ByTypeId(klcC_LCCWrapper::TypeId()), nullptr);
}

const std::string kCase = R"("path":["Model-1","loadCases","LC-1")";

// The upgrade a file written before load cases existed needs: its models hold no container of
// them, and read with an empty one.
TEST(KlcModule, AModelStoredWithoutTheRepositoryReadsWithAnEmptyOne) {
  qmx_StartLibrary();
  const ddr_Model model;
  cls_Record rec = cls_ToRecord(model);
  auto* list = std::get_if<std::vector<cls_RecordPtr>>(rec.Find("extensions"));
  ASSERT_NE(list, nullptr);
  const std::size_t stored = list->size();
  std::erase_if(*list, [](const cls_RecordPtr& e) { return e && e->typeId == klcC_LCCWrapper::TypeId(); });
  ASSERT_EQ(list->size(), stored - 1);
  const ddr_Model back{cls_RecordReader(rec)};
  const mdl_Repository* found = back.FindRepository("loadCases");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->Count(), 0u);
  EXPECT_EQ(back.RepositoryNames().size(), model.RepositoryNames().size());
}

class KlcCommands : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    cmdT_Ok(s, R"({"op":"create","path":["Model-1"]})");
    cmdT_Ok(s, R"({"op":"create",)" + kCase + R"(],"type":"LoadCase","values":{"stepName":"Step-1",
                "loads":[{"name":"Pressure","scaleFactor":1.5},{"name":"Gravity"}],
                "boundaryConditions":[{"name":"Fixed","scaleFactor":0}]}})");
  }
  const klcC_LoadCaseContainer& Cases() {
    return dynamic_cast<const klcC_LoadCaseContainer&>(*s.Database().FindModel("Model-1")->FindRepository("loadCases"));
  }
  cmd_Session s;
};

TEST_F(KlcCommands, TermsAsListsOfObjectsWithTheirDefaults) {
  const klcC_LoadCase* lc = Cases().ConstGet("LC-1");
  ASSERT_NE(lc, nullptr);
  ASSERT_EQ(lc->GetLoads().size(), 2u);
  EXPECT_EQ(lc->GetLoads()[0].Get().GetName(), "Pressure");
  EXPECT_EQ(lc->GetLoads()[0].Get().GetScaleFactor(), 1.5);
  EXPECT_EQ(lc->GetLoads()[1].Get().GetScaleFactor(), 1.0);  // the default factor
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get",)" + kCase + R"(,"loads",1,"name"]})"), "Gravity");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get",)" + kCase + R"(,"boundaryConditions",0,"scaleFactor"]})"), 0.0);
  cmdT_Ok(s, R"({"op":"validate",)" + kCase + "]}");

  cmdT_Ok(s, R"({"op":"set",)" + kCase + R"(],"values":{"loads":[{"name":"Pressure"},{"name":"Pressure"}]}})");
  const cmd_Json e = cmdT_Fails(s, R"({"op":"validate",)" + kCase + "]}");
  EXPECT_EQ(e["message"].get<std::string>(), "A load may appear only once in a load case.");
  EXPECT_EQ(e["file"].get<std::string>(), "QMXOdbKlcC.m/src/klcC_assert");
}

TEST_F(KlcCommands, ShortcutSeparatesTheModifiedCopy) {
  ddr_Database db = s.Database();
  const ddr_Database before = db;
  ddr_Model& model = *db.ModifyModel("Model-1");
  omu_ChangeHistory::Instance().Clear();
  const klcC_LoadCaseShortcut sc(klcC_LoadCaseInLoadCaseContainerShortcut("LC-1"));
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"loadCases", "LC-1"}));
  sc.Get(model).SetDescription("Ultimate");
  EXPECT_EQ(sc.ConstGet(model)->GetDescription(), "Ultimate");
  EXPECT_EQ(sc.ConstGet(*before.FindModel("Model-1"))->GetDescription(), "");
  const std::vector<omu_PrimTuple> expected = {{"klcC_LoadCaseContainer", "Modify", "LC-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
  EXPECT_THROW(klcC_LoadCaseInLoadCaseContainerShortcut("LC-2").Get(model), nex_CmdError);
  // stored and rebuilt through the family's reader
  const cls_Record rec = cls_ToRecord(sc);
  const klcC_LoadCaseShortcut back = klcC_LoadCaseShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(back.ConstGet(model), sc.ConstGet(model));
}

TEST_F(KlcCommands, LoadCasesRoundTripThroughTheFile) {
  cmdT_Ok(s, R"({"op":"create","path":["Model-1","loadCases","LC-empty"],"type":"LoadCase"})");
  const std::string file = qmx_TempDir("klc-file") + "/cases.odb";
  dbf_Save(s.Database(), file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
  const auto& cases = dynamic_cast<const klcC_LoadCaseContainer&>(*back.FindModel("Model-1")->FindRepository("loadCases"));
  EXPECT_EQ(cases.Keys(), (std::vector<cow_String>{"LC-1", "LC-empty"}));
  EXPECT_EQ(cases.ConstGet("LC-1")->GetBoundaryConditions()[0].Get(), Cases().ConstGet("LC-1")->GetBoundaryConditions()[0].Get());
  EXPECT_EQ(cases.ConstGet("LC-1")->GetBoundaryConditions()[0].Get().GetName(), "Fixed");
  EXPECT_EQ(cases.ConstGet("LC-1")->GetLoads()[0].Get().GetUid(), Cases().ConstGet("LC-1")->GetLoads()[0].Get().GetUid());
}

}  // namespace
