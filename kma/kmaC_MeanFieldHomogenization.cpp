#include "kma/kmaC_MeanFieldHomogenization.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_MeanFieldHomogenization::kmaC_MeanFieldHomogenization(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_MeanFieldHomogenization::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(angleIncrement > 0, kmaC_AngleIncrementNotPositive);
}

template class fw_PersistentClass<kmaC_MeanFieldHomogenization, kmaC_MaterialOption>;
