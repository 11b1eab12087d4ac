// Filters in a model: every kind through the command layer and the file, read back as its own
// kind; the shortcuts; the module's architecture table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "kfl/QMXOdbKflC.h"
#include "kfl/kflC_ButterworthFilter.h"
#include "kfl/kflC_Chebyshev1Filter.h"
#include "kfl/kflC_Chebyshev2Filter.h"
#include "kfl/kflC_FCWrapper.h"
#include "kfl/kflC_FilterContainer.h"
#include "kfl/kflC_FilterInFilterContainerShortcut.h"
#include "kfl/kflC_FilterShortcut.h"
#include "kfl/kflC_OperatorFilter.h"
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

TEST(KflModule, ArchitectureTableNamesEveryClassAtItsTypeId) {
  qmx_StartLibrary();
  const typ_ArchCompEntry entry = kflC_ArchEntry();
  ASSERT_EQ(entry.Count(), 14);
  const std::pair<const char*, unsigned> classes[] = {
      {kflC_Filter::kClassName, kflC_Filter::TypeId()},
      {kflC_ButterworthFilter::kClassName, kflC_ButterworthFilter::TypeId()},
      {kflC_Chebyshev1Filter::kClassName, kflC_Chebyshev1Filter::TypeId()},
      {kflC_Chebyshev2Filter::kClassName, kflC_Chebyshev2Filter::TypeId()},
      {kflC_OperatorFilter::kClassName, kflC_OperatorFilter::TypeId()},
      {kflC_FilterContainer::kClassName, kflC_FilterContainer::TypeId()},
      {kflC_FilterIMPLSC::kClassName, kflC_FilterIMPLSC::TypeId()},
      {kflC_FilterShortcut::kClassName, kflC_FilterShortcut::TypeId()},
      {kflC_FilterInFilterContainerShortcut::kClassName, kflC_FilterInFilterContainerShortcut::TypeId()},
      {kflC_FilterContainerIMPLSC::kClassName, kflC_FilterContainerIMPLSC::TypeId()},
      {kflC_FilterContainerShortcut::kClassName, kflC_FilterContainerShortcut::TypeId()},
      {kflC_FilterContainerInModelShortcut::kClassName, kflC_FilterContainerInModelShortcut::TypeId()},
      {kflC_FCWrapper::kClassName, kflC_FCWrapper::TypeId()},
  };
  for (int row = 1; row < entry.Count(); ++row) {
    SCOPED_TRACE(row);
    EXPECT_STREQ(entry.Row(row).name, classes[row - 1].first);
    EXPECT_EQ(classes[row - 1].second, (849u << 16) | static_cast<unsigned>(row));
  }
  EXPECT_EQ(cls_ClassRegistrar::Instance().ByScriptName("Chebyshev2Filter")->Name(), "kflC_Chebyshev2Filter");
}

// The upgrade a file written before filters existed needs: its models hold no container of
// them, and read with an empty one.
TEST(KflModule, AModelStoredWithoutTheRepositoryReadsWithAnEmptyOne) {
  qmx_StartLibrary();
  const ddr_Model model;
  cls_Record rec = cls_ToRecord(model);
  auto* list = std::get_if<std::vector<cls_RecordPtr>>(rec.Find("extensions"));
  ASSERT_NE(list, nullptr);
  const std::size_t stored = list->size();
  std::erase_if(*list, [](const cls_RecordPtr& e) { return e && e->typeId == kflC_FCWrapper::TypeId(); });
  ASSERT_EQ(list->size(), stored - 1);
  const ddr_Model back{cls_RecordReader(rec)};
  const mdl_Repository* found = back.FindRepository("filters");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->Count(), 0u);
  EXPECT_EQ(back.RepositoryNames().size(), model.RepositoryNames().size());
}

