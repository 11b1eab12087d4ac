#include "kma/kmaC_Diffusivity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Diffusivity::kmaC_Diffusivity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Diffusivity* kmaC_Diffusivity::Copy() const { return mem_New<kmaC_Diffusivity>(*this); }
void kmaC_Diffusivity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Diffusivity::operator==(const kmaC_Diffusivity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Diffusivity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Diffusivity&>(o); }
void kmaC_Diffusivity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Diffusivity>(r); }
void kmaC_Diffusivity::CowDtor(void* p) { fw_CowDtor<kmaC_Diffusivity>(p); }

void kmaC_Diffusivity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
