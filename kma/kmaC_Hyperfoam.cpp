#include "kma/kmaC_Hyperfoam.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Hyperfoam::kmaC_Hyperfoam(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Hyperfoam::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(n >= 1, kmaC_NBelowMinimum);
  kmaC_Assert(n <= 6, kmaC_NAboveMaximum);
  kmaC_Assert(poisson >= -1.0, kmaC_PoissonBelowMinimum);
  kmaC_Assert(poisson <= 0.5, kmaC_PoissonAboveMaximum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_Hyperfoam, kmaC_MaterialOption>;
