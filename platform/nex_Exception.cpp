#include "platform/nex_Exception.h"

void nex_ThrowCmd(const std::string& message, std::source_location where) {
  nex_CmdError(atr_raw(message.c_str())).Throw(where.file_name(), static_cast<int>(where.line()));
}