class KflCommands : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    cmdT_Ok(s, R"({"op":"create","path":["Model-1"]})");
    cmdT_Ok(s, R"({"op":"create","path":["Model-1","filters","B"],"type":"ButterworthFilter","values":{"cutoffFrequency":500,"order":4}})");
    cmdT_Ok(s, R"({"op":"create","path":["Model-1","filters","C1"],"type":"Chebyshev1Filter","values":{"cutoffFrequency":200,"rippleFactor":0.1,"operation":"MAX"}})");
    cmdT_Ok(s, R"({"op":"create","path":["Model-1","filters","C2"],"type":"Chebyshev2Filter","values":{"cutoffFrequency":50,"order":3}})");
    cmdT_Ok(s, R"({"op":"create","path":["Model-1","filters","Op"],"type":"OperatorFilter","values":{"operation":"ABS","limit":0.02,"halt":true}})");
  }
  const kflC_FilterContainer& Filters(const ddr_Database& db) {
    return dynamic_cast<const kflC_FilterContainer&>(*db.FindModel("Model-1")->FindRepository("filters"));
  }
  cmd_Session s;
};

TEST_F(KflCommands, EveryKindByPathAndThroughTheFile) {
  cmdT_Ok(s, R"({"op":"validate","path":["Model-1","filters"]})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["Model-1","filters","C1","operation"]})"), "MAX");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get","path":["Model-1","filters","C2","rippleFactor"]})"), 0.225);
  // the operator filter has no cutoff, and the Butterworth filter no ripple
  cmdT_Fails(s, R"({"op":"get","path":["Model-1","filters","Op","cutoffFrequency"]})");
  cmdT_Fails(s, R"({"op":"set","path":["Model-1","filters","B"],"values":{"rippleFactor":0.1}})");
  const cmd_Json e = cmdT_Fails(s, R"({"op":"set","path":["Model-1","filters","B"],"values":{"operation":"AVERAGE"}})");
  EXPECT_EQ(e["message"].get<std::string>(),
            "omu_PrimEnum(const cow_String&) - str not allowed: AVERAGE  Permissible: NONE, MIN, MAX, ABS");

  const std::string file = qmx_TempDir("kfl-file") + "/filters.odb";
  dbf_Save(s.Database(), file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
  const auto* c1 = dynamic_cast<const kflC_Chebyshev1Filter*>(Filters(back).ConstGet("C1"));
  ASSERT_NE(c1, nullptr);
  EXPECT_EQ(c1->GetRippleFactor(), 0.1);
  EXPECT_EQ(c1->GetOperation(), kflC_Filter::OperationEnm::MAX);
  EXPECT_NE(dynamic_cast<const kflC_Chebyshev2Filter*>(Filters(back).ConstGet("C2")), nullptr);
  const auto* op = dynamic_cast<const kflC_OperatorFilter*>(Filters(back).ConstGet("Op"));
  ASSERT_NE(op, nullptr);
  EXPECT_TRUE(op->GetHalt());
  EXPECT_EQ(op->GetLimit(), 0.02);
}

TEST_F(KflCommands, ShortcutsReachTheFilterAndSeparateTheModifiedCopy) {
  ddr_Database db = s.Database();
  const ddr_Database before = db;
  ddr_Model& model = *db.ModifyModel("Model-1");
  omu_ChangeHistory::Instance().Clear();
  const kflC_FilterShortcut sc(kflC_FilterInFilterContainerShortcut("B"));
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"filters", "B"}));
  dynamic_cast<kflC_ButterworthFilter&>(sc.Get(model)).SetOrder(8);
  EXPECT_EQ(dynamic_cast<const kflC_ButterworthFilter*>(sc.ConstGet(model))->GetOrder(), 8);
  EXPECT_EQ(dynamic_cast<const kflC_ButterworthFilter*>(sc.ConstGet(*before.FindModel("Model-1")))->GetOrder(), 4);
  const std::vector<omu_PrimTuple> expected = {{"kflC_FilterContainer", "Modify", "B"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);
  EXPECT_THROW(kflC_FilterInFilterContainerShortcut("Nope").Get(model), nex_CmdError);
  const kflC_FilterShortcut back = kflC_FilterShortcut::Ctor(cls_RecordReader(cls_ToRecord(sc)));
  EXPECT_EQ(back.ConstGet(model), sc.ConstGet(model));
}

}  // namespace
