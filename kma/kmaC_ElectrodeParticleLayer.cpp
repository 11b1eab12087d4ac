#include "kma/kmaC_ElectrodeParticleLayer.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ElectrodeParticleLayer::kmaC_ElectrodeParticleLayer(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ElectrodeParticleLayer* kmaC_ElectrodeParticleLayer::Copy() const { return mem_New<kmaC_ElectrodeParticleLayer>(*this); }
void kmaC_ElectrodeParticleLayer::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ElectrodeParticleLayer::operator==(const kmaC_ElectrodeParticleLayer& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ElectrodeParticleLayer::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ElectrodeParticleLayer&>(o); }
void kmaC_ElectrodeParticleLayer::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ElectrodeParticleLayer>(r); }
void kmaC_ElectrodeParticleLayer::CowDtor(void* p) { fw_CowDtor<kmaC_ElectrodeParticleLayer>(p); }

void kmaC_ElectrodeParticleLayer::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
