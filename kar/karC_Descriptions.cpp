#include "kar/karC_Descriptions.h"
#include "kar/karC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKarDescRemeshingRule[] = {
    {"stepName", "Step name"},
    {"region", "The region it applies to"},
    {"description", "A free text describing it"},
    {"variables", "Variables"},
    {"outputFrequency", "Output frequency"},
    {"frequency", "Frequency"},
    {"sizingMethod", "Sizing method"},
    {"errorTargets", "Error targets"},
    {"refinementFactor", "Refinement factor"},
    {"coarseningFactor", "Coarsening factor"},
    {"minElementSize", "Min element size"},
    {"maxElementSize", "Max element size"},
    {"elementCountLimit", "Element count limit"},
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
