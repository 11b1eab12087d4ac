#include "kma/kmaC_Dielectric.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Dielectric::kmaC_Dielectric(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Dielectric* kmaC_Dielectric::Copy() const { return mem_New<kmaC_Dielectric>(*this); }
void kmaC_Dielectric::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Dielectric::operator==(const kmaC_Dielectric& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Dielectric::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Dielectric&>(o); }
void kmaC_Dielectric::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Dielectric>(r); }
void kmaC_Dielectric::CowDtor(void* p) { fw_CowDtor<kmaC_Dielectric>(p); }

void kmaC_Dielectric::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
