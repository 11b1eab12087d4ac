#include "kma/kmaC_CapPlasticity.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_CapPlasticity::kmaC_CapPlasticity(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_CapPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* sub = capCreepCohesion.ConstGet()) sub->AssertValid();
  if (const kmaC_MaterialOption* sub = capCreepConsolidation.ConstGet()) sub->AssertValid();
  if (const kmaC_MaterialOption* sub = capCreep.ConstGet()) sub->AssertValid();
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_CapPlasticity, kmaC_MaterialOption>;
