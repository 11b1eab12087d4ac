#include "kma/kmaC_CapCreepCohesion.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_CapCreepCohesion::kmaC_CapCreepCohesion(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CapCreepCohesion::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}

template class fw_PersistentClass<kmaC_CapCreepCohesion, kmaC_MaterialOption>;
