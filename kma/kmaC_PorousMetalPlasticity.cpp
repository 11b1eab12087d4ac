#include "kma/kmaC_PorousMetalPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_PorousMetalPlasticity::kmaC_PorousMetalPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_PorousMetalPlasticity* kmaC_PorousMetalPlasticity::Copy() const { return mem_New<kmaC_PorousMetalPlasticity>(*this); }
void kmaC_PorousMetalPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_PorousMetalPlasticity::operator==(const kmaC_PorousMetalPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_PorousMetalPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_PorousMetalPlasticity&>(o); }
void kmaC_PorousMetalPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_PorousMetalPlasticity>(r); }
void kmaC_PorousMetalPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_PorousMetalPlasticity>(p); }

void kmaC_PorousMetalPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(relativeDensity <= 1.0, kmaC_FractionAboveMaximum);
  table.AssertValid();
}
