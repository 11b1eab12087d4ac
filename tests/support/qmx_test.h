#pragma once
// Shared test helpers: expectations on the framework's exceptions and a started library.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/base/QMXBasException.h"

// Runs fn and returns the exception of type E it throws; fails the test when it throws nothing
// or something else.
template <class E>
E qmx_Catch(const std::function<void()>& fn) {
  try {
    fn();
  } catch (const E& e) {
    return e;
  } catch (const std::exception& e) {
    ADD_FAILURE() << "threw another exception: " << e.what();
    throw;
  }
  ADD_FAILURE() << "threw nothing";
  throw std::runtime_error("expected exception not thrown");
}

// Makes sure the library is started (loading it starts it).
void qmx_StartLibrary();

// A fresh temporary directory for one test, removed by the caller's choice of path only.
std::string qmx_TempDir(const std::string& name);
