// The filters' rules: each kind's at their boundaries and in order, with their exact messages and
// the module's source position. Filters have no suppress switch: every filter is checked.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>

#include "kfl/kflC_ButterworthFilter.h"
#include "kfl/kflC_Chebyshev1Filter.h"
#include "kfl/kflC_Chebyshev2Filter.h"
#include "kfl/kflC_OperatorFilter.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

std::string KflFailure(const kflC_Filter& f) {
  try {
    f.AssertValid();
  } catch (const nex_PrimError& e) {
    EXPECT_STREQ(e.File(), "QMXOdbKflC.m/src/kflC_Filter");
    EXPECT_EQ(e.Line(), 38);
    return e.Message();
  }
  return "";
}

const std::string kCutoff = "The cutoff frequency must be greater than zero.";
const std::string kButterworthOrder = "The order of a Butterworth filter must be between 1 and 20.";
const std::string kChebyshevOrder = "The order of a Chebyshev filter must be between 1 and 10.";
const std::string kRipple = "The ripple factor must be greater than zero and less than one.";
const std::string kOperation = "An operator filter must specify an operation.";
const std::string kHalt = "A limit must be specified to halt the analysis.";

using Op = kflC_Filter::OperationEnm;

// A frequency filter of kind F with a cutoff, changed by the case.
template <class F>
std::unique_ptr<kflC_Filter> KflFrequency(const std::function<void(F&)>& change) {
  auto f = std::make_unique<F>();
  f->SetCutoffFrequency(100);
  change(*f);
  return f;
}

TEST(KflValidation, EachKindAtItsBoundaries) {
  using B = kflC_ButterworthFilter;
  using C1 = kflC_Chebyshev1Filter;
  using C2 = kflC_Chebyshev2Filter;
  using O = kflC_OperatorFilter;
  struct Row {
    const char* what;
    std::unique_ptr<kflC_Filter> filter;
    std::string message;
  };
  Row rows[] = {
      {"butterworth", KflFrequency<B>([](B&) {}), ""},
      {"butterworth default cutoff", std::make_unique<B>(), kCutoff},
      {"butterworth cutoff NaN", KflFrequency<B>([](B& f) { f.SetCutoffFrequency(kNaN); }), kCutoff},
      {"butterworth order 1", KflFrequency<B>([](B& f) { f.SetOrder(1); }), ""},
      {"butterworth order 20", KflFrequency<B>([](B& f) { f.SetOrder(20); }), ""},
      {"butterworth order 0", KflFrequency<B>([](B& f) { f.SetOrder(0); }), kButterworthOrder},
      {"butterworth order 21", KflFrequency<B>([](B& f) { f.SetOrder(21); }), kButterworthOrder},
      {"chebyshev I order 10", KflFrequency<C1>([](C1& f) { f.SetOrder(10); }), ""},
      {"chebyshev I order 11", KflFrequency<C1>([](C1& f) { f.SetOrder(11); }), kChebyshevOrder},
      {"chebyshev II order 0", KflFrequency<C2>([](C2& f) { f.SetOrder(0); }), kChebyshevOrder},
      {"chebyshev I ripple 0", KflFrequency<C1>([](C1& f) { f.SetRippleFactor(0); }), kRipple},
      {"chebyshev II ripple 1", KflFrequency<C2>([](C2& f) { f.SetRippleFactor(1); }), kRipple},
      {"chebyshev II ripple 0.999", KflFrequency<C2>([](C2& f) { f.SetRippleFactor(0.999); }), ""},
      {"chebyshev I ripple NaN", KflFrequency<C1>([](C1& f) { f.SetRippleFactor(kNaN); }), kRipple},
      {"halt without limit", KflFrequency<B>([](B& f) { f.SetHalt(true); }), kHalt},
      {"halt at a limit", KflFrequency<C1>([](C1& f) {
         f.SetHalt(true);
         f.SetLimit(-3);
       }),
       ""},
      {"operator without operation", std::make_unique<O>(), kOperation},
      {"operator ABS", [] {
         auto f = std::make_unique<O>();
         f->SetOperation(Op::ABS);
         return f;
       }(),
       ""},
      {"operator halting without limit", [] {
         auto f = std::make_unique<O>();
         f->SetOperation(Op::MAX);
         f->SetHalt(true);
         return f;
       }(),
       kHalt},
  };
  for (const Row& r : rows) EXPECT_EQ(KflFailure(*r.filter), r.message) << r.what;
}

TEST(KflValidation, RulesRunInOrder) {
  kflC_Chebyshev2Filter f;
  f.SetOrder(40);
  f.SetRippleFactor(2);
  f.SetHalt(true);
  EXPECT_EQ(KflFailure(f), kCutoff);
  f.SetCutoffFrequency(10);
  EXPECT_EQ(KflFailure(f), kChebyshevOrder);
  f.SetOrder(3);
  EXPECT_EQ(KflFailure(f), kRipple);
  f.SetRippleFactor(0.5);
  EXPECT_EQ(KflFailure(f), kHalt);
  f.SetLimit(1e6);
  EXPECT_EQ(KflFailure(f), "");
}

}  // namespace
