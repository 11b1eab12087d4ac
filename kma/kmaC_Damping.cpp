#include "kma/kmaC_Damping.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_Damping::kmaC_Damping(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

// Stiffness-proportional damping may not be negative.
void kmaC_Damping::AssertValid() const {
  kmaC_Assert(beta >= 0.0, kmaC_BetaNegative);
}

template class fw_PersistentClass<kmaC_Damping, kmaC_MaterialOption>;
