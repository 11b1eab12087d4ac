#include "kma/kmaC_ThicknessBehavior.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_ThicknessBehavior::kmaC_ThicknessBehavior(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_ThicknessBehavior::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(contactArea == 0.0 || units == UnitsEnm::FORCE, kmaC_GasketAreaWithoutForceUnits);
  kmaC_Assert(tensileStiffnessFactor > 0.0, kmaC_TensileStiffnessNotPositive);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_ThicknessBehavior, kmaC_MaterialOption>;
