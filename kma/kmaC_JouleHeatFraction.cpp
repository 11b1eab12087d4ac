#include "kma/kmaC_JouleHeatFraction.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_JouleHeatFraction::kmaC_JouleHeatFraction(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_JouleHeatFraction::AssertValid() const {
  kmaC_Assert(fraction <= 1.0, kmaC_FractionAboveMaximum);
}

template class fw_PersistentClass<kmaC_JouleHeatFraction, kmaC_MaterialOption>;
