#include "kma/kmaC_CyclicHardening.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CyclicHardening::kmaC_CyclicHardening(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CyclicHardening::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_CyclicHardening, kmaC_MaterialOption>;
