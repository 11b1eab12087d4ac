#include "klc/klcC_Descriptions.h"
#include "klc/klcC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKlcDescLoadCase[] = {
    {"stepName", "The step whose loads and boundary conditions the case combines (required)"},
    {"description", "A free text describing it"},
    {"loads", "The loads of the model it combines, each by name with its factor (each once)"},
    {"boundaryConditions",
     "The boundary conditions of the model it combines, each by name with its factor (each once; "
     "with the loads, at least one in all)"},
};
constexpr int kKlcCodesLoadCase[] = {0, 1, 2, 3, 5, 4};
constexpr cls_MemberDescription kKlcDescLoadCaseTerm[] = {
    {"name", "The name of the load or boundary condition of the model (required)"},
    {"scaleFactor", "The factor its magnitude is scaled by (finite; 0 switches it off)"},
};
constexpr int kKlcCodesLoadCaseTerm[] = {2, 5};
constexpr cls_ClassDescription kKlcDescriptions[] = {
    {"klcC_LoadCase",
     "A load case: a named combination, for one step, of loads and boundary conditions of the "
     "model, each with the factor it is scaled by.",
     kKlcDescLoadCase, nullptr, kKlcCodesLoadCase},
    {"klcC_LoadCaseTerm",
     "One member of a load case: a load or boundary condition of the model, by name, with the "
     "factor it is scaled by.",
     kKlcDescLoadCaseTerm, nullptr, kKlcCodesLoadCaseTerm},
};
}  // namespace

std::span<const cls_ClassDescription> klcC_DescriptionsTable() { return kKlcDescriptions; }

void klcC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return klcC_ErrorMessage(static_cast<klcC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("klc", klcC_DescriptionsTable(), messages);
}
void klcC_UnregisterDescriptions() { cls_UnregisterDescriptions("klc"); }
