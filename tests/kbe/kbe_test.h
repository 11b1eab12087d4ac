#pragma once
// Shared by the connector behavior tests: a started module and validation expectations.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "kbe/QMXOdbKbeC.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kbe_Start() {
  qmx_StartLibrary();
  static const bool started = [] {
    int tally = 0;
    QMXOdbKbeC_initialize(tally);
    return true;
  }();
  (void)started;
}

// The message AssertValid fails with; empty when it passes.
template <class T>
std::string kbe_Failure(const T& obj) {
  try {
    obj.AssertValid();
  } catch (const nex_PrimError& e) {
    return e.what();
  }
  return "";
}

// One case: a change to a valid object and the message it must then fail with ("" to pass).
template <class T>
struct kbe_Case {
  const char* what;
  std::function<void(T&)> change;
  std::string message;
};

template <class T>
void kbe_Check(const T& valid, const std::vector<kbe_Case<T>>& cases) {
  ASSERT_EQ(kbe_Failure(valid), "");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    T obj = valid;
    c.change(obj);
    const T before = obj;
    EXPECT_EQ(kbe_Failure(obj), c.message);
    EXPECT_TRUE(obj == before);  // validation changes nothing
  }
}
