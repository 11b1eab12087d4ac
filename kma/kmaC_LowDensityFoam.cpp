#include "kma/kmaC_LowDensityFoam.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_LowDensityFoam::kmaC_LowDensityFoam(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_LowDensityFoam::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(!elementRemoval || maxAllowablePrincipalStress > 0.0, kmaC_MaxPrincipalStressNotPositive);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_LowDensityFoam, kmaC_MaterialOption>;
