#include "kma/kmaC_CastIronPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_CastIronPlasticity::kmaC_CastIronPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_CastIronPlasticity* kmaC_CastIronPlasticity::Copy() const { return mem_New<kmaC_CastIronPlasticity>(*this); }
void kmaC_CastIronPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_CastIronPlasticity::operator==(const kmaC_CastIronPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_CastIronPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_CastIronPlasticity&>(o); }
void kmaC_CastIronPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_CastIronPlasticity>(r); }
void kmaC_CastIronPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_CastIronPlasticity>(p); }

void kmaC_CastIronPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
