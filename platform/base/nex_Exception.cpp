#include "platform/base/nex_Exception.h"

// Out of line: the type information of both families is emitted here only (see QMXBasException).
nex_PrimError::~nex_PrimException() = default;
nex_CmdError::~nex_CmdException() = default;

void nex_ThrowCmd(const std::string& message, const char* file, int line) {
  nex_CmdError(atr_raw(message.c_str())).Throw(file, line);
}
