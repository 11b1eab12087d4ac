#include "kad/kadC_AdptMeshCtrl.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kad/kadC_assert.h"

kadC_AdptMeshCtrl::kadC_AdptMeshCtrl(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

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

template class fw_PersistentClass<kadC_AdptMeshCtrl, mem_Allocated>;
