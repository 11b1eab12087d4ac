#pragma once
// Shared by the beam profile tests: a started module and validation expectations.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kbp/QMXOdbKbpC.h"
#include "kbp/kbpC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kbp_Start() {
  qmx_StartLibrary();
  static const bool started = [] {
    int tally = 0;
    QMXOdbKbpC_initialize(tally);
    return true;
  }();
  (void)started;
}

// One validation case: a change to a valid default profile and the code it must fail with
// (kPasses when it must still validate).
inline constexpr int kPasses = -1;
template <class P>
struct kbp_Case {
  const char* what;
  std::function<void(P&)> change;
  int code;
};

template <class P>
void kbp_CheckCases(const std::vector<kbp_Case<P>>& cases) {
  {
    SCOPED_TRACE("default");
    P p;
    EXPECT_NO_THROW(p.AssertValid());
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    P p;
    c.change(p);
    if (c.code == kPasses) {
      EXPECT_NO_THROW(p.AssertValid());
      continue;
    }
    auto e = qmx_Catch<nex_PrimError>([&] { p.AssertValid(); });
    EXPECT_EQ(e.Message(), kbpC_ErrorMessage(static_cast<kbpC_ErrorEnm>(c.code)));
    EXPECT_STREQ(e.File(), "QMXOdbKbpC.m/src/kbpC_assert");
  }
}
