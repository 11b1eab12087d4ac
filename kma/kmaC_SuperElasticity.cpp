#include "kma/kmaC_SuperElasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_SuperElasticity::kmaC_SuperElasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_SuperElasticity* kmaC_SuperElasticity::Copy() const { return mem_New<kmaC_SuperElasticity>(*this); }
void kmaC_SuperElasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_SuperElasticity::operator==(const kmaC_SuperElasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_SuperElasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_SuperElasticity&>(o); }
void kmaC_SuperElasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_SuperElasticity>(r); }
void kmaC_SuperElasticity::CowDtor(void* p) { fw_CowDtor<kmaC_SuperElasticity>(p); }

void kmaC_SuperElasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
