// The remeshing rule as stored, as reached in a model (repository, shortcut, command layer) and
// as the module registers it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kar/QMXOdbKarC.h"
#include "kar/karC_RRWrapper.h"
#include "kar/karC_RemeshingRule.h"
#include "kar/karC_RemeshingRuleCont.h"
#include "kar/karC_RemeshingRuleInRemeshingRuleContShortcut.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/command/cmd_test_util.h"
#include "tests/support/qmx_test.h"

namespace {

using Rule = karC_RemeshingRule;

std::vector<std::string> KarLiterals(const omu_EnumLiteral* t) {
  std::vector<std::string> out;
  for (int i = 0; t[i].text; ++i) {
    EXPECT_EQ(t[i].value, i);
    out.push_back(t[i].text);
  }
  return out;
}

TEST(KarRule, DefaultsLiteralsAndWriteOrder) {
  qmx_StartLibrary();
  using V = std::vector<std::string>;
  EXPECT_EQ(KarLiterals(Rule::kOutputFrequencyLiterals), (V{"LAST_INCREMENT", "EVERY_N_INCREMENTS"}));
  EXPECT_EQ(KarLiterals(Rule::kSizingMethodLiterals), (V{"DEFAULT", "UNIFORM_ERROR", "MINIMUM_MAXIMUM"}));
  EXPECT_EQ(KarLiterals(Rule::kElementCountLimitLiterals), (V{"UNLIMITED"}));

  Rule r;
  r.SetSizingMethod(Rule::SizingMethodEnm::UNIFORM_ERROR);
  const cls_Record rec = cls_ToRecord(r);
  EXPECT_EQ(rec.typeId, (855u << 16) | 1u);
  const V order = {"suppress",         "stepName",         "region",           "description",    "variables",
                   "outputFrequency",  "frequency",        "sizingMethod",     "errorTargets",   "refinementFactor",
                   "coarseningFactor", "minElementSize",   "maxElementSize",   "elementCountLimit"};
  ASSERT_EQ(rec.fields.size(), order.size());
  for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(rec.fields[i].first.str(), order[i]) << i;
  EXPECT_EQ(std::get<cow_String>(*rec.Find("sizingMethod")), "UNIFORM_ERROR");
  EXPECT_EQ(std::get<cow_String>(*rec.Find("outputFrequency")), "LAST_INCREMENT");
  EXPECT_EQ(std::get<std::int32_t>(*rec.Find("elementCountLimit")), 2147483647);  // no cap
  EXPECT_EQ(std::get<std::int32_t>(*rec.Find("frequency")), 1);
  EXPECT_EQ(std::get<double>(*rec.Find("minElementSize")), 1.7976931348623157e308);

  // the element count limit took the next free field number when it was added
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName("karC_RemeshingRule");
  ASSERT_NE(md, nullptr);
  EXPECT_EQ(md->Version(), 1000);
  EXPECT_EQ(md->Attributes().back().handle.Name().str(), "elementCountLimit");
  EXPECT_EQ(md->Attributes().back().handle.Number(), 13);
}

TEST(KarRule, ArchitectureTableNamesEveryClassAtItsTypeId) {
  qmx_StartLibrary();
  const typ_ArchCompEntry entry = karC_ArchEntry();
  ASSERT_EQ(entry.Count(), 6);
  struct Named {
    const char* name;
    unsigned typeId;
  };
  const Named classes[] = {
      {Rule::kClassName, Rule::TypeId()},
      {karC_RemeshingRuleCont::kClassName, karC_RemeshingRuleCont::TypeId()},
      {karC_RemeshingRuleIMPLSC::kClassName, karC_RemeshingRuleIMPLSC::TypeId()},
      {karC_RemeshingRuleInRemeshingRuleContShortcut::kClassName, karC_RemeshingRuleInRemeshingRuleContShortcut::TypeId()},
      {karC_RemeshingRuleContInModelShortcut::kClassName, karC_RemeshingRuleContInModelShortcut::TypeId()},
  };
  for (int row = 1; row < entry.Count(); ++row) {
    SCOPED_TRACE(row);
    EXPECT_STREQ(entry.Row(row).name, classes[row - 1].name);
    EXPECT_EQ(classes[row - 1].typeId, (855u << 16) | static_cast<unsigned>(row));
  }
  // the wrapper has no row: it takes the number after the table
  EXPECT_EQ(entry.RowOf(karC_RRWrapper::kClassName), -1);
  EXPECT_EQ(karC_RRWrapper::TypeId(), (855u << 16) | 6u);
  EXPECT_NE(cls_ClassRegistrar::Instance().ByTypeId(karC_RRWrapper::TypeId()), nullptr);
}

class KarModel : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    Rule r;
    r.SetStepName("Step-1");
    r.SetRegion(rgnC_Region("Set-1"));
    r.SetVariables({"MISESERI"});
    Rules().Insert("Rule-1", r);
    omu_ChangeHistory::Instance().Clear();
  }
  karC_RemeshingRuleCont& Rules() {
    return dynamic_cast<karC_RemeshingRuleCont&>(*model.ModifyRepository("remeshingRules"));
  }
  ddr_Model model;
};

