#pragma once
// Shared by the field tests: a started library and validation expectations.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kfd/kfdC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

// One validation case: a change to a valid object and the message it must fail with (empty when
// it must still validate). Messages are typed from the error table, not taken from the code.
template <class P>
struct kfd_Case {
  const char* what;
  std::function<void(P&)> change;
  std::string message;
};

template <class P>
void kfd_CheckCases(const std::function<P()>& valid, const std::vector<kfd_Case<P>>& cases) {
  {
    SCOPED_TRACE("the valid start");
    EXPECT_NO_THROW(valid().AssertValid());
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    P p = valid();
    c.change(p);
    if (c.message.empty()) {
      EXPECT_NO_THROW(p.AssertValid());
      continue;
    }
    const P before = p;
    auto e = qmx_Catch<nex_PrimError>([&] { p.AssertValid(); });
    EXPECT_EQ(e.Message(), c.message);
    EXPECT_STREQ(e.File(), "QMXOdbKfdC.m/src/kfdC_assert");
    EXPECT_EQ(e.Line(), 82);
    EXPECT_TRUE(p == before);
  }
}
