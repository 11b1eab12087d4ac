#pragma once
// Shared by the amplitude tests: a started module and validation expectations, with the module's
// messages typed out as users read them.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "kam/QMXOdbKamC.h"
#include "kam/kamC_assert.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kam_Start() {
  qmx_StartLibrary();
  static const bool started = [] {
    int tally = 0;
    QMXOdbKamC_initialize(tally);
    return true;
  }();
  (void)started;
}

inline constexpr double kam_kUnspecified = std::numeric_limits<double>::max();

// The module's messages by code, letter for letter.
inline const std::vector<std::string>& kam_Messages() {
  static const std::vector<std::string> m = {
      "Invalid time values, expected monotonically increasing numbers.",
      "Invalid decay time, expected a positive number.",
      "Invalid smoothing parameter, expected a value between 0.0 and 0.5.",
      "Invalid starting time, expected a positive number.",
      "Invalid frequency, expected a positive number.",
      "Invalid circular frequency, expected a positive number.",
      "Invalid circular frequency 1, expected a positive number.",
      "Invalid circular frequency 2, expected a positive number.",
      "Invalid starting time, expected a non-negative number.",
      "Invalid fixed interval, expected a positive number.",
      "Unknown definition.",
      "Number of columns must be less or equal to 2.",
      "The Time-Amplitude table should have at least two rows of data.",
      "Invalid reference gravity acceleration, expected a non-negative value.",
      "Invalid reference power value, expected non-negative number.",
      "Tabular data must have three columns.",
      "The amplitude container is empty.",
      "Unable to copy unknown amplitude.",
      "Invalid amplitude.",
      "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.",
      "Invalid logical relation of initial, minimum and maximum amplitudes.",
      "Initial amplitude must be less or equal than maximum amplitude.",
      "At least one set of fourier coefficients must be specified for periodic amplitude.",
      "A user subroutine cannot be specified with DB.",
      "An empty data table is required for user subroutine.",
      "Frequency band numbers must be between 1 and 15 when using DB.",
      "Moving noise correlation is not yet supported.",
      "A PSD definition is required.",
      "The data parameter cannot be specified with USER.",
      "Data cannot have a length of more than 3 with MOVING_NOISE.",
      "At least one value must be specified with the data parameter.",
      "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED.",
  };
  return m;
}

// One validation case: a change to a valid default object and the code it must fail with
// (kam_kPasses when it must still validate).
inline constexpr int kam_kPasses = -1;
template <class A>
struct kam_Case {
  const char* what;
  std::function<void(A&)> change;
  int code;
};

template <class A>
void kam_CheckCases(const std::vector<kam_Case<A>>& cases) {
  {
    SCOPED_TRACE("default");
    A a;
    EXPECT_NO_THROW(a.AssertValid());
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    A a;
    c.change(a);
    const A before = a;
    if (c.code == kam_kPasses) {
      EXPECT_NO_THROW(a.AssertValid());
      continue;
    }
    auto e = qmx_Catch<nex_PrimError>([&] { a.AssertValid(); });
    EXPECT_EQ(e.Message(), kam_Messages().at(static_cast<std::size_t>(c.code)));
    EXPECT_STREQ(e.File(), "QMXOdbKamC.m/src/kamC_assert");
    EXPECT_TRUE(a == before);  // validation only reads
  }
}