TEST_F(KarModel, TheShortcutSeparatesACopyOnModificationAndRefusesAMissingRule) {
  const karC_RemeshingRuleInRemeshingRuleContShortcut sc("Rule-1");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"remeshingRules", "Rule-1"}));
  const ddr_Model before = model;
  ASSERT_EQ(sc.ConstGet(model), sc.ConstGet(before));
  sc.Get(model).SetElementCountLimit(2000);
  EXPECT_NE(sc.ConstGet(model), sc.ConstGet(before));
  EXPECT_EQ(sc.ConstGet(model)->GetElementCountLimit(), 2000);
  EXPECT_TRUE(sc.ConstGet(before)->IsElementCountUnlimited());
  const std::vector<omu_PrimTuple> expected = {{"karC_RemeshingRuleCont", "Modify", "Rule-1"}};
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);

  const karC_RemeshingRuleInRemeshingRuleContShortcut missing("Rule-9");
  EXPECT_EQ(missing.ConstGet(model), nullptr);
  EXPECT_THROW(missing.Get(model), nex_CmdError);
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(), expected);  // the refusal recorded nothing

  // the shortcut is stored and rebuilt
  const cls_Record rec = cls_ToRecord(sc);
  const auto back = karC_RemeshingRuleInRemeshingRuleContShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_TRUE(back.SameAddress(sc));
  EXPECT_EQ(back.ConstGet(model), sc.ConstGet(model));
}

TEST(KarCommands, TheRepositoryByPathWithTheCapAsALiteral) {
  qmx_StartLibrary();
  cmd_Session s;
  cmdT_Ok(s, R"({"op":"create","path":["Model-1"]})");
  const std::string rule = R"("path":["Model-1","remeshingRules","Rule-1")";
  cmdT_Ok(s, R"({"op":"create",)" + rule + R"(],"type":"RemeshingRule",
              "values":{"stepName":"Step-1","region":"Set-1","variables":["MISESERI"]}})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get",)" + rule + R"(,"elementCountLimit"]})"), "UNLIMITED");
  cmdT_Ok(s, R"({"op":"set",)" + rule + R"(],"values":{"elementCountLimit":120000,"sizingMethod":"MINIMUM_MAXIMUM"}})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get",)" + rule + R"(,"elementCountLimit"]})"), 120000);
  cmdT_Ok(s, R"({"op":"validate",)" + rule + "]}");
  cmdT_Ok(s, R"({"op":"set",)" + rule + R"(],"values":{"elementCountLimit":"UNLIMITED"}})");
  EXPECT_EQ(cmdT_Ok(s, R"({"op":"get",)" + rule + R"(,"elementCountLimit"]})"), "UNLIMITED");

  const ddr_Database before = s.Database();
  struct Case {
    const char* values;
    const char* message;
  };
  const Case cases[] = {
      {R"({"elementCountLimit":"unlimited"})",
       "omu_PrimEnum(const cow_String&) - str not allowed: unlimited  Permissible: UNLIMITED"},
      {R"({"sizingMethod":"UNIFORM"})",
       "omu_PrimEnum(const cow_String&) - str not allowed: UNIFORM  Permissible: DEFAULT, UNIFORM_ERROR, MINIMUM_MAXIMUM"},
  };
  for (const Case& c : cases) {
    const cmd_Json e = cmdT_Fails(s, R"({"op":"set",)" + rule + R"(],"values":)" + c.values + "}");
    EXPECT_EQ(e["message"].get<std::string>(), c.message) << c.values;
  }
  EXPECT_TRUE(s.Database() == before);  // a refused set changes nothing
  cmdT_Ok(s, R"({"op":"set",)" + rule + R"(],"values":{"minElementSize":2,"maxElementSize":1}})");
  const cmd_Json e = cmdT_Fails(s, R"({"op":"validate",)" + rule + "]}");
  EXPECT_EQ(e["message"].get<std::string>(), "Minimum element size must be less than maximum element size.");
  EXPECT_EQ(e["line"].get<int>(), 64);
}

}  // namespace
