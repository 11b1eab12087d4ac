#include "kma/kmaC_CastIronPlasticity.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CastIronPlasticity::kmaC_CastIronPlasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CastIronPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_CastIronPlasticity, kmaC_MaterialOption>;
