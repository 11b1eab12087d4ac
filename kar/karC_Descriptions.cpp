#include "kar/karC_Descriptions.h"
#include "kar/karC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKarDescRemeshingRule[] = {
    {"stepName", "The step in which the rule remeshes (required)"},
    {"region", "The region it remeshes (required)"},
    {"description", "A free text describing it"},
    {"variables",
     "The error-indicator output variables that drive remeshing, such as \"MISESERI\" (at "
     "least one, each once)"},
    {"outputFrequency",
     "When the error indicators are evaluated: at the last increment of the step, or every "
     "\"frequency\" increments"},
    {"frequency", "Increments between evaluations with EVERY_N_INCREMENTS (above 0)"},
    {"sizingMethod",
     "How the new element sizes follow from the indicators: the solver's choice, an error spread "
     "uniformly, or sizes between a minimum and a maximum"},
    {"errorTargets",
     "Target error of each variable, in the order of \"variables\" (one per variable, or none "
     "for the solver's targets; each above 0)"},
    {"refinementFactor",
     "Factor on the size of elements where the error is high (above 0, at most 1; the largest "
     "double: the solver's default)"},
    {"coarseningFactor",
     "Factor on the size of elements where the error is low (at least 1; the largest double: the "
     "solver's default)"},
    {"minElementSize",
     "Smallest element size of the new mesh (above 0, below maxElementSize; the largest double: "
     "the solver's default)"},
    {"maxElementSize",
     "Largest element size of the new mesh (above 0; the largest double: the solver's default)"},
    {"elementCountLimit", "Most elements the new mesh may have (above 0), or \"UNLIMITED\""},
};
constexpr int kKarCodesRemeshingRule[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
constexpr cls_ClassDescription kKarDescriptions[] = {
    {"karC_RemeshingRule",
     "A remeshing rule of adaptive meshing: for one step and one region, the error-indicator "
     "output variables that drive remeshing, how often they are evaluated, how the new element "
     "sizes are chosen and how many elements the new mesh may have.",
     kKarDescRemeshingRule, nullptr, kKarCodesRemeshingRule},
};
}  // namespace

std::span<const cls_ClassDescription> karC_DescriptionsTable() { return kKarDescriptions; }

void karC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return karC_ErrorMessage(static_cast<karC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kar", karC_DescriptionsTable(), messages);
}
void karC_UnregisterDescriptions() { cls_UnregisterDescriptions("kar"); }
