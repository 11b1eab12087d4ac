#include "kef/kefC_assert.h"

#include <iterator>

#include "framework/fw_Assert.h"

namespace {
// The texts are the system's own, missing full stops and misspellings included; code 42 is a
// placeholder that no rule raises.
constexpr const char* kMessages[] = {
    "Point mass/Inertia must contain mass or rotary inertia data.",
    "Diagonal terms of rotary inertia cannot possess negative magnitude",
    "Mid-side node parameter should lie between 0.0 and 1.0.",
    "Either the spring stiffness or dashpot coefficient, or both, must be selected for the spring/dashpot.",
    "The region for the spring/dashpot to ground is invalid.",
    "The degree of freedom for the spring/dashpot to ground must be specified.",
    "At least one pair of points must be selected for the spring/dashpot.",
    "The degree of freedom at point 1 must be specified.",
    "The degree of freedom at point 2 must be specified.",
    "The dashpot coefficient must be greater than zero.",
    "The spring stiffness must be greater than zero.",
    "Nonstructural mass data cannot possess negative magnitude.",
    "Influence radius must be specified and must be greater than zero.",
    "Search radius must be greater than zero.",
    "Physical radius must be specified and must be greater than zero.",
    "Maximum layers must be greater than zero.",
    "A connector section must be specified.",
    "Specified MPC section not yet supported for point fasteners. Point fastener supports only beam type MPC section from available MPC sections.",
    "The singularityCalcRadius must be greater than zero.",
    "The length of nodeId must match other array lengths.",
    "The length of hasCrackFront must match other array lengths.",
    "The length of crackPlaneDist must match other array lengths.",
    "The length of crackFrontDist must match other array lengths.",
    "The crackLocation must be specified when crack growth is not allowed.",
    "Suppressed cracks cannot be edited.",
    "Suppressed inertias cannot be edited.",
    "Suppressed springs/dashpots cannot be edited.",
    "Suppressed fasteners cannot be edited.",
    "A template model must be specified.",
    "A control point set must be specified.",
    "A model prefix string must be specified.",
    "The model prefix string cannot contain an underscore.",
    "The number of template model surfaces must match the number of assignment model surfaces.",
    "At least one template model surface and one assignment model surface must be specified.",
    "The template model and assignment model surface names cannot be empty/blank.",
    "Point mass/inertia cannot contain both isotropic and anisotropic mass values.",
    "An interaction must be specified.",
    "An initiation step must be specified.",
    "Print frequency to DAT file value cannot be negative.",
    "The interaction specified in the Debond VCCT crack must be Tessar/Standard contact pair interaction",
    "The step specified in the Debond VCCT crack must be an Tessar/Standard step",
    "The target surface cannot be an edge based for Point fastners.",
    "Dummy",
};
static_assert(std::size(kMessages) == kefC_Dummy + 1, "one message per code");
}  // namespace

const char* kefC_ErrorMessage(kefC_ErrorEnm code) { return fw_MessageAt(kMessages, code); }

void kefC_Assert(bool ok, kefC_ErrorEnm code) {
  fw_ModuleAssert(ok, kefC_ErrorMessage(code), kefC_kAssertFile, kefC_kAssertLine);
}
