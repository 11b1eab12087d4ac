// The codes the class reference lists for a load case against what its validation does: the
// case's own rules, then each load and each boundary condition term by term.
#include <limits>

#include "klc/klcC_LoadCase.h"
#include "tests/support/qmx_code_order.h"
#include "tests/support/qmx_test.h"

namespace {

using ListedCase = klcC_LoadCase;
using ListedTerm = klcC_LoadCaseTerm;

ListedCase::Terms ListedTerms(std::initializer_list<ListedTerm> terms) {
  ListedCase::Terms out;
  for (const ListedTerm& t : terms) out.Append(ListedCase::Term(t));
  return out;
}

// The terms of one list are checked one after the other, each for its name, then for a repeated
// name, then for its factor; so the cases that break a rule of the loads are not combined.
TEST(KlcListedCodes, LoadCase) {
  qmx_StartLibrary();
  using C = ListedCase;
  const double nan = std::numeric_limits<double>::quiet_NaN();
  qmx_CheckListedCodes<C>(
      "klcC_LoadCase",
      {
          {"no step", [](C& c) { c.SetStepName(""); }, 0},
          {"nothing combined", [](C& c) { c.SetLoads({}); }, 1, {"loads", "conditions"}},
          {"an unnamed load", [](C& c) { c.SetLoads(ListedTerms({ListedTerm("Load-1", 1), ListedTerm("", 1)})); }, 2,
           {"loads"}},
          {"a load twice",
           [](C& c) { c.SetLoads(ListedTerms({ListedTerm("Load-1", 1), ListedTerm("Load-1", 2)})); }, 3, {"loads"}},
          {"a load without a finite factor", [nan](C& c) { c.SetLoads(ListedTerms({ListedTerm("Load-1", nan)})); }, 5,
           {"loads"}},
          {"a boundary condition twice",
           [](C& c) { c.SetBoundaryConditions(ListedTerms({ListedTerm("BC-1", 1), ListedTerm("BC-1", 1)})); }, 4,
           {"conditions"}},
      },
      [] {
        C c;
        c.SetStepName("Step-1");
        c.SetLoads(ListedTerms({ListedTerm("Load-1", 1.5)}));
        return c;
      });
}

}  // namespace
