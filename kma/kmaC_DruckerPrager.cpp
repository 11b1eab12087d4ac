#include "kma/kmaC_DruckerPrager.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_DruckerPrager::kmaC_DruckerPrager(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_DruckerPrager::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(eccentricity >= 0.0, kmaC_EccentricityBelowMinimum);
  if (const kmaC_MaterialOption* sub = druckerPragerCreep.ConstGet()) sub->AssertValid();
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_DruckerPrager, kmaC_MaterialOption>;
