#include "kfd/kfdC_assert.h"

#include <iterator>

#include "framework/fw_Assert.h"

namespace {
constexpr const char* kMessages[] = {
    "An expression must be supplied.",
    "Unable to copy unknown field.",
    "Invalid reference to a coordinate system for an analytical field.",
    "Missing or invalid parameter names in expression for a rectangular or global system.\n"
    "Valid parameter names are X, Y, and Z.",
    "Missing or invalid parameter names in expression for a cylindrical coordinate system.\n"
    "Valid parameter names are R, Th, and Z.",
    "Missing or invalid parameter names in expression for a spherical coordinate system.\n"
    "Valid parameter names are R, Th, and P.",
    "An unknown error has occured in Python while evaluating an analytical field.",
    "Invalid width value specified for the discrete field.",
    "Invalid width value specified for the discrete field data row.",
    "Could not allocate sufficient memory for discrete field data.",
    "Discrete field width value does not match the associated TYPE parameter.",
    "Datatable data is not divisible by width in discrete field.",
    "Datatable data length does not match width * domain length.",
    "Length of defaultValues does not match dataWidth in discrete field.",
    "Discrete Fields are currently supported on Node or Elements only.",
    "Length of defaultValues must be six for discrete field for Prescribed Condition Fields with a DOF.",
    "Length of defaultValues must be one for discrete field for Prescribed Condition Fields without a DOF.",
    "The data width must be one for discrete field for Prescribed Condition Fields without a DOF.",
    "The data width must be two for discrete field for Prescribed Condition Fields with a DOF.",
    "Discrete Fields that define part level orientations may not contain any part instance information as part of "
    "the element ID.",
    "Given discrete field does not exist.",
    "Discrete fields may not contain part instance information when applied at the part level.",
    "Relative search tolerance values should be greater than zero.",
    "Unknown grid point plane with the passed in key value.",
    "Invalid source point data definition for GRID format.",
    "Invalid source point data definition for XYZ format.",
    "The section assignment refers to an incompatible element type.",
};
static_assert(std::size(kMessages) == kfdC_IncompatibleElementType + 1, "one message per code");
}  // namespace

const char* kfdC_ErrorMessage(kfdC_ErrorEnm code) { return fw_MessageAt(kMessages, code); }

void kfdC_Assert(bool ok, kfdC_ErrorEnm code) {
  fw_ModuleAssert(ok, kfdC_ErrorMessage(code), kfdC_kAssertFile, kfdC_kAssertLine);
}
