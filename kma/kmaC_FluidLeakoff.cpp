#include "kma/kmaC_FluidLeakoff.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_FluidLeakoff::kmaC_FluidLeakoff(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_FluidLeakoff::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_FluidLeakoff, kmaC_MaterialOption>;
