#pragma once
// Shared by the engineering feature tests: a started module and validation expectations.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kef/QMXOdbKefC.h"
#include "kef/kefC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kef_Start() {
  qmx_StartLibrary();
  static const bool started = [] {
    int tally = 0;
    QMXOdbKefC_initialize(tally);
    return true;
  }();
  (void)started;
}

// One validation case: a change to a starting object and the message it must fail with (empty
// when it must pass).
template <class T>
struct kef_Case {
  const char* what;
  std::function<void(T&)> change;
  std::string message;
};

template <class T>
void kef_CheckCases(const T& start, const std::vector<kef_Case<T>>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    T obj = start;
    c.change(obj);
    if (c.message.empty()) {
      EXPECT_NO_THROW(obj.AssertValid());
      continue;
    }
    auto e = qmx_Catch<nex_PrimError>([&] { obj.AssertValid(); });
    EXPECT_EQ(e.Message(), c.message);
    EXPECT_STREQ(e.File(), "QMXOdbKefC.m/src/kefC_assert");
    // a suppressed feature is not validated
    obj.SetSuppress(true);
    EXPECT_NO_THROW(obj.AssertValid());
  }
}
