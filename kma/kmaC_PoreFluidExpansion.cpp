#include "kma/kmaC_PoreFluidExpansion.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_PoreFluidExpansion::kmaC_PoreFluidExpansion(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_PoreFluidExpansion::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_PoreFluidExpansion, kmaC_MaterialOption>;
