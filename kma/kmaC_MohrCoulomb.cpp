#include "kma/kmaC_MohrCoulomb.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_MohrCoulomb::kmaC_MohrCoulomb(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_MohrCoulomb::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(meridionalEccentricity >= 0.0, kmaC_EccentricityBelowMinimum);
  // The flow potential stays convex and smooth only for 0.5 < e <= 1.
  kmaC_Assert(deviatoricEccentricity > 0.5 && deviatoricEccentricity <= 1.0, kmaC_InvalidFlowPotentialEccentricity);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_MohrCoulomb, kmaC_MaterialOption>;
