// The load case's rules: each at its boundaries, in order (the first broken rule wins), with its
// exact message and the module's source position.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "klc/klcC_LoadCase.h"
#include "klc/klcC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

using Case = klcC_LoadCase;
using Term = klcC_LoadCaseTerm;
const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

template <class T>
std::string KlcFailure(const T& obj) {
  try {
    obj.AssertValid();
  } catch (const nex_PrimError& e) {
    EXPECT_STREQ(e.File(), "QMXOdbKlcC.m/src/klcC_assert");
    EXPECT_EQ(e.Line(), 52);
    return e.Message();
  }
  return "";
}

Case::Terms KlcTerms(std::initializer_list<Term> terms) {
  Case::Terms out;
  for (const Term& t : terms) out.Append(Case::Term(t));
  return out;
}

const std::string kStep = "A step must be specified.";
const std::string kNothing = "At least one load or boundary condition must be specified.";
const std::string kName = "Every load and boundary condition of a load case must be named.";
const std::string kLoadTwice = "A load may appear only once in a load case.";
const std::string kBcTwice = "A boundary condition may appear only once in a load case.";
const std::string kFactor = "Scale factors must be finite numbers.";

TEST(KlcValidation, EachRuleAtItsBoundaries) {
  struct Row {
    const char* what;
    std::function<void(Case&)> change;
    std::string message;  // "" passes
  };
  const Row rows[] = {
      {"one load", [](Case&) {}, ""},
      {"no step", [](Case& c) { c.SetStepName(""); }, kStep},
      {"nothing", [](Case& c) { c.SetLoads({}); }, kNothing},
      {"a boundary condition only",
       [](Case& c) {
         c.SetLoads({});
         c.SetBoundaryConditions(KlcTerms({Term("BC-1", 1)}));
       },
       ""},
      {"a load and a condition of one name", [](Case& c) { c.SetBoundaryConditions(KlcTerms({Term("Load-1", 1)})); }, ""},
      {"unnamed load", [](Case& c) { c.SetLoads(KlcTerms({Term("", 1)})); }, kName},
      {"null load", [](Case& c) { c.SetLoads(Case::Terms{Case::Term()}); }, kName},
      {"a load twice", [](Case& c) { c.SetLoads(KlcTerms({Term("L", 1), Term("M", 2), Term("L", 3)})); }, kLoadTwice},
      {"a condition twice", [](Case& c) { c.SetBoundaryConditions(KlcTerms({Term("B", 1), Term("B", 1)})); }, kBcTwice},
      {"factor 0", [](Case& c) { c.SetLoads(KlcTerms({Term("L", 0)})); }, ""},
      {"factor -1e308", [](Case& c) { c.SetLoads(KlcTerms({Term("L", -1e308)})); }, ""},
      {"factor inf", [](Case& c) { c.SetLoads(KlcTerms({Term("L", kInf)})); }, kFactor},
      {"factor NaN on a condition", [](Case& c) { c.SetBoundaryConditions(KlcTerms({Term("B", kNaN)})); }, kFactor},
  };
  for (const Row& r : rows) {
    Case c;
    c.SetStepName("Step-1");
    c.SetLoads(KlcTerms({Term("Load-1", 1.5)}));
    r.change(c);
    EXPECT_EQ(KlcFailure(c), r.message) << r.what;
  }
  EXPECT_EQ(KlcFailure(Term("", 1)), kName);
  EXPECT_EQ(KlcFailure(Term("L", -kInf)), kFactor);
  EXPECT_EQ(KlcFailure(Term("L", -2)), "");
}

TEST(KlcValidation, RulesRunInOrderTermByTermAndSuppressSkipsThem) {
  Case c;
  c.SetLoads(KlcTerms({Term("L", kNaN), Term("L", 1), Term("", 1)}));
  c.SetBoundaryConditions(KlcTerms({Term("", 1)}));
  Case suppressed = c;
  suppressed.SetSuppress(true);
  EXPECT_EQ(KlcFailure(suppressed), "");
  EXPECT_EQ(KlcFailure(c), kStep);
  c.SetStepName("Step-1");
  EXPECT_EQ(KlcFailure(c), kFactor);  // the first load's factor comes before the repeated name
  c.SetLoads(KlcTerms({Term("L", 1), Term("L", 1), Term("", 1)}));
  EXPECT_EQ(KlcFailure(c), kLoadTwice);
  c.SetLoads(KlcTerms({Term("L", 1), Term("", 1)}));
  EXPECT_EQ(KlcFailure(c), kName);
  c.SetLoads(KlcTerms({Term("L", 1)}));
  EXPECT_EQ(KlcFailure(c), kName);  // now from the boundary conditions
  c.SetBoundaryConditions({});
  EXPECT_EQ(KlcFailure(c), "");
}

TEST(KlcAssert, MessagesByCodeAndUnknownCodesThrowEmpty) {
  EXPECT_NO_THROW(klcC_Assert(true, klcC_StepMissing));
  const auto e = qmx_Catch<nex_PrimError>([] { klcC_Assert(false, klcC_NothingCombined); });
  EXPECT_EQ(e.Message(), kNothing);
  EXPECT_STREQ(e.File(), "QMXOdbKlcC.m/src/klcC_assert");
  EXPECT_EQ(e.Line(), 52);
  EXPECT_EQ(qmx_Catch<nex_PrimError>([] { klcC_Assert(false, static_cast<klcC_ErrorEnm>(6)); }).Message(), "");
}

}  // namespace
