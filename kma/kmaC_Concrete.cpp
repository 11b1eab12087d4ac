#include "kma/kmaC_Concrete.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_Concrete::kmaC_Concrete(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Concrete* kmaC_Concrete::Copy() const { return mem_New<kmaC_Concrete>(*this); }
void kmaC_Concrete::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Concrete::operator==(const kmaC_Concrete& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Concrete::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Concrete&>(o); }
void kmaC_Concrete::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Concrete>(r); }
void kmaC_Concrete::CowDtor(void* p) { fw_CowDtor<kmaC_Concrete>(p); }

void kmaC_Concrete::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
