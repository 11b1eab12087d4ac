#include "platform/base/nex_Exception.h"

#include <cstring>

// Out of line: the type information of both families is emitted here only (see QMXBasException).
nex_PrimError::~nex_PrimException() = default;
nex_CmdError::~nex_CmdException() = default;

void nex_ThrowCmd(const std::string& message, const char* file, int line) {
  // The file's own name: the folder it was compiled from depends on the build, not on the system.
  const char* slash = file ? std::strrchr(file, '/') : nullptr;
  nex_CmdError(atr_raw(message.c_str())).Throw(slash ? slash + 1 : file, line);
}
