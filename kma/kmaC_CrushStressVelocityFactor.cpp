#include "kma/kmaC_CrushStressVelocityFactor.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CrushStressVelocityFactor::kmaC_CrushStressVelocityFactor(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CrushStressVelocityFactor::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_CrushStressVelocityFactor, kmaC_MaterialOption>;
