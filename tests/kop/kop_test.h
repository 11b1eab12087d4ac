#pragma once
// Shared by the optimization tests: a started module and validation expectations.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kop/QMXOdbKopC.h"
#include "kop/kopC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kop_Start() { qmx_StartLibrary(); }

// The message a failing validation reports, checked to come from the module's assert; empty
// when the validation passes.
inline std::string kop_Failure(const std::function<void()>& validate) {
  try {
    validate();
  } catch (const nex_PrimError& e) {
    EXPECT_STREQ(e.File(), "QMXOdbKopC.m/src/kopC_assert");
    EXPECT_EQ(e.Line(), 317);
    return e.Message();
  }
  return "";
}

// One validation case: a change to a valid object and the message it must fail with (empty when
// it must still validate).
template <class T>
struct kop_Case {
  const char* what;
  std::function<void(T&)> change;
  std::string message;
};

template <class T>
void kop_CheckCases(const std::vector<kop_Case<T>>& cases, const std::function<T()>& make = [] { return T(); }) {
  {
    SCOPED_TRACE("as made");
    T t = make();
    EXPECT_EQ(kop_Failure([&] { t.AssertValid(); }), "");
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    T t = make();
    c.change(t);
    EXPECT_EQ(kop_Failure([&] { t.AssertValid(); }), c.message);
  }
}
