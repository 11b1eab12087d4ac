#include "platform/base/QMXBasException.h"

QMXBasException::~QMXBasException() = default;

void QMXBasException::Throw(const char* file, int line) {
  file_ = file ? file : "";
  line_ = line;
  Raise();
  throw *this;  // not reached: Raise throws the most derived type
}
