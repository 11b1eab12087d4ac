#include "kma/kmaC_CapCreepConsolidation.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CapCreepConsolidation::kmaC_CapCreepConsolidation(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CapCreepConsolidation* kmaC_CapCreepConsolidation::Copy() const { return mem_New<kmaC_CapCreepConsolidation>(*this); }
void kmaC_CapCreepConsolidation::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CapCreepConsolidation::operator==(const kmaC_CapCreepConsolidation& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CapCreepConsolidation::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CapCreepConsolidation&>(o); }
void kmaC_CapCreepConsolidation::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CapCreepConsolidation>(r); }
void kmaC_CapCreepConsolidation::CowDtor(void* p) { fw_CowDtor<kmaC_CapCreepConsolidation>(p); }

void kmaC_CapCreepConsolidation::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (law != LawEnm::USER) table.AssertValid();
}
