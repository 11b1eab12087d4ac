#include "kma/kmaC_Conductivity.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Conductivity::kmaC_Conductivity(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Conductivity* kmaC_Conductivity::Copy() const { return mem_New<kmaC_Conductivity>(*this); }
void kmaC_Conductivity::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Conductivity::operator==(const kmaC_Conductivity& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Conductivity::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Conductivity&>(o); }
void kmaC_Conductivity::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Conductivity>(r); }
void kmaC_Conductivity::CowDtor(void* p) { fw_CowDtor<kmaC_Conductivity>(p); }

void kmaC_Conductivity::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
