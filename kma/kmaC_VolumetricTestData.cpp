#include "kma/kmaC_VolumetricTestData.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_VolumetricTestData::kmaC_VolumetricTestData(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_VolumetricTestData::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(poissonRatio >= -1.0, kmaC_PoissonBelowMinimum);
  kmaC_Assert(poissonRatio <= 0.5, kmaC_PoissonAboveMaximum);
  if (volumetricResponse == VolumetricResponseEnm::VOLUMETRIC_DATA) table.AssertValid();
}

template class fw_PersistentClass<kmaC_VolumetricTestData, kmaC_MaterialOption>;
