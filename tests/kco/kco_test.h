#pragma once
// Shared by the constraint tests: a started module and validation expectations.
#include <gtest/gtest.h>

#include <string>

#include "kco/QMXOdbKcoC.h"
#include "kco/kcoC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kco_Start() {
  qmx_StartLibrary();
  static const bool started = [] {
    int tally = 0;
    QMXOdbKcoC_initialize(tally);
    return true;
  }();
  (void)started;
}

// Expects obj.AssertValid() to fail with exactly this message from the module's assert source.
template <class T>
void kco_ExpectFailure(const T& obj, const std::string& message) {
  auto e = qmx_Catch<nex_PrimError>([&] { obj.AssertValid(); });
  EXPECT_EQ(e.Message(), message);
  EXPECT_STREQ(e.File(), "QMXOdbKcoC.m/src/kcoC_assert");
  EXPECT_STREQ(e.Kind(), "PrimException");
}
