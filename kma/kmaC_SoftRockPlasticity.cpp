#include "kma/kmaC_SoftRockPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_SoftRockPlasticity::kmaC_SoftRockPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_SoftRockPlasticity* kmaC_SoftRockPlasticity::Copy() const { return mem_New<kmaC_SoftRockPlasticity>(*this); }
void kmaC_SoftRockPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_SoftRockPlasticity::operator==(const kmaC_SoftRockPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_SoftRockPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_SoftRockPlasticity&>(o); }
void kmaC_SoftRockPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_SoftRockPlasticity>(r); }
void kmaC_SoftRockPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_SoftRockPlasticity>(p); }

void kmaC_SoftRockPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
