#include "kma/kmaC_ElectrodeParticle.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_ElectrodeParticle::kmaC_ElectrodeParticle(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ElectrodeParticle* kmaC_ElectrodeParticle::Copy() const { return mem_New<kmaC_ElectrodeParticle>(*this); }
void kmaC_ElectrodeParticle::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ElectrodeParticle::operator==(const kmaC_ElectrodeParticle& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ElectrodeParticle::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ElectrodeParticle&>(o); }
void kmaC_ElectrodeParticle::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ElectrodeParticle>(r); }
void kmaC_ElectrodeParticle::CowDtor(void* p) { fw_CowDtor<kmaC_ElectrodeParticle>(p); }

void kmaC_ElectrodeParticle::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  for (const kmaC_MaterialOption* sub : {diffusivity.ConstGet(), electricalConductivity.ConstGet()})
    if (sub) sub->AssertValid();
  table.AssertValid();
}
