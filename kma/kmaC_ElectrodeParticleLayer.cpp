#include "kma/kmaC_ElectrodeParticleLayer.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_ElectrodeParticleLayer::kmaC_ElectrodeParticleLayer(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_ElectrodeParticleLayer::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_ElectrodeParticleLayer, kmaC_MaterialOption>;
