#pragma once
/// \file
/// Starting and stopping the library: every module registers its classes and repositories when
/// the library starts, so a host starts it before it makes a database and stops it when done.
#include "frame/QMXOdbAttrEO2.h"

namespace qmx {

/// Keeps the library started while it lives: the constructor starts it (the framework, then
/// every module), the destructor stops it. Starts are counted, so guards may nest and the
/// library stops with the last one. Not thread-safe: make and drop guards from one thread.
class Library {
 public:
  /// Starts the library (or counts one more user when it runs already).
  Library() { QMXOdbAttrEO2_initialize(tally_); }
  /// Stops the library when this was its last user.
  ~Library() { QMXOdbAttrEO2_finalize(tally_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

 private:
  int tally_ = 0;
};

}  // namespace qmx
