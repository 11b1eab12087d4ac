#include "kma/kmaC_BrittleCracking.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_BrittleCracking::kmaC_BrittleCracking(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_BrittleCracking::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* sub = shearRetention.ConstGet()) sub->AssertValid();
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_BrittleCracking, kmaC_MaterialOption>;
