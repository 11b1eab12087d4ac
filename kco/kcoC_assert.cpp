#include "kco/kcoC_assert.h"

#include <iterator>

#include "framework/fw_Assert.h"

namespace {
// The texts are the system's own, misspelling of code 1 included.
constexpr const char* kMessages[] = {
    "Equation must have two or more terms.",
    "The Cosntraint container is empty.",
    "Constraint does not exist.",
    "Unable to copy unknown constraint type.",
    "Degree of freedom must be greater than zero.",
    "The main portion of the Tie constraint must be a surface.",
    "Set to adjust for Tie-constraint overclosure is invalid.",
    "Rotational DOF's cannot be tied in an Explicit analysis.",
    "For the distributing constraint, all displacement degrees of freedom\nneed to be constrained.",
    "The display body constraint must have a valid instance.",
};
static_assert(std::size(kMessages) == kcoC_DisplayBodyWithoutInstance + 1, "one message per code");
}  // namespace

const char* kcoC_ErrorMessage(kcoC_ErrorEnm code) { return fw_MessageAt(kMessages, code); }

void kcoC_Assert(bool ok, kcoC_ErrorEnm code) {
  fw_ModuleAssert(ok, kcoC_ErrorMessage(code), kcoC_kAssertFile, kcoC_kAssertLine);
}
