#include "kad/kadC_assert.h"

#include "framework/fw_Assert.h"

namespace {
constexpr const char* kMessages[] = {
    "Frequency value must be greater than zero.",
    "Initial remeshing sweeps must be greater than zero.",
    "Sweeps per increment must be greater than zero.",
    "Free boundary upwinding factor must be greater than or equal to zero and less than or equal to one.",
    "Initial feature angle must be greater than or equal to zero and less than or equal to 180.",
    "Transition feature angle must be greater than or equal to zero and less than or equal to 180.",
    "Volumetric smoothing weight must be greater than or equal to zero.",
    "Laplacian smoothing weight must be greater than or equal to zero.",
    "Equipotential smoothing weight must be greater than or equal to zero.",
    "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180.",
    "The sum of smoothing weights must be less than or equal to one.",
    "A region must be specified.",
    "Curvature refinement must be greater than or equal to zero.",
    "Original configuration projection weight must be greater than or equal to zero.",
};
}  // namespace

const char* kadC_ErrorMessage(kadC_ErrorEnm code) { return fw_MessageAt(kMessages, code); }

void kadC_Assert(bool ok, kadC_ErrorEnm code) {
  fw_ModuleAssert(ok, kadC_ErrorMessage(code), "QMXOdbKadC.m/src/kadC_assert", 71);
}
