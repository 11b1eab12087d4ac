// The remeshing rule's rules: each at its boundaries, in order (the first broken rule wins), with
// its exact message and the module's source position.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "kar/karC_RemeshingRule.h"
#include "kar/karC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

using Rule = karC_RemeshingRule;
const double kNaN = std::numeric_limits<double>::quiet_NaN();

std::string Failure(const Rule& r) {
  try {
    r.AssertValid();
  } catch (const nex_PrimError& e) {
    EXPECT_STREQ(e.File(), "QMXOdbKarC.m/src/karC_assert");
    EXPECT_EQ(e.Line(), 64);
    return e.Message();
  }
  return "";
}

// The smallest rule that passes.
Rule Valid() {
  Rule r;
  r.SetStepName("Step-1");
  r.SetRegion(rgnC_Region("Part-1-1.Set-All"));
  r.SetVariables(cow_List<cow_String>{"MISESERI"});
  return r;
}

const std::string kStep = "A step must be specified.";
const std::string kRegion = "A region must be specified.";
const std::string kVariables = "At least one error indicator output variable must be specified.";
const std::string kRepeated = "An output variable may be specified only once.";
const std::string kFrequency = "Output frequency must be greater than zero.";
const std::string kTargetCount = "Error targets must be given for every output variable or for none.";
const std::string kTarget = "Error targets must be greater than zero.";
const std::string kRefinement = "Refinement factor must be greater than zero and less than or equal to one.";
const std::string kCoarsening = "Coarsening factor must be greater than or equal to one.";
const std::string kMinSize = "Minimum element size must be greater than zero.";
const std::string kMaxSize = "Maximum element size must be greater than zero.";
const std::string kSizeOrder = "Minimum element size must be less than maximum element size.";
const std::string kCount = "Element count limit must be greater than zero.";

TEST(KarRuleValidation, EachRuleAtItsBoundaries) {
  struct Case {
    const char* what;
    std::function<void(Rule&)> change;
    std::string message;  // "" passes
  };
  const Case cases[] = {
      {"minimal", [](Rule&) {}, ""},
      {"no step", [](Rule& r) { r.SetStepName(""); }, kStep},
      {"no region", [](Rule& r) { r.SetRegion(rgnC_Region("")); }, kRegion},
      {"no variable", [](Rule& r) { r.SetVariables({}); }, kVariables},
      {"two variables", [](Rule& r) { r.SetVariables({"MISESERI", "ENDENERI"}); }, ""},
      {"a variable twice", [](Rule& r) { r.SetVariables({"MISESERI", "ENDENERI", "MISESERI"}); }, kRepeated},
      {"names differ by case", [](Rule& r) { r.SetVariables({"MISESERI", "miseseri"}); }, ""},
      {"frequency 1", [](Rule& r) { r.SetFrequency(1); }, ""},
      {"frequency 0", [](Rule& r) { r.SetFrequency(0); }, kFrequency},
      {"frequency 0 at the last increment too",
       [](Rule& r) {
         r.SetOutputFrequency(Rule::OutputFrequencyEnm::LAST_INCREMENT);
         r.SetFrequency(-3);
       },
       kFrequency},
      {"one target per variable", [](Rule& r) { r.SetErrorTargets({0.05}); }, ""},
      {"two targets, one variable", [](Rule& r) { r.SetErrorTargets({0.05, 0.1}); }, kTargetCount},
      {"target 0", [](Rule& r) { r.SetErrorTargets({0.0}); }, kTarget},
      {"target NaN", [](Rule& r) { r.SetErrorTargets({kNaN}); }, kTarget},
      {"refinement 1", [](Rule& r) { r.SetRefinementFactor(1); }, ""},
      {"refinement tiny", [](Rule& r) { r.SetRefinementFactor(1e-12); }, ""},
      {"refinement 0", [](Rule& r) { r.SetRefinementFactor(0); }, kRefinement},
      {"refinement 1.0001", [](Rule& r) { r.SetRefinementFactor(1.0001); }, kRefinement},
      {"refinement NaN", [](Rule& r) { r.SetRefinementFactor(kNaN); }, kRefinement},
      {"coarsening 1", [](Rule& r) { r.SetCoarseningFactor(1); }, ""},
      {"coarsening 0.999", [](Rule& r) { r.SetCoarseningFactor(0.999); }, kCoarsening},
      {"coarsening NaN", [](Rule& r) { r.SetCoarseningFactor(kNaN); }, kCoarsening},
      {"min size only", [](Rule& r) { r.SetMinElementSize(0.5); }, ""},
      {"min size 0", [](Rule& r) { r.SetMinElementSize(0); }, kMinSize},
      {"max size -1", [](Rule& r) { r.SetMaxElementSize(-1); }, kMaxSize},
      {"max size NaN", [](Rule& r) { r.SetMaxElementSize(kNaN); }, kMaxSize},
      {"min below max",
       [](Rule& r) {
         r.SetMinElementSize(0.5);
         r.SetMaxElementSize(0.50001);
       },
       ""},
      {"min equals max",
       [](Rule& r) {
         r.SetMinElementSize(2);
         r.SetMaxElementSize(2);
       },
       kSizeOrder},
      {"count 1", [](Rule& r) { r.SetElementCountLimit(1); }, ""},
      {"count 0", [](Rule& r) { r.SetElementCountLimit(0); }, kCount},
      {"count unlimited", [](Rule& r) { r.SetElementCountLimit(Rule::ElementCountLimitEnm::UNLIMITED); }, ""},
  };
  for (const Case& c : cases) {
    Rule r = Valid();
    c.change(r);
    EXPECT_EQ(Failure(r), c.message) << c.what;
  }
}

