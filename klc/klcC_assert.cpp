#include "klc/klcC_assert.h"

#include "framework/fw_Assert.h"

namespace {
constexpr const char* klcC_kMessages[] = {
    "A step must be specified.",
    "At least one load or boundary condition must be specified.",
    "Every load and boundary condition of a load case must be named.",
    "A load may appear only once in a load case.",
    "A boundary condition may appear only once in a load case.",
    "Scale factors must be finite numbers.",
};
}  // namespace

const char* klcC_ErrorMessage(klcC_ErrorEnm code) { return fw_MessageAt(klcC_kMessages, code); }

void klcC_Assert(bool ok, klcC_ErrorEnm code) {
  fw_ModuleAssert(ok, klcC_ErrorMessage(code), klcC_kAssertFile, klcC_kAssertLine);
}
