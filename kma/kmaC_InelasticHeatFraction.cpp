#include "kma/kmaC_InelasticHeatFraction.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_InelasticHeatFraction::kmaC_InelasticHeatFraction(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_InelasticHeatFraction::AssertValid() const {
  kmaC_Assert(fraction <= 1.0, kmaC_FractionAboveMaximum);
}

template class fw_PersistentClass<kmaC_InelasticHeatFraction, kmaC_MaterialOption>;
