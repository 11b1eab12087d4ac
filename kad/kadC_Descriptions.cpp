#include "kad/kadC_Descriptions.h"
#include "kad/kadC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKadDescAdptMeshCtrl[] = {
    {"remapping", "Order of the advection that remaps the solution onto the new mesh"},
    {"smoothingAlgorithm", "Algorithm that smooths the mesh"},
    {"smoothingPriority", "Whether smoothing treats all nodes alike or grades them"},
    {"initialFeatureAngle", "Feature angle of the initial geometry (degrees, 0 to 180)"},
    {"transitionFeatureAngle", "Feature angle at geometric transitions (degrees, 0 to 180)"},
    {"momentumAdvection", "How momentum is advected"},
    {"meshingPredictor", "Whether remeshing predicts from the current or the previous mesh"},
    {"curvatureRefinement", "Weight of mesh refinement in curved regions (at least 0)"},
    {"volumetricSmoothingWeight", "Weight of volumetric smoothing (at least 0)"},
    {"standardVolumetricSmoothingWeight", "Weight of standard volumetric smoothing (at least 0)"},
    {"laplacianSmoothingWeight", "Weight of Laplacian smoothing (at least 0)"},
    {"equipotentialSmoothingWeight", "Weight of equipotential smoothing (at least 0)"},
    {"meshConstraintAngle", "Largest angle a mesh constraint may make (degrees, 0 to 180)"},
    {"originalConfigurationProjectionWeight",
     "Weight of the projection onto the original configuration (at least 0)"},
};
constexpr int kKadCodesAdptMeshCtrl[] = {4, 5, 6, 7, 8, 13, 9, 12};
constexpr cls_MemberDescription kKadDescAdptMeshDomain[] = {
    {"region", "The region meshed adaptively"},
    {"controls", "The name of the adaptive mesh control it uses (in adaptiveMeshControls)"},
    {"frequency", "Increments between remeshings (above 0)"},
    {"initialMeshSweeps", "Mesh sweeps before the first increment (2147483647: no limit)"},
    {"meshSweeps", "Mesh sweeps per increment (above 0)"},
};
constexpr int kKadCodesAdptMeshDomain[] = {0, 1, 2};
constexpr cls_ClassDescription kKadDescriptions[] = {
    {"kadC_AdptMeshCtrl",
     "An adaptive mesh control: how an analysis smooths and remaps an adaptive mesh.",
     kKadDescAdptMeshCtrl, nullptr, kKadCodesAdptMeshCtrl},
    {"kadC_AdptMeshDomain",
     "An adaptive mesh domain: adaptive meshing applied to a region, with the control it uses and "
     "how often and how thoroughly to remesh.",
     kKadDescAdptMeshDomain, nullptr, kKadCodesAdptMeshDomain},
};
}  // namespace

std::span<const cls_ClassDescription> kadC_DescriptionsTable() { return kKadDescriptions; }

void kadC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kadC_ErrorMessage(static_cast<kadC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kad", kadC_DescriptionsTable(), messages);
}
void kadC_UnregisterDescriptions() { cls_UnregisterDescriptions("kad"); }
