#include "kma/kmaC_CapCreep.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CapCreep::kmaC_CapCreep(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CapCreep::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}

template class fw_PersistentClass<kmaC_CapCreep, kmaC_MaterialOption>;
