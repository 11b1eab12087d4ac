#include "kma/kmaC_DeformationPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_DeformationPlasticity::kmaC_DeformationPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_DeformationPlasticity* kmaC_DeformationPlasticity::Copy() const { return mem_New<kmaC_DeformationPlasticity>(*this); }
void kmaC_DeformationPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_DeformationPlasticity::operator==(const kmaC_DeformationPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_DeformationPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_DeformationPlasticity&>(o); }
void kmaC_DeformationPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_DeformationPlasticity>(r); }
void kmaC_DeformationPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_DeformationPlasticity>(p); }

void kmaC_DeformationPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
