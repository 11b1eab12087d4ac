#include "kma/kmaC_ElectrodeParticle.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_ElectrodeParticle::kmaC_ElectrodeParticle(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_ElectrodeParticle::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  for (const kmaC_MaterialOption* sub : {diffusivity.ConstGet(), electricalConductivity.ConstGet()})
    if (sub) sub->AssertValid();
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_ElectrodeParticle, kmaC_MaterialOption>;
