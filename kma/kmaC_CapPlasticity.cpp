#include "kma/kmaC_CapPlasticity.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_CapPlasticity::kmaC_CapPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CapPlasticity* kmaC_CapPlasticity::Copy() const { return mem_New<kmaC_CapPlasticity>(*this); }
void kmaC_CapPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CapPlasticity::operator==(const kmaC_CapPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CapPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CapPlasticity&>(o); }
void kmaC_CapPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CapPlasticity>(r); }
void kmaC_CapPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_CapPlasticity>(p); }

void kmaC_CapPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* sub = capCreepCohesion.ConstGet()) sub->AssertValid();
  if (const kmaC_MaterialOption* sub = capCreepConsolidation.ConstGet()) sub->AssertValid();
  if (const kmaC_MaterialOption* sub = capCreep.ConstGet()) sub->AssertValid();
  table.AssertValid();
}
