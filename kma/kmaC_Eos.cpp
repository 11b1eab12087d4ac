#include "kma/kmaC_Eos.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Eos::kmaC_Eos(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Eos::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(detonationEnergy >= 0.0, kmaC_DetonationEnergyNegative);
  if (const kmaC_MaterialOption* sub = eosShear.ConstGet()) sub->AssertValid();
  table.AssertValid();
  solidTable.AssertValid();
  gasTable.AssertValid();
}

template class fw_PersistentClass<kmaC_Eos, kmaC_MaterialOption>;
