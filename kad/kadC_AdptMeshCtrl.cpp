#include "kad/kadC_AdptMeshCtrl.h"

#include "framework/fw_FieldTable.h"
#include "kad/kadC_assert.h"

kadC_AdptMeshCtrl::kadC_AdptMeshCtrl(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kadC_AdptMeshCtrl::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kadC_AdptMeshCtrl* kadC_AdptMeshCtrl::Copy() const { return new kadC_AdptMeshCtrl(*this); }
bool kadC_AdptMeshCtrl::operator==(const kadC_AdptMeshCtrl& o) const { return fw_EqualFields(*this, o); }
void kadC_AdptMeshCtrl::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kadC_AdptMeshCtrl>(r); }
void kadC_AdptMeshCtrl::CowDtor(void* p) { fw_CowDtor<kadC_AdptMeshCtrl>(p); }

// Written so that a NaN fails every rule it reaches. The sum of the weights is deliberately not
// checked, and the standard volumetric weight reports the volumetric weight's message.
void kadC_AdptMeshCtrl::AssertValid() const {
  kadC_Assert(initialFeatureAngle >= 0 && initialFeatureAngle <= 180, kadC_InitialFeatureAngleOutOfRange);
  kadC_Assert(transitionFeatureAngle >= 0 && transitionFeatureAngle <= 180, kadC_TransitionFeatureAngleOutOfRange);
  kadC_Assert(volumetricSmoothingWeight >= 0, kadC_VolumetricWeightNegative);
  kadC_Assert(standardVolumetricSmoothingWeight >= 0, kadC_VolumetricWeightNegative);
  kadC_Assert(laplacianSmoothingWeight >= 0, kadC_LaplacianWeightNegative);
  kadC_Assert(equipotentialSmoothingWeight >= 0, kadC_EquipotentialWeightNegative);
  kadC_Assert(originalConfigurationProjectionWeight >= 0, kadC_ProjectionWeightNegative);
  kadC_Assert(meshConstraintAngle >= 0 && meshConstraintAngle <= 180, kadC_MeshConstraintAngleOutOfRange);
  kadC_Assert(curvatureRefinement >= 0, kadC_CurvatureRefinementNegative);
}
