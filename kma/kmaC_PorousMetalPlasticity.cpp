#include "kma/kmaC_PorousMetalPlasticity.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_PorousMetalPlasticity::kmaC_PorousMetalPlasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_PorousMetalPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(relativeDensity <= 1.0, kmaC_FractionAboveMaximum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_PorousMetalPlasticity, kmaC_MaterialOption>;
