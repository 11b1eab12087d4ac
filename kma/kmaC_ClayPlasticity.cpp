#include "kma/kmaC_ClayPlasticity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_ClayPlasticity::kmaC_ClayPlasticity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_ClayPlasticity* kmaC_ClayPlasticity::Copy() const { return mem_New<kmaC_ClayPlasticity>(*this); }
void kmaC_ClayPlasticity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_ClayPlasticity::operator==(const kmaC_ClayPlasticity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_ClayPlasticity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_ClayPlasticity&>(o); }
void kmaC_ClayPlasticity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_ClayPlasticity>(r); }
void kmaC_ClayPlasticity::CowDtor(void* p) { fw_CowDtor<kmaC_ClayPlasticity>(p); }

void kmaC_ClayPlasticity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
