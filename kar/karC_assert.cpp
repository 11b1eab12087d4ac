#include "kar/karC_assert.h"

#include "framework/fw_Assert.h"

namespace {
constexpr const char* karC_kMessages[] = {
    "A step must be specified.",
    "A region must be specified.",
    "At least one error indicator output variable must be specified.",
    "An output variable may be specified only once.",
    "Output frequency must be greater than zero.",
    "Error targets must be given for every output variable or for none.",
    "Error targets must be greater than zero.",
    "Refinement factor must be greater than zero and less than or equal to one.",
    "Coarsening factor must be greater than or equal to one.",
    "Minimum element size must be greater than zero.",
    "Maximum element size must be greater than zero.",
    "Minimum element size must be less than maximum element size.",
    "Element count limit must be greater than zero.",
};
}  // namespace

const char* karC_ErrorMessage(karC_ErrorEnm code) { return fw_MessageAt(karC_kMessages, code); }

void karC_Assert(bool ok, karC_ErrorEnm code) {
  fw_ModuleAssert(ok, karC_ErrorMessage(code), karC_kAssertFile, karC_kAssertLine);
}
