#include "kma/kmaC_Eos.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Eos::kmaC_Eos(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Eos* kmaC_Eos::Copy() const { return mem_New<kmaC_Eos>(*this); }
void kmaC_Eos::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Eos::operator==(const kmaC_Eos& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Eos::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Eos&>(o); }
void kmaC_Eos::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Eos>(r); }
void kmaC_Eos::CowDtor(void* p) { fw_CowDtor<kmaC_Eos>(p); }

void kmaC_Eos::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(detonationEnergy >= 0.0, kmaC_DetonationEnergyNegative);
  if (const kmaC_MaterialOption* sub = eosShear.ConstGet()) sub->AssertValid();
  table.AssertValid();
  solidTable.AssertValid();
  gasTable.AssertValid();
}
