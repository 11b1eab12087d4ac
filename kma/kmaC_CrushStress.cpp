#include "kma/kmaC_CrushStress.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_CrushStress::kmaC_CrushStress(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CrushStress::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
  if (const kmaC_MaterialOption* factor = crushStressVelocityFactor.ConstGet()) factor->AssertValid();
}

template class fw_PersistentClass<kmaC_CrushStress, kmaC_MaterialOption>;
