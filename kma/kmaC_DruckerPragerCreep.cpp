#include "kma/kmaC_DruckerPragerCreep.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_DruckerPragerCreep::kmaC_DruckerPragerCreep(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_DruckerPragerCreep::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}

template class fw_PersistentClass<kmaC_DruckerPragerCreep, kmaC_MaterialOption>;
