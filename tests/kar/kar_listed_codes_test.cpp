// The codes the class reference lists for a remeshing rule against what its validation does.
#include "kar/karC_RemeshingRule.h"
#include "tests/support/qmx_code_order.h"
#include "tests/support/qmx_test.h"

namespace {

TEST(KarListedCodes, RemeshingRule) {
  qmx_StartLibrary();
  using R = karC_RemeshingRule;
  qmx_CheckListedCodes<R>(
      "karC_RemeshingRule",
      {
          {"no step", [](R& r) { r.SetStepName(""); }, 0},
          {"no region", [](R& r) { r.SetRegion(rgnC_Region()); }, 1},
          {"no variable", [](R& r) { r.SetVariables(cow_List<cow_String>()); }, 2, {"variables"}},
          {"a variable twice", [](R& r) { r.SetVariables(cow_List<cow_String>{"MISESERI", "MISESERI"}); }, 3,
           {"variables"}},
          {"frequency 0", [](R& r) { r.SetFrequency(0); }, 4},
          {"two targets for one variable", [](R& r) { r.SetErrorTargets(cow_List<double>{0.1, 0.1}); }, 5,
           {"targets"}},
          {"a target of 0", [](R& r) { r.SetErrorTargets(cow_List<double>{0.0}); }, 6, {"targets"}},
          {"refinement factor 2", [](R& r) { r.SetRefinementFactor(2); }, 7},
          {"coarsening factor 0.5", [](R& r) { r.SetCoarseningFactor(0.5); }, 8},
          {"min size 0", [](R& r) { r.SetMinElementSize(0); }, 9, {"sizes"}},
          {"max size 0", [](R& r) { r.SetMaxElementSize(0); }, 10, {"sizes"}},
          {"min size above max", [](R& r) { r.SetMinElementSize(2), r.SetMaxElementSize(1); }, 11, {"sizes"}},
          {"no element allowed", [](R& r) { r.SetElementCountLimit(0); }, 12},
      },
      [] {
        R r;
        r.SetStepName("Step-1");
        r.SetRegion(rgnC_Region("Part-1-1.Set-All"));
        r.SetVariables(cow_List<cow_String>{"MISESERI"});
        return r;
      });
}

}  // namespace
