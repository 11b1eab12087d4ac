#include "framework/fw_Assert.h"

#include "platform/base/nex_Exception.h"

void fw_ModuleAssert(bool ok, const char* message, const char* file, int line) {
  if (ok) return;
  nex_PrimError(atr_raw(message, 0)).Throw(file, line);
}