TEST(KarRuleValidation, TheFirstBrokenRuleWinsAndSuppressSkipsThemAll) {
  // Every rule broken: each fix in turn reveals the next rule in order.
  Rule r;
  r.SetFrequency(0);
  r.SetVariables({"A", "A"});
  r.SetErrorTargets({-1.0});
  r.SetRefinementFactor(2);
  r.SetCoarseningFactor(0.5);
  r.SetMinElementSize(-1);
  r.SetMaxElementSize(-2);
  r.SetElementCountLimit(-5);
  const std::pair<std::string, std::function<void(Rule&)>> steps[] = {
      {kStep, [](Rule& x) { x.SetStepName("Step-1"); }},
      {kRegion, [](Rule& x) { x.SetRegion(rgnC_Region("Set-1")); }},
      {kRepeated, [](Rule& x) { x.SetVariables({"A", "B"}); }},
      {kFrequency, [](Rule& x) { x.SetFrequency(5); }},
      {kTargetCount, [](Rule& x) { x.SetErrorTargets({-1.0, 1.0}); }},
      {kTarget, [](Rule& x) { x.SetErrorTargets({}); }},
      {kRefinement, [](Rule& x) { x.SetRefinementFactor(karC_kUnspecified); }},
      {kCoarsening, [](Rule& x) { x.SetCoarseningFactor(karC_kUnspecified); }},
      {kMinSize, [](Rule& x) { x.SetMinElementSize(3); }},
      {kMaxSize, [](Rule& x) { x.SetMaxElementSize(1); }},
      {kSizeOrder, [](Rule& x) { x.SetMaxElementSize(karC_kUnspecified); }},
      {kCount, [](Rule& x) { x.SetElementCountLimit(100000); }},
  };
  Rule suppressed = r;
  suppressed.SetSuppress(true);
  EXPECT_EQ(Failure(suppressed), "");
  for (const auto& [message, fix] : steps) {
    const Rule before = r;
    EXPECT_EQ(Failure(r), message);
    EXPECT_TRUE(r == before);  // validation changes nothing
    fix(r);
  }
  EXPECT_EQ(Failure(r), "");
}

TEST(KarAssert, MessagesByCodeAndUnknownCodesThrowEmpty) {
  EXPECT_NO_THROW(karC_Assert(true, karC_StepMissing));
  auto e = qmx_Catch<nex_PrimError>([] { karC_Assert(false, karC_ElementSizeOrder); });
  EXPECT_EQ(e.Message(), kSizeOrder);
  EXPECT_STREQ(e.File(), "QMXOdbKarC.m/src/karC_assert");
  EXPECT_EQ(e.Line(), 64);
  EXPECT_EQ(qmx_Catch<nex_PrimError>([] { karC_Assert(false, static_cast<karC_ErrorEnm>(13)); }).Message(), "");
  EXPECT_EQ(qmx_Catch<nex_PrimError>([] { karC_Assert(false, static_cast<karC_ErrorEnm>(-1)); }).Message(), "");
  EXPECT_EQ(std::string(karC_ErrorMessage(karC_StepMissing)), kStep);
  EXPECT_EQ(std::string(karC_ErrorMessage(karC_ElementCountLimitNotPositive)), kCount);
}

}  // namespace
