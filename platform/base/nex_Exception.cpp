#include "platform/base/nex_Exception.h"

void nex_ThrowCmd(const std::string& message, const char* file, int line) {
  nex_CmdError(atr_raw(message.c_str())).Throw(file, line);
}
